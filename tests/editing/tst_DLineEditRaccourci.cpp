// tests/editing/tst_DLineEditRaccourci.cpp
#include "editing/DLineEditRaccourci.h"

#include <QtTest>

#include <QClipboard>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The words of the platform's notation in French.
class TraducteurFrancais : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(char const * contexte, char const * source, char const *, int) const override
    {
        if (qstrcmp(contexte, "QShortcut") != 0)
            return {};
        static QHash<QByteArray, QString> const mots = {
            {"Shift", u"Maj"_s}, {"Backspace", u"Effacement"_s}, {"Space", u"Espace"_s}};
        return mots.value(source);
    }
};

void Presse(QWidget & champ, int touche, Qt::KeyboardModifiers modificateurs, QString const & texte,
            bool repetition = false)
{
    QKeyEvent evenement(QEvent::KeyPress, touche, modificateurs, texte, repetition);
    QApplication::sendEvent(&champ, &evenement);
}

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
    void touches_data();
    void touches();
    void touchesIgnorees_data();
    void touchesIgnorees();
    void touchesSimulees_data();
    void touchesSimulees();
    void langueDeLUtilisateur();
    void ordreDesSignaux();
    void memeRaccourci();
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
    void methodeDeSaisie();
};

void tst_DLineEditRaccourci::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLineEditRaccourci::touches_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("raccourci");
    auto ligne = [](char const * nom, int touche, Qt::KeyboardModifiers modificateurs,
                    QString const & texte, QString const & raccourci) {
        QTest::newRow(nom) << touche << modificateurs << texte << raccourci;
    };
    constexpr auto kCtrl = Qt::ControlModifier;
    constexpr auto kAlt = Qt::AltModifier;
    constexpr auto kMaj = Qt::ShiftModifier;
    ligne("a letter", Qt::Key_A, {}, u"a"_s, u"A"_s);
    ligne("Shift and a letter", Qt::Key_A, kMaj, u"A"_s, u"Shift+A"_s);
    ligne("Ctrl", Qt::Key_S, kCtrl, u"\x13"_s, u"Ctrl+S"_s);
    ligne("Alt", Qt::Key_F, kAlt, u"f"_s, u"Alt+F"_s);
    ligne("Ctrl before Shift", Qt::Key_A, kCtrl | kMaj, u"\x01"_s, u"Ctrl+Shift+A"_s);
    ligne("Ctrl, Alt, Shift", Qt::Key_A, kMaj | kAlt | kCtrl, u"a"_s, u"Ctrl+Alt+Shift+A"_s);
    ligne("an accented letter", Qt::Key_Eacute, {}, u"é"_s, u"É"_s);
    ligne("a digit with Shift by its sign", Qt::Key_Exclam, kMaj, u"!"_s, u"Shift+!"_s);
    ligne("plus", Qt::Key_Plus, {}, u"+"_s, u"+"_s);
    ligne("Ctrl and plus", Qt::Key_Plus, kCtrl, u"+"_s, u"Ctrl++"_s);
    ligne("Ctrl, Shift and plus", Qt::Key_Plus, kCtrl | kMaj, u"+"_s, u"Ctrl+Shift++"_s);
    ligne("comma", Qt::Key_Comma, {}, u","_s, u","_s);
    ligne("Ctrl and comma", Qt::Key_Comma, kCtrl, u","_s, u"Ctrl+,"_s);
    ligne("space", Qt::Key_Space, kCtrl, u" "_s, u"Ctrl+Space"_s);
    ligne("Return", Qt::Key_Return, {}, u"\r"_s, u"Return"_s);
    ligne("Backspace", Qt::Key_Backspace, kCtrl, u"\b"_s, u"Ctrl+Backspace"_s);
    ligne("Delete", Qt::Key_Delete, {}, u"\x7f"_s, u"Del"_s);
    ligne("Ctrl and Tab", Qt::Key_Tab, kCtrl, u"\t"_s, u"Ctrl+Tab"_s);
    ligne("F1 without a text", Qt::Key_F1, {}, {}, u"F1"_s);
    ligne("F12 with Shift", Qt::Key_F12, kMaj, {}, u"Shift+F12"_s);
    ligne("F35, the last", Qt::Key_F35, kCtrl, {}, u"Ctrl+F35"_s);
    // Deliberate: neither is named.
    ligne("Meta", Qt::Key_A, Qt::MetaModifier, u"a"_s, u"A"_s);
    ligne("Meta and Ctrl", Qt::Key_A, Qt::MetaModifier | kCtrl, u"\x01"_s, u"Ctrl+A"_s);
    ligne("keypad digit", Qt::Key_5, Qt::KeypadModifier, u"5"_s, u"5"_s);
    ligne("keypad plus", Qt::Key_Plus, Qt::KeypadModifier | kCtrl, u"+"_s, u"Ctrl++"_s);
    ligne("keypad Enter", Qt::Key_Enter, Qt::KeypadModifier, u"\r"_s, u"Enter"_s);
}

