// tests/galerie/tst_HoteRecherche.cpp
#include "FenetreRecherche.h"

#include "noyau/Traductions.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_HoteRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void auFilDeLaFrappe_data() { AjouteEditeurs(); }
    void auFilDeLaFrappe();
    void frappeDepuisLeCurseur();
    void frappeIntrouvable();
    void champVide_data() { AjouteEditeurs(); }
    void champVide();
    void ouvertureGardeLaSelection();
    void suivantEtPrecedent_data() { AjouteEditeurs(); }
    void suivantEtPrecedent();
    void frappeApresSuivant();
    void sansBoucler_data();
    void sansBoucler();
    void introuvableSurCommande();
    void modes_data();
    void modes();
    void changementDeMode();
    void insecables_data();
    void insecables();
    void compteurSuitLeCurseur_data() { AjouteEditeurs(); }
    void compteurSuitLeCurseur();
    void compteurSuitLeTexte_data() { AjouteEditeurs(); }
    void compteurSuitLeTexte();
    void departSuitLeTexte();
    void autreDocument_data() { AjouteEditeurs(); }
    void autreDocument();
    void nettoyer();
    void barreCachay();
    void rechercheDuProgramme();
    void touches();
    void ouvrirAvecLaSelection_data();
    void ouvrirAvecLaSelection();
    void deuxHotes();
    void deuxHotesMontray();
    void deuxHotesCachay();

private:
    FenetreRecherche & Ouvre(QString const & texte, bool riche = false);

    std::unique_ptr<FenetreRecherche> maFenetre;
};

void tst_HoteRecherche::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

void tst_HoteRecherche::cleanup()
{
    maFenetre.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty()); // the bar's menu goes a little later
}

FenetreRecherche & tst_HoteRecherche::Ouvre(QString const & texte, bool riche)
{
    maFenetre = std::make_unique<FenetreRecherche>(riche);
    maFenetre->Ouvre(texte);
    return *maFenetre;
}

// A longer text extends the match, a shorter one goes back to where the search began.
void tst_HoteRecherche::auFilDeLaFrappe()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ma mi mie miel"_s, riche);
    struct
    {
        QString touche;
        QString selection;
        QString compteur;
    } const frappes[] = {
        {u"m"_s, u"0-1"_s, u"1/4"_s},
        {u"i"_s, u"3-5"_s, u"1/3"_s},
        {u"e"_s, u"6-9"_s, u"1/2"_s},
        {u"l"_s, u"10-14"_s, u"1/1"_s},
    };
    for (auto const & frappe : frappes) {
        QTest::keyClicks(&fenetre.PreteChamp(), frappe.touche);
        QCOMPARE(fenetre.DonneSelection(), frappe.selection);
        QCOMPARE(fenetre.DonneCompteur(), frappe.compteur);
    }
    for (int i = 2; i >= 0; --i) {
        QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Backspace);
        QCOMPARE(fenetre.DonneSelection(), frappes[i].selection);
        QCOMPARE(fenetre.DonneCompteur(), frappes[i].compteur);
    }
    QCOMPARE(fenetre.barre->messages, 0);
}

void tst_HoteRecherche::frappeDepuisLeCurseur()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab ab"_s);
    fenetre.MetsCurseur(4, 4);
    fenetre.Tape(u"a"_s);
    QCOMPARE(fenetre.DonneSelection(), u"6-7"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"3/3"_s);
    fenetre.MetsCurseur(8, 8);
    fenetre.Tape(u"ab"_s);
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
}

void tst_HoteRecherche::frappeIntrouvable()
{
    FenetreRecherche & fenetre = Ouvre(u"x ab"_s);
    fenetre.MetsCurseur(1, 1);
    QSignalSpy espion(fenetre.hote, &HoteRecherche::SignalTrouvay);
    fenetre.Tape(u"abc"_s);
    QCOMPARE(espion.size(), 3);
    QCOMPARE(espion.at(1).at(0).toBool(), true);
    QCOMPARE(espion.at(2).at(0).toBool(), false);
    QCOMPARE(fenetre.DonneSelection(), u"1-1"_s);
    QCOMPARE(fenetre.DonneCompteur(), QString());
    QCOMPARE(fenetre.barre->messages, 0);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Backspace);
    QCOMPARE(fenetre.DonneSelection(), u"2-4"_s);
    QCOMPARE(espion.at(3).at(0).toBool(), true);
}

