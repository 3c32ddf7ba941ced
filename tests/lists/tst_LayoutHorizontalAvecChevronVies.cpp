#include "lists/LayoutHorizontalAvecChevron.h"

#include "lists/EssaisChevron.h"

#include <QtTest>

using namespace EssaisChevron;

// Who owns what, and what dies while the row is there or in the middle of a layout.

namespace {

class ItemCompte : public QSpacerItem
{
public:
    ItemCompte()
        : QSpacerItem(1, 1)
    {
        ++nombre;
    }
    ~ItemCompte() override { --nombre; }
    Q_DISABLE_COPY_MOVE(ItemCompte)

    static inline int nombre = 0;
};

// Tells when it is resized.
class PaveAttentif : public Pave
{
public:
    using Pave::Pave;
    std::function<void()> suite;

protected:
    void resizeEvent(QResizeEvent *) override
    {
        if (suite)
            std::exchange(suite, nullptr)();
    }
};

} // namespace

class tst_LayoutHorizontalAvecChevronVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void itemsDetruits();
    void itemRetireEncoreVivant();
    void widgetDetruit();
    void widgetEnleve();
    void chevronDetruit();
    void chevronDetruitAvantLeLayout();
    void chevronRemplacay();
    void layoutDetruitSeul();
    void layoutSansParent();
    void retraitPendantLaPasse();
    void ajoutPendantLaPasse();
};

void tst_LayoutHorizontalAvecChevronVies::cleanup()
{
    QCOMPARE(ItemCompte::nombre, 0);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_LayoutHorizontalAvecChevronVies::itemsDetruits()
{
    {
        Rangee const rangee;
        for (int i = 0; i < 3; ++i)
            rangee.layout->addItem(new ItemCompte);
        QCOMPARE(ItemCompte::nombre, 3);
    }
    QCOMPARE(ItemCompte::nombre, 0);
}

void tst_LayoutHorizontalAvecChevronVies::itemRetireEncoreVivant()
{
    ItemCompte item;
    {
        Rangee const rangee({10});
        rangee.layout->addItem(&item);
        rangee.layout->removeItem(&item);
        QCOMPARE(rangee.layout->count(), 1);
    }
    QCOMPARE(ItemCompte::nombre, 1);
}

void tst_LayoutHorizontalAvecChevronVies::widgetDetruit()
{
    Rangee rangee({10, 100, 30});
    rangee.Place(60);
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false}));

    delete rangee.paves.at(1);

    QCOMPARE(rangee.layout->count(), 2);
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false}));
    rangee.Place(60);
    QCOMPARE(rangee.DonneVisibles(), (QList{true, true}));
    QCOMPARE(rangee.chevron->geometry(), QRect());
}

void tst_LayoutHorizontalAvecChevronVies::widgetEnleve()
{
    Rangee rangee({10, 30});

    rangee.layout->removeWidget(rangee.paves.at(0));
    QCOMPARE(rangee.layout->count(), 1);

    rangee.paves.at(1)->setParent(nullptr);
    QCOMPARE(rangee.layout->count(), 0);
    delete rangee.paves.at(1);
}

void tst_LayoutHorizontalAvecChevronVies::chevronDetruit()
{
    Rangee rangee({30, 100});
    rangee.Place(60);
    QCOMPARE(rangee.paves.at(1)->geometry(), QRect());

    delete rangee.chevron;

    QCOMPARE(rangee.layout->minimumSize(), QSize(0, 0));
    QCOMPARE(rangee.layout->heightForWidth(100), 10);
    rangee.Place(60);
    QCOMPARE(rangee.paves.at(1)->geometry(), QRect(30, 0, 100, 10));
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false}));
}

void tst_LayoutHorizontalAvecChevronVies::chevronDetruitAvantLeLayout()
{
    auto * const chevron = new Pave(20);
    LayoutHorizontalAvecChevron layout(nullptr, chevron, 0);

    delete chevron;

    layout.setGeometry({0, 0, 100, 100});
    QCOMPARE(layout.count(), 0);
}

void tst_LayoutHorizontalAvecChevronVies::chevronRemplacay()
{
    Rangee rangee({100});
    // A second item for the chevron takes the place of the first, as does the same again.
    auto * const item = new QWidgetItem(rangee.chevron);
    rangee.layout->addItem(item);
    rangee.layout->addItem(item);

    rangee.Place(50);

    QCOMPARE(rangee.layout->count(), 1);
    QCOMPARE(rangee.chevron->geometry(), QRect(0, 0, 20, 10));
}

void tst_LayoutHorizontalAvecChevronVies::layoutDetruitSeul()
{
    Rangee rangee({30, 100});
    rangee.Place(60);

    delete rangee.layout;

    // The widgets are their parent's.
    QCOMPARE(rangee.fenetre.findChildren<Pave *>().size(), 3);
}

void tst_LayoutHorizontalAvecChevronVies::layoutSansParent()
{
    Pave chevron(20);
    Pave pave(50);
    LayoutHorizontalAvecChevron layout(nullptr, &chevron, 0);
    layout.addWidget(&pave);
    layout.setSpacing(0);

    layout.setGeometry({0, 0, 30, 10});

    // Windows of their own, which no layout sizes.
    QCOMPARE(layout.heightForWidth(30), 0);
}

void tst_LayoutHorizontalAvecChevronVies::retraitPendantLaPasse()
{
    Rangee rangee;
    auto * const attentif = new PaveAttentif(30);
    rangee.layout->addWidget(attentif);
    auto * const condamnay = rangee.Ajoute(30);
    rangee.Ajoute(30);
    rangee.fenetre.resize(200, 10);
    rangee.fenetre.show();
    QVERIFY(rangee.layout->ItemEstVisible(2));
    attentif->suite = [condamnay] { delete condamnay; };

    attentif->resize(5, 5);
    rangee.Place(200);
    attentif->suite = [attentif] { delete attentif->parentWidget()->layout()->takeAt(1); };
    attentif->resize(5, 5);
    rangee.Place(200);

    QCOMPARE(rangee.layout->count(), 1);
    QTRY_VERIFY(rangee.layout->ItemEstVisible(0));
}

void tst_LayoutHorizontalAvecChevronVies::ajoutPendantLaPasse()
{
    Rangee rangee;
    auto * const attentif = new PaveAttentif(30);
    rangee.layout->addWidget(attentif);
    rangee.Ajoute(30);
    rangee.fenetre.resize(200, 10);
    rangee.fenetre.show();
    attentif->resize(5, 5);
    attentif->suite = [&rangee] { rangee.layout->insertWidget(0, new Pave(20), 0); };

    rangee.Place(200);

    QCOMPARE(rangee.layout->count(), 3);
    QTRY_COMPARE(rangee.DonneVisibles(), (QList{true, true, true}));
    QTRY_COMPARE(attentif->geometry(), QRect(20, 0, 30, 10));
}

QTEST_MAIN(tst_LayoutHorizontalAvecChevronVies)
#include "tst_LayoutHorizontalAvecChevronVies.moc"
