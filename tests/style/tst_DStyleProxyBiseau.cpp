// tests/style/tst_DStyleProxyBiseau.cpp
#include "style/EssaisBoutons.h"

#include <QtTest>

namespace {

// `haut` over `bas`, which is opaque.
QColor Superpose(QColor const & haut, QColor const & bas)
{
    auto const melange = [&](int dessus, int dessous) {
        return qRound(dessous + (dessus - dessous) * haut.alpha() / 255.0);
    };
    return {melange(haut.red(), bas.red()), melange(haut.green(), bas.green()),
            melange(haut.blue(), bas.blue())};
}

} // namespace

class tst_DStyleProxyBiseau : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void couleur_data();
    void couleur();
    void sansWidget();
    void inactifDevientActif();
    void surFusion_data();
    void surFusion();
    void homographe_data();
    void homographe();
    void absent_data();
    void absent();
    void deStyle_data();
    void deStyle();
    void optionDuMauvaisType_data();
    void optionDuMauvaisType();

private:
    std::unique_ptr<BancBouton> monBanc;
};

void tst_DStyleProxyBiseau::init()
{
    monBanc = std::make_unique<BancBouton>();
}

void tst_DStyleProxyBiseau::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyBiseau::couleur_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("attendue");
    QColor const repos(255, 255, 255, 179);
    QColor const survol(0, 0, 0, 15);
    QTest::newRow("normal") << kNormal << repos;
    QTest::newRow("under the mouse") << QStyle::State(kNormal | QStyle::State_MouseOver) << survol;
    QTest::newRow("pressed") << QStyle::State(kNormal | QStyle::State_Sunken) << repos;
    QTest::newRow("pressed under the mouse")
        << QStyle::State(kNormal | QStyle::State_Sunken | QStyle::State_MouseOver) << survol;
    QTest::newRow("disabled keeps its own") << QStyle::State() << QColor(220, 224, 228);
}

void tst_DStyleProxyBiseau::couleur()
{
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, attendue);
    QStyleOptionButton const option = DonneOption(etat);

    QImage const image = monBanc->PeinsBiseau(option);

    QVERIFY(EstVide(image)); // the base alone paints it
    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_PushButtonBevel);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().palette.button().color(), attendue);
    QCOMPARE(appels.first().option.state, etat);
    QCOMPARE(appels.first().widget, monBanc->bouton.get());
    QCOMPARE(option.palette.button().color(), QColor(220, 224, 228)); // a copy was changed
}

void tst_DStyleProxyBiseau::sansWidget()
{
    monBanc->bouton.reset();
    QStyleOptionButton const option =
        DonneOption(kNormal | QStyle::State_MouseOver, /* defaut */ true);

    QVERIFY(EstVide(monBanc->PeinsBiseau(option)));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().palette.button().color(), QColor(0, 0, 0, 15));
    QCOMPARE(appels.first().widget, nullptr);
}

void tst_DStyleProxyBiseau::inactifDevientActif()
{
    QStyleOptionButton option = DonneOption();
    option.palette.setCurrentColorGroup(QPalette::Inactive);

    monBanc->PeinsBiseau(option);

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().palette.currentColorGroup(), QPalette::Active);
    QCOMPARE(appels.first().palette.button().color(), QColor(255, 255, 255, 179));
    QCOMPARE(option.palette.currentColorGroup(), QPalette::Inactive);
}

void tst_DStyleProxyBiseau::surFusion_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("attendue");
    QColor const fond(220, 224, 228);
    QTest::newRow("normal") << kNormal << Superpose(QColor(255, 255, 255, 179), fond);
    QTest::newRow("under the mouse")
        << QStyle::State(kNormal | QStyle::State_MouseOver) << Superpose(QColor(0, 0, 0, 15), fond);
    QTest::newRow("disabled keeps its own") << QStyle::State() << fond;
}