void tst_HoteRecherche::champVide()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s, riche);
    fenetre.Tape(u"ab"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"0-2 3-5"_s);
    QSignalSpy espion(fenetre.hote, &HoteRecherche::SignalTrouvay);
    fenetre.Tape({});
    QCOMPARE(fenetre.DonneSelection(), u"0-0"_s);
    QCOMPARE(fenetre.DonneCompteur(), QString());
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QCOMPARE(espion.size(), 1);
    QCOMPARE(espion.at(0).at(0).toBool(), true);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Return);
    QCOMPARE(fenetre.barre->messages, 0);
}

void tst_HoteRecherche::ouvertureGardeLaSelection()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s);
    fenetre.MetsCurseur(1, 4);
    fenetre.barre->AfficheToi(CstRecherche::kNouvelleRecherche, UniChaine());
    QCOMPARE(fenetre.DonneSelection(), u"1-4"_s);
    fenetre.barre->AfficheToi(CstRecherche::kVersLeBas, UniChaine());
    QCOMPARE(fenetre.DonneSelection(), u"1-4"_s);
}

void tst_HoteRecherche::suivantEtPrecedent()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab\nab"_s, riche);
    fenetre.Tape(u"ab"_s);
    for (QString const & selection : {u"3-5"_s, u"6-8"_s, u"0-2"_s}) {
        QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Return);
        QCOMPARE(fenetre.DonneSelection(), selection);
    }
    for (QString const & compteur : {u"3/3"_s, u"2/3"_s, u"1/3"_s}) {
        fenetre.PreteBouton(u"Occurrence précédente"_s).click();
        QCOMPARE(fenetre.DonneCompteur(), compteur);
    }
    fenetre.PreteBouton(u"Occurrence suivante"_s).click();
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    fenetre.MetsCurseur(4, 4);
    fenetre.PreteBouton(u"Occurrence précédente"_s).click();
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
}

void tst_HoteRecherche::frappeApresSuivant()
{
    FenetreRecherche & fenetre = Ouvre(u"ab abc ab abc"_s);
    fenetre.Tape(u"ab"_s);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Return);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    QTest::keyClicks(&fenetre.PreteChamp(), u"c"_s);
    QCOMPARE(fenetre.DonneSelection(), u"3-6"_s);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Backspace);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
}

void tst_HoteRecherche::sansBoucler_data()
{
    QTest::addColumn<bool>("versLeBas");
    QTest::newRow("end of the text") << true;
    QTest::newRow("beginning of the text") << false;
}

namespace {

// A front end with the buttons of a dialog: it searches on a command alone, and may stop at the
// ends.
class Frontal : public QWidget, public WidgetRechercheAbstrait
{
public:
    void AfficheMessageTexteIntrouvable(bool pourListe) const override
    {
        messages += pourListe ? u"liste"_s : u"texte"_s;
    }
    using WidgetRechercheAbstrait::AfficheToi;
    void AfficheToi() override { show(); }
    void ActualiseOccurrences(int const & position, int const & total) override
    {
        compteur = u"%1/%2"_s.arg(position).arg(total);
    }
    void CacheToi() override { hide(); }
    QWidget * DonneMoiEnWidget() override { return this; }
    void MetsChaineAChercher(UniChaine texte) override { RetiensChaineRecherche(texte); }
    void ModifieSensRecherche(CstRecherche::eTypeRecherche type) override
    {
        RetiensSensRecherche(type);
        ActualiserEtatPanneau();
    }
    void PrendsChaineRecherche(QString const & texte) override { chaine = texte; }
    void PrendsChaineRemplacement(QString const &) override {}
    void PrendsFocus() override {}
    void PriseBoutonFermer() override { hide(); }

    QString chaine;
    short options = 0;
    QString compteur;
    mutable QStringList messages;

protected:
    void ActualiserEtatPanneau() override
    {
        RetiensChaineRecherche(chaine);
        PrendsOptions(options);
    }
    void PriseActualiserEtatPanneau() override {}
    void PriseBoutonChercher() override {}
    void PriseChercherSuivant() override {}
    void PriseChercherPrecedent() override {}
    void PriseBoutonRemplacerTout() override {}
    void PriseBoutonRemplacer() override {}
};

} // namespace

