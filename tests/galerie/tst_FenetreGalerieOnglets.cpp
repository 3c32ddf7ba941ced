// tests/galerie/tst_FenetreGalerieOnglets.cpp
#include "BancOnglets.h"

#include "Pages.h"
#include "TraductionGalerie.h"

#include "controls/DLabelElision.h"
#include "editing/DLineEditRaccourci.h"

using namespace Qt::StringLiterals;

// The tabs of the main window alone.
class tst_FenetreGalerieOnglets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ongletParPageOuverte();
    void pageInconnue();
    void fermetureGardeLaSaisie_data();
    void fermetureGardeLaSaisie();
    void fermetureACotePasser();
    void champDeRaccourciGardeSesTouches();
    void sansPageLaPhrase();
    void listeChoisitParClicEtEntree();
    void listeReprendSaMarque();
    void menuAjout();
    void ajoutCachayQuandToutEstOuvert();
    void raccourcisTournent_data();
    void raccourcisTournent();
    void focusApresFermeture();
    void langueDesOnglets();
    void themeDesOnglets();
    void seuleFermeLesAutres();

private:
    void Ferme(OngletsGalerie & onglets, int index);

    BancOnglets monBanc;
};

void tst_FenetreGalerieOnglets::init()
{
    monBanc.Prepare();
}

void tst_FenetreGalerieOnglets::cleanup()
{
    monBanc.Range();
}

void tst_FenetreGalerieOnglets::Ferme(OngletsGalerie & onglets, int index)
{
    QWidget * const bouton = BancOnglets::PreteBarre(onglets).tabButton(index, QTabBar::RightSide);
    QVERIFY(bouton);
    static_cast<QAbstractButton *>(bouton)->click();
}

void tst_FenetreGalerieOnglets::ongletParPageOuverte()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    QCOMPARE(BancOnglets::DonnePages(onglets), QList<int>{BancOnglets::kTheme});

    fenetre.MontrePage(BancOnglets::kVues);
    fenetre.MontrePage(BancOnglets::kPolices);
    fenetre.MontrePage(BancOnglets::kVues);

    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kVues, BancOnglets::kPolices}));
    QCOMPARE(onglets.DonneIndexCourant(), 1);
    QCOMPARE(BancOnglets::PreteListe(fenetre).currentRow(), int{BancOnglets::kVues});
    QCOMPARE(onglets.DonneTitre(2), u"Polices"_s);
    DTabBarInterne const & barre = BancOnglets::PreteBarre(onglets);
    QCOMPARE(barre.tabToolTip(2), u"Polices"_s);
    QCOMPARE(barre.accessibleTabName(2), u"Polices"_s);
    QCOMPARE(onglets.DonneIconeOnglet(2).pixmap(20).toImage(),
             QIcon(u":/images/polices.svg"_s).pixmap(20).toImage());
    // The list follows the tabs too.
    onglets.MetsIndexCourant(2);
    QCOMPARE(BancOnglets::PreteListe(fenetre).currentRow(), int{BancOnglets::kPolices});
}

void tst_FenetreGalerieOnglets::pageInconnue()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    for (int const page : {-1, static_cast<int>(DonnePages().size())}) {
        fenetre.MontrePage(page);
        QCOMPARE(BancOnglets::DonnePages(fenetre.PreteOnglets()), QList<int>{BancOnglets::kTheme});
    }
}

void tst_FenetreGalerieOnglets::fermetureGardeLaSaisie_data()
{
    QTest::addColumn<QString>("voie");
    QTest::newRow("close button") << u"bouton"_s;
    QTest::newRow("middle button of the mouse") << u"milieu"_s;
    QTest::newRow("Ctrl+W from a field of the page") << u"touche"_s;
}

