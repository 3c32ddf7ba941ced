// tests/style/tst_DStyleProxyOnglets.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

// The tab stands in the middle of the picture: what reaches out of it is seen too.
constexpr int kMarge = 10;
constexpr QRect kRect(kMarge, kMarge, 60, 30);
constexpr QSize kTaille(80, 50);

QStyleOptionTab DonneOption(QStyle::State etat)
{
    QStyleOptionTab option;
    option.rect = kRect;
    option.state = etat | QStyle::State_Enabled;
    option.palette = DonnePaletteEssai();
    return option;
}

// Hidden bars don't place their tabs.
void Montre(QTabBar & barre)
{
    barre.setUsesScrollButtons(false);
    barre.resize(barre.sizeHint());
    barre.show();
}

// How much of the accent is in those pixels, in pixels: it alone has more red than blue.
double Accent(QImage const & image, QRect const & rect)
{
    int const plein = kAccentActif.red() - kAccentActif.blue();
    double somme = 0.0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            QColor const couleur = image.pixelColor(x, y);
            somme += (couleur.red() - couleur.blue()) * couleur.alphaF();
        }
    }
    return somme / plein;
}

} // namespace

class tst_DStyleProxyOnglets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void selectionnay();
    void selectionnayContour();
    void selectionnayLigneAccent();
    void survolay();
    void selectionnaySurvolay();
    void ordinaireSansBarre();
    void separateurs_data();
    void separateurs();
    void separateursSansOngletCourant();
    void separateursAutourDunOngletCachay();
    void separateurHorsDesOnglets();
    void separateurPlace_data();
    void separateurPlace();
    void ligneDeBase();
    void optionDuMauvaisType();

private:
    QList<int> DonneSepares(QTabBar & barre) const;
    QImage PeinsOnglet(QStyleOption const & option, QWidget const * widget = nullptr) const;

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyOnglets::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyOnglets::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The tabs of the bar that have a separator, each drawn at its place.
QList<int> tst_DStyleProxyOnglets::DonneSepares(QTabBar & barre) const
{
    Montre(barre);
    QList<int> separes;
    for (int i = 0; i < barre.count(); ++i) {
        if (!barre.isTabVisible(i))
            continue;
        QStyleOptionTab option = DonneOption({});
        option.rect = barre.tabRect(i);
        QImage const image = Peins(barre.size(), [&](QPainter & peintre) {
            monBanc->style.drawControl(QStyle::CE_TabBarTabShape, &option, &peintre, &barre);
        });
        if (!EstVide(image))
            separes.append(i);
    }
    return separes;
}

QImage tst_DStyleProxyOnglets::PeinsOnglet(QStyleOption const & option,
                                           QWidget const * widget) const
{
    return Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawControl(QStyle::CE_TabBarTabShape, &option, &peintre, widget);
    });
}

void tst_DStyleProxyOnglets::selectionnay()
{
    QImage const image = PeinsOnglet(DonneOption(QStyle::State_Selected));

    QVERIFY(monBanc->espion->appels.isEmpty());
    QCOMPARE(image.pixelColor(kRect.center()), QColor(Qt::white));
    QCOMPARE(image.pixelColor(kRect.center().x(), kRect.bottom() - 2), QColor(Qt::white));
    QCOMPARE(image.pixelColor(kRect.left() + 3, kRect.bottom() - 3), QColor(Qt::white));
    QVERIFY(Alpha(image, kRect.left(), kRect.top()) < 255); // rounded above, square below
    QCOMPARE(Alpha(image, 4, 25), 0);
    QCOMPARE(Alpha(image, 40, 47), 0);
}

// The outline is 21 dark, along the sides and not along the open bottom.
void tst_DStyleProxyOnglets::selectionnayContour()
{
    QStyleOptionTab const option = DonneOption(QStyle::State_Selected);
    QImage const image = Peins(kTaille, [&](QPainter & peintre) {
        peintre.fillRect(QRect(QPoint(), kTaille), Qt::white);
        monBanc->style.drawControl(QStyle::CE_TabBarTabShape, &option, &peintre, nullptr);
    });

    auto const noirceur = [&image](QRect const & rect) {
        int somme = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x)
                somme += 255 - qGreen(image.pixel(x, y));
        }
        return somme;
    };
    int const gauche = noirceur(QRect(kRect.left() - 2, 30, 5, 1));
    int const droite = noirceur(QRect(kRect.right() - 2, 30, 5, 1));
    QVERIFY2(qAbs(gauche - 21) <= 1, qPrintable(QString::number(gauche)));
    QVERIFY2(qAbs(droite - 21) <= 1, qPrintable(QString::number(droite)));
    QCOMPARE(noirceur(QRect(kRect.center().x(), kRect.bottom() - 3, 1, 8)), 0);
}

