#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QProxyStyle>
#include <QScopeGuard>
#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

// Keeps the order in which a button is taken out of the style and put back.
class StyleEspion : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void polish(QWidget * widget) override
    {
        Note(widget, u'+');
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget * widget) override
    {
        Note(widget, u'-');
        QProxyStyle::unpolish(widget);
    }

    QStringList lignes;

private:
    void Note(QWidget * widget, QChar signe)
    {
        if (widget->objectName() == "boutonFermeture"_L1)
            lignes.append(signe + widget->property("selectionnay").toString());
    }
};

} // namespace

// The colours of the titles, and what marks the close button of the active tab.
class tst_DTabWidgetCouleurs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void activesJusquAuPremierChangement();
    void ongletAjoutayApresUnChangement();
    void ongletNeufTantQueLActifNeChangePas();
    void insertionAvantLActif();
    void retraitDeLActif();
    void retrait_data();
    void retrait();
    void deplacement_data();
    void deplacement();
    void deplacementVersUnAutreWidget();
    void pageReprise();
    void suitLeTheme();
    void suitLesFeuillesDeLApplication();
    void repolitLesBoutons();
    void remetLIcone();
    void feuilleDeStyle();
};

void tst_DTabWidgetCouleurs::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetCouleurs::activesJusquAuPremierChangement()
{
    QVERIFY(CouleurActive() != CouleurGrise());
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    QCOMPARE(Couleurs(onglets), u"AAA"_s);
    onglets.MetsIndexCourant(1);
    QCOMPARE(Couleurs(onglets), u"gAg"_s);
    onglets.MetsIndexCourant(2);
    QCOMPARE(Couleurs(onglets), u"ggA"_s);
    onglets.MetsIndexCourant(2);
    QCOMPARE(Couleurs(onglets), u"ggA"_s);
}

void tst_DTabWidgetCouleurs::ongletAjoutayApresUnChangement()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.MetsIndexCourant(1);
    Remplis(onglets, u"c d"_s);
    QCOMPARE(Couleurs(onglets), u"gAAA"_s);
    onglets.MetsIndexCourant(2);
    QCOMPARE(Couleurs(onglets), u"ggAg"_s);
}

// Another index for the active tab is no change of tab.
void tst_DTabWidgetCouleurs::ongletNeufTantQueLActifNeChangePas()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(2);
    Remplis(onglets, u"d"_s);
    QCOMPARE(Couleurs(onglets), u"ggAA"_s);
    delete onglets.DonneWidget(1);
    QCOMPARE(Couleurs(onglets), u"gAA"_s);
    onglets.InsereOnglet(Page(u"n"_s), 0, u"n"_s);
    QCOMPARE(Couleurs(onglets), u"AgAA"_s);
    Barre(onglets).moveTab(0, 2); // past the active one
    QCOMPARE(Titres(onglets), u"a c n d"_s);
    QCOMPARE(Couleurs(onglets), u"gAAA"_s);
    Barre(onglets).moveTab(2, 1); // and back
    QCOMPARE(Couleurs(onglets), u"gAAA"_s);
    Barre(onglets).moveTab(2, 0); // the active one itself
    QCOMPARE(Couleurs(onglets), u"AgAA"_s);
    Barre(onglets).moveTab(0, 2);
    QCOMPARE(Couleurs(onglets), u"gAAA"_s);
    QVERIFY(!Fermeture(onglets, 1)->property("selectionnay").isValid());
    QVERIFY(!Fermeture(onglets, 3)->property("selectionnay").isValid());
    onglets.MetsIndexCourant(0);
    QCOMPARE(Couleurs(onglets), u"Aggg"_s);
}

void tst_DTabWidgetCouleurs::insertionAvantLActif()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    onglets.InsereOnglet(Page(u"n"_s), 0, u"n"_s);
    QCOMPARE(Couleurs(onglets), u"AgAg"_s);
    onglets.MetsIndexCourant(3);
    QCOMPARE(Couleurs(onglets), u"gggA"_s);
    QCOMPARE(Fermeture(onglets, 2)->property("selectionnay"), QVariant(false));
    QVERIFY(!Fermeture(onglets, 0)->property("selectionnay").isValid());
}

