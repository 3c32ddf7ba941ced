// tests/style/tst_DStyleProxyApplication.cpp
#include "foundation/ThemesQt.h"
#include "style/DStyleProxy.h"

#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Fabrique = std::function<std::unique_ptr<QWidget>()>;

struct WidgetReel
{
    char const * nom;
    Fabrique fabrique;
};

template <typename Vue>
std::unique_ptr<QWidget> FabriqueVue()
{
    auto vue = std::make_unique<Vue>();
    auto * const modele = new QStandardItemModel(3, 2, vue.get());
    for (int rangee = 0; rangee < 3; ++rangee)
        modele->setItem(rangee, 0, new QStandardItem(u"<b>Rangée</b> %1"_s.arg(rangee)));
    modele->item(1)->setCheckable(true);
    vue->setModel(modele);
    vue->setSelectionBehavior(QAbstractItemView::SelectRows);
    vue->setCurrentIndex(modele->index(0, 0));
    return vue;
}

std::unique_ptr<QWidget> FabriqueOutil()
{
    auto outil = std::make_unique<QToolButton>();
    auto * const menu = new QMenu(outil.get());
    outil->setMenu(menu);
    outil->setPopupMode(QToolButton::MenuButtonPopup);
    outil->setAutoRaise(true);
    outil->setDown(true);
    outil->setIcon(outil->style()->standardIcon(QStyle::SP_FileIcon));
    return outil;
}

std::unique_ptr<QWidget> FabriqueMenu()
{
    auto menu = std::make_unique<QMenu>();
    menu->addAction(u"Couper\tCtrl+X"_s)->setCheckable(true);
    menu->addAction(u"<b>Coller</b>"_s);
    menu->addSeparator();
    menu->setActiveAction(menu->actions().first());
    return menu;
}

std::unique_ptr<QWidget> FabriqueOnglets()
{
    auto onglets = std::make_unique<QTabWidget>();
    for (int i = 0; i < 4; ++i)
        onglets->addTab(new QLabel(u"Page"_s), u"Onglet %1"_s.arg(i));
    return onglets;
}

std::unique_ptr<QWidget> FabriqueBouton()
{
    auto bouton = std::make_unique<QPushButton>(u"Choisir"_s);
    bouton->setDefault(true);
    bouton->setIcon(bouton->style()->standardIcon(QStyle::SP_FileIcon));
    return bouton;
}

std::unique_ptr<QWidget> FabriqueCombo()
{
    auto combo = std::make_unique<QComboBox>();
    combo->addItems({u"Un"_s, u"<b>Deux</b>"_s});
    return combo;
}

std::vector<WidgetReel> DonneWidgets()
{
    return {
        {"push button", FabriqueBouton},
        {"tool button", FabriqueOutil},
        {"menu", FabriqueMenu},
        {"tabs", FabriqueOnglets},
        {"combo box", FabriqueCombo},
        {"list", FabriqueVue<QListView>},
        {"tree", FabriqueVue<QTreeView>},
        {"table", FabriqueVue<QTableView>},
        {"check box", [] { return std::make_unique<QCheckBox>(u"Case"_s); }},
        {"radio button", [] { return std::make_unique<QRadioButton>(u"Choix"_s); }},
        {"line edit", [] { return std::make_unique<QLineEdit>(u"Champ"_s); }},
        {"text", [] { return std::make_unique<QTextEdit>(u"Texte"_s); }},
        {"spin box", [] { return std::make_unique<QSpinBox>(); }},
        {"slider", [] { return std::make_unique<QSlider>(); }},
        {"progress bar", [] { return std::make_unique<QProgressBar>(); }},
        {"group box", [] { return std::make_unique<QGroupBox>(u"Groupe"_s); }},
        {"tool box", [] { return std::make_unique<QToolBox>(); }},
        {"calendar", [] { return std::make_unique<QCalendarWidget>(); }},
        {"dialog buttons", [] { return std::make_unique<QDialogButtonBox>(QDialogButtonBox::Ok); }},
    };
}

constexpr char const * (*kProprietes[])() = {
    DStyleProxy::DonneNomAttributPourStyle,
    DStyleProxy::DonneNomAttributPourStyleBoutonCheckable,
    DStyleProxy::DonneNomAttributPourStyleMonochrome,
    DStyleProxy::DonneNomAttributPourStyleScrolling,
    DStyleProxy::DonneNomAttributStyleBoutonSansDecalage,
    DStyleProxy::DonneNomAttributStyleChampTexteSansLigneDecoratrice,
    DStyleProxy::DonneNomAttributStyleComboBoxSansFleche,
    DStyleProxy::DonneNomAttributStyleCrochetMenu,
    DStyleProxy::DonneNomAttributMenuCochableSansLaSectionACocher,
    DStyleProxy::DonneNomProprietePossedeRegleTexteRiche,
    DStyleProxy::DonneNomStyleBoutonsStyleHomographes,
    DStyleProxy::DonneNomStyleComboBoxSansFrame,
    DStyleProxy::DonneNomStyleCouleurBordure,
    DStyleProxy::DonneNomStyleDesactiveBevelBouton,
    DStyleProxy::DonneNomStyleDesactiveFlecheMenuBouton,
    DStyleProxy::DonneNomStyleEspacementReduitCaseCochay,
    DStyleProxy::DonneNomStyleFocusSansRect,
    DStyleProxy::DonneNomStyleListSeparateur,
    DStyleProxy::DonneNomStyleSelecteurDictionnaires,
    DStyleProxy::DonneNomStyleSelecteurGuides,
    DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche, // a value of the wrong type
};

} // namespace

// Every widget of Qt is drawn by the application's style with every property, and with all.
class tst_DStyleProxyApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void cleanupTestCase();
    void dessine_data();
    void dessine();
};

void tst_DStyleProxyApplication::init()
{
    QApplication::setStyle(new DStyleProxy(QStyleFactory::create(u"Fusion"_s)));
}

void tst_DStyleProxyApplication::cleanup()
{
    QApplication::setStyle(u"Fusion"_s);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyApplication::cleanupTestCase()
{
    ThemesQt::DetruisToi();
}

void tst_DStyleProxyApplication::dessine_data()
{
    QTest::addColumn<Fabrique>("fabrique");
    for (WidgetReel const & widget : DonneWidgets())
        QTest::newRow(widget.nom) << widget.fabrique;
}

void tst_DStyleProxyApplication::dessine()
{
    QFETCH(Fabrique, fabrique);
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    auto const essaie = [](QWidget & widget) {
        widget.resize(200, 120);
        for (Qt::LayoutDirection const sens : {Qt::LeftToRight, Qt::RightToLeft}) {
            widget.setLayoutDirection(sens);
            for (bool const actif : {true, false}) {
                widget.setEnabled(actif);
                QVERIFY(!widget.grab().isNull());
            }
        }
    };
    auto const cumul = fabrique();
    for (auto const propriete : kProprietes) {
        auto const seul = fabrique();
        seul->setProperty(propriete(), true);
        essaie(*seul);
        cumul->setProperty(propriete(), true);
        essaie(*cumul);
    }
}

QTEST_MAIN(tst_DStyleProxyApplication)
#include "tst_DStyleProxyApplication.moc"