void tst_DStyleProxyOnglets::selectionnayLigneAccent()
{
    QImage const image = PeinsOnglet(DonneOption(QStyle::State_Selected));
    int const milieu = kRect.center().x();
    QRect const haut(kRect.left(), 0, kRect.width(), kRect.top() + 6);

    double const epaisseur = Accent(image, QRect(milieu, haut.top(), 1, haut.height()));
    QVERIFY2(qAbs(epaisseur - 3.0) < 0.2, qPrintable(QString::number(epaisseur)));
    // From 3 units in on each side, without ends of the pen.
    double const longueur = Accent(image, haut) / epaisseur;
    QVERIFY2(qAbs(longueur - 54.0) < 0.5, qPrintable(QString::number(longueur)));
    QCOMPARE(Accent(image, QRect(kRect.left(), 0, 1, 50)), 0.0);
    QCOMPARE(Accent(image, QRect(kRect.right(), 0, 1, 50)), 0.0);
    QVERIFY(Accent(image, QRect(kRect.left() + 4, 0, 1, 50)) > 2.0);
    QVERIFY(Accent(image, QRect(kRect.right() - 4, 0, 1, 50)) > 2.0);
}

void tst_DStyleProxyOnglets::survolay()
{
    QImage const image = PeinsOnglet(DonneOption(QStyle::State_MouseOver));

    QVERIFY(monBanc->espion->appels.isEmpty());
    QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, 15));
    QCOMPARE(image.pixelColor(kRect.left() + 1, 30), QColor(0, 0, 0, 15)); // no outline
    QVERIFY(kRect.adjusted(-1, -1, 1, 1).contains(Encre(image)));
    // Half a pixel is free on two sides. The area outside of an arc is (1 - pi / 4) of its radius'
    // square.
    double const gauche = Couverture(image, QRect(kRect.topLeft(), QSize(4, 4)), 15);
    double const droite = Couverture(image, QRect(kRect.right() - 3, kRect.top(), 4, 4), 15);
    QVERIFY2(qAbs(gauche - (3.5 * 3.5 - 0.2146 * 3.0 * 3.0)) < 0.5,
             qPrintable(QString::number(gauche)));
    QVERIFY2(qAbs(gauche - droite) < 0.3, qPrintable(QString::number(droite)));
    for (int y = 0; y < image.height(); ++y)
        QVERIFY(Alpha(image, kRect.center().x(), y) <= 15);
}

void tst_DStyleProxyOnglets::selectionnaySurvolay()
{
    QCOMPARE(PeinsOnglet(DonneOption(QStyle::State_Selected | QStyle::State_MouseOver)),
             PeinsOnglet(DonneOption(QStyle::State_Selected)));
}

void tst_DStyleProxyOnglets::ordinaireSansBarre()
{
    QWidget widget;

    QVERIFY(EstVide(PeinsOnglet(DonneOption({}))));
    QVERIFY(EstVide(PeinsOnglet(DonneOption({}), &widget)));
    QVERIFY(monBanc->espion->appels.isEmpty());
}

void tst_DStyleProxyOnglets::separateurs_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<int>("courant");
    QTest::addColumn<QList<int>>("avecSeparateur");
    QTest::newRow("first is current") << 5 << 0 << QList{2, 3};
    QTest::newRow("second is current") << 5 << 1 << QList{3};
    QTest::newRow("middle is current") << 5 << 2 << QList{0};
    QTest::newRow("last but one is current") << 5 << 3 << QList{0, 1};
    QTest::newRow("last is current") << 5 << 4 << QList{0, 1, 2};
    QTest::newRow("two tabs") << 2 << 0 << QList<int>();
    QTest::newRow("one tab") << 1 << 0 << QList<int>();
}

void tst_DStyleProxyOnglets::separateurs()
{
    QFETCH(int, nombre);
    QFETCH(int, courant);
    QFETCH(QList<int>, avecSeparateur);
    QTabBar barre;
    for (int i = 0; i < nombre; ++i)
        barre.addTab(QStringLiteral("Onglet"));
    barre.setCurrentIndex(courant);

    QCOMPARE(DonneSepares(barre), avecSeparateur);
    QVERIFY(monBanc->espion->appels.isEmpty());
}

