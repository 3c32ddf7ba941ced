// galerie/HoteRecherche.cpp
#include "HoteRecherche.h"

#include "TouchesBarreRecherche.h"

#include "search/BarreRecherche.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QScopedValueRollback>
#include <QShortcut>

#include <utility>

namespace {

// A key that works in `zone` and the widgets in it as long as the host lives.
QShortcut * CreeRaccourci(QKeySequence::StandardKey touche, QWidget & zone, QObject const & hote)
{
    auto * const raccourci = new QShortcut(touche, &zone);
    raccourci->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(&hote, &QObject::destroyed, raccourci, &QObject::deleteLater,
                     Qt::UniqueConnection);
    return raccourci;
}

} // namespace

HoteRecherche::HoteRecherche(std::unique_ptr<EditeurCherchable> editeur,
                             WidgetRechercheAbstrait & frontal, QObject * parent)
    : QObject(parent)
    , monEditeur(std::move(editeur))
    , monSurlignage(*monEditeur)
    , monWidget(frontal.DonneMoiEnWidget())
{
    maMinuterie.setSingleShot(true);
    maMinuterie.setInterval(0); // as soon as the event loop turns
    connect(&maMinuterie, &QTimer::timeout, this, &HoteRecherche::PriseRenouveler,
            Qt::UniqueConnection);
    connect(monEditeur.get(), &EditeurCherchable::SignalTexteChangay, &maMinuterie,
            qOverload<>(&QTimer::start), Qt::UniqueConnection);
    connect(monEditeur.get(), &EditeurCherchable::SignalCurseurBougeay, this,
            &HoteRecherche::PriseCurseurBougeay, Qt::UniqueConnection);
    connect(monEditeur->PreteWidget(), &QObject::destroyed, this,
            &HoteRecherche::PriseEditeurDetruit, Qt::UniqueConnection);
    connect(monWidget, &QObject::destroyed, &monSurlignage, &SurlignageOccurrences::Retire,
            Qt::UniqueConnection);
    monWidget->installEventFilter(this);
    if (auto * const barre = qobject_cast<BarreRecherche *>(monWidget)) {
        new TouchesBarreRecherche(*barre, this);
        connect(barre, &BarreRecherche::SignalFermeture, this, &HoteRecherche::PriseBarreFerme,
                Qt::UniqueConnection);
    }
    frontal.MetsCallback(this);
}

HoteRecherche::~HoteRecherche()
{
    bool const remplacait = EstEnTrainDeRemplacer();
    // First, for it gives the editor back, which it reaches through this object.
    delete std::exchange(monRemplacement, nullptr);
    WidgetRechercheAbstrait * const frontal = PreteFrontal();
    if (frontal == nullptr)
        return;
    frontal->MetsCallback(nullptr);
    if (remplacait)
        frontal->MetEnCoursDeRemplacerTout(false);
    frontal->ActualiseOccurrences(0, 0);
}

void HoteRecherche::BrancheTouches(QWidget & zone)
{
    connect(CreeRaccourci(QKeySequence::Find, zone, *this), &QShortcut::activated, this,
            &HoteRecherche::PriseOuvrir, Qt::UniqueConnection);
    connect(CreeRaccourci(QKeySequence::FindNext, zone, *this), &QShortcut::activated, this,
            &HoteRecherche::PriseSuivant, Qt::UniqueConnection);
    connect(CreeRaccourci(QKeySequence::FindPrevious, zone, *this), &QShortcut::activated, this,
            &HoteRecherche::PrisePrecedent, Qt::UniqueConnection);
}

void HoteRecherche::CallbackNettoyerRecherche()
{
    maRecherche.Oublie();
    monCurseurABougeay = true;
    monSurlignage.Retire();
}

void HoteRecherche::CallbackChercher()
{
    if (!EstPret())
        return;
    OccurrencesTexte::Plage depuis = monEditeur->DonneSelection();
    bool const occurrenceSelectionnay = maRecherche.PreteOccurrences().DonneNumero(depuis) > 0;
    bool const autreMode = LisDemande();
    if (EstEnTrainDeRemplacer())
        return; // its end searches
    Cherche();
    WidgetRechercheAbstrait const & frontal = *PreteFrontal();
    bool const nouvelle = frontal.DonneSensRecherche() == CstRecherche::kNouvelleRecherche;
    // A command backward keeps the options of the last gesture where the host gives the text.
    bool const tapay = frontal.DonneSensRecherche() == CstRecherche::kVersLeBas &&
                       (frontal.DonneOptions() & CstRecherche::kTexteEdite) != 0;
    if (monCurseurABougeay || monDepart.document() != monEditeur->PreteDocument())
        MetsDepart(depuis.debut);
    if (autreMode)
        depuis.fin = depuis.debut; // which may well find the current match again
    if (nouvelle || tapay || maRecherche.EstVide())
        ChercheAuFil(occurrenceSelectionnay);
    else
        VaPlusLoin(depuis, true);
}

