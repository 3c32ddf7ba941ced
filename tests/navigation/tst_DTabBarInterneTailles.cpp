// navigation/tst_DTabBarInterneTailles.cpp
// The sizes of tabs, frames, titles and icons.
#include "RangeeDEssai.h"

#include "controls/DLabelElision.h"

using namespace Qt::StringLiterals;

namespace {

QPixmap DonneCarre(QColor const & couleur)
{
    QPixmap carre(64, 64);
    carre.fill(couleur);
    return carre;
}

// What the tab leaves to its frame, from the places of both buttons.
int DonnePlace(DTabBarInterne const & barre, int index)
{
    return barre.tabButton(index, QTabBar::RightSide)->x() - 5 -
           barre.tabButton(index, QTabBar::LeftSide)->x();
}

} // namespace

class tst_DTabBarInterneTailles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void iconeLaisseLeTitreEntier();
    void tailleIcone();
    void largeurDuCadre_data();
    void largeurDuCadre();
    void largeurSansBoutonDroit();
    void largeurSuitLeBoutonDroit();
    void largeurDUneBarreMontreeApres_data();
    void largeurDUneBarreMontreeApres();
    void largeurSuitLeStyle();
    void tailleDesOnglets_data();
    void tailleDesOnglets();
    void tailleDesOngletsMontres();
    void tailleDesOngletsDefiles();
    void miseEnPagesDUneBarreCachee();
    void deDroiteAGauche();
    void largeurDeDroiteAGauche_data();
    void largeurDeDroiteAGauche();
    void changementDeSens();
};

void tst_DTabBarInterneTailles::iconeLaisseLeTitreEntier()
{
    RangeeDEssai essai(1);
    essai.Expose();
    QCOMPARE(essai.PreteTitre(0)->width(), 119);

    essai.barre->MetsIconeOnglet(0, DonneCarre(Qt::red));

    DTabBarInterne::InfosOnglet const infos = essai.barre->DonneInfos(0);
    QTRY_VERIFY(infos.etiquetteTitre->geometry().right() < infos.cadre->width());
    QVERIFY(infos.etiquetteTitre->width() > 50);
    essai.barre->MetsIconeOnglet(0, QIcon());
    QCOMPARE(essai.PreteTitre(0)->width(), 119);
}

void tst_DTabBarInterneTailles::tailleIcone()
{
    RangeeDEssai essai(2);
    essai.barre->MetsIconeOnglet(0, DonneCarre(Qt::red));
    essai.Expose();

    essai.barre->MetsTailleIcone(QSize(12, 14));

    QCOMPARE(essai.barre->iconSize(), QSize(12, 14));
    for (int const index : {0, 1}) {
        DTabBarInterne::InfosOnglet const infos = essai.barre->DonneInfos(index);
        QCOMPARE(infos.etiquetteIcone->size(), QSize(12, 14));
        QCOMPARE(infos.cadre->minimumHeight(), 14);
    }
    QLabel const & etiquette = *essai.barre->DonneInfos(0).etiquetteIcone;
    QVERIFY(etiquette.pixmap(Qt::ReturnByValue).deviceIndependentSize().width() <= 12);
    QVERIFY(essai.barre->DonneInfos(1).etiquetteIcone->isHidden());
    essai.AjouteOnglet(u"Neuf"_s);
    QCOMPARE(essai.barre->DonneInfos(2).etiquetteIcone->size(), QSize(12, 14));

    essai.barre->MetsTailleIcone(QSize(60, 20)); // at the expense of the title
    DTabBarInterne::InfosOnglet const infos = essai.barre->DonneInfos(0);
    QTRY_COMPARE(infos.etiquetteIcone->width(), 60);
    QCOMPARE(infos.etiquetteTitre->width(),
             infos.cadre->width() - 60 - 5 - infos.cadre->layout()->spacing());

    essai.barre->MetsTailleIcone(QSize()); // the style's
    QCOMPARE(infos.etiquetteIcone->size(), essai.barre->iconSize());
    QVERIFY(essai.barre->iconSize().isValid());
}

