// navigation/tst_DTabBarInterne.cpp
// The tabs: their frames, titles, sizes and keys.
#include "RangeeDEssai.h"

#include "controls/DLabelElision.h"

#include "foundation/ThemesQt.h"

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

class ParentAttentif : public QWidget
{
public:
    QList<int> touches;

protected:
    void keyPressEvent(QKeyEvent * evenement) override { touches << evenement->key(); }
};

} // namespace

class tst_DTabBarInterne : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void valeursDeDepart();
    void typeEnregistray();
    void infosAbsentes();
    void infosGardeesEtPartagees();
    void cadreDUnOnglet();
    void cadreHorsLimites();
    void titre();
    void titreVide();
    void titreSansCadre();
    void couleurDuTitre();
    void icone();
    void iconeLaisseLeTitreEntier();
    void tailleIcone();
    void largeurDuCadre_data();
    void largeurDuCadre();
    void largeurSansBoutonDroit();
    void largeurDUneBarreMontreeApres();
    void largeurSuitLeStyle();
    void tailleDesOnglets_data();
    void tailleDesOnglets();
    void tailleDesOngletsMontres();
    void tailleDesOngletsDefiles();
    void policeSuivie();
    void touches_data();
    void touches();
    void ongletSuivantSauteLesAutres();
    void touchesLaisseesAuxParents();
    void sansAnimationDeCouleur();
    void miseEnPagesDUneBarreCachee();
    void deDroiteAGauche();
};

void tst_DTabBarInterne::valeursDeDepart()
{
    DTabBar rangee(nullptr, "groupe");
    DTabBarInterne & barre = *rangee.PreteBarreInterne();
    QTabBar const reference;

    QVERIFY(!barre.EstEnDeplacementExterne());
    QCOMPARE(barre.DonnePositionIndicateur(), QPoint(0, 0));
    QCOMPARE(barre.iconSize(), reference.iconSize());
    QCOMPARE(barre.count(), 0);
    barre.addTab(QString());
    QCOMPARE(barre.tabRect(0).size(), QSize(185, 29));
}

void tst_DTabBarInterne::typeEnregistray()
{
    DTabBar rangee(nullptr, "groupe");

    QMetaType const type = QMetaType::fromName("DTabBarInterne::InfosOnglet");

    QVERIFY(type.isValid());
    QCOMPARE(type, QMetaType::fromType<DTabBarInterne::InfosOnglet>());
}

void tst_DTabBarInterne::infosAbsentes()
{
    DTabBar rangee(nullptr, "groupe");
    DTabBarInterne & barre = *rangee.PreteBarreInterne();
    barre.addTab(u"Texte de Qt"_s);
    barre.setTabData(0, 12);

    for (int const index : {-1, 0, 1}) {
        DTabBarInterne::InfosOnglet const infos = barre.DonneInfos(index);
        QVERIFY(!infos.cadre && !infos.etiquetteIcone && !infos.etiquetteTitre);
        QVERIFY(infos.titre.EstVide() && infos.icone.isNull() && infos.donnees.isEmpty());
        barre.AjusteLargeurTitre(index);
        barre.MetsCouleurTitre(index, true);
        barre.MetsIconeOnglet(index, QIcon());
    }
}

void tst_DTabBarInterne::infosGardeesEtPartagees()
{
    RangeeDEssai essai(2);
    DTabBarInterne::InfosOnglet infos = essai.barre->DonneInfos(1);
    infos.donnees.insert(12, u"douze"_s);

    QVERIFY(essai.barre->DonneInfos(1).donnees.isEmpty()); // a copy until it is stored
    essai.barre->MetsInfos(1, infos);

    QCOMPARE(essai.barre->DonneInfos(1).donnees.value(12).toString(), u"douze"_s);
    QCOMPARE(essai.barre->tabData(1).value<DTabBarInterne::InfosOnglet>().donnees.size(), 1);
    QCOMPARE(essai.DonneTitre(1), u"Onglet 1"_s);
    essai.barre->moveTab(1, 0);
    QCOMPARE(essai.barre->DonneInfos(0).donnees.size(), 1);
}

