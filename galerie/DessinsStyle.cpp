// galerie/DessinsStyle.cpp
#include "DessinsStyle.h"

#include "TraductionGalerie.h"

#include "style/InterpreteurChaineSemantique.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCoteIcone = 16;  // logical pixels
constexpr int kMaximum = 100;   // of the progress bar and the slider
constexpr int kAvancement = 60; // of them
constexpr int kOngletDessinay = 2;
constexpr int kOnglets = 4; // so many that the drawn one is neither beside the current one nor last

QIcon Icone()
{
    return QIcon(u":/images/theme.svg"_s);
}

template <typename Widget>
QWidget * Cree(QWidget * parent)
{
    return new Widget(parent);
}

QWidget * CreeBoutonDefaut(QWidget * parent)
{
    auto * const bouton = new QPushButton(parent);
    bouton->setDefault(true);
    return bouton;
}

QWidget * CreeBoutonAvecMenu(QWidget * parent)
{
    auto * const bouton = new QPushButton(parent);
    bouton->setMenu(new QMenu(bouton));
    return bouton;
}

QWidget * CreeBoutonOutil(QWidget * parent)
{
    auto * const bouton = new QToolButton(parent);
    bouton->setAutoRaise(true);
    return bouton;
}

QWidget * CreeBoutonOutilAvecMenu(QWidget * parent)
{
    auto * const bouton = new QToolButton(parent);
    bouton->setPopupMode(QToolButton::MenuButtonPopup);
    bouton->setMenu(new QMenu(bouton));
    return bouton;
}

QWidget * CreeOnglets(QWidget * parent)
{
    auto * const barre = new QTabBar(parent);
    for (int i = 0; i < kOnglets; ++i)
        barre->addTab(TraductionGalerie(TexteGalerie("Onglet")));
    barre->resize(barre->sizeHint());
    return barre;
}

QWidget * CreeEntete(QWidget * parent)
{
    return new QHeaderView(Qt::Horizontal, parent);
}

// The option as the model would have it in that state, in the active window.
template <typename Option>
Option CreeOption(QRect const & rect, QStyle::State etat, QWidget const & modele)
{
    modele.ensurePolished(); // the colours of its class
    Option option;
    option.initFrom(&modele);
    option.rect = rect;
    option.state = etat | QStyle::State_Active;
    bool const actif = etat & QStyle::State_Enabled;
    option.palette.setCurrentColorGroup(actif ? QPalette::Active : QPalette::Disabled);
    return option;
}

void DessineBouton(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                   QWidget const & modele)
{
    auto const & bouton = static_cast<QPushButton const &>(modele);
    auto option = CreeOption<QStyleOptionButton>(rect, etat, modele);
    option.text = TraductionGalerie(TexteGalerie("Bouton"));
    option.icon = bouton.menu() ? QIcon() : Icone();
    option.iconSize = QSize(kCoteIcone, kCoteIcone);
    option.features.setFlag(QStyleOptionButton::DefaultButton, bouton.isDefault());
    option.features.setFlag(QStyleOptionButton::HasMenu, bouton.menu());
    option.state.setFlag(QStyle::State_Raised, !(etat & QStyle::State_Sunken));
    style.drawControl(QStyle::CE_PushButton, &option, &peintre, &modele);
}

template <QStyle::ControlElement kElement>
void DessineCase(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                 QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionButton>(rect, etat, modele);
    option.text = TraductionGalerie(TexteGalerie("Choix"));
    option.state.setFlag(QStyle::State_Off, !(etat & QStyle::State_On));
    style.drawControl(kElement, &option, &peintre, &modele);
}

