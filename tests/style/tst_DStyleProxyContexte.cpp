// tests/style/tst_DStyleProxyContexte.cpp
#include "style/DStyleProxy.h"

#include "style/InterpreteurChaineSemantiqueT.h"

#include <QtTest>

#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr eContextePourStyle kContextes[] = {kContexteNormal, kContexteSelectionnay,
                                             kContexteSurvolay, kContexteMenuSelectionnay};

constexpr QStyle::State kRepos = QStyle::State_Enabled | QStyle::State_HasFocus;

// A set with one rule of that name.
EnsembleRegles Ensemble(QString const & cle)
{
    return {{UniChaine(cle),
             InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
                 UniChaine("["), UniChaine("]"))}};
}

QStringList Cles(EnsembleRegles const & regles)
{
    QStringList cles;
    for (auto const & [cle, regle] : regles)
        cles.append(cle);
    return cles;
}

// What an application may keep in the property instead, once it has told Qt how to convert it.
struct NomDeRegle
{
    QString nom;
};

} // namespace

Q_DECLARE_METATYPE(NomDeRegle)

class tst_DStyleProxyContexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void valeurs();
    void contexteDeLOption_data();
    void contexteDeLOption();
    void contexteSansOption();
    void nomDuType();
    void reglesSansWidget();
    void reglesSansPropriete();
    void reglesParContexte();
    void reglesParContexteAbsent();
    void reglesVides();
    void reglesDunAutreType_data();
    void reglesDunAutreType();
    void reglesConverties();
    void reglesCopiees();

private:
    DStyleProxy & Style()
    {
        if (!monStyle)
            monStyle = std::make_unique<DStyleProxy>(QStyleFactory::create(u"Fusion"_s));
        return *monStyle;
    }

    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyContexte::cleanup()
{
    monStyle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// Keys of maps that applications have stored.
void tst_DStyleProxyContexte::valeurs()
{
    QCOMPARE(int(kContexteNormal), 0);
    QCOMPARE(int(kContexteSelectionnay), 1);
    QCOMPARE(int(kContexteSurvolay), 3);
    QCOMPARE(int(kContexteMenuSelectionnay), 4);
}

void tst_DStyleProxyContexte::contexteDeLOption_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("etat");
    QTest::addColumn<int>("contexte");
    struct
    {
        char const * nom;
        int type;
        int version;
        bool menu;
    } const options[] = {
        {"menu item", QStyleOption::SO_MenuItem, 1, true},
        {"later menu item", QStyleOption::SO_MenuItem, 2, true},
        {"menu item without a version", QStyleOption::SO_MenuItem, 0, false},
        {"view item", QStyleOption::SO_ViewItem, QStyleOptionViewItem::Version, false},
        {"button", QStyleOption::SO_Button, 1, false},
        {"any option", QStyleOption::SO_Default, 1, false},
    };
    for (auto const & option : options) {
        auto const ligne = [&option](char const * etat, QStyle::State bits, int contexte) {
            QTest::addRow("%s, %s", option.nom, etat)
                << option.type << option.version << int(kRepos | bits) << contexte;
        };
        ligne("at rest", QStyle::State_None, 0);
        ligne("pressed", QStyle::State_Sunken | QStyle::State_On, 0);
        ligne("under the mouse", QStyle::State_MouseOver, option.menu ? 0 : 3);
        ligne("selected", QStyle::State_Selected, option.menu ? 4 : 1);
        ligne("selected under the mouse", QStyle::State_Selected | QStyle::State_MouseOver,
              option.menu ? 4 : 1);
    }
}

void tst_DStyleProxyContexte::contexteDeLOption()
{
    QFETCH(int, type);
    QFETCH(int, version);
    QFETCH(int, etat);
    QStyleOption option(version, type);
    option.state = QStyle::State(etat);
    QTEST(int(DStyleProxy::DonneContexte(&option)), "contexte");
}

void tst_DStyleProxyContexte::contexteSansOption()
{
    QCOMPARE(DStyleProxy::DonneContexte(nullptr), kContexteNormal);
}

void tst_DStyleProxyContexte::nomDuType()
{
    qRegisterMetaType<MapDeRegles>();
    QCOMPARE(QMetaType::fromName("MapDeRegles"), QMetaType::fromType<MapDeRegles>());
    static_assert(std::is_same_v<MapDeRegles, QMap<eContextePourStyle, EnsembleRegles>>);
}

