// tests/editing/tst_DLineEditSansColler.cpp
#include "editing/DLineEditSansColler.h"

#include <QtTest>

#include <QClipboard>
#include <QMenu>

#include <memory>

using namespace Qt::StringLiterals;

class tst_DLineEditSansColler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void touchesDeCollage_data();
    void touchesDeCollage();
    void touchesOrdinaires_data();
    void touchesOrdinaires();
    void evenementAcceptay();
    void appelDuSlot();
    void proprietaireQuiInsere();
    void proprietaireQuiDetruit();
    void menuContextuel();
    void lectureSeule();
    void raccourciDeLaFenetre();
    void focusSelectionneTout();
    void restePlusBas();
};

void tst_DLineEditSansColler::init()
{
    QApplication::clipboard()->setText(u"presse-papier"_s);
}

void tst_DLineEditSansColler::cleanup()
{
    QApplication::clipboard()->clear();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLineEditSansColler::touchesDeCollage_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<int>("modificateurs");
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << int(Qt::ControlModifier);
    QTest::newRow("Ctrl+Shift+V") << int(Qt::Key_V) << int(Qt::ControlModifier | Qt::ShiftModifier);
    QTest::newRow("Ctrl+V with the bit of the keypad")
        << int(Qt::Key_V) << int(Qt::ControlModifier | Qt::KeypadModifier);
    for (QKeySequence const & touches : QKeySequence::keyBindings(QKeySequence::Paste))
        QTest::newRow(qPrintable(u"the platform's "_s + touches.toString()))
            << int(touches[0].key()) << int(touches[0].keyboardModifiers());
}

void tst_DLineEditSansColler::touchesDeCollage()
{
    QFETCH(int, touche);
    QFETCH(int, modificateurs);
    DLineEditSansColler champ(nullptr);
    champ.setText(u"avant"_s);
    QSignalSpy espion(&champ, &DLineEditSansColler::SignalColler);
    QSignalSpy espionTexte(&champ, &QLineEdit::textChanged);
    QTest::keyClick(&champ, static_cast<Qt::Key>(touche),
                    Qt::KeyboardModifiers::fromInt(modificateurs));
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).value<DLineEditSansColler *>(), &champ);
    QCOMPARE(espionTexte.count(), 0);
    QCOMPARE(champ.text(), u"avant"_s);
}

void tst_DLineEditSansColler::touchesOrdinaires_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<int>("modificateurs");
    QTest::addColumn<QString>("texte");
    QTest::newRow("v") << int(Qt::Key_V) << int(Qt::NoModifier) << u"avantv"_s;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << int(Qt::NoModifier) << u"avan"_s;
    QTest::newRow("Ctrl+Z after a paste that was none")
        << int(Qt::Key_Z) << int(Qt::ControlModifier) << u"avant"_s;
}

void tst_DLineEditSansColler::touchesOrdinaires()
{
    QFETCH(int, touche);
    QFETCH(int, modificateurs);
    DLineEditSansColler champ(nullptr);
    champ.setText(u"avant"_s);
    QSignalSpy espion(&champ, &DLineEditSansColler::SignalColler);
    QTest::keyClick(&champ, static_cast<Qt::Key>(touche),
                    Qt::KeyboardModifiers::fromInt(modificateurs));
    QCOMPARE(espion.count(), 0);
    QTEST(champ.text(), "texte");
}

void tst_DLineEditSansColler::evenementAcceptay()
{
    DLineEditSansColler champ(nullptr);
    QKeyEvent presse(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier, u"\x16"_s);
    presse.ignore();
    QVERIFY(QApplication::sendEvent(&champ, &presse));
    QVERIFY(presse.isAccepted());
    QVERIFY(champ.text().isEmpty());

    // Only the press asks.
    QSignalSpy espion(&champ, &DLineEditSansColler::SignalColler);
    QKeyEvent relache(QEvent::KeyRelease, Qt::Key_V, Qt::ControlModifier);
    QApplication::sendEvent(&champ, &relache);
    QCOMPARE(espion.count(), 0);
}

