// tests/controls/EssaisTable.h
#pragma once

#include "controls/DTableView.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QtTest>

// A table of three rows with a column of boxes, for the tests of `DTableView` and what they compare
// it with.
namespace EssaisTable {

inline constexpr int kColonneCase = 0;
inline constexpr int kColonneTexte = 1;
inline constexpr int kColonneEtat = 2; // a check state that the user may not change

/// Where the box of an item is drawn.
class Delegue : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QPoint DonneCase(QTableView const & vue, QModelIndex const & index) const
    {
        QStyleOptionViewItem option;
        option.initFrom(&vue);
        option.widget = &vue;
        option.rect = vue.visualRect(index);
        initStyleOption(&option, index);
        return vue.style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &vue)
            .center();
    }
};

template <typename Vue>
struct Banc
{
    Banc()
        : modele(3, 3)
    {
        for (int rangee = 0; rangee < 3; ++rangee) {
            for (int colonne = 0; colonne < 3; ++colonne)
                modele.setItem(rangee, colonne, new QStandardItem(QStringLiteral("un texte")));
            modele.item(rangee, kColonneCase)->setCheckable(true);
            modele.item(rangee, kColonneCase)->setCheckState(Qt::Unchecked);
            modele.item(rangee, kColonneEtat)->setCheckState(Qt::Checked);
        }
        vue.setModel(&modele);
        vue.setItemDelegate(&delegue);
        vue.setEditTriggers(QAbstractItemView::NoEditTriggers);
        vue.horizontalHeader()->setDefaultSectionSize(150);
        vue.resize(600, 300);
        vue.show();
    }

    QPoint Case(int rangee, int colonne = kColonneCase) const
    {
        return delegue.DonneCase(vue, modele.index(rangee, colonne));
    }
    QPoint Texte(int rangee, int colonne = kColonneCase) const
    {
        return vue.visualRect(modele.index(rangee, colonne)).center();
    }
    void DoubleClique(QPoint const & position, Qt::KeyboardModifiers touches = {})
    {
        DoubleClique(Qt::LeftButton, touches, position);
    }
    void DoubleClique(Qt::MouseButton bouton, Qt::KeyboardModifiers touches,
                      QPoint const & position)
    {
        QTest::mouseClick(vue.viewport(), bouton, touches, position);
        QTest::mouseDClick(vue.viewport(), bouton, touches, position); // no release with it
        QTest::mouseRelease(vue.viewport(), bouton, touches, position);
    }
    Qt::CheckState Etat(int rangee) const
    {
        return modele.item(rangee, kColonneCase)->checkState();
    }

    QStandardItemModel modele;
    Delegue delegue;
    Vue vue;
};

/// How often the signals of a view were emitted.
struct Espions
{
    explicit Espions(QTableView & vue, QStandardItemModel & modele)
        : presses(&vue, &QTableView::pressed)
        , clics(&vue, &QTableView::clicked)
        , doubles(&vue, &QTableView::doubleClicked)
        , activations(&vue, &QTableView::activated)
        , changements(&modele, &QStandardItemModel::itemChanged)
    {
    }

    QList<int> Comptes() const
    {
        QList<int> comptes;
        for (auto const * espion : {&presses, &clics, &doubles, &changements})
            comptes.append(static_cast<int>(espion->count()));
        return comptes;
    }

    QSignalSpy presses;
    QSignalSpy clics;
    QSignalSpy doubles;
    QSignalSpy activations;
    QSignalSpy changements;
};

using Comptes = QList<int>; // pressed, clicked, doubleClicked, itemChanged

} // namespace EssaisTable
