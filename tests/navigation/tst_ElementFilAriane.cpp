// tests/navigation/tst_ElementFilAriane.cpp
#include "navigation/ElementFilAriane.h"

#include "navigation/StylePolisseur.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QLabel * Texte(ElementFilAriane const & element)
{
    return element.findChild<QLabel *>();
}

QSvgWidget * Icone(ElementFilAriane const & element)
{
    return element.findChild<QSvgWidget *>();
}

/// What the icon draws at a place, with nothing behind it.
QColor Couleur(ElementFilAriane const & element, QPoint const & place)
{
    QImage image(Icone(element)->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    Icone(element)->render(&image, {}, {}, QWidget::DrawChildren);
    return image.pixelColor(place);
}

} // namespace

class tst_ElementFilAriane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void etat_data();
    void etat();
    void etatInconnu();
    void repolitLeTexte();
    void regleDuStyle();
    void proportions_data();
    void proportions();
    void ressourceAbsente();
    void chaine();
    void tailleDIcone();
    void cacheIcone();
    void clavier();
};

void tst_ElementFilAriane::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ElementFilAriane::construction()
{
    QWidget parent;
    ElementFilAriane const element(&parent);
    QCOMPARE(element.parentWidget(), &parent);

    auto * const disposition = qobject_cast<QHBoxLayout *>(element.layout());
    QVERIFY(disposition);
    QCOMPARE(disposition->contentsMargins(), QMargins());
    QCOMPARE(disposition->spacing(), 0);
    QCOMPARE(disposition->count(), 2);
    QCOMPARE(disposition->itemAt(0)->widget(), Icone(element));
    QCOMPARE(disposition->itemAt(1)->widget(), Texte(element));

    QCOMPARE(Texte(element)->text(), QString());
    QCOMPARE(Texte(element)->objectName(), u"ArianeTexteInactif"_s);
    QCOMPARE(Texte(element)->focusPolicy(), Qt::TabFocus);
    QCOMPARE(Icone(element)->minimumSize(), QSize(16, 16));
    QCOMPARE(Icone(element)->maximumSize(), QSize(16, 16));
    QCOMPARE(Couleur(element, {8, 8}), QColor(0, 255, 0)); // a step still to come
}

void tst_ElementFilAriane::etat_data()
{
    QTest::addColumn<int>("etat");
    QTest::addColumn<QColor>("icone");
    QTest::addColumn<QString>("nom");
    QTest::newRow("welcome") << 0 << QColor(255, 0, 0) << u"ArianeTexteBienvenue"_s;
    QTest::newRow("to come") << 1 << QColor(0, 255, 0) << u"ArianeTexteInactif"_s;
    QTest::newRow("under way") << 2 << QColor(0, 0, 255) << u"ArianeTexteActif"_s;
    QTest::newRow("done") << 3 << QColor(255, 0, 255) << u"ArianeTexteInactif"_s;
}

void tst_ElementFilAriane::etat()
{
    QFETCH(int, etat);
    QFETCH(QColor, icone);
    QFETCH(QString, nom);
    for (int const avant : {0, 1, 2, 3}) {
        ElementFilAriane element(nullptr);
        element.MetsEtat(ElementFilAriane::eEtat(avant));
        element.MetsEtat(ElementFilAriane::eEtat(etat));
        QCOMPARE(Couleur(element, {8, 8}), icone);
        QCOMPARE(Texte(element)->objectName(), nom);
    }
    QCOMPARE(int(ElementFilAriane::kBienvenue), 0);
    QCOMPARE(int(ElementFilAriane::kAVenir), 1);
    QCOMPARE(int(ElementFilAriane::kEnCours), 2);
    QCOMPARE(int(ElementFilAriane::kFait), 3);
}

void tst_ElementFilAriane::etatInconnu()
{
    StylePolisseur style;
    ElementFilAriane element(nullptr);
    element.MetsEtat(ElementFilAriane::kEnCours);
    Texte(element)->setStyle(&style);
    for (int const valeur : {-1, 4, 1000}) {
        style.appels.clear();
        // Only an integer can bring a value in that no name stands for.
        int const etat = valeur;
        element.MetsEtat(static_cast<ElementFilAriane::eEtat>(etat));
        QCOMPARE(style.appels, QStringList({u"u ArianeTexteActif"_s, u"p ArianeTexteActif"_s}));
        QCOMPARE(Couleur(element, {8, 8}), QColor(0, 0, 255));
        QCOMPARE(Texte(element)->objectName(), u"ArianeTexteActif"_s);
    }
}

void tst_ElementFilAriane::repolitLeTexte()
{
    StylePolisseur style;
    ElementFilAriane element(nullptr);
    Texte(element)->setStyle(&style);
    style.appels.clear();
    element.MetsEtat(ElementFilAriane::kBienvenue);
    // The name comes first: the style is to see the new one.
    QCOMPARE(style.appels, QStringList({u"u ArianeTexteBienvenue"_s, u"p ArianeTexteBienvenue"_s}));
}