void tst_DTabBarInterne::cadreDUnOnglet()
{
    RangeeDEssai essai;
    essai.barre->addTab(QString());
    QFont police = essai.barre->font();
    police.setItalic(true);
    essai.barre->setFont(police);

    essai.barre->CreeCadreOnglet(0);

    DTabBarInterne::InfosOnglet const infos = essai.barre->DonneInfos(0);
    QCOMPARE(essai.barre->tabButton(0, QTabBar::LeftSide), infos.cadre);
    QCOMPARE(infos.cadre->parentWidget(), essai.barre);
    QCOMPARE(infos.cadre->minimumHeight(), 20);
    QVERIFY(qobject_cast<QHBoxLayout *>(infos.cadre->layout()));
    QCOMPARE(infos.cadre->layout()->contentsMargins(), QMargins());
    QCOMPARE(infos.cadre->layout()->itemAt(0)->widget(), infos.etiquetteIcone);
    QVERIFY(infos.cadre->layout()->itemAt(1)->spacerItem());
    QCOMPARE(infos.cadre->layout()->itemAt(1)->sizeHint().width(), 5);
    QCOMPARE(infos.cadre->layout()->itemAt(2)->widget(), infos.etiquetteTitre);
    QVERIFY(infos.etiquetteIcone->isHidden());
    QCOMPARE(infos.etiquetteIcone->minimumSize(), QSize(20, 20));
    QCOMPARE(infos.etiquetteIcone->maximumSize(), QSize(20, 20));
    QVERIFY(infos.etiquetteIcone->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(infos.etiquetteTitre->objectName(), u"TestUI_EditeurInterneEtiquetteTexte"_s);
    QVERIFY(infos.etiquetteTitre->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(infos.etiquetteTitre->DonneModeElision(), DLabelElision::kElisionFin);
    QVERIFY(infos.etiquetteTitre->DonnePolice().italic());
    QCOMPARE(infos.etiquetteTitre->minimumWidth(), 119);
    QCOMPARE(infos.etiquetteTitre->maximumWidth(), 119);
    QCOMPARE(essai.barre->tabText(0), QString());
}

void tst_DTabBarInterne::cadreHorsLimites()
{
    RangeeDEssai essai(1);
    int const enfants = essai.barre->children().size();

    essai.barre->CreeCadreOnglet(-1);
    essai.barre->CreeCadreOnglet(1);

    QCOMPARE(essai.barre->children().size(), enfants);
}

void tst_DTabBarInterne::titre()
{
    RangeeDEssai essai(2);
    essai.Expose();
    QString const infobulle = essai.barre->tabToolTip(1);

    essai.barre->MetsTitreOnglet(1, u"Un autre titre"_s);

    QCOMPARE(essai.DonneTitre(1), u"Un autre titre"_s);
    QCOMPARE(essai.PreteTitre(1)->DonneTexte(), u"Un autre titre"_s);
    QCOMPARE(essai.barre->accessibleTabName(1), u"Un autre titre"_s);
    QCOMPARE(essai.barre->tabText(1), QString());
    QCOMPARE(essai.barre->tabToolTip(1), infobulle);
    QCOMPARE(essai.PreteTitre(0)->DonneTexte(), u"Onglet 0"_s);
}

void tst_DTabBarInterne::titreVide()
{
    RangeeDEssai essai(1);
    essai.Expose();
    int const largeur = essai.barre->DonneInfos(0).cadre->width();

    essai.barre->MetsTitreOnglet(0, UniChaine());

    QCOMPARE(essai.PreteTitre(0)->DonneTexte(), QString());
    QCOMPARE(essai.DonneTitre(0), QString());
    QCOMPARE(essai.barre->accessibleTabName(0), QString());
    QCOMPARE(essai.barre->DonneInfos(0).cadre->width(), largeur);
    essai.barre->MetsTitreOnglet(0, "Retour");
    QCOMPARE(essai.PreteTitre(0)->DonneTexte(), u"Retour"_s);
}

void tst_DTabBarInterne::titreSansCadre()
{
    RangeeDEssai essai;
    essai.barre->addTab(QString());

    essai.barre->MetsTitreOnglet(0, "Titre");
    essai.barre->MetsTitreOnglet(5, "Personne");

    QCOMPARE(essai.DonneTitre(0), u"Titre"_s);
    QCOMPARE(essai.barre->accessibleTabName(0), u"Titre"_s);
}

void tst_DTabBarInterne::couleurDuTitre()
{
    RangeeDEssai essai(2);
    auto const couleur = [&essai](int index) {
        return essai.PreteTitre(index)->palette().color(QPalette::WindowText);
    };

    essai.barre->MetsCouleurTitre(0, true);
    essai.barre->MetsCouleurTitre(1, false);

    QCOMPARE(couleur(0), ThemesQt::Instance()->DonneCouleur(u"couleurTexteDeBase"_s));
    QCOMPARE(couleur(1), ThemesQt::Instance()->DonneCouleur(u"couleurTexteGris"_s));
    QVERIFY(couleur(0) != couleur(1));
    essai.barre->MetsCouleurTitre(1, true);
    QCOMPARE(couleur(1), couleur(0));
    essai.barre->MetsCouleurTitre(7, true);
}

void tst_DTabBarInterne::icone()
{
    RangeeDEssai essai(2);
    essai.Expose();
    QLabel const & etiquette = *essai.barre->DonneInfos(1).etiquetteIcone;

    essai.barre->MetsIconeOnglet(1, DonneCarre(Qt::red));
    QVERIFY(etiquette.isVisible());
    QCOMPARE(etiquette.pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(20, 20));
    QCOMPARE(etiquette.pixmap(Qt::ReturnByValue).toImage().pixelColor(5, 5), QColor(Qt::red));
    QVERIFY(!essai.barre->DonneInfos(1).icone.isNull());
    QVERIFY(essai.barre->tabIcon(1).isNull());

    essai.barre->MetsIconeOnglet(1, QIcon());
    QVERIFY(!etiquette.isVisible());
    QVERIFY(essai.barre->DonneInfos(1).icone.isNull());
    QVERIFY(essai.barre->DonneInfos(0).etiquetteIcone->isHidden());
}

void tst_DTabBarInterne::iconeLaisseLeTitreEntier()
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

void tst_DTabBarInterne::tailleIcone()
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
    QVERIFY(etiquette.pixmap(Qt::ReturnByValue).width() <= 12);
    QVERIFY(essai.barre->DonneInfos(1).etiquetteIcone->isHidden());
    essai.AjouteOnglet(u"Neuf"_s);
    QCOMPARE(essai.barre->DonneInfos(2).etiquetteIcone->size(), QSize(12, 14));
}

void tst_DTabBarInterne::largeurDuCadre_data()
{
    QTest::addColumn<bool>("montree");
    QTest::addColumn<int>("nombre");
    QTest::newRow("shown bar, one tab") << true << 1;
    QTest::newRow("shown bar, several tabs") << true << 3;
    QTest::newRow("shown bar that scrolls") << true << 8;
    QTest::newRow("hidden bar") << false << 3;
    QTest::newRow("hidden bar that will scroll") << false << 8;
}

void tst_DTabBarInterne::largeurDuCadre()
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

void tst_DTabBarInterne::largeurSansBoutonDroit()
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

void tst_DTabBarInterne::largeurDUneBarreMontreeApres()
{
    RangeeDEssai essai;
    int const index = essai.barre->addTab(QString());
    essai.barre->CreeCadreOnglet(index);
    essai.barre->MetsTitreOnglet(index, "Sans bouton de fermeture");

    essai.Expose();

    QWidget const & cadre = *essai.barre->DonneInfos(0).cadre;
    QCOMPARE(cadre.x() + cadre.width(), 185 - 15);
}

void tst_DTabBarInterne::largeurSuitLeStyle()
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

void tst_DTabBarInterne::tailleDesOnglets_data()
{
    QTest::addColumn<int>("largeur");
    QTest::addColumn<int>("voulue");
    QTest::newRow("wider") << 260 << 260;
    QTest::newRow("narrower") << 120 << 120;
    QTest::newRow("too narrow for anything") << 10 << 10;
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("less than nothing") << -5 << 0;
}

void tst_DTabBarInterne::tailleDesOnglets()
{
    QFETCH(int, largeur);
    QFETCH(int, voulue);
    RangeeDEssai essai(2);

    essai.barre->MetsTailleOnglets(largeur);
    essai.AjouteOnglet(u"Neuf"_s);

    for (int i = 0; i < 3; ++i) {
        QCOMPARE(essai.barre->tabRect(i).width(), voulue);
        QVERIFY(essai.barre->DonneInfos(i).cadre->width() >= 0);
    }
}

void tst_DTabBarInterne::tailleDesOngletsMontres()
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

void tst_DTabBarInterne::tailleDesOngletsDefiles()
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

void tst_DTabBarInterne::policeSuivie()
{
    RangeeDEssai essai(1);
    QFont police = essai.barre->font();
    police.setPointSize(police.pointSize() + 5);

    essai.barre->setFont(police);

    QCOMPARE(essai.PreteTitre(0)->DonnePolice().pointSize(), police.pointSize());
}

void tst_DTabBarInterne::touches_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<int>("courant");
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<int>("voulu");
    Qt::KeyboardModifiers const controle = Qt::ControlModifier;
    QTest::newRow("Ctrl+Tab: next") << 3 << 0 << Qt::Key_Tab << controle << 1;
    QTest::newRow("Ctrl+Tab on the last: first") << 3 << 2 << Qt::Key_Tab << controle << 0;
    QTest::newRow("Ctrl+Tab on the only one") << 1 << 0 << Qt::Key_Tab << controle << 0;
    QTest::newRow("Ctrl+Tab without tabs") << 0 << -1 << Qt::Key_Tab << controle << -1;
    QTest::newRow("Ctrl+Shift+Tab: nothing")
        << 3 << 1 << Qt::Key_Backtab << (controle | Qt::ShiftModifier) << 1;
    QTest::newRow("Tab with Ctrl and Shift: nothing")
        << 3 << 1 << Qt::Key_Tab << (controle | Qt::ShiftModifier) << 1;
    QTest::newRow("Ctrl+Alt+Tab: nothing")
        << 3 << 1 << Qt::Key_Tab << (controle | Qt::AltModifier) << 1;
    QTest::newRow("Right: nothing") << 3 << 1 << Qt::Key_Right << Qt::KeyboardModifiers() << 1;
    QTest::newRow("Left: nothing") << 3 << 1 << Qt::Key_Left << Qt::KeyboardModifiers() << 1;
}

