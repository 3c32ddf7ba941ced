#include "lists/ListeChoixFlottante.h"

#include "lists/ItemCompte.h"

#include <QStandardItemModel>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// Which rows are selected, found and chosen, and what the host gets of them.

class tst_ListeChoixFlottanteChoix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void preselection_data();
    void preselection();
    void itemsSelectionnes();
    void choixAutomatique_data();
    void choixAutomatique();
    void activay();
    void recherche_data();
    void recherche();
    void clones();
};

void tst_ListeChoixFlottanteChoix::cleanup()
{
    QCOMPARE(ItemCompte::nombre, 0);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteChoix::preselection_data()
{
    QTest::addColumn<bool>("preselectionne");
    QTest::newRow("first row selected") << true;
    QTest::newRow("nothing selected") << false;
}

void tst_ListeChoixFlottanteChoix::preselection()
{
    QFETCH(bool, preselectionne);
    Hote const hote(preselectionne);
    for (int colonnes = 1; colonnes < 3; ++colonnes) {
        hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3), colonnes));
        QItemSelectionModel const * const selection = hote.Vue()->selectionModel();
        QCOMPARE(selection->selectedIndexes().size(), preselectionne ? 1 : 0);
        QCOMPARE(selection->isSelected(hote.Vue()->model()->index(0, 0)), preselectionne);
        QCOMPARE(hote.Rangee(), -1); // selected, but not current
        // What the user did with the former proposals is forgotten.
        hote.MetsRangee(2);
    }
}

void tst_ListeChoixFlottanteChoix::itemsSelectionnes()
{
    Hote const hote(true);
    QVERIFY(hote.liste->DonneItemsSelectionnay().isEmpty());
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s, u"b"_s}, 2));
    auto const * const modele = qobject_cast<QStandardItemModel *>(hote.Vue()->model());
    QCOMPARE(hote.liste->DonneItemsSelectionnay(),
             QList<QStandardItem *>({modele->item(0, 0), modele->item(0, 1)}));
    hote.MetsRangee(1);
    QCOMPARE(hote.liste->DonneItemsSelectionnay(),
             QList<QStandardItem *>({modele->item(1, 0), modele->item(1, 1)}));
    hote.liste->EnleveSelection();
    QVERIFY(hote.liste->DonneItemsSelectionnay().isEmpty());
    QCOMPARE(hote.Rangee(), -1);
}

void tst_ListeChoixFlottanteChoix::choixAutomatique_data()
{
    QTest::addColumn<QVariantList>("roles");
    QTest::addColumn<QStringList>("choix"); // empty for no signal
    QTest::newRow("no role at all") << QVariantList{{}, {}} << QStringList{u"mot 0"_s};
    QTest::newRow("true") << QVariantList{true, true} << QStringList{u"mot 0"_s};
    QTest::newRow("false is passed over") << QVariantList{false, {}} << QStringList{u"mot 1"_s};
    QTest::newRow("several are passed over")
        << QVariantList{false, false, true, {}} << QStringList{u"mot 2"_s};
    QTest::newRow("past the end") << QVariantList{false, false} << QStringList{};
    QTest::newRow("no row") << QVariantList{} << QStringList{};
}

void tst_ListeChoixFlottanteChoix::choixAutomatique()
{
    QFETCH(QVariantList, roles);
    QFETCH(QStringList, choix);
    Hote const hote;
    QSignalSpy const espion(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(static_cast<int>(roles.size())));
    for (int i = 0; i < roles.size(); ++i) {
        if (roles.at(i).isValid())
            hote.liste->MetsItemSelectionnableParDefaut(rangees.at(i).at(0), roles.at(i).toBool());
        QCOMPARE(rangees.at(i).at(0)->data(kRoleChoixAutomatique), roles.at(i));
    }
    hote.liste->ActualiseListeChoix(rangees);
    hote.liste->SelectionneItemActivay();
    QCOMPARE(espion.count(), choix.isEmpty() ? 0 : 1);
    QCOMPARE(DernierChoix(espion), choix);
}

void tst_ListeChoixFlottanteChoix::activay()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(2).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    hote.MetsRangee(2);
    hote.liste->SelectionneItemActivay();
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 2"_s)); // the user's own choice
    QVERIFY(hote.liste->isVisible());                       // hiding is the host's affair
    hote.liste->CacheToi();
    hote.liste->SelectionneItemActivay(); // a call of the host, whether the list shows or not
    QCOMPARE(choix.count(), 2);
}

void tst_ListeChoixFlottanteChoix::recherche_data()
{
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("rangee"); // -1 for none
    QTest::newRow("first column") << QVariant(u"b"_s) << int(Qt::DisplayRole) << 1;
    QTest::newRow("second column") << QVariant(u"c1"_s) << int(Qt::DisplayRole) << 2;
    QTest::newRow("first of two rows") << QVariant(7) << int(Qt::UserRole) << 1;
    QTest::newRow("other role") << QVariant(7) << int(Qt::DisplayRole) << -1;
    QTest::newRow("absent") << QVariant(u"z"_s) << int(Qt::DisplayRole) << -1;
    QTest::newRow("row that the automatic choice passes over")
        << QVariant(false) << kRoleChoixAutomatique << 0;
}

void tst_ListeChoixFlottanteChoix::recherche()
{
    QFETCH(QVariant, valeur);
    QFETCH(int, role);
    QFETCH(int, rangee);
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QStringList const textes = {u"a"_s, u"b"_s, u"c"_s};
    Rangees const rangees = CreeRangees(textes, 2);
    rangees.at(1).at(1)->setData(7, Qt::UserRole);
    rangees.at(2).at(0)->setData(7, Qt::UserRole); // a later row, in an earlier column
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(0).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    QCOMPARE(hote.liste->SelectionneItem(valeur, role), rangee >= 0);
    QCOMPARE(choix.count(), rangee >= 0 ? 1 : 0);
    if (rangee >= 0)
        QCOMPARE(DernierChoix(choix), QStringList({textes.at(rangee), textes.at(rangee) + u'1'}));
    QCOMPARE(hote.Rangee(), -1);
}

void tst_ListeChoixFlottanteChoix::clones()
{
    Hote const hote;
    Choix recu;
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, this,
            [&recu](Choix const & items) { recu = items; });
    Rangees const rangees = CreeItemsComptes(2, 2);
    rangees.at(1).at(0)->setData(42, Qt::UserRole + 7);
    hote.liste->ActualiseListeChoix(rangees);
    QVERIFY(hote.liste->SelectionneItem(42, Qt::UserRole + 7));
    QCOMPARE(recu.size(), 2);
    QCOMPARE(ItemCompte::nombre, 4 + 2);
    QVERIFY(recu.at(0).get() != rangees.at(1).at(0));
    hote.liste->ActualiseListeChoix({});
    QCOMPARE(ItemCompte::nombre, 2);
    QVERIFY(!recu.at(0)->model());
    QCOMPARE(recu.at(0)->data(Qt::UserRole + 7).toInt(), 42);
    recu.clear();
}

QTEST_MAIN(tst_ListeChoixFlottanteChoix)
#include "tst_ListeChoixFlottanteChoix.moc"
