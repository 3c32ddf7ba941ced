// tests/galerie/tst_FenetreOnglets.cpp
#include "BancOnglets.h"

#include "controls/DLabelElision.h"

using namespace Qt::StringLiterals;

// Windows that were torn off, beside the main one.
class tst_FenetreOnglets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void detachementGardeLaPage();
    void renvoiParLaMemeVoie();
    void envoiEntreDetachees();
    void envoiVersUneFenetreReduite();
    void dernierOngletFermay();
    void seulOngletDetachayDeplaceSaFenetre();
    void detachementDuSeulOngletPrincipal();
    void retourDePlusieursOnglets();
    void fermetureRameneLesPages();
    void fermetureDeLaPrincipale();
    void destructionAvecDetachees();
    void destructionAvecFenetreDePage();
    void langueDansToutesLesFenetres();
    void choixDansLaListe();
    void marqueDeLaFenetreActive();
    void ajoutDansLaFenetreDetachee();

private:
    BancOnglets monBanc;
};

void tst_FenetreOnglets::init()
{
    monBanc.Prepare();
}

void tst_FenetreOnglets::cleanup()
{
    monBanc.Range();
}

void tst_FenetreOnglets::detachementGardeLaPage()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    onglets.MetsIndexCourant(1);
    QPointer<QWidget> const cadre = onglets.DonneWidgetCourant();
    QPointer<QLineEdit> const champ = fenetre->findChild<QLineEdit *>(u"filtreMessages"_s);
    champ->setFocus();
    QTest::keyClicks(champ, u"ferme"_s);
    QTest::keyClicks(champ, u"r"_s);
    QSize const taille = onglets.size();

    FenetreOnglets * const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);

    QVERIFY(detachee);
    QVERIFY(detachee->isVisible());
    QTRY_VERIFY(detachee->isActiveWindow());
    QVERIFY(champ);
    QCOMPARE(champ->window(), detachee);
    QCOMPARE(champ->text(), u"fermer"_s);
    QVERIFY(champ->isUndoAvailable());
    QVERIFY(champ->isVisible());
    QTRY_VERIFY(champ->hasFocus());
    QCOMPARE(detachee->PreteOnglets().DonneWidgetCourant(), cadre);
    QCOMPARE(detachee->PreteOnglets().DonneTitre(0), u"Textes"_s);
    QVERIFY(!detachee->PreteOnglets().DonneIconeOnglet(0).isNull());
    QCOMPARE(detachee->size(), taille);
    QCOMPARE(detachee->windowTitle(), u"Textes – Galerie de libFabrelGui"_s);
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kPolices}));
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kTextes});
}

void tst_FenetreOnglets::renvoiParLaMemeVoie()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    QPointer<QLineEdit> const champ = fenetre->findChild<QLineEdit *>(u"filtreMessages"_s);
    champ->setFocus();
    QTest::keyClicks(champ, u"fermer"_s);
    QPointer<FenetreOnglets> const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QTRY_VERIFY(champ->hasFocus());

    QVERIFY(detachee->PreteOnglets().EnvoieOnglet(0, &onglets, 0));

    QVERIFY(!detachee || !detachee->isVisible());
    QTRY_VERIFY(!detachee);
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kTheme}));
    QCOMPARE(onglets.DonneIndexCourant(), 0);
    QVERIFY(champ);
    QCOMPARE(champ->text(), u"fermer"_s);
    QTRY_VERIFY(champ->hasFocus());
    QVERIFY(fenetre->isActiveWindow());
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kTextes});
}

void tst_FenetreOnglets::envoiEntreDetachees()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    FenetreOnglets * const premiere = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QPointer<FenetreOnglets> const seconde = BancOnglets::Detache(onglets, BancOnglets::kPolices);

    QVERIFY(seconde->PreteOnglets().EnvoieOnglet(0, &premiere->PreteOnglets(), 1));

    QTRY_VERIFY(!seconde);
    QCOMPARE(BancOnglets::DonnePages(premiere->PreteOnglets()),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kPolices}));
    QCOMPARE(premiere->windowTitle(), u"Polices – Galerie de libFabrelGui"_s);
    premiere->PreteOnglets().MetsIndexCourant(0);
    QCOMPARE(premiere->windowTitle(), u"Textes – Galerie de libFabrelGui"_s);
}

void tst_FenetreOnglets::envoiVersUneFenetreReduite()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    FenetreOnglets * const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    detachee->showMinimized();

    QVERIFY(onglets.EnvoieOnglet(1, &detachee->PreteOnglets(), 1));

    QVERIFY(!detachee->isMinimized());
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kPolices});
    QTRY_VERIFY(detachee->isActiveWindow());
}

