// tests/controls/tst_DToolButtonRiche.cpp
#include "controls/DToolButtonRiche.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QTextDocument>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QString NomAccessible(QWidget & widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

} // namespace

class tst_DToolButtonRiche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void textes_data();
    void textes();
    void texteOrdinaire();
    void proprieteTexte();
    void raccourciOublie();
    void actionParDefaut();
    void tailleDuDocument_data();
    void tailleDuDocument();
    void tailleDuTexteOrdinaire();
    void tailleSuivie();
};

void tst_DToolButtonRiche::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToolButtonRiche::textes_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("texteDeLaBase");
    QTest::newRow("mark-up") << u"<b>gras</b> et <i>fin</i>"_s << u"gras et fin"_s
                             << u"gras et fin"_s;
    QTest::newRow("an ampersand is no mnemonic")
        << u"Nom &amp; prénom"_s << u"Nom & prénom"_s << u"Nom && prénom"_s;
    QTest::newRow("a bare ampersand neither") << u"&Nom"_s << u"&Nom"_s << u"&&Nom"_s;
    QTest::newRow("two ampersands stay two") << u"a&amp;&amp;b"_s << u"a&&b"_s << u"a&&&&b"_s;
    QTest::newRow("lines") << u"a<br>b<p>c</p>"_s << u"a\nb\nc"_s << u"a\nb\nc"_s;
    QTest::newRow("pictures are no text") << u"a<img src=\"rien.png\">b"_s << u"ab"_s << u"ab"_s;
    QTest::newRow("empty") << QString() << QString() << QString();
    QTest::newRow("plain") << u"a > b"_s << u"a > b"_s << u"a > b"_s;
}

void tst_DToolButtonRiche::textes()
{
    QFETCH(QString, html);
    QFETCH(QString, texte);
    QFETCH(QString, texteDeLaBase);
    DToolButtonRiche bouton;
    bouton.setHtml(html);
    QCOMPARE(bouton.text(), texte);
    QCOMPARE(static_cast<QAbstractButton &>(bouton).text(), texteDeLaBase);
    QVERIFY(bouton.shortcut().isEmpty());
    QCOMPARE(NomAccessible(bouton), texte);
}

void tst_DToolButtonRiche::texteOrdinaire()
{
    QWidget parent;
    DToolButtonRiche bouton(&parent);
    QCOMPARE(bouton.parentWidget(), &parent);
    QCOMPARE(bouton.text(), QString());
    bouton.setText(u"<b>&Non</b>"_s);
    QCOMPARE(bouton.text(), u"<b>&Non</b>"_s);
    QCOMPARE(bouton.shortcut(), QKeySequence(Qt::ALT | Qt::Key_N));
    bouton.setHtml(u"<b>Oui</b>"_s);
    QCOMPARE(bouton.text(), u"Oui"_s);
    bouton.setText({});
    QCOMPARE(bouton.text(), QString());
    QCOMPARE(NomAccessible(bouton), QString());
}

void tst_DToolButtonRiche::proprieteTexte()
{
    DToolButtonRiche bouton;
    bouton.setHtml(u"<b>a &amp; b</b>"_s);
    QCOMPARE(bouton.property("text").toString(), u"a & b"_s);
    QVERIFY(bouton.setProperty("text", u"<b>"_s));
    QCOMPARE(bouton.text(), u"<b>"_s);
    QVERIFY(bouton.palette().color(QPalette::ButtonText) != QColor(Qt::transparent));
}

void tst_DToolButtonRiche::raccourciOublie()
{
    DToolButtonRiche bouton;
    bouton.setText(u"&Non"_s);
    bouton.setHtml(u"&amp;Non"_s);
    QVERIFY(bouton.shortcut().isEmpty());
}

// Deliberate: the base class takes the action's text, past the HTML.
void tst_DToolButtonRiche::actionParDefaut()
{
    QAction action(u"&Action"_s);
    DToolButtonRiche bouton;
    bouton.setHtml(u"<b>Riche</b>"_s);
    bouton.setDefaultAction(&action);
    QCOMPARE(bouton.text(), u"Riche"_s);
    QCOMPARE(NomAccessible(bouton), u"Action"_s);
    bouton.setText(u"Action"_s);
    QCOMPARE(bouton.text(), u"Action"_s);
}

void tst_DToolButtonRiche::tailleDuDocument_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("empty") << QString();
    QTest::newRow("word") << u"<b>gras</b>"_s;
    QTest::newRow("lines") << u"a<br>b<br>c"_s;
    QTest::newRow("picture") << u"<img src=\"rien.png\" width=40 height=70>"_s;
    QTest::newRow("fractions") << u"<span style=\"font-size:13.3px\">fraction</span>"_s;
    QTest::newRow("very long") << u"mot "_s.repeated(2000);
}

void tst_DToolButtonRiche::tailleDuDocument()
{
    QFETCH(QString, html);
    DToolButtonRiche bouton;
    QFont police = bouton.font();
    police.setPixelSize(21);
    bouton.setFont(police);
    bouton.setHtml(html);
    QTextDocument document;
    document.setDefaultFont(police);
    document.setHtml(html);

    QSize const attendue = document.size().toSize();
    QCOMPARE(bouton.sizeHint(), attendue);
    QCOMPARE(bouton.minimumSizeHint(), attendue);
}

void tst_DToolButtonRiche::tailleDuTexteOrdinaire()
{
    QToolButton ordinaire;
    ordinaire.setText(u"abc"_s);
    DToolButtonRiche bouton;
    bouton.setHtml(u"<h1>abc</h1>"_s);
    bouton.setText(u"abc"_s);
    QCOMPARE(bouton.sizeHint(), ordinaire.sizeHint());
}

void tst_DToolButtonRiche::tailleSuivie()
{
    QWidget fenetre;
    auto * const disposition = new QHBoxLayout(&fenetre);
    auto * const bouton = new DToolButtonRiche(&fenetre);
    disposition->addWidget(bouton);
    fenetre.setAttribute(Qt::WA_DontShowOnScreen);
    bouton->setHtml(u"abc"_s);
    fenetre.show();
    QCOMPARE(bouton->size(), bouton->sizeHint());
    int const hauteur = bouton->height();
    bouton->setHtml(u"<span style=\"font-size:60px\">abc</span>"_s); // the same plain text
    QTRY_VERIFY(bouton->height() > hauteur);
    QCOMPARE(bouton->size(), bouton->sizeHint());
    bouton->setText(u"abc"_s);
    QTRY_COMPARE(bouton->size(), bouton->sizeHint());
    QFont police = bouton->font();
    police.setPixelSize(50);
    bouton->setHtml(u"abc"_s);
    bouton->setFont(police);
    QTRY_VERIFY(bouton->height() >= 50);
}

QTEST_MAIN(tst_DToolButtonRiche)
#include "tst_DToolButtonRiche.moc"
