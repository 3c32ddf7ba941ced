// tests/controls/tst_DTreeViewColonnes.cpp
#include "controls/DTreeView.h"

#include <QHeaderView>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QtTest>

#include <algorithm>
#include <numeric>

namespace {

constexpr int kMinimum = 20; // pixels; not the one that the font gives
constexpr int kHauteur = 200;

using Largeurs = QList<int>;

Largeurs DonneLargeurs(DTreeView const & vue)
{
    Largeurs largeurs;
    for (int colonne = 0; colonne < vue.header()->count(); ++colonne)
        largeurs.append(vue.header()->sectionSize(colonne));
    return largeurs;
}

int Somme(DTreeView const & vue)
{
    Largeurs const largeurs = DonneLargeurs(vue);
    return std::accumulate(largeurs.begin(), largeurs.end(), 0);
}

/// A shown tree without a header, whose viewport is as wide as its columns.
struct Banc
{
    explicit Banc(Largeurs const & largeurs, bool etireLaDerniere = false)
        : modele(1, static_cast<int>(largeurs.size()))
    {
        vue.setFrameShape(QFrame::NoFrame);
        vue.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        vue.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        vue.setHeaderHidden(true);
        vue.setModel(&modele);
        vue.header()->setMinimumSectionSize(kMinimum);
        vue.header()->setStretchLastSection(etireLaDerniere);
        vue.resize(std::accumulate(largeurs.begin(), largeurs.end(), 0), kHauteur);
        vue.show();
        for (int colonne = 0; colonne < largeurs.size(); ++colonne)
            vue.header()->resizeSection(colonne, largeurs[colonne]);
        vue.MetsRedimensionnementAvecResizeEvent(true);
    }

    void Change(int delta) { vue.resize(vue.width() + delta, kHauteur); }

    QStandardItemModel modele;
    DTreeView vue;
};

} // namespace

// The columns of a tree without a header share what its width gains or loses.
class tst_DTreeViewColonnes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void partage_data();
    void partage();
    void partageAvecDerniereEtiree_data();
    void partageAvecDerniereEtiree();
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
    void colonneIgnoree_data();
    void colonneIgnoree();
    void colonneCachee();
    void aucuneColonneNePeut();
    void minimumPartout();
    void minimumParcouru();
    void maximum();
    void horsLimites();
    void colonnesDeplacees();
    void derniereDeplacee();
    void derniereFixe();
    void sectionsEtirees();
    void uneFoisParColonne();
    void barreQuiApparait();
    void droiteAGauche();
    void sommeExacte_data();
    void sommeExacte();
    void grandDelta();
};

void tst_DTreeViewColonnes::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTreeViewColonnes::partage_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<Largeurs>("attendues");
    QTest::newRow("one pixel goes to the first column") << 1 << Largeurs{101, 100, 100};
    QTest::newRow("two pixels go to the first two") << 2 << Largeurs{101, 101, 100};
    QTest::newRow("a whole round") << 3 << Largeurs{101, 101, 101};
    QTest::newRow("the round begins again") << 4 << Largeurs{102, 101, 101};
    QTest::newRow("several rounds") << 32 << Largeurs{111, 111, 110};
    QTest::newRow("one pixel less") << -1 << Largeurs{99, 100, 100};
    QTest::newRow("several rounds less") << -31 << Largeurs{89, 90, 90};
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

void tst_DTreeViewColonnes::partageAvecDerniereEtiree_data()
{
    partage_data();
}

// As a tree is made. Qt alone would give the last column all of it.
void tst_DTreeViewColonnes::partageAvecDerniereEtiree()
{
    QFETCH(int, delta);
    QFETCH(Largeurs, attendues);
    Banc banc({100, 100, 100}, true);
    banc.Change(delta);
    QCOMPARE(DonneLargeurs(banc.vue), attendues);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), attendues);
    QCOMPARE(banc.vue.header()->length(), 300 + delta);
    banc.Change(-delta);
    QCoreApplication::processEvents();
    QCOMPARE(banc.vue.header()->length(), 300);
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

