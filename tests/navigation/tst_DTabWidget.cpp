#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"
#include "noyau/Traductions.h"

#include <QVBoxLayout>
#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

class tst_DTabWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void ordreDesSignaux();
    void ajoute();
    void titreDejaJusteApresLAjout();
    void memesPlacesAjoutayCachay_data();
    void memesPlacesAjoutayCachay();
    void insere_data();
    void insere();
    void pageNulle();
    void pageQuiContientLeWidget();
    void boutonFermeture();
    void nomDuBoutonFermetureTraduit_data();
    void nomDuBoutonFermetureTraduit();
    void retire();
    void widgetsCommuns();
    void widgetCommunDetruit();
    void barreCacheeEtMontree();
    void boutonAjoutCache();
    void widgetEtIndex();
    void titreEtInfobulle();
    void icone();
    void donnees();
    void tailleDuBoutonAjoutEstCelleDeLaBarre();
    void tailleDesIcones();
    void tailleDesOnglets();
    void horsBornes_data();
    void horsBornes();
};

void tst_DTabWidget::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidget::construction()
{
    QWidget parent;
    DTabWidget onglets(&parent, u"groupe"_s);
    QCOMPARE(onglets.parentWidget(), &parent);
    QVERIFY(qobject_cast<QFrame *>(&onglets));

    auto * const layout = qobject_cast<QVBoxLayout *>(onglets.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), onglets.PreteBarre());
    QCOMPARE(layout->itemAt(1)->widget(), &Pile(onglets));

    QCOMPARE(Barre(onglets).DonneIdentifiantGroupe(), UniChaine(u"groupe"_s));
    QCOMPARE(onglets.DonneTotalOnglet(), 0);
    QCOMPARE(onglets.DonneIndexCourant(), -1);
    QCOMPARE(onglets.DonneWidgetCourant(), nullptr);
}

// Their order is that of their indices for whoever connects by them.
void tst_DTabWidget::ordreDesSignaux()
{
    QMetaObject const & meta = DTabWidget::staticMetaObject;
    QList<QByteArray> noms;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        noms.append(meta.method(i).name());
    QList<QByteArray> const attendus = {"SignalAjouteOnglet",
                                        "SignalDemandeFermetureOnglet",
                                        "SignalOngletCourantChangay",
                                        "SignalOngletDeplacay",
                                        "SignalOngletDeplacayVersBarreExterne",
                                        "SignalOngletNouvelleFenetre",
                                        "PriseDeplaceOngletVersBarreExterne",
                                        "PriseNouvelleFenetreOngletExistant",
                                        "PriseOngletChangay",
                                        "PriseOngletDeplacay",
                                        "PriseBoutonFermeture"};
    QCOMPARE(noms.first(attendus.size()), attendus);
}

void tst_DTabWidget::ajoute()
{
    DTabWidget onglets(nullptr, {});
    QWidget * const premiere = Page(u"un"_s);
    QWidget * const seconde = Page(u"deux"_s);
    QCOMPARE(onglets.AjouteOnglet(premiere, u"un"_s), 0);
    QCOMPARE(onglets.AjouteOnglet(seconde, u"deux"_s), 1);

    QCOMPARE(Titres(onglets), u"un deux"_s);
    QCOMPARE(onglets.DonneIndexCourant(), 0);
    QCOMPARE(onglets.DonneWidgetCourant(), premiere);
    QCOMPARE(seconde->parentWidget(), &Pile(onglets));
    for (int i : {0, 1}) {
        QVERIFY(Barre(onglets).tabText(i).isEmpty());
        QCOMPARE(Barre(onglets).tabToolTip(i), onglets.DonneTitre(i));
        QCOMPARE(Barre(onglets).tabButton(i, QTabBar::LeftSide),
                 Barre(onglets).DonneInfos(i).cadre);
        QCOMPARE(CouleurTitre(onglets, i), CouleurActive());
        QVERIFY(Fermeture(onglets, i));
    }
}

