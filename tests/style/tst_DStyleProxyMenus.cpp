// tests/style/tst_DStyleProxyMenus.cpp
#include "style/EssaisPeinture.h"

#include "style/InterpreteurChaineSemantiqueT.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(0, 0, 200, 60);

// Of menus and menu bars, but the item of a menu.
constexpr QStyle::ControlElement kAutresElements[] = {
    QStyle::CE_MenuBarItem,     QStyle::CE_MenuTearoff, QStyle::CE_MenuScroller,
    QStyle::CE_MenuHMargin,     QStyle::CE_MenuVMargin, QStyle::CE_MenuEmptyArea,
    QStyle::CE_MenuBarEmptyArea};

QStyleOptionMenuItem DonneOption(QStyle::State etat = QStyle::State_Enabled)
{
    QStyleOptionMenuItem option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.text = u"<r>Couper</r>\tCtrl+X"_s;
    option.checkType = QStyleOptionMenuItem::Exclusive;
    option.checked = true;
    return option;
}

// The element "r" on a background of that colour, which begins where the text does.
EnsembleRegles DonneRegles(QString const & couleur)
{
    QString const ouvrant = u"<span style=\"color:%1;background-color:%1\">"_s.arg(couleur);
    return {{UniChaine("r"),
             InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
                 ouvrant, u"</span>"_s)}};
}

} // namespace

class tst_DStyleProxyMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sansProprieteALaBase();
    void crochet_data();
    void crochet();
    void riche_data();
    void riche();
    void richeSansSection_data();
    void richeSansSection();
    void richeTextes_data();
    void richeTextes();
    void richeCrochet();
    void richeContexte();
    void richeDeDroiteAGauche();
    void richeSansRegle();
    void richeGriseMonochrome();
    void autresElementsDeMenu();
    void autresElementsRiches();
    void optionDuMauvaisType();

private:
    QImage PeinsItem(QStyleOption const & option,
                     QStyle::ControlElement element = QStyle::CE_MenuItem) const;
    AppelStyle PrendsAppel() const;

    std::unique_ptr<BancStyle> monBanc;
    std::unique_ptr<QMenu> monMenu;
};

void tst_DStyleProxyMenus::init()
{
    monBanc = std::make_unique<BancStyle>();
    monMenu = std::make_unique<QMenu>();
    MapDeRegles const regles{{kContexteNormal, DonneRegles(u"#ff0000"_s)},
                             {kContexteMenuSelectionnay, DonneRegles(u"#0000ff"_s)}};
    monMenu->setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                         QVariant::fromValue(regles));
}

void tst_DStyleProxyMenus::cleanup()
{
    monMenu.reset();
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QImage tst_DStyleProxyMenus::PeinsItem(QStyleOption const & option,
                                       QStyle::ControlElement element) const
{
    return Peins(kRect.size(), [&](QPainter & peintre) {
        monBanc->style.drawControl(element, &option, &peintre, monMenu.get());
    });
}

// The only call that has reached the base as a control element.
AppelStyle tst_DStyleProxyMenus::PrendsAppel() const
{
    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    monBanc->espion->appels.clear();
    if (appels.size() == 1)
        return appels.first();
    QTest::qFail("The base is not called once", __FILE__, __LINE__);
    return {AppelStyle::kControle};
}

void tst_DStyleProxyMenus::sansProprieteALaBase()
{
    QStyleOptionMenuItem const option = DonneOption();

    QVERIFY(EstVide(PeinsItem(option)));

    AppelStyle const appel = PrendsAppel();
    QCOMPARE(appel.element, int(QStyle::CE_MenuItem));
    QCOMPARE(appel.texte, option.text);
    QCOMPARE(appel.typeCoche, int(QStyleOptionMenuItem::Exclusive));
    QCOMPARE(appel.option.state, option.state);
    QCOMPARE(appel.palette, option.palette);
    QCOMPARE(appel.rect, kRect);
    QCOMPARE(appel.widget, monMenu.get());
}

void tst_DStyleProxyMenus::crochet_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyMenus::crochet()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monMenu->setProperty(DStyleProxy::DonneNomAttributStyleCrochetMenu(), valeur);
    QStyleOptionMenuItem option = DonneOption();
    for (auto const type : {QStyleOptionMenuItem::Exclusive, QStyleOptionMenuItem::NotCheckable}) {
        option.checkType = type;

        QVERIFY(EstVide(PeinsItem(option)));

        AppelStyle const appel = PrendsAppel();
        QCOMPARE(appel.typeCoche, int(compte ? QStyleOptionMenuItem::NonExclusive : type));
        QCOMPARE(appel.texte, option.text);
        QCOMPARE(option.checkType, type); // a copy was changed
    }
}

void tst_DStyleProxyMenus::riche_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyMenus::riche()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), valeur);
    QStyleOptionMenuItem const option = DonneOption();

    QImage const image = PeinsItem(option);

    AppelStyle const appel = PrendsAppel();
    QCOMPARE(appel.texte, compte ? u"\tCtrl+X"_s : option.text);
    QCOMPARE(appel.typeCoche, int(QStyleOptionMenuItem::Exclusive));
    QRect const rouge = Etendue(image, Qt::red);
    QCOMPARE(rouge.isEmpty(), !compte);
    if (compte) {
        QCOMPARE(rouge.left(), 32);
        QVERIFY(qAbs(rouge.center().y() - kRect.center().y()) <= 2); // centred vertically
    }
}

