// galerie/DessinsWidgets.cpp
#include "DessinsElements.h"

#include "TraductionGalerie.h"

#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace DessinsElements {

namespace {

constexpr int kCoteIcone = 16;  // logical pixels
constexpr int kMaximum = 100;   // of the progress bar and the slider
constexpr int kAvancement = 60; // of them
constexpr int kMargeChamp = 2;  // logical pixels, that a line edit adds to the style's contents

QIcon Icone()
{
    return QIcon(u":/images/theme.svg"_s);
}

void DessineCase(QStyle::ControlElement element, QStyle const & style, QPainter & peintre,
                 QRect const & rect, QStyle::State etat, QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionButton>(rect, etat, modele);
    option.text = TraductionGalerie(TexteGalerie("Choix"));
    option.state.setFlag(QStyle::State_Off, !(etat & QStyle::State_On));
    style.drawControl(element, &option, &peintre, &modele);
}

} // namespace

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

void DessineCaseACocher(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele)
{
    DessineCase(QStyle::CE_CheckBox, style, peintre, rect, etat, modele);
}

void DessineBoutonRadio(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele)
{
    DessineCase(QStyle::CE_RadioButton, style, peintre, rect, etat, modele);
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
    // Neither chosen nor on, whatever its list is.
    auto option = CreeOption<QStyleOptionComboBox>(
        rect, etat & ~(QStyle::State_On | QStyle::State_Selected), modele);
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
    QRect const contenu = style.subElementRect(QStyle::SE_LineEditContents, &option, &modele)
                              .marginsRemoved(static_cast<QLineEdit const &>(modele).textMargins())
                              .adjusted(kMargeChamp, 0, -kMargeChamp, 0);
    style.drawItemText(&peintre, contenu, Qt::AlignLeft | Qt::AlignVCenter, option.palette,
                       etat & QStyle::State_Enabled, TraductionGalerie(TexteGalerie("Champ")),
                       QPalette::Text);
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

} // namespace DessinsElements
