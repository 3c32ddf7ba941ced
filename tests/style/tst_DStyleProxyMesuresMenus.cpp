// tests/style/tst_DStyleProxyMesuresMenus.cpp
#include "style/DStyleProxy.h"

#include "style/CaptureErreurs.h"
#include "style/EssaisTexteRiche.h"
#include "style/StyleDeMesures.h"

#include <QtTest>

#include <QScreen>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// A widget with these properties true.
std::unique_ptr<QWidget> WidgetAvec(std::initializer_list<char const *> proprietes)
{
    auto widget = std::make_unique<QWidget>();
    for (char const * const propriete : proprietes)
        widget->setProperty(propriete, true);
    return widget;
}

int LargeurRiche(QString const & html, QFont const & font)
{
    QLabel label;
    label.setTextFormat(Qt::RichText);
    label.setFont(font);
    label.setText(html);
    label.adjustSize();
    return label.width();
}

QStyleOptionMenuItem ItemMenu(QString const & texte, int pixels = 16)
{
    QStyleOptionMenuItem option;
    option.text = texte;
    option.font.setPixelSize(pixels);
    return option;
}

} // namespace

class tst_DStyleProxyMesuresMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itemMenuRiche_data();
    void itemMenuRiche();
    void itemMenuSimple_data();
    void itemMenuSimple();
    void itemMenuSansRaccourci();
    void itemMenuDansSaFont();
    void itemMenuSelonLeContexte();
    void itemMenuDesequilibre();
    void itemMenuSansMnemonique_data();
    void itemMenuSansMnemonique();
    void itemMenuPlusLargeQueLEcran();
    void itemMenuSansLaPropriete();
    void hauteurPlafonnee_data();
    void hauteurPlafonnee();
    void itemBarreDeMenus();

private:
    int LargeurItem(QStyleOptionMenuItem const & option, QWidget const & widget) const
    {
        return monStyle->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(300, 20), &widget)
            .width();
    }

    StyleDeMesures * maBase = nullptr;
    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyMesuresMenus::init()
{
    maBase = new StyleDeMesures;
    monStyle = std::make_unique<DStyleProxy>(maBase);
}

void tst_DStyleProxyMesuresMenus::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyMesuresMenus::itemMenuRiche_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("html"); // what the rules make of it
    QTest::newRow("one element") << u"<q>x</q>"_s << u"[x]"_s;
    QTest::newRow("text around") << u"Un <q>deux</q> trois"_s << u"Un [deux] trois"_s;
    QTest::newRow("letters for Qt to make bold") << u"<q>x</q><b>yyyy</b>"_s << u"[x]<b>yyyy</b>"_s;
    QTest::newRow("entities") << u"<q>x</q>&quot;&quot;"_s << u"[x]\"\""_s;
    QTest::newRow("up to the tab") << u"<q>x</q>\tCtrl+Alt+F12"_s << u"[x]"_s;
}

void tst_DStyleProxyMesuresMenus::itemMenuRiche()
{
    QFETCH(QString, texte);
    QFETCH(QString, html);
    maBase->marges[QStyle::CT_MenuItem] = QSize(57, 9); // the room of its other columns
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    QStyleOptionMenuItem const option = ItemMenu(texte);
    QSize const taille =
        monStyle->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(300, 20), widget.get());
    QCOMPARE(taille, QSize(LargeurRiche(html, option.font) + 57, 29));
}

void tst_DStyleProxyMesuresMenus::itemMenuSimple_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("text") << u"Ouvrir un document"_s;
    QTest::newRow("one letter") << u"i"_s;
    QTest::newRow("lone bracket") << u"a < b"_s;
    QTest::newRow("text with a shortcut") << u"Ouvrir\tCtrl+O"_s;
}

void tst_DStyleProxyMesuresMenus::itemMenuSimple()
{
    QFETCH(QString, texte);
    maBase->marges[QStyle::CT_MenuItem] = QSize(57, 9);
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    QStyleOptionMenuItem const option = ItemMenu(texte);
    double const largeur = QFontMetricsF(option.font).horizontalAdvance(texte.section(u'\t', 0, 0));
    QCOMPARE_LE(std::abs(LargeurItem(option, *widget) - 57 - largeur), 1.0); // what rounding adds
}

void tst_DStyleProxyMesuresMenus::itemMenuSansRaccourci()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    maBase->marges[QStyle::CT_MenuItem] = QSize(0, 0);
    for (QString const & texte : {u"Ouvrir"_s, u"<q>Ouvrir</q>"_s, QString()})
        QCOMPARE(LargeurItem(ItemMenu(texte + u"\tCtrl+Alt+F12\tF1"_s), *widget),
                 LargeurItem(ItemMenu(texte), *widget));
}

void tst_DStyleProxyMesuresMenus::itemMenuDansSaFont()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    for (QString const & texte : {u"Ouvrir"_s, u"<q>Ouvrir</q>"_s}) {
        int const petite = LargeurItem(ItemMenu(texte, 10), *widget);
        QCOMPARE_GT(LargeurItem(ItemMenu(texte, 40), *widget), petite);
        QCOMPARE(LargeurItem(ItemMenu(texte, 10), *widget), petite); // nothing of it stays
    }
}

