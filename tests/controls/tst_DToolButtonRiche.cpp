// tests/controls/tst_DToolButtonRiche.cpp
#include "controls/DToolButtonRiche.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QTextDocument>
#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QPalette::ColorGroup kGroupes[] = {QPalette::Active, QPalette::Disabled,
                                             QPalette::Inactive};

bool TexteTransparent(QWidget const & widget)
{
    return std::all_of(std::begin(kGroupes), std::end(kGroupes), [&](auto groupe) {
        return widget.palette().brush(groupe, QPalette::ButtonText) == QBrush(Qt::transparent);
    });
}

QPalette AvecTexte(QColor const & couleur)
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, couleur);
    return palette;
}

QColor CouleurTexte(QWidget const & widget)
{
    return widget.palette().color(QPalette::ButtonText);
}

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
    void tailleDuDocument_data();
    void tailleDuDocument();
    void tailleDuTexteOrdinaire();
    void tailleSuivie();
    void pinceauPropreRendu();
    void pinceauHeritayRendu();
    void deuxFois();
    void paletteChangeeEntreTemps();
    void paletteCopieeEntreTemps();
    void autresRolesGardes();
    void texteOrdinaireSansPalette();
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
    QVERIFY(!TexteTransparent(bouton));
}

void tst_DToolButtonRiche::raccourciOublie()
{
    DToolButtonRiche bouton;
    bouton.setText(u"&Non"_s);
    bouton.setHtml(u"&amp;Non"_s);
    QVERIFY(bouton.shortcut().isEmpty());
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

    QSize const attendue(std::ceil(document.size().width()), std::ceil(document.size().height()));
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

void tst_DToolButtonRiche::pinceauPropreRendu()
{
    DToolButtonRiche bouton;
    QPalette palette = AvecTexte(Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::darkRed);
    bouton.setPalette(palette);
    bouton.setHtml(u"abc"_s);
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
    QCOMPARE(bouton.palette().color(QPalette::Disabled, QPalette::ButtonText), QColor(Qt::darkRed));
}

// What the button had from its parent, it has from its parent again.
void tst_DToolButtonRiche::pinceauHeritayRendu()
{
    QWidget parent;
    parent.setPalette(AvecTexte(Qt::red));
    DToolButtonRiche bouton(&parent);
    bouton.setHtml(u"abc"_s);
    QVERIFY(TexteTransparent(bouton));
    parent.setPalette(AvecTexte(Qt::blue));
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::blue));
    parent.setPalette(AvecTexte(Qt::green));
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::green));
    QVERIFY(!bouton.testAttribute(Qt::WA_SetPalette));
}

void tst_DToolButtonRiche::deuxFois()
{
    DToolButtonRiche bouton;
    bouton.setPalette(AvecTexte(Qt::red));
    bouton.setHtml(u"abc"_s);
    bouton.setHtml(u"def"_s);
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
    bouton.setText(u"def"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
    bouton.setHtml(u"abc"_s);
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
}

void tst_DToolButtonRiche::paletteChangeeEntreTemps()
{
    DToolButtonRiche bouton;
    bouton.setPalette(AvecTexte(Qt::red));
    bouton.setHtml(u"abc"_s);
    bouton.setPalette(AvecTexte(Qt::blue));
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::blue));

    bouton.setHtml(u"abc"_s);
    bouton.setPalette(QPalette()); // nothing of its own any more
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QApplication::palette(&bouton).color(QPalette::ButtonText));
}

void tst_DToolButtonRiche::paletteCopieeEntreTemps()
{
    DToolButtonRiche bouton;
    bouton.setPalette(AvecTexte(Qt::red));
    bouton.setHtml(u"abc"_s);
    QPalette copie = bouton.palette();
    copie.setColor(QPalette::Button, Qt::yellow);
    bouton.setPalette(copie);
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
    QCOMPARE(bouton.palette().color(QPalette::Button), QColor(Qt::yellow));
}

void tst_DToolButtonRiche::autresRolesGardes()
{
    QPalette palette;
    palette.setColor(QPalette::Button, Qt::yellow);
    palette.setColor(QPalette::Disabled, QPalette::Window, Qt::cyan);
    DToolButtonRiche bouton;
    bouton.setPalette(palette);
    bouton.setHtml(u"abc"_s);
    QCOMPARE(bouton.palette().color(QPalette::Button), QColor(Qt::yellow));
    bouton.setText(u"abc"_s);
    QCOMPARE(bouton.palette().color(QPalette::Button), QColor(Qt::yellow));
    QCOMPARE(bouton.palette().color(QPalette::Disabled, QPalette::Window), QColor(Qt::cyan));
    QVERIFY(!bouton.palette().isBrushSet(QPalette::Active, QPalette::ButtonText));
    QVERIFY(!bouton.palette().isBrushSet(QPalette::Active, QPalette::Window));
}

void tst_DToolButtonRiche::texteOrdinaireSansPalette()
{
    DToolButtonRiche bouton;
    bouton.setText(u"abc"_s);
    QVERIFY(!bouton.testAttribute(Qt::WA_SetPalette));
}

QTEST_MAIN(tst_DToolButtonRiche)
#include "tst_DToolButtonRiche.moc"
