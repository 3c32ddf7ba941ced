#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// How large the rows make the list and its columns.

class tst_ListeChoixFlottanteTailles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void taille_data();
    void taille();
    void rangeesDeHauteursDiverses();
    void reference_data();
    void reference();
    void colonnesEntieres();
    void moinsDeColonnes();
    void mesureLineaire();
};

namespace {

class DelegueCompteur : public QStyledItemDelegate
{
public:
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override
    {
        ++mesures;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    mutable int mesures = 0;
};

QString const kLong = QString(40, u'w');

} // namespace

void tst_ListeChoixFlottanteTailles::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteTailles::taille_data()
{
    QTest::addColumn<int>("rangees");
    QTest::addColumn<int>("colonnes");
    QTest::newRow("one proposal") << 1 << 1;
    QTest::newRow("ten proposals") << 10 << 1;
    QTest::newRow("two columns double the rows") << 10 << 2;
    QTest::newRow("three columns") << 2 << 3;
    QTest::newRow("a thousand proposals") << 1000 << 1;
}

void tst_ListeChoixFlottanteTailles::taille()
{
    QFETCH(int, rangees);
    QFETCH(int, colonnes);
    Hote const hote;
    hote.champ->resize(2000, 20);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(rangees), colonnes));
    QAbstractItemModel const * const modele = hote.Vue()->model();
    QCOMPARE(modele->rowCount(), rangees);
    QCOMPARE(modele->columnCount(), colonnes);
    QSize attendue(0, 6);
    for (int i = 0; i < rangees; ++i) {
        int largeur = 0;
        for (int j = 0; j < colonnes; ++j) {
            largeur += hote.Vue()->sizeHintForIndex(modele->index(i, j)).width();
            attendue.rheight() += hote.Vue()->sizeHintForRow(i);
        }
        attendue.setWidth(std::max(attendue.width(), largeur));
    }
    QVERIFY(hote.liste->isVisible());
    for (QWidget const * const widget :
         {static_cast<QWidget *>(hote.liste), static_cast<QWidget *>(hote.Vue())}) {
        QCOMPARE(widget->size(), attendue);
        QCOMPARE(widget->minimumSize(), attendue);
        QCOMPARE(widget->maximumSize(), attendue);
    }
}

void tst_ListeChoixFlottanteTailles::rangeesDeHauteursDiverses()
{
    Hote const hote;
    Rangees const rangees = CreeRangees(CreeTextes(3), 2);
    rangees.at(0).at(0)->setSizeHint({20, 40});
    rangees.at(1).at(1)->setSizeHint({20, 90}); // each cell counts the height of its whole row
    rangees.at(2).at(0)->setSizeHint({20, 60});
    hote.liste->ActualiseListeChoix(rangees);
    QCOMPARE(hote.liste->height(), 6 + 2 * (40 + 90 + 60));
}

void tst_ListeChoixFlottanteTailles::reference_data()
{
    QTest::addColumn<int>("reference");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("largeur"); // 0: that of the text
    QTest::newRow("a wide reference leaves the text alone") << 3000 << 0 << 0;
    QTest::newRow("a narrow reference cuts the text") << 90 << 0 << 90;
    QTest::newRow("the least width is not below the reference") << 90 << 50 << 90;
    QTest::newRow("the least width wins over the reference") << 90 << 120 << 120;
    QTest::newRow("the least width widens the list") << 3000 << 2500 << 2500;
    QTest::newRow("a negative least width is none") << 90 << -4 << 90;
}

void tst_ListeChoixFlottanteTailles::reference()
{
    QFETCH(int, reference);
    QFETCH(int, minimum);
    QFETCH(int, largeur);
    QWidget lie;
    QWidget autre;
    lie.resize(10, 20);
    autre.resize(reference, 20);
    ListeChoixFlottante liste(nullptr, false, &lie, &autre);
    liste.MetsLargeurMinimum(minimum);
    liste.ActualiseListeChoix(CreeRangees({kLong}));
    QTreeView const * const vue = liste.PreteListeChoix();
    QModelIndex const index = vue->model()->index(0, 0);
    QCOMPARE(liste.width(), largeur ? largeur : vue->sizeHintForIndex(index).width());
    QCOMPARE(vue->width(), liste.width());
    // The column is the view's, so that the delegate cuts a text with an ellipsis.
    QTRY_COMPARE(vue->visualRect(index).width(), vue->viewport()->width());
}

void tst_ListeChoixFlottanteTailles::colonnesEntieres()
{
    Hote const hote;
    hote.champ->resize(2000, 20);
    hote.liste->ActualiseListeChoix({{new QStandardItem(u"a"_s), new QStandardItem(kLong)},
                                     {new QStandardItem(u"bbbbbbb"_s), new QStandardItem}});
    QAbstractItemModel const * const modele = hote.Vue()->model();
    auto const place = [&](int rangee, int colonne) {
        return hote.Vue()->visualRect(modele->index(rangee, colonne)).width();
    };
    auto const besoin = [&](int rangee, int colonne) {
        QModelIndex const index = modele->index(rangee, colonne);
        return hote.Vue()->sizeHintForIndex(index).width();
    };
    QTRY_COMPARE(place(0, 0), std::max(besoin(1, 0), hote.Vue()->header()->minimumSectionSize()));
    QCOMPARE(place(0, 0) + place(0, 1), hote.Vue()->viewport()->width());
    // A lone column gets all that its text needs, without the frame that the width includes.
    hote.liste->ActualiseListeChoix(CreeRangees({kLong}));
    QTRY_COMPARE(place(0, 0), hote.liste->width() - 6);
    QCOMPARE(place(0, 0), besoin(0, 0) - 6);
}

void tst_ListeChoixFlottanteTailles::moinsDeColonnes()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s}, 3));
    int const haute = hote.liste->height();
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s}, 1));
    QCOMPARE(hote.Vue()->model()->columnCount(), 1);
    QCOMPARE(3 * (hote.liste->height() - 6), haute - 6);
}

void tst_ListeChoixFlottanteTailles::mesureLineaire()
{
    Hote const hote;
    DelegueCompteur delegue;
    hote.liste->MetsDelegue(&delegue);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1000)));
    // The width, the height, and what the view asks for itself.
    QVERIFY(delegue.mesures <= 3 * 1000 + 10);
}

QTEST_MAIN(tst_ListeChoixFlottanteTailles)
#include "tst_ListeChoixFlottanteTailles.moc"