void tst_DTabWidget::titreDejaJusteApresLAjout()
{
    DTabWidget onglets(nullptr, {});
    onglets.resize(600, 200);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    onglets.AjouteOnglet(Page(u"un"_s), u"Titre"_s);
    onglets.InsereOnglet(Page(u"deux"_s), 0, u"Avant"_s);
    for (int i : {0, 1}) {
        auto const infos = Barre(onglets).DonneInfos(i);
        QCOMPARE(infos.etiquetteTitre->DonneTexte(), onglets.DonneTitre(i));
        // The close button is there, so that the title ends 5 pixels before it.
        QCOMPARE(infos.cadre->x() + infos.cadre->width(), Fermeture(onglets, i)->x() - 5);
    }
}

void tst_DTabWidget::memesPlacesAjoutayCachay_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

// Tabs that are added before the widget is shown stand as those that are added afterwards.
void tst_DTabWidget::memesPlacesAjoutayCachay()
{
    QFETCH(Qt::LayoutDirection, sens);
    auto const places = [](DTabWidget const & onglets) {
        QList<QRect> rects;
        for (int i = 0; i < onglets.DonneTotalOnglet(); ++i)
            rects << Barre(onglets).tabRect(i)
                  << Barre(onglets).tabButton(i, QTabBar::LeftSide)->geometry()
                  << Fermeture(onglets, i)->geometry()
                  << Barre(onglets).DonneInfos(i).etiquetteTitre->geometry();
        return rects;
    };
    QString const noms = u"un deux trois quatre cinq six"_s;
    DTabWidget cachay(nullptr, {});
    DTabWidget montray(nullptr, {});
    cachay.setLayoutDirection(sens);
    montray.setLayoutDirection(sens);
    Remplis(cachay, noms);
    cachay.InsereOnglet(Page(u"sept"_s), 1, u"sept"_s);
    cachay.MetsIndexCourant(2);
    QList<QSize> avant; // of the frames
    for (int i = 0; i < cachay.DonneTotalOnglet(); ++i)
        avant.append(Barre(cachay).DonneInfos(i).cadre->minimumSize());
    for (DTabWidget * onglets : {&cachay, &montray}) {
        onglets->resize(900, 200);
        onglets->show();
        QVERIFY(QTest::qWaitForWindowExposed(onglets));
    }
    Remplis(montray, noms);
    montray.InsereOnglet(Page(u"sept"_s), 1, u"sept"_s);
    montray.MetsIndexCourant(2);

    QTRY_COMPARE(places(cachay), places(montray));
    for (int i = 0; i < cachay.DonneTotalOnglet(); ++i)
        QCOMPARE(Barre(cachay).DonneInfos(i).cadre->minimumSize(), avant.at(i));
}

void tst_DTabWidget::insere_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("attendu");
    QTest::addColumn<int>("courant");
    QTest::newRow("before the current one") << 0 << u"n a b c"_s << 2;
    QTest::newRow("in the place of the current one") << 1 << u"a n b c"_s << 2;
    QTest::newRow("behind the current one") << 2 << u"a b n c"_s << 1;
    QTest::newRow("at the end") << 3 << u"a b c n"_s << 1;
    QTest::newRow("past the end") << 17 << u"a b c n"_s << 1;
    QTest::newRow("negative") << -1 << u"a b c n"_s << 1;
}

void tst_DTabWidget::insere()
{
    QFETCH(int, index);
    QFETCH(QString, attendu);
    QFETCH(int, courant);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);

    onglets.InsereOnglet(Page(u"n"_s), index, u"n"_s);

    QCOMPARE(Titres(onglets), attendu);
    QCOMPARE(onglets.DonneIndexCourant(), courant);
    QCOMPARE(onglets.DonneWidgetCourant()->objectName(), u"b"_s);
    QVERIFY(journal.lignes.isEmpty());
    int const place = attendu.split(u' ').indexOf(u"n"_s);
    QCOMPARE(Barre(onglets).tabToolTip(place), u"n"_s);
    QVERIFY(Fermeture(onglets, place));
    QCOMPARE(CouleurTitre(onglets, place), CouleurActive());
}

