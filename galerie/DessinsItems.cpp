// galerie/DessinsItems.cpp
#include "DessinsElements.h"

#include "TraductionGalerie.h"

#include <QPainter>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace DessinsElements {

namespace {

void DessineCellule(QStyle const & style, QPainter & peintre, QStyleOptionViewItem & option,
                    QWidget const & modele)
{
    option.features = QStyleOptionViewItem::HasDisplay;
    option.displayAlignment = Qt::AlignLeading | Qt::AlignVCenter;
    option.showDecorationSelected = true;
    option.textElideMode = Qt::ElideRight;
    peintre.fillRect(option.rect, option.palette.base());
    style.drawControl(QStyle::CE_ItemViewItem, &option, &peintre, &modele);
}

QString DonneTexteBalisay()
{
    return TraductionGalerie(TexteGalerie("Mot <ex>vu</ex>"));
}

void DessineItemMenu(QStyle::ControlElement element, QStyle const & style, QPainter & peintre,
                     QRect const & rect, QStyle::State etat, QString const & texte,
                     QWidget const & modele)
{
    auto option = CreeOption<QStyleOptionMenuItem>(rect, etat, modele);
    option.menuRect = rect;
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.text = texte;
    option.font = modele.font();
    option.checked = etat & QStyle::State_On;
    peintre.fillRect(rect, option.palette.window());
    style.drawControl(element, &option, &peintre, &modele);
}

} // namespace

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

void DessineItemMenuSimple(QStyle const & style, QPainter & peintre, QRect const & rect,
                           QStyle::State etat, QWidget const & modele)
{
    DessineItemMenu(QStyle::CE_MenuItem, style, peintre, rect, etat,
                    TraductionGalerie(TexteGalerie("Élément")), modele);
}

void DessineItemMenuRiche(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele)
{
    DessineItemMenu(QStyle::CE_MenuItem, style, peintre, rect, etat, DonneTexteBalisay(), modele);
}

void DessineItemBarreMenu(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele)
{
    // Its menu is open then.
    if (etat & QStyle::State_Selected)
        etat |= QStyle::State_Sunken;
    DessineItemMenu(QStyle::CE_MenuBarItem, style, peintre, rect, etat,
                    TraductionGalerie(TexteGalerie("Menu")), modele);
}

} // namespace DessinsElements