// Another one takes its place and its index: that is a change of tab.
void tst_DTabWidgetCouleurs::retraitDeLActif()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    Remplis(onglets, u"d"_s);
    QCOMPARE(Couleurs(onglets), u"gAgA"_s);
    QScopedPointer<QWidget> const page(onglets.DonneWidget(1));
    onglets.RetireOnglet(1);
    QCOMPARE(Titres(onglets), u"a c d"_s);
    QCOMPARE(Couleurs(onglets), u"gAg"_s);
}

void tst_DTabWidgetCouleurs::retrait_data()
{
    QTest::addColumn<int>("courant");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("couleurs");
    for (int courant = 0; courant < 4; ++courant) {
        for (int index = 0; index < 4; ++index) {
            int const suivant = index < courant ? courant - 1 : std::min(courant, 2);
            QString couleurs = u"ggg"_s;
            couleurs[suivant] = u'A';
            QTest::addRow("%d of 4 while %d is active", index, courant)
                << courant << index << couleurs;
        }
    }
}

void tst_DTabWidgetCouleurs::retrait()
{
    QFETCH(int, courant);
    QFETCH(int, index);
    QFETCH(QString, couleurs);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c d"_s);
    onglets.MetsIndexCourant(courant == 0 ? 1 : 0);
    onglets.MetsIndexCourant(courant);
    QScopedPointer<QWidget> const page(onglets.DonneWidget(index));
    onglets.RetireOnglet(index);
    QCOMPARE(Couleurs(onglets), couleurs);
    int const actif = int(couleurs.indexOf(u'A'));
    QCOMPARE(onglets.DonneIndexCourant(), actif);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(Fermeture(onglets, i)->property("selectionnay").toBool(), i == actif);

    onglets.MetsIndexCourant(0);
    onglets.MetsIndexCourant(1);
    QCOMPARE(Couleurs(onglets), u"gAg"_s);
}

void tst_DTabWidgetCouleurs::deplacement_data()
{
    QTest::addColumn<int>("courant");
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    for (int courant = 0; courant < 4; ++courant)
        for (int de = 0; de < 4; ++de)
            for (int vers = 0; vers < 4; ++vers)
                QTest::addRow("%d to %d while %d is active", de, vers, courant)
                    << courant << de << vers;
}

void tst_DTabWidgetCouleurs::deplacement()
{
    QFETCH(int, courant);
    QFETCH(int, de);
    QFETCH(int, vers);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c d"_s);
    onglets.MetsIndexCourant(courant == 0 ? 1 : 0);
    onglets.MetsIndexCourant(courant);
    QWidget * const page = onglets.DonneWidgetCourant();
    Barre(onglets).moveTab(de, vers);
    QCOMPARE(onglets.DonneWidgetCourant(), page);
    QString attendu = u"gggg"_s;
    attendu[Pile(onglets).indexOf(page)] = u'A';
    QCOMPARE(Couleurs(onglets), attendu);

    onglets.MetsIndexCourant(0);
    onglets.MetsIndexCourant(3);
    QCOMPARE(Couleurs(onglets), u"gggA"_s);
}

void tst_DTabWidgetCouleurs::deplacementVersUnAutreWidget()
{
    DTabWidget source(nullptr, {});
    DTabWidget cible(nullptr, {});
    Remplis(source, u"a b c"_s);
    Remplis(cible, u"d e"_s);
    source.MetsIndexCourant(1);
    cible.MetsIndexCourant(1);
    QVERIFY(source.EnvoieOnglet(1, &cible, 0));
    QCOMPARE(Couleurs(source), u"gA"_s);
    QCOMPARE(Couleurs(cible), u"AgA"_s); // new there
    cible.MetsIndexCourant(1);
    QCOMPARE(Couleurs(cible), u"gAg"_s);
}

void tst_DTabWidgetCouleurs::pageReprise()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    delete onglets.DonneWidget(1);
    QCOMPARE(Couleurs(onglets), u"gA"_s);
    delete onglets.DonneWidget(0);
    QCOMPARE(Couleurs(onglets), u"A"_s);
}

