// tests/search/tst_BarreRechercheHauteur.cpp
#include "search/PiecesBarre.h"

#include <QtTest>

#include <QStyle>
#include <QStyleFactory>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

void MontreRemplacement(BarreRecherche const & barre)
{
    PiecesBarre(barre).Action(u"Remplacer"_s)->trigger();
}

} // namespace

class tst_BarreRechercheHauteur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void hauteur_data();
    void hauteur();
    void hauteurApresChangement_data();
    void hauteurApresChangement();
    void hauteurMesuree();
    void rangeeSansChoix();
    void rangeeVisible();
    void rangeesPlacees();
    void placeRefaite();
};

void tst_BarreRechercheHauteur::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheHauteur::hauteur_data()
{
    QTest::addColumn<bool>("montree");
    QTest::newRow("before it is shown") << false;
    QTest::newRow("while it is shown") << true;
}

void tst_BarreRechercheHauteur::hauteur()
{
    QFETCH(bool, montree);
    FenetreDeBarre essai;
    if (montree)
        QVERIFY(essai.Montre());
    for (int const attendue : {50, 30, 50}) {
        MontreRemplacement(*essai.barre);
        QCOMPARE(essai.barre->minimumHeight(), attendue);
        QCOMPARE(essai.barre->maximumHeight(), attendue);
        QCOMPARE(essai.barre->height(), attendue);
    }
    QVERIFY(essai.Montre());
    QCOMPARE(essai.barre->height(), 50);
    QCOMPARE(essai.pieces.recherche->height(), 20);
    QCOMPARE(essai.pieces.remplacement->height(), 20);
}

void tst_BarreRechercheHauteur::hauteurApresChangement_data()
{
    QTest::addColumn<bool>("montree");
    QTest::addColumn<bool>("style");
    for (bool const montree : {false, true}) {
        QTest::addRow("style, shown %d", montree) << montree << true;
        QTest::addRow("font, shown %d", montree) << montree << false;
    }
}

void tst_BarreRechercheHauteur::hauteurApresChangement()
{
    QFETCH(bool, montree);
    QFETCH(bool, style);
    FenetreDeBarre essai;
    if (montree)
        QVERIFY(essai.Montre());
    QScopedPointer<QStyle> const windows(QStyleFactory::create(u"Windows"_s));
    if (style) {
        for (QWidget * const widget : essai.barre->findChildren<QWidget *>())
            widget->setStyle(windows.data());
        essai.barre->setStyle(windows.data());
    } else {
        QFont police = essai.barre->font();
        police.setPointSize(40);
        essai.barre->setFont(police);
    }
    QCOMPARE(essai.barre->height(), 30);
    MontreRemplacement(*essai.barre);
    QVERIFY(essai.Montre());
    QCOMPARE(essai.barre->height(), 50);
    QCOMPARE(essai.pieces.recherche->height(), 20);
    MontreRemplacement(*essai.barre);
    QCOMPARE(essai.barre->height(), 30);
}

void tst_BarreRechercheHauteur::hauteurMesuree()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    pieces.grille->setContentsMargins(0, 7, 0, 9);
    pieces.remplacement->setFixedHeight(30);
    for (int const attendue : {66, 36}) { // 20 + 30 and the margins, then without the 30
        MontreRemplacement(barre);
        QCOMPARE(barre.minimumHeight(), attendue);
        QCOMPARE(barre.maximumHeight(), attendue);
    }
}

void tst_BarreRechercheHauteur::rangeeSansChoix()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    // Only what the user chooses opens the row, not a program that checks the item.
    essai.pieces.Action(u"Remplacer"_s)->setChecked(true);
    QCOMPARE(essai.barre->height(), 30);
    QVERIFY(essai.pieces.remplacement->isHidden());
    QVERIFY(essai.pieces.cadre->isHidden());
}

void tst_BarreRechercheHauteur::rangeeVisible()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QVERIFY(!essai.pieces.remplacement->isVisible());
    QVERIFY(!essai.pieces.cadre->isVisible());
    MontreRemplacement(*essai.barre);
    QVERIFY(essai.pieces.remplacement->isVisible());
    QVERIFY(essai.pieces.tout->isVisible());
    MontreRemplacement(*essai.barre);
    QVERIFY(!essai.pieces.remplacement->isVisible());
    QVERIFY(!essai.pieces.tout->isVisible());
}

void tst_BarreRechercheHauteur::rangeesPlacees()
{
    FenetreDeBarre essai;
    MontreRemplacement(*essai.barre);
    QVERIFY(essai.Montre());
    PiecesBarre const & pieces = essai.pieces;
    QRect const champ = pieces.recherche->geometry();
    QRect const remplacement = pieces.remplacement->geometry();
    // Tight, but one below the other, inside the band and wide alike.
    QVERIFY(champ.bottom() < remplacement.top());
    QVERIFY(essai.barre->rect().contains(remplacement));
    QVERIFY(essai.barre->rect().contains(pieces.cadre->geometry()));
    QCOMPARE(champ.left(), remplacement.left());
    QCOMPARE(champ.width(), remplacement.width());
    for (QToolButton const * const bouton : {pieces.remplacer, pieces.tout, pieces.annuler})
        QVERIFY(bouton->height() >= 16);
    for (QToolButton const * const bouton : {pieces.precedent, pieces.suivant})
        QVERIFY(bouton->height() >= 16);
}

void tst_BarreRechercheHauteur::placeRefaite()
{
    QWidget fenetre;
    auto * const colonne = new QVBoxLayout(&fenetre);
    auto * const barre = new BarreRecherche(nullptr, true);
    auto * const document = new QWidget;
    document->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    colonne->addWidget(barre);
    colonne->addWidget(document);
    fenetre.resize(600, 300);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    int const avant = document->height();
    MontreRemplacement(*barre);
    QTRY_COMPARE(document->height(), avant - 20);
    MontreRemplacement(*barre);
    QTRY_COMPARE(document->height(), avant);
}

QTEST_MAIN(tst_BarreRechercheHauteur)
#include "tst_BarreRechercheHauteur.moc"
