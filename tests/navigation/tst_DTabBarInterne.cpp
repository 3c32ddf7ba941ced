// navigation/tst_DTabBarInterne.cpp
// The tabs: their frames, titles, colours and icons.
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
    void policeSuivie();
    void sansAnimationDeCouleur();
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

void tst_DTabBarInterne::policeSuivie()
{
    RangeeDEssai essai(1);
    QFont police = essai.barre->font();
    police.setPointSize(police.pointSize() + 5);

    essai.barre->setFont(police);

    QCOMPARE(essai.PreteTitre(0)->DonnePolice().pointSize(), police.pointSize());
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

QTEST_MAIN(tst_DTabBarInterne)
#include "tst_DTabBarInterne.moc"