void DessineBoutonOutil(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele)
{
    auto const & bouton = static_cast<QToolButton const &>(modele);
    auto option = CreeOption<QStyleOptionToolButton>(rect, etat, modele);
    option.text = TraductionGalerie(TexteGalerie("Outil"));
    option.icon = Icone();
    option.iconSize = QSize(kCoteIcone, kCoteIcone);
    option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    option.subControls = QStyle::SC_ToolButton;
    if (bouton.menu()) {
        option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
        option.subControls |= QStyle::SC_ToolButtonMenu;
    }
    if (etat & (QStyle::State_MouseOver | QStyle::State_Sunken))
        option.activeSubControls = QStyle::SC_ToolButton;
    option.state.setFlag(QStyle::State_AutoRaise, bouton.autoRaise());
    option.state.setFlag(QStyle::State_Raised, !(etat & (QStyle::State_Sunken | QStyle::State_On)));
    style.drawComplexControl(QStyle::CC_ToolButton, &option, &peintre, &modele);
}

void DessineListeDeroulante(QStyle const & style, QPainter & peintre, QRect const & rect,
                            QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionComboBox>(rect, etat, modele);
    option.currentText = TraductionGalerie(TexteGalerie("Élément"));
    option.frame = true;
    if (etat & (QStyle::State_MouseOver | QStyle::State_Sunken))
        option.activeSubControls = QStyle::SC_ComboBoxArrow;
    style.drawComplexControl(QStyle::CC_ComboBox, &option, &peintre, &modele);
    style.drawControl(QStyle::CE_ComboBoxLabel, &option, &peintre, &modele);
}

void DessineChamp(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                  QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionFrame>(rect, etat | QStyle::State_Sunken, modele);
    option.lineWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &modele);
    style.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &peintre, &modele);
    style.drawItemText(
        &peintre, style.subElementRect(QStyle::SE_LineEditContents, &option, &modele),
        Qt::AlignLeading | Qt::AlignVCenter, option.palette, etat & QStyle::State_Enabled,
        TraductionGalerie(TexteGalerie("Champ")), QPalette::Text);
}

void DessineChampSurPlusieursLignes(QStyle const & style, QPainter & peintre, QRect const & rect,
                                    QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionFrame>(rect, etat | QStyle::State_Sunken, modele);
    option.frameShape = static_cast<QPlainTextEdit const &>(modele).frameShape();
    option.lineWidth = static_cast<QPlainTextEdit const &>(modele).frameWidth();
    peintre.fillRect(rect, option.palette.base());
    style.drawControl(QStyle::CE_ShapedFrame, &option, &peintre, &modele);
    style.drawItemText(&peintre, rect, Qt::AlignCenter, option.palette,
                       etat & QStyle::State_Enabled, TraductionGalerie(TexteGalerie("Champ")),
                       QPalette::Text);
}

void DessineOnglet(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                   QWidget const & modele)
{
    auto const & barre = static_cast<QTabBar const &>(modele);
    // The style asks the bar which tab is drawn, by its place.
    QRect const place = barre.tabRect(kOngletDessinay);
    auto option = CreeOption<QStyleOptionTab>(place, etat, modele);
    option.text = TraductionGalerie(TexteGalerie("Onglet"));
    option.position = QStyleOptionTab::Middle;
    peintre.translate(rect.center() - place.center());
    style.drawControl(QStyle::CE_TabBarTab, &option, &peintre, &modele);
}

void DessineCellule(QStyle const & style, QPainter & peintre, QStyleOptionViewItem & option,
                    QWidget const & modele)
{
    option.features = QStyleOptionViewItem::HasDisplay;
    option.displayAlignment = Qt::AlignLeading | Qt::AlignVCenter;
    option.showDecorationSelected = true;
    option.textElideMode = Qt::ElideRight;
    peintre.fillRect(option.rect, option.palette.base());
    style.drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &peintre, &modele);
    style.drawControl(QStyle::CE_ItemViewItem, &option, &peintre, &modele);
}

