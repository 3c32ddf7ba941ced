#include "lists/Pastille.h"

#include "lists/EssaisPastille.h"

#include <QTimer>
#include <QtTest>

using namespace EssaisPastille;
using namespace Qt::StringLiterals;

class tst_PastilleSouris : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void survol_data();
    void survol();
    void sortie();
    void clics_data();
    void clics();
    void bordsDeLaCroix_data();
    void bordsDeLaCroix();
    void deuxClics();
    void autresBoutons_data();
    void autresBoutons();
    void autreBoutonPendantLaPression();
    void delaiDeLaPression();
    void pressionTropLongue();
    void pressionApresUnePressionTropLongue();
    void leDelaiRepartAChaquePression();
    void leRelachementArreteLeDelai();
    void clicNePrendPasLeFocus();

private:
    /// The time limit of a press, which the tests shorten.
    static QTimer & Delai(Hote const & hote) { return *hote.pastille->findChild<QTimer *>(); }
};

void tst_PastilleSouris::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PastilleSouris::survol_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("surLaCroix");
    QTest::newRow("the text") << QPoint(20, 15) << false;
    QTest::newRow("the middle of the cross") << QPoint(90, 15) << true;
    QTest::newRow("its first pixel") << QPoint(86, 11) << true;
    QTest::newRow("its last pixel") << QPoint(93, 18) << true;
    QTest::newRow("before it") << QPoint(85, 15) << false;
    QTest::newRow("behind it") << QPoint(94, 15) << false;
    QTest::newRow("above it") << QPoint(90, 10) << false;
    QTest::newRow("below it") << QPoint(90, 19) << false;
}

void tst_PastilleSouris::survol()
{
    QFETCH(QPoint, point);
    QFETCH(bool, surLaCroix);
    Hote hote{QString()};
    hote.Montre();
    // From the other state.
    QTest::mouseMove(hote.pastille, surLaCroix ? Hote::Corps() : hote.Croix());
    QTest::mouseMove(hote.pastille, point);
    QCOMPARE(hote.pastille->cursor().shape(),
             surLaCroix ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QRgb const attendue = surLaCroix ? qRgb(255, 0, 0) : qRgb(0, 0, 255);
    QCOMPARE(Peins(*hote.pastille).pixel(hote.Croix()), attendue);
}

void tst_PastilleSouris::sortie()
{
    Hote hote{QString()};
    hote.Montre();
    QTest::mouseMove(hote.pastille, hote.Croix());
    QCOMPARE(Peins(*hote.pastille).pixel(hote.Croix()), qRgb(255, 0, 0));
    QEvent sortie(QEvent::Leave);
    QCoreApplication::sendEvent(hote.pastille, &sortie);
    QCOMPARE(Peins(*hote.pastille).pixel(hote.Croix()), qRgb(0, 0, 255));
}

void tst_PastilleSouris::clics_data()
{
    QTest::addColumn<bool>("presseSurLaCroix");
    QTest::addColumn<bool>("relacheSurLaCroix");
    QTest::addColumn<int>("emissions");
    QTest::newRow("press and release on the cross") << true << true << 1;
    QTest::newRow("released beside it") << true << false << 0;
    QTest::newRow("pressed beside it") << false << true << 0;
    QTest::newRow("on the text") << false << false << 0;
}

void tst_PastilleSouris::clics()
{
    QFETCH(bool, presseSurLaCroix);
    QFETCH(bool, relacheSurLaCroix);
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    QTest::mousePress(hote.pastille, Qt::LeftButton, {},
                      presseSurLaCroix ? hote.Croix() : Hote::Corps());
    QCOMPARE(espion.count(), 0);
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {},
                        relacheSurLaCroix ? hote.Croix() : Hote::Corps());
    QTEST(int(espion.count()), "emissions");
    if (!espion.isEmpty())
        QCOMPARE(espion.at(0).at(0), QVariant(7));
    // Whatever it was, the press is over.
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QTEST(int(espion.count()), "emissions");
}

void tst_PastilleSouris::bordsDeLaCroix_data()
{
    survol_data();
}

