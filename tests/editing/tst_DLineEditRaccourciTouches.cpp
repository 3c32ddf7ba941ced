// tests/editing/tst_DLineEditRaccourciTouches.cpp
#include "editing/DLineEditRaccourci.h"

#include "editing/EssaisRaccourci.h"

#include <QtTest>

#include <QClipboard>
#include <QTranslator>

using namespace EssaisRaccourci;
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

} // namespace

class tst_DLineEditRaccourciTouches : public QObject
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
    void memeRaccourci();
    void methodeDeSaisie();
};

void tst_DLineEditRaccourciTouches::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLineEditRaccourciTouches::touches_data()
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

void tst_DLineEditRaccourciTouches::touches()
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

void tst_DLineEditRaccourciTouches::touchesIgnorees_data()
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

void tst_DLineEditRaccourciTouches::touchesIgnorees()
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

void tst_DLineEditRaccourciTouches::touchesSimulees_data()
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

void tst_DLineEditRaccourciTouches::touchesSimulees()
{
    QFETCH(int, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QApplication::clipboard()->setText(u"presse-papier"_s);
    DLineEditRaccourci champ(nullptr);
    QTest::keyClick(&champ, static_cast<Qt::Key>(touche), modificateurs);
    QTEST(champ.text(), "raccourci");
    QApplication::clipboard()->clear();
}

void tst_DLineEditRaccourciTouches::langueDeLUtilisateur()
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

void tst_DLineEditRaccourciTouches::memeRaccourci()
{
    DLineEditRaccourci champ(nullptr);
    QSignalSpy espion(&champ, &DLineEditRaccourci::SignalRaccourciEnregistray);
    Presse(champ, Qt::Key_F2, {}, {});
    Presse(champ, Qt::Key_F2, {}, {});
    QCOMPARE(espion.count(), 2);
    QCOMPARE(champ.text(), u"F2"_s);
}

void tst_DLineEditRaccourciTouches::methodeDeSaisie()
{
    DLineEditRaccourci champ(nullptr);
    champ.setText(u"Ctrl+S"_s);
    QVERIFY(!champ.testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent saisie;
    saisie.setCommitString(u"é"_s);
    QApplication::sendEvent(&champ, &saisie);
    QCOMPARE(champ.text(), u"Ctrl+S"_s);
}

QTEST_MAIN(tst_DLineEditRaccourciTouches)
#include "tst_DLineEditRaccourciTouches.moc"