void tst_HoteRecherche::sansBoucler()
{
    QFETCH(bool, versLeBas);
    QPlainTextEdit editeur(u"ab ab"_s);
    Frontal frontal;
    HoteRecherche const hote(editeur, frontal);
    frontal.chaine = u"ab"_s;
    auto const cherche = [&] {
        versLeBas ? frontal.ChercherSuivant() : frontal.ChercherPrecedent();
    };
    if (!versLeBas)
        editeur.moveCursor(QTextCursor::End);
    cherche();
    cherche();
    QCOMPARE(editeur.textCursor().selectionStart(), versLeBas ? 3 : 0);
    QCOMPARE(frontal.messages, QStringList());
    cherche();
    QCOMPARE(editeur.textCursor().selectionStart(), versLeBas ? 3 : 0);
    QCOMPARE(frontal.compteur, versLeBas ? u"2/2"_s : u"1/2"_s);
    QCOMPARE(frontal.messages, QStringList(u"texte"_s));
    frontal.options = CstRecherche::kBoucler;
    cherche();
    QCOMPARE(editeur.textCursor().selectionStart(), versLeBas ? 0 : 3);
    QCOMPARE(frontal.messages.size(), 1);
}

void tst_HoteRecherche::introuvableSurCommande()
{
    FenetreRecherche & fenetre = Ouvre(u"ab"_s);
    fenetre.Tape(u"x"_s);
    fenetre.MetsCurseur(0, 2);
    QCOMPARE(fenetre.barre->messages, 0);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Return);
    QCOMPARE(fenetre.barre->messages, 1);
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
}

void tst_HoteRecherche::modes_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("casse");
    QTest::addColumn<QString>("cherchay");
    QTest::addColumn<QString>("surlignees");
    QTest::newRow("contains") << u"contient"_s << false << u"été"_s << u"0-3 4-7 10-13 14-17"_s;
    QTest::newRow("contains, case") << u"contient"_s << true << u"été"_s << u"4-7 14-17"_s;
    QTest::newRow("begins with") << u"commence par"_s << false << u"été"_s << u"0-3 4-7 14-17"_s;
    QTest::newRow("whole word") << u"Mot entier"_s << false << u"été"_s << u"0-3 14-17"_s;
    QTest::newRow("whole word, case") << u"Mot entier"_s << true << u"été"_s << u"14-17"_s;
    QTest::newRow("not an expression") << u"contient"_s << false << u".t."_s << QString();
}

void tst_HoteRecherche::modes()
{
    QFETCH(QString, mode);
    QFETCH(bool, casse);
    QFETCH(QString, cherchay);
    FenetreRecherche & fenetre = Ouvre(u"Été étés aÉté été"_s);
    fenetre.Choisis(mode);
    if (casse)
        fenetre.Choisis(u"respecter la casse"_s);
    fenetre.Tape(cherchay);
    QTEST(fenetre.DonneSurlignees(), "surlignees");
}

void tst_HoteRecherche::changementDeMode()
{
    FenetreRecherche & fenetre = Ouvre(u"ab abc ab"_s);
    fenetre.Tape(u"ab"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"1/3"_s);
    fenetre.Choisis(u"Mot entier"_s);
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"1/2"_s);
    fenetre.MetsCurseur(3, 5);
    fenetre.Choisis(u"contient"_s);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"2/3"_s);
}

void tst_HoteRecherche::insecables_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("cherchay");
    QTest::newRow("plain blank finds no-break") << u"oui\u00A0!"_s << u"oui !"_s;
    QTest::newRow("plain blank finds narrow no-break") << u"oui\u202F!"_s << u"oui !"_s;
    QTest::newRow("no-break finds plain blank") << u"oui !"_s << u"oui\u00A0!"_s;
    QTest::newRow("no-break finds itself") << u"oui\u00A0!"_s << u"oui\u00A0!"_s;
}

void tst_HoteRecherche::insecables()
{
    QFETCH(QString, texte);
    QFETCH(QString, cherchay);
    FenetreRecherche & fenetre = Ouvre(u"\u00A0 "_s + texte);
    fenetre.PreteChamp().clear();
    fenetre.PreteChamp().insert(cherchay);
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Return);
    QCOMPARE(fenetre.DonneSelection(), u"2-7"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"1/1"_s);
}

void tst_HoteRecherche::compteurSuitLeCurseur()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s, riche);
    fenetre.Tape(u"ab"_s);
    fenetre.MetsCurseur(4, 4);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/2"_s);
    fenetre.MetsCurseur(5, 3);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"2/2"_s);
    fenetre.MetsCurseur(0, 1);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/2"_s);
}

void tst_HoteRecherche::compteurSuitLeTexte()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s, riche);
    fenetre.Tape(u"ab"_s);
    QSignalSpy espion(fenetre.hote, &HoteRecherche::SignalTrouvay);
    QTextCursor curseur(&fenetre.PreteDocument());
    curseur.insertText(u"ab."_s);
    curseur.insertText(u"ab."_s);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"3/4"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"0-2 3-5 6-8 9-11"_s);
    QCOMPARE(espion.size(), 1); // both edits at once
    fenetre.PreteDocument().undo();
    QTRY_COMPARE(fenetre.DonneCompteur().right(2), u"/2"_s);
    fenetre.PreteDocument().clear();
    QTRY_COMPARE(fenetre.DonneCompteur(), QString());
    QTRY_COMPARE(espion.last().at(0).toBool(), false);
    QCOMPARE(fenetre.DonneSurlignees(), QString());
}

