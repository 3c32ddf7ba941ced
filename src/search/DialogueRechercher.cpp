// search/DialogueRechercher.cpp
#include "search/DialogueRechercher.h"

#include "search/AlerteIntrouvable_p.h"

#include "foundation/GeometrieEcran.h"
#include "foundation/TraductionGui.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QWindow>

#include <initializer_list>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Where the last dialog of the process stood, with its frame.
std::optional<QPoint> & DernierePosition()
{
    static std::optional<QPoint> position;
    return position;
}

bool EstCochay(QAbstractButton const * bouton)
{
    return bouton && bouton->isChecked();
}

} // namespace

DialogueRechercher::DialogueRechercher(QWidget * parent, bool remplacer, short masque)
    : QDialog(parent)
    , WidgetRechercheAbstrait(remplacer)
{
    setObjectName(u"DialogueRechercher"_s); // applications style it under this name
    setWindowTitle(TraductionGui(remplacer ? TexteGui("Remplacer") : TexteGui("Rechercher")));
    CreeChamps();
    CreeOptions(masque);
    CreeBoutons();
    Dispose();
    Branche();
    PriseActualiserBoutons();
}

DialogueRechercher::~DialogueRechercher()
{
    // It is its base that hides a window which is deleted while it shows.
    if (isVisible())
        RetiensPosition();
}

void DialogueRechercher::AfficheMessageTexteIntrouvable(bool pourListe) const
{
    // The widget of the field is the way to this dialog as something that is not const.
    QWidget * const parent =
        isVisible() && !isMinimized() ? monChampRecherche->window() : parentWidget();
    AlerteIntrouvable(parent, DonneOptions(), pourListe,
                      TexteGui("Texte introuvable dans le texte."));
}

void DialogueRechercher::AfficheToi()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
}

void DialogueRechercher::MetEnCoursDeRemplacerTout(bool enCours)
{
    monRemplacementEnCours = enCours;
    PriseActualiserBoutons();
}

void DialogueRechercher::CacheToi()
{
    QPointer<DialogueRechercher> const vivant(this);
    Q_EMIT SignalFermeture();
    if (vivant && !isHidden())
        done(Rejected);
}

QWidget * DialogueRechercher::DonneMoiEnWidget()
{
    return this;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DialogueRechercher::MetsChaineAChercher(UniChaine chaine)
{
    PrendsChaineRecherche(chaine);
}

void DialogueRechercher::ModifieSensRecherche(CstRecherche::eTypeRecherche type)
{
    RetiensSensRecherche(type);
    if (type != CstRecherche::kNouvelleRecherche)
        CocheSens(type == CstRecherche::kVersLeHaut);
    ActualiserEtatPanneau();
}

void DialogueRechercher::PrendsChaineRecherche(QString const & chaine)
{
    RetiensChaineRecherche(chaine);
    monChampRecherche->setText(chaine);
}

void DialogueRechercher::PrendsChaineRemplacement(QString const & chaine)
{
    RetiensChaineRemplacement(chaine);
    if (monChampRemplacement)
        monChampRemplacement->setText(chaine);
}

void DialogueRechercher::PrendsFocus()
{
    activateWindow();
    monChampRecherche->setFocus();
    monChampRecherche->selectAll();
}

void DialogueRechercher::ChercherSuivant()
{
    CocheSens(false);
    WidgetRechercheAbstrait::ChercherSuivant();
}

void DialogueRechercher::ChercherPrecedent()
{
    CocheSens(true);
    WidgetRechercheAbstrait::ChercherPrecedent();
}

// Not in the events: once the native window is there, a position is taken for that of the content,
// and when it is hidden the frame may be gone.
void DialogueRechercher::setVisible(bool visible)
{
    if (visible && isHidden())
        ReprendsPosition();
    else if (!visible && isVisible())
        RetiensPosition();
    QDialog::setVisible(visible);
}

void DialogueRechercher::PriseBoutonFermer()
{
    QPointer<DialogueRechercher> const vivant(this);
    BoutonAnnulerRemplacerTout();
    if (vivant)
        Q_EMIT SignalDialogueRechercheFermay();
    if (vivant)
        CacheToi();
}

void DialogueRechercher::reject()
{
    PriseBoutonFermer();
}

void DialogueRechercher::PriseActualiserEtatPanneau()
{
    ActualiserEtatPanneau();
}

void DialogueRechercher::PriseBoutonChercher()
{
    if (OffreSens() && EstVersLeHaut())
        ChercherPrecedent();
    else
        BoutonChercher();
}

void DialogueRechercher::PriseChercherSuivant()
{
    ChercherSuivant();
}

void DialogueRechercher::PriseChercherPrecedent()
{
    ChercherPrecedent();
}

void DialogueRechercher::PriseBoutonRemplacerTout()
{
    BoutonRemplacerTout();
}

void DialogueRechercher::PriseBoutonRemplacer()
{
    BoutonRemplacer();
}

void DialogueRechercher::PriseBoutonAnnuler()
{
    BoutonAnnulerRemplacerTout();
}

void DialogueRechercher::ActualiserEtatPanneau()
{
    RetiensChaineRecherche(monChampRecherche->text());
    if (monChampRemplacement)
        RetiensChaineRemplacement(monChampRemplacement->text());
    int options = 0;
    // The modes exclude each other, and "mot entier" keeps its state while it is disabled.
    if (EstCochay(monChoixCommencePar))
        options |= CstRecherche::kCommencePar;
    else if (EstCochay(maCaseMotEntier))
        options |= CstRecherche::kMotEntier;
    if (EstCochay(maCaseCasse))
        options |= CstRecherche::kRespecterCasse;
    if (EstCochay(maCaseBoucler))
        options |= CstRecherche::kBoucler;
    options |= EstVersLeHaut() ? CstRecherche::kHaut : CstRecherche::kBas;
    PrendsOptions(static_cast<short>(options));
}

// Return presses the button of the field that it is pressed in.
bool DialogueRechercher::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == monChampRemplacement && evenement->type() == QEvent::FocusIn)
        monBoutonRemplacer->setDefault(true);
    else if (objet == monChampRemplacement && evenement->type() == QEvent::FocusOut)
        monBoutonChercher->setDefault(true);
    return QDialog::eventFilter(objet, evenement);
}

