// tests/style/tst_DStyleProxyLibelleBouton.cpp
#include "style/EssaisBoutons.h"

#include <QtTest>

namespace {

QColor const kTexte(10, 20, 30);
QColor const kAccentApplication(150, 0, 150);

} // namespace

class tst_DStyleProxyLibelleBouton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void inerteEstEnfoncay();
    void homographe_data();
    void homographe();
    void homographeValeurs_data();
    void homographeValeurs();
    void parDefaut_data();
    void parDefaut();
    void parDefautSansWidget();
    void parDefautSansBiseau_data();
    void parDefautSansBiseau();
    void homographeParDefaut();
    void deStyle();

private:
    AppelStyle Libelle(QStyleOptionButton const & option) const;

    std::unique_ptr<BancBouton> monBanc;
};

void tst_DStyleProxyLibelleBouton::initTestCase()
{
    QPalette palette = QApplication::palette();
    MetsAccent(palette, QPalette::Active, kAccentApplication);
    QApplication::setPalette(palette);
}

void tst_DStyleProxyLibelleBouton::init()
{
    monBanc = std::make_unique<BancBouton>();
}

void tst_DStyleProxyLibelleBouton::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The one call that reaches the base.
AppelStyle tst_DStyleProxyLibelleBouton::Libelle(QStyleOptionButton const & option) const
{
    monBanc->espion->appels.clear();
    QStyle::State const etat = option.state;
    QPalette const palette = option.palette;
    QImage const image = monBanc->Peins(QStyle::CE_PushButtonLabel, option);
    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    bool const seul = appels.size() == 1 && appels.first().element == QStyle::CE_PushButtonLabel;
    bool const copie = option.state == etat && option.palette == palette;
    if (!seul || !copie || !EstVide(image)) {
        QTest::qFail("The label is not handed on once, on a copy", __FILE__, __LINE__);
        return {AppelStyle::kPolish};
    }
    return appels.first();
}

void tst_DStyleProxyLibelleBouton::inerteEstEnfoncay()
{
    QVERIFY(Libelle(DonneOption(QStyle::State())).option.state.testFlag(QStyle::State_Sunken));
    QVERIFY(!Libelle(DonneOption()).option.state.testFlag(QStyle::State_Sunken));

    AppelStyle const presse = Libelle(DonneOption(kNormal | QStyle::State_Sunken));
    QCOMPARE(presse.option.state, kNormal | QStyle::State_Sunken);
    QCOMPARE(presse.palette.buttonText().color(), kTexte);
}

void tst_DStyleProxyLibelleBouton::homographe_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<bool>("accent");
    QTest::newRow("normal") << QStyle::State() << false;
    QTest::newRow("focused") << QStyle::State(QStyle::State_HasFocus) << false;
    QTest::newRow("under the mouse") << QStyle::State(QStyle::State_MouseOver) << true;
    QTest::newRow("selected") << QStyle::State(QStyle::State_Selected) << true;
    QTest::newRow("checked") << QStyle::State(QStyle::State_On) << true;
    QTest::newRow("checked under the mouse")
        << QStyle::State(QStyle::State_On | QStyle::State_MouseOver) << true;
}

void tst_DStyleProxyLibelleBouton::homographe()
{
    QFETCH(QStyle::State, etat);
    QFETCH(bool, accent);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleBoutonsStyleHomographes(), true);

    AppelStyle const appel = Libelle(DonneOption(kNormal | etat));

    // The application's accent, whatever palette the button has.
    QCOMPARE(appel.palette.buttonText().color(), accent ? kAccentApplication : kTexte);
    QCOMPARE(appel.option.state, (kNormal | etat) & ~QStyle::State_MouseOver);
}

void tst_DStyleProxyLibelleBouton::homographeValeurs_data()
{
    AjouteValeurs(kToutVrai);
}

void tst_DStyleProxyLibelleBouton::homographeValeurs()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleBoutonsStyleHomographes(), valeur);

    AppelStyle const appel = Libelle(DonneOption(kNormal | QStyle::State_MouseOver));

    QCOMPARE(appel.palette.buttonText().color(), compte ? kAccentApplication : kTexte);
    QCOMPARE(appel.option.state.testFlag(QStyle::State_MouseOver), !compte);
}

void tst_DStyleProxyLibelleBouton::parDefaut_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("texte");
    QTest::addColumn<bool>("coche");
    QTest::newRow("normal is white") << kNormal << QColor(Qt::white) << false;
    QTest::newRow("under the mouse is white")
        << QStyle::State(kNormal | QStyle::State_MouseOver) << QColor(Qt::white) << false;
    QTest::newRow("pressed is on")
        << QStyle::State(kNormal | QStyle::State_Sunken) << kTexte << true;
    QTest::newRow("disabled counts as pressed") << QStyle::State() << kTexte << true;
}

void tst_DStyleProxyLibelleBouton::parDefaut()
{
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, texte);
    QFETCH(bool, coche);

    AppelStyle const appel = Libelle(DonneOption(etat, true));

    QCOMPARE(appel.palette.buttonText().color(), texte);
    QCOMPARE(appel.option.state.testFlag(QStyle::State_On), coche);
}

void tst_DStyleProxyLibelleBouton::parDefautSansWidget()
{
    monBanc->bouton.reset();

    AppelStyle const appel = Libelle(DonneOption(kNormal, true));
    QCOMPARE(appel.palette.buttonText().color(), kTexte);

    AppelStyle const presse = Libelle(DonneOption(kNormal | QStyle::State_Sunken, true));
    QVERIFY(!presse.option.state.testFlag(QStyle::State_On));
}

void tst_DStyleProxyLibelleBouton::parDefautSansBiseau_data()
{
    AjouteValeurs(kBooleenSeul);
}

// White is for the accent colour of the bevel.
void tst_DStyleProxyLibelleBouton::parDefautSansBiseau()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleDesactiveBevelBouton(), valeur);
    QStyleOptionButton option = DonneOption(kNormal, true);
    option.palette.setColor(QPalette::ButtonText, kTexte);

    QColor const couleur = Libelle(option).palette.buttonText().color();

    QCOMPARE(couleur, compte ? kTexte : QColor(Qt::white));
}

void tst_DStyleProxyLibelleBouton::homographeParDefaut()
{
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleBoutonsStyleHomographes(), true);

    AppelStyle const appel = Libelle(DonneOption(kNormal | QStyle::State_MouseOver, true));

    QCOMPARE(appel.palette.buttonText().color(), QColor(Qt::white));
    QVERIFY(!appel.option.state.testFlag(QStyle::State_MouseOver));
}

void tst_DStyleProxyLibelleBouton::deStyle()
{
    monBanc->bouton->setProperty(DStyleProxy::DonneNomStyleBoutonsStyleHomographes(), true);
    monBanc->bouton->setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);

    AppelStyle const appel = Libelle(DonneOption(QStyle::State_MouseOver, true));

    QCOMPARE(appel.option.state, QStyle::State(QStyle::State_MouseOver));
    QCOMPARE(appel.palette.buttonText().color(), kTexte);
}

QTEST_MAIN(tst_DStyleProxyLibelleBouton)
#include "tst_DStyleProxyLibelleBouton.moc"