void tst_FenetreGalerieOnglets::fermetureGardeLaSaisie()
{
    QFETCH(QString, voie);
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kTextes);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    auto const champ = [&] { return fenetre.findChild<QLineEdit *>(u"filtreMessages"_s); };
    champ()->setText(u"fermer"_s);
    champ()->setFocus();

    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    if (voie == u"bouton")
        Ferme(onglets, 1);
    else if (voie == u"milieu")
        QTest::mouseClick(&barre, Qt::MiddleButton, {}, barre.tabRect(1).center());
    else
        QTest::keyClick(champ(), Qt::Key_W, Qt::ControlModifier);

    QCOMPARE(BancOnglets::DonnePages(onglets), QList<int>{BancOnglets::kTheme});
    QVERIFY(!champ());
    QCOMPARE(BancOnglets::PreteListe(fenetre).currentRow(), int{BancOnglets::kTheme});

    fenetre.MontrePage(BancOnglets::kTextes);
    QCOMPARE(champ()->text(), u"fermer"_s);
}

void tst_FenetreGalerieOnglets::fermetureACotePasser()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    Q_EMIT onglets.SignalDemandeFermetureOnglet(-1); // of a middle click beside the tabs
    Q_EMIT onglets.SignalDemandeFermetureOnglet(7);
    QCOMPARE(onglets.DonneTotalOnglet(), 1);
}

// The field of a page that takes in shortcuts takes those of the window too.
void tst_FenetreGalerieOnglets::champDeRaccourciGardeSesTouches()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kTexteRiche);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    auto * const champ = fenetre.findChild<DLineEditRaccourci *>();
    QVERIFY(champ);
    champ->setFocus();
    QVERIFY(champ->hasFocus());

    QTest::keyClick(champ, Qt::Key_W, Qt::ControlModifier);
    QTest::keyClick(champ, Qt::Key_Tab, Qt::ControlModifier);

    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kTexteRiche}));
    QCOMPARE(onglets.DonneIndexCourant(), 1);
}

void tst_FenetreGalerieOnglets::sansPageLaPhrase()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    auto const * const phrase = fenetre.findChild<QLabel *>(u"phraseSansPage"_s);
    QVERIFY(phrase->isHidden());

    Ferme(fenetre.PreteOnglets(), 0);

    QCOMPARE(fenetre.PreteOnglets().DonneTotalOnglet(), 0);
    QVERIFY(!phrase->isHidden());
    QVERIFY(!phrase->text().isEmpty());
    QCOMPARE(BancOnglets::PreteListe(fenetre).currentRow(), -1);
    fenetre.MetsLangue(kLangueAnglais);
    QVERIFY(!phrase->isHidden());
    // Nothing to walk through, nothing to close.
    for (QShortcut * const raccourci : fenetre.PreteOnglets().findChildren<QShortcut *>())
        Q_EMIT raccourci->activated();

    fenetre.MontrePage(BancOnglets::kTextes);

    QVERIFY(phrase->isHidden());
    QCOMPARE(BancOnglets::PreteListe(fenetre).currentRow(), int{BancOnglets::kTextes});
}

void tst_FenetreGalerieOnglets::listeChoisitParClicEtEntree()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    QListWidget & liste = BancOnglets::PreteListe(fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));

    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.item(BancOnglets::kTextes)).center());
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kTextes}));
    QCOMPARE(onglets.DonneIndexCourant(), 1);

    // The arrows pass by without opening.
    QTest::keyClick(&liste, Qt::Key_Down);
    QTest::keyClick(&liste, Qt::Key_Down);
    QCOMPARE(liste.currentRow(), int{BancOnglets::kEcrans});
    QCOMPARE(onglets.DonneTotalOnglet(), 2);
    QTest::keyClick(&liste, Qt::Key_Return);
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kEcrans}));
    QCOMPARE(onglets.DonneIndexCourant(), 2);
    QCOMPARE(liste.currentRow(), int{BancOnglets::kEcrans});
}