void tst_DTabWidget::pageNulle()
{
    DTabWidget onglets(nullptr, {});
    QCOMPARE(onglets.AjouteOnglet(nullptr, u"x"_s), -1);
    onglets.InsereOnglet(nullptr, 0, u"x"_s);
    QCOMPARE(onglets.DonneTotalOnglet(), 0);
    onglets.AjouteWidgetCommun(nullptr);
    QCOMPARE(onglets.layout()->count(), 2);
}

void tst_DTabWidget::pageQuiContientLeWidget()
{
    QWidget fenetre;
    DTabWidget onglets(&fenetre, {});
    QCOMPARE(onglets.AjouteOnglet(&fenetre, u"x"_s), -1);
    QCOMPARE(onglets.AjouteOnglet(&onglets, u"x"_s), -1);
    QCOMPARE(onglets.AjouteOnglet(&Pile(onglets), u"x"_s), -1);
    onglets.AjouteWidgetCommun(&fenetre);
    QCOMPARE(onglets.layout()->count(), 2);
    onglets.setWindowFlag(Qt::Dialog); // in another window, of which that one is the parent
    QCOMPARE(onglets.AjouteOnglet(&fenetre, u"x"_s), -1);
    QCOMPARE(onglets.DonneTotalOnglet(), 0);
}

void tst_DTabWidget::boutonFermeture()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    for (int i : {0, 1}) {
        QToolButton const * const bouton = Fermeture(onglets, i);
        QCOMPARE(bouton->objectName(), u"boutonFermeture"_s);
        QCOMPARE(bouton->accessibleName(), u"Fermer l'onglet"_s);
        QCOMPARE(bouton->minimumSize(), QSize(16, 16));
        QCOMPARE(bouton->maximumSize(), QSize(16, 16));
        QVERIFY(!bouton->icon().isNull());
        QCOMPARE(bouton->parentWidget(), &Barre(onglets));
        QVERIFY(!bouton->property("selectionnay").isValid()); // until the first change of tab
    }
    onglets.MetsIndexCourant(1);
    QCOMPARE(Fermeture(onglets, 0)->property("selectionnay"), QVariant(false));
    QCOMPARE(Fermeture(onglets, 1)->property("selectionnay"), QVariant(true));
    onglets.MetsIndexCourant(0);
    QCOMPARE(Fermeture(onglets, 0)->property("selectionnay"), QVariant(true));
    QCOMPARE(Fermeture(onglets, 1)->property("selectionnay"), QVariant(false));
}

void tst_DTabWidget::nomDuBoutonFermetureTraduit_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("nom");
    QTest::newRow("French") << int(kLangueFrancais) << u"Fermer l'onglet"_s;
    QTest::newRow("English") << int(kLangueAnglais) << u"Close Tab"_s;
}

void tst_DTabWidget::nomDuBoutonFermetureTraduit()
{
    QFETCH(int, langue);
    QFETCH(QString, nom);
    auto const retablis =
        qScopeGuard([] { Traductions::MetsLanguePourApplicationCourante(kLangueFrancais); });
    Traductions::MetsLanguePourApplicationCourante(eLangue(langue));
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a"_s);
    QCOMPARE(Fermeture(onglets, 0)->accessibleName(), nom);
}

void tst_DTabWidget::retire()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    QPointer<QWidget> const page(onglets.DonneWidget(1));
    onglets.RetireOnglet(1);
    EnvoieSuppressions();
    QCOMPARE(Titres(onglets), u"a c"_s);
    QVERIFY(page); // it is the host's
    QCOMPARE(Pile(onglets).indexOf(page), -1);
    QVERIFY(page->isHidden());

    onglets.AjouteOnglet(page, u"encore"_s);
    QCOMPARE(Titres(onglets), u"a c encore/b"_s);
}

