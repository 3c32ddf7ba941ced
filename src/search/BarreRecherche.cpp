// search/BarreRecherche.cpp
#include "search/BarreRecherche.h"

#include "search/AlerteIntrouvable_p.h"

#include "foundation/TraductionGui.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QToolButton>

using namespace Qt::StringLiterals;

BarreRecherche::BarreRecherche(QWidget * parent, bool remplacer, bool commencePar, bool occurrences,
                               bool motEntier)
    : QFrame(parent)
    , WidgetRechercheAbstrait(remplacer)
    , monGroupeModes(this)
{
    setObjectName(u"BandeauRecherche"_s); // applications style it under this name
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(TraductionGui(TexteGui("Barre de recherche")));
    CreeBoutons();
    CreeChamps(occurrences);
    CreeBoutonsRemplacement();
    CreeMenu(commencePar, motEntier);
    PoseGrille();
    OrdonneTabulation();
    MontreRemplacement(false);
    if (occurrences)
        BarreRecherche::ActualiseOccurrences(0, 0);
    Branche(); // last: no slot may run on a half-built bar
    // Deliberate: it finds no slot of the bar named on_<object>_<signal>. Qt sees no subclass from
    // here; one that names slots so calls it again.
    QMetaObject::connectSlotsByName(this);
}

BarreRecherche::~BarreRecherche()
{
    delete monActionRespecterCasse;
    delete monActionCommencePar;
    delete monActionMotEntier;
    delete monActionContient;
}

void BarreRecherche::AfficheMessageTexteIntrouvable(bool pourListe) const
{
    AlerteIntrouvable(parentWidget(), DonneOptions(), pourListe, TexteGui("Texte introuvable."));
}

void BarreRecherche::AfficheToi()
{
    show();
}

void BarreRecherche::ActualiseOccurrences(int const & position, int const & total)
{
    if (monEtiquetteOccurrences == nullptr)
        return;
    monEtiquetteOccurrences->setVisible(total >= 1);
    monEtiquetteOccurrences->setText(u"%1/%2"_s.arg(position).arg(total));
    bool const actif = total > 0 && !monEnCoursDeRemplacerTout;
    monBoutonPrecedent->setEnabled(actif);
    monBoutonSuivant->setEnabled(actif);
}

void BarreRecherche::MetEnCoursDeRemplacerTout(bool enCours)
{
    monEnCoursDeRemplacerTout = enCours;
    monBoutonAnnuler->setEnabled(enCours);
    for (QToolButton * const bouton :
         {monBoutonRemplacer, monBoutonRemplacerTout, monBoutonPrecedent, monBoutonSuivant})
        bouton->setEnabled(!enCours);
}

void BarreRecherche::CacheToi()
{
    QPointer<BarreRecherche> const moi(this);
    Q_EMIT SignalFermeture();
    if (moi != nullptr)
        hide();
}

QWidget * BarreRecherche::DonneMoiEnWidget()
{
    return this;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void BarreRecherche::MetsChaineAChercher(UniChaine chaine)
{
    monChampRecherche->setText(chaine);
    RetiensChaineRecherche(chaine);
}

void BarreRecherche::ModifieSensRecherche(CstRecherche::eTypeRecherche type)
{
    RetiensSensRecherche(type);
    ActualiserEtatPanneau();
}

void BarreRecherche::PrendsChaineRecherche(QString const & chaine)
{
    RetiensChaineRecherche(chaine);
    monChampRecherche->setText(chaine);
}

void BarreRecherche::PrendsChaineRemplacement(QString const & chaine)
{
    RetiensChaineRemplacement(chaine);
}

void BarreRecherche::PrendsFocus()
{
    monChampRecherche->setFocus();
}

void BarreRecherche::PriseBoutonFermer()
{
    QPointer<BarreRecherche> const moi(this);
    BoutonAnnulerRemplacerTout();
    if (moi != nullptr)
        Q_EMIT SignalBarreRechercheFermay();
    if (moi != nullptr)
        CacheToi();
}

void BarreRecherche::PriseActualiserEtatPanneau()
{
    ActualiserEtatPanneau();
}

void BarreRecherche::PriseBoutonChercher()
{
    BoutonChercher();
}

void BarreRecherche::PriseChercherSuivant()
{
    ChercherSuivant();
}

void BarreRecherche::PriseChercherPrecedent()
{
    ChercherPrecedent();
}

void BarreRecherche::PriseBoutonRemplacerTout()
{
    BoutonRemplacerTout();
}

void BarreRecherche::PriseBoutonRemplacer()
{
    BoutonRemplacer();
}

void BarreRecherche::PriseBoutonAnnuler()
{
    BoutonAnnulerRemplacerTout();
}

void BarreRecherche::PriseTexteEditer()
{
    TexteDeRechercheChanger();
}

bool BarreRecherche::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const estUnChamp = objet == monChampRecherche || objet == monChampRemplacement;
    if (!estUnChamp || evenement->type() != QEvent::KeyRelease ||
        static_cast<QKeyEvent *>(evenement)->key() != Qt::Key_Escape)
        return false;
    QPointer<BarreRecherche> const moi(this);
    // Deliberate: whatever the press did, such as to close the menu of the options, its release
    // closes the bar. Unlike the close button it cancels nothing and tells of the closing last.
    CacheToi();
    if (moi != nullptr)
        Q_EMIT SignalBarreRechercheFermay();
    // Nothing is swallowed; but a field that went with the bar must not get the event any more.
    return moi == nullptr;
}

void BarreRecherche::showEvent(QShowEvent * evenement)
{
    QFrame::showEvent(evenement);
    activateWindow();
    monChampRecherche->selectAll();
    monChampRecherche->setFocus();
}

void BarreRecherche::ActualiserEtatPanneau()
{
    RetiensChaineRecherche(monChampRecherche->text());
    RetiensChaineRemplacement(monChampRemplacement->text());
    // Deliberate: a new search counts as downward, and the bar always wraps around.
    short options = CstRecherche::kBoucler;
    if (DonneSensRecherche() < CstRecherche::kVersLeHaut)
        options |= CstRecherche::kBas;
    else
        options |= CstRecherche::kHaut;
    if (monActionRespecterCasse->isChecked())
        options |= CstRecherche::kRespecterCasse;
    if (monActionCommencePar != nullptr && monActionCommencePar->isChecked())
        options |= CstRecherche::kCommencePar;
    else if (monActionMotEntier != nullptr && monActionMotEntier->isChecked())
        options |= CstRecherche::kMotEntier;
    PrendsOptions(options);
}

void BarreRecherche::PriseActualiseEtatPanneau()
{
    ActualiserEtatPanneau();
}

void BarreRecherche::MontreRemplacement(bool visible)
{
    monChampRemplacement->setVisible(visible);
    monCadreBoutonsRemplacement->setVisible(visible);
    QMargins const marges = layout()->contentsMargins();
    int const hauteurRemplacement = visible ? monChampRemplacement->height() : 0;
    // Deliberate: the spacing between the rows is not counted, the band is that tight.
    setFixedHeight(hauteurRemplacement + monChampRecherche->height() + marges.top() +
                   marges.bottom());
}
