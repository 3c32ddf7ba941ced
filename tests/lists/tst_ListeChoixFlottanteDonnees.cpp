#include "lists/ListeChoixFlottante.h"

#include "lists/ItemCompte.h"

#include <QStandardItemModel>
#include <QStringListModel>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// The rows that the host hands over, and what becomes of them.

class tst_ListeChoixFlottanteDonnees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void rangeesInegales();
    void casesVides();
    void proprietaire();
    void sansReference();
    void autreModele();
    void aucunePropositionCache();
};

void tst_ListeChoixFlottanteDonnees::cleanup()
{
    QCOMPARE(ItemCompte::nombre, 0);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteDonnees::rangeesInegales()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(
        {{new QStandardItem(u"a"_s)}, {new QStandardItem(u"b"_s), new QStandardItem(u"c"_s)}, {}});
    QCOMPARE(hote.Vue()->model()->rowCount(), 3);
    QCOMPARE(hote.Vue()->model()->columnCount(), 2);
    for (int i = 0; i < 3; ++i) {
        hote.MetsRangee(i);
        hote.liste->SelectionneItemActivay();
        QStringList const attendu[] = {{u"a"_s, {}}, {u"b"_s, u"c"_s}, {{}, {}}};
        QCOMPARE(choix.count(), i + 1);
        QCOMPARE(DernierChoix(choix), attendu[i]);
    }
}

void tst_ListeChoixFlottanteDonnees::casesVides()
{
    Hote const hote(true);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix({{nullptr, new QStandardItem(u"b"_s)}, {nullptr, nullptr}});
    QVERIFY(hote.liste->isVisible());
    QList<QStandardItem *> const items = hote.liste->DonneItemsSelectionnay();
    QCOMPARE(items.size(), 2);
    QVERIFY(items.at(0));
    QCOMPARE(items.at(1)->text(), u"b"_s);
    QVERIFY(!hote.liste->SelectionneItem(u"absent"_s, Qt::DisplayRole));
    hote.liste->SelectionneItemActivay(); // a missing first cell forbids nothing
    QCOMPARE(DernierChoix(choix), QStringList({{}, u"b"_s}));
    hote.liste->ActualiseListeChoix({{}});
    QCOMPARE(hote.Vue()->model()->rowCount(), 1);
    hote.liste->SelectionneItemActivay();
    QCOMPARE(DernierChoix(choix), QStringList({QString()}));
}

void tst_ListeChoixFlottanteDonnees::proprietaire()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeItemsComptes(3, 2));
    QCOMPARE(ItemCompte::nombre, 6);
    hote.liste->ActualiseListeChoix(CreeItemsComptes(1, 1));
    QCOMPARE(ItemCompte::nombre, 1);
    hote.liste->CacheToi();
    QCOMPARE(ItemCompte::nombre, 1);
    hote.liste->DebuteActualisation();
    QCOMPARE(ItemCompte::nombre, 0);
    hote.liste->ActualiseListeChoix(CreeItemsComptes(2, 1));
    hote.liste->ActualiseListeChoix({});
    QCOMPARE(ItemCompte::nombre, 0);
    hote.liste->ActualiseListeChoix(CreeItemsComptes(2, 2));
    delete hote.liste;
    QCOMPARE(ItemCompte::nombre, 0);
}

void tst_ListeChoixFlottanteDonnees::sansReference()
{
    QWidget lie;
    ListeChoixFlottante liste(nullptr, true, &lie, nullptr);
    liste.AfficheToi();
    Rangees rangees = CreeItemsComptes(3, 2);
    rangees[1][1] = (delete rangees[1][1], nullptr);
    rangees.append(QList<QStandardItem *>());
    liste.ActualiseListeChoix(rangees);
    QCOMPARE(ItemCompte::nombre, 0);
    QCOMPARE(liste.PreteListeChoix()->model()->rowCount(), 0);
    QVERIFY(liste.isVisible()); // nothing else is done
    // The proposals of a reference that died stay as well.
    auto reference = std::make_unique<QWidget>();
    reference->resize(100, 20);
    ListeChoixFlottante autre(nullptr, true, &lie, reference.get());
    autre.ActualiseListeChoix(CreeItemsComptes(2, 1));
    reference.reset();
    autre.ActualiseListeChoix(CreeItemsComptes(3, 1));
    QCOMPARE(autre.PreteListeChoix()->model()->rowCount(), 2);
    QCOMPARE(ItemCompte::nombre, 2);
}

void tst_ListeChoixFlottanteDonnees::autreModele()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QStringListModel modele({u"a"_s});
    hote.liste->ActualiseListeChoix(CreeItemsComptes(3, 1));
    QVERIFY(hote.liste->isVisible());
    for (QAbstractItemModel * const etranger :
         {static_cast<QAbstractItemModel *>(&modele), static_cast<QAbstractItemModel *>(nullptr)}) {
        hote.Vue()->setModel(etranger);
        hote.liste->AfficheToi();
        hote.liste->ActualiseListeChoix(CreeItemsComptes(3, 1));
        QVERIFY(hote.liste->isHidden());
        hote.liste->DebuteActualisation();
        hote.liste->TermineActualisation();
        hote.liste->SelectionneItemActivay();
        hote.liste->EnleveSelection();
        QVERIFY(!hote.liste->SelectionneItem(u"a"_s, Qt::DisplayRole));
        QVERIFY(hote.liste->DonneItemsSelectionnay().isEmpty());
    }
    QCOMPARE(modele.rowCount(), 1);
    QCOMPARE(choix.count(), 0);
    QCOMPARE(ItemCompte::nombre, 3); // of the model that no view shows any more
}

void tst_ListeChoixFlottanteDonnees::aucunePropositionCache()
{
    Hote const hote;
    QSignalSpy const fermeture(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix);
    hote.liste->ActualiseListeChoix({});
    QVERIFY(hote.liste->isHidden());
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1)));
    QVERIFY(hote.liste->isVisible());
    hote.liste->ActualiseListeChoix({});
    QVERIFY(hote.liste->isHidden());
    QCOMPARE(fermeture.count(), 0);
}

QTEST_MAIN(tst_ListeChoixFlottanteDonnees)
#include "tst_ListeChoixFlottanteDonnees.moc"