void DessineRangDeCellules(QStyle const & style, QPainter & peintre, QRect const & rect,
                           QStyle::State etat, QWidget const & modele)
{
    using Option = QStyleOptionViewItem;
    QString const textes[] = {u"a"_s, u"b"_s, u"c"_s};
    constexpr int kCellules = 3;
    int const largeur = rect.width() / kCellules;
    for (int i = 0; i < kCellules; ++i) {
        QRect const cellule(rect.left() + i * largeur, rect.top(), largeur, rect.height());
        auto option = CreeOption<Option>(
            QStyle::visualRect(modele.layoutDirection(), rect, cellule), etat, modele);
        option.text = textes[i];
        option.viewItemPosition = i == 0               ? Option::Beginning
                                  : i == kCellules - 1 ? Option::End
                                                       : Option::Middle;
        DessineCellule(style, peintre, option, modele);
    }
}

void DessineRangSeul(QStyle const & style, QPainter & peintre, QRect const & rect,
                     QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionViewItem>(rect, etat, modele);
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    option.text = TraductionGalerie(TexteGalerie("Élément"));
    DessineCellule(style, peintre, option, modele);
}

QString DonneTexteBalisay()
{
    return TraductionGalerie(TexteGalerie("Mot <exemple>vu</exemple>"));
}

void DessineRangRiche(QStyle const & style, QPainter & peintre, QRect const & rect,
                      QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionViewItem>(rect, etat, modele);
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    option.text = DonneTexteBalisay();
    DessineCellule(style, peintre, option, modele);
}

void DessineSectionEntete(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionHeader>(rect, etat | QStyle::State_Horizontal, modele);
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::Middle;
    option.section = 1;
    option.text = TraductionGalerie(TexteGalerie("Section"));
    option.textAlignment = Qt::AlignCenter;
    style.drawControl(QStyle::CE_Header, &option, &peintre, &modele);
}

template <QStyle::ControlElement kElement>
void DessineItemMenu(QStyle const & style, QPainter & peintre, QRect const & rect,
                     QStyle::State etat, QString const & texte, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionMenuItem>(rect, etat, modele);
    option.menuRect = rect;
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.text = texte;
    option.font = modele.font();
    option.checked = etat & QStyle::State_On;
    peintre.fillRect(rect, option.palette.window());
    style.drawControl(kElement, &option, &peintre, &modele);
}

void DessineItemMenuSimple(QStyle const & style, QPainter & peintre, QRect const & rect,
                           QStyle::State etat, QWidget const & modele)
{
    DessineItemMenu<QStyle::CE_MenuItem>(style, peintre, rect, etat,
                                         TraductionGalerie(TexteGalerie("Élément")), modele);
}

void DessineItemMenuRiche(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele)
{
    DessineItemMenu<QStyle::CE_MenuItem>(style, peintre, rect, etat, DonneTexteBalisay(), modele);
}

void DessineItemBarreMenu(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele)
{
    DessineItemMenu<QStyle::CE_MenuBarItem>(style, peintre, rect, etat,
                                            TraductionGalerie(TexteGalerie("Menu")), modele);
}

void DessineProgression(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele)
{
    auto option =
        CreeOption<QStyleOptionProgressBar>(rect, etat | QStyle::State_Horizontal, modele);
    option.maximum = kMaximum;
    option.progress = kAvancement;
    option.textVisible = true;
    option.textAlignment = Qt::AlignCenter;
    option.text = u"%1 %"_s.arg(kAvancement);
    style.drawControl(QStyle::CE_ProgressBar, &option, &peintre, &modele);
}

void DessineReglette(QStyle const & style, QPainter & peintre, QRect const & rect,
                     QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionSlider>(rect, etat | QStyle::State_Horizontal, modele);
    option.orientation = Qt::Horizontal;
    option.maximum = kMaximum;
    option.sliderPosition = option.sliderValue = kAvancement;
    option.upsideDown = modele.layoutDirection() == Qt::RightToLeft;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (etat & (QStyle::State_MouseOver | QStyle::State_Sunken))
        option.activeSubControls = QStyle::SC_SliderHandle;
    style.drawComplexControl(QStyle::CC_Slider, &option, &peintre, &modele);
}

