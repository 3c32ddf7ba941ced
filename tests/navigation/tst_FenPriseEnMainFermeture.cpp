// tests/navigation/tst_FenPriseEnMainFermeture.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;

using Ferme = std::function<void(FenPriseEnMain &)>;
Q_DECLARE_METATYPE(Ferme)

class tst_FenPriseEnMainFermeture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void singleton();
    void detruiteParAutrui();
    void fermeture_data();
    void fermeture();
    void sansCallback();
    void callbackQuiDetruit_data();
    void callbackQuiDetruit();

private:
    std::unique_ptr<FenetrePriseEnMain> monBanc;
};

void tst_FenPriseEnMainFermeture::init()
{
    monBanc = std::make_unique<FenetrePriseEnMain>();
}

void tst_FenPriseEnMainFermeture::cleanup()
{
    monBanc.reset();
    QVERIFY(!FenPriseEnMain::Instance());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

void tst_FenPriseEnMainFermeture::singleton()
{
    QVERIFY(!FenPriseEnMain::Instance());
    FenPriseEnMain::LibereSingleton();

    QPointer<FenPriseEnMain> const fenetre = &monBanc->Alloue(1);
    QCOMPARE(FenPriseEnMain::monInstance, fenetre);
    QCOMPARE(FenPriseEnMain::Instance(), fenetre);

    // Deliberate: the old window is not looked at.
    FenPriseEnMain::AlloueInstance(true, true);
    QVERIFY(fenetre && FenPriseEnMain::Instance() != fenetre);
    delete fenetre;
    QVERIFY(FenPriseEnMain::Instance());

    FenPriseEnMain::LibereSingleton();
    QVERIFY(!FenPriseEnMain::Instance());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_FenPriseEnMainFermeture::detruiteParAutrui()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(1);
    fenetre.setAttribute(Qt::WA_DeleteOnClose);
    fenetre.show();
    fenetre.close();
    QTRY_VERIFY(!FenPriseEnMain::Instance());
    FenPriseEnMain::LibereSingleton();
}

void tst_FenPriseEnMainFermeture::fermeture_data()
{
    QTest::addColumn<Ferme>("ferme");
    QTest::newRow("Ctrl+W") << Ferme([](FenPriseEnMain & fenetre) {
        QTest::keyClick(&fenetre, Qt::Key_W, Qt::ControlModifier);
    });
    QTest::newRow("its button") << Ferme([](FenPriseEnMain & fenetre) { fenetre.close(); });
    QTest::newRow("Escape") << Ferme(
        [](FenPriseEnMain & fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
    QTest::newRow("the desktop") << Ferme(
        [](FenPriseEnMain & fenetre) { fenetre.windowHandle()->close(); });
    QTest::newRow("accepted") << Ferme([](FenPriseEnMain & fenetre) { fenetre.accept(); });
}

void tst_FenPriseEnMainFermeture::fermeture()
{
    QFETCH(Ferme, ferme);
    FenPriseEnMain & fenetre = monBanc->Alloue(2);
    QList<QPoint> positions;
    fenetre.MetsCallbackFermeture([&positions](QPoint position) { positions << position; });
    for (QPoint const position : {QPoint(60, 70), QPoint(80, 90)}) {
        positions.clear();
        fenetre.show();
        QVERIFY(QTest::qWaitForWindowActive(&fenetre));
        fenetre.move(position);

        ferme(fenetre);

        QTRY_COMPARE(positions, QList<QPoint>{fenetre.pos()});
        QVERIFY(!fenetre.isVisible());
        QCOMPARE(FenPriseEnMain::Instance(), &fenetre); // it stays
    }
}

void tst_FenPriseEnMainFermeture::sansCallback()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(1);
    fenetre.show();
    QVERIFY(fenetre.close());
    fenetre.MetsCallbackFermeture([](QPoint) { QFAIL("forgotten"); });
    fenetre.MetsCallbackFermeture({});
    fenetre.show();
    QVERIFY(fenetre.close());
    // Neither does the end of the window count as closing.
    fenetre.MetsCallbackFermeture([](QPoint) { QFAIL("destroyed, not closed"); });
    fenetre.show();
    FenPriseEnMain::LibereSingleton();
}

void tst_FenPriseEnMainFermeture::callbackQuiDetruit_data()
{
    fermeture_data();
}

void tst_FenPriseEnMainFermeture::callbackQuiDetruit()
{
    QFETCH(Ferme, ferme);
    FenPriseEnMain & fenetre = monBanc->Alloue(1);
    auto const temoin = std::make_shared<int>(3);
    int vu = 0;
    fenetre.MetsCallbackFermeture([temoin, &vu](QPoint) {
        FenPriseEnMain::LibereSingleton();
        vu = *temoin; // what the function holds outlives the window
    });
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));

    ferme(fenetre);

    QTRY_VERIFY(!FenPriseEnMain::Instance());
    QCOMPARE(vu, 3);
}

QTEST_MAIN(tst_FenPriseEnMainFermeture)
#include "tst_FenPriseEnMainFermeture.moc"