void tst_DTreeViewColonnes::colonneIgnoree_data()
{
    QTest::addColumn<QHeaderView::ResizeMode>("mode");
    QTest::newRow("fixed") << QHeaderView::Fixed;
    QTest::newRow("resized to its contents") << QHeaderView::ResizeToContents;
}

void tst_DTreeViewColonnes::colonneIgnoree()
{
    QFETCH(QHeaderView::ResizeMode, mode);
    Banc banc({100, 100, 100});
    banc.vue.header()->setSectionResizeMode(0, mode);
    QCoreApplication::processEvents();
    int const largeur = banc.vue.header()->sectionSize(0);
    banc.Change(20);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{largeur, 110, 110}));
    banc.Change(-40);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{largeur, 90, 90}));
}

void tst_DTreeViewColonnes::colonneCachee()
{
    Banc banc({100, 100, 100});
    banc.vue.setColumnHidden(1, true);
    banc.Change(20);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{110, 0, 110}));
    banc.vue.setColumnHidden(1, false);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{110, 100, 110}));
}

void tst_DTreeViewColonnes::aucuneColonneNePeut()
{
    Banc banc({100, 100});
    QSignalSpy espion(banc.vue.header(), &QHeaderView::sectionResized);
    banc.vue.header()->setSectionResizeMode(QHeaderView::Fixed);
    banc.Change(50);
    banc.Change(-70);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));
    QCOMPARE(espion.count(), 0);
    banc.vue.setColumnHidden(0, true);
    banc.vue.setColumnHidden(1, true);
    espion.clear();
    banc.Change(50);
    QCOMPARE(espion.count(), 0);
    banc.vue.header()->setSectionResizeMode(QHeaderView::Interactive);
    banc.vue.setColumnHidden(0, false);
    banc.Change(5); // what was dropped is not caught up
    QCOMPARE(banc.vue.header()->sectionSize(0), 105);
}

void tst_DTreeViewColonnes::minimumPartout()
{
    Banc banc({kMinimum, kMinimum + 3, kMinimum});
    banc.Change(-10); // only three of them can be taken
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum, kMinimum, kMinimum}));
    banc.Change(-10);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum, kMinimum, kMinimum}));
    banc.Change(1); // to the column after the last that gave a pixel
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum, kMinimum, kMinimum + 1}));
}

void tst_DTreeViewColonnes::minimumParcouru()
{
    Banc banc({100, kMinimum + 1, 100});
    banc.Change(-11);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{95, kMinimum, 95}));
}

void tst_DTreeViewColonnes::maximum()
{
    Banc banc({100, 100});
    banc.vue.header()->setMaximumSectionSize(103);
    banc.Change(5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{103, 102}));
    banc.Change(5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{103, 103}));
}

// A column without any width goes to the smallest one at once, and pays for it.
void tst_DTreeViewColonnes::horsLimites()
{
    Banc banc({100, 100});
    banc.vue.header()->resizeSection(0, 0);
    banc.Change(kMinimum - 1); // too little for the first
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{0, 99 + kMinimum}));
    banc.Change(kMinimum + 5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum + 2, 102 + kMinimum}));
    banc.vue.header()->resizeSection(0, 0);
    banc.Change(-5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{0, 97 + kMinimum}));
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

// The stretched section is the last one that is seen, and gets its new width before others.
void tst_DTreeViewColonnes::derniereDeplacee()
{
    Banc banc({100, 100, 100}, true);
    banc.vue.header()->moveSection(0, 2);
    banc.vue.header()->resizeSection(0, 100);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100, 100}));
    QSignalSpy const espion(banc.vue.header(), &QHeaderView::sectionResized);
    for (int const delta : {30, -60}) {
        Largeurs const attendues(3, (banc.vue.width() + delta) / 3);
        banc.Change(delta);
        QCOMPARE(DonneLargeurs(banc.vue), attendues);
        QCoreApplication::processEvents();
        QCOMPARE(DonneLargeurs(banc.vue), attendues);
    }
    QCOMPARE(espion.count(), 7); // one for each column, and the base has widened the last once
}

