// tests/style/tst_TexteDeLabel.cpp
#include "style/DStyleProxy.h"

#include "style/EssaisTexteRiche.h"

#include <QtTest>

#include <QMenu>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

void MetsRiche(QWidget & widget)
{
    MetsRegle(widget, "q");
    widget.setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
}

// What the reader of the hidden label would see.
QString TexteMontre()
{
    QLabel const * const label = LabelDeRendu();
    return label ? QTextDocumentFragment::fromHtml(label->text()).toPlainText() : QString();
}

// Where the picture is red.
QRect EtendueRouge(QImage const & image)
{
    QRect etendue;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red))
                etendue |= QRect(x, y, 1, 1);
        }
    }
    return etendue;
}

} // namespace

// What the hidden label makes of texts that weren't written as HTML.
class tst_TexteDeLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void chevrons_data();
    void chevrons();
    void chevronsMesures();
    void itemDeMenu_data();
    void itemDeMenu();
    void fontDeLAction();
    void menuDansSesFonts();

private:
    void DessineItem(QStyleOptionMenuItem const & option, QWidget const & menu) const
    {
        QImage image = Toile();
        QPainter peintre(&image);
        monStyle->drawControl(QStyle::CE_MenuItem, &option, &peintre, &menu);
    }

    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_TexteDeLabel::init()
{
    monStyle = std::make_unique<DStyleProxy>(QStyleFactory::create(u"Fusion"_s));
}

void tst_TexteDeLabel::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteDeLabel::chevrons_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("montre");
    QTest::newRow("lone bracket") << u"a < b"_s << u"a < b"_s;
    QTest::newRow("lone bracket before an element") << u"a < b <b>c</b>"_s << u"a < b c"_s;
    QTest::newRow("lone bracket in an element") << u"<b>a < b</b> c"_s << u"a < b c"_s;
    QTest::newRow("between digits") << u"1<2"_s << u"1<2"_s;
    QTest::newRow("between letters") << u"a<b"_s << u"a<b"_s;
    QTest::newRow("between letters, before an element") << u"a<b <i>c</i>"_s << u"a<b c"_s;
    QTest::newRow("before a slash") << u"a </ b"_s << u"a </ b"_s;
    QTest::newRow("at the end") << u"a <"_s << u"a <"_s;
    QTest::newRow("alone") << u"<"_s << u"<"_s;
    QTest::newRow("several") << u"a << b <= c"_s << u"a << b <= c"_s;
    QTest::newRow("the empty tag") << u"a <> b"_s << u"a <> b"_s;
    QTest::newRow("the other bracket") << u"2 > 1, 1 < 2"_s << u"2 > 1, 1 < 2"_s;
    QTest::newRow("a smile") << u"<3 <b>x</b>"_s << u"<3 x"_s;
    QTest::newRow("element for Qt to read") << u"<u>a</u> < b"_s << u"a < b"_s;
    QTest::newRow("entities") << u"1 &lt; 2 &amp; 3 &gt; 2"_s << u"1 < 2 & 3 > 2"_s;
    QTest::newRow("lone ampersand") << u"a & b"_s << u"a & b"_s;
}

void tst_TexteDeLabel::chevrons()
{
    QFETCH(QString, texte);
    DemandeTexteRiche demande;
    demande.texte = texte;
    demande.forcay = true;
    QImage image = Toile();
    {
        QPainter peintre(&image);
        QVERIFY(demande.Dessine(*monStyle, peintre));
    }
    QTEST(TexteMontre(), "montre");
    QVERIFY(!Encre(image).isEmpty());
}

// Nothing of the text is left out of the room for it.
void tst_TexteDeLabel::chevronsMesures()
{
    QWidget widget;
    MetsRiche(widget);
    QStyleOptionMenuItem option;
    auto const largeur = [&](QString const & texte) {
        option.text = texte;
        return monStyle->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(0, 0), &widget)
            .width();
    };
    int const courte = largeur(u"<q>x</q>"_s);
    int const longue = largeur(u"<q>x</q> < beaucoup de mots"_s);
    QCOMPARE_GT(longue - courte,
                QFontMetrics(option.font).horizontalAdvance(u"beaucoup de mots"_s));
    QCOMPARE(largeur(u"<q>x</q> &lt; beaucoup de mots"_s), longue);
}

