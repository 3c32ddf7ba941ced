// galerie/RemplacementTout.cpp
#include "RemplacementTout.h"

#include "EditeurCherchable.h"
#include "TraductionGalerie.h"

#include "dialogs/DDialogueProgressionInfinie.h"
#include "foundation/TraductionGui.h"

#include "noyau/DLocale.h"
#include "noyau/Traductions.h"

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QEvent>
#include <QPushButton>
#include <QTimer>

#include <utility>

RemplacementTout::RemplacementTout(EditeurCherchable & editeur, OccurrencesTexte occurrences,
                                   QString remplacement, QObject * parent)
    : QObject(parent)
    , monEditeur(editeur)
    , mesOccurrences(std::move(occurrences))
    , monRemplacement(std::move(remplacement))
    , monDocument(editeur.PreteDocument())
    , monCurseur(monDocument)
{
}

RemplacementTout::~RemplacementTout()
{
    Arrete();
}

int RemplacementTout::Remplace(QTextCursor & curseur, OccurrencesTexte::Plage const & plage,
                               QString const & remplacement)
{
    // The format of a cursor is that of the character before it.
    curseur.setPosition(plage.debut + 1);
    QTextCharFormat const format = curseur.charFormat();
    curseur.setPosition(plage.debut);
    curseur.setPosition(plage.fin, QTextCursor::KeepAnchor);
    curseur.insertText(remplacement, format);
    return curseur.position() - plage.fin;
}

bool RemplacementTout::Demarre()
{
    if (monDocument == nullptr || EstFini())
        return false;
    jeSuisEnCours = true;
    monInteraction = monEditeur.DonneInteraction();
    monEditeur.MetsInteraction(monInteraction & ~Qt::TextInteractionFlags(Qt::TextEditable));
    QPointer<RemplacementTout> const moi(this);
    RemplaceTranche();
    if (moi == nullptr || !jeSuisEnCours)
        return false;
    if (EstFini()) {
        Arrete();
        return false;
    }
    QTimer::singleShot(monDelaiFenetre, this, &RemplacementTout::PriseOuvrirFenetre);
    QTimer::singleShot(0, this, &RemplacementTout::PriseContinuer);
    return true;
}

// A window manager iconifies it with its window, but leaves it there when that one is closed.
bool RemplacementTout::eventFilter(QObject *, QEvent * evenement)
{
    bool const montre = evenement->type() == QEvent::Show;
    bool const cache = evenement->type() == QEvent::Hide;
    if (maFenetre != nullptr && !evenement->spontaneous() && (montre || cache))
        maFenetre->setVisible(montre);
    return false;
}

void RemplacementTout::PriseAnnuler()
{
    if (jeSuisEnCours)
        Finis();
}

void RemplacementTout::PriseContinuer()
{
    if (!jeSuisEnCours)
        return;
    if (EstPerturbay()) {
        Finis();
        return;
    }
    QPointer<RemplacementTout> const moi(this);
    RemplaceTranche();
    if (moi == nullptr || !jeSuisEnCours)
        return;
    if (EstFini())
        Finis();
    else
        QTimer::singleShot(0, this, &RemplacementTout::PriseContinuer);
}

void RemplacementTout::PriseOuvrirFenetre()
{
    QWidget * const widget = monEditeur.PreteWidget();
    if (!jeSuisEnCours || widget == nullptr)
        return;
    maFenetre = new DDialogueProgressionInfinie(
        widget->window(), TraductionGalerie(TexteGalerie("Remplacement en cours")),
        DonneAvancement(), kDrapeauxFenetre);
    auto * const annuler = new QPushButton(TraductionGui(TexteGui("Annuler")));
    annuler->setFocusPolicy(Qt::NoFocus);
    maFenetre->AjouterBouton(annuler);
    connect(annuler, &QPushButton::clicked, this, &RemplacementTout::PriseAnnuler,
            Qt::UniqueConnection);
    widget->window()->installEventFilter(this);
    maFenetre->setVisible(widget->window()->isVisible());
}

RemplacementTout::Empreinte RemplacementTout::DonneEmpreinte() const
{
    bool const annulable = monDocument->isUndoRedoEnabled();
    return {monDocument->characterCount(), monDocument->availableUndoSteps(),
            annulable ? 0 : monDocument->revision()};
}

bool RemplacementTout::EstPerturbay() const
{
    return monDocument == nullptr || monEditeur.PreteDocument() != monDocument ||
           DonneEmpreinte() != monEmpreinte;
}

void RemplacementTout::RemplaceTranche()
{
    jEcrisLeTexte = true;
    QElapsedTimer chronometre;
    chronometre.start();
    if (mesRemplacees == 0)
        monCurseur.beginEditBlock();
    else
        monCurseur.joinPreviousEditBlock();
    do {
        OccurrencesTexte::Plage plage = mesOccurrences.DonnePlage(++mesRemplacees);
        plage.debut += monDecalage;
        plage.fin += monDecalage;
        monDecalage += Remplace(monCurseur, plage, monRemplacement);
    } while (!EstFini() && (mesRemplacees % kRemplacementsParMesure != 0 ||
                            chronometre.elapsed() < maDureeTranche));
    // Before the end of the block, which tells others of the change: they may answer with their
    // own, or delete this object.
    monEmpreinte = DonneEmpreinte();
    QPointer<RemplacementTout> const moi(this);
    QTextCursor(monCurseur).endEditBlock();
    if (moi == nullptr)
        return;
    jEcrisLeTexte = false;
    if (jeSuisEnCours && maFenetre != nullptr)
        maFenetre->PrendsTexteSecondaire(DonneAvancement());
}

QString RemplacementTout::DonneAvancement() const
{
    DLocale const locale = Traductions::DonneLocalePourApplicationCourante();
    return TraductionGalerie(
        TexteGalerie("{1} sur {2}"),
        {UniChaine::DonneNombreFormatay(locale, mesRemplacees),
         UniChaine::DonneNombreFormatay(locale, mesOccurrences.DonneNombre())});
}

void RemplacementTout::Arrete()
{
    if (!jeSuisEnCours)
        return;
    jeSuisEnCours = false;
    if (monEditeur.PreteWidget() != nullptr)
        monEditeur.MetsInteraction(monInteraction);
    if (maFenetre != nullptr)
        maFenetre->close();
}

void RemplacementTout::Finis()
{
    Arrete();
    Q_EMIT SignalFini(mesRemplacees);
}