void tst_DLineEditSansColler::appelDuSlot()
{
    DLineEditSansColler champ(nullptr);
    QSignalSpy espion(&champ, &DLineEditSansColler::SignalColler);
    champ.paste();
    QVERIFY(QMetaObject::invokeMethod(&champ, "paste"));
    QCOMPARE(espion.count(), 2);
    QVERIFY(champ.text().isEmpty());
    // Deliberate: the slot hides that of the base and cannot override it.
    static_cast<QLineEdit &>(champ).paste();
    QCOMPARE(espion.count(), 2);
    QCOMPARE(champ.text(), u"presse-papier"_s);
}

void tst_DLineEditSansColler::proprietaireQuiInsere()
{
    DLineEditSansColler champ(nullptr);
    champ.setText(u"ab"_s);
    champ.setCursorPosition(1);
    connect(&champ, &DLineEditSansColler::SignalColler, this,
            [](DLineEditSansColler * emetteur) { emetteur->insert(u"-"_s); });
    QTest::keyClick(&champ, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(champ.text(), u"a-b"_s);
}

void tst_DLineEditSansColler::proprietaireQuiDetruit()
{
    QPointer<DLineEditSansColler> const champ = new DLineEditSansColler(nullptr);
    connect(champ, &DLineEditSansColler::SignalColler, champ, &QObject::deleteLater);
    QTest::keyClick(champ, Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!champ);
}

void tst_DLineEditSansColler::menuContextuel()
{
    DLineEditSansColler champ(nullptr);
    QSignalSpy espion(&champ, &DLineEditSansColler::SignalColler);
    std::unique_ptr<QMenu> const menu(champ.createStandardContextMenu());
    // Every action that would change the empty field; what it is called depends on the language.
    for (QAction * action : menu->actions())
        if (action->isEnabled())
            action->trigger();
    QCOMPARE(espion.count(), 1);
    QVERIFY(champ.text().isEmpty());
}

void tst_DLineEditSansColler::lectureSeule()
{
    DLineEditSansColler champ(nullptr);
    champ.setReadOnly(true);
    QSignalSpy espion(&champ, &DLineEditSansColler::SignalColler);
    QTest::keyClick(&champ, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(espion.count(), 1); // the owner decides
}

void tst_DLineEditSansColler::raccourciDeLaFenetre()
{
    QWidget fenetre;
    auto * champ = new DLineEditSansColler(&fenetre);
    QAction action;
    action.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_V));
    fenetre.addAction(&action);
    QSignalSpy espionAction(&action, &QAction::triggered);
    QSignalSpy espion(champ, &DLineEditSansColler::SignalColler);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTest::keyClick(fenetre.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espionAction.count(), 0);
}

void tst_DLineEditSansColler::focusSelectionneTout()
{
    DLineEditSansColler champ(nullptr);
    champ.setText(u"abc"_s);
    champ.setCursorPosition(1);
    for (Qt::FocusReason const raison :
         {Qt::OtherFocusReason, Qt::MouseFocusReason, Qt::TabFocusReason}) {
        champ.deselect();
        QFocusEvent evenement(QEvent::FocusIn, raison);
        QApplication::sendEvent(&champ, &evenement);
        QCOMPARE(champ.selectedText(), u"abc"_s);
    }
    // Going out selects nothing.
    champ.deselect();
    QFocusEvent sortie(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(&champ, &sortie);
    QVERIFY(!champ.hasSelectedText());
}

// What the base class does with the rest of the events stays.
void tst_DLineEditSansColler::restePlusBas()
{
    DLineEditSansColler champ(nullptr);
    champ.setText(u"abc"_s);
    QTest::keyClick(&champ, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&champ, Qt::Key_X, Qt::ControlModifier);
    QVERIFY(champ.text().isEmpty());
    QCOMPARE(QApplication::clipboard()->text(), u"abc"_s);
    QTest::keyClicks(&champ, u"xyz"_s);
    QCOMPARE(champ.text(), u"xyz"_s);
}

QTEST_MAIN(tst_DLineEditSansColler)
#include "tst_DLineEditSansColler.moc"