void tst_FenetreOnglets::dernierOngletFermay()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes});
    QPointer<FenetreOnglets> const detachee =
        BancOnglets::Detache(fenetre->PreteOnglets(), BancOnglets::kTextes);
    detachee->findChild<QLineEdit *>(u"filtreMessages"_s)->setText(u"fermer"_s);

    Q_EMIT detachee->PreteOnglets().SignalDemandeFermetureOnglet(0);

    QTRY_VERIFY(!detachee);
    QCOMPARE(BancOnglets::DonnePages(fenetre->PreteOnglets()), QList<int>{BancOnglets::kTheme});
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kTheme});
    fenetre->MontrePage(BancOnglets::kTextes);
    QCOMPARE(fenetre->findChild<QLineEdit *>(u"filtreMessages"_s)->text(), u"fermer"_s);
}

// Dropped on the desktop: a second window would only replace the first.
void tst_FenetreOnglets::seulOngletDetachayDeplaceSaFenetre()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes});
    FenetreOnglets * const detachee =
        BancOnglets::Detache(fenetre->PreteOnglets(), BancOnglets::kTextes);
    QPointer<QWidget> const cadre = detachee->PreteOnglets().DonneWidgetCourant();

    QCOMPARE(BancOnglets::Detache(detachee->PreteOnglets(), BancOnglets::kTextes), detachee);

    QCOMPARE(BancOnglets::DonneDetachees(), QList<FenetreOnglets *>{detachee});
    QCOMPARE(detachee->PreteOnglets().DonneWidgetCourant(), cadre);
}

void tst_FenetreOnglets::detachementDuSeulOngletPrincipal()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kTextes});
    auto const * const phrase = fenetre->findChild<QLabel *>(u"phraseSansPage"_s);

    FenetreOnglets * const detachee =
        BancOnglets::Detache(fenetre->PreteOnglets(), BancOnglets::kTextes);

    QVERIFY(!phrase->isHidden());
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kTextes});
    QVERIFY(detachee->close());
    QVERIFY(phrase->isHidden());
}

// Of several that come back to an empty window one is the active one.
void tst_FenetreOnglets::retourDePlusieursOnglets()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    FenetreOnglets * const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QVERIFY(onglets.EnvoieOnglet(0, &detachee->PreteOnglets(), 1));
    detachee->PreteOnglets().MetsIndexCourant(0);
    QCOMPARE(onglets.DonneTotalOnglet(), 0);

    QVERIFY(detachee->close());

    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kPolices}));
    QCOMPARE(onglets.DonneIndexCourant(), 0);
    auto const couleur = [&](int index) {
        return BancOnglets::PreteBarre(onglets).DonneInfos(index).etiquetteTitre->palette().color(
            QPalette::WindowText);
    };
    QCOMPARE(couleur(0), ThemesQt::Instance()->DonneCouleur(u"couleurTexteDeBase"_s));
    QCOMPARE(couleur(1), ThemesQt::Instance()->DonneCouleur(u"couleurTexteGris"_s));
}

void tst_FenetreOnglets::fermetureRameneLesPages()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    QPointer<QLineEdit> const champ = fenetre->findChild<QLineEdit *>(u"filtreMessages"_s);
    champ->setText(u"fermer"_s);
    QPointer<FenetreOnglets> const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QVERIFY(onglets.EnvoieOnglet(1, &detachee->PreteOnglets(), 1));
    detachee->PreteOnglets().MetsIndexCourant(0);

    QVERIFY(detachee->close());

    QTRY_VERIFY(!detachee);
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices}));
    QCOMPARE(onglets.DonneIndexCourant(), 1);
    QVERIFY(champ);
    QCOMPARE(champ->text(), u"fermer"_s);
    QVERIFY(champ->isVisible());
    QVERIFY(!onglets.DonneIconeOnglet(2).isNull());
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kTextes});
}

void tst_FenetreOnglets::fermetureDeLaPrincipale()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    QPointer<FenetreOnglets> const premiere = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QPointer<FenetreOnglets> const seconde = BancOnglets::Detache(onglets, BancOnglets::kPolices);
    QSignalSpy const fin(qApp, &QApplication::lastWindowClosed);

    QTimer::singleShot(0, fenetre.get(), &QWidget::close);
    QCOMPARE(QApplication::exec(), 0); // ends with the last window

    QCOMPARE(fin.count(), 1);
    QTRY_VERIFY(!premiere && !seconde);
}

void tst_FenetreOnglets::destructionAvecDetachees()
{
    auto fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    QPointer<QWidget> const premiere = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QPointer<QWidget> const seconde = BancOnglets::Detache(onglets, BancOnglets::kPolices);

    fenetre.reset();

    QVERIFY(!premiere);
    QVERIFY(!seconde);
}

// The focus leaves a window that dies with its page, when much of the rest is gone.
void tst_FenetreOnglets::destructionAvecFenetreDePage()
{
    auto fenetre = monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes});
    QPointer<QDialog> const dialogue = new QDialog(fenetre->PreteOnglets().DonneWidgetCourant());
    auto * const champ = new QLineEdit(dialogue);
    dialogue->show();
    dialogue->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialogue));
    champ->setFocus();
    QTRY_VERIFY(champ->hasFocus());

    fenetre.reset();

    QVERIFY(!dialogue);
}

