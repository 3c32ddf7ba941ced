// tests/search/tst_BarreRechercheAffichage.cpp
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreRechercheAffichage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void chaqueAffichage();
    void affichageParLeBureau();
    void reouverture();
    void fenetreActivee();
};

void tst_BarreRechercheAffichage::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheAffichage::chaqueAffichage()
{
    FenetreDeBarre essai;
    auto * const document = new QLineEdit(&essai.fenetre);
    document->move(0, 60);
    essai.pieces.recherche->setText(u"mot"_s);
    QVERIFY(essai.Montre());
    QTRY_VERIFY(essai.pieces.recherche->hasFocus());
    QCOMPARE(essai.pieces.recherche->selectedText(), u"mot"_s);

    essai.pieces.recherche->deselect();
    document->setFocus();
    essai.barre->hide();
    essai.barre->AfficheToi();
    QTRY_VERIFY(essai.pieces.recherche->hasFocus());
    QCOMPARE(essai.pieces.recherche->selectedText(), u"mot"_s);

    // Shown already, nothing happens.
    document->setFocus();
    essai.barre->AfficheToi();
    QVERIFY(document->hasFocus());
    essai.barre->PrendsFocus();
    QVERIFY(essai.pieces.recherche->hasFocus());
}

void tst_BarreRechercheAffichage::affichageParLeBureau()
{
    FenetreDeBarre essai;
    auto * const document = new QLineEdit(&essai.fenetre);
    document->move(0, 60);
    essai.pieces.recherche->setText(u"mot"_s);
    QVERIFY(essai.Montre());
    essai.pieces.recherche->deselect();
    document->setFocus();

    // The desktop, not the program, shows a window that was iconified.
    essai.fenetre.showMinimized();
    essai.fenetre.showNormal();

    QTRY_VERIFY(essai.pieces.recherche->hasFocus());
    QCOMPARE(essai.pieces.recherche->selectedText(), u"mot"_s);
}

void tst_BarreRechercheAffichage::reouverture()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    essai.pieces.recherche->setText(u"mot"_s);
    essai.pieces.Action(u"Remplacer"_s)->trigger();
    essai.pieces.Action(u"commence par"_s)->trigger();
    QTest::mouseClick(essai.pieces.fermer, Qt::LeftButton);
    essai.barre->AfficheToi();
    // Closing destroys nothing: the bar comes back as it was.
    QCOMPARE(essai.pieces.recherche->text(), u"mot"_s);
    QVERIFY(essai.pieces.remplacement->isVisible());
    QVERIFY(essai.pieces.Action(u"commence par"_s)->isChecked());
    QCOMPARE(essai.barre->height(), 50);
}

void tst_BarreRechercheAffichage::fenetreActivee()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    essai.barre->hide();
    QWidget autre;
    autre.show();
    autre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&autre));

    essai.barre->AfficheToi();

    QVERIFY(QTest::qWaitForWindowActive(&essai.fenetre));
    QTRY_VERIFY(essai.pieces.recherche->hasFocus());
}

QTEST_MAIN(tst_BarreRechercheAffichage)
#include "tst_BarreRechercheAffichage.moc"
