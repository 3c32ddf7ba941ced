// tests/controls/tst_DComboBoxPremierCachayModeles.cpp
#include "controls/EssaisPremierCachay.h"

#include <QStringListModel>

#include <memory>

using namespace Qt::StringLiterals;
using namespace EssaisPremierCachay;

class tst_DComboBoxPremierCachayModeles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void modelesSuivis();
    void racine();
    void sansElementOuUnSeul();
    void modeleDetruit();
    void modeleQuiParleEnMourant();
};

void tst_DComboBoxPremierCachayModeles::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayModeles::modelesSuivis()
{
    DComboBox combo;
    combo.CachePremierElement();
    combo.addItems({u"a"_s, u"b"_s, u"c"_s});
    combo.setCurrentIndex(1);
    combo.insertItem(0, u"z"_s);
    QCOMPARE(combo.currentIndex(), 2);
    QTest::keyClick(&combo, Qt::Key_Up); // what was row 0 is at hand now
    QCOMPARE(combo.currentText(), u"a"_s);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"a"_s);

    combo.removeItem(0); // and now it is the first again
    QCOMPARE(combo.currentText(), u"a"_s);
    QCOMPARE(combo.currentIndex(), 0);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"b"_s);

    QStringListModel modele({u"x"_s, u"y"_s});
    combo.setModel(&modele);
    QCOMPARE(combo.currentIndex(), 0);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"y"_s);
    modele.setStringList({u"k"_s, u"l"_s, u"m"_s});
    QTest::keyClick(&combo, Qt::Key_End);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentText(), u"l"_s);
}

void tst_DComboBoxPremierCachayModeles::racine()
{
    QStandardItemModel modele;
    auto * const parent = new QStandardItem(u"parent"_s);
    for (QString const & texte : {u"a"_s, u"b"_s, u"c"_s})
        parent->appendRow(new QStandardItem(texte));
    modele.appendRow(parent);
    DComboBox combo;
    combo.setModel(&modele);
    combo.CachePremierElement();
    combo.setRootModelIndex(parent->index());
    combo.setCurrentIndex(-1);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentText(), u"b"_s);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentText(), u"b"_s);
}

void tst_DComboBoxPremierCachayModeles::sansElementOuUnSeul()
{
    SansIntervalle const sansIntervalle;
    DComboBox combo;
    combo.CachePremierElement();
    combo.show();
    for (int const nombre : {0, 1}) {
        QCOMPARE(combo.count(), nombre);
        for (Qt::Key const touche : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
                                     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_S})
            QTest::keyClick(&combo, touche);
        Roule(combo, 120);
        Roule(combo, -120);
        QCOMPARE(combo.currentIndex(), nombre - 1);
        combo.showPopup();
        QVERIFY(!combo.view()->isVisible());
        combo.addItem(u"seul"_s);
    }
    combo.clear();
    QCOMPARE(combo.currentIndex(), -1);
}

void tst_DComboBoxPremierCachayModeles::modeleDetruit()
{
    auto modele = std::make_unique<QStringListModel>(QStringList{u"a"_s, u"b"_s, u"c"_s});
    DComboBox combo;
    combo.setModel(modele.get());
    combo.CachePremierElement();
    QTest::keyClick(&combo, Qt::Key_End);
    modele.reset();
    QTest::keyClick(&combo, Qt::Key_Home);
    combo.addItems({u"x"_s, u"y"_s});
    QTest::keyClick(&combo, Qt::Key_End);
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(combo.currentText(), u"y"_s);
}

void tst_DComboBoxPremierCachayModeles::modeleQuiParleEnMourant()
{
    class Modele : public QStringListModel
    {
    public:
        using QStringListModel::QStringListModel;
        ~Modele() override { insertRows(0, 1); }
    };
    int lignes = 0;
    {
        DComboBox combo;
        auto * const modele = new Modele(QStringList{u"a"_s, u"b"_s}, &combo);
        combo.setModel(modele);
        combo.CachePremierElement();
        connect(modele, &QAbstractItemModel::rowsInserted, this, [&] { ++lignes; });
    }
    QCOMPARE(lignes, 1);
}

QTEST_MAIN(tst_DComboBoxPremierCachayModeles)
#include "tst_DComboBoxPremierCachayModeles.moc"