void tst_HoteRecherche::departSuitLeTexte()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s);
    fenetre.MetsCurseur(2, 2);
    fenetre.Tape(u"a"_s);
    QCOMPARE(fenetre.DonneSelection(), u"3-4"_s);
    QTextCursor(&fenetre.PreteDocument()).insertText(u"ab ab "_s);
    QTest::keyClicks(&fenetre.PreteChamp(), u"b"_s);
    QCOMPARE(fenetre.DonneSelection(), u"9-11"_s);
}

void tst_HoteRecherche::autreDocument()
{
    QFETCH(bool, riche);
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s, riche);
    fenetre.Tape(u"ab"_s);
    if (riche) {
        auto * const document = new QTextDocument(u"ab"_s, &fenetre);
        qobject_cast<QTextEdit *>(fenetre.editeur->PreteWidget())->setDocument(document);
    } else {
        auto * const document = new QTextDocument(u"ab"_s, &fenetre);
        document->setDocumentLayout(new QPlainTextDocumentLayout(document));
        qobject_cast<QPlainTextEdit *>(fenetre.editeur->PreteWidget())->setDocument(document);
    }
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/1"_s);
    fenetre.Tape(u"b"_s);
    QCOMPARE(fenetre.DonneSelection(), u"1-2"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"1-2"_s);
}

void tst_HoteRecherche::nettoyer()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s);
    fenetre.Tape(u"ab"_s);
    fenetre.barre->NettoyerRecherche();
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QCOMPARE(fenetre.DonneCompteur(), QString());
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
    QTextCursor(&fenetre.PreteDocument()).insertText(u"ab"_s);
    QSignalSpy espion(fenetre.hote, &HoteRecherche::SignalTrouvay);
    QTRY_VERIFY(!espion.isEmpty()); // the edit has been followed
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QCOMPARE(fenetre.DonneCompteur(), QString());
}

void tst_HoteRecherche::barreCachay()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab"_s);
    fenetre.Tape(u"ab"_s);
    fenetre.barre->CacheToi();
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QSignalSpy espion(fenetre.hote, &HoteRecherche::SignalTrouvay);
    QTextCursor(&fenetre.PreteDocument()).insertText(u"ab."_s);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(espion.size(), 0); // nobody would see it
    fenetre.barre->ChercherSuivant();
    QCOMPARE(fenetre.DonneSelection(), u"6-8"_s);
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    fenetre.barre->show();
    QTRY_COMPARE(fenetre.DonneSurlignees(), u"0-2 3-5 6-8"_s);
    QCOMPARE(fenetre.DonneCompteur(), u"3/3"_s);
}

// A search that the program asks for goes backward, whatever was typed last.
void tst_HoteRecherche::rechercheDuProgramme()
{
    FenetreRecherche & fenetre = Ouvre(u"cd ab cd"_s);
    fenetre.Tape(u"ab"_s);
    fenetre.barre->EffectuerRecherche(u"cd"_s);
    QCOMPARE(fenetre.DonneSelection(), u"0-2"_s);
}

void tst_HoteRecherche::touches()
{
    FenetreRecherche & fenetre = Ouvre(u"ab ab ab"_s);
    fenetre.hote->BrancheTouches(fenetre);
    fenetre.barre->CacheToi();
    QWidget * const editeur = fenetre.editeur->PreteWidget();
    editeur->setFocus();
    QTest::keySequence(editeur, QKeySequence::FindNext);
    QVERIFY(fenetre.barre->isVisible()); // there was no text yet
    QVERIFY(fenetre.PreteChamp().hasFocus());
    fenetre.Tape(u"ab"_s);
    fenetre.barre->CacheToi();
    QTest::keySequence(editeur, QKeySequence::FindNext);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    QTest::keySequence(editeur, QKeySequence::FindPrevious);
    QTest::keySequence(editeur, QKeySequence::FindPrevious);
    QCOMPARE(fenetre.DonneSelection(), u"6-8"_s);
    QVERIFY(!fenetre.barre->isVisible());
    QTest::keySequence(editeur, QKeySequence::Find);
    QVERIFY(fenetre.barre->isVisible());
    QCOMPARE(fenetre.DonneCompteur(), u"3/3"_s);
    delete fenetre.hote;
    QTRY_VERIFY(fenetre.findChildren<QShortcut *>().isEmpty());
}