void tst_FenetreOnglets::langueDansToutesLesFenetres()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    FenetreOnglets * const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QVERIFY(onglets.EnvoieOnglet(1, &detachee->PreteOnglets(), 1));
    detachee->PreteOnglets().MetsIndexCourant(0);
    detachee->findChild<QLineEdit *>(u"filtreMessages"_s)->setText(u"fermer"_s);
    QPointer<QWidget> const cadre = detachee->PreteOnglets().DonneWidgetCourant();
    QPointer<QWidget> const page = cadre->findChild<QWidget *>();

    fenetre->MetsLangue(kLangueAnglais);

    QVERIFY(!page);
    QCOMPARE(detachee->PreteOnglets().DonneWidgetCourant(), cadre);
    QCOMPARE(cadre->findChild<QLabel *>(u"titrePage"_s)->text(), u"Texts"_s);
    QCOMPARE(detachee->findChild<QLineEdit *>(u"filtreMessages"_s)->text(), u"fermer"_s);
    QCOMPARE(detachee->windowTitle(), u"Texts – libFabrelGui Gallery"_s);
    QCOMPARE(detachee->locale().language(), QLocale::English);
    DTabBarInterne const & barre = BancOnglets::PreteBarre(detachee->PreteOnglets());
    QCOMPARE(detachee->PreteOnglets().DonneTitre(1), u"Fonts"_s);
    QCOMPARE(barre.tabToolTip(1), u"Fonts"_s);
    QCOMPARE(barre.accessibleTabName(1), u"Fonts"_s);
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kTextes});
    // The other tab is built when it is shown.
    QVERIFY(!detachee->PreteOnglets().DonneWidget(1)->findChild<QLabel *>());
    detachee->PreteOnglets().MetsIndexCourant(1);
    QVERIFY(detachee->PreteOnglets().DonneWidget(1)->findChild<QLabel *>(u"titrePage"_s));
}

void tst_FenetreOnglets::choixDansLaListe()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    FenetreOnglets * const detachee = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    QVERIFY(onglets.EnvoieOnglet(1, &detachee->PreteOnglets(), 1));
    detachee->showMinimized();
    fenetre->activateWindow();
    QTRY_VERIFY(fenetre->isActiveWindow());

    QListWidget & liste = BancOnglets::PreteListe(*fenetre);
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.item(BancOnglets::kTextes)).center());

    QTRY_VERIFY(detachee->isActiveWindow());
    QVERIFY(!detachee->isMinimized());
    QCOMPARE(detachee->PreteOnglets().DonneIndexCourant(), 0);
    QCOMPARE(onglets.DonneTotalOnglet(), 1);
    QCOMPARE(liste.currentRow(), int{BancOnglets::kTextes});
}

void tst_FenetreOnglets::marqueDeLaFenetreActive()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    QListWidget const & liste = BancOnglets::PreteListe(*fenetre);
    FenetreOnglets * const detachee =
        BancOnglets::Detache(fenetre->PreteOnglets(), BancOnglets::kTextes);
    QTRY_COMPARE(liste.currentRow(), int{BancOnglets::kTextes});

    fenetre->activateWindow();
    QTRY_COMPARE(liste.currentRow(), int{BancOnglets::kPolices});
    detachee->activateWindow();
    QTRY_COMPARE(liste.currentRow(), int{BancOnglets::kTextes});
    // What happens in the other window meanwhile marks nothing.
    QTRY_VERIFY(detachee->isActiveWindow());
    fenetre->PreteOnglets().MetsIndexCourant(0);
    QCOMPARE(liste.currentRow(), int{BancOnglets::kTextes});
    // But what is asked for does.
    fenetre->MontrePage(BancOnglets::kPolices);
    QCOMPARE(liste.currentRow(), int{BancOnglets::kPolices});
}

void tst_FenetreOnglets::ajoutDansLaFenetreDetachee()
{
    auto const fenetre = monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes});
    FenetreOnglets * const detachee =
        BancOnglets::Detache(fenetre->PreteOnglets(), BancOnglets::kTextes);
    detachee->PreteOnglets().PreteBarre()->PreteBoutonAjout()->click();
    QMenu * const menu = BancOnglets::PreteMenu();
    QVERIFY(menu);
    QVERIFY(!BancOnglets::DonneTextes(*menu).contains(u"Textes"_s));
    QVERIFY(!BancOnglets::DonneTextes(*menu).contains(u"Thème"_s));

    BancOnglets::Choisis(menu, u"Vues"_s);

    QCOMPARE(BancOnglets::DonnePages(detachee->PreteOnglets()),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kVues}));
    QCOMPARE(detachee->PreteOnglets().DonneIndexCourant(), 1);
    QCOMPARE(BancOnglets::PreteListe(*fenetre).currentRow(), int{BancOnglets::kVues});
}

QTEST_MAIN(tst_FenetreOnglets)
#include "tst_FenetreOnglets.moc"
