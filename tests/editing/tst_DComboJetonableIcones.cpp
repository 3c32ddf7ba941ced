// tests/editing/tst_DComboJetonableIcones.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"
#include "style/DStyleProxy.h"

#include <QtTest>

#include <memory>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

class tst_DComboJetonableIcones : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void etatDeLIcone();
    void changeTonIcone();
    void suppressionDesactivee();
    void iconesManquantes_data();
    void iconesManquantes();
    void iconesRemplacees();
    void hoverSuitLaNormale();
    void rectangleDeLIcone_data();
    void rectangleDeLIcone();
    void positionSansIcones();
    void dessinDeLIcone_data();
    void dessinDeLIcone();
    void fondDuSurvol();
    void iconeADroiteDansTousLesSens();
    void iconeDesactivee();
    void sansFleche_data();
    void sansFleche();

private:
    Icones mesIcones;
    std::unique_ptr<DComboJetonable> monCombo;
};

void tst_DComboJetonableIcones::cleanup()
{
    monCombo.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboJetonableIcones::etatDeLIcone()
{
    std::unique_ptr<DComboJetonable> const combo(CreeAvecIcones(mesIcones));

    combo->setEditText(u"a"_s);
    QCOMPARE(DonneCouleurIcone(*combo), kSupprime);
    combo->setEditText({});
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
    combo->PrendsTexteJeton(u"jeton"_s, {});
    QCOMPARE(DonneCouleurIcone(*combo), kSupprime);
    combo->DesactiveJeton();
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
}

void tst_DComboJetonableIcones::changeTonIcone()
{
    std::unique_ptr<DComboJetonable> const combo(CreeAvecIcones(mesIcones));

    combo->ChangeTonIcone(false);
    QCOMPARE(DonneCouleurIcone(*combo), kSupprime);
    combo->PriseDoitChangeeIcone();
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
    combo->setEditText(u"a"_s);
    combo->ChangeTonIcone(true);
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
    combo->PriseDoitChangeeIcone();
    QCOMPARE(DonneCouleurIcone(*combo), kSupprime);
}

void tst_DComboJetonableIcones::suppressionDesactivee()
{
    std::unique_ptr<DComboJetonable> const combo(CreeAvecIcones(mesIcones));
    combo->setEditText(u"a"_s);

    combo->DesactiveSuppression();
    QCOMPARE(DonneCouleurIcone(*combo), kNormale); // although there is text already
    combo->setEditText(u"ab"_s);
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
    combo->ChangeTonIcone(false);
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
    combo->PrendsTexteJeton(u"jeton"_s, {});
    QCOMPARE(DonneCouleurIcone(*combo), kNormale);
}

void tst_DComboJetonableIcones::iconesManquantes_data()
{
    QTest::addColumn<bool>("absente");
    QTest::newRow("empty path") << false;
    QTest::newRow("no such file") << true;
}

void tst_DComboJetonableIcones::iconesManquantes()
{
    QFETCH(bool, absente);
    UniChaine const sans = absente ? UniChaine(mesIcones.DonneCheminAbsent()) : UniChaine();
    DComboJetonable combo(nullptr, true, sans, sans, mesIcones.Cree(kSupprime), sans);
    DComboJetonable vide(nullptr, true, sans, sans, sans, sans);

    QCOMPARE(combo.grab().toImage(), vide.grab().toImage()); // nothing is drawn

    combo.ChangeTonIcone(false);
    Deplace(combo, combo.DonneRectIcone().center());
    QCOMPARE(DonneCouleurIcone(combo), kSupprime); // in place of the hover icon
}

void tst_DComboJetonableIcones::iconesRemplacees()
{
    DComboJetonable combo(nullptr, true, {}, {}, {}, {});
    combo.PrendsCheminIconeNormale(mesIcones.Cree(kNormale));
    combo.PrendsCheminIconeNormaleHover(mesIcones.Cree(kNormaleHover));
    combo.PrendsCheminIconeSupprime(mesIcones.Cree(kSupprime));
    combo.PrendsCheminIconeSupprimeHover(mesIcones.Cree(kSupprimeHover));

    QCOMPARE(DonneCouleurIcone(combo), kNormale);
    combo.ChangeTonIcone(false);
    QCOMPARE(DonneCouleurIcone(combo), kSupprime);
    Deplace(combo, combo.DonneRectIcone().center());
    QCOMPARE(DonneCouleurIcone(combo), kSupprimeHover);
    combo.ChangeTonIcone(true);
    QCOMPARE(DonneCouleurIcone(combo), kNormaleHover);
}

void tst_DComboJetonableIcones::hoverSuitLaNormale()
{
    DComboJetonable combo(nullptr, true, mesIcones.Cree(kNormale), {}, {}, {});
    Deplace(combo, combo.DonneRectIcone().center());
    QCOMPARE(DonneCouleurIcone(combo), kNormale);

    combo.PrendsCheminIconeNormale(mesIcones.Cree(Qt::cyan));

    QCOMPARE(DonneCouleurIcone(combo), QColor(Qt::cyan));
}

void tst_DComboJetonableIcones::rectangleDeLIcone_data()
{
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<QSize>("icone");
    QTest::addColumn<QPoint>("coin");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("even height") << QSize(200, 30) << QSize(16, 16) << QPoint(181, 7)
                                 << Qt::LeftToRight;
    QTest::newRow("odd height is rounded up")
        << QSize(200, 31) << QSize(16, 16) << QPoint(181, 8) << Qt::LeftToRight;
    QTest::newRow("icon higher than the combo")
        << QSize(200, 21) << QSize(40, 40) << QPoint(157, -9) << Qt::LeftToRight;
    QTest::newRow("wide icon") << QSize(90, 20) << QSize(20, 10) << QPoint(67, 5)
                               << Qt::LeftToRight;
    QTest::newRow("at the right from right to left too")
        << QSize(200, 30) << QSize(16, 16) << QPoint(181, 7) << Qt::RightToLeft;
}

void tst_DComboJetonableIcones::rectangleDeLIcone()
{
    QFETCH(QSize, taille);
    QFETCH(QSize, icone);
    QFETCH(QPoint, coin);
    QFETCH(Qt::LayoutDirection, sens);
    std::unique_ptr<DComboJetonable> const combo(CreeAvecIcones(mesIcones));
    combo->setLayoutDirection(sens);
    combo->setIconSize(icone);
    combo->resize(taille);

    QRect const rect = combo->DonneRectIcone();

    QCOMPARE(rect, QRect(coin, icone));
    QVERIFY(combo->PosEstDansRectIcone(rect.topLeft()));
    QVERIFY(combo->PosEstDansRectIcone(rect.bottomRight()));
    QVERIFY(!combo->PosEstDansRectIcone(rect.topLeft() - QPoint(1, 0)));
    QVERIFY(!combo->PosEstDansRectIcone(rect.bottomRight() + QPoint(1, 0)));
    QVERIFY(!combo->PosEstDansRectIcone(rect.bottomRight() + QPoint(0, 1)));
}

void tst_DComboJetonableIcones::positionSansIcones()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->resize(200, 30);
    QStyleOptionComboBox option;
    option.initFrom(combo.get());
    option.editable = true;
    option.subControls = QStyle::SC_All;
    QRect const fleche = combo->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                        QStyle::SC_ComboBoxArrow, combo.get());
    QVERIFY(combo->PosEstDansRectIcone(fleche.center()));
    QVERIFY(!combo->PosEstDansRectIcone(QPoint(fleche.left() - 2, 15)));
    QVERIFY(!combo->PosEstDansRectIcone(QPoint(-1, -1)));
}

