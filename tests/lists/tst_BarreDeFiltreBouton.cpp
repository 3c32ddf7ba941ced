#include "lists/PiecesBarreDeFiltre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreDeFiltreBouton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void boutonOptions();
    void boutonSansPopUp();
    void icone();
    void reinitialise();
    void menu();
    void cacheLaFleche();
    void mesuresDuBouton();
    void rienSansBouton();
};

namespace {

QRgb Couleur(QToolButton const & bouton)
{
    return bouton.icon().pixmap(QSize(16, 16)).toImage().pixel(8, 8);
}

constexpr QRgb kGris = qRgb(0x80, 0x80, 0x80);
constexpr QRgb kVert = qRgb(0, 0xFF, 0);

} // namespace

void tst_BarreDeFiltreBouton::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltreBouton::boutonOptions()
{
    BarreDeFiltre const barre(true, true);
    QToolButton const & bouton = *PiecesBarreDeFiltre(barre).bouton;
    QCOMPARE(Couleur(bouton), kGris);
    QCOMPARE(bouton.iconSize(), QSize(18, 18));
    QCOMPARE(bouton.toolTip(), u"Configuration de l’affichage"_s);
    QVERIFY(bouton.isCheckable());
    QVERIFY(!bouton.isChecked());
    QVERIFY(bouton.autoRaise());
    QCOMPARE(bouton.menu(), nullptr);
}

void tst_BarreDeFiltreBouton::boutonSansPopUp()
{
    BarreDeFiltre const barre(true, false);
    QToolButton const & bouton = *PiecesBarreDeFiltre(barre).bouton;
    QVERIFY(bouton.menu());
    QVERIFY(bouton.menu()->isEmpty());
    QCOMPARE(bouton.popupMode(), QToolButton::InstantPopup);
    QVERIFY(bouton.autoRaise());
    QVERIFY(bouton.isCheckable());
    QCOMPARE(Couleur(bouton), kGris);
}

void tst_BarreDeFiltreBouton::icone()
{
    BarreDeFiltre barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    barre.MetsBoutonFiltreActif(true);
    QCOMPARE(Couleur(*pieces.bouton), kVert);
    barre.MetsBoutonFiltreActif(false);
    QCOMPARE(Couleur(*pieces.bouton), kGris);
    Q_EMIT pieces.popUp->SignalFiltreActif(true);
    QCOMPARE(Couleur(*pieces.bouton), kVert);
    Q_EMIT pieces.popUp->SignalFiltreActif(false);
    QCOMPARE(Couleur(*pieces.bouton), kGris);
}

void tst_BarreDeFiltreBouton::reinitialise()
{
    // Deliberate: only the icon changes.
    BarreDeFiltre barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    barre.AjouterComboBox(1, u"Longueur"_s, CreeComboDeFiltre());
    barre.MetsIndexCourantComboBox(1, 2);
    QCOMPARE(Couleur(*pieces.bouton), kVert);
    QSignalSpy const espion(&barre, &BarreDeFiltre::SignalValeurChanger);
    barre.ReinitialiseFiltresActifs();
    QCOMPARE(Couleur(*pieces.bouton), kGris);
    QCOMPARE(barre.PreteComboBox(1)->currentIndex(), 2);
    QCOMPARE(espion.count(), 0);
    QVERIFY(pieces.popUp->findChild<QPushButton *>(u"BoutonDesactiverFiltre"_s)->isEnabled());
}

void tst_BarreDeFiltreBouton::menu()
{
    QMenu menu;
    menu.addAction(u"Trier"_s);
    {
        BarreDeFiltre barre(true, false);
        QToolButton const & bouton = *PiecesBarreDeFiltre(barre).bouton;
        barre.AjouterMenu(&menu);
        QCOMPARE(bouton.menu(), &menu);
        barre.AjouterMenu(nullptr);
        QCOMPARE(bouton.menu(), nullptr);
        barre.AjouterMenu(&menu);
    }
    QCOMPARE(menu.actions().size(), 1); // it was not owned

    BarreDeFiltre barre(true, false);
    {
        QMenu autre;
        barre.AjouterMenu(&autre);
    }
    QCOMPARE(PiecesBarreDeFiltre(barre).bouton->menu(), nullptr);
}

void tst_BarreDeFiltreBouton::cacheLaFleche()
{
    BarreDeFiltre barre(true, false);
    barre.CacheIconeFlecheToolButton();
    QCOMPARE(PiecesBarreDeFiltre(barre).bouton->styleSheet(),
             u"::menu-indicator{ image: none; }"_s);
}

void tst_BarreDeFiltreBouton::mesuresDuBouton()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    QToolButton const & bouton = *essai.pieces.bouton;
    QVERIFY(bouton.width() > 0);
    QCOMPARE(essai.barre->DonneLargeurBoutonOptions(), bouton.width());
    QCOMPARE(essai.barre->DonneTailleBoutonOptions(), bouton.size());
    QCOMPARE(essai.barre->DonnePositionBoutonOptions(), bouton.mapToGlobal(QPoint(0, 0)));
}

void tst_BarreDeFiltreBouton::rienSansBouton()
{
    BarreDeFiltre barre(false, true);
    PiecesBarreDeFiltre const pieces(barre);
    barre.MetsBoutonFiltreActif(true);
    barre.ReinitialiseFiltresActifs();
    barre.CacheIconeFlecheToolButton();
    QMenu menu;
    barre.AjouterMenu(&menu);
    QCOMPARE(barre.DonneLargeurBoutonOptions(), 0);
    QCOMPARE(barre.DonneTailleBoutonOptions(), QSize(0, 0));
    QCOMPARE(barre.DonnePositionBoutonOptions(), QPoint());
    barre.AjouterComboBox(1, u"a"_s, CreeComboDeFiltre());
    QSignalSpy const espion(&barre, &BarreDeFiltre::SignalValeurChanger);
    barre.MetsIndexCourantComboBox(1, 1);
    QCOMPARE(espion.count(), 1);
    QMetaObject::invokeMethod(&barre, "PriseAfficherToolTip");
    QVERIFY(!pieces.Menu()->isVisible());
    QPoint const avant = pieces.Menu()->pos();
    QResizeEvent evenement(QSize(50, 50), QSize());
    Q_EMIT pieces.popUp->SignalResizeEvent(&evenement);
    QCOMPARE(pieces.Menu()->pos(), avant);
    QMouseEvent clic(QEvent::MouseButtonRelease, QPointF(), QPointF(), QPointF(), Qt::LeftButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(pieces.popUp, &clic);
}

QTEST_MAIN(tst_BarreDeFiltreBouton)
#include "tst_BarreDeFiltreBouton.moc"
