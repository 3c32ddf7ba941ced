// tests/controls/tst_DToolButtonRichePalette.cpp
#include "controls/DToolButtonRiche.h"

#include "controls/RenduBoutons.h"

#include <QStyleFactory>
#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;
using RenduBoutons::Rendu;

namespace {

using Action = std::function<void(DToolButtonRiche &)>;

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

// What a plain button with that text looks like.
bool RessembleAUnOrdinaire(DToolButtonRiche & bouton, QPalette const & palette)
{
    QToolButton ordinaire;
    ordinaire.setStyle(bouton.style());
    ordinaire.setPalette(palette);
    ordinaire.setText(bouton.text());
    ordinaire.resize(bouton.size());
    return Rendu(bouton) == Rendu(ordinaire);
}

} // namespace

// The brush of the text, which is transparent while there is HTML.
class tst_DToolButtonRichePalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void pinceauPropreRendu();
    void pinceauHeritayRendu();
    void deuxFois();
    void paletteChangeeEntreTemps();
    void paletteCopieeEntreTemps();
    void autresRolesGardes();
    void texteOrdinaireSansPalette();
    void feuilleQuiPart_data();
    void feuilleQuiPart();
    void paletteSousFeuille();
    void couleurDeLaFeuille();
    void autreFeuille();
    void paletteDeClasse_data();
    void paletteDeClasse();
    void transparentDeLHote();
};

void tst_DToolButtonRichePalette::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToolButtonRichePalette::pinceauPropreRendu()
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
void tst_DToolButtonRichePalette::pinceauHeritayRendu()
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

void tst_DToolButtonRichePalette::deuxFois()
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

void tst_DToolButtonRichePalette::paletteChangeeEntreTemps()
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

void tst_DToolButtonRichePalette::paletteCopieeEntreTemps()
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

void tst_DToolButtonRichePalette::autresRolesGardes()
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

void tst_DToolButtonRichePalette::texteOrdinaireSansPalette()
{
    DToolButtonRiche bouton;
    bouton.setText(u"abc"_s);
    QVERIFY(!bouton.testAttribute(Qt::WA_SetPalette));
}

void tst_DToolButtonRichePalette::feuilleQuiPart_data()
{
    QTest::addColumn<bool>("avecCouleur");
    QTest::addColumn<QList<int>>("etapes");
    // 0: HTML, 1: sheet, 2: plain text, 3: no sheet
    std::pair<char const *, QList<int>> const suites[] = {
        {"HTML, sheet, text, no sheet", {0, 1, 2, 3}},
        {"HTML, sheet, no sheet, text", {0, 1, 3, 2}},
        {"sheet, HTML, text, no sheet", {1, 0, 2, 3}},
        {"sheet, HTML, no sheet, text", {1, 0, 3, 2}},
        {"all twice", {0, 1, 2, 3, 1, 0, 3, 2}},
        {"text and HTML again under the sheet", {0, 1, 2, 0, 2, 3}},
        {"two sheets", {0, 1, 3, 1, 2, 3}},
    };
    for (auto const & [nom, etapes] : suites) {
        QTest::addRow("%s, with a colour", nom) << true << etapes;
        QTest::addRow("%s, without", nom) << false << etapes;
    }
}

// A button with a brush of its own, and one without.
void tst_DToolButtonRichePalette::feuilleQuiPart()
{
    QFETCH(bool, avecCouleur);
    QFETCH(QList<int>, etapes);
    auto const feuille =
        avecCouleur ? u"QToolButton { color: #00ff00; }"_s : u"QToolButton { padding: 1px; }"_s;
    Action const actions[] = {
        [](auto & b) { b.setHtml(u"<b>abc</b>"_s); }, [&](auto & b) { b.setStyleSheet(feuille); },
        [](auto & b) { b.setText(u"abc"_s); }, [](auto & b) { b.setStyleSheet({}); }};
    for (bool const propre : {true, false}) {
        QPalette const palette = propre ? AvecTexte(Qt::red) : QPalette();
        DToolButtonRiche bouton;
        bouton.setPalette(palette);
        RenduBoutons::Dispose(bouton, QSize(100, 40));
        for (int const etape : etapes)
            actions[etape](bouton);
        QCOMPARE(bouton.palette().isBrushSet(QPalette::Active, QPalette::ButtonText), propre);
        QCOMPARE(CouleurTexte(bouton),
                 propre ? QColor(Qt::red) : QApplication::palette().color(QPalette::ButtonText));
        QVERIFY(RessembleAUnOrdinaire(bouton, palette));
    }
}

