#include "lists/EssaisBarreDeFiltrePopUp.h"

#include <QtTest>

using namespace EssaisBarreDeFiltrePopUp;
using namespace Qt::StringLiterals;

class tst_BarreDeFiltrePopUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void clicEnFileDAttente();
    void leBoutonSeReleve();
    void filtreDesEvenements_data();
    void filtreDesEvenements();
    void filtreInstallay();
    void clicSurLeBoutonFerme();
    void rouvrePlusTard();
    void echappement();
    void filtreAuClavier();
    void barreDetruite();
    void barreCachee();
};

void tst_BarreDeFiltrePopUp::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltrePopUp::clicEnFileDAttente()
{
    Essai essai;
    QVERIFY(essai.Montre());
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] { essai.pieces.Menu()->close(); });
    essai.pieces.bouton->click();
    QCOMPARE(ouvert.ouvertures, 0);
    QTRY_COMPARE(ouvert.ouvertures, 1);
}

void tst_BarreDeFiltrePopUp::leBoutonSeReleve()
{
    Essai essai;
    QVERIFY(essai.Montre());
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] { essai.pieces.Menu()->close(); });
    essai.pieces.bouton->click();
    QVERIFY(essai.pieces.bouton->isChecked());
    QTRY_VERIFY(!essai.pieces.bouton->isChecked());
    QCOMPARE(ouvert.ouvertures, 1);
}

void tst_BarreDeFiltrePopUp::filtreDesEvenements_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("surLeBouton");
    QTest::addColumn<bool>("mange");
    QTest::addColumn<bool>("ferme");
    auto const rangee = [](char const * nom, QEvent::Type type, bool surLeBouton, bool mange,
                           bool ferme) {
        QTest::newRow(nom) << int(type) << surLeBouton << mange << ferme;
    };
    rangee("press on the button", QEvent::MouseButtonPress, true, true, false);
    rangee("release on the button", QEvent::MouseButtonRelease, true, true, true);
    rangee("double click on the button", QEvent::MouseButtonDblClick, true, true, false);
    rangee("move over the button", QEvent::MouseMove, true, false, false);
    rangee("release elsewhere", QEvent::MouseButtonRelease, false, false, false);
    rangee("double click elsewhere", QEvent::MouseButtonDblClick, false, false, false);
}

void tst_BarreDeFiltrePopUp::filtreDesEvenements()
{
    QFETCH(int, type);
    QFETCH(bool, surLeBouton);
    QFETCH(bool, mange);
    QFETCH(bool, ferme);
    Essai essai;
    QVERIFY(essai.Montre());
    for (QWidget * const cible :
         std::initializer_list<QWidget *>{essai.pieces.popUp, essai.pieces.Menu()}) {
        bool mangeTrouve = false;
        bool fermeTrouve = false;
        PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
            QPointF const global = surLeBouton ? essai.pieces.bouton->mapToGlobal(essai.Centre())
                                               : essai.pieces.champ->mapToGlobal(QPoint(3, 3));
            QMouseEvent evenement(QEvent::Type(type), cible->mapFromGlobal(global), global, global,
                                  Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            evenement.ignore(); // whoever else gets it, takes it
            QObject * const filtre = essai.barre;
            mangeTrouve = filtre->eventFilter(cible, &evenement);
            fermeTrouve = !essai.pieces.Menu()->isVisible();
            essai.pieces.Menu()->close();
        });
        QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
        QCOMPARE(ouvert.ouvertures, 1);
        QCOMPARE(mangeTrouve, mange);
        QCOMPARE(fermeTrouve, ferme);
    }
}

void tst_BarreDeFiltrePopUp::filtreInstallay()
{
    Essai essai;
    QVERIFY(essai.Montre());
    bool ouvertApresLaPression = false;
    bool ouvertApresLeRelachement = true;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        QPointF const global = essai.pieces.bouton->mapToGlobal(essai.Centre());
        auto const envoie = [&](QWidget * cible, QEvent::Type type) {
            QMouseEvent evenement(type, cible->mapFromGlobal(global), global, global,
                                  Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(cible, &evenement);
        };
        envoie(essai.pieces.Menu(), QEvent::MouseButtonPress); // on which QMenu would close
        ouvertApresLaPression = essai.pieces.Menu()->isVisible();
        envoie(essai.pieces.popUp, QEvent::MouseButtonRelease);
        ouvertApresLeRelachement = essai.pieces.Menu()->isVisible();
        essai.pieces.Menu()->close();
    });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(ouvert.ouvertures, 1);
    QVERIFY(ouvertApresLaPression);
    QVERIFY(!ouvertApresLeRelachement);
}

