#include "lists/PiecesBarreDeFiltre.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

class tst_BarreDeFiltreTailles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void largeurDeLaListe_data();
    void largeurDeLaListe();
    void touteLaPlaceVoulue();
    void aucuneCacheeSansRaison();
    void barreRedimensionnee();
    void listeMontreeApres();
    void remplieSansLargeur();
    void policeChangee();
    void hauteur();
};

void tst_BarreDeFiltreTailles::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltreTailles::largeurDeLaListe_data()
{
    QTest::addColumn<int>("largeur");
    QTest::addColumn<int>("nombre");
    QTest::newRow("everything has room") << 2000 << 3;
    QTest::newRow("more than 60%") << 300 << 20;
    QTest::newRow("60% that are rounded up") << 301 << 20;   // 180.6
    QTest::newRow("60% that are rounded down") << 304 << 20; // 182.4
    QTest::newRow("no room at all") << 0 << 3;
    QTest::newRow("no pill") << 300 << 0;
}

void tst_BarreDeFiltreTailles::largeurDeLaListe()
{
    QFETCH(int, largeur);
    QFETCH(int, nombre);
    BarreDeFiltre barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    barre.resize(largeur, 40);
    for (int i = 0; i < nombre; ++i)
        barre.AjouterMotPastille(u"mot"_s, i);
    int const part = int(std::lround(barre.width() * 0.6));
    int const attendue = std::min(part, pieces.LargeurVoulue());
    QCOMPARE(pieces.liste->minimumWidth(), attendue);
    QCOMPARE(pieces.liste->maximumWidth(), attendue);
}

void tst_BarreDeFiltreTailles::touteLaPlaceVoulue()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    QCOMPARE(essai.pieces.liste->width(), essai.pieces.LargeurVoulue());
    QVERIFY(essai.pieces.liste->width() < 360);
    essai.Ajoute(30);
    QCOMPARE(essai.pieces.liste->width(), 360);
    QVERIFY(essai.pieces.CompteVisibles() < 30);
    QVERIFY(essai.pieces.champ->width() > 50);
}

void tst_BarreDeFiltreTailles::aucuneCacheeSansRaison()
{
    FenetreDeBarreDeFiltre essai(2000);
    QVERIFY(essai.Montre());
    for (int i = 0; i < 20; ++i) {
        essai.barre->AjouterMotPastille(QString(i % 4, u'm'), i);
        essai.Place();
        if (essai.pieces.LargeurVoulue() <= 1200)
            QCOMPARE(essai.pieces.CompteVisibles(), i + 1);
    }
}

void tst_BarreDeFiltreTailles::barreRedimensionnee()
{
    FenetreDeBarreDeFiltre essai(2000);
    QVERIFY(essai.Montre());
    essai.Ajoute(8);
    int const voulue = essai.pieces.LargeurVoulue();
    QCOMPARE(essai.pieces.CompteVisibles(), 8);
    essai.barre->resize(voulue, 40);
    essai.Place();
    QCOMPARE(essai.pieces.liste->width(), int(std::lround(voulue * 0.6)));
    QVERIFY(essai.pieces.CompteVisibles() < 8);
    QVERIFY(essai.pieces.chevron->width() > 0);
    essai.barre->resize(2000, 40);
    essai.Place();
    QCOMPARE(essai.pieces.CompteVisibles(), 8);
    QCOMPARE(essai.pieces.liste->width(), voulue);
}

void tst_BarreDeFiltreTailles::listeMontreeApres()
{
    FenetreDeBarreDeFiltre essai;
    essai.Ajoute(3); // before anything is shown
    QVERIFY(essai.Montre());
    essai.Place();
    QCOMPARE(essai.pieces.CompteVisibles(), 3);
    QCOMPARE(essai.pieces.liste->width(), essai.pieces.LargeurVoulue());
    essai.barre->AfficherListePastille(false);
    essai.barre->AjouterMotPastille(u"mot"_s, 9);
    essai.barre->SupprimerPastille(0);
    essai.barre->AfficherListePastille(true);
    essai.Place();
    QCOMPARE(essai.pieces.CompteVisibles(), 3);
}

void tst_BarreDeFiltreTailles::remplieSansLargeur()
{
    FenetreDeBarreDeFiltre essai;
    essai.barre->resize(0, 40);
    essai.Ajoute(3);
    QCOMPARE(essai.pieces.liste->maximumWidth(), 0);
    essai.fenetre.show(); // the pills are still hidden
    essai.barre->resize(600, 40);
    essai.Place();
    essai.barre->AfficherListePastille(true);
    essai.Place();
    QCOMPARE(essai.pieces.CompteVisibles(), 3);
    QCOMPARE(essai.pieces.liste->width(), essai.pieces.LargeurVoulue());
    for (Pastille const * const pastille : essai.pieces.Pastilles())
        QVERIFY(essai.pieces.liste->rect().contains(pastille->geometry()));
}

void tst_BarreDeFiltreTailles::policeChangee()
{
    FenetreDeBarreDeFiltre essai(2000);
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    int const avant = essai.pieces.liste->width();
    essai.barre->setStyleSheet(u"Pastille { font-size: 30px; }"_s);
    QTRY_VERIFY(essai.pieces.liste->width() > avant);
    essai.Place();
    QCOMPARE(essai.pieces.liste->width(), essai.pieces.LargeurVoulue());
    QCOMPARE(essai.pieces.CompteVisibles(), 3);
}

void tst_BarreDeFiltreTailles::hauteur()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(20);
    int const hauteur = essai.pieces.Pastilles().first()->sizeHint().height();
    QCOMPARE(essai.pieces.liste->height(), hauteur);
    QCOMPARE(essai.pieces.chevron->maximumSize(), QSize(hauteur, hauteur));
    // In the middle of the bar.
    QVERIFY(qAbs(essai.pieces.liste->geometry().center().y() - 20) <= 1);

    essai.barre->NetoyerPastille();
    essai.Place();
    essai.Ajoute(20);
    QCOMPARE(essai.pieces.liste->height(), hauteur);
    QVERIFY(essai.pieces.chevron->width() > 0); // it has not gone with the pills
    QVERIFY(essai.pieces.chevron->height() > 0);
}

QTEST_MAIN(tst_BarreDeFiltreTailles)
#include "tst_BarreDeFiltreTailles.moc"