void HoteRecherche::CallbackRemplacer()
{
    if (!PeutRemplacer())
        return;
    LisDemande();
    Cherche();
    OccurrencesTexte::Plage plage = monEditeur->DonneSelection();
    bool const remplace = maRecherche.PreteOccurrences().DonneNumero(plage) > 0;
    if (remplace) {
        QPointer<HoteRecherche> const moi(this);
        QTextCursor curseur(monEditeur->PreteDocument());
        plage.fin +=
            RemplacementTout::Remplace(curseur, plage, PreteFrontal()->DonneChaineRemplacement());
        if (moi == nullptr || !EstPret())
            return; // somebody has answered the change with that
        Cherche();
    }
    if (!maRecherche.EstVide())
        VaPlusLoin(plage, !remplace);
}

void HoteRecherche::CallbackRemplacerTout()
{
    if (!PeutRemplacer())
        return;
    LisDemande();
    Cherche();
    if (maRecherche.PreteOccurrences().DonneNombre() == 0) {
        Termine(!maRecherche.EstVide());
        return;
    }
    monSurlignage.Retire();
    QPointer<RemplacementTout> const remplacement =
        new RemplacementTout(*monEditeur, maRecherche.PreteOccurrences(),
                             PreteFrontal()->DonneChaineRemplacement(), this);
    monRemplacement = remplacement;
    monRemplacement->MetsDureeTranche(maDureeTranche);
    monRemplacement->MetsDelaiFenetre(monDelaiFenetre);
    connect(monRemplacement, &RemplacementTout::SignalFini, this,
            &HoteRecherche::PriseRemplacementFini, Qt::UniqueConnection);
    bool const resteAFaire = remplacement->Demarre();
    if (remplacement == nullptr)
        return; // somebody has answered the change by deleting this host
    WidgetRechercheAbstrait * const frontal = PreteFrontal();
    if (!resteAFaire)
        PriseRemplacementFini(remplacement->DonneNombreRemplacees());
    else if (frontal != nullptr)
        frontal->MetEnCoursDeRemplacerTout(true);
}

void HoteRecherche::CallbackAnnulerRemplacerTout()
{
    if (EstEnTrainDeRemplacer())
        monRemplacement->PriseAnnuler();
}

bool HoteRecherche::eventFilter(QObject *, QEvent * evenement)
{
    if (evenement->spontaneous())
        return false; // the window is iconified, say: all goes on behind it
    if (evenement->type() == QEvent::Show) {
        monSurlignage.Montre({}); // from now on, before another one follows an edit
        maMinuterie.start();
    } else if (evenement->type() == QEvent::Hide) {
        monSurlignage.Retire();
    }
    return false;
}

void HoteRecherche::PriseOuvrir()
{
    if (!EstPret())
        return;
    QString texte = monEditeur->DonneCurseur().selectedText();
    if (texte.contains(QChar::ParagraphSeparator) || texte.contains(QChar::LineSeparator))
        texte.clear();
    PreteFrontal()->AfficheToi(CstRecherche::kNouvelleRecherche, texte);
}

void HoteRecherche::PriseSuivant()
{
    Continue(&WidgetRechercheAbstrait::ChercherSuivant);
}

void HoteRecherche::PrisePrecedent()
{
    Continue(&WidgetRechercheAbstrait::ChercherPrecedent);
}

void HoteRecherche::PriseCurseurBougeay()
{
    if (jeBougeLeCurseur || (EstEnTrainDeRemplacer() && monRemplacement->EcrisTuLeTexte()))
        return;
    // No more: no cursor may come or go while `QTextDocument::clear` tells of the change.
    monCurseurABougeay = true;
    maMinuterie.start();
}

void HoteRecherche::PriseRenouveler()
{
    if (!EstPret() || EstEnTrainDeRemplacer() || !monWidget->isVisible())
        return;
    bool const nouveau = Cherche();
    Rapporte(false);
    if (nouveau)
        Annonce();
}

void HoteRecherche::PriseBarreFerme()
{
    QWidget * const foyer = monWidget->window()->focusWidget();
    QWidget * const editeur = monEditeur->PreteWidget();
    if (foyer != nullptr && editeur != nullptr && monWidget->isAncestorOf(foyer))
        editeur->setFocus();
}

void HoteRecherche::PriseEditeurDetruit()
{
    if (WidgetRechercheAbstrait * const frontal = PreteFrontal())
        frontal->ActualiseOccurrences(0, 0);
}