void tst_DTabWidgetCouleurs::suitLeTheme()
{
    auto const retablis = qScopeGuard([] { ThemesQt::DetruisToi(); });
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.MetsIndexCourant(1);
    Remplis(onglets, u"c"_s);
    ThemesQt::Instance()->AjouterVariable(u"couleurTexteDeBase"_s, QColor(Qt::yellow));
    ThemesQt::Instance()->AjouterVariable(u"couleurTexteGris"_s, QColor(Qt::cyan));
    QCOMPARE(Couleurs(onglets), u"???"_s);

    QPalette palette = onglets.palette();
    palette.setColor(QPalette::Window, Qt::black);
    onglets.setPalette(palette);
    QCOMPARE(CouleurTitre(onglets, 1), QColor(Qt::yellow));
    QCOMPARE(Couleurs(onglets), u"gAA"_s);
    QCOMPARE(CouleurTitre(onglets, 0), QColor(Qt::cyan));

    ThemesQt::Instance()->AjouterVariable(u"couleurTexteDeBase"_s, QColor(Qt::magenta));
    onglets.setStyleSheet(u"QLabel { margin: 1px; }"_s);
    QCOMPARE(CouleurTitre(onglets, 1), QColor(Qt::magenta));
    QCOMPARE(Couleurs(onglets), u"gAA"_s);
}

// Sheets with colours take the labels' palettes away and give back those from before.
void tst_DTabWidgetCouleurs::suitLesFeuillesDeLApplication()
{
    auto const retablis = qScopeGuard([] {
        qApp->setStyleSheet({});
        ThemesQt::DetruisToi();
    });
    qApp->setStyleSheet(u"QWidget { color: #102030; }"_s);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.MetsIndexCourant(1);
    Remplis(onglets, u"c"_s);
    onglets.show(); // polished with that sheet
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));

    ThemesQt::Instance()->AjouterVariable(u"couleurTexteDeBase"_s, QColor(Qt::yellow));
    ThemesQt::Instance()->AjouterVariable(u"couleurTexteGris"_s, QColor(Qt::cyan));
    qApp->setStyleSheet(u"QPushButton { color: #302010; }"_s);
    QTRY_COMPARE(Couleurs(onglets), u"gAA"_s);
    QCOMPARE(CouleurTitre(onglets, 1), QColor(Qt::yellow));
    QCOMPARE(CouleurTitre(onglets, 0), QColor(Qt::cyan));
}

void tst_DTabWidgetCouleurs::repolitLesBoutons()
{
    StyleEspion style;
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    for (int i = 0; i < 3; ++i)
        Fermeture(onglets, i)->setStyle(&style);
    style.lignes.clear();
    onglets.MetsIndexCourant(2);
    // The property first, of the tab that becomes active before the one that was.
    QCOMPARE(style.lignes, (QStringList{u"-true"_s, u"+true"_s, u"-false"_s, u"+false"_s}));
}

void tst_DTabWidgetCouleurs::remetLIcone()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    qint64 const cle = Fermeture(onglets, 1)->icon().cacheKey();
    Fermeture(onglets, 0)->setIcon({});
    Fermeture(onglets, 1)->setIcon({});
    onglets.MetsIndexCourant(1);
    QCOMPARE(Fermeture(onglets, 1)->icon().cacheKey(), cle);
    QVERIFY(Fermeture(onglets, 0)->icon().isNull()); // only of the active one
}

// What a sheet asks by the property is there after each change.
void tst_DTabWidgetCouleurs::feuilleDeStyle()
{
    DTabWidget onglets(nullptr, {});
    onglets.setStyleSheet(
        u"QToolButton#boutonFermeture { border: none; background: #0000ff; }"
        "QToolButton#boutonFermeture[selectionnay=\"true\"] { background: #00ff00; }"
        "QToolButton#boutonFermeture[selectionnay=\"false\"] { background: #ff0000; }"_s);
    Remplis(onglets, u"a b"_s);
    onglets.resize(600, 200);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    auto const fond = [&](int index) {
        return Fermeture(onglets, index)->grab().toImage().pixelColor(8, 1); // beside the cross
    };
    QCOMPARE(fond(0), QColor(Qt::blue));
    onglets.MetsIndexCourant(1);
    QCOMPARE(fond(0), QColor(Qt::red));
    QCOMPARE(fond(1), QColor(Qt::green));
}

QTEST_MAIN(tst_DTabWidgetCouleurs)
#include "tst_DTabWidgetCouleurs.moc"