// Nothing is next to a tab that there isn't.
void tst_DStyleProxyOnglets::separateursSansOngletCourant()
{
    QTabBar barre;
    for (int i = 0; i < 5; ++i)
        barre.addTab(QStringLiteral("Onglet"));
    Montre(barre); // which would choose one
    for (int i = 1; i < 5; ++i)
        barre.setTabVisible(i, false); // none of them can take its place
    barre.removeTab(0);
    for (int i = 0; i < 4; ++i)
        barre.setTabVisible(i, true);

    QCOMPARE(DonneSepares(barre), (QList{0, 1, 2}));
    QCOMPARE(barre.currentIndex(), -1);
}

// It keeps its place in the count: only the tab before it and the one behind it are its neighbours.
void tst_DStyleProxyOnglets::separateursAutourDunOngletCachay()
{
    QTabBar barre;
    for (int i = 0; i < 6; ++i)
        barre.addTab(QStringLiteral("Onglet"));
    barre.setCurrentIndex(0);
    barre.setTabVisible(3, false);

    QCOMPARE(DonneSepares(barre), (QList{2, 4}));
}

void tst_DStyleProxyOnglets::separateurHorsDesOnglets()
{
    QTabBar barre;
    for (int i = 0; i < 4; ++i)
        barre.addTab(QStringLiteral("Onglet"));
    barre.setCurrentIndex(3);
    Montre(barre);
    QStyleOptionTab option = DonneOption({});
    option.rect.moveTop(barre.height() + 20);

    QVERIFY(EstVide(Peins(option.rect.size() * 4, [&](QPainter & peintre) {
        monBanc->style.drawControl(QStyle::CE_TabBarTabShape, &option, &peintre, &barre);
    })));
}

void tst_DStyleProxyOnglets::separateurPlace_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_DStyleProxyOnglets::separateurPlace()
{
    QFETCH(Qt::LayoutDirection, sens);
    QTabBar barre;
    barre.setLayoutDirection(sens);
    for (int i = 0; i < 4; ++i)
        barre.addTab(QStringLiteral("Onglet"));
    Montre(barre);
    QStyleOptionTab option = DonneOption({});
    option.direction = sens;
    option.rect = barre.tabRect(2);

    QImage const image = Peins(barre.size(), [&](QPainter & peintre) {
        monBanc->style.drawControl(QStyle::CE_TabBarTabShape, &option, &peintre, &barre);
    });

    QRect const rect = option.rect;
    QRect const encre = Encre(image);
    int const colonne = sens == Qt::LeftToRight ? rect.right() : rect.left();
    QCOMPARE(encre.left(), colonne); // one column, the last of the tab
    QCOMPARE(encre.right(), colonne);
    QCOMPARE(image.pixelColor(colonne, rect.center().y()), QColor(0, 0, 0, 48));
    // From 7 units under the top to 5 over the bottom, the last point's own pixel or not.
    QCOMPARE(encre.top(), rect.top() + 7);
    QVERIFY(encre.bottom() == rect.bottom() - 6 || encre.bottom() == rect.bottom() - 5);
}

void tst_DStyleProxyOnglets::ligneDeBase()
{
    QStyleOptionTabBarBase option;
    option.rect = QRect(kMarge, kMarge, 60, 3);
    auto const peinsBase = [this](QStyleOption const * donnee) {
        return Peins(kTaille, [&](QPainter & peintre) {
            monBanc->style.drawPrimitive(QStyle::PE_FrameTabBarBase, donnee, &peintre);
        });
    };

    QImage const image = peinsBase(&option);

    QVERIFY(monBanc->espion->appels.isEmpty());
    QCOMPARE(image.pixelColor(40, kMarge), QColor(220, 220, 220, 255));
    QCOMPARE(CouvertureColonne(image, 40), 1.0);
    QRect const encre = Encre(image);
    QCOMPARE(encre.height(), 1);
    // A flat cap ends on the corner, on this side or that of the pixel.
    QVERIFY(qAbs(encre.left() - 10) <= 1 && qAbs(encre.right() - 69) <= 1);

    QStyleOption autre;
    autre.rect = option.rect;
    QVERIFY(EstVide(peinsBase(&autre)));
    QVERIFY(EstVide(peinsBase(nullptr)));
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_FrameTabBarBase).size(), 2);
}

void tst_DStyleProxyOnglets::optionDuMauvaisType()
{
    QStyleOptionButton option;
    option.rect = kRect;
    option.state = QStyle::State_Selected;

    QVERIFY(EstVide(PeinsOnglet(option)));

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_TabBarTabShape).size(), 1);
}

QTEST_MAIN(tst_DStyleProxyOnglets)
#include "tst_DStyleProxyOnglets.moc"
