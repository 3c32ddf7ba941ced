// tests/style/tst_DStyleProxyTransparence.cpp
#include "style/EssaisPeinture.h"
#include "style/EssaisTransparence.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(2, 2, 36, 22);
constexpr QSize kTaille(40, 26);

struct Appel
{
    AppelStyle::eFonction fonction;
    int element;
};

// What the style draws itself, or changes the picture of, without any property.
constexpr Appel kPropres[] = {
    {AppelStyle::kControle, QStyle::CE_PushButtonBevel},
    {AppelStyle::kControle, QStyle::CE_PushButtonLabel},
    {AppelStyle::kControle, QStyle::CE_TabBarTabShape},
    {AppelStyle::kControle, QStyle::CE_ItemViewItem},
    {AppelStyle::kControle, QStyle::CE_HeaderSection},
    {AppelStyle::kControle, QStyle::CE_ShapedFrame},
    {AppelStyle::kPrimitive, QStyle::PE_FrameTabBarBase},
    {AppelStyle::kPrimitive, QStyle::PE_PanelButtonTool},
    {AppelStyle::kPrimitive, QStyle::PE_IndicatorArrowDown},
    {AppelStyle::kPrimitive, QStyle::PE_IndicatorButtonDropDown},
    {AppelStyle::kPrimitive, QStyle::PE_PanelItemViewItem},
};

bool EstPropre(AppelStyle const & appel)
{
    return std::any_of(std::begin(kPropres), std::end(kPropres), [&](Appel const & propre) {
        return propre.fonction == appel.fonction && propre.element == appel.element;
    });
}

void Dessine(QStyle & style, Appel const & appel, QStyleOption const & option, QPainter & peintre,
             QWidget const * widget)
{
    if (appel.fonction == AppelStyle::kControle)
        style.drawControl(QStyle::ControlElement(appel.element), &option, &peintre, widget);
    else if (appel.fonction == AppelStyle::kPrimitive)
        style.drawPrimitive(QStyle::PrimitiveElement(appel.element), &option, &peintre, widget);
    else if (auto const * complexe = qstyleoption_cast<QStyleOptionComplex const *>(&option))
        style.drawComplexControl(QStyle::ComplexControl(appel.element), complexe, &peintre, widget);
}

QList<Appel> DonneTous()
{
    QList<Appel> tous;
    for (int i = 0; i <= int(QStyle::CE_ShapedFrame); ++i)
        tous.append({AppelStyle::kControle, i});
    for (int i = 0; i <= int(QStyle::PE_PanelMenu); ++i)
        tous.append({AppelStyle::kPrimitive, i});
    for (int i = 0; i <= int(QStyle::CC_MdiControls); ++i)
        tous.append({AppelStyle::kComplexe, i});
    return tous;
}

// One option of each class that a base may look for, filled in as far as it shows.
struct Options
{
    QStyleOption simple;
    QStyleOptionFocusRect focus;
    QStyleOptionButton bouton;
    QStyleOptionTab onglet;
    QStyleOptionTabWidgetFrame cadreOnglets;
    QStyleOptionToolBar barre;
    QStyleOptionProgressBar progression;
    QStyleOptionMenuItem menu;
    QStyleOptionFrame cadre;
    QStyleOptionViewItem item;
    QStyleOptionHeader entete;
    QStyleOptionDockWidget ancrage;
    QStyleOptionToolBox boite;
    QStyleOptionRubberBand elastique;
    QStyleOptionSlider reglette;
    QStyleOptionSpinBox compteur;
    QStyleOptionComboBox liste;
    QStyleOptionToolButton outil;
    QStyleOptionTitleBar titre;
    QStyleOptionGroupBox groupe;
    QStyleOptionSizeGrip poignee;

    QList<QStyleOption *> Donne()
    {
        return {&simple,   &focus,    &bouton, &onglet, &cadreOnglets, &barre,  &progression,
                &menu,     &cadre,    &item,   &entete, &ancrage,      &boite,  &elastique,
                &reglette, &compteur, &liste,  &outil,  &titre,        &groupe, &poignee};
    }

