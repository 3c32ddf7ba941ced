// tests/galerie/tst_HoteRechercheRemplacement.cpp
#include "FenetreRecherche.h"

#include "dialogs/DDialogueProgressionInfinie.h"

#include "noyau/Traductions.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_HoteRechercheRemplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void remplacer_data() { AjouteEditeurs(); }
    void remplacer();
    void remplacerVersLeHaut();
    void remplacerSansOccurrenceSelectionnay();
    void remplacerLaDerniere();
    void remplacerParSoi();
    void remplacerGardeLeFormat();
    void toutDUnCoup_data() { AjouteEditeurs(); }
    void toutDUnCoup();
    void toutRien();
    void toutEnTranches_data() { AjouteEditeurs(); }
    void toutEnTranches();
    void annuler_data();
    void annuler();
    void echapContinue_data();
    void echapContinue();
    void frappePendant();
    void curseurPendant_data() { AjouteEditeurs(); }
    void curseurPendant();
    void departApresTout_data() { AjouteEditeurs(); }
    void departApresTout();
    void gestesPendant();
    void autreDocumentPendant();
    void lectureSeule_data() { AjouteEditeurs(); }
    void lectureSeule();

private:
    static constexpr int kNombre = 4 * RemplacementTout::kRemplacementsParMesure - 1;

    FenetreRecherche & Ouvre(QString const & texte, bool riche = false);
    FenetreRecherche & OuvreLong(bool riche = false);
    void ToutRemplacer();
    static QString Long(int remplacees);

    std::unique_ptr<FenetreRecherche> maFenetre;
};

void tst_HoteRechercheRemplacement::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

void tst_HoteRechercheRemplacement::cleanup()
{
    maFenetre.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

FenetreRecherche & tst_HoteRechercheRemplacement::Ouvre(QString const & texte, bool riche)
{
    maFenetre = std::make_unique<FenetreRecherche>(riche);
    maFenetre->Ouvre(texte);
    return *maFenetre;
}

FenetreRecherche & tst_HoteRechercheRemplacement::OuvreLong(bool riche)
{
    FenetreRecherche & fenetre = Ouvre(Long(0), riche);
    fenetre.hote->MetsDureesRemplacement(0, 60'000);
    fenetre.Tape(u"mot"_s);
    fenetre.Remplacement(u"remots"_s);
    return fenetre;
}

void tst_HoteRechercheRemplacement::ToutRemplacer()
{
    maFenetre->PreteBouton(u"Tout"_s).click();
}

QString tst_HoteRechercheRemplacement::Long(int remplacees)
{
    return u"remots\n"_s.repeated(remplacees) + u"mot\n"_s.repeated(kNombre - remplacees);
}

void tst_HoteRechercheRemplacement::remplacer()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab ab"_s, riche);
    fenetre.Tape(u"ab"_s);
    fenetre.Remplacement(u"xyz"_s);
    QTest::keyClick(&fenetre.PreteChampRemplacement(), Qt::Key_Return);
    QCOMPARE(fenetre.DonneTexte(), u"xyz ab ab"_s);
    QCOMPARE(fenetre.DonneSelection(), u"4-6"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"1/2"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"4-6 7-9"_s);
    fenetre.PreteDocument().undo();
    QCOMPARE(fenetre.DonneTexte(), u"ab ab ab"_s);
    QTRY_COMPARE(fenetre.DonneCompteur().right(2), u"/3"_s);
}

void tst_HoteRechercheRemplacement::remplacerVersLeHaut()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab ab"_s);
    fenetre.Tape(u"ab"_s);
    fenetre.Remplacement(u"x"_s);
    fenetre.PreteBouton(u"Occurrence précédente"_s).click();
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), u"ab ab x"_s);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), u"ab x x"_s);
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
}

void tst_HoteRechercheRemplacement::remplacerSansOccurrenceSelectionnay()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s);
    fenetre.Tape(u"ab"_s);
    fenetre.Remplacement(u"x"_s);
    fenetre.MetsCurseur(1, 2);
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), u"ab ab"_s);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), u"ab x"_s);
}

void tst_HoteRechercheRemplacement::remplacerLaDerniere()
{
    FenetreRecherche & fenetre = Ouvre(u"ab"_s);
    fenetre.Tape(u"ab"_s);
    fenetre.Remplacement({});
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), QString());
    QCOMPARE(fenetre.DonneCompteur(), QString());
    QCOMPARE(fenetre.barre->messages, 0); // it did what was asked for
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.barre->messages, 1);
    fenetre.Tape({});
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.barre->messages, 1);
}

void tst_HoteRechercheRemplacement::remplacerParSoi()
{
    FenetreRecherche & fenetre = Ouvre(u"a b"_s);
    fenetre.Tape(u"a"_s);
    fenetre.Remplacement(u"aa"_s);
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), u"aa b"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"1/2"_s); // around the end
}

