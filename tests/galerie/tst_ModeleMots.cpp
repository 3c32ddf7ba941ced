// tests/galerie/tst_ModeleMots.cpp
#include "ModeleMots.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;

class tst_ModeleMots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void vide();
    void rangs();
    void lettresAccentuees_data();
    void lettresAccentuees();
    void remplacement();
    void entetes_data();
    void entetes();
    void horsDesRangs();
    void tableGardee();

private:
    static std::shared_ptr<TableMots const> CreeTable();
};

void tst_ModeleMots::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QLocale::setDefault(QLocale(QLocale::French));
}

std::shared_ptr<TableMots const> tst_ModeleMots::CreeTable()
{
    return std::make_shared<TableMots const>(u"abri\nété\narc-en-ciel\nDépêché"_s);
}

void tst_ModeleMots::vide()
{
    ModeleMots modele;
    QAbstractItemModelTester const essai(&modele,
                                         QAbstractItemModelTester::FailureReportingMode::QtTest);

    QCOMPARE(modele.rowCount(), 0);
    QCOMPARE(modele.columnCount(), int(ModeleMots::kNombreDeColonnes));
    modele.Montre(std::make_shared<TableMots const>(), {});
    QCOMPARE(modele.rowCount(), 0);
}

void tst_ModeleMots::rangs()
{
    ModeleMots modele;
    QAbstractItemModelTester const essai(&modele,
                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
    modele.Montre(CreeTable(), {2, 0});

    QCOMPARE(modele.rowCount(), 2);
    QCOMPARE(modele.index(0, ModeleMots::kMot).data().toString(), u"arc-en-ciel"_s);
    QCOMPARE(modele.index(0, ModeleMots::kLettres).data().toString(), u"9"_s);
    QCOMPARE(modele.index(0, ModeleMots::kAccents).data().toString(), QString());
    QCOMPARE(modele.index(1, ModeleMots::kMot).data().toString(), u"abri"_s);
    QCOMPARE(modele.DonneIndices(), (std::vector<int>{2, 0}));
    QCOMPARE(modele.index(0, ModeleMots::kLettres).data(Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignTrailing | Qt::AlignVCenter));
    QVERIFY(!modele.index(0, ModeleMots::kMot).data(Qt::DecorationRole).isValid());
    QVERIFY(!modele.flags(modele.index(0, 0)).testFlag(Qt::ItemIsEditable));
}

void tst_ModeleMots::lettresAccentuees_data()
{
    QTest::addColumn<QString>("mot");
    QTest::addColumn<QString>("lettres");
    QTest::newRow("none") << u"abri"_s << QString();
    QTest::newRow("one twice") << u"été"_s << u"é"_s;
    QTest::newRow("in their order") << u"dépêchèrent"_s << u"é ê è"_s;
    QTest::newRow("that stand apart") << u"e\u0301te"_s << u"é"_s;
    QTest::newRow("a cedilla") << u"reçu"_s << u"ç"_s;
}

void tst_ModeleMots::lettresAccentuees()
{
    QFETCH(QString, mot);
    QFETCH(QString, lettres);
    ModeleMots modele;
    modele.Montre(std::make_shared<TableMots const>(mot), {0});

    QCOMPARE(modele.index(0, ModeleMots::kAccents).data().toString(), lettres);
}

// However many rows: no view may walk over those that go and those that come.
void tst_ModeleMots::remplacement()
{
    ModeleMots modele;
    modele.Montre(CreeTable(), {0, 1, 2, 3});
    QPersistentModelIndex const ancien = modele.index(3, 0);
    QSignalSpy const remises(&modele, &QAbstractItemModel::modelReset);
    QSignalSpy const ajouts(&modele, &QAbstractItemModel::rowsInserted);
    QSignalSpy const retraits(&modele, &QAbstractItemModel::rowsRemoved);

    modele.Montre(CreeTable(), {1});

    QCOMPARE(remises.count(), 1);
    QCOMPARE(ajouts.count() + retraits.count(), 0);
    QVERIFY(!ancien.isValid());
    QCOMPARE(modele.rowCount(), 1);
}

void tst_ModeleMots::entetes_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("entetes");
    QTest::newRow("French") << int(kLangueFrancais) << u"Mot Lettres Accents"_s;
    QTest::newRow("English") << int(kLangueAnglais) << u"Word Letters Accents"_s;
}

void tst_ModeleMots::entetes()
{
    QFETCH(int, langue);
    QFETCH(QString, entetes);
    Traductions::MetsLanguePourApplicationCourante(eLangue(langue));
    ModeleMots const modele;

    QStringList lus;
    for (int colonne = 0; colonne < ModeleMots::kNombreDeColonnes; ++colonne)
        lus.append(modele.headerData(colonne, Qt::Horizontal).toString());
    QCOMPARE(lus.join(u' '), entetes);
}

void tst_ModeleMots::horsDesRangs()
{
    ModeleMots modele;
    modele.Montre(CreeTable(), {0});

    QVERIFY(!modele.data({}).isValid());
    QVERIFY(!modele.index(1, 0).isValid());
    QVERIFY(!modele.index(0, ModeleMots::kNombreDeColonnes).isValid());
    QCOMPARE(modele.rowCount(modele.index(0, 0)), 0);
    QCOMPARE(modele.columnCount(modele.index(0, 0)), 0);
}

void tst_ModeleMots::tableGardee()
{
    auto table = CreeTable();
    ModeleMots modele;
    modele.Montre(table, {1});
    table.reset();

    QCOMPARE(modele.index(0, 0).data().toString(), u"été"_s);
}

QTEST_MAIN(tst_ModeleMots)
#include "tst_ModeleMots.moc"
