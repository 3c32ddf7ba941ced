// tests/controls/tst_DTreeViewColonnes.cpp
#include "controls/EssaisColonnes.h"

using namespace EssaisColonnes;

// The columns of a tree without a header share what its width gains or loses.
class tst_DTreeViewColonnes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void partage_data();
    void partage();
    void eteintAuDepart();
    void allumeEtEteint();
    void enteteVisible();
    void premiereLargeur();
    void hauteurSeule();
    void reprendOuIlEnEtait();
    void reprendApresUneColonneSautee();
    void reprendApresUnTourPartiel();
    void moinsDeColonnes();
    void sansColonne();
    void colonnesDeplacees();
    void uneFoisParColonne();
    void droiteAGauche();
};

void tst_DTreeViewColonnes::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTreeViewColonnes::partage_data()
{
    AjoutePartages();
}

void tst_DTreeViewColonnes::partage()
{
    QFETCH(int, delta);
    QFETCH(Largeurs, attendues);
    Banc banc({100, 100, 100});
    banc.Change(delta);
    QCOMPARE(DonneLargeurs(banc.vue), attendues);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), attendues);
    QCOMPARE(banc.vue.header()->length(), 300 + delta);
}

void tst_DTreeViewColonnes::eteintAuDepart()
{
    DTreeView vue;
    QStandardItemModel modele(1, 3);
    vue.setModel(&modele);
    vue.setHeaderHidden(true);
    vue.header()->setStretchLastSection(false);
    vue.resize(300, kHauteur);
    vue.show();
    Largeurs const avant = DonneLargeurs(vue);
    vue.resize(330, kHauteur);
    QCOMPARE(DonneLargeurs(vue), avant);
}

void tst_DTreeViewColonnes::allumeEtEteint()
{
    Banc banc({100, 100});
    banc.Change(10);
    banc.vue.MetsRedimensionnementAvecResizeEvent(false);
    banc.Change(10);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{105, 105}));
    banc.vue.MetsRedimensionnementAvecResizeEvent(true);
    banc.Change(10);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{110, 110}));
}

void tst_DTreeViewColonnes::enteteVisible()
{
    Banc banc({100, 100});
    banc.vue.setHeaderHidden(false);
    banc.Change(10);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));
    banc.vue.setHeaderHidden(true);
    banc.Change(10);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{105, 105}));
}

// The first event of a view that is shown tells no width to compare with.
void tst_DTreeViewColonnes::premiereLargeur()
{
    Banc banc({100, 100});
    banc.vue.hide();
    banc.Change(50);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));
    banc.vue.show();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));

    QResizeEvent inconnue(QSize(400, kHauteur), QSize());
    QCoreApplication::sendEvent(banc.vue.viewport(), &inconnue);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));
}

void tst_DTreeViewColonnes::hauteurSeule()
{
    Banc banc({100, 100});
    QSignalSpy espion(banc.vue.header(), &QHeaderView::sectionResized);
    banc.vue.resize(banc.vue.width(), kHauteur + 50);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));
    QCOMPARE(espion.count(), 0);
}

void tst_DTreeViewColonnes::reprendOuIlEnEtait()
{
    Banc banc({100, 100, 100});
    banc.Change(1);
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{101, 101, 100}));
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{101, 101, 101}));
    banc.Change(1); // the end of the header is followed by its beginning
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 101, 101}));
    banc.Change(-1); // growing and shrinking take the same round
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 100, 101}));
}

void tst_DTreeViewColonnes::reprendApresUneColonneSautee()
{
    Banc banc({100, 100, 100});
    banc.vue.header()->setSectionResizeMode(1, QHeaderView::Fixed);
    banc.Change(1);
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{101, 100, 101}));
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 100, 101}));
}

void tst_DTreeViewColonnes::reprendApresUnTourPartiel()
{
    Banc banc({100, 100, 100});
    banc.Change(5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 102, 101}));
    banc.Change(2);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{103, 102, 102}));
}

void tst_DTreeViewColonnes::moinsDeColonnes()
{
    Banc banc({100, 100, 100, 100});
    banc.Change(3); // the fourth column is next
    banc.modele.setColumnCount(2);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{101, 101}));
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 101}));
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 102}));
}

void tst_DTreeViewColonnes::sansColonne()
{
    Banc banc({100, 100});
    banc.modele.setColumnCount(0);
    banc.Change(50);
    QCOMPARE(banc.vue.header()->length(), 0);
    banc.vue.setModel(nullptr);
    banc.Change(-20);
    QCOMPARE(banc.vue.header()->count(), 0);
}

// The round follows the logical indexes, wherever the sections have been moved.
void tst_DTreeViewColonnes::colonnesDeplacees()
{
    Banc banc({100, 100, 100});
    banc.vue.header()->moveSection(0, 2);
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{101, 100, 100}));
    banc.Change(1);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{101, 101, 100}));
}

void tst_DTreeViewColonnes::uneFoisParColonne()
{
    Banc banc({100, 100, 100});
    QSignalSpy espion(banc.vue.header(), &QHeaderView::sectionResized);
    banc.Change(50);
    QCOMPARE(espion.count(), 3);
    QCOMPARE(espion.at(0), (QVariantList{0, 100, 117}));
    QCOMPARE(espion.at(1), (QVariantList{1, 100, 117}));
    QCOMPARE(espion.at(2), (QVariantList{2, 100, 116}));
    QVERIFY(banc.vue.header()->updatesEnabled());
    banc.vue.header()->setUpdatesEnabled(false);
    banc.Change(3);
    QVERIFY(!banc.vue.header()->updatesEnabled());
}

void tst_DTreeViewColonnes::droiteAGauche()
{
    Banc banc({100, 100, 100});
    banc.vue.setLayoutDirection(Qt::RightToLeft);
    banc.Change(4);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 101, 101}));
}

QTEST_MAIN(tst_DTreeViewColonnes)
#include "tst_DTreeViewColonnes.moc"
