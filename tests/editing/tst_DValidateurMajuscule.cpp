// tests/editing/tst_DValidateurMajuscule.cpp
#include "editing/DValidateurMajuscule.h"

#include <QtTest>

#include <QLineEdit>
#include <QLocale>

using namespace Qt::StringLiterals;

class tst_DValidateurMajuscule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void verdict_data();
    void verdict();
    void position_data();
    void position();
    void expressionCopiee();
    void parent();
    void champVivant();
    void champQuiRefuse();
    void curseurAuMilieu();
    void texteQuiGrandit();
    void longueurMaximale();
    void langueTurque();
};

void tst_DValidateurMajuscule::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DValidateurMajuscule::verdict_data()
{
    QTest::addColumn<QString>("motif");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("majuscules");
    QTest::addColumn<int>("etat");
    auto ligne = [](char const * nom, QString const & motif, QString const & texte,
                    QString const & majuscules, QValidator::State etat) {
        QTest::newRow(nom) << motif << texte << majuscules << int(etat);
    };
    ligne("acceptable", u"[A-Z]{2}"_s, u"ab"_s, u"AB"_s, QValidator::Acceptable);
    ligne("capitals already", u"[A-Z]{2}"_s, u"AB"_s, u"AB"_s, QValidator::Acceptable);
    ligne("intermediate", u"[A-Z]{2}"_s, u"a"_s, u"A"_s, QValidator::Intermediate);
    ligne("empty", u"[A-Z]{2}"_s, u""_s, u""_s, QValidator::Intermediate);
    ligne("null", u"[A-Z]{2}"_s, QString(), QString(), QValidator::Intermediate);
    ligne("invalid changes too", u"[A-Z]{2}"_s, u"a1"_s, u"A1"_s, QValidator::Invalid);
    ligne("an expression for small letters", u"[a-z]+"_s, u"ab"_s, u"AB"_s, QValidator::Invalid);
    ligne("no expression", QString(), u"ab"_s, u"AB"_s, QValidator::Acceptable);
    ligne("accents", u".*"_s, u"éàÿœ"_s, u"ÉÀŸŒ"_s, QValidator::Acceptable);
    ligne("a letter that becomes two", u".*"_s, u"straße"_s, u"STRASSE"_s, QValidator::Acceptable);
    ligne("dotless", u".*"_s, u"ıi"_s, u"II"_s, QValidator::Acceptable);
    ligne("both sigmas", u".*"_s, u"σς"_s, u"ΣΣ"_s, QValidator::Acceptable);
    ligne("surrogates with a capital", u".*"_s, u"\U00010428"_s, u"\U00010400"_s,
          QValidator::Acceptable);
    ligne("surrogates without", u".*"_s, u"a😀"_s, u"A😀"_s, QValidator::Acceptable);
    ligne("half a surrogate", u".*"_s, QString(QChar(0xd801)), QString(QChar(0xd801)),
          QValidator::Invalid);
}

void tst_DValidateurMajuscule::verdict()
{
    QFETCH(QString, motif);
    QFETCH(QString, texte);
    QRegularExpression expression(motif);
    DValidateurMajuscule const validateur(expression);
    int position = 0;
    QValidator::State const etat = validateur.validate(texte, position);
    QTEST(texte, "majuscules");
    QTEST(int(etat), "etat");
}

void tst_DValidateurMajuscule::position_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("attendue");
    QTest::newRow("unchanged") << u"abc"_s << 2 << 2;
    QTest::newRow("before what grows") << u"aßc"_s << 1 << 1;
    QTest::newRow("behind what grows") << u"aßc"_s << 2 << 3;
    QTest::newRow("at the end") << u"aßc"_s << 3 << 4;
    QTest::newRow("in front") << u"ßc"_s << 0 << 0;
    QTest::newRow("behind surrogates") << u"\U00010428ß"_s << 3 << 4;
    QTest::newRow("past the end of a text that grows") << u"ß"_s << 9 << 2;
    QTest::newRow("before the front of a text that grows") << u"ß"_s << -1 << -1;
    QTest::newRow("invalid goes to the end") << u"ß?"_s << 0 << 3;
}

void tst_DValidateurMajuscule::position()
{
    QFETCH(QString, texte);
    QFETCH(int, position);
    QRegularExpression expression(u"[^?]*"_s);
    DValidateurMajuscule const validateur(expression);
    validateur.validate(texte, position);
    QTEST(position, "attendue");
}