// Fusion ignores the alpha of the button colour: a told overlay would come out as plain black.
void tst_DStyleProxyBiseau::surFusion()
{
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, attendue);
    monBanc->espion->seDitFusion = true;

    monBanc->PeinsBiseau(DonneOption(etat));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QColor const couleur = appels.first().palette.button().color();
    QCOMPARE(couleur.alpha(), 255);
    QVERIFY2(SontProches(couleur, attendue, 1), qPrintable(couleur.name()));
}

void tst_DStyleProxyBiseau::homographe_data()
{
    AjouteValeurs(kToutVrai);
}

void tst_DStyleProxyBiseau::homographe()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleBoutonsStyleHomographes(), valeur);

    monBanc->PeinsBiseau(DonneOption(kNormal | QStyle::State_MouseOver));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().option.state.testFlag(QStyle::State_MouseOver), !compte);
    QCOMPARE(appels.first().palette.button().color(),
             compte ? QColor(255, 255, 255, 179) : QColor(0, 0, 0, 15));

    // A default button doesn't show the mouse either.
    QColor const accent = monBanc->PeinsBiseau(DonneOption(kNormal | QStyle::State_MouseOver, true))
                              .pixelColor(kRect.center());
    QCOMPARE(accent.rgba(), (compte ? kAccentActif : kAccentActif.lighter(105)).rgba());
}

void tst_DStyleProxyBiseau::absent_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyBiseau::absent()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleDesactiveBevelBouton(), valeur);

    monBanc->PeinsBiseau(DonneOption());
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kControle).isEmpty(), compte);

    QCOMPARE(EstVide(monBanc->PeinsBiseau(DonneOption(kNormal, true))), compte);
}

void tst_DStyleProxyBiseau::deStyle_data()
{
    AjouteValeurs(kBooleenSeul);
}

// A widget of the style has the bevel of the base, unchanged.
void tst_DStyleProxyBiseau::deStyle()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomAttributPourStyle(), valeur);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleDesactiveBevelBouton(), true);
    QStyleOptionButton option = DonneOption(kNormal | QStyle::State_MouseOver, true);
    option.palette.setCurrentColorGroup(QPalette::Inactive);

    QVERIFY(EstVide(monBanc->PeinsBiseau(option)));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), compte ? 1 : 0);
    if (compte) {
        QCOMPARE(appels.first().option.state, option.state);
        QCOMPARE(appels.first().palette, option.palette);
        QCOMPARE(appels.first().palette.currentColorGroup(), QPalette::Inactive);
    }
}

void tst_DStyleProxyBiseau::optionDuMauvaisType_data()
{
    QTest::addColumn<int>("element");
    QTest::newRow("bevel") << int(QStyle::CE_PushButtonBevel);
    QTest::newRow("label") << int(QStyle::CE_PushButtonLabel);
}

void tst_DStyleProxyBiseau::optionDuMauvaisType()
{
    QFETCH(int, element);
    QStyleOption option;
    option.rect = kRect;
    option.palette = DonnePaletteEssai(QPalette::Inactive);
    option.state = QStyle::State_MouseOver;

    for (QStyleOption const * donnee :
         {static_cast<QStyleOption const *>(&option), static_cast<QStyleOption const *>(nullptr)}) {
        monBanc->espion->appels.clear();
        Peins(kRect.size(), [&](QPainter & peintre) {
            monBanc->style.drawControl(QStyle::ControlElement(element), donnee, &peintre,
                                       monBanc->bouton.get());
        });
        auto const appels = monBanc->espion->Donne(AppelStyle::kControle, element);
        QCOMPARE(appels.size(), 1);
        QCOMPARE(appels.first().avecOption, donnee != nullptr);
        QCOMPARE(appels.first().palette, donnee ? option.palette : QPalette());
        QCOMPARE(appels.first().option.state, donnee ? option.state : QStyle::State());
    }
}

QTEST_MAIN(tst_DStyleProxyBiseau)
#include "tst_DStyleProxyBiseau.moc"