void tst_HoteRechercheRemplacement::remplacerGardeLeFormat()
{
    FenetreRecherche & fenetre = Ouvre({}, true);
    fenetre.PreteDocument().setHtml(u"a <b>mot</b>"_s);
    fenetre.Tape(u"mot"_s);
    fenetre.Remplacement(u"xy"_s);
    fenetre.PreteBouton(u"Remplacer"_s).click();
    QCOMPARE(fenetre.DonneTexte(), u"a xy"_s);
    QTextCursor curseur(&fenetre.PreteDocument());
    curseur.setPosition(4);
    QCOMPARE(curseur.charFormat().fontWeight(), int(QFont::Bold));
}

void tst_HoteRechercheRemplacement::toutDUnCoup()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab\u00A0ab AB"_s, riche);
    fenetre.Tape(u"ab"_s);
    fenetre.Remplacement(u"abab"_s);
    fenetre.MetsCurseur(3, 3);
    QString const original = fenetre.PreteDocument().toRawText();
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    QCOMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), 3);
    QVERIFY(!fenetre.hote->EstEnTrainDeRemplacer());
    QCOMPARE(fenetre.DonneTexte(), u"abab abab abab"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"0/6"_s);
    QVERIFY(!fenetre.PreteBouton(u"Annuler"_s).isEnabled());
    QVERIFY(fenetre.PreteBouton(u"Tout"_s).isEnabled());
    fenetre.PreteDocument().undo();
    QCOMPARE(fenetre.PreteDocument().toRawText(), original);
    QTRY_COMPARE(fenetre.DonneCompteur().right(2), u"/3"_s);
}

void tst_HoteRechercheRemplacement::toutRien()
{
    FenetreRecherche & fenetre = Ouvre(u"ab"_s);
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    QCOMPARE(fenetre.barre->messages, 0); // nothing was asked for
    fenetre.Tape(u"x"_s);
    ToutRemplacer();
    QCOMPARE(fenetre.barre->messages, 1);
    QCOMPARE(fini.size(), 0);
    QVERIFY(!fenetre.PreteDocument().isUndoAvailable());
}

void tst_HoteRechercheRemplacement::toutEnTranches()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = OuvreLong(riche);
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    QVERIFY(fenetre.hote->EstEnTrainDeRemplacer());
    QVERIFY(fenetre.PreteBouton(u"Annuler"_s).isEnabled());
    QVERIFY(!fenetre.PreteBouton(u"Tout"_s).isEnabled());
    QVERIFY(!fenetre.PreteBouton(u"Occurrence suivante"_s).isEnabled());
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), kNombre);
    QVERIFY(!fenetre.hote->EstEnTrainDeRemplacer());
    QCOMPARE(fenetre.DonneTexte(), Long(kNombre));
    QCOMPARE(fenetre.DonneCompteur(), u"0/127"_s);
    QVERIFY(!fenetre.DonneSurlignees().isEmpty());
    QVERIFY(!fenetre.PreteBouton(u"Annuler"_s).isEnabled());
    QVERIFY(fenetre.PreteBouton(u"Tout"_s).isEnabled());
    fenetre.PreteDocument().undo();
    QCOMPARE(fenetre.DonneTexte(), Long(0));
    fenetre.PreteDocument().redo();
    QCOMPARE(fenetre.DonneTexte(), Long(kNombre));
}

void tst_HoteRechercheRemplacement::annuler_data()
{
    QTest::addColumn<QString>("bouton");
    QTest::newRow("cancel button") << u"Annuler"_s;
    QTest::newRow("close button") << u"Fermer la barre de recherche"_s;
}

void tst_HoteRechercheRemplacement::annuler()
{
    QFETCH(QString, bouton);
    FenetreRecherche & fenetre = OuvreLong();
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    fenetre.PreteBouton(bouton).click();
    QCOMPARE(fini.size(), 1);
    int const remplacees = fini.at(0).at(0).toInt();
    QCOMPARE(remplacees, RemplacementTout::kRemplacementsParMesure);
    QCOMPARE(fenetre.DonneTexte(), Long(remplacees));
    QCOMPARE(fenetre.PreteCompteur().text(), u"0/127"_s);
    QVERIFY(!fenetre.PreteBouton(u"Annuler"_s).isEnabled());
    QVERIFY(fenetre.editeur->DonneInteraction().testFlag(Qt::TextEditable));
    fenetre.PreteDocument().undo();
    QCOMPARE(fenetre.DonneTexte(), Long(0));
    QVERIFY(!fenetre.PreteDocument().isUndoAvailable());
    QCOMPARE(fenetre.barre->isVisible(), bouton == u"Annuler"_s);
}

void tst_HoteRechercheRemplacement::echapContinue_data()
{
    QTest::addColumn<QString>("bouton");
    QTest::newRow("in the search field") << QString();
    QTest::newRow("on the cancel button") << u"Annuler"_s;
    QTest::newRow("on the close button") << u"Fermer la barre de recherche"_s;
}