void HoteRecherche::PriseRemplacementFini(int remplacees)
{
    if (!EstEnTrainDeRemplacer())
        return;
    monRemplacement->deleteLater();
    monRemplacement = nullptr;
    if (WidgetRechercheAbstrait * const frontal = PreteFrontal())
        frontal->MetEnCoursDeRemplacerTout(false);
    QPointer<HoteRecherche> const moi(this);
    if (EstPret()) {
        Cherche();
        Termine(false);
    }
    if (moi != nullptr)
        Q_EMIT SignalRemplacementFini(remplacees);
}

WidgetRechercheAbstrait * HoteRecherche::PreteFrontal() const
{
    // Null as soon as the destructor of the front end has left its class, unlike the pointer.
    return dynamic_cast<WidgetRechercheAbstrait *>(monWidget.data());
}

bool HoteRecherche::EstPret() const
{
    return monEditeur->PreteWidget() != nullptr && PreteFrontal() != nullptr;
}

bool HoteRecherche::PeutRemplacer() const
{
    return EstPret() && !EstEnTrainDeRemplacer() &&
           monEditeur->DonneInteraction().testFlag(Qt::TextEditable);
}

void HoteRecherche::MetsDepart(int position)
{
    monDepart = QTextCursor(monEditeur->PreteDocument()); // which moves it with its text
    monDepart.setPosition(position);
    monCurseurABougeay = false;
}

// Reads what the front end asks for. True when only the options differ from the last time.
bool HoteRecherche::LisDemande()
{
    WidgetRechercheAbstrait const & frontal = *PreteFrontal();
    return maRecherche.Demande(frontal.DonneChaineRecherche(), frontal.DonneOptions());
}

void HoteRecherche::Continue(void (WidgetRechercheAbstrait::*versOu)())
{
    WidgetRechercheAbstrait * const frontal = PreteFrontal();
    if (!EstPret())
        return;
    if (frontal->DonneChaineRecherche().isEmpty())
        PriseOuvrir();
    else
        (frontal->*versOu)();
}

// The first match behind the start, while a text is being typed.
void HoteRecherche::ChercheAuFil(bool occurrenceSelectionnay)
{
    bool const boucler = (PreteFrontal()->DonneOptions() & CstRecherche::kBoucler) != 0;
    int const depart = monDepart.position();
    int const numero = maRecherche.PreteOccurrences().DonneSuivante(depart, boucler);
    if (numero > 0)
        Selectionne(maRecherche.PreteOccurrences().DonnePlage(numero));
    else if (occurrenceSelectionnay) // but never what the user has selected
        Selectionne({depart, depart});
    Termine(false);
}

// The match before or behind a place, on a command.
void HoteRecherche::VaPlusLoin(OccurrencesTexte::Plage const & depuis, bool avecMessage)
{
    WidgetRechercheAbstrait const & frontal = *PreteFrontal();
    bool const boucler = (frontal.DonneOptions() & CstRecherche::kBoucler) != 0;
    int const numero = frontal.DonneSensRecherche() == CstRecherche::kVersLeHaut
                           ? maRecherche.PreteOccurrences().DonnePrecedente(depuis.debut, boucler)
                           : maRecherche.PreteOccurrences().DonneSuivante(depuis.fin, boucler);
    if (numero > 0)
        Selectionne(maRecherche.PreteOccurrences().DonnePlage(numero));
    MetsDepart(monEditeur->DonneSelection().debut);
    Termine(avecMessage && numero == 0);
}

void HoteRecherche::Selectionne(OccurrencesTexte::Plage const & plage)
{
    QScopedValueRollback const garde(jeBougeLeCurseur, true);
    monEditeur->Selectionne(plage);
}

// Following an edit or the caret takes no highlights away from another host.
void HoteRecherche::Rapporte(bool prendsLaPlace)
{
    PreteFrontal()->ActualiseOccurrences(
        maRecherche.PreteOccurrences().DonneNumero(monEditeur->DonneSelection()),
        maRecherche.PreteOccurrences().DonneNombre());
    if (monWidget->isVisible() && (prendsLaPlace || !monSurlignage.EstEvincay()))
        monSurlignage.Montre(maRecherche.PreteOccurrences());
}

void HoteRecherche::Annonce()
{
    Q_EMIT SignalTrouvay(maRecherche.EstVide() || maRecherche.PreteOccurrences().DonneNombre() > 0);
}

// Tells what a search has found. Last: those who hear of it may delete whom they want.
void HoteRecherche::Termine(bool avecMessage)
{
    Rapporte(true);
    QPointer<HoteRecherche> const moi(this);
    Annonce();
    if (avecMessage && moi != nullptr && EstPret())
        PreteFrontal()->AfficheMessageTexteIntrouvable(false);
}