void DialogueRechercher::showEvent(QShowEvent * evenement)
{
    QDialog::showEvent(evenement);
    if (!evenement->spontaneous())
        PrendsFocus();
}

void DialogueRechercher::PriseSensChoisi()
{
    RetiensSensRecherche(EstVersLeHaut() ? CstRecherche::kVersLeHaut : CstRecherche::kVersLeBas);
    ActualiserEtatPanneau();
}

void DialogueRechercher::PriseActualiserBoutons()
{
    bool const peutChercher = !monChampRecherche->text().isEmpty() && !monRemplacementEnCours;
    // Whoever works from the keyboard is led from "Tout remplacer" to "Annuler" and back, so the
    // button that takes the focus is enabled before the other is disabled.
    if (monBoutonAnnuler && monRemplacementEnCours)
        monBoutonAnnuler->setEnabled(true);
    for (QPushButton * const bouton :
         {monBoutonRemplacerTout, monBoutonRemplacer, monBoutonChercher})
        if (bouton)
            bouton->setEnabled(peutChercher);
    if (!monBoutonAnnuler || monRemplacementEnCours)
        return;
    if (focusWidget() == monBoutonAnnuler)
        monBoutonRemplacerTout->setFocus();
    monBoutonAnnuler->setEnabled(false);
}

bool DialogueRechercher::OffreSens() const
{
    return monChoixHaut || monChoixBas;
}

bool DialogueRechercher::EstVersLeHaut() const
{
    if (!OffreSens())
        return DonneSensRecherche() == CstRecherche::kVersLeHaut;
    return monChoixHaut ? monChoixHaut->isChecked() : !monChoixBas->isChecked();
}

void DialogueRechercher::CocheSens(bool versLeHaut)
{
    if (monChoixBas)
        monChoixBas->setChecked(!versLeHaut);
    if (monChoixHaut)
        monChoixHaut->setChecked(versLeHaut);
}

void DialogueRechercher::RetiensPosition()
{
    // So that the base does not centre this dialog the next time.
    setAttribute(Qt::WA_Moved);
    // Not `pos()`: where the frame comes late, as on X11, a widget may never hear of its size.
    if (windowHandle() && !isMinimized() && !isMaximized())
        DernierePosition() = windowHandle()->framePosition();
}

void DialogueRechercher::ReprendsPosition()
{
    // A place that the application chose is left to it, and a dialog that was open stays.
    if (DernierePosition() && !testAttribute(Qt::WA_Moved))
        move(*DernierePosition());
    if (!testAttribute(Qt::WA_Moved))
        return;
    if (!testAttribute(Qt::WA_Resized)) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false); // no size that anybody asked for
    }
    RoutinesGeneralesQt::AjusteDansEcran(*this, true, false, false);
}