void tst_DLineEditRaccourci::touches()
{
    QFETCH(int, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QFETCH(QString, texte);
    QFETCH(QString, raccourci);
    DLineEditRaccourci champ(nullptr);
    champ.setText(u"avant"_s);
    QSignalSpy espion(&champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    Presse(champ, touche, modificateurs, texte);
    QCOMPARE(champ.text(), raccourci);
    QCOMPARE(espion.count(), 1);
    // What is shown means the same to whoever reads it.
    QCOMPARE(QKeySequence(champ.text(), QKeySequence::NativeText).count(), 1);
}

void tst_DLineEditRaccourci::touchesIgnorees_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<QString>("texte");
    auto ligne = [](char const * nom, int touche, Qt::KeyboardModifiers modificateurs,
                    QString const & texte) {
        QTest::newRow(nom) << touche << modificateurs << texte;
    };
    ligne("Alt alone", Qt::Key_Alt, Qt::AltModifier, {});
    ligne("Ctrl alone", Qt::Key_Control, Qt::ControlModifier, {});
    ligne("Shift alone", Qt::Key_Shift, Qt::ShiftModifier, {});
    ligne("Meta alone", Qt::Key_Meta, Qt::MetaModifier, {});
    ligne("AltGr alone", Qt::Key_AltGr, {}, {});
    ligne("Caps Lock", Qt::Key_CapsLock, {}, {});
    ligne("an arrow", Qt::Key_Left, Qt::ControlModifier, {});
    ligne("the key before F1", Qt::Key_F1 - 1, {}, {});
    ligne("the key behind F35", Qt::Key_F35 + 1, {}, {});
    ligne("Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier, {});
    ligne("a dead key", Qt::Key_Dead_Acute, {}, {});
    ligne("a dead key that brings its sign", Qt::Key_Dead_Acute, {}, u"´"_s);
    ligne("a dead key with Ctrl", Qt::Key_Dead_Circumflex, Qt::ControlModifier, u"^"_s);
    ligne("a text without a key", 0, {}, u"é"_s);
    ligne("a text without a key, with Ctrl", 0, Qt::ControlModifier, u"é"_s);
    ligne("an unknown key", Qt::Key_unknown, Qt::ControlModifier, u"x"_s);
}

void tst_DLineEditRaccourci::touchesIgnorees()
{
    QFETCH(int, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QFETCH(QString, texte);
    DLineEditRaccourci champ(nullptr);
    champ.setText(u"Ctrl+S"_s);
    champ.selectAll();
    QSignalSpy espion(&champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    Presse(champ, touche, modificateurs, texte);
    QCOMPARE(champ.text(), u"Ctrl+S"_s);
    QCOMPARE(espion.count(), 0);
}

void tst_DLineEditRaccourci::touchesSimulees_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<QString>("raccourci");
    QTest::newRow("F5") << int(Qt::Key_F5) << Qt::KeyboardModifiers() << u"F5"_s;
    QTest::newRow("Ctrl+Shift+A") << int(Qt::Key_A) << (Qt::ControlModifier | Qt::ShiftModifier)
                                  << u"Ctrl+Shift+A"_s;
    QTest::newRow("Ctrl+Alt+Home is no text")
        << int(Qt::Key_Home) << (Qt::ControlModifier | Qt::AltModifier) << u""_s;
    // These mean something to every line edit.
    QTest::newRow("Ctrl+A") << int(Qt::Key_A) << Qt::KeyboardModifiers(Qt::ControlModifier)
                            << u"Ctrl+A"_s;
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << Qt::KeyboardModifiers(Qt::ControlModifier)
                            << u"Ctrl+V"_s;
    QTest::newRow("Ctrl+Z") << int(Qt::Key_Z) << Qt::KeyboardModifiers(Qt::ControlModifier)
                            << u"Ctrl+Z"_s;
}

void tst_DLineEditRaccourci::touchesSimulees()
{
    QFETCH(int, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QApplication::clipboard()->setText(u"presse-papier"_s);
    DLineEditRaccourci champ(nullptr);
    QTest::keyClick(&champ, static_cast<Qt::Key>(touche), modificateurs);
    QTEST(champ.text(), "raccourci");
    QApplication::clipboard()->clear();
}

void tst_DLineEditRaccourci::langueDeLUtilisateur()
{
    TraducteurFrancais traducteur;
    QCoreApplication::installTranslator(&traducteur);
    {
        DLineEditRaccourci champ(nullptr);
        Presse(champ, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier, u"A"_s);
        QCOMPARE(champ.text(), u"Ctrl+Maj+A"_s);
        Presse(champ, Qt::Key_Backspace, Qt::ShiftModifier, u"\b"_s);
        QCOMPARE(champ.text(), u"Maj+Effacement"_s);
    }
    QCoreApplication::removeTranslator(&traducteur);
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

void tst_DLineEditRaccourci::memeRaccourci()
{
    DLineEditRaccourci champ(nullptr);
    QSignalSpy espion(&champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    Presse(champ, Qt::Key_F2, {}, {});
    Presse(champ, Qt::Key_F2, {}, {});
    QCOMPARE(espion.count(), 2);
    QCOMPARE(champ.text(), u"F2"_s);
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

void tst_DLineEditRaccourci::methodeDeSaisie()
{
    DLineEditRaccourci champ(nullptr);
    champ.setText(u"Ctrl+S"_s);
    QVERIFY(!champ.testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent saisie;
    saisie.setCommitString(u"é"_s);
    QApplication::sendEvent(&champ, &saisie);
    QCOMPARE(champ.text(), u"Ctrl+S"_s);
}

QTEST_MAIN(tst_DLineEditRaccourci)
#include "tst_DLineEditRaccourci.moc"