void tst_PastilleSouris::bordsDeLaCroix()
{
    QFETCH(QPoint, point);
    QFETCH(bool, surLaCroix);
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    QTest::mouseClick(hote.pastille, Qt::LeftButton, {}, point);
    QCOMPARE(espion.count(), surLaCroix ? 1 : 0);
}

void tst_PastilleSouris::deuxClics()
{
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    QTest::mouseClick(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QTest::mouseClick(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QCOMPARE(espion.count(), 2); // the pill does not delete itself
}

void tst_PastilleSouris::autresBoutons_data()
{
    QTest::addColumn<int>("bouton");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void tst_PastilleSouris::autresBoutons()
{
    QFETCH(int, bouton);
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    QTest::mouseClick(hote.pastille, Qt::MouseButton(bouton), {}, hote.Croix());
    QCOMPARE(espion.count(), 0);
    QTest::mousePress(hote.pastille, Qt::MouseButton(bouton), {}, hote.Croix());
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QCOMPARE(espion.count(), 0);
}

void tst_PastilleSouris::autreBoutonPendantLaPression()
{
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QTest::mouseClick(hote.pastille, Qt::RightButton, {}, Hote::Corps());
    QTest::mouseClick(hote.pastille, Qt::RightButton, {}, hote.Croix());
    QCOMPARE(espion.count(), 0);
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QCOMPARE(espion.count(), 1);
}

void tst_PastilleSouris::delaiDeLaPression()
{
    Hote hote;
    hote.Montre();
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, Hote::Corps());
    QTimer const * const delai = hote.pastille->findChild<QTimer *>();
    QVERIFY(delai);
    QVERIFY(!delai->isActive());
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QVERIFY(delai->isActive());
    QVERIFY(delai->isSingleShot());
    QCOMPARE(delai->interval(), 5000);
    QCOMPARE(delai->timerType(), Qt::PreciseTimer);
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, Hote::Corps());
}

void tst_PastilleSouris::pressionTropLongue()
{
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    Delai(hote).setInterval(0);
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QTRY_VERIFY(!Delai(hote).isActive());
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QCOMPARE(espion.count(), 0);
}

void tst_PastilleSouris::pressionApresUnePressionTropLongue()
{
    Hote hote;
    hote.Montre();
    QSignalSpy const espion(hote.pastille, &Pastille::PastilleASupprimer);
    Delai(hote).setInterval(0);
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QTRY_VERIFY(!Delai(hote).isActive());
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    Delai(hote).setInterval(60'000);
    QTest::mouseClick(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QCOMPARE(espion.count(), 1);
}

void tst_PastilleSouris::leDelaiRepartAChaquePression()
{
    Hote hote;
    hote.Montre();
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QSignalSpy const fins(&Delai(hote), &QTimer::timeout);
    QTest::mouseRelease(hote.pastille, Qt::LeftButton, {}, Hote::Corps());
    Delai(hote).setInterval(60'000);
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QVERIFY(Delai(hote).remainingTime() > 30'000);
    QCOMPARE(hote.pastille->findChildren<QTimer *>().size(), 1);
    QTest::mousePress(hote.pastille, Qt::LeftButton, {}, Hote::Corps());
    QVERIFY(!Delai(hote).isActive());
    QCOMPARE(fins.count(), 0);
}

void tst_PastilleSouris::leRelachementArreteLeDelai()
{
    Hote hote;
    hote.Montre();
    QTest::mouseClick(hote.pastille, Qt::LeftButton, {}, hote.Croix());
    QVERIFY(!Delai(hote).isActive());
}

void tst_PastilleSouris::clicNePrendPasLeFocus()
{
    Hote hote;
    auto * const autre = new QWidget(&hote.fenetre);
    autre->setFocusPolicy(Qt::StrongFocus);
    hote.Montre();
    QVERIFY(QTest::qWaitForWindowActive(&hote.fenetre));
    autre->setFocus();
    QTest::mouseClick(hote.fenetre.windowHandle(), Qt::LeftButton, {},
                      hote.pastille->mapTo(&hote.fenetre, Hote::Corps()));
    QVERIFY(autre->hasFocus());
}

QTEST_MAIN(tst_PastilleSouris)
#include "tst_PastilleSouris.moc"
