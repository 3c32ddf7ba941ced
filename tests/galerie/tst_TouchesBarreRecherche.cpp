// tests/galerie/tst_TouchesBarreRecherche.cpp
#include "TouchesBarreRecherche.h"

#include "FenetreRecherche.h"

#include "search/DialogueRechercher.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_TouchesBarreRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void depuisUnChamp_data();
    void depuisUnChamp();
    void depuisUnBouton_data();
    void depuisUnBouton();
    void depuisLaBarre();
    void depuisLEditeur();
    void menuFermay();
    void dialogueFermay();
    void toucheTenue_data() { depuisUnBouton_data(); }
    void toucheTenue();
    void appuiAilleurs();
    void entree_data();
    void entree();
    void entreeHorsDeLaBarre();
    void autresTouches();
    void foyerRendu_data();
    void foyerRendu();
    void foyerAilleurs();
    void detruitALaFermeture_data();
    void detruitALaFermeture();
    void sansHote();

private:
    void PoseBoutonParDefaut();

    std::unique_ptr<QDialog> monDialogue;
    FenetreRecherche * maFenetre = nullptr; // in the dialog
};

void tst_TouchesBarreRecherche::init()
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

void tst_TouchesBarreRecherche::cleanup()
{
    monDialogue.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TouchesBarreRecherche::PoseBoutonParDefaut()
{
    auto * const boutons = new QDialogButtonBox(QDialogButtonBox::Ok);
    monDialogue->layout()->addWidget(boutons);
    boutons->button(QDialogButtonBox::Ok)->setDefault(true);
    boutons->show(); // a dialog presses none that is hidden
    connect(boutons, &QDialogButtonBox::accepted, monDialogue.get(), &QDialog::accept);
}

void tst_TouchesBarreRecherche::depuisUnChamp_data()
{
    QTest::addColumn<bool>("remplacement");
    QTest::newRow("search field") << false;
    QTest::newRow("replacement field") << true;
}

void tst_TouchesBarreRecherche::depuisUnChamp()
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

void tst_TouchesBarreRecherche::depuisUnBouton_data()
{
    QTest::addColumn<QString>("bouton");
    QTest::newRow("close button") << u"Fermer la barre de recherche"_s;
    QTest::newRow("button of the replacement row") << u"Tout"_s;
}

void tst_TouchesBarreRecherche::depuisUnBouton()
{
    QFETCH(QString, bouton);
    maFenetre->Remplacement({});
    maFenetre->PreteBouton(bouton).setFocus();
    QSignalSpy ferme(maFenetre->barre, &BarreRecherche::SignalBarreRechercheFermay);
    QTest::keyPress(&maFenetre->PreteBouton(bouton), Qt::Key_Escape);
    QVERIFY(maFenetre->barre->isVisible());
    QTest::keyRelease(&maFenetre->PreteBouton(bouton), Qt::Key_Escape);
    QVERIFY(!maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
    QCOMPARE(ferme.size(), 1);
    QVERIFY(maFenetre->editeur->PreteWidget()->hasFocus());
}

// Which takes the focus by a click beside its controls.
void tst_TouchesBarreRecherche::depuisLaBarre()
{
    maFenetre->barre->setFocus();
    QTest::keyClick(maFenetre->barre, Qt::Key_Escape);
    QVERIFY(!maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
}

void tst_TouchesBarreRecherche::depuisLEditeur()
{
    QTest::keyClick(maFenetre->editeur->PreteWidget(), Qt::Key_Escape);
    QVERIFY(!monDialogue->isVisible());
}

// The press has closed a menu: only the release comes to the field.
void tst_TouchesBarreRecherche::menuFermay()
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

// By the press, whose release then comes to the field.
void tst_TouchesBarreRecherche::dialogueFermay()
{
    DialogueRechercher dialogue(monDialogue.get(), false, CstRecherche::kBoucler);
    dialogue.AfficheToi();
    dialogue.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    QTest::keyPress(&dialogue, Qt::Key_Escape);
    QVERIFY(!dialogue.isVisible());
    monDialogue->activateWindow();
    maFenetre->PreteChamp().setFocus();
    QTRY_VERIFY(maFenetre->PreteChamp().hasFocus());
    // And so do the presses of a key that is held down.
    QKeyEvent repetition(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&maFenetre->PreteChamp(), &repetition);
    QTest::keyRelease(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(maFenetre->barre->isVisible());
    QVERIFY(monDialogue->isVisible());
}

// X11 tells of a key that is held down as of one that is released and pressed again.
void tst_TouchesBarreRecherche::toucheTenue()
{
    QFETCH(QString, bouton);
    maFenetre->Remplacement({});
    for (QWidget * const enfant : {static_cast<QWidget *>(&maFenetre->PreteChamp()),
                                   static_cast<QWidget *>(&maFenetre->PreteBouton(bouton))}) {
        maFenetre->barre->show();
        enfant->setFocus();
        QTest::keyPress(enfant, Qt::Key_Escape);
        for (int i = 0; i < 2; ++i) {
            for (QEvent::Type const type : {QEvent::KeyRelease, QEvent::KeyPress}) {
                QKeyEvent repetition(type, Qt::Key_Escape, Qt::NoModifier, QString(), true);
                QCoreApplication::sendEvent(monDialogue->focusWidget(), &repetition);
            }
        }
        QVERIFY(maFenetre->barre->isVisible());
        QTest::keyRelease(enfant, Qt::Key_Escape);
        QVERIFY(!maFenetre->barre->isVisible());
        QVERIFY(monDialogue->isVisible());
    }
}

// A press whose release went elsewhere is forgotten.
void tst_TouchesBarreRecherche::appuiAilleurs()
{
    QTest::keyPress(&maFenetre->PreteChamp(), Qt::Key_Escape);
    maFenetre->editeur->PreteWidget()->setFocus();
    maFenetre->PreteChamp().setFocus();
    QTest::keyRelease(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(maFenetre->barre->isVisible());
}

void tst_TouchesBarreRecherche::entree_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<int>("ou");
    for (auto const & [nom, touche] :
         {std::pair("Return", Qt::Key_Return), std::pair("Enter", Qt::Key_Enter)}) {
        QTest::addRow("%s in the search field", nom) << int(touche) << u"ab ab"_s << u"3-5"_s << 0;
        QTest::addRow("%s in the replacement field", nom)
            << int(touche) << u"x ab"_s << u"2-4"_s << 1;
        QTest::addRow("%s in the bar", nom) << int(touche) << u"ab ab"_s << u"0-2"_s << 2;
    }
}

void tst_TouchesBarreRecherche::entree()
{
    QFETCH(int, touche);
    QFETCH(int, ou);
    PoseBoutonParDefaut();
    maFenetre->Ouvre(u"ab ab"_s);
    maFenetre->Tape(u"ab"_s);
    maFenetre->Remplacement(u"x"_s);
    QWidget * const widgets[] = {&maFenetre->PreteChamp(), &maFenetre->PreteChampRemplacement(),
                                 maFenetre->barre};
    widgets[ou]->setFocus();
    QTest::keyClick(widgets[ou], Qt::Key(touche));
    QVERIFY(monDialogue->isVisible());
    QTEST(maFenetre->DonneTexte(), "texte");
    QTEST(maFenetre->DonneSelection(), "selection");
}

// The button is really one that the key presses.
void tst_TouchesBarreRecherche::entreeHorsDeLaBarre()
{
    PoseBoutonParDefaut();
    auto * const champ = new QLineEdit;
    monDialogue->layout()->addWidget(champ);
    champ->show();
    QTest::keyClick(champ, Qt::Key_Return);
    QVERIFY(!monDialogue->isVisible());
    QCOMPARE(monDialogue->result(), int(QDialog::Accepted));
}

void tst_TouchesBarreRecherche::autresTouches()
{
    QTest::keyClicks(&maFenetre->PreteChamp(), u"ab"_s);
    QCOMPARE(maFenetre->PreteChamp().text(), u"ab"_s);
    QTest::keyClick(&maFenetre->PreteChamp(), Qt::Key_F5);
    QVERIFY(maFenetre->barre->isVisible());
}

void tst_TouchesBarreRecherche::foyerRendu_data()
{
    QTest::addColumn<int>("fermeture");
    QTest::newRow("Escape") << 0;
    QTest::newRow("close button") << 1;
    QTest::newRow("the program") << 2;
}

void tst_TouchesBarreRecherche::foyerRendu()
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

void tst_TouchesBarreRecherche::foyerAilleurs()
{
    auto * const autre = new QLineEdit(monDialogue.get());
    monDialogue->layout()->addWidget(autre);
    autre->show();
    autre->setFocus();
    maFenetre->barre->CacheToi();
    QVERIFY(autre->hasFocus());
}

void tst_TouchesBarreRecherche::detruitALaFermeture_data()
{
    QTest::addColumn<bool>("barre");
    QTest::newRow("host") << false;
    QTest::newRow("bar, a little later") << true;
}

void tst_TouchesBarreRecherche::detruitALaFermeture()
{
    QFETCH(bool, barre);
    BarreRecherche * const laBarre = maFenetre->barre;
    if (barre)
        connect(laBarre, &BarreRecherche::SignalFermeture, laBarre, &QObject::deleteLater);
    else
        connect(laBarre, &BarreRecherche::SignalFermeture, this,
                [hote = maFenetre->hote] { delete hote; });
    QSignalSpy ferme(laBarre, &BarreRecherche::SignalBarreRechercheFermay);
    QWidget & bouton = maFenetre->PreteBouton(u"Options"_s);
    bouton.setFocus();
    QTest::keyClick(&bouton, Qt::Key_Escape);
    QCOMPARE(ferme.size(), 1);
    QVERIFY(monDialogue->isVisible());
}

// The duty ends with the host.
void tst_TouchesBarreRecherche::sansHote()
{
    delete maFenetre->hote;
    QTest::keyClick(&maFenetre->PreteChamp(), Qt::Key_Escape);
    QVERIFY(!monDialogue->isVisible());
}

QTEST_MAIN(tst_TouchesBarreRecherche)
#include "tst_TouchesBarreRecherche.moc"
