#include "lists/PiecesBarreDeFiltre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreDeFiltrePastilles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void cacheesAuDebut();
    void ajoute();
    void memesDonnees_data();
    void memesDonnees();
    void supprime();
    void nettoie();
    void signal();
    void suppressionPendantLeSignal_data();
    void suppressionPendantLeSignal();
    void sousLeChevron();
    void choixSousLeChevron();
    void nouvelleDansLeMenu();
    void mille();
};

void tst_BarreDeFiltrePastilles::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltrePastilles::cacheesAuDebut()
{
    FenetreDeBarreDeFiltre essai;
    essai.fenetre.show();
    essai.Ajoute(1);
    QVERIFY(!essai.pieces.liste->isVisible());
    essai.barre->AfficherListePastille(true);
    QVERIFY(essai.pieces.liste->isVisible());
    QTRY_VERIFY(essai.pieces.Pastilles().first()->visibleRegion().boundingRect().isValid());
    essai.barre->AfficherListePastille(false);
    QVERIFY(!essai.pieces.liste->isVisible());
}

void tst_BarreDeFiltrePastilles::ajoute()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.barre->AjouterMotPastille(u"longs"_s, u"cle"_s, true);
    essai.barre->AjouterMotPastille(u"courts"_s, 2, false);
    essai.Place();
    QCOMPARE(essai.pieces.Cles(), QVariantList({u"cle"_s, 2}));
    QCOMPARE(essai.pieces.Pastilles().first()->DonneTitre(), u"Enlever «longs»"_s);
    QCOMPARE(essai.pieces.CompteVisibles(), 2);
    // From left to right, at the size they ask for.
    QList<Pastille *> const pastilles = essai.pieces.Pastilles();
    QCOMPARE(pastilles[0]->x(), 0);
    QCOMPARE(pastilles[1]->x(), pastilles[0]->width() + 10);
    for (Pastille const * const pastille : pastilles)
        QCOMPARE(pastille->size(), pastille->sizeHint());
}

void tst_BarreDeFiltrePastilles::memesDonnees_data()
{
    QTest::addColumn<QVariant>("premieres");
    QTest::addColumn<QVariant>("secondes");
    QTest::addColumn<int>("nombre");
    QTest::newRow("the same number") << QVariant(1) << QVariant(1) << 1;
    QTest::newRow("another number") << QVariant(1) << QVariant(2) << 2;
    QTest::newRow("the same text") << QVariant(u"a"_s) << QVariant(u"a"_s) << 1;
    QTest::newRow("the case of a text counts") << QVariant(u"a"_s) << QVariant(u"A"_s) << 2;
    QTest::newRow("no data twice") << QVariant() << QVariant() << 1;
    QTest::newRow("no data and a zero") << QVariant() << QVariant(0) << 2;
}

void tst_BarreDeFiltrePastilles::memesDonnees()
{
    QFETCH(QVariant, premieres);
    QFETCH(QVariant, secondes);
    BarreDeFiltre barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    barre.AjouterMotPastille(u"un"_s, premieres);
    barre.AjouterMotPastille(u"deux"_s, secondes);
    QTEST(int(pieces.Pastilles().size()), "nombre");
    QCOMPARE(pieces.Pastilles().first()->DonneTitre(), u"Enlever «un»"_s);
}

void tst_BarreDeFiltrePastilles::supprime()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    QPointer<Pastille> const pastille = essai.pieces.Pastilles()[1];
    essai.barre->SupprimerPastille(1);
    QVERIFY(!pastille);
    QCOMPARE(essai.pieces.Cles(), QVariantList({0, 2}));
    QCOMPARE(essai.pieces.liste->maximumWidth(), essai.pieces.LargeurVoulue());
    essai.barre->SupprimerPastille(1);
    essai.barre->SupprimerPastille(u"autre"_s);
    essai.barre->SupprimerPastille(QVariant());
    QCOMPARE(essai.pieces.Cles(), QVariantList({0, 2}));
    essai.barre->SupprimerPastille(0);
    essai.barre->SupprimerPastille(2);
    QCOMPARE(essai.pieces.Cles(), QVariantList());
    QCOMPARE(essai.pieces.liste->maximumWidth(), 0);
}

void tst_BarreDeFiltrePastilles::nettoie()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    QVERIFY(essai.pieces.liste->width() > 0);
    essai.barre->NetoyerPastille();
    QVERIFY(!essai.barre->findChild<Pastille *>());
    QCOMPARE(essai.pieces.liste->maximumWidth(), 0);
    essai.barre->NetoyerPastille();
    essai.Ajoute(2);
    QCOMPARE(essai.pieces.CompteVisibles(), 2);
}

