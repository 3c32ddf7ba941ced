#include "lists/ListePastille.h"

#include "lists/EssaisListePastille.h"

using namespace EssaisListePastille;
using namespace Qt::StringLiterals;

class tst_ListePastilleFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void fleches();
    void flechesAuxBouts();
    void flechesSousLeChevron();
    void tabulation();
    void tabulationAvantLaSuite();
    void tabulationEntreLesVoisins();
    void focusApresRetrait_data();
    void focusApresRetrait();
    void focusVersCelleQuiSort();
    void sansFocusRienNeBouge();
};

void tst_ListePastilleFocus::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListePastilleFocus::fleches()
{
    Hote hote(3);
    QVERIFY(hote.Montre());
    hote.pastilles[0]->setFocus();
    QTest::keyClick(hote.pastilles[0], Qt::Key_Right);
    QVERIFY(hote.pastilles[1]->hasFocus());
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right);
    QVERIFY(hote.pastilles[2]->hasFocus());
    QTest::keyClick(hote.pastilles[2], Qt::Key_Left);
    QVERIFY(hote.pastilles[1]->hasFocus());
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right, Qt::ControlModifier);
    QVERIFY(hote.pastilles[1]->hasFocus());
}

void tst_ListePastilleFocus::flechesAuxBouts()
{
    Hote hote(2);
    QVERIFY(hote.Montre());
    hote.pastilles[0]->setFocus();
    QTest::keyClick(hote.pastilles[0], Qt::Key_Left);
    QVERIFY(hote.pastilles[0]->hasFocus());
    hote.pastilles[1]->setFocus();
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right);
    QVERIFY(hote.pastilles[1]->hasFocus());
}

void tst_ListePastilleFocus::flechesSousLeChevron()
{
    Hote hote(6);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    QVERIFY(hote.liste->WidgetEstVisible(1));
    QVERIFY(!hote.liste->WidgetEstVisible(2));
    hote.pastilles[1]->setFocus();
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right);
    QVERIFY(hote.pastilles[1]->hasFocus()); // the next one is not seen
}

void tst_ListePastilleFocus::tabulation()
{
    Hote hote(4);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    // More of them while the last ones are under the chevron.
    for (int i = 4; i < 6; ++i)
        hote.pastilles << Ajoute(*hote.liste, i);
    QCoreApplication::processEvents();
    hote.suite->setFocus();
    auto const suivants = [&](int combien, Qt::Key touche) {
        QList<QWidget *> widgets;
        for (int i = 0; i < combien; ++i) {
            QTest::keyClick(QApplication::focusWidget(), touche);
            widgets << QApplication::focusWidget();
        }
        return widgets;
    };
    QWidget * const chevron = Chevron(*hote.liste);
    QCOMPARE(suivants(4, Qt::Key_Tab),
             QList<QWidget *>({hote.pastilles[0], hote.pastilles[1], chevron, hote.suite}));
    QCOMPARE(suivants(2, Qt::Key_Backtab), QList<QWidget *>({chevron, hote.pastilles[1]}));

    // All of them, in their order, once there is room.
    hote.liste->resize(750, hote.liste->height());
    QCoreApplication::processEvents();
    hote.suite->setFocus();
    QList<QWidget *> attendus;
    for (Pastille * const pastille : hote.pastilles)
        attendus << pastille;
    QCOMPARE(suivants(7, Qt::Key_Tab), attendus << hote.suite);
}

void tst_ListePastilleFocus::tabulationAvantLaSuite()
{
    // The pills come while nothing else in the window takes the focus.
    QWidget fenetre;
    fenetre.resize(760, 200);
    auto * const liste = new ListePastille(&fenetre);
    liste->setGeometry(0, 0, 700, 40);
    QList<QWidget *> attendus;
    for (int i = 0; i < 3; ++i)
        attendus << Ajoute(*liste, i);
    attendus << new QLineEdit(&fenetre);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    attendus.last()->setFocus();
    for (QWidget const * const attendu : attendus) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), attendu);
    }
    for (QWidget const * const widget : liste->PreteListeWidgets())
        QCOMPARE(widget->focusPolicy(), Qt::TabFocus);
    QCOMPARE(liste->focusPolicy(), Qt::NoFocus);
}

void tst_ListePastilleFocus::tabulationEntreLesVoisins()
{
    Hote hote(4);
    // Two neighbours: the ring of Tab has no other start.
    auto * const apres = new QLineEdit(&hote.fenetre);
    apres->setGeometry(0, 150, 100, 30);
    QWidget::setTabOrder(hote.pastilles.last(), hote.suite);
    QWidget::setTabOrder(hote.suite, apres);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    for (int i = 4; i < 6; ++i)
        hote.pastilles << Ajoute(*hote.liste, i); // behind one that is under the chevron
    hote.liste->RetirePastille(hote.pastilles.takeFirst(), nullptr);
    hote.liste->resize(750, hote.liste->height());
    QCoreApplication::processEvents();
    apres->setFocus();
    QList<QWidget *> attendus(hote.pastilles.cbegin(), hote.pastilles.cend());
    attendus << hote.suite << apres;
    for (QWidget const * const attendu : attendus) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), attendu);
    }

    // The first one of a row between others.
    ListePastille & liste = *hote.liste;
    liste.Vide();
    QWidget::setTabOrder(apres, hote.suite);
    auto * const premiere = Ajoute(liste, 9);
    QCoreApplication::processEvents();
    QCOMPARE(hote.liste->nextInFocusChain(), premiere);
}

void tst_ListePastilleFocus::focusApresRetrait_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<int>("retiree");
    QTest::addColumn<int>("cible"); // -1 for the widget that follows
    QTest::newRow("the next one") << 3 << 1 << 2;
    QTest::newRow("the next one of the first") << 3 << 0 << 1;
    QTest::newRow("the one before the last") << 3 << 2 << 1;
    QTest::newRow("none is left") << 1 << 0 << -1;
}

void tst_ListePastilleFocus::focusApresRetrait()
{
    QFETCH(int, nombre);
    QFETCH(int, retiree);
    QFETCH(int, cible);
    Hote hote(nombre);
    QVERIFY(hote.Montre());
    hote.pastilles[retiree]->setFocus();
    hote.liste->RetirePastille(hote.pastilles[retiree], hote.suite);
    QWidget * const attendu =
        cible < 0 ? static_cast<QWidget *>(hote.suite) : hote.pastilles[cible];
    QCOMPARE(QApplication::focusWidget(), attendu);
}

void tst_ListePastilleFocus::focusVersCelleQuiSort()
{
    Hote hote(6);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    hote.pastilles[1]->setFocus();
    QVERIFY(!hote.liste->WidgetEstVisible(2));
    hote.liste->RetirePastille(hote.pastilles[1], hote.suite);
    QCOMPARE(QApplication::focusWidget(), hote.pastilles[2]); // which has room now
}

void tst_ListePastilleFocus::sansFocusRienNeBouge()
{
    Hote hote(3);
    QVERIFY(hote.Montre());
    hote.suite->setFocus();
    hote.liste->RetirePastille(hote.pastilles[1], nullptr);
    QVERIFY(hote.suite->hasFocus());
    hote.pastilles[0]->setFocus();
    hote.liste->RetirePastille(hote.pastilles[2], hote.suite);
    QVERIFY(hote.pastilles[0]->hasFocus());
}

QTEST_MAIN(tst_ListePastilleFocus)
#include "tst_ListePastilleFocus.moc"