// Escape only closes the bar: the replacement ends behind it.
void tst_HoteRechercheRemplacement::echapContinue()
{
    QFETCH(QString, bouton);
    FenetreRecherche & fenetre = OuvreLong();
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    QSignalSpy ferme(fenetre.barre, &BarreRecherche::SignalBarreRechercheFermay);
    ToutRemplacer();
    QWidget * foyer = &fenetre.PreteChamp();
    if (!bouton.isEmpty())
        foyer = &fenetre.PreteBouton(bouton);
    foyer->setFocus();
    QTest::keyClick(foyer, Qt::Key_Escape);
    QVERIFY(!fenetre.barre->isVisible());
    QCOMPARE(ferme.size(), 1);
    QVERIFY(fenetre.hote->EstEnTrainDeRemplacer());
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fenetre.DonneTexte(), Long(kNombre));
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QVERIFY(!fenetre.PreteBouton(u"Annuler"_s).isEnabled());
}

// What is typed meanwhile is searched for at the end.
void tst_HoteRechercheRemplacement::frappePendant()
{
    FenetreRecherche & fenetre = OuvreLong();
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    fenetre.Tape(u"remots"_s);
    QVERIFY(fenetre.hote->EstEnTrainDeRemplacer());
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fenetre.DonneTexte(), Long(kNombre));
    QCOMPARE(fenetre.DonneCompteur(), u"0/127"_s);
}

// Where the user puts the caret meanwhile, what is typed behind the end is searched for.
void tst_HoteRechercheRemplacement::curseurPendant()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = OuvreLong(riche);
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    int const finDeLAvantDerniere = fenetre.PreteDocument().characterCount() - 6;
    fenetre.MetsCurseur(finDeLAvantDerniere, finDeLAvantDerniere);
    QVERIFY(fenetre.hote->EstEnTrainDeRemplacer());
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), kNombre);
    fenetre.Tape(u"mot"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"127/127"_s);
}

// The caret that moves with the text that is replaced is not the user's.
void tst_HoteRechercheRemplacement::departApresTout()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"a ab a"_s, riche);
    fenetre.Tape(u"ab"_s);
    QCOMPARE(fenetre.DonneSelection(), u"2-4"_s);
    fenetre.Remplacement(u"xyz"_s);
    ToutRemplacer();
    QCOMPARE(fenetre.DonneTexte(), u"a xyz a"_s);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Backspace);
    QCOMPARE(fenetre.DonneSelection(), u"0-1"_s);
}

void tst_HoteRechercheRemplacement::gestesPendant()
{
    FenetreRecherche & fenetre = OuvreLong();
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    fenetre.hote->CallbackRemplacer();
    fenetre.hote->CallbackRemplacerTout();
    fenetre.hote->CallbackChercher();
    fenetre.barre->AfficheToi(CstRecherche::kNouvelleRecherche, u"re"_s);
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fenetre.DonneTexte(), Long(kNombre));
    QCOMPARE(fenetre.DonneCompteur(), u"0/127"_s);
    fenetre.hote->CallbackAnnulerRemplacerTout();
    QCOMPARE(fini.size(), 1);
}

// It ends there, and what is typed is searched for from the beginning of the other one.
void tst_HoteRechercheRemplacement::autreDocumentPendant()
{
    FenetreRecherche & fenetre = OuvreLong(true);
    auto & editeur = dynamic_cast<QTextEdit &>(*fenetre.editeur->PreteWidget());
    auto * const ancien = new QTextDocument(Long(0), &fenetre);
    editeur.setDocument(ancien);
    fenetre.MetsCurseur(4, 4);
    fenetre.Tape(u"mot"_s);
    QSignalSpy fini(fenetre.hote, &HoteRecherche::SignalRemplacementFini);
    ToutRemplacer();
    QVERIFY(fenetre.hote->EstEnTrainDeRemplacer());
    QString const autre = u"mot "_s.repeated(99);
    editeur.setDocument(new QTextDocument(autre, &fenetre));
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(ancien->toPlainText(), Long(RemplacementTout::kRemplacementsParMesure));
    QCOMPARE(fenetre.DonneTexte(), autre);
    QCOMPARE(fenetre.DonneCompteur(), u"0/99"_s);
    fenetre.Tape(u"m"_s);
    QCOMPARE(fenetre.DonneSelection(), u"0-1"_s);
}

void tst_HoteRechercheRemplacement::lectureSeule()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s, riche);
    fenetre.editeur->MetsInteraction(Qt::TextSelectableByMouse);
    fenetre.Tape(u"ab"_s);
    fenetre.Remplacement(u"x"_s);
    fenetre.PreteBouton(u"Remplacer"_s).click();
    ToutRemplacer();
    QCOMPARE(fenetre.DonneTexte(), u"ab ab"_s);
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"1/2"_s);
    QCOMPARE(fenetre.editeur->DonneInteraction(), Qt::TextSelectableByMouse);
}

QTEST_MAIN(tst_HoteRechercheRemplacement)
#include "tst_HoteRechercheRemplacement.moc"