// What Qt stretches is no exception for a column that keeps its width.
void tst_DTreeViewColonnes::derniereFixe()
{
    Banc banc({100, 100, 100}, true);
    banc.vue.header()->setSectionResizeMode(2, QHeaderView::Fixed);
    banc.Change(30);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{115, 115, 100}));
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{115, 115, 100}));
}

void tst_DTreeViewColonnes::sectionsEtirees()
{
    Banc banc({100, 100, 100});
    banc.vue.header()->setSectionResizeMode(1, QHeaderView::Stretch);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100, 100}));
    for (int const delta : {31, -62, 7}) {
        int const avant = Somme(banc.vue);
        banc.Change(delta);
        QCOMPARE(Somme(banc.vue), avant + delta);
        QCoreApplication::processEvents();
        QCOMPARE(Somme(banc.vue), banc.vue.viewport()->width());
    }
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{94, 91, 91}));
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

void tst_DTreeViewColonnes::barreQuiApparait()
{
    for (bool const etireLaDerniere : {false, true}) {
        Banc banc({100, 100, 100}, etireLaDerniere);
        banc.vue.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        banc.modele.setRowCount(20);
        QTRY_VERIFY(banc.vue.verticalScrollBar()->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(Somme(banc.vue), banc.vue.viewport()->width());
        for (int const hauteur : {2000, 100, 1800, kHauteur}) {
            banc.vue.resize(banc.vue.width() + 17, hauteur);
            QCoreApplication::processEvents();
            QCOMPARE(Somme(banc.vue), banc.vue.viewport()->width());
        }
        Largeurs const largeurs = DonneLargeurs(banc.vue);
        auto const [petite, grande] = std::minmax_element(largeurs.begin(), largeurs.end());
        QVERIFY2(*grande - *petite <= 2,
                 qPrintable(QStringLiteral("%1 %2").arg(*petite).arg(*grande)));
    }
}

void tst_DTreeViewColonnes::droiteAGauche()
{
    Banc banc({100, 100, 100});
    banc.vue.setLayoutDirection(Qt::RightToLeft);
    banc.Change(4);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{102, 101, 101}));
}

void tst_DTreeViewColonnes::sommeExacte_data()
{
    QTest::addColumn<bool>("etireLaDerniere");
    QTest::newRow("as they are") << false;
    QTest::newRow("the last one stretched") << true;
}

void tst_DTreeViewColonnes::sommeExacte()
{
    QFETCH(bool, etireLaDerniere);
    Banc banc({120, 80, 200, 100, 90}, etireLaDerniere);
    banc.vue.header()->setSectionResizeMode(1, QHeaderView::Fixed);
    banc.vue.setColumnHidden(2, true);
    banc.vue.MetsRedimensionnementAvecResizeEvent(false);
    banc.Change(-200);
    banc.vue.MetsRedimensionnementAvecResizeEvent(true);
    int attendue = Somme(banc.vue);
    QCOMPARE(attendue, banc.vue.viewport()->width());
    QRandomGenerator hasard(20);
    for (int essai = 0; essai < 10000; ++essai) {
        int const largeur = hasard.bounded(80 + 3 * kMinimum, 1500);
        attendue += largeur - banc.vue.viewport()->width();
        banc.vue.resize(largeur, kHauteur);
        QCOMPARE(Somme(banc.vue), attendue);
        if (essai % 100 == 0) {
            QCoreApplication::processEvents();
            QCOMPARE(Somme(banc.vue), attendue);
        }
        QCOMPARE(banc.vue.header()->sectionSize(1), 80);
    }
}

void tst_DTreeViewColonnes::grandDelta()
{
    Banc banc(Largeurs(100, 30));
    for (int colonne = 0; colonne < 99; ++colonne)
        banc.vue.header()->setSectionResizeMode(colonne, QHeaderView::Fixed);
    QSignalSpy espion(banc.vue.header(), &QHeaderView::sectionResized);
    banc.Change(5000);
    QCOMPARE(banc.vue.header()->sectionSize(99), 5030);
    QCOMPARE(espion.count(), 1);
}

QTEST_MAIN(tst_DTreeViewColonnes)
#include "tst_DTreeViewColonnes.moc"
