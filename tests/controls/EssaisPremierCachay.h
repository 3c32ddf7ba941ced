// tests/controls/EssaisPremierCachay.h
#pragma once

#include "controls/DComboBox.h"

#include <QHeaderView>
#include <QListView>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

// What the tests of a combo box with a hidden first item have in common.
namespace EssaisPremierCachay {

using namespace Qt::StringLiterals;

inline QStringList const & DonneTextes()
{
    static QStringList const textes = {u"abricot"_s, u"avocat"_s, u"banane"_s, u"cerise"_s,
                                       u"datte"_s};
    return textes;
}

/// While it lives, each letter is a new search.
class SansIntervalle
{
public:
    SansIntervalle() { QApplication::setKeyboardInputInterval(0); }
    ~SansIntervalle() { QApplication::setKeyboardInputInterval(-1); } // as the platform has it
};

inline void Desactive(QComboBox & combo, int ligne)
{
    qobject_cast<QStandardItemModel *>(combo.model())->item(ligne)->setEnabled(false);
}

inline void Roule(QComboBox & combo, int delta)
{
    QPointF const centre = QRectF(combo.rect()).center();
    QWheelEvent evenement(centre, combo.mapToGlobal(centre), QPoint(), QPoint(0, delta),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &evenement);
    QVERIFY(evenement.isAccepted());
}

inline QAbstractItemView * CreeVue(QString const & genre)
{
    if (genre == "tree"_L1) {
        auto * const arbre = new QTreeView;
        arbre->setHeaderHidden(true);
        return arbre;
    }
    if (genre == "table"_L1) {
        auto * const table = new QTableView;
        table->horizontalHeader()->hide();
        table->verticalHeader()->hide();
        return table;
    }
    return genre == "list"_L1 ? new QListView : nullptr;
}

inline int DonneHauteur(QComboBox const & combo, int ligne)
{
    QModelIndex const index =
        combo.model()->index(ligne, combo.modelColumn(), combo.rootModelIndex());
    return combo.view()->visualRect(index).height();
}

inline QList<int> DonneLignesVisibles(QComboBox const & combo)
{
    QList<int> lignes;
    for (int i = 0; i < combo.count(); ++i)
        if (DonneHauteur(combo, i) > 0)
            lignes << i;
    return lignes;
}

// Every row that a point of the list belongs to.
inline QSet<int> DonneLignesSousLaSouris(QAbstractItemView const & vue)
{
    QSet<int> lignes;
    for (int y = 0; y < vue.viewport()->height(); ++y)
        if (QModelIndex const index = vue.indexAt(QPoint(2, y)); index.isValid())
            lignes << index.row();
    return lignes;
}

/// The views that a combo box may have; an empty name is for its own.
inline void Genres()
{
    QTest::addColumn<QString>("genre");
    QTest::newRow("own view") << u""_s;
    QTest::newRow("list") << u"list"_s;
    QTest::newRow("tree") << u"tree"_s;
    QTest::newRow("table") << u"table"_s;
}

inline void Prepare(DComboBox & combo, QString const & genre)
{
    combo.addItems(DonneTextes());
    if (QAbstractItemView * const vue = CreeVue(genre))
        combo.setView(vue);
    combo.CachePremierElement();
    combo.show();
}

} // namespace EssaisPremierCachay
