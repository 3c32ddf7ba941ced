#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QWindow>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// Whose keys drive the list, and that it keeps neither the focus nor the activation.

class tst_ListeChoixFlottanteFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void autreWidget();
    void filtreDuHote();
    void sansFocus();
    void activationRendue();
    void frappeDansLaListe();
};

namespace {

class Activations : public QObject
{
public:
    int nombre = 0;

protected:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        nombre += evenement->type() == QEvent::WindowActivate;
        return false;
    }
};

} // namespace

void tst_ListeChoixFlottanteFocus::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteFocus::autreWidget()
{
    Hote hote;
    ChampTemoin autre(&hote.fenetre);
    autre.show();
    hote.liste->MetsWidgetLiay(&autre);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::keyClick(&autre, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), -1);
    QCOMPARE(autre.touches, QList<int>{Qt::Key_Down});
    // Deliberate: the filters are the host's affair from then on, the former one as well.
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 0);
}

void tst_ListeChoixFlottanteFocus::filtreDuHote()
{
    Hote hote;
    ChampTemoin autre(&hote.fenetre);
    autre.show();
    hote.liste->MetsWidgetLiay(&autre);
    autre.installEventFilter(hote.liste);
    hote.champ->removeEventFilter(hote.liste);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::keyClick(&autre, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 0);
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 0);
    autre.hide();
    QVERIFY(hote.liste->isHidden());
}

void tst_ListeChoixFlottanteFocus::sansFocus()
{
    // A view takes the focus at its arrow keys when no widget has it.
    Hote hote;
    QVERIFY(QTest::qWaitForWindowActive(&hote.fenetre));
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTRY_VERIFY(hote.fenetre.isActiveWindow());
    if (QWidget * const focus = QApplication::focusWidget())
        focus->clearFocus();
    QVERIFY(!QApplication::focusWidget());
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 1);
    QVERIFY(!QApplication::focusWidget());
    QVERIFY(!hote.liste->focusWidget());
}

void tst_ListeChoixFlottanteFocus::activationRendue()
{
    Hote hote;
    Activations activations;
    hote.liste->installEventFilter(&activations);
    hote.champ->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&hote.fenetre));
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(QTest::qWaitForWindowExposed(hote.liste));
    QCoreApplication::processEvents();
    QTRY_VERIFY(hote.fenetre.isActiveWindow());
    int const avant = activations.nombre; // some platforms activate whatever is shown
    QVERIFY(avant <= 1);
    for (int i = 1; i <= 3; ++i) {
        // As a system that activates the list whatever it was told.
        hote.liste->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, false);
        hote.liste->activateWindow();
        QTRY_COMPARE(activations.nombre, avant + i); // once each time: nobody fights for it
        QTRY_VERIFY(hote.fenetre.isActiveWindow());
        QTRY_COMPARE(QApplication::focusWidget(), hote.champ);
        QVERIFY(hote.liste->isVisible());
    }
}

void tst_ListeChoixFlottanteFocus::frappeDansLaListe()
{
    // What a system sends to a list that it activated against its will.
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::keyClicks(hote.liste, u"abc"_s);
    QCOMPARE(hote.champ->text(), u"abc"_s);
    QTest::keyClick(hote.liste, Qt::Key_F6); // which the field leaves to its window
    QCOMPARE(hote.fenetre.touches, QList<int>{Qt::Key_F6});
    QCOMPARE(hote.champ->relachements, QList<int>({Qt::Key_A, Qt::Key_B, Qt::Key_C, Qt::Key_F6}));
    QTest::keyClick(hote.liste, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 0);
    QTest::keyClick(hote.liste, Qt::Key_Enter);
    QCOMPARE(choix.count(), 1);
    QTest::keyClick(hote.liste, Qt::Key_Escape);
    QVERIFY(hote.liste->isHidden());
    // Without a widget the keys end in the list.
    hote.liste->MetsWidgetLiay(nullptr);
    hote.liste->AfficheToi();
    QTest::keyClick(hote.liste, Qt::Key_A);
    QCOMPARE(hote.champ->text(), u"abc"_s);
}

QTEST_MAIN(tst_ListeChoixFlottanteFocus)
#include "tst_ListeChoixFlottanteFocus.moc"