void tst_DTabBarInterneTailles::largeurDuCadre_data()
{
    QTest::addColumn<bool>("montree");
    QTest::addColumn<int>("nombre");
    QTest::newRow("shown bar, one tab") << true << 1;
    QTest::newRow("shown bar, several tabs") << true << 3;
    QTest::newRow("shown bar that scrolls") << true << 8;
    QTest::newRow("hidden bar") << false << 3;
    QTest::newRow("hidden bar that will scroll") << false << 8;
}

void tst_DTabBarInterneTailles::largeurDuCadre()
{
    QFETCH(bool, montree);
    QFETCH(int, nombre);
    RangeeDEssai essai;
    if (montree)
        essai.Expose();

    for (int i = 0; i < nombre; ++i)
        essai.AjouteOnglet(u"Un titre de plus"_s);

    for (int i = 0; i < nombre; ++i) { // right away
        QCOMPARE(essai.barre->DonneInfos(i).cadre->width(), DonnePlace(*essai.barre, i));
        QVERIFY(DonnePlace(*essai.barre, i) > 100);
    }
    essai.Expose();
    for (int i = 0; i < nombre; ++i) {
        QCOMPARE(essai.barre->DonneInfos(i).cadre->width(), DonnePlace(*essai.barre, i));
        QCOMPARE(essai.PreteTitre(i)->DonneTexte(), u"Un titre de plus"_s);
    }
}

void tst_DTabBarInterneTailles::largeurSansBoutonDroit()
{
    RangeeDEssai essai(3);
    essai.Expose();

    for (int i = 0; i < 3; ++i) {
        essai.barre->setTabButton(i, QTabBar::RightSide, nullptr);
        essai.barre->AjusteLargeurTitre(i);
        QRect const rect = essai.barre->tabRect(i);
        QWidget const & cadre = *essai.barre->tabButton(i, QTabBar::LeftSide);
        QCOMPARE(cadre.x() + cadre.width(), rect.x() + rect.width() - 15);
    }
}

void tst_DTabBarInterneTailles::largeurSuitLeBoutonDroit()
{
    RangeeDEssai essai(2);
    essai.Expose();
    int const avant = essai.barre->DonneInfos(0).cadre->width();
    auto * const bouton = new QToolButton;
    bouton->setFixedSize(70, 16);

    essai.barre->setTabButton(0, QTabBar::RightSide, bouton);

    DTabBarInterne::InfosOnglet const infos = essai.barre->DonneInfos(0);
    QCOMPARE(infos.cadre->width(), DonnePlace(*essai.barre, 0));
    QVERIFY(infos.cadre->width() < avant);
    QVERIFY(infos.etiquetteTitre->width() <= infos.cadre->width());
}

void tst_DTabBarInterneTailles::largeurDUneBarreMontreeApres_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_DTabBarInterneTailles::largeurDUneBarreMontreeApres()
{
    QFETCH(Qt::LayoutDirection, sens);
    RangeeDEssai essai;
    essai.setLayoutDirection(sens);
    int const index = essai.barre->addTab(QString());
    essai.barre->CreeCadreOnglet(index);
    essai.barre->MetsTitreOnglet(index, "Sans bouton de fermeture");

    essai.Expose();

    QRect const cadre =
        QStyle::visualRect(sens, essai.barre->rect(), essai.barre->DonneInfos(0).cadre->geometry());
    QVERIFY(cadre.x() < 30); // at the beginning of the tab
    QCOMPARE(cadre.x() + cadre.width(), 185 - 15);
}