void tst_DComboJetonableIcones::dessinDeLIcone_data()
{
    QTest::addColumn<bool>("normale");
    QTest::addColumn<bool>("survol");
    QTest::addColumn<QColor>("couleur");
    QTest::newRow("normal") << true << false << kNormale;
    QTest::newRow("normal, hovered") << true << true << kNormaleHover;
    QTest::newRow("delete") << false << false << kSupprime;
    QTest::newRow("delete, hovered") << false << true << kSupprimeHover;
}

void tst_DComboJetonableIcones::dessinDeLIcone()
{
    QFETCH(bool, normale);
    QFETCH(bool, survol);
    QFETCH(QColor, couleur);
    monCombo.reset(CreeAvecIcones(mesIcones));
    monCombo->setIconSize(QSize(24, 24)); // the files are smaller: drawn in the size of the icon
    monCombo->resize(300, 40);
    monCombo->ChangeTonIcone(normale);
    QPoint const point = survol ? monCombo->DonneRectIcone().topLeft() : QPoint(2, 2);
    Deplace(*monCombo, point);

    QRect const dessin = monCombo->DonneRectIcone().translated(-5, 0);
    QCOMPARE(CherchePixels(monCombo->grab().toImage(), couleur), dessin);
}

void tst_DComboJetonableIcones::fondDuSurvol()
{
    DComboJetonable combo(nullptr, true, {}, {}, {}, {});
    combo.resize(300, 40);
    QColor const fond(230, 230, 230);
    QRect const dessin = combo.DonneRectIcone().translated(-5, 0);

    Deplace(combo, combo.DonneRectIcone().center());
    QVERIFY(DonneCouleurIcone(combo) != fond); // in the normal state

    combo.setEditText(u"a"_s);
    QImage const image = combo.grab().toImage();
    for (QPoint const & coin : {dessin.topLeft(), dessin.bottomRight()})
        QCOMPARE(image.pixelColor(coin), fond);
    QVERIFY(image.pixelColor(dessin.topLeft() - QPoint(1, 0)) != fond);
    QVERIFY(image.pixelColor(dessin.bottomRight() + QPoint(1, 0)) != fond);

    Deplace(combo, QPoint(5, 5));
    QVERIFY(DonneCouleurIcone(combo) != fond);
}