// Where the whole application has a sheet, a host's palette counts all the same.
void tst_DToolButtonRichePalette::paletteSousFeuille()
{
    DToolButtonRiche bouton;
    bouton.setStyleSheet(u"QToolButton { padding: 1px; }"_s);
    RenduBoutons::Dispose(bouton, QSize(100, 40));
    bouton.setPalette(AvecTexte(Qt::red));
    bouton.setHtml(u"abc"_s);
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));

    bouton.setHtml(u"abc"_s);
    bouton.setPalette(AvecTexte(Qt::blue));
    QVERIFY(TexteTransparent(bouton));
    bouton.setText(u"abc"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::blue));
}

void tst_DToolButtonRichePalette::couleurDeLaFeuille()
{
    auto const verts = [](DToolButtonRiche & bouton) {
        return Encre::Bornes(Rendu(bouton), [](QColor const & pixel) {
            return pixel.green() > pixel.red() + 60 && pixel.green() > pixel.blue() + 60;
        });
    };
    DToolButtonRiche bouton;
    bouton.setHtml(u"<b>MMMM</b>"_s);
    RenduBoutons::Dispose(bouton, QSize(200, 60));
    QVERIFY(verts(bouton).isNull());
    bouton.setStyleSheet(u"QToolButton { color: #00ff00; }"_s);
    QVERIFY(TexteTransparent(bouton));
    QVERIFY(!verts(bouton).isNull());
    bouton.setStyleSheet({});
    QVERIFY(verts(bouton).isNull());
    bouton.setStyleSheet(u"QToolButton { padding: 1px; }"_s); // nothing is left of the first one
    QVERIFY(verts(bouton).isNull());
}

void tst_DToolButtonRichePalette::autreFeuille()
{
    DToolButtonRiche bouton;
    bouton.setPalette(AvecTexte(Qt::red));
    RenduBoutons::Dispose(bouton, QSize(100, 40));
    bouton.setHtml(u"abc"_s);
    bouton.setStyleSheet(u"QToolButton { color: #00ff00; }"_s);
    bouton.setText(u"abc"_s);
    bouton.setStyleSheet(u"QToolButton { padding: 1px; }"_s);
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
    bouton.setStyleSheet({});
    QCOMPARE(CouleurTexte(bouton), QColor(Qt::red));
}

void tst_DToolButtonRichePalette::paletteDeClasse_data()
{
    QTest::addColumn<bool>("avecParent");
    QTest::addColumn<bool>("parentColore");
    QTest::newRow("window") << false << false;
    QTest::newRow("child") << true << false;
    QTest::newRow("a parent's own colour goes before it") << true << true;
}

void tst_DToolButtonRichePalette::paletteDeClasse()
{
    QFETCH(bool, avecParent);
    QFETCH(bool, parentColore);
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::blue);
    QApplication::setPalette(palette, "QToolButton");
    auto const rends = qScopeGuard([] { QApplication::setPalette(QPalette(), "QToolButton"); });
    QWidget parent;
    if (parentColore)
        parent.setPalette(AvecTexte(Qt::red));
    DToolButtonRiche bouton(avecParent ? &parent : nullptr);
    bouton.setText(u"abc"_s);
    bouton.ensurePolished(); // when Qt asks for the palette of the class
    QColor const attendue = CouleurTexte(bouton);
    QCOMPARE(attendue, QColor(parentColore ? Qt::red : Qt::blue));

    bouton.setHtml(u"<b>MMMM</b>"_s);
    RenduBoutons::Dispose(bouton, QSize(200, 60));
    QVERIFY(!Encre::BornesDe(Rendu(bouton), attendue).isNull());
}

// Deliberate: only a button that has had HTML takes a transparent text for its own doing.
void tst_DToolButtonRichePalette::transparentDeLHote()
{
    DToolButtonRiche bouton;
    bouton.setText(u"abc"_s);
    bouton.setPalette(AvecTexte(Qt::transparent));
    QVERIFY(TexteTransparent(bouton));
}

QTEST_MAIN(tst_DToolButtonRichePalette)
#include "tst_DToolButtonRichePalette.moc"