void tst_FenetreGalerieOnglets::listeReprendSaMarque()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    QListWidget & liste = BancOnglets::PreteListe(fenetre);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    liste.setFocus();
    QTest::keyClick(&liste, Qt::Key_Down);
    QCOMPARE(liste.currentRow(), int{BancOnglets::kTextes});

    fenetre.findChild<QComboBox *>(u"choixLangue"_s)->setFocus();

    QCOMPARE(liste.currentRow(), int{BancOnglets::kTheme});
}

void tst_FenetreGalerieOnglets::menuAjout()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kPolices);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    QPushButton * const bouton = onglets.PreteBarre()->PreteBoutonAjout();
    bouton->setFocus();
    QVERIFY(bouton->hasFocus());

    QTest::keyClick(bouton, Qt::Key_Space);

    QPointer<QMenu> const menu = BancOnglets::PreteMenu();
    QVERIFY(menu);
    QStringList voulues;
    for (int i = 0; i < DonnePages().size(); ++i)
        if (i != BancOnglets::kTheme && i != BancOnglets::kPolices)
            voulues.append(TraductionGalerie(DonnePages().at(i).titre));
    QCOMPARE(BancOnglets::DonneTextes(*menu), voulues);
    QVERIFY(!menu->actions().constFirst()->icon().isNull());
    QCOMPARE(menu->activeAction(), menu->actions().constFirst());
    BancOnglets::Choisis(menu, u"Vues"_s);

    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kPolices, BancOnglets::kVues}));
    QCOMPARE(onglets.DonneIndexCourant(), 2);
    QTRY_VERIFY(!menu);
    QVERIFY(onglets.PreteCadreCourant()->isAncestorOf(fenetre.focusWidget()));
}

void tst_FenetreGalerieOnglets::ajoutCachayQuandToutEstOuvert()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    QWidget const * const bouton = onglets.PreteBarre()->PreteBoutonAjout();
    for (int i = 0; i < DonnePages().size(); ++i) {
        QVERIFY(!bouton->isHidden());
        fenetre.MontrePage(i);
    }
    QVERIFY(bouton->isHidden());

    Ferme(onglets, 4);

    QVERIFY(!bouton->isHidden());
}

void tst_FenetreGalerieOnglets::raccourcisTournent_data()
{
    QTest::addColumn<int>("depart");
    QTest::addColumn<Qt::KeyboardModifiers>("touches");
    QTest::addColumn<int>("arrivee");
    Qt::KeyboardModifiers const ctrl = Qt::ControlModifier;
    QTest::newRow("next") << 0 << ctrl << 1;
    QTest::newRow("from the last to the first") << 2 << ctrl << 0;
    QTest::newRow("previous") << 2 << (ctrl | Qt::ShiftModifier) << 1;
    QTest::newRow("from the first to the last") << 0 << (ctrl | Qt::ShiftModifier) << 2;
}

void tst_FenetreGalerieOnglets::raccourcisTournent()
{
    QFETCH(int, depart);
    QFETCH(Qt::KeyboardModifiers, touches);
    QFETCH(int, arrivee);
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kTextes);
    fenetre.MontrePage(BancOnglets::kPolices);
    onglets.MetsIndexCourant(depart);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    // Keyboards of X11 give this key for Tab with Shift.
    Qt::Key const touche = touches.testFlag(Qt::ShiftModifier) ? Qt::Key_Backtab : Qt::Key_Tab;

    // In the page, in the list and in the bar.
    onglets.PreteCadreCourant()->ReprendsFocus();
    QVERIFY(onglets.PreteCadreCourant()->isAncestorOf(fenetre.focusWidget()));
    QTest::keyClick(fenetre.focusWidget(), touche, touches);
    QCOMPARE(onglets.DonneIndexCourant(), arrivee);
    QVERIFY(onglets.PreteCadreCourant()->isAncestorOf(fenetre.focusWidget()));
    for (QWidget * const widget : {static_cast<QWidget *>(&BancOnglets::PreteListe(fenetre)),
                                   static_cast<QWidget *>(&BancOnglets::PreteBarre(onglets))}) {
        onglets.MetsIndexCourant(depart);
        widget->setFocus();
        QTest::keyClick(widget, touche, touches);
        QCOMPARE(onglets.DonneIndexCourant(), arrivee);
        QVERIFY(widget->hasFocus());
    }
}

