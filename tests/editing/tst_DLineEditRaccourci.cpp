// tests/editing/tst_DLineEditRaccourci.cpp
#include "editing/DLineEditRaccourci.h"

#include "editing/EssaisRaccourci.h"

#include <QtTest>

using namespace EssaisRaccourci;
using namespace Qt::StringLiterals;

namespace {

// What the field of a modal dialog takes of a held key and of the next one.
QString EcrisDansUnDialogue()
{
    QDialog dialogue;
    auto * const autre = new QLineEdit(&dialogue);
    QTimer::singleShot(0, &dialogue, [&dialogue, autre] {
        Presse(*autre, Qt::Key_A, {}, u"a"_s, true);
        for (bool const repetition : {false, true, true})
            Presse(*autre, Qt::Key_B, {}, u"b"_s, repetition);
        dialogue.accept();
    });
    dialogue.exec();
    return autre->text();
}

} // namespace

class tst_DLineEditRaccourci : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ordreDesSignaux();
    void echappement();
    void echappementSansParent();
    void signauxDuFocus();
    void raccourciDeLaFenetre_data();
    void raccourciDeLaFenetre();
    void toucheMaintenue();
    void toucheMaintenueDansUnDialogue();
    void touchesSansInstant();
    void champDetruitParUnReceveur();
    void champDetruitPlusTard();
    void dialogueResteOuvert();
    void tabulationQuitteLeChamp();
    void sourisSansEffet();
};

