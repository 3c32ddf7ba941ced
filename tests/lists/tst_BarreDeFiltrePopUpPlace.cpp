#include "lists/EssaisBarreDeFiltrePopUp.h"

#include <QScreen>
#include <QtTest>

using namespace EssaisBarreDeFiltrePopUp;
using namespace Qt::StringLiterals;

class tst_BarreDeFiltrePopUpPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void positionDOuverture();
    void placement();
    void placementFerme();
    void placementAuBordDeLEcran();
    void contenuChangeOuvert();
    void enHautDeLEcran();
};

void tst_BarreDeFiltrePopUpPlace::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltrePopUpPlace::positionDOuverture()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QSignalSpy const espion(essai.pieces.popUp, &DMenuAction::SignalOuvreMenu);
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] { essai.pieces.Menu()->close(); });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(ouvert.ouvertures, 1);
    QSize const taille = essai.pieces.popUp->sizeHint();
    QPoint const bouton = essai.pieces.bouton->mapToGlobal(QPoint(0, 0));
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toPoint(),
             QPoint(bouton.x() - taille.width() / 2, bouton.y() - taille.height() - 7));
}

void tst_BarreDeFiltrePopUpPlace::placement()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QList<QPoint> positions;
    QList<QPoint> attendues;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        positions << essai.pieces.Menu()->pos();
        QPoint const bouton = essai.pieces.bouton->mapToGlobal(QPoint(0, 0));
        attendues << QPoint(bouton.x() + essai.pieces.bouton->width() / 2 -
                                essai.pieces.popUp->width() / 2,
                            bouton.y() - 10 - essai.pieces.popUp->height());
        essai.pieces.Menu()->close();
    });
    // The second time, the pop-up has its size already, and the bar may stand elsewhere.
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    essai.fenetre.move(essai.fenetre.pos() + QPoint(-30, 20));
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(positions.size(), 3);
    QCOMPARE(positions, attendues);
}

void tst_BarreDeFiltrePopUpPlace::placementFerme()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QPoint const avant = essai.pieces.Menu()->pos();
    QResizeEvent evenement(QSize(50, 50), QSize());
    QCoreApplication::sendEvent(essai.pieces.popUp, &evenement);
    QCOMPARE(essai.pieces.Menu()->pos(), avant);
}

void tst_BarreDeFiltrePopUpPlace::placementAuBordDeLEcran()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QRect const ecran = essai.fenetre.screen()->availableGeometry();
    essai.fenetre.move(ecran.right() - 560, ecran.top() - 100); // the button in the corner
    essai.Place();
    QRect place;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        place = essai.pieces.Menu()->frameGeometry();
        essai.pieces.Menu()->close();
    });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QVERIFY(place.isValid());
    QVERIFY(ecran.contains(place));
}

void tst_BarreDeFiltrePopUpPlace::contenuChangeOuvert()
{
    Essai essai;
    QVERIFY(essai.Montre());
    int hauteurAvant = 0;
    int hauteurApres = 0;
    int ecart = 0;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        hauteurAvant = essai.pieces.popUp->height();
        essai.barre->AjouterComboBox(3, u"Accents"_s, CreeComboDeFiltre());
        essai.Place();
        hauteurApres = essai.pieces.popUp->height();
        ecart = essai.pieces.bouton->mapToGlobal(QPoint(0, 0)).y() - essai.pieces.Menu()->y() -
                hauteurApres;
        essai.pieces.Menu()->close();
    });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QVERIFY(hauteurApres > hauteurAvant);
    QCOMPARE(ecart, 10); // it has grown upwards
}

void tst_BarreDeFiltrePopUpPlace::enHautDeLEcran()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QRect const ecran = essai.fenetre.screen()->availableGeometry();
    essai.fenetre.move(ecran.left() + 50, ecran.top() - 100);
    essai.Place();
    QList<int> ecarts;
    int fermetures = 0;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        QPoint const dessous(0, essai.pieces.bouton->height());
        ecarts << essai.pieces.Menu()->y() - essai.pieces.bouton->mapToGlobal(dessous).y();
        essai.Clique(); // the button is not covered
        fermetures += !essai.pieces.Menu()->isVisible();
        essai.pieces.Menu()->close();
    });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(ecarts, QList<int>({10, 10}));
    QCOMPARE(fermetures, 2);
}

QTEST_MAIN(tst_BarreDeFiltrePopUpPlace)
#include "tst_BarreDeFiltrePopUpPlace.moc"