void tst_DValidateurMajuscule::expressionCopiee()
{
    QRegularExpression expression(u"A+"_s);
    DValidateurMajuscule const validateur(expression);
    expression.setPattern(u"B+"_s);
    QString texte = u"a"_s;
    int position = 1;
    QCOMPARE(validateur.validate(texte, position), QValidator::Acceptable);
    QCOMPARE(validateur.regularExpression().pattern(), u"A+"_s);
}

void tst_DValidateurMajuscule::parent()
{
    QRegularExpression expression;
    QObject parent;
    QPointer<DValidateurMajuscule> const validateur = new DValidateurMajuscule(expression, &parent);
    QCOMPARE(validateur->parent(), &parent);
    DValidateurMajuscule const sansParent(expression);
    QVERIFY(!sansParent.parent());
}

void tst_DValidateurMajuscule::champVivant()
{
    QRegularExpression expression(u"[A-Z]{2}[0-9]{2}"_s);
    DValidateurMajuscule const validateur(expression);
    QLineEdit champ;
    champ.setValidator(&validateur);
    QSignalSpy espion(&champ, &QLineEdit::textEdited);
    QTest::keyClicks(&champ, u"a"_s);
    QCOMPARE(champ.text(), u"A"_s);
    QVERIFY(!champ.hasAcceptableInput());
    QTest::keyClicks(&champ, u"bc12"_s); // no third letter
    QCOMPARE(champ.text(), u"AB12"_s);
    QVERIFY(champ.hasAcceptableInput());
    QCOMPARE(espion.last().at(0).toString(), u"AB12"_s);
}

void tst_DValidateurMajuscule::champQuiRefuse()
{
    QRegularExpression expression(u"[A-Z]*"_s);
    DValidateurMajuscule const validateur(expression);
    QLineEdit champ;
    champ.setValidator(&validateur);
    QTest::keyClicks(&champ, u"ab"_s);
    QSignalSpy espion(&champ, &QLineEdit::inputRejected);
    QTest::keyClicks(&champ, u"1"_s);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(champ.text(), u"AB"_s);
    champ.insert(u"cd"_s);
    QCOMPARE(champ.text(), u"ABCD"_s);
}

void tst_DValidateurMajuscule::curseurAuMilieu()
{
    QRegularExpression expression(u".*"_s);
    DValidateurMajuscule const validateur(expression);
    QLineEdit champ;
    champ.setValidator(&validateur);
    champ.setText(u"AB"_s);
    champ.setCursorPosition(1);
    QTest::keyClicks(&champ, u"xy"_s);
    QCOMPARE(champ.text(), u"AXYB"_s);
    QCOMPARE(champ.cursorPosition(), 3);
}

void tst_DValidateurMajuscule::texteQuiGrandit()
{
    QRegularExpression expression(u".*"_s);
    DValidateurMajuscule const validateur(expression);
    QLineEdit champ;
    champ.setValidator(&validateur);
    champ.setText(u"AB"_s);
    champ.setCursorPosition(1);
    QTest::keyClicks(&champ, u"ßc"_s);
    QCOMPARE(champ.text(), u"ASSCB"_s);
    QCOMPARE(champ.cursorPosition(), 4);
}

void tst_DValidateurMajuscule::longueurMaximale()
{
    QRegularExpression expression(u".*"_s);
    DValidateurMajuscule const validateur(expression);
    QLineEdit champ;
    champ.setValidator(&validateur);
    champ.setMaxLength(2);
    QTest::keyClicks(&champ, u"aß"_s);
    QCOMPARE(champ.text(), u"AS"_s);
    QCOMPARE(champ.cursorPosition(), 2);
}

void tst_DValidateurMajuscule::langueTurque()
{
    QLocale const avant;
    QLocale::setDefault(QLocale(QLocale::Turkish));
    QRegularExpression expression;
    DValidateurMajuscule const validateur(expression);
    QString texte = u"iı"_s;
    int position = 0;
    validateur.validate(texte, position);
    QLocale::setDefault(avant);
    QCOMPARE(texte, u"II"_s);
}

QTEST_MAIN(tst_DValidateurMajuscule)
#include "tst_DValidateurMajuscule.moc"