void tst_DStyleProxyContexte::reglesSansWidget()
{
    QStringList const cles = Cles(DStyleProxy::DonneReglesDeBase());
    for (eContextePourStyle const contexte : kContextes)
        QCOMPARE(Cles(Style().DonneInterpreteurPourContexte(contexte, nullptr)), cles);
}

void tst_DStyleProxyContexte::reglesSansPropriete()
{
    QWidget const widget;
    for (eContextePourStyle const contexte : kContextes)
        QVERIFY(Style().DonneInterpreteurPourContexte(contexte, &widget).empty());
}

void tst_DStyleProxyContexte::reglesParContexte()
{
    QWidget widget;
    MapDeRegles regles;
    for (eContextePourStyle const contexte : kContextes)
        regles[contexte] = Ensemble(u"contexte %1"_s.arg(contexte));
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(regles));
    for (eContextePourStyle const contexte : kContextes)
        QCOMPARE(Cles(Style().DonneInterpreteurPourContexte(contexte, &widget)),
                 QStringList(u"contexte %1"_s.arg(contexte)));
}

// Neither the normal context nor the base rules stand in for a context without an entry.
void tst_DStyleProxyContexte::reglesParContexteAbsent()
{
    QWidget widget;
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(MapDeRegles{{kContexteNormal, Ensemble(u"b"_s)}}));
    for (eContextePourStyle const contexte : kContextes) {
        QCOMPARE(Cles(Style().DonneInterpreteurPourContexte(contexte, &widget)),
                 contexte == kContexteNormal ? QStringList(u"b"_s) : QStringList());
    }
}

void tst_DStyleProxyContexte::reglesVides()
{
    QWidget widget;
    char const * const nom = DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche();
    widget.setProperty(nom, QVariant::fromValue(MapDeRegles()));
    QVERIFY(Style().DonneInterpreteurPourContexte(kContexteNormal, &widget).empty());
    widget.setProperty(nom, QVariant::fromValue(MapDeRegles{{kContexteNormal, EnsembleRegles()}}));
    QVERIFY(Style().DonneInterpreteurPourContexte(kContexteNormal, &widget).empty());
}

void tst_DStyleProxyContexte::reglesDunAutreType_data()
{
    QTest::addColumn<QVariant>("valeur");
    QTest::newRow("boolean") << QVariant(true);
    QTest::newRow("integer") << QVariant(0);
    QTest::newRow("text") << QVariant(u"b"_s);
    QTest::newRow("map of texts") << QVariant(QVariantMap{{u"0"_s, u"b"_s}});
    QTest::newRow("set without contexts") << QVariant::fromValue(Ensemble(u"b"_s));
    QTest::newRow("null text") << QVariant(QString());
    QTest::newRow("invalid") << QVariant();
}

void tst_DStyleProxyContexte::reglesDunAutreType()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QFETCH(QVariant, valeur);
    QWidget widget;
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(), valeur);
    QVERIFY(Style().DonneInterpreteurPourContexte(kContexteNormal, &widget).empty());
}

void tst_DStyleProxyContexte::reglesConverties()
{
    auto const convertit = [](NomDeRegle const & regle) {
        return MapDeRegles{{kContexteSelectionnay, Ensemble(regle.nom)}};
    };
    QVERIFY((QMetaType::registerConverter<NomDeRegle, MapDeRegles>(convertit)));
    QWidget widget;
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(NomDeRegle{u"q"_s}));
    QCOMPARE(Cles(Style().DonneInterpreteurPourContexte(kContexteSelectionnay, &widget)),
             QStringList(u"q"_s));
    QVERIFY(Style().DonneInterpreteurPourContexte(kContexteNormal, &widget).empty());
    QMetaType::unregisterConverterFunction(QMetaType::fromType<NomDeRegle>(),
                                           QMetaType::fromType<MapDeRegles>());
}

void tst_DStyleProxyContexte::reglesCopiees()
{
    QWidget widget;
    char const * const nom = DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche();
    widget.setProperty(nom, QVariant::fromValue(MapDeRegles{{kContexteNormal, Ensemble(u"b"_s)}}));
    EnsembleRegles const regles = Style().DonneInterpreteurPourContexte(kContexteNormal, &widget);
    widget.setProperty(nom, QVariant());
    QCOMPARE(
        QString(InterpreteurChaineSemantiqueT<UniChaine>::AppliqueRegles(u"<b>x</b>"_s, regles)),
        u"[x]"_s);
}

QTEST_MAIN(tst_DStyleProxyContexte)
#include "tst_DStyleProxyContexte.moc"
