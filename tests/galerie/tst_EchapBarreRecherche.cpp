// tests/galerie/tst_EchapBarreRecherche.cpp
#include "EchapBarreRecherche.h"

#include "FenetreRecherche.h"

#include <QDialog>
#include <QMenu>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_EchapBarreRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void depuisUnChamp_data();
    void depuisUnChamp();
    void depuisUnBouton();
    void depuisLEditeur();
    void menuFermay();
    void appuiAilleurs();
    void autresTouches();
    void foyerRendu_data();
    void foyerRendu();
    void foyerAilleurs();
    void sansHote();

private:
    std::unique_ptr<QDialog> monDialogue;
    FenetreRecherche * maFenetre = nullptr; // in the dialog
};

void tst_EchapBarreRecherche::init()
{
    monDialogue = std::make_unique<QDialog>();
    auto * const colonne = new QVBoxLayout(monDialogue.get());
    maFenetre = new FenetreRecherche(false);
    colonne->addWidget(maFenetre);
    monDialogue->show();
    monDialogue->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(monDialogue.get()));
    maFenetre->barre->AfficheToi(CstRecherche::kNouvelleRecherche, UniChaine());
}

void tst_EchapBarreRecherche::cleanup()
{
    monDialogue.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_EchapBarreRecherche::depuisUnChamp_data()
{
    QTest::addColumn<bool>("remplacement");
    QTest::newRow("search field") << false;
    QTest::newRow("replacement field") << true;
}

void tst_EchapBarreRecherche::depuisUnChamp()
{
    QFETCH(bool, remplacement);
    maFenetre->Remplacement({});
    QLineEdit & champ =
        remplacement ? maFenetre->PreteChampRemplacement() : maFenetre->PreteChamp();
    champ.setFocus();
    QSignalSpy ferme(maFenetre->barre, &BarreRecherche::SignalBarreRechercheFermay);
    QTest::keyPress(&champ, Qt::Key_Escape);
    QVERIFY(maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
    QTest::keyRelease(&champ, Qt::Key_Escape);
    QVERIFY(!maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
    QCOMPARE(ferme.size(), 1);
}

void tst_EchapBarreRecherche::depuisUnBouton()
{
    QToolButton & bouton = maFenetre->PreteBouton(u"Fermer la barre de recherche"_s);
    bouton.setFocus();
    QSignalSpy ferme(maFenetre->barre, &BarreRecherche::SignalBarreRechercheFermay);
    QTest::keyClick(&bouton, Qt::Key_Escape);
    QVERIFY(!maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
    QCOMPARE(ferme.size(), 1);
    QVERIFY(maFenetre->editeur->PreteWidget()->hasFocus());
}

void tst_EchapBarreRecherche::depuisLEditeur()
{
    QTest::keyClick(maFenetre->editeur->PreteWidget(), Qt::Key_Escape);
    QVERIFY(!monDialogue->isVisible());
}

// The press has closed a menu: only the release comes to the field.
void tst_EchapBarreRecherche::menuFermay()
{
    QMenu & menu = *maFenetre->PreteBouton(u"Options"_s).menu();
    menu.popup(monDialogue->pos());
    QTRY_VERIFY(menu.isVisible());
    QTest::keyPress(&menu, Qt::Key_Escape);
    QVERIFY(!menu.isVisible());
    QTest::keyRelease(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(maFenetre->barre->isVisible());
    QTest::keyClick(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(!maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
}

// A press whose release went elsewhere is forgotten.
void tst_EchapBarreRecherche::appuiAilleurs()
{
    QTest::keyPress(&maFenetre->PreteChamp(), Qt::Key_Escape);
    maFenetre->editeur->PreteWidget()->setFocus();
    maFenetre->PreteChamp().setFocus();
    QTest::keyRelease(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(maFenetre->barre->isVisible());
}

void tst_EchapBarreRecherche::autresTouches()
{
    QTest::keyClicks(&maFenetre->PreteChamp(), u"ab"_s);
    QCOMPARE(maFenetre->PreteChamp().text(), u"ab"_s);
    QTest::keyClick(&maFenetre->PreteChamp(), Qt::Key_F5);
    QVERIFY(maFenetre->barre->isVisible());
}

void tst_EchapBarreRecherche::foyerRendu_data()
{
    QTest::addColumn<int>("fermeture");
    QTest::newRow("Escape") << 0;
    QTest::newRow("close button") << 1;
    QTest::newRow("the program") << 2;
}

void tst_EchapBarreRecherche::foyerRendu()
{
    QFETCH(int, fermeture);
    QVERIFY(maFenetre->PreteChamp().hasFocus());
    if (fermeture == 0)
        QTest::keyClick(&maFenetre->PreteChamp(), Qt::Key_Escape);
    else if (fermeture == 1)
        maFenetre->PreteBouton(u"Fermer la barre de recherche"_s).click();
    else
        maFenetre->barre->CacheToi();
    QVERIFY(maFenetre->editeur->PreteWidget()->hasFocus());
}

void tst_EchapBarreRecherche::foyerAilleurs()
{
    auto * const autre = new QLineEdit(monDialogue.get());
    monDialogue->layout()->addWidget(autre);
    autre->show();
    autre->setFocus();
    maFenetre->barre->CacheToi();
    QVERIFY(autre->hasFocus());
}

// The duty ends with the host.
void tst_EchapBarreRecherche::sansHote()
{
    delete maFenetre->hote;
    QTest::keyClick(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(!monDialogue->isVisible());
}

QTEST_MAIN(tst_EchapBarreRecherche)
#include "tst_EchapBarreRecherche.moc"
