// navigation/DAssistant.cpp
#include "navigation/DAssistant.h"

#include "controls/DListViewClique.h"
#include "foundation/Layouts.h"
#include "foundation/TraductionGui.h"
#include "navigation/DAssistantEtape.h"
#include "navigation/DelegayVueEtapes.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFrame>
#include <QItemSelectionModel>
#include <QListWidgetItem>
#include <QPushButton>
#include <QStackedWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeurListe = 175; // logical pixels

// The title of a step as it was when it was added, beside the numbered text of its row.
constexpr int kRoleTitre = Qt::UserRole;

constexpr QRgb kTexteNoirci = qRgb(0, 0, 0);

bool EstClair(QColor const & couleur)
{
    return couleur.lightness() > 127; // of 255
}

QString NumeroteTitre(int numero, QString const & titre)
{
    return u"%1. %2"_s.arg(QString::number(numero), titre);
}

void ActiveItem(QListWidgetItem * item, bool actif)
{
    // Qt tells assistive technologies of rows that can't be selected, not of disabled ones.
    item->setFlags(
        item->flags().setFlag(Qt::ItemIsEnabled, actif).setFlag(Qt::ItemIsSelectable, actif));
}

} // namespace

DAssistant::DAssistant(QWidget * parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
    , maPile(new QStackedWidget)
    , maVueEtapes(new DListViewClique)
{
    CreeListe();
    CreeBoutons();
    PoseElements();
    MetsCouleurs();
    Branche(); // last: no slot may run on a half-built wizard
}

DAssistant::~DAssistant() = default;

void DAssistant::CreeListe()
{
    maVueEtapes->setFixedWidth(kLargeurListe);
    maVueEtapes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    maVueEtapes->setItemDelegate(new DelegayVueEtapes(this));
    maVueEtapes->setUniformItemSizes(true);
    maVueEtapes->setStyleSheet(u"QListWidget{border : 0px; border-right: 1px solid #BBBBBB;}"_s);
}

void DAssistant::CreeBoutons()
{
    monBoutonAnnuler = new QPushButton(TraductionGui(TexteGui("Annuler")));
    monBoutonPrecedent = new QPushButton("< "_L1 + QString(TraductionGui(TexteGui("Précédent"))));
    monBoutonSuivant = new QPushButton(QString(TraductionGui(TexteGui("Suivant"))) + " >"_L1);
    monBoutonTermine = new QPushButton(TraductionGui(TexteGui("Terminer")));
    for (auto * const bouton : {monBoutonPrecedent, monBoutonSuivant, monBoutonTermine})
        bouton->setEnabled(false);
}

void DAssistant::PoseElements()
{
    auto * const disposition = new QVBoxLayout(this);
    RoutinesGeneralesQt::EnleveMargesDuLayout(disposition);
    disposition->setSpacing(0); // the line beside the list meets the one above the buttons

    auto * const haut = new QHBoxLayout;
    disposition->addLayout(haut);
    haut->addWidget(maVueEtapes);
    haut->addWidget(maPile);

    auto * const barre = new QFrame;
    barre->setStyleSheet(u"QFrame{background-color: #F0F0F0; border-top: 1px solid #BBBBBB;}"_s);
    disposition->addWidget(barre);
    auto * const rangee = new QHBoxLayout(barre);
    rangee->addStretch(1);
    for (auto * const bouton :
         {monBoutonAnnuler, monBoutonPrecedent, monBoutonSuivant, monBoutonTermine})
        rangee->addWidget(bouton);
    monBoutonSuivant->setDefault(true); // only now: a dialog counts its own buttons alone
}

void DAssistant::MetsCouleurs()
{
    QPalette couleurs = palette();
    couleurs.setColor(QPalette::Window, Qt::white);
    setPalette(couleurs);
    setAutoFillBackground(true);
    AccordeTexte();
}

void DAssistant::AccordeTexte()
{
    // The background is white under a dark palette too, whose text nobody could read on it.
    QPalette couleurs = palette();
    QPalette const application = QApplication::palette(this);
    QColor const texte = couleurs.color(QPalette::Active, QPalette::WindowText);
    if (EstClair(texte) && EstClair(couleurs.color(QPalette::Active, QPalette::Window))) {
        monTexteNoirci = true;
        couleurs.setColor(QPalette::WindowText, kTexteNoirci);
        couleurs.setColor(QPalette::Disabled, QPalette::WindowText, Qt::darkGray);
    } else if (monTexteNoirci && texte == kTexteNoirci &&
               !EstClair(application.color(QPalette::Active, QPalette::WindowText))) {
        monTexteNoirci = false;
        for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            couleurs.setColor(groupe, QPalette::WindowText,
                              application.color(groupe, QPalette::WindowText));
    }
    setPalette(couleurs);
}

void DAssistant::Branche()
{
    connect(monBoutonAnnuler, &QPushButton::clicked, this, &DAssistant::PriseBoutonAnnuler,
            Qt::UniqueConnection);
    connect(monBoutonPrecedent, &QPushButton::clicked, this, &DAssistant::PriseBoutonPrecedent,
            Qt::UniqueConnection);
    connect(monBoutonSuivant, &QPushButton::clicked, this, &DAssistant::PriseBoutonSuivant,
            Qt::UniqueConnection);
    connect(monBoutonTermine, &QPushButton::clicked, this, &DAssistant::PriseBoutonTermine,
            Qt::UniqueConnection);
    connect(maVueEtapes->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DAssistant::PriseSelectionEtape, Qt::UniqueConnection);
    connect(maVueEtapes, &QAbstractItemView::clicked, this, &DAssistant::PriseClicEtape,
            Qt::UniqueConnection);
    connect(maPile, &QStackedWidget::widgetRemoved, this, &DAssistant::PriseEtapeEnlevay,
            Qt::UniqueConnection);
    maVueEtapes->installEventFilter(this);
}

void DAssistant::AjouteEtape(DAssistantEtape * etape, bool)
{
    if (!etape || mesEtapes.contains(etape))
        return;
    maPile->addWidget(etape);
    mesEtapes.append(etape);

    QString const titre = etape->DonneTitreEtape();
    auto * const item = new QListWidgetItem(NumeroteTitre(maVueEtapes->count() + 1, titre));
    item->setData(kRoleTitre, titre);
    ActiveItem(item, false);
    maVueEtapes->addItem(item);
    maVueEtapes->setAccessibleName(DonneTitreGenerique(monEtapeCourante));
    RangeFocus();
}

void DAssistant::Reinitialise()
{
    monEtapeCourante = nullptr;
    monHistorique.clear();
    for (int rangee = 0; rangee < maVueEtapes->count(); ++rangee)
        ActiveItem(maVueEtapes->item(rangee), false);
}

void DAssistant::DebarreToutesLesEtapes()
{
    for (int rangee = 0; rangee < maVueEtapes->count(); ++rangee)
        ActiveRangee(rangee);
}

void DAssistant::ActiveBoutonAnnuler(bool actif)
{
    monBoutonAnnuler->setEnabled(actif);
}

void DAssistant::ActiveBoutonPrecedent(bool actif)
{
    monBoutonPrecedent->setEnabled(actif);
}

void DAssistant::ActiveBoutonSuivant(bool actif)
{
    monBoutonSuivant->setEnabled(actif);
}

void DAssistant::ActiveBoutonTermine(bool actif)
{
    monBoutonTermine->setEnabled(actif);
}

void DAssistant::ActiveBarreEtapes()
{
    maVueEtapes->setEnabled(true);
}

void DAssistant::DesactiveBarreEtapes()
{
    maVueEtapes->setDisabled(true);
}

void DAssistant::CacheBarreEtapes()
{
    maVueEtapes->hide();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DAssistant::RenommeBoutonSuivant(QString texte)
{
    monBoutonSuivant->setText(texte);
}

int DAssistant::DonneMaxEtapeParcouru() const
{
    return monMaxEtape;
}

// NOLINTBEGIN(performance-unnecessary-value-param): by value is the interface
QVariant DAssistant::DonneOption(QString cle)
{
    auto const position = mesOptions.find(cle);
    return position == mesOptions.end() ? QVariant() : position->second;
}

void DAssistant::PrendsOption(QString cle, QVariant valeur)
{
    mesOptions[cle] = std::move(valeur);
}

void DAssistant::EnleveOption(QString cle)
{
    mesOptions.erase(cle);
}
// NOLINTEND(performance-unnecessary-value-param)

UniChaine DAssistant::DonneTitreGenerique(DAssistantEtape *) const
{
    // Deliberate: the text speaks of the visited path, not of the place of a step in the list.
    return TraductionGuiFormatay(TexteGui("Étape {1} de {2}"),
                                 {UniChaine::DepuisNombre(int(monHistorique.size()) + 1),
                                  UniChaine::DepuisNombre(int(mesEtapes.size()))});
}

void DAssistant::NumeroteRangees()
{
    maVueEtapes->setAccessibleName(DonneTitreGenerique(monEtapeCourante));
    for (int rangee = 0; rangee < maVueEtapes->count(); ++rangee) {
        QListWidgetItem * const item = maVueEtapes->item(rangee);
        item->setText(NumeroteTitre(rangee + 1, item->data(kRoleTitre).toString()));
    }
}

void DAssistant::ActiveRangee(int rangee)
{
    ActiveItem(maVueEtapes->item(rangee), true);
}

void DAssistant::RangeFocus()
{
    // The steps' widgets, also those that a step made later, come between the list and the buttons.
    for (auto * const bouton :
         {monBoutonAnnuler, monBoutonPrecedent, monBoutonSuivant, monBoutonTermine}) {
        QWidget * dernier = previousInFocusChain();
        while (dernier->focusPolicy() == Qt::NoFocus && dernier != this)
            dernier = dernier->previousInFocusChain();
        setTabOrder(dernier, bouton);
    }
}
