// tests/navigation/tst_FenPriseEnMainTailles.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

class CompteurTailles : public QObject
{
public:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        compte += evenement->type() == QEvent::Resize;
        return false;
    }
    int compte = 0;
};

} // namespace

class tst_FenPriseEnMainTailles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hauteur_data();
    void hauteur();
    void hauteurUneFois();
    void populeEncore();
    void largeurSansCoupure();

private:
    static QPushButton & Lien(int rangee) { return FenetrePriseEnMain::Lien(rangee); }

    std::unique_ptr<FenetrePriseEnMain> monBanc;
};

void tst_FenPriseEnMainTailles::init()
{
    monBanc = std::make_unique<FenetrePriseEnMain>();
}

void tst_FenPriseEnMainTailles::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

void tst_FenPriseEnMainTailles::hauteur_data()
{
    QTest::addColumn<int>("rangees");
    QTest::addColumn<bool>("limitee");
    QTest::newRow("no row") << 0 << false;
    QTest::newRow("one row") << 1 << false;
    QTest::newRow("eight rows") << 8 << false;
    QTest::newRow("nine rows") << 9 << true;
    QTest::newRow("forty rows") << 40 << true;
}

void tst_FenPriseEnMainTailles::hauteur()
{
    QFETCH(int, rangees);
    QFETCH(bool, limitee);
    FenPriseEnMain & fenetre = monBanc->Alloue(rangees);
    QCOMPARE(fenetre.maximumHeight(), QWIDGETSIZE_MAX);
    auto const & defilement = *fenetre.findChild<QScrollArea *>();
    fenetre.show();
    fenetre.resize(fenetre.width(), 2000);
    QCoreApplication::processEvents();
    QVERIFY(defilement.widgetResizable());
    if (!limitee) {
        QCOMPARE(fenetre.maximumHeight(), QWIDGETSIZE_MAX);
        QCOMPARE(fenetre.height(), 2000);
        return;
    }
    int attendue = fenetre.findChild<QLabel *>(u"titrePriseEnMain"_s)->sizeHint().height() +
                   fenetre.findChild<QLabel *>(u"explicationPriseEnMain"_s)->sizeHint().height() +
                   50 + 20 + 10;
    for (int i = 0; i < 8; ++i)
        attendue += defilement.widget()->layout()->itemAt(3 + i)->sizeHint().height();
    QCOMPARE(fenetre.maximumHeight(), attendue);
    QTRY_COMPARE(fenetre.height(), attendue);
    QTRY_COMPARE(defilement.height(), attendue);            // none of it hangs out of the window
    QVERIFY(defilement.verticalScrollBar()->maximum() > 0); // the others scroll
    QCOMPARE(defilement.widget()->width(), defilement.viewport()->width());
}

void tst_FenPriseEnMainTailles::hauteurUneFois()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(12);
    CompteurTailles compteur;
    fenetre.installEventFilter(&compteur);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    for (int tour = 0; tour < 50; ++tour)
        QCoreApplication::processEvents();
    int const compte = compteur.compte;
    QVERIFY(compte <= 3); // its size, and the limit
    for (int tour = 0; tour < 50; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(compteur.compte, compte);
}

// Five rows and five do not count as ten.
void tst_FenPriseEnMainTailles::populeEncore()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(5);
    fenetre.PopuleAffichage(new QVBoxLayout(new QWidget(&fenetre)));
    fenetre.show();
    fenetre.resize(fenetre.width(), 2000);
    QCoreApplication::processEvents();
    QCOMPARE(fenetre.maximumHeight(), QWIDGETSIZE_MAX);
}

// There is no bar to scroll sideways with.
void tst_FenPriseEnMainTailles::largeurSansCoupure()
{
    QJsonObject document = CreeDocument(20);
    QJsonArray items = document[u"itemsPriseEnMain"_s].toArray();
    QJsonObject item = items[15].toObject();
    item[u"titreFR"_s] = u"Un titre bien plus long que ceux des autres rangées, "_s.repeated(3);
    items[15] = item;
    document[u"itemsPriseEnMain"_s] = items;
    monBanc->MetsRessources(EcrisDocument(document));
    FenPriseEnMain::AlloueInstance(true, true);
    FenPriseEnMain & fenetre = *FenPriseEnMain::Instance();
    auto const & defilement = *fenetre.findChild<QScrollArea *>();

    fenetre.show();
    for (int const largeur : {fenetre.width(), 10}) {
        fenetre.resize(largeur, fenetre.height());
        QCoreApplication::processEvents();
        QVERIFY(defilement.verticalScrollBar()->isVisible());
        QCOMPARE(defilement.horizontalScrollBar()->maximum(), 0);
        QVERIFY(Lien(15).width() >= Lien(15).sizeHint().width());
    }
}

QTEST_MAIN(tst_FenPriseEnMainTailles)
#include "tst_FenPriseEnMainTailles.moc"
