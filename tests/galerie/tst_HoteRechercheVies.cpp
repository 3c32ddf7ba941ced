// tests/galerie/tst_HoteRechercheVies.cpp
#include "FenetreRecherche.h"

#include "dialogs/DDialogueProgressionInfinie.h"

#include "noyau/Traductions.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

// Who dies first.
class tst_HoteRechercheVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hoteDabord_data() { AjouteMoments(); }
    void hoteDabord();
    void editeurDabord_data() { AjouteMoments(); }
    void editeurDabord();
    void frontalDabord_data() { AjouteMoments(); }
    void frontalDabord();
    void fenetreDuHote_data() { AjouteMoments(); }
    void fenetreDuHote();
    void hoteEnfant_data();
    void hoteEnfant();
    void detruitParCeluiQuiEcoute_data();
    void detruitParCeluiQuiEcoute();
    void detruitParCeQuEstTrouvay_data();
    void detruitParCeQuEstTrouvay();

private:
    static void AjouteMoments();
    void Prepare(bool riche, bool pendant);

    std::unique_ptr<FenetreRecherche> maFenetre;
};

void tst_HoteRechercheVies::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

void tst_HoteRechercheVies::cleanup()
{
    maFenetre.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_HoteRechercheVies::AjouteMoments()
{
    QTest::addColumn<bool>("riche");
    QTest::addColumn<bool>("pendant");
    QTest::newRow("rich") << true << false;
    QTest::newRow("plain") << false << false;
    QTest::newRow("rich, while everything is replaced") << true << true;
    QTest::newRow("plain, while everything is replaced") << false << true;
}

void tst_HoteRechercheVies::Prepare(bool riche, bool pendant)
{
    maFenetre = std::make_unique<FenetreRecherche>(riche);
    FenetreRecherche & fenetre = *maFenetre;
    fenetre.Ouvre(u"mot\n"_s.repeated(200));
    fenetre.hote->MetsDureesRemplacement(0, 0);
    fenetre.Tape(u"mot"_s);
    if (pendant) {
        fenetre.Remplacement(u"remots"_s);
        fenetre.PreteBouton(u"Tout"_s).click();
        QTRY_VERIFY(fenetre.findChild<DDialogueProgressionInfinie *>() != nullptr);
        QVERIFY(fenetre.hote->EstEnTrainDeRemplacer());
    }
}

void tst_HoteRechercheVies::hoteDabord()
{
    QFETCH(bool, riche);
    QFETCH(bool, pendant);
    Prepare(riche, pendant);
    FenetreRecherche & fenetre = *maFenetre;
    delete fenetre.hote;
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    QCOMPARE(fenetre.DonneCompteur(), QString());
    QVERIFY(fenetre.editeur->DonneInteraction().testFlag(Qt::TextEditable));
    QVERIFY(!fenetre.PreteBouton(u"Annuler"_s).isEnabled());
    QString const texte = fenetre.DonneTexte();
    fenetre.Tape(u"x"_s);
    fenetre.barre->ChercherSuivant();
    fenetre.barre->BoutonRemplacerTout();
    QCoreApplication::processEvents();
    QCOMPARE(fenetre.DonneTexte(), texte);
}

void tst_HoteRechercheVies::editeurDabord()
{
    QFETCH(bool, riche);
    QFETCH(bool, pendant);
    Prepare(riche, pendant);
    FenetreRecherche & fenetre = *maFenetre;
    delete fenetre.editeur->PreteWidget();
    QCOMPARE(fenetre.DonneCompteur(), QString());
    fenetre.Tape(u"x"_s);
    fenetre.barre->ChercherPrecedent();
    fenetre.barre->BoutonRemplacer();
    fenetre.barre->BoutonRemplacerTout();
    fenetre.barre->AfficheToi(CstRecherche::kNouvelleRecherche, u"x"_s);
    fenetre.hote->PriseOuvrir();
    fenetre.hote->PriseSuivant();
    fenetre.hote->PrisePrecedent();
    QTRY_VERIFY(!fenetre.hote->EstEnTrainDeRemplacer());
    QVERIFY(!fenetre.PreteBouton(u"Annuler"_s).isEnabled());
    QTest::keyClick(&fenetre.PreteChamp(), Qt::Key_Escape);
    QVERIFY(!fenetre.barre->isVisible());
}

void tst_HoteRechercheVies::frontalDabord()
{
    QFETCH(bool, riche);
    QFETCH(bool, pendant);
    Prepare(riche, pendant);
    FenetreRecherche & fenetre = *maFenetre;
    delete fenetre.barre;
    QCOMPARE(fenetre.DonneSurlignees(), QString());
    fenetre.hote->PriseOuvrir();
    fenetre.hote->PriseSuivant();
    fenetre.hote->PrisePrecedent();
    fenetre.hote->CallbackChercher();
    fenetre.hote->CallbackRemplacer();
    fenetre.hote->CallbackRemplacerTout();
    QTRY_VERIFY(!fenetre.hote->EstEnTrainDeRemplacer());
    // Nobody has cancelled it.
    QCOMPARE(fenetre.DonneTexte(), (pendant ? u"remots\n"_s : u"mot\n"_s).repeated(200));
    QVERIFY(fenetre.editeur->DonneInteraction().testFlag(Qt::TextEditable));
    QTextCursor(&fenetre.PreteDocument()).insertText(u"x"_s);
    QCoreApplication::processEvents();
}

void tst_HoteRechercheVies::fenetreDuHote()
{
    QFETCH(bool, riche);
    QFETCH(bool, pendant);
    Prepare(riche, pendant);
    maFenetre.reset();
    QCoreApplication::processEvents();
}

void tst_HoteRechercheVies::hoteEnfant_data()
{
    QTest::addColumn<bool>("deLEditeur");
    QTest::newRow("of the editor") << true;
    QTest::newRow("of the front end") << false;
}

void tst_HoteRechercheVies::hoteEnfant()
{
    QFETCH(bool, deLEditeur);
    Prepare(true, true);
    FenetreRecherche & fenetre = *maFenetre;
    QPointer<HoteRecherche> const hote(fenetre.hote);
    QWidget * parent = fenetre.barre;
    if (deLEditeur)
        parent = fenetre.editeur->PreteWidget();
    hote->setParent(parent);
    delete parent;
    QVERIFY(hote == nullptr);
    QCoreApplication::processEvents();
}

void tst_HoteRechercheVies::detruitParCeluiQuiEcoute_data()
{
    QTest::addColumn<bool>("tout");
    QTest::newRow("host, while everything is replaced") << true;
    QTest::newRow("host, while one is replaced") << false;
}

// By a slot that hears of the change of the text.
void tst_HoteRechercheVies::detruitParCeluiQuiEcoute()
{
    QFETCH(bool, tout);
    Prepare(true, false);
    FenetreRecherche & fenetre = *maFenetre;
    fenetre.Remplacement(u"x"_s);
    connect(&fenetre.PreteDocument(), &QTextDocument::contentsChanged, fenetre.hote,
            [hote = fenetre.hote] { delete hote; });
    fenetre.PreteBouton(tout ? u"Tout"_s : u"Remplacer"_s).click();
    QVERIFY(fenetre.DonneTexte().startsWith(u"x\n"_s));
    QVERIFY(fenetre.editeur->DonneInteraction().testFlag(Qt::TextEditable));
    QCoreApplication::processEvents();
}

void tst_HoteRechercheVies::detruitParCeQuEstTrouvay_data()
{
    QTest::addColumn<bool>("hote");
    QTest::newRow("host") << true;
    QTest::newRow("editor") << false;
}

// A command that finds nothing would give a message next.
void tst_HoteRechercheVies::detruitParCeQuEstTrouvay()
{
    QFETCH(bool, hote);
    Prepare(true, false);
    FenetreRecherche & fenetre = *maFenetre;
    fenetre.Tape(u"x"_s);
    QPointer<QObject> const victime =
        hote ? static_cast<QObject *>(fenetre.hote) : fenetre.editeur->PreteWidget();
    connect(fenetre.hote, &HoteRecherche::SignalTrouvay, this,
            [victime] { delete victime.data(); });
    fenetre.barre->ChercherSuivant();
    QVERIFY(victime == nullptr);
    QCOMPARE(fenetre.barre->messages, 0);
    QCOMPARE(fenetre.DonneCompteur(), QString());
}

QTEST_MAIN(tst_HoteRechercheVies)
#include "tst_HoteRechercheVies.moc"