void tst_DComboJetonableIcones::iconeADroiteDansTousLesSens()
{
    monCombo.reset(CreeAvecIcones(mesIcones));
    monCombo->resize(300, 40);
    QRect const dessin = monCombo->DonneRectIcone().translated(-5, 0);
    QCOMPARE(CherchePixels(monCombo->grab().toImage(), kNormale), dessin);

    monCombo->setLayoutDirection(Qt::RightToLeft);

    QCOMPARE(CherchePixels(monCombo->grab().toImage(), kNormale), dessin);
}

void tst_DComboJetonableIcones::iconeDesactivee()
{
    monCombo.reset(CreeAvecIcones(mesIcones));
    monCombo->setEnabled(false);
    QVERIFY(DonneCouleurIcone(*monCombo) != kNormale);
}

void tst_DComboJetonableIcones::sansFleche_data()
{
    QTest::addColumn<bool>("styleDeLaBibliotheque");
    QTest::newRow("Fusion") << false;
    QTest::newRow("the library's style") << true;
}

void tst_DComboJetonableIcones::sansFleche()
{
    QFETCH(bool, styleDeLaBibliotheque);
    QStyle * const fusion = QStyleFactory::create(u"Fusion"_s);
    std::unique_ptr<QStyle> const style(styleDeLaBibliotheque ? new DStyleProxy(fusion) : fusion);
    DComboBox base(nullptr);
    DComboJetonable combo(nullptr, true, {}, {}, {}, {});
    for (QComboBox * const un :
         {static_cast<QComboBox *>(&base), static_cast<QComboBox *>(&combo)}) {
        un->setStyle(style.get());
        un->setEditable(true);
        un->resize(300, 40);
    }
    QRect const fleche(285, 14, 12, 12);
    QImage const avec = base.grab().toImage(); // the first to fill the cache of the style
    QImage const sans = combo.grab().toImage();

    auto const couleurs = [&fleche](QImage const & image) {
        QSet<QRgb> trouvees;
        for (int x = fleche.left(); x <= fleche.right(); ++x)
            trouvees.insert(image.pixel(x, fleche.center().y()));
        return trouvees.size();
    };
    QVERIFY(couleurs(avec) > 1);
    QCOMPARE(couleurs(sans), 1);
    QCOMPARE(base.grab().toImage(), avec);
    base.setStyle(nullptr);
    combo.setStyle(nullptr);
}

QTEST_MAIN(tst_DComboJetonableIcones)
#include "tst_DComboJetonableIcones.moc"