void tst_BarreDeFiltrePopUp::clicSurLeBoutonFerme()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QSignalSpy const clics(essai.pieces.bouton, &QToolButton::clicked);
    bool fermay = false;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        essai.Clique();
        fermay = !essai.pieces.Menu()->isVisible();
        essai.pieces.Menu()->close();
    });
    essai.Clique();
    QTRY_COMPARE(ouvert.ouvertures, 1);
    essai.Place();
    QVERIFY(fermay);
    QVERIFY(!essai.pieces.Menu()->isVisible());
    QCOMPARE(ouvert.ouvertures, 1);
    QCOMPARE(clics.count(), 1);
    QVERIFY(!essai.pieces.bouton->isChecked());
    QVERIFY(!essai.pieces.bouton->isDown());
}

void tst_BarreDeFiltrePopUp::rouvrePlusTard()
{
    Essai essai;
    QVERIFY(essai.Montre());
    bool complet = true;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        complet = complet && essai.pieces.popUp->isVisible() &&
                  essai.barre->PreteComboBox(1)->isVisible();
        essai.Clique();
    });
    for (int fois = 1; fois <= 3; ++fois) {
        essai.Clique();
        QTRY_COMPARE(ouvert.ouvertures, fois);
        essai.Place();
        QVERIFY(!essai.pieces.Menu()->isVisible());
    }
    QVERIFY(complet); // the pop-up has not been closed in its menu
}

void tst_BarreDeFiltrePopUp::echappement()
{
    Essai essai;
    QVERIFY(essai.Montre());
    PendantQuIlEstOuvert const ouvert(
        *essai.pieces.Menu(), [&] { QTest::keyClick(essai.pieces.Menu(), Qt::Key_Escape); });
    essai.pieces.bouton->setFocus();
    QTest::keyClick(essai.pieces.bouton, Qt::Key_Space);
    QTRY_COMPARE(ouvert.ouvertures, 1);
    essai.Place();
    QVERIFY(!essai.pieces.Menu()->isVisible());
    QVERIFY(!essai.pieces.bouton->isChecked());
}

void tst_BarreDeFiltrePopUp::filtreAuClavier()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QSignalSpy const espion(essai.barre, &BarreDeFiltre::SignalValeurChanger);
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        QTest::keyClick(essai.pieces.Menu(), Qt::Key_Tab);
        QTest::keyClick(essai.pieces.Menu()->focusWidget(), Qt::Key_Down);
        QTest::keyClick(essai.pieces.Menu()->focusWidget(), Qt::Key_Tab);
        QTest::keyClick(essai.pieces.Menu()->focusWidget(), Qt::Key_Tab);
        QTest::keyClick(essai.pieces.Menu()->focusWidget(), Qt::Key_Space); // the button
        QTest::keyClick(essai.pieces.Menu(), Qt::Key_Escape);
    });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(0), QVariantList({1, 1, QVariant(101)}));
    QCOMPARE(espion.at(1), QVariantList({1, 0, QVariant(100)}));
}

void tst_BarreDeFiltrePopUp::barreDetruite()
{
    Essai essai;
    QVERIFY(essai.Montre());
    QPointer<BarreDeFiltre> const barre = essai.barre;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] { delete barre; });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(ouvert.ouvertures, 1);
    QVERIFY(!barre);
}

void tst_BarreDeFiltrePopUp::barreCachee()
{
    Essai essai;
    QVERIFY(essai.Montre());
    bool fermay = false;
    PendantQuIlEstOuvert const ouvert(*essai.pieces.Menu(), [&] {
        essai.barre->hide();
        fermay = !essai.pieces.Menu()->isVisible();
        essai.pieces.Menu()->close();
    });
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(ouvert.ouvertures, 1);
    QVERIFY(fermay);
    essai.barre->show();
    QMetaObject::invokeMethod(essai.barre, "PriseAfficherToolTip");
    QCOMPARE(ouvert.ouvertures, 2);
}

QTEST_MAIN(tst_BarreDeFiltrePopUp)
#include "tst_BarreDeFiltrePopUp.moc"