void tst_DTabBarInterne::touches()
{
    QFETCH(int, nombre);
    QFETCH(int, courant);
    QFETCH(Qt::Key, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QFETCH(int, voulu);
    RangeeDEssai essai(nombre);
    essai.barre->setCurrentIndex(courant);
    essai.Expose();

    QTest::keyClick(essai.barre, touche, modificateurs);

    QCOMPARE(essai.barre->currentIndex(), voulu);
}

void tst_DTabBarInterne::ongletSuivantSauteLesAutres()
{
    RangeeDEssai essai(4);
    essai.barre->setTabEnabled(1, false);
    essai.barre->setTabVisible(2, false);
    essai.Expose();

    QTest::keyClick(essai.barre, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(essai.barre->currentIndex(), 3);
}

void tst_DTabBarInterne::touchesLaisseesAuxParents()
{
    ParentAttentif parent;
    auto * const rangee = new DTabBar(nullptr, "groupe");
    rangee->setParent(&parent);
    rangee->PreteBarreInterne()->addTab(QString());
    rangee->PreteBarreInterne()->addTab(QString());
    parent.show();

    QTest::keyClick(rangee->PreteBarreInterne(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(rangee->PreteBarreInterne(), Qt::Key_F5);
    QTest::keyClick(rangee->PreteBarreInterne(), Qt::Key_Right);

    QCOMPARE(parent.touches, (QList<int>{Qt::Key_Control, Qt::Key_F5, Qt::Key_Right}));
}

void tst_DTabBarInterne::sansAnimationDeCouleur()
{
    RangeeDEssai essai(2);
    essai.Expose();
    RangeeDEssai source(2, "groupe", {40, 300});
    source.Expose();
    QImage const avant = essai.barre->grab().toImage();

    source.Presse(0);
    source.Deplace(essai.DonnePoint(1));
    QVERIFY(!essai.barre->DonnePositionIndicateur().isNull());

    QCOMPARE(essai.barre->grab().toImage(), avant); // nothing draws the place
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
void tst_DTabBarInterne::miseEnPagesDUneBarreCachee()
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

void tst_DTabBarInterne::deDroiteAGauche()
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

QTEST_MAIN(tst_DTabBarInterne)
#include "tst_DTabBarInterne.moc"