void tst_DTabWidget::widgetsCommuns()
{
    DTabWidget onglets(nullptr, {});
    QLabel premier;
    QLabel second;
    onglets.AjouteWidgetCommun(&premier);
    onglets.AjouteWidgetCommun(&second);
    QList<QWidget *> widgets;
    for (int i = 0; i < onglets.layout()->count(); ++i)
        widgets.append(onglets.layout()->itemAt(i)->widget());
    QCOMPARE(widgets, (QList<QWidget *>{onglets.PreteBarre(), &premier, &second, &Pile(onglets)}));
    QCOMPARE(premier.parentWidget(), &onglets);
}

void tst_DTabWidget::widgetCommunDetruit()
{
    DTabWidget onglets(nullptr, {});
    for (int i = 0; i < 5; ++i) {
        auto * const widget = new QLabel;
        onglets.AjouteWidgetCommun(widget);
        delete widget;
    }
    QLabel widget;
    onglets.AjouteWidgetCommun(&widget);
    onglets.AjouteWidgetCommun(&widget);
    QCOMPARE(onglets.layout()->count(), 3);
    QCOMPARE(onglets.layout()->itemAt(1)->widget(), &widget);
    QCOMPARE(onglets.layout()->itemAt(2)->widget(), &Pile(onglets));
}

void tst_DTabWidget::barreCacheeEtMontree()
{
    DTabWidget onglets(nullptr, {});
    onglets.CacheBarreOnglets();
    QVERIFY(onglets.PreteBarre()->isHidden());
    onglets.AfficheBarreOnglets();
    QVERIFY(!onglets.PreteBarre()->isHidden());
}

void tst_DTabWidget::boutonAjoutCache()
{
    DTabWidget onglets(nullptr, {});
    QVERIFY(!onglets.PreteBarre()->PreteBoutonAjout()->isHidden());
    onglets.CacheAjoutOnglet();
    QVERIFY(onglets.PreteBarre()->PreteBoutonAjout()->isHidden());
}

void tst_DTabWidget::widgetEtIndex()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    QCOMPARE(onglets.DonneTotalOnglet(), 3);
    onglets.MetsIndexCourant(2);
    QCOMPARE(onglets.DonneIndexCourant(), 2);
    QCOMPARE(Pile(onglets).currentIndex(), 2);
    QCOMPARE(onglets.DonneWidgetCourant(), onglets.DonneWidget(2));
}

void tst_DTabWidget::titreEtInfobulle()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.MetsTexteOnglet(1, u"Un autre titre"_s);
    QCOMPARE(onglets.DonneTitre(1), u"Un autre titre"_s);
    QCOMPARE(Barre(onglets).tabToolTip(1), u"Un autre titre"_s);
    QCOMPARE(Barre(onglets).DonneInfos(1).etiquetteTitre->DonneTexte(), u"Un autre titre"_s);
    QCOMPARE(onglets.DonneTitre(0), u"a"_s);

    onglets.MetsTexteOnglet(1, {});
    QVERIFY(onglets.DonneTitre(1).isEmpty());
    QVERIFY(Barre(onglets).tabToolTip(1).isEmpty());
    QVERIFY(Barre(onglets).DonneInfos(1).etiquetteTitre->DonneTexte().isEmpty());
}

void tst_DTabWidget::icone()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    QLabel const & etiquette = *Barre(onglets).DonneInfos(1).etiquetteIcone;
    QVERIFY(etiquette.isHidden());
    QVERIFY(onglets.DonneIconeOnglet(1).isNull());

    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::red);
    QIcon const icone(pixmap);
    onglets.MetsIconeOnglet(1, icone);
    QCOMPARE(onglets.DonneIconeOnglet(1).cacheKey(), icone.cacheKey());
    QVERIFY(!etiquette.isHidden());
    QCOMPARE(etiquette.pixmap().size(), QSize(20, 20));
    QVERIFY(onglets.DonneIconeOnglet(0).isNull());

    onglets.MetsIconeOnglet(1, {});
    QVERIFY(onglets.DonneIconeOnglet(1).isNull());
    QVERIFY(etiquette.isHidden());
}