void tst_DLineEditRaccourci::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLineEditRaccourci::ordreDesSignaux()
{
    QWidget fenetre;
    auto * champ = new DLineEditRaccourci(&fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());

    QStringList journal;
    connect(champ, &QLineEdit::textChanged, this, [&] { journal += u"texte"_s; });
    connect(champ, &DLineEditRaccourci::SignalFocusOut, this, [&] { journal += u"sortie"_s; });
    connect(champ, &DLineEditRaccourci::SignalRaccourciEnregistray, this,
            [&] { journal += champ->hasFocus() ? u"focus"_s : champ->text(); });
    QTest::keyClick(fenetre.windowHandle(), Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(journal, QStringList({u"texte"_s, u"sortie"_s, u"Ctrl+B"_s}));
    QVERIFY(!champ->hasFocus());
}

void tst_DLineEditRaccourci::echappement()
{
    QWidget fenetre;
    auto * champ = new DLineEditRaccourci(&fenetre);
    champ->setText(u"Ctrl+S"_s);
    QSignalSpy espion(champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());
    QTest::keyClick(fenetre.windowHandle(), Qt::Key_Escape);
    QVERIFY(fenetre.hasFocus());
    QCOMPARE(champ->text(), u"Ctrl+S"_s);
    QCOMPARE(espion.count(), 0);
}

void tst_DLineEditRaccourci::echappementSansParent()
{
    DLineEditRaccourci champ(nullptr);
    champ.setText(u"Ctrl+S"_s);
    QSignalSpy espion(&champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    Presse(champ, Qt::Key_Escape, {}, u"\x1b"_s);
    Presse(champ, Qt::Key_Escape, Qt::ControlModifier, u"\x1b"_s);
    QCOMPARE(champ.text(), u"Ctrl+S"_s);
    QCOMPARE(espion.count(), 0);
}

void tst_DLineEditRaccourci::signauxDuFocus()
{
    DLineEditRaccourci champ(nullptr);
    QSignalSpy entree(&champ, &DLineEditRaccourci::SignalFocusIn);
    QSignalSpy sortie(&champ, &DLineEditRaccourci::SignalFocusOut);
    for (QEvent::Type const type : {QEvent::FocusIn, QEvent::FocusOut}) {
        QFocusEvent evenement(type);
        QVERIFY(!champ.eventFilter(&champ, &evenement));
    }
    QCOMPARE(entree.count(), 1);
    QCOMPARE(sortie.count(), 1);

    QFocusEvent evenement(QEvent::FocusIn);
    QApplication::sendEvent(&champ, &evenement);
    QCOMPARE(entree.count(), 2);
    // The focus of others is not this field's.
    QWidget autre;
    QVERIFY(!champ.eventFilter(&autre, &evenement));
    QCOMPARE(entree.count(), 2);
    QCOMPARE(sortie.count(), 1);
}

void tst_DLineEditRaccourci::raccourciDeLaFenetre_data()
{
    QTest::addColumn<QKeySequence>("raccourci");
    QTest::newRow("Ctrl+S") << QKeySequence(Qt::CTRL | Qt::Key_S);
    QTest::newRow("F5") << QKeySequence(Qt::Key_F5);
    QTest::newRow("Alt+F") << QKeySequence(Qt::ALT | Qt::Key_F);
    QTest::newRow("a letter") << QKeySequence(Qt::Key_K);
}

void tst_DLineEditRaccourci::raccourciDeLaFenetre()
{
    QFETCH(QKeySequence, raccourci);
    QWidget fenetre;
    auto * champ = new DLineEditRaccourci(&fenetre);
    QAction action;
    action.setShortcut(raccourci);
    fenetre.addAction(&action);
    QSignalSpy espion(&action, &QAction::triggered);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());
    auto const touche = raccourci[0];
    QTest::keyClick(fenetre.windowHandle(), touche.key(), touche.keyboardModifiers());
    QCOMPARE(espion.count(), 0);
    QCOMPARE(champ->text(), raccourci.toString(QKeySequence::NativeText));

    // Once it is recorded, the shortcut works again.
    QVERIFY(!champ->hasFocus());
    QTest::keyClick(fenetre.windowHandle(), touche.key(), touche.keyboardModifiers());
    QCOMPARE(espion.count(), 1);
}

void tst_DLineEditRaccourci::toucheMaintenue()
{
    DLineEditRaccourci champ(nullptr);
    QLineEdit autre;
    QSignalSpy espion(&champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    // A key that was down before the field got the focus.
    Presse(champ, Qt::Key_A, Qt::AltModifier, u"a"_s, true);
    QVERIFY(champ.text().isEmpty());

    Presse(champ, Qt::Key_A, {}, u"a"_s);
    Presse(champ, Qt::Key_A, {}, u"a"_s, true);
    Presse(champ, Qt::Key_F1, {}, {}, true);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(champ.text(), u"A"_s);

    // Whoever has the focus next goes on with them.
    Presse(autre, Qt::Key_A, {}, u"a"_s, true);
    QCOMPARE(autre.text(), u"a"_s);
}

void tst_DLineEditRaccourci::toucheMaintenueDansUnDialogue()
{
    QWidget fenetre;
    auto * champ = new DLineEditRaccourci(&fenetre);
    QString texte;
    connect(champ, &DLineEditRaccourci::SignalRaccourciEnregistray, this,
            [&texte] { texte = EcrisDansUnDialogue(); });
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());
    Presse(*champ, Qt::Key_A, Qt::ControlModifier, u"\x01"_s);
    QCOMPARE(texte, u"abbb"_s);
    QCOMPARE(champ->text(), u"Ctrl+A"_s);
}

// The keys of some platforms and of all programs have no time.
void tst_DLineEditRaccourci::touchesSansInstant()
{
    DLineEditRaccourci champ(nullptr);
    QLineEdit autre;
    Presse(champ, Qt::Key_A, {}, u"a"_s);
    for (QEvent::Type const type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent evenement(type, Qt::Key_B, {}, 56, 0, 0, u"b"_s);
        evenement.setTimestamp(0);
        QApplication::sendEvent(&autre, &evenement);
    }
    QCOMPARE(autre.text(), u"bb"_s);
}

void tst_DLineEditRaccourci::champDetruitParUnReceveur()
{
    QWidget fenetre;
    QPointer<DLineEditRaccourci> const champ = new DLineEditRaccourci(&fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());
    connect(champ, &DLineEditRaccourci::SignalFocusOut, this, [&champ] { delete champ.data(); });
    Presse(*champ, Qt::Key_Escape, {}, {});
    QVERIFY(!champ);
    QVERIFY(fenetre.hasFocus());
}

void tst_DLineEditRaccourci::champDetruitPlusTard()
{
    QWidget fenetre;
    QPointer<DLineEditRaccourci> const champ = new DLineEditRaccourci(&fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());
    QSignalSpy espion(champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    // Qt does not survive more: clearing the focus ends with an accessible event of the field.
    connect(champ, &DLineEditRaccourci::SignalFocusOut, champ, &QObject::deleteLater);
    Presse(*champ, Qt::Key_F2, {}, {});
    QCOMPARE(espion.count(), 1);
    QTRY_VERIFY(!champ);
}

void tst_DLineEditRaccourci::dialogueResteOuvert()
{
    QDialog dialogue;
    auto * champ = new DLineEditRaccourci(&dialogue);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());
    QTest::keyClick(dialogue.windowHandle(), Qt::Key_Escape);
    QVERIFY(dialogue.isVisible());
    champ->setFocus();
    QTest::keyClick(dialogue.windowHandle(), Qt::Key_Return);
    QVERIFY(dialogue.isVisible());
    QCOMPARE(dialogue.result(), 0);
}

void tst_DLineEditRaccourci::tabulationQuitteLeChamp()
{
    QWidget fenetre;
    auto * champ = new DLineEditRaccourci(&fenetre);
    auto * autre = new QLineEdit(&fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    for (bool const enArriere : {false, true}) {
        champ->setFocus();
        QTRY_VERIFY(champ->hasFocus());
        QTest::keyClick(fenetre.windowHandle(), enArriere ? Qt::Key_Backtab : Qt::Key_Tab,
                        enArriere ? Qt::ShiftModifier : Qt::NoModifier);
        QVERIFY(autre->hasFocus());
        QVERIFY(champ->text().isEmpty());
    }
}

void tst_DLineEditRaccourci::sourisSansEffet()
{
    DLineEditRaccourci champ(nullptr);
    champ.resize(200, 30);
    champ.setText(u"Ctrl+S"_s);
    int const curseur = champ.cursorPosition();
    QPoint const debut(4, 15);
    QTest::mouseClick(&champ, Qt::LeftButton, {}, debut);
    QCOMPARE(champ.cursorPosition(), curseur);
    QTest::mouseDClick(&champ, Qt::LeftButton, {}, debut);
    QVERIFY(!champ.hasSelectedText());
    QTest::mousePress(&champ, Qt::LeftButton, {}, QPoint(60, 15));
    QMouseEvent deplacement(QEvent::MouseMove, debut, champ.mapToGlobal(debut), Qt::NoButton,
                            Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&champ, &deplacement);
    QTest::mouseRelease(&champ, Qt::LeftButton, {}, debut);
    QVERIFY(!champ.hasSelectedText());
    QCOMPARE(champ.cursorPosition(), curseur);
    QTest::mouseClick(&champ, Qt::MiddleButton, {}, debut);
    QCOMPARE(champ.text(), u"Ctrl+S"_s);
    QVERIFY(!champ.acceptDrops());
}

QTEST_MAIN(tst_DLineEditRaccourci)
#include "tst_DLineEditRaccourci.moc"