void tst_ElementFilAriane::regleDuStyle()
{
    ElementFilAriane element(nullptr);
    element.setStyleSheet(u"#ArianeTexteActif{color: #112233;}"_s);
    element.show();
    QVERIFY(Texte(element)->palette().color(QPalette::WindowText) != QColor(0x11, 0x22, 0x33));
    element.MetsEtat(ElementFilAriane::kEnCours);
    QCOMPARE(Texte(element)->palette().color(QPalette::WindowText), QColor(0x11, 0x22, 0x33));
    element.MetsEtat(ElementFilAriane::kFait);
    QVERIFY(Texte(element)->palette().color(QPalette::WindowText) != QColor(0x11, 0x22, 0x33));
}

void tst_ElementFilAriane::proportions_data()
{
    QTest::addColumn<bool>("change");
    QTest::newRow("new marker") << false;
    QTest::newRow("after another icon was loaded") << true;
}

// The icons of the test are twice as wide as high.
void tst_ElementFilAriane::proportions()
{
    QFETCH(bool, change);
    ElementFilAriane element(nullptr);
    if (change)
        element.MetsEtat(ElementFilAriane::kFait);
    QCOMPARE(Icone(element)->renderer()->aspectRatioMode(), Qt::KeepAspectRatio);
    QCOMPARE(Couleur(element, {8, 8}).alpha(), 255);
    QCOMPARE(Couleur(element, {8, 1}).alpha(), 0);
    QCOMPARE(Couleur(element, {8, 14}).alpha(), 0);
    QCOMPARE(Couleur(element, {0, 8}).alpha(), 255);
}

void tst_ElementFilAriane::ressourceAbsente()
{
    // The test's icons go away for a moment, as in an application that brings none.
    Q_CLEANUP_RESOURCE(IconesAriane);
    auto const rends = qScopeGuard([] { Q_INIT_RESOURCE(IconesAriane); });
    QTest::failOnWarning(QRegularExpression(u".*"_s));

    ElementFilAriane element(nullptr);
    QCOMPARE(Couleur(element, {8, 8}).alpha(), 0);
    QVERIFY(!Icone(element)->renderer()->isValid());
    element.MetsEtat(ElementFilAriane::kFait);
    QCOMPARE(Couleur(element, {8, 8}).alpha(), 0);
    QCOMPARE(Texte(element)->objectName(), u"ArianeTexteInactif"_s);
}

void tst_ElementFilAriane::chaine()
{
    ElementFilAriane element(nullptr);
    element.PrendChaine(u"Étape 1"_s);
    QCOMPARE(Texte(element)->text(), u"Étape 1"_s);
    element.MetsEtat(ElementFilAriane::kEnCours);
    QCOMPARE(Texte(element)->text(), u"Étape 1"_s);
    element.PrendChaine({});
    QCOMPARE(Texte(element)->text(), QString());
}

void tst_ElementFilAriane::tailleDIcone()
{
    ElementFilAriane element(nullptr);
    element.MetsTailleIcone({24, 20});
    QCOMPARE(Icone(element)->minimumSize(), QSize(24, 20));
    QCOMPARE(Icone(element)->maximumSize(), QSize(24, 20));
    element.MetsEtat(ElementFilAriane::kEnCours);
    QCOMPARE(Icone(element)->maximumSize(), QSize(24, 20));
}

void tst_ElementFilAriane::cacheIcone()
{
    ElementFilAriane element(nullptr);
    element.PrendChaine(u"Texte"_s);
    element.show();
    int const largeur = element.sizeHint().width();

    element.CacheIcone(true);
    QVERIFY(!Icone(element)->isVisible());
    QVERIFY(Texte(element)->isVisible());
    QCOMPARE(element.sizeHint().width(), largeur - 16);
    element.MetsEtat(ElementFilAriane::kFait);
    QVERIFY(!Icone(element)->isVisible());

    element.CacheIcone(false);
    QVERIFY(Icone(element)->isVisible());
    QCOMPARE(element.sizeHint().width(), largeur);
}

void tst_ElementFilAriane::clavier()
{
    QWidget fenetre;
    QHBoxLayout disposition(&fenetre);
    ElementFilAriane premier(&fenetre);
    ElementFilAriane second(&fenetre);
    disposition.addWidget(&premier);
    disposition.addWidget(&second);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));

    Texte(premier)->setFocus();
    QTest::keyClick(Texte(premier), Qt::Key_Tab);
    QVERIFY(Texte(second)->hasFocus());
    QTest::mouseClick(Texte(premier), Qt::LeftButton);
    QVERIFY(Texte(second)->hasFocus()); // by the keyboard only
}

QTEST_MAIN(tst_ElementFilAriane)
#include "tst_ElementFilAriane.moc"
