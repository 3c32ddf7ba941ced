#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// What an edit may write into a cell.

class tst_DorvelStandardItemModelPrive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ecriture_data();
    void ecriture();
    void celluleSansItem();
    void indexInvalide();
};

void tst_DorvelStandardItemModelPrive::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_DorvelStandardItemModelPrive::ecriture_data()
{
    QTest::addColumn<QVariant>("avant"); // invalid: no text was ever set
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("acceptee");
    QTest::addColumn<int>("changements");
    QVariant const a = u"a"_s;
    QVariant const vide = QString();
    auto const edition = int(Qt::EditRole);
    auto const affichage = int(Qt::DisplayRole);
    QTest::newRow("text on a text") << a << QVariant(u"b"_s) << edition << true << 1;
    QTest::newRow("same text") << a << a << edition << true << 0;
    QTest::newRow("empty on a text") << a << vide << edition << false << 0;
    QTest::newRow("nothing on a text") << a << QVariant() << edition << false << 0;
    QTest::newRow("text on nothing") << QVariant() << a << edition << true << 1;
    QTest::newRow("empty on nothing") << QVariant() << vide << edition << true << 1;
    QTest::newRow("empty on empty") << vide << vide << edition << true << 1;
    QTest::newRow("empty on null text") << QVariant(u""_s) << vide << edition << true << 1;
    QTest::newRow("nothing on empty") << vide << QVariant() << edition << true << 1;
    QTest::newRow("empty displayed on a text") << a << vide << affichage << true << 1;
    QTest::newRow("tool tip cleared") << a << vide << int(Qt::ToolTipRole) << true << 1;
    QTest::newRow("number on a text") << a << QVariant(0) << edition << true << 1;
    QTest::newRow("spaces on a text") << a << QVariant(u" "_s) << edition << true << 1;
}

void tst_DorvelStandardItemModelPrive::ecriture()
{
    QFETCH(QVariant, avant);
    QFETCH(QVariant, valeur);
    QFETCH(int, role);
    QFETCH(bool, acceptee);
    QFETCH(int, changements);
    ListeEssai liste;
    auto * const item = new QStandardItem;
    if (avant.isValid())
        item->setData(avant, Qt::EditRole);
    liste.AjouteElement({item}, 0);
    QSignalSpy const espion(liste.PreteModele(), &QAbstractItemModel::dataChanged);
    QCOMPARE(liste.PreteModele()->setData(liste.Index(0), valeur, role), acceptee);
    QCOMPARE(espion.count(), changements);
    if (changements > 0) {
        QCOMPARE(espion.at(0).at(0).toModelIndex(), liste.Index(0));
        QCOMPARE(espion.at(0).at(1).toModelIndex(), liste.Index(0));
    }
    if (acceptee)
        QCOMPARE(liste.PreteModele()->data(liste.Index(0), role).toString(), valeur.toString());
    else
        QCOMPARE(liste.Texte(0), u"a"_s);
}

void tst_DorvelStandardItemModelPrive::celluleSansItem()
{
    ListeEssai liste(2);
    liste.Remplis({u"a"_s});
    QSignalSpy const espion(liste.PreteModele(), &QAbstractItemModel::dataChanged);
    QVERIFY(liste.PreteModele()->setData(liste.Index(0, 1), QString(), Qt::EditRole));
    QCOMPARE(espion.count(), 1);
}

void tst_DorvelStandardItemModelPrive::indexInvalide()
{
    ListeEssai liste;
    QVERIFY(!liste.PreteModele()->setData(QModelIndex(), u"a"_s, Qt::EditRole));
    QVERIFY(!liste.PreteModele()->setData(QModelIndex(), QString(), Qt::EditRole));
    QVERIFY(!liste.PreteModele()->setData(QModelIndex(), 1, Qt::CheckStateRole));
}

QTEST_MAIN(tst_DorvelStandardItemModelPrive)
#include "tst_DorvelStandardItemModelPrive.moc"
