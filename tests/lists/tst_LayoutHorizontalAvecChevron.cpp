#include "lists/LayoutHorizontalAvecChevron.h"

#include "lists/EssaisChevron.h"

#include <QtTest>

using namespace EssaisChevron;

// The operations on the row, and what it tells of its size.

class tst_LayoutHorizontalAvecChevron : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void sansChevron();
    void marge();
    void debutInvisible();
    void horsBornes();
    void ajoutDeNull();
    void ajoutDuMemeItem();
    void ajoutDuMemeWidget();
    void ajoutDuChevron();
    void insertion_data();
    void insertion();
    void insertionRemetAFaux();
    void insertionDUnItemPresent();
    void insertionDuChevron();
    void retrait();
    void listeCopiee();
    void tailleMinimale();
    void taillePreferee_data();
    void taillePreferee();
    void taillePrefereeSansChevron();
    void hauteur();
    void hauteurSansItem();
    void essaiAvecUneTaille();
    void essaiAvecUneListe();
    void essaiNeChangeRien();
    void parentApresCoup();
};

namespace {

QSize DonneTaillePreferee(QLayoutItem * item)
{
    return item->sizeHint();
}

QSize DonneDouble(QLayoutItem * item)
{
    return item->sizeHint() * 2;
}

QList<int> DonneLargeurs(LayoutHorizontalAvecChevron const & layout)
{
    QList<int> largeurs;
    for (int i = 0; i < layout.count(); ++i)
        largeurs.append(layout.itemAt(i)->sizeHint().width());
    return largeurs;
}

} // namespace

void tst_LayoutHorizontalAvecChevron::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_LayoutHorizontalAvecChevron::construction()
{
    Rangee rangee;

    QCOMPARE(rangee.fenetre.layout(), rangee.layout);
    QCOMPARE(rangee.chevron->parentWidget(), &rangee.fenetre);
    QCOMPARE(rangee.layout->count(), 0);
    QCOMPARE(rangee.layout->indexOf(rangee.chevron), -1);
    QCOMPARE(rangee.layout->expandingDirections(), Qt::Horizontal);
    QCOMPARE(rangee.layout->hasHeightForWidth(), false);
}

void tst_LayoutHorizontalAvecChevron::sansChevron()
{
    Rangee rangee({30, 30}, false);

    rangee.Place(100);

    QCOMPARE(rangee.layout->count(), 2);
    QCOMPARE(rangee.DonneVisibles(), (QList{true, true}));
}

void tst_LayoutHorizontalAvecChevron::marge()
{
    Rangee const rangee({}, true, 7);

    QCOMPARE(rangee.layout->contentsMargins(), QMargins(7, 7, 7, 7));
}

void tst_LayoutHorizontalAvecChevron::debutInvisible()
{
    Rangee const rangee({30, 30});

    QCOMPARE(rangee.DonneVisibles(), (QList{false, false}));
}

void tst_LayoutHorizontalAvecChevron::horsBornes()
{
    Rangee rangee({30});
    rangee.Place(100);

    for (int const index : {-1, 1, 1000}) {
        QVERIFY(!rangee.layout->ItemEstVisible(index));
        QCOMPARE(rangee.layout->itemAt(index), nullptr);
        QCOMPARE(rangee.layout->takeAt(index), nullptr);
    }
    QVERIFY(rangee.layout->ItemEstVisible(0));
    QCOMPARE(rangee.layout->count(), 1);
}

void tst_LayoutHorizontalAvecChevron::ajoutDeNull()
{
    Rangee rangee;

    rangee.layout->addItem(nullptr);
    rangee.layout->insertItem(0, nullptr, 0);
    rangee.layout->insertWidget(0, nullptr, 0);

    QCOMPARE(rangee.layout->count(), 0);
}

void tst_LayoutHorizontalAvecChevron::ajoutDuMemeItem()
{
    Rangee rangee({10, 20, 30});
    rangee.Place(100);

    rangee.layout->addItem(rangee.layout->itemAt(0));

    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{20, 30, 10}));
    QCOMPARE(rangee.DonneVisibles(), (QList{true, true, false}));
}

void tst_LayoutHorizontalAvecChevron::ajoutDuMemeWidget()
{
    Rangee rangee({10, 20, 30});

    rangee.layout->addWidget(rangee.paves.at(1));

    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{10, 30, 20}));
}