void tst_BarreDeFiltrePastilles::signal()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(2);
    QSignalSpy const espion(essai.barre, &BarreDeFiltre::PastilleASupprimer);
    Pastille * const pastille = essai.pieces.Pastilles()[1];
    QTest::mouseClick(
        essai.fenetre.windowHandle(), Qt::LeftButton, {},
        pastille->mapTo(&essai.fenetre, pastille->DonneRectBoutonSupprimer().center()));
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0), QVariant(1));
    QCOMPARE(essai.pieces.Cles(), QVariantList({0, 1})); // the host removes it
}

void tst_BarreDeFiltrePastilles::suppressionPendantLeSignal_data()
{
    QTest::addColumn<bool>("toutes");
    QTest::newRow("this one") << false;
    QTest::newRow("all of them") << true;
}

void tst_BarreDeFiltrePastilles::suppressionPendantLeSignal()
{
    QFETCH(bool, toutes);
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(2);
    connect(essai.barre, &BarreDeFiltre::PastilleASupprimer, this, [&](QVariant const & donnees) {
        if (toutes)
            essai.barre->NetoyerPastille();
        else
            essai.barre->SupprimerPastille(donnees);
    });
    QPointer<Pastille> const pastille = essai.pieces.Pastilles().first();
    QTest::mouseClick(
        essai.fenetre.windowHandle(), Qt::LeftButton, {},
        pastille->mapTo(&essai.fenetre, pastille->DonneRectBoutonSupprimer().center()));
    QCOMPARE(essai.pieces.Cles(), toutes ? QVariantList() : QVariantList(1, 1));
    EnvoieSuppressions();
    QVERIFY(!pastille);
}

void tst_BarreDeFiltrePastilles::sousLeChevron()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(20);
    int const visibles = essai.pieces.CompteVisibles();
    QVERIFY(visibles > 0);
    QVERIFY(visibles < 20);
    Q_EMIT essai.pieces.chevron->menu()->aboutToShow();
    QStringList attendus;
    for (int i = visibles; i < 20; ++i)
        attendus << u"Enlever «mot %1»"_s.arg(i);
    QCOMPARE(essai.pieces.TextesDuChevron(), attendus);
}

void tst_BarreDeFiltrePastilles::choixSousLeChevron()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(20);
    QMenu * const menu = essai.pieces.chevron->menu();
    QVariantList recues;
    bool ouvertPendantLeSignal = true;
    connect(essai.barre, &BarreDeFiltre::PastilleASupprimer, this, [&](QVariant const & donnees) {
        recues << donnees;
        ouvertPendantLeSignal = menu->isVisible();
        essai.barre->SupprimerPastille(donnees);
    });
    QTimer::singleShot(0, menu, [&] {
        QTest::keyClick(menu, Qt::Key_Up); // the last one
        QTest::keyClick(menu, Qt::Key_Return);
    });
    essai.pieces.chevron->showMenu(); // blocks until it is closed
    QTRY_COMPARE(recues, QVariantList(1, 19));
    QVERIFY(!ouvertPendantLeSignal);
    QCOMPARE(essai.pieces.Cles().size(), 19);
}

void tst_BarreDeFiltrePastilles::nouvelleDansLeMenu()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(20);
    for (int i = 100; i < 150; ++i) {
        essai.barre->AjouterMotPastille(u"mot %1"_s.arg(i), i);
        QCOMPARE(essai.pieces.TextesDuChevron().last(), u"Enlever «mot %1»"_s.arg(i));
    }
    essai.barre->SupprimerPastille(19);
    essai.barre->AjouterMotPastille(u"nouveau"_s, 99);
    QStringList const textes = essai.pieces.TextesDuChevron();
    QCOMPARE(textes.last(), u"Enlever «nouveau»"_s);
    QVERIFY(!textes.contains(u"Enlever «mot 19»"_s));
    QCOMPARE(textes.size(), 70 - essai.pieces.CompteVisibles());
}

void tst_BarreDeFiltrePastilles::mille()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(1000);
    QCOMPARE(essai.pieces.Cles().size(), 1000);
    Q_EMIT essai.pieces.chevron->menu()->aboutToShow();
    QCOMPARE(essai.pieces.TextesDuChevron().size(), 1000 - essai.pieces.CompteVisibles());
    for (int i = 0; i < 1000; ++i)
        essai.barre->SupprimerPastille(i);
    QCOMPARE(essai.pieces.Cles(), QVariantList());
}

QTEST_MAIN(tst_BarreDeFiltrePastilles)
#include "tst_BarreDeFiltrePastilles.moc"