void tst_DTabWidget::donnees()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    QVERIFY(!onglets.DonneDataOnglet(0, 1).isValid());
    onglets.MetsDataOnglet(0, u"un"_s, 1);
    onglets.MetsDataOnglet(0, 2, 300);
    onglets.MetsDataOnglet(1, 3, 300);
    QCOMPARE(onglets.DonneDataOnglet(0, 1), QVariant(u"un"_s));
    QCOMPARE(onglets.DonneDataOnglet(0, 300), QVariant(2));
    QCOMPARE(onglets.DonneDataOnglet(1, 300), QVariant(3));
    QVERIFY(!onglets.DonneDataOnglet(1, 1).isValid());
    onglets.MetsDataOnglet(0, u"autre"_s, 1);
    QCOMPARE(onglets.DonneDataOnglet(0, 1), QVariant(u"autre"_s));
    onglets.MetsTexteOnglet(0, u"titre"_s);
    QCOMPARE(onglets.DonneDataOnglet(0, 1), QVariant(u"autre"_s));
}

void tst_DTabWidget::tailleDuBoutonAjoutEstCelleDeLaBarre()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.resize(700, 300);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    QCOMPARE(onglets.DonneTailleBoutonAjout(), Barre(onglets).size());
    QCOMPARE(onglets.DonneTailleBoutonAjout().height(), 29);
}

void tst_DTabWidget::tailleDesIcones()
{
    DTabWidget onglets(nullptr, {});
    QCOMPARE(onglets.DonneTailleIcone(), QTabBar().iconSize());
    Remplis(onglets, u"a"_s);
    onglets.MetsTailleIcone({32, 24});
    QCOMPARE(onglets.DonneTailleIcone(), QSize(32, 24));
    QCOMPARE(Barre(onglets).iconSize(), QSize(32, 24));
    QCOMPARE(Barre(onglets).DonneInfos(0).etiquetteIcone->size(), QSize(32, 24));
}

void tst_DTabWidget::tailleDesOnglets()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.resize(700, 300);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    QCOMPARE(Barre(onglets).tabRect(1).width(), 185);
    onglets.MetsTailleOnglets(120);
    QCOMPARE(Barre(onglets).tabRect(0).width(), 120);
    QCOMPARE(Barre(onglets).tabRect(1).x(), 120);
}

void tst_DTabWidget::horsBornes_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("one past the last") << 2;
    QTest::newRow("far away") << 1'000'000;
}

void tst_DTabWidget::horsBornes()
{
    QFETCH(int, index);
    DTabWidget onglets(nullptr, {});
    DTabWidget autre(nullptr, {});
    Remplis(onglets, u"a b"_s);
    onglets.MetsIndexCourant(1);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    journal.Ecoute(autre, u"y"_s);

    onglets.RetireOnglet(index);
    onglets.MetsIndexCourant(index);
    onglets.MetsDataOnglet(index, 1, 1);
    onglets.MetsTexteOnglet(index, u"x"_s);
    onglets.MetsIconeOnglet(index, QIcon(u":/Images/fermer.svg"_s));
    onglets.DetacheOnglet(index);
    QVERIFY(!onglets.EnvoieOnglet(index, &autre, 0));
    QMetaObject::invokeMethod(&onglets, "PriseDeplaceOngletVersBarreExterne", Q_ARG(int, index),
                              Q_ARG(QWidget *, &Barre(autre)), Q_ARG(int, 0));
    QMetaObject::invokeMethod(&onglets, "PriseBoutonFermeture");

    QVERIFY(!onglets.DonneWidget(index));
    QVERIFY(onglets.DonneTitre(index).isEmpty());
    QVERIFY(onglets.DonneIconeOnglet(index).isNull());
    QVERIFY(!onglets.DonneDataOnglet(index, 1).isValid());
    QCOMPARE(Titres(onglets), u"a b"_s);
    QCOMPARE(onglets.DonneIndexCourant(), 1);
    QVERIFY(journal.lignes.isEmpty());
}

QTEST_MAIN(tst_DTabWidget)
#include "tst_DTabWidget.moc"