void tst_LayoutHorizontalAvecChevron::ajoutDuChevron()
{
    Rangee rangee({50});

    rangee.layout->addWidget(rangee.chevron);
    rangee.Place(30);

    QCOMPARE(rangee.layout->count(), 1);
    QCOMPARE(rangee.chevron->geometry(), QRect(0, 0, 20, 10));
}

void tst_LayoutHorizontalAvecChevron::insertion_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QList<int>>("largeurs");
    QTest::newRow("first") << 0 << QList{9, 10, 20, 30};
    QTest::newRow("in the middle") << 1 << QList{10, 9, 20, 30};
    QTest::newRow("at the end") << 3 << QList{10, 20, 30, 9};
    QTest::newRow("beyond the end") << 50 << QList{10, 20, 30, 9};
    QTest::newRow("negative is the end") << -1 << QList{10, 20, 30, 9};
}

void tst_LayoutHorizontalAvecChevron::insertion()
{
    QFETCH(int, index);
    QFETCH(QList<int>, largeurs);
    Rangee widgets({10, 20, 30});
    Rangee items({10, 20, 30});
    auto * const pave = new Pave(9);

    widgets.layout->insertWidget(index, pave, 5);
    items.layout->insertItem(index, new QSpacerItem(9, 1), 5);

    QCOMPARE(DonneLargeurs(*widgets.layout), largeurs);
    QCOMPARE(DonneLargeurs(*items.layout), largeurs);
    QCOMPARE(pave->parentWidget(), &widgets.fenetre);
}

void tst_LayoutHorizontalAvecChevron::insertionRemetAFaux()
{
    Rangee rangee({10, 20, 30});
    rangee.Place(100);

    rangee.layout->insertWidget(1, new Pave(9), 0);

    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false, false}));
    rangee.Place(100);
    QCOMPARE(rangee.DonneVisibles(), (QList{true, true, true, true}));
}

void tst_LayoutHorizontalAvecChevron::insertionDUnItemPresent()
{
    Rangee rangee({10, 20, 30});

    rangee.layout->insertItem(0, rangee.layout->itemAt(2), 0);
    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{30, 10, 20}));

    // Before the one that is at the index while the item is still in the row.
    rangee.layout->insertItem(2, rangee.layout->itemAt(0), 0);
    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{10, 30, 20}));
    rangee.layout->insertItem(1, rangee.layout->itemAt(1), 0);
    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{10, 30, 20}));
    rangee.layout->insertItem(0, rangee.layout->itemAt(1), 0);

    rangee.layout->insertWidget(1, rangee.paves.at(2), 0);
    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{10, 30, 20}));
}

void tst_LayoutHorizontalAvecChevron::insertionDuChevron()
{
    Rangee rangee({50});

    rangee.layout->insertWidget(0, rangee.chevron, 0);
    rangee.Place(30);

    QCOMPARE(rangee.layout->count(), 1);
    QCOMPARE(rangee.chevron->geometry(), QRect(0, 0, 20, 10));
}

void tst_LayoutHorizontalAvecChevron::retrait()
{
    Rangee rangee({10, 20, 30});
    rangee.Place(100);
    QLayoutItem * const item = rangee.layout->itemAt(1);

    QCOMPARE(rangee.layout->takeAt(1), item);
    delete item;

    QCOMPARE(DonneLargeurs(*rangee.layout), (QList{10, 30}));
    QCOMPARE(rangee.DonneVisibles(), (QList{true, true}));
    QCOMPARE(rangee.paves.at(1)->parentWidget(), &rangee.fenetre);
}

void tst_LayoutHorizontalAvecChevron::listeCopiee()
{
    Rangee rangee({10, 60});
    rangee.Place(50);
    auto liste = rangee.layout->PreteListe();
    QCOMPARE(liste.size(), 2);
    QCOMPARE(liste.at(0), std::pair(true, rangee.layout->itemAt(0)));
    QCOMPARE(liste.at(1), std::pair(false, rangee.layout->itemAt(1)));

    liste.clear();

    QCOMPARE(rangee.layout->count(), 2);
}

void tst_LayoutHorizontalAvecChevron::tailleMinimale()
{
    Rangee avec({10, 60}, true, 3);
    avec.layout->setSpacing(4);
    Rangee sans({10, 60}, false, 3);
    sans.layout->setSpacing(4);

    QCOMPARE(avec.layout->minimumSize(), QSize(24, 0));
    QCOMPARE(sans.layout->minimumSize(), QSize(0, 0));
}