void tst_HoteRecherche::ouvrirAvecLaSelection_data()
{
    QTest::addColumn<int>("fin");
    QTest::addColumn<QString>("champ");
    QTest::newRow("none: the field keeps its text") << 0 << u"x"_s;
    QTest::newRow("on one line") << 2 << u"ab"_s;
    QTest::newRow("on two lines: the field keeps its text") << 4 << u"x"_s;
}

void tst_HoteRecherche::ouvrirAvecLaSelection()
{
    QFETCH(int, fin);
    FenetreRecherche & fenetre = Ouvre(u"ab\ncd"_s);
    fenetre.Tape(u"x"_s);
    fenetre.MetsCurseur(0, fin);
    fenetre.hote->PriseOuvrir();
    QTEST(fenetre.PreteChamp().text(), "champ");
    QCOMPARE(fenetre.DonneSelection(), u"0-%1"_s.arg(fin));
}

namespace {

// Another bar and its host in the same plain text editor.
struct SecondHote
{
    explicit SecondHote(FenetreRecherche & fenetre)
        : barre(new BarreComptay(nullptr, true, true, true, true))
        , hote(new HoteRecherche(dynamic_cast<QPlainTextEdit &>(*fenetre.editeur->PreteWidget()),
                                 *barre, &fenetre))
    {
        fenetre.layout()->addWidget(barre);
    }

    QString DonneCompteur() const
    {
        return barre->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text();
    }

    BarreComptay * barre;
    HoteRecherche * hote;
};

} // namespace

// The caret that a search moves has the other one count anew, which takes no highlights away.
void tst_HoteRecherche::deuxHotes()
{
    FenetreRecherche & fenetre = Ouvre(u"ab cd ab cd"_s);
    fenetre.Tape(u"ab"_s);
    SecondHote const second(fenetre);
    second.barre->AfficheToi(CstRecherche::kNouvelleRecherche, u"cd"_s);
    QCOMPARE(fenetre.DonneSelection(), u"3-5"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"3-5 9-11"_s);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/2"_s); // the first one has followed
    QCOMPARE(fenetre.DonneSurlignees(), u"3-5 9-11"_s);
    fenetre.barre->ChercherSuivant();
    QCOMPARE(fenetre.DonneSurlignees(), u"0-2 6-8"_s);
    QTRY_COMPARE(second.DonneCompteur(), u"0/2"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"0-2 6-8"_s);
    second.barre->ChercherSuivant();
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/2"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"3-5 9-11"_s);
    QSignalSpy premierSuit(fenetre.hote, &HoteRecherche::SignalTrouvay);
    QSignalSpy secondSuit(second.hote, &HoteRecherche::SignalTrouvay);
    QTextCursor(&fenetre.PreteDocument()).insertText(u"ab "_s);
    QTRY_COMPARE(premierSuit.size(), 1);
    QTRY_COMPARE(secondSuit.size(), 1);
    QCOMPARE(fenetre.DonneSurlignees(), u"6-8 12-14"_s);
}

void tst_HoteRecherche::deuxHotesMontray()
{
    FenetreRecherche & fenetre = Ouvre(u"ab cd"_s);
    SecondHote const second(fenetre);
    second.barre->AfficheToi(CstRecherche::kNouvelleRecherche, u"cd"_s);
    second.barre->hide();
    fenetre.Tape(u"ab"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"0-2"_s);
    fenetre.MetsCurseur(1, 1); // to be followed behind
    second.barre->show();
    QTRY_COMPARE(fenetre.DonneSurlignees(), u"3-5"_s);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/1"_s);
    QCOMPARE(fenetre.DonneSurlignees(), u"3-5"_s);
}

// The place is free: whoever follows takes it.
void tst_HoteRecherche::deuxHotesCachay()
{
    FenetreRecherche & fenetre = Ouvre(u"ab cd"_s);
    fenetre.Tape(u"ab"_s);
    SecondHote const second(fenetre);
    second.barre->AfficheToi(CstRecherche::kNouvelleRecherche, u"cd"_s);
    QTRY_COMPARE(fenetre.DonneCompteur(), u"0/1"_s);
    second.barre->CacheToi();
    fenetre.MetsCurseur(1, 1);
    QTRY_COMPARE(fenetre.DonneSurlignees(), u"0-2"_s);
    second.barre->ChercherSuivant(); // not seen
    QCOMPARE(fenetre.DonneSurlignees(), u"0-2"_s);
}

QTEST_MAIN(tst_HoteRecherche)
#include "tst_HoteRecherche.moc"