void tst_DStyleProxyMenus::richeSansSection_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyMenus::richeSansSection()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    monMenu->setProperty(DStyleProxy::DonneNomAttributMenuCochableSansLaSectionACocher(), valeur);

    QRect const rouge = Etendue(PeinsItem(DonneOption()), Qt::red);

    QCOMPARE(PrendsAppel().typeCoche,
             int(compte ? QStyleOptionMenuItem::NotCheckable : QStyleOptionMenuItem::Exclusive));
    QCOMPARE(rouge.left(), compte ? 4 : 32);
}

void tst_DStyleProxyMenus::richeTextes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("reste");
    QTest::addColumn<bool>("rouge");
    QTest::newRow("no tab") << u"<r>Couper</r>"_s << u""_s << true;
    QTest::newRow("a tab") << u"<r>Couper</r>\tCtrl+X"_s << u"\tCtrl+X"_s << true;
    QTest::newRow("the first tab splits") << u"<r>A</r>\tB\tC"_s << u"\tB\tC"_s << true;
    QTest::newRow("nothing behind the tab") << u"<r>Couper</r>\t"_s << u""_s << true;
    QTest::newRow("nothing before the tab") << u"\t<r>X</r>"_s << u"\t<r>X</r>"_s << false;
    QTest::newRow("no text") << u""_s << u""_s << false;
}

void tst_DStyleProxyMenus::richeTextes()
{
    QFETCH(QString, texte);
    QFETCH(QString, reste);
    QFETCH(bool, rouge);
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    QStyleOptionMenuItem option = DonneOption();
    option.text = texte;

    QImage const image = PeinsItem(option);

    QCOMPARE(PrendsAppel().texte, reste);
    QCOMPARE(!Etendue(image, Qt::red).isEmpty(), rouge);
    QCOMPARE(option.text, texte);
}

void tst_DStyleProxyMenus::richeCrochet()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    monMenu->setProperty(DStyleProxy::DonneNomAttributStyleCrochetMenu(), true);

    PeinsItem(DonneOption());
    QCOMPARE(PrendsAppel().typeCoche, int(QStyleOptionMenuItem::NonExclusive));

    // Without a column for checks there is none to show.
    monMenu->setProperty(DStyleProxy::DonneNomAttributMenuCochableSansLaSectionACocher(), true);
    PeinsItem(DonneOption());
    QCOMPARE(PrendsAppel().typeCoche, int(QStyleOptionMenuItem::NotCheckable));
}

void tst_DStyleProxyMenus::richeContexte()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);

    QImage const selectionnay =
        PeinsItem(DonneOption(QStyle::State_Enabled | QStyle::State_Selected));
    QVERIFY(!Etendue(selectionnay, Qt::blue).isEmpty());
    QVERIFY(Etendue(selectionnay, Qt::red).isEmpty());

    QImage const survolay = PeinsItem(DonneOption(QStyle::State_Enabled | QStyle::State_MouseOver));
    QVERIFY(!Etendue(survolay, Qt::red).isEmpty());
}

// Mirrored: the column for checks is on the right.
void tst_DStyleProxyMenus::richeDeDroiteAGauche()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    monMenu->setLayoutDirection(Qt::RightToLeft);
    QStyleOptionMenuItem option = DonneOption();
    option.direction = Qt::RightToLeft;

    QRect const rouge = Etendue(PeinsItem(option), Qt::red);

    QCOMPARE(rouge.right(), kRect.right() - 32);
}

// The text is drawn rich in any case, since the base was not given it.
void tst_DStyleProxyMenus::richeSansRegle()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(), QVariant());
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    QStyleOptionMenuItem option = DonneOption();
    option.text = u"Couper"_s;

    QImage const image = PeinsItem(option);

    QVERIFY(PrendsAppel().texte.isEmpty());
    QVERIFY(Encre(image).left() >= 30);
}

void tst_DStyleProxyMenus::richeGriseMonochrome()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    monMenu->setProperty(DStyleProxy::DonneNomAttributPourStyleMonochrome(), true);

    QImage const image = PeinsItem(DonneOption(QStyle::State()));

    QCOMPARE(PrendsAppel().opacite, 0.55);
    QRect const encre = Encre(image);
    int const alpha = Alpha(image, encre.left() + 2, encre.center().y());
    QVERIFY2(qAbs(alpha - qRound(0.55 * 255)) <= 2, qPrintable(QString::number(alpha)));
}

void tst_DStyleProxyMenus::autresElementsDeMenu()
{
    for (auto const element : kAutresElements) {
        QVERIFY(EstVide(PeinsItem(DonneOption(), element)));
        AppelStyle const appel = PrendsAppel();
        QCOMPARE(appel.element, int(element));
        QCOMPARE(appel.texte, DonneOption().text);
    }
}

// The option alone tells an item: what else a menu draws has one without a text.
void tst_DStyleProxyMenus::autresElementsRiches()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    QStyleOptionMenuItem sansTexte = DonneOption();
    sansTexte.text.clear();
    for (auto const element : kAutresElements) {
        QImage const image = PeinsItem(DonneOption(), element);
        AppelStyle const appel = PrendsAppel();
        QCOMPARE(appel.element, int(element));
        QCOMPARE(appel.texte, u"\tCtrl+X"_s);
        QCOMPARE(Etendue(image, Qt::red).left(), 32);

        QVERIFY(EstVide(PeinsItem(sansTexte, element)));
        QCOMPARE(PrendsAppel().element, int(element));
    }
}

void tst_DStyleProxyMenus::optionDuMauvaisType()
{
    monMenu->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    QStyleOption option;
    option.rect = kRect;

    QVERIFY(EstVide(PeinsItem(option)));

    QCOMPARE(PrendsAppel().element, int(QStyle::CE_MenuItem));
}

QTEST_MAIN(tst_DStyleProxyMenus)
#include "tst_DStyleProxyMenus.moc"