void tst_DTabBarInterneTailles::largeurSuitLeStyle()
{
    RangeeDEssai essai(2);
    essai.Expose();
    QCOMPARE(essai.barre->DonneInfos(1).cadre->width(), DonnePlace(*essai.barre, 1));

    std::unique_ptr<QStyle> const style(QStyleFactory::create(u"Windows"_s));
    QVERIFY(style);
    essai.barre->setStyle(style.get());

    QCOMPARE(essai.barre->DonneInfos(1).cadre->width(), DonnePlace(*essai.barre, 1));
    essai.barre->setStyle(nullptr);
}

void tst_DTabBarInterneTailles::tailleDesOnglets_data()
{
    QTest::addColumn<int>("largeur");
    QTest::addColumn<int>("voulue");
    QTest::newRow("wider") << 260 << 260;
    QTest::newRow("narrower") << 120 << 120;
    QTest::newRow("too narrow for anything") << 10 << 10;
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("less than nothing") << -5 << 0;
}

void tst_DTabBarInterneTailles::tailleDesOnglets()
{
    QFETCH(int, largeur);
    QFETCH(int, voulue);
    RangeeDEssai essai(2);

    essai.barre->MetsTailleOnglets(largeur);
    essai.AjouteOnglet(u"Neuf"_s);

    for (int i = 0; i < 3; ++i) {
        QCOMPARE(essai.barre->tabRect(i).width(), voulue);
        QVERIFY(essai.barre->DonneInfos(i).cadre->width() >= 0);
        QVERIFY(essai.PreteTitre(i)->width() <= std::max(voulue - 66, 0));
    }
}

void tst_DTabBarInterneTailles::tailleDesOngletsMontres()
{
    RangeeDEssai essai(2);
    essai.Expose();
    QCOMPARE(essai.barre->tabRect(1), QRect(185, 0, 185, 29));
    auto const iconSize = essai.barre->iconSize();

    for (int const largeur : {250, 120, 185}) {
        essai.barre->MetsTailleOnglets(largeur);

        QCOMPARE(essai.barre->tabRect(1), QRect(largeur, 0, largeur, 29));
        QCOMPARE(essai.barre->width(), 2 * largeur > 185 ? 2 * largeur : 185);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(essai.barre->DonneInfos(i).cadre->width(), DonnePlace(*essai.barre, i));
            QCOMPARE(essai.PreteTitre(i)->width(), largeur - 66);
        }
    }
    QCOMPARE(essai.barre->iconSize(), iconSize);
    QCOMPARE(essai.barre->elideMode(), Qt::ElideRight);
}

void tst_DTabBarInterneTailles::tailleDesOngletsDefiles()
{
    RangeeDEssai essai(10);
    essai.Expose();
    essai.barre->setCurrentIndex(9);

    essai.barre->MetsTailleOnglets(120);
    QTRY_VERIFY(essai.barre->width() < 600); // the row has its place again

    QRect const dernier = essai.barre->tabRect(9);
    QVERIFY(dernier.left() > 0);
    QVERIFY(dernier.right() < essai.barre->width());
    QVERIFY(essai.barre->tabRect(0).left() < 0);
    essai.barre->MetsTailleOnglets(20);
    QTRY_COMPARE(essai.barre->tabRect(0).left(), 0); // all fit
    QCOMPARE(essai.barre->tabRect(9).left(), 180);
}

namespace {

class BarreCompteuse : public DTabBarInterne
{
public:
    using DTabBarInterne::DTabBarInterne;
    int misesEnPage = 0;

protected:
    void tabLayoutChange() override
    {
        ++misesEnPage;
        DTabBarInterne::tabLayoutChange();
    }
};

} // namespace