    explicit Options(QStyle::State etat)
    {
        QString const texte = u"Texte"_s;
        bouton.text = onglet.text = menu.text = item.text = entete.text = texte;
        boite.text = liste.currentText = outil.text = titre.text = groupe.text = texte;
        progression.maximum = reglette.maximum = 10;
        progression.progress = reglette.sliderPosition = 4;
        menu.menuItemType = QStyleOptionMenuItem::Normal;
        cadre.lineWidth = 1;
        for (QStyleOption * option : Donne()) {
            option->rect = kRect;
            option->state = etat;
            option->palette = DonnePaletteEssai(etat & QStyle::State_Enabled ? QPalette::Active
                                                                             : QPalette::Disabled);
        }
    }
};

} // namespace

// With no property and no special case, the style adds nothing to its base.
class tst_DStyleProxyTransparence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void elements_data();
    void elements();
    void widgets_data();
    void widgets();
};

void tst_DStyleProxyTransparence::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyTransparence::elements_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QStyle::State>("etat");
    struct
    {
        char const * nom;
        QStyle::State etat;
    } const etats[] = {{"enabled", QStyle::State_Enabled | QStyle::State_Active},
                       {"checked", QStyle::State_Enabled | QStyle::State_On},
                       {"disabled", QStyle::State_None}};
    for (QString const & base : {u"Fusion"_s, u"Windows"_s}) {
        for (double const ratio : {1.0, 1.25, 2.0}) {
            for (auto const & etat : etats)
                QTest::addRow("%s, %s at %g", qPrintable(base), etat.nom, ratio)
                    << base << ratio << etat.etat;
        }
    }
}

void tst_DStyleProxyTransparence::elements()
{
    QFETCH(QString, base);
    QFETCH(double, ratio);
    QFETCH(QStyle::State, etat);
    StyleEspion seul(StyleEspion::kDessine, base);
    DStyleProxy style(QStyleFactory::create(base));
    QWidget widget;
    Options options(etat);
    int compares = 0;

    for (Appel const & appel : DonneTous()) {
        for (QStyleOption const * option : options.Donne()) {
            seul.appels.clear();
            auto const peins = [&](QStyle & peintre) {
                return Peins(
                    kTaille, [&](QPainter & p) { Dessine(peintre, appel, *option, p, &widget); },
                    ratio);
            };
            peins(seul); // fills the base's cache of pictures
            QImage const attendue = peins(seul);
            // Whatever asks for one of the style's own elements looks different.
            if (std::any_of(seul.appels.cbegin(), seul.appels.cend(), EstPropre))
                continue;
            ++compares;
            if (peins(style) != attendue)
                QFAIL(qPrintable(u"function %1, element %2, option %3"_s.arg(appel.fonction)
                                     .arg(appel.element)
                                     .arg(option->type)));
        }
    }
    QVERIFY2(compares > 1500, qPrintable(QString::number(compares)));
}

void tst_DStyleProxyTransparence::widgets_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<double>("ratio");
    for (QString const & base : {u"Fusion"_s, u"Windows"_s}) {
        for (double const ratio : {1.0, 1.25, 2.0})
            QTest::addRow("%s at %g", qPrintable(base), ratio) << base << ratio;
    }
}

void tst_DStyleProxyTransparence::widgets()
{
    QFETCH(QString, base);
    QFETCH(double, ratio);
    std::unique_ptr<QStyle> const seul(QStyleFactory::create(base));
    DStyleProxy style(QStyleFactory::create(base));

    for (WidgetOrdinaire const & ordinaire : DonneWidgetsOrdinaires(base)) {
        for (bool const actif : {true, false}) {
            QImage const attendue = PeinsWidget(ordinaire, *seul, actif, ratio);
            QVERIFY2(PeinsWidget(ordinaire, style, actif, ratio) == attendue, ordinaire.nom);
        }
    }
}

QTEST_MAIN(tst_DStyleProxyTransparence)
#include "tst_DStyleProxyTransparence.moc"