void tst_TexteDeLabel::itemDeMenu_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("montre");
    QTest::newRow("no mnemonic") << u"Ouvrir"_s << u"Ouvrir"_s;
    QTest::newRow("mnemonic") << u"&Ouvrir"_s << u"Ouvrir"_s;
    QTest::newRow("mnemonic inside") << u"Enregistrer &sous"_s << u"Enregistrer sous"_s;
    QTest::newRow("mnemonic of an element") << u"<q>&Ouvrir</q>"_s << u"[Ouvrir]"_s;
    QTest::newRow("mnemonic before an element") << u"&<q>Ouvrir</q>"_s << u"[Ouvrir]"_s;
    QTest::newRow("ampersand") << u"R&&D"_s << u"R&D"_s;
    QTest::newRow("ampersand and mnemonic") << u"R&&&D"_s << u"R&D"_s;
    QTest::newRow("at the end") << u"Ouvrir&"_s << u"Ouvrir"_s;
    QTest::newRow("alone") << u"&"_s << QString();
    QTest::newRow("two at the end") << u"Ouvrir &&"_s << u"Ouvrir &"_s;
    QTest::newRow("before a blank") << u"A & B"_s << u"A B"_s;
    QTest::newRow("entity of the bracket") << u"1 &lt; 2"_s << u"1 < 2"_s;
    QTest::newRow("entity of the ampersand") << u"A &amp; B"_s << u"A & B"_s;
    QTest::newRow("numbered entity") << u"1 &#60; 2"_s << u"1 < 2"_s;
    QTest::newRow("entity and mnemonic") << u"1 &lt; &deux"_s << u"1 < deux"_s;
    QTest::newRow("lone bracket") << u"&1 < 2"_s << u"1 < 2"_s;
    QTest::newRow("up to the tab") << u"&Ouvrir\tCtrl+&O"_s << u"Ouvrir"_s;
}

// A label would show the mark of the mnemonic, and not underline the letter.
void tst_TexteDeLabel::itemDeMenu()
{
    QFETCH(QString, texte);
    QMenu menu;
    MetsRiche(menu);
    QStyleOptionMenuItem option;
    option.rect = QRect(0, 0, 200, 40);
    option.state = QStyle::State_Enabled;
    option.text = texte;

    DessineItem(option, menu);

    QVERIFY(LabelDeRendu());
    QTEST(TexteMontre(), "montre");
}

void tst_TexteDeLabel::fontDeLAction()
{
    QMenu menu;
    MetsRiche(menu);
    QStyleOptionMenuItem option;
    option.rect = QRect(0, 0, 200, 40);
    option.state = QStyle::State_Enabled;
    option.text = u"<q>Ouvrir</q>"_s;
    for (int const pixels : {31, 9}) {
        option.font.setPixelSize(pixels);
        option.font.setItalic(pixels == 31);
        QImage image = Toile();
        QPainter peintre(&image);
        QFont const avant = peintre.font();
        monStyle->drawControl(QStyle::CE_MenuItem, &option, &peintre, &menu);
        QCOMPARE(LabelDeRendu()->font().pixelSize(), pixels);
        QCOMPARE(LabelDeRendu()->font().italic(), pixels == 31);
        QCOMPARE(peintre.font(), avant);
    }
}

void tst_TexteDeLabel::menuDansSesFonts()
{
    QMenu menu;
    MetsRiche(menu);
    EnsembleRegles const regles = {
        {UniChaine("q"),
         InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
             UniChaine("<span style=\"background-color:#ff0000\">"), UniChaine("</span>"))}};
    menu.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                     QVariant::fromValue(MapDeRegles{{kContexteNormal, regles}}));
    menu.setStyle(monStyle.get());
    QAction * const action = menu.addAction(u"<q>Ouvrir</q>"_s);
    QFont font = menu.font();
    QList<int> largeurs;
    QList<QRect> rouges;
    for (int const pixels : {12, 47}) {
        font.setPixelSize(pixels);
        action->setFont(font);
        largeurs.append(menu.sizeHint().width());
        QImage image(menu.sizeHint(), QImage::Format_RGB32);
        menu.resize(image.size());
        menu.render(&image);
        rouges.append(EtendueRouge(image));
    }
    menu.setStyle(nullptr);
    QVERIFY(!rouges.first().isEmpty());
    QCOMPARE_GT(largeurs.last(), largeurs.first());
    QCOMPARE_GT(rouges.last().height(), 2 * rouges.first().height());
    QCOMPARE_LT(rouges.last().right(), largeurs.last() - 1); // all of it is seen
}

QTEST_MAIN(tst_TexteDeLabel)
#include "tst_TexteDeLabel.moc"