// Qt lays out at each new tab and at each button of one, whatever is shown: three times. Ours may
// add nothing to it.
void tst_DTabBarInterneTailles::miseEnPagesDUneBarreCachee()
{
    DTabBar rangee(nullptr, "groupe");
    BarreCompteuse barre(&rangee, "groupe");
    QTabBar const & deQt = barre;

    for (int i = 0; i < 20; ++i) {
        barre.addTab(QString());
        barre.CreeCadreOnglet(i);
        barre.MetsTitreOnglet(i, "Titre");
        barre.setTabButton(i, QTabBar::RightSide, new QToolButton);
        barre.AjusteLargeurTitre(i);
        barre.setTabToolTip(i, u"Titre"_s);
    }

    QCOMPARE(deQt.count(), 20);
    QVERIFY2(barre.misesEnPage <= 3 * 20 + 1, QByteArray::number(barre.misesEnPage));
}

void tst_DTabBarInterneTailles::deDroiteAGauche()
{
    RangeeDEssai essai(8);
    RangeeDEssai source(2, "groupe", {40, 300});
    essai.setLayoutDirection(Qt::RightToLeft);
    source.setLayoutDirection(Qt::RightToLeft);
    essai.Expose();
    source.Expose();
    essai.barre->setCurrentIndex(7);
    essai.barre->MetsTailleOnglets(100);
    essai.barre->MetsIconeOnglet(0, DonneCarre(Qt::red));

    source.Presse(0);
    for (int x = 0; x < essai.width(); x += 7)
        source.Deplace(essai.barre->mapToGlobal(QPoint(x, 10)));
    source.Relache(source.DonneAuDessous());

    QVERIFY(!source.barre->EstEnDeplacementExterne());
    QTest::keyClick(essai.barre, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(essai.barre->currentIndex(), 0);
}

void tst_DTabBarInterneTailles::largeurDeDroiteAGauche_data()
{
    largeurDuCadre_data();
}

// The mirror image of a bar from left to right, to the pixel.
void tst_DTabBarInterneTailles::largeurDeDroiteAGauche()
{
    QFETCH(bool, montree);
    QFETCH(int, nombre);
    RangeeDEssai modele;
    RangeeDEssai essai;
    essai.setLayoutDirection(Qt::RightToLeft);
    for (RangeeDEssai * const rangee : {&modele, &essai}) {
        if (montree)
            rangee->Expose();
        for (int i = 0; i < nombre; ++i)
            rangee->AjouteOnglet(u"Un titre de plus"_s);
        rangee->barre->MetsIconeOnglet(0, DonneCarre(Qt::red));
        QVERIFY(rangee->barre->DonneInfos(nombre - 1).cadre->width() > 100);
        rangee->Expose();
        if (nombre == 3)
            rangee->barre->setTabButton(1, QTabBar::RightSide, nullptr);
        rangee->barre->AjusteLargeurTitre(1);
    }

    for (int i = 0; i < nombre; ++i) {
        QWidget const & cadre = *essai.barre->tabButton(i, QTabBar::LeftSide);
        QWidget const & voulu = *modele.barre->tabButton(i, QTabBar::LeftSide);
        QCOMPARE(QStyle::visualRect(Qt::RightToLeft, essai.barre->rect(), cadre.geometry()),
                 voulu.geometry());
        QVERIFY(cadre.width() > 100);
        QTRY_COMPARE(essai.PreteTitre(i)->width(), modele.PreteTitre(i)->width());
    }
}

void tst_DTabBarInterneTailles::changementDeSens()
{
    RangeeDEssai essai(3);
    essai.Expose();
    QRect const avant = essai.barre->DonneInfos(2).cadre->geometry();

    essai.setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(QStyle::visualRect(Qt::RightToLeft, essai.barre->rect(),
                                    essai.barre->DonneInfos(2).cadre->geometry()),
                 avant);
    QVERIFY(essai.barre->tabRect(2).contains(essai.barre->DonneInfos(2).cadre->geometry()));

    essai.setLayoutDirection(Qt::LeftToRight);
    QTRY_COMPARE(essai.barre->DonneInfos(2).cadre->geometry(), avant);
}

QTEST_MAIN(tst_DTabBarInterneTailles)
#include "tst_DTabBarInterneTailles.moc"