void tst_FenetreGalerieOnglets::focusApresFermeture()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    auto * const champ = fenetre.findChild<QLineEdit *>(u"filtreVariables"_s);
    champ->setFocus();
    fenetre.MontrePage(BancOnglets::kTextes);
    fenetre.findChild<QLineEdit *>(u"filtreMessages"_s)->setFocus();

    Ferme(onglets, 1);

    QCOMPARE(fenetre.focusWidget(), champ); // where it was in the page that comes back
}

void tst_FenetreGalerieOnglets::langueDesOnglets()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kPolices);

    fenetre.MetsLangue(kLangueAnglais);

    DTabBarInterne const & barre = BancOnglets::PreteBarre(onglets);
    for (int const i : {0, 1}) {
        QString const titre = i == 0 ? u"Theme"_s : u"Fonts"_s;
        QCOMPARE(onglets.DonneTitre(i), titre);
        QCOMPARE(barre.tabToolTip(i), titre);
        QCOMPARE(barre.accessibleTabName(i), titre);
        // Told of by the translator of Qt's own texts, when the event loop runs.
        QTRY_COMPARE(barre.tabButton(i, QTabBar::RightSide)->accessibleName(), u"Close Tab"_s);
    }
    QCOMPARE(onglets.PreteBarre()->PreteBoutonAjout()->accessibleName(), u"Add Tab"_s);
}

void tst_FenetreGalerieOnglets::themeDesOnglets()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kPolices);

    monBanc.PreteTheme().Assombris();
    QVERIFY(monBanc.PreteTheme().Applique()); // as the page on the theme does, without rebuilding

    auto const couleur = [&](int index) {
        return BancOnglets::PreteBarre(onglets).DonneInfos(index).etiquetteTitre->palette().color(
            QPalette::WindowText);
    };
    QTRY_COMPARE(couleur(0), ThemesQt::Instance()->DonneCouleur(u"couleurTexteGris"_s));
    QCOMPARE(couleur(1), ThemesQt::Instance()->DonneCouleur(u"couleurTexteDeBase"_s));
    // The white tab of light themes would leave that title unread.
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    QImage const image = barre.grab().toImage();
    for (int const x : {2, 92, 182}) // logical pixels, beside the title
        QVERIFY(image.pixelColor(barre.tabRect(1).left() + x, barre.height() - 4).lightness() <
                128);
    // The line behind the add button follows as well.
    QImage const rangee = onglets.PreteBarre()->grab().toImage();
    QCOMPARE(rangee.pixelColor(rangee.width() - 2, rangee.height() - 1),
             ThemesQt::Instance()->DonneCouleur(u"couleurSeparateur"_s));
}

void tst_FenetreGalerieOnglets::seuleFermeLesAutres()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    fenetre.MontrePage(BancOnglets::kTextes);
    fenetre.MontrePage(BancOnglets::kPolices);
    fenetre.show();
    BancOnglets::Detache(onglets, BancOnglets::kTextes);

    fenetre.MontreSeule(BancOnglets::kPolices);
    QCOMPARE(BancOnglets::DonnePages(onglets), QList<int>{BancOnglets::kPolices});
    QVERIFY(BancOnglets::DonneDetachees().isEmpty());

    fenetre.MontreSeule(BancOnglets::kEcrans); // one that was not open
    QCOMPARE(BancOnglets::DonnePages(onglets), QList<int>{BancOnglets::kEcrans});
}

QTEST_MAIN(tst_FenetreGalerieOnglets)
#include "tst_FenetreGalerieOnglets.moc"