constexpr DessinStyle kDessins[] = {
    {eDessin::kBouton, TexteGalerie("Bouton"), &Cree<QPushButton>, &DessineBouton},
    {eDessin::kBoutonDefaut, TexteGalerie("Bouton par défaut"), &CreeBoutonDefaut, &DessineBouton},
    {eDessin::kBoutonAvecMenu, TexteGalerie("Bouton à menu"), &CreeBoutonAvecMenu, &DessineBouton},
    {eDessin::kBoutonOutil, TexteGalerie("Bouton d’outil"), &CreeBoutonOutil, &DessineBoutonOutil},
    {eDessin::kBoutonOutilAvecMenu, TexteGalerie("Bouton d’outil à menu"), &CreeBoutonOutilAvecMenu,
     &DessineBoutonOutil},
    {eDessin::kCaseACocher, TexteGalerie("Case à cocher"), &Cree<QCheckBox>,
     &DessineCase<QStyle::CE_CheckBox>},
    {eDessin::kBoutonRadio, TexteGalerie("Bouton radio"), &Cree<QRadioButton>,
     &DessineCase<QStyle::CE_RadioButton>},
    {eDessin::kListeDeroulante, TexteGalerie("Liste déroulante"), &Cree<QComboBox>,
     &DessineListeDeroulante},
    {eDessin::kChamp, TexteGalerie("Champ"), &Cree<QLineEdit>, &DessineChamp},
    {eDessin::kChampSurPlusieursLignes, TexteGalerie("Champ de plusieurs lignes"),
     &Cree<QPlainTextEdit>, &DessineChampSurPlusieursLignes},
    {eDessin::kOnglet, TexteGalerie("Onglet"), &CreeOnglets, &DessineOnglet},
    {eDessin::kRangDeCellules, TexteGalerie("Rang de trois cellules"), &Cree<QTreeView>,
     &DessineRangDeCellules},
    {eDessin::kRangSeul, TexteGalerie("Rang d’une cellule"), &Cree<QTreeView>, &DessineRangSeul},
    {eDessin::kRangRiche, TexteGalerie("Rang balisé"), &Cree<QTreeView>, &DessineRangRiche},
    {eDessin::kSectionEntete, TexteGalerie("Section d’en-tête"), &CreeEntete,
     &DessineSectionEntete},
    {eDessin::kItemMenu, TexteGalerie("Élément de menu"), &Cree<QMenu>, &DessineItemMenuSimple},
    {eDessin::kItemMenuRiche, TexteGalerie("Élément de menu balisé"), &Cree<QMenu>,
     &DessineItemMenuRiche},
    {eDessin::kItemBarreMenu, TexteGalerie("Barre de menus"), &Cree<QMenuBar>,
     &DessineItemBarreMenu},
    {eDessin::kProgression, TexteGalerie("Barre de progression"), &Cree<QProgressBar>,
     &DessineProgression},
    {eDessin::kReglette, TexteGalerie("Réglette"), &Cree<QSlider>, &DessineReglette},
};

EnsembleRegles RemplaceExemple(UniChaine const & ouvrant, UniChaine const & fermant)
{
    using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
    return {{UniChaine("exemple"),
             Interpreteur::CreeFonctionRemplacerBalisesAvecTexte(ouvrant, fermant)}};
}

} // namespace

DessinStyle const & DonneDessin(eDessin sorte)
{
    return *std::find_if(std::begin(kDessins), std::end(kDessins),
                         [sorte](DessinStyle const & dessin) { return dessin.sorte == sorte; });
}

MapDeRegles DonneReglesExemple()
{
    EnsembleRegles const italique = RemplaceExemple("<i>", "</i>");
    EnsembleRegles const gras = RemplaceExemple("<b>", "</b>");
    return {{kContexteNormal, italique},
            {kContexteSelectionnay, gras},
            {kContexteSurvolay, RemplaceExemple("<u>", "</u>")},
            {kContexteMenuSelectionnay, gras}};
}