void tst_LayoutHorizontalAvecChevron::taillePreferee_data()
{
    QTest::addColumn<QList<int>>("largeurs");
    QTest::newRow("none") << QList<int>{};
    QTest::newRow("one") << QList{30};
    QTest::newRow("last one wider than the chevron") << QList{30, 20, 40};
    QTest::newRow("last ones narrower than the chevron") << QList{30, 20, 5, 5};
    QTest::newRow("no width") << QList{0, 0};
}

// The smallest width at which nothing is hidden.
void tst_LayoutHorizontalAvecChevron::taillePreferee()
{
    QFETCH(QList<int>, largeurs);
    Rangee rangee(largeurs, true, 3);
    rangee.layout->setSpacing(4);

    QSize const taille = rangee.layout->sizeHint();

    QCOMPARE(taille.height(), largeurs.isEmpty() ? 6 : 16);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque(taille, DonneTaillePreferee), 0);
    if (!largeurs.isEmpty())
        QVERIFY(rangee.layout->TestDonneNombreItemMasque(taille - QSize(1, 0),
                                                         DonneTaillePreferee) > 0);
}

void tst_LayoutHorizontalAvecChevron::taillePrefereeSansChevron()
{
    Rangee rangee({30, 5}, false);
    rangee.layout->addItem(CreeRessort());
    rangee.Place(500);

    // What the spacer took is not needed.
    QCOMPARE(rangee.layout->sizeHint(), QSize(36, 10));
}

void tst_LayoutHorizontalAvecChevron::hauteur()
{
    Rangee rangee({30, 40}, true, 3);
    rangee.layout->addWidget(new Pave(QSize(10, 25)));

    // What is hidden counts too.
    QCOMPARE(rangee.layout->heightForWidth(200), 31);
    QCOMPARE(rangee.layout->heightForWidth(0), 31);
}

void tst_LayoutHorizontalAvecChevron::hauteurSansItem()
{
    Rangee const rangee({}, true, 3);

    QCOMPARE(rangee.layout->heightForWidth(200), 6);
}

void tst_LayoutHorizontalAvecChevron::essaiAvecUneTaille()
{
    Rangee const rangee({30, 30, 30});

    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({91, 10}, DonneTaillePreferee), 0);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({90, 10}, DonneTaillePreferee), 1);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({80, 10}, DonneTaillePreferee), 2);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({0, 0}, DonneTaillePreferee), 3);
    // The chevron's size is asked of the function as well: 60 and 40 of 100 are one too many.
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({100, 10}, DonneDouble), 3);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({101, 10}, DonneDouble), 2);
}

void tst_LayoutHorizontalAvecChevron::essaiAvecUneListe()
{
    Rangee const rangee({30, 30, 30});
    auto liste = rangee.layout->PreteListe();
    liste.removeFirst();

    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({61, 10}, DonneTaillePreferee, liste), 0);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({60, 10}, DonneTaillePreferee, liste), 1);
    QCOMPARE(rangee.layout->TestDonneNombreItemMasque({0, 0}, DonneTaillePreferee, {}), 0);
    QCOMPARE(rangee.layout->count(), 3);
}

void tst_LayoutHorizontalAvecChevron::essaiNeChangeRien()
{
    Rangee rangee({30, 30, 30});
    rangee.Place(80);
    auto const geometries = rangee.DonneGeometries();
    QRect const chevron = rangee.chevron->geometry();

    rangee.layout->TestDonneNombreItemMasque({20, 100}, DonneTaillePreferee);
    rangee.layout->heightForWidth(500);

    QCOMPARE(rangee.DonneGeometries(), geometries);
    QCOMPARE(rangee.chevron->geometry(), chevron);
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false}));
}

void tst_LayoutHorizontalAvecChevron::parentApresCoup()
{
    auto * const chevron = new Pave(20);
    auto * const layout = new LayoutHorizontalAvecChevron(nullptr, chevron, 0);
    layout->addWidget(new Pave(50));
    QWidget fenetre;

    fenetre.setLayout(layout);
    layout->setGeometry({0, 0, 30, 10});

    QCOMPARE(chevron->parentWidget(), &fenetre);
    QCOMPARE(chevron->geometry(), QRect(0, 0, 20, 10));
}

QTEST_MAIN(tst_LayoutHorizontalAvecChevron)
#include "tst_LayoutHorizontalAvecChevron.moc"