void tst_DStyleProxyMesuresMenus::itemMenuSelonLeContexte()
{
    maBase->marges[QStyle::CT_MenuItem] = QSize(0, 0);
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q", kContexteMenuSelectionnay);
    QStyleOptionMenuItem option = ItemMenu(u"<q>x</q>"_s);
    int const brute = LargeurItem(option, *widget); // with its tags, which no rule takes out
    option.state |= QStyle::State_Selected;
    QCOMPARE(LargeurItem(option, *widget), LargeurRiche(u"[x]"_s, option.font));
    QCOMPARE_LT(LargeurItem(option, *widget), brute);
}

void tst_DStyleProxyMesuresMenus::itemMenuDesequilibre()
{
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    CaptureErreurs const erreurs;
    QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur,
                             LargeurItem(ItemMenu(u"<q>x\tF1"_s), *widget));
    QCOMPARE(erreurs.Texte(), u"<q>x\n"_s);
}

void tst_DStyleProxyMesuresMenus::itemMenuSansMnemonique_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("sans");
    QTest::newRow("plain") << u"&Ouvrir"_s << u"Ouvrir"_s;
    QTest::newRow("rich") << u"<q>&Ouvrir</q>"_s << u"<q>Ouvrir</q>"_s;
    QTest::newRow("at the end") << u"Ouvrir&"_s << u"Ouvrir"_s;
    QTest::newRow("ampersand, rich") << u"<q>R&&D</q>"_s << u"<q>R&amp;D</q>"_s;
}

// The mark is not drawn, and gets no room.
void tst_DStyleProxyMesuresMenus::itemMenuSansMnemonique()
{
    QFETCH(QString, texte);
    QFETCH(QString, sans);
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    QCOMPARE(LargeurItem(ItemMenu(texte), *widget), LargeurItem(ItemMenu(sans), *widget));
}

void tst_DStyleProxyMesuresMenus::itemMenuPlusLargeQueLEcran()
{
    maBase->marges[QStyle::CT_MenuItem] = QSize(57, 9);
    auto const widget = WidgetAvec({DStyleProxy::DonneNomProprietePossedeRegleTexteRiche()});
    MetsRegle(*widget, "q");
    int const ecran = QGuiApplication::primaryScreen()->size().width();
    QString const mots = u"mot "_s.repeated(ecran / 4) + u'x';
    QStyleOptionMenuItem const option = ItemMenu(u"<q>%1</q>"_s.arg(mots));
    QLabel label(u"[%1]"_s.arg(mots));
    label.setTextFormat(Qt::RichText);
    label.setFont(option.font);

    int const largeur = LargeurItem(option, *widget) - 57;

    QCOMPARE_GT(largeur, ecran);
    QCOMPARE(largeur, label.sizeHint().width()); // one line of it
}

void tst_DStyleProxyMesuresMenus::itemMenuSansLaPropriete()
{
    maBase->marges[QStyle::CT_MenuItem] = QSize(57, 9);
    QWidget widget;
    MetsRegle(widget, "q");
    QStyleOptionMenuItem const option = ItemMenu(u"<q>x</q>"_s);
    QCOMPARE(LargeurItem(option, widget), 357);
    QCOMPARE(monStyle->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(300, 20), nullptr),
             QSize(357, 29));
}

void tst_DStyleProxyMesuresMenus::hauteurPlafonnee_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("propriete");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("hauteur");
    for (auto const type : {QStyle::CT_Menu, QStyle::CT_MenuItem}) {
        auto const ligne = [type](char const * nom, bool propriete, int maximum, int hauteur) {
            QTest::addRow("%s, %s", type == QStyle::CT_Menu ? "menu" : "menu item", nom)
                << int(type) << propriete << maximum << hauteur;
        };
        ligne("higher", true, 208, 208);
        ligne("one unit higher", true, 208 - 1, 207);
        ligne("as high", true, 209, 209);
        ligne("lower", true, 210, 209);
        ligne("no maximum", true, QWIDGETSIZE_MAX, 209);
        ligne("higher, without the property", false, 208, 209);
    }
}

void tst_DStyleProxyMesuresMenus::hauteurPlafonnee()
{
    QFETCH(int, type);
    QFETCH(bool, propriete);
    QFETCH(int, maximum);
    QFETCH(int, hauteur);
    maBase->marges[type] = QSize(50, 9);
    QWidget widget;
    widget.setMaximumHeight(maximum);
    widget.setMaximumWidth(40); // of which there is no word
    widget.setProperty(DStyleProxy::DonneNomAttributPourStyleScrolling(), propriete);
    QStyleOptionMenuItem const option;
    QCOMPARE(
        monStyle->sizeFromContents(QStyle::ContentsType(type), &option, QSize(300, 200), &widget),
        QSize(350, hauteur));
}

void tst_DStyleProxyMesuresMenus::itemBarreDeMenus()
{
    maBase->marges[QStyle::CT_MenuBarItem] = QSize(4, 5);
    QWidget const widget;
    QStyleOptionMenuItem const option;
    QSize const attendue(60 + 4 + 26, 20 + 5 + 13);
    for (QWidget const * const de : {&widget, static_cast<QWidget const *>(nullptr)})
        QCOMPARE(monStyle->sizeFromContents(QStyle::CT_MenuBarItem, &option, QSize(60, 20), de),
                 attendue);
}

QTEST_MAIN(tst_DStyleProxyMesuresMenus)
#include "tst_DStyleProxyMesuresMenus.moc"
