// search/tst_DialogueRechercherGestes.cpp
//
// What each gesture asks of the host, and in which order the dialog closes.
#include "search/EssaisDialogue.h"

#include <QtTest>

#include <memory>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;
using CstRecherche::kNouvelleRecherche;
using CstRecherche::kVersLeBas;
using CstRecherche::kVersLeHaut;

namespace {

// Writes down what happens to a dialog, and what it asks of its host, in their order.
class Greffier
{
public:
    explicit Greffier(Banc & banc)
    {
        DialogueRechercher * const dialogue = banc.dialogue;
        banc.hote.pendantUnAppel = [this](QString const & nom) { lignes << nom; };
        auto const note = [this, dialogue](QString const & ligne) {
            lignes << ligne + (dialogue->isVisible() ? u" visible"_s : u" hidden"_s);
        };
        QObject::connect(dialogue, &DialogueRechercher::SignalFermeture, dialogue,
                         [note] { note(u"SignalFermeture"_s); });
        QObject::connect(dialogue, &DialogueRechercher::SignalDialogueRechercheFermay, dialogue,
                         [note] { note(u"SignalDialogueRechercheFermay"_s); });
        QObject::connect(dialogue, &QDialog::rejected, dialogue, [note] { note(u"rejected"_s); });
        QObject::connect(dialogue, &QDialog::finished, dialogue, [note] { note(u"finished"_s); });
    }

    QStringList lignes;
};

QStringList FermayParLHote()
{
    return {u"SignalFermeture visible"_s, u"rejected hidden"_s, u"finished hidden"_s};
}

QStringList FermayParLUtilisateur()
{
    return QStringList{u"AnnulerRemplacerTout"_s, u"SignalDialogueRechercheFermay visible"_s} +
           FermayParLHote();
}

void EchapDans(QWidget & dialogue, char const * nom)
{
    auto * const controle = Controle<QWidget>(dialogue, nom);
    controle->setFocus();
    QTest::keyClick(controle, Qt::Key_Escape);
}

using Fermeture = void (*)(DialogueRechercher &);

QList<QPair<char const *, Fermeture>> FermeturesParLUtilisateur()
{
    return {
        {"the button", [](auto & dialogue) { Clique(dialogue, "BoutonFermer"); }},
        {"the slot", [](auto & dialogue) { dialogue.PriseBoutonFermer(); }},
        {"Escape in the search field", [](auto & dialogue) { EchapDans(dialogue, "ChampRecherche"); }},
        {"Escape on an option", [](auto & dialogue) { EchapDans(dialogue, "CaseCasse"); }},
        {"the button of the window", [](auto & dialogue) { dialogue.close(); }},
        {"rejected by the application", [](auto & dialogue) { dialogue.reject(); }},
    };
}

} // namespace

Q_DECLARE_METATYPE(Fermeture)

class tst_DialogueRechercherGestes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void gestes_data();
    void gestes();
    void remplacerToutVersLeHaut();
    void ouverture_data();
    void ouverture();
    void ouvertureSimple();
    void sensParLHote();
    void sensParLHoteSansChoix();
    void sensParLUtilisateur();
    void effectuerRecherche();
    void effectuerRechercheVide();
    void chaines();
    void pasDeCompteur();
    void sansHote();

    void fermeture_data();
    void fermeture();
    void fermetureParLHote();
    void fermetureDejaCachay();
    void rouvertApresFermeture();
    void boucleModale();
    void detruitALaFermeture();

    void detruitDansUnAppel_data();
    void detruitDansUnAppel();
    void detruitDansUnSignal_data();
    void detruitDansUnSignal();
};

void tst_DialogueRechercherGestes::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DialogueRechercherGestes::gestes_data()
{
    QTest::addColumn<QByteArray>("bouton");
    QTest::addColumn<bool>("enCours");
    QTest::addColumn<QString>("appel");
    QTest::addColumn<short>("options");
    QTest::addColumn<CstRecherche::eTypeRecherche>("sens");
    QTest::newRow("find") << QByteArray("BoutonChercher") << false << u"Chercher"_s << short(0x24)
                          << kVersLeBas;
    QTest::newRow("replace") << QByteArray("BoutonRemplacer") << false << u"Remplacer"_s
                             << short(0x24) << kNouvelleRecherche;
    QTest::newRow("replace all") << QByteArray("BoutonRemplacerTout") << false
                                 << u"RemplacerTout"_s << short(0x24) << kNouvelleRecherche;
    QTest::newRow("cancel refreshes nothing") << QByteArray("BoutonAnnuler") << true
                                              << u"AnnulerRemplacerTout"_s << short(0)
                                              << kNouvelleRecherche;
}

void tst_DialogueRechercherGestes::gestes()
{
    QFETCH(QByteArray, bouton);
    QFETCH(bool, enCours);
    QFETCH(QString, appel);
    QFETCH(short, options);
    QFETCH(CstRecherche::eTypeRecherche, sens);
    Banc banc;
    banc.dialogue->PrendsChaineRemplacement(u"mieux"_s);
    banc.dialogue->MetEnCoursDeRemplacerTout(enCours);
    Clique(*banc.dialogue, bouton);
    QCOMPARE(banc.hote.appels.size(), 1);
    AppelRecherche const & fait = banc.hote.appels.first();
    QCOMPARE(fait.nom, appel);
    QCOMPARE(fait.chaine, u"texte"_s);
    QCOMPARE(fait.remplacement, u"mieux"_s);
    QCOMPARE(fait.options, options);
    QCOMPARE(fait.sens, sens);
}

// Every match, whatever the dialog says of directions and ends.
void tst_DialogueRechercherGestes::remplacerToutVersLeHaut()
{
    Banc const banc;
    Clique(*banc.dialogue, "ChoixHaut");
    Clique(*banc.dialogue, "CaseBoucler");
    Clique(*banc.dialogue, "BoutonRemplacer");
    Clique(*banc.dialogue, "BoutonRemplacerTout");
    QCOMPARE(banc.hote.appels.first().options, short(0x10));
    QCOMPARE(banc.hote.appels.last().options, short(0x34));
    QCOMPARE(banc.hote.appels.last().sens, kVersLeHaut);
}

void tst_DialogueRechercherGestes::ouverture_data()
{
    QTest::addColumn<CstRecherche::eTypeRecherche>("type");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<QString>("attendue");
    QTest::addColumn<QStringList>("appels");
    QTest::addColumn<short>("options");
    QStringList const nouvelle{u"Nettoyer"_s, u"Chercher"_s};
    QTest::newRow("new") << kNouvelleRecherche << u" mot\t"_s << u"mot"_s << nouvelle
                         << short(0x24);
    QTest::newRow("new, blank") << kNouvelleRecherche << u"   "_s << u"avant"_s << nouvelle
                                << short(0x24);
    QTest::newRow("down") << kVersLeBas << u"x"_s << u"avant"_s << QStringList{u"Chercher"_s}
                          << short(0x24);
    QTest::newRow("up") << kVersLeHaut << u"x"_s << u"avant"_s << QStringList{u"Chercher"_s}
                        << short(0x14);
}

void tst_DialogueRechercherGestes::ouverture()
{
    QFETCH(CstRecherche::eTypeRecherche, type);
    QFETCH(QString, chaine);
    QFETCH(QString, attendue);
    QFETCH(QStringList, appels);
    QFETCH(short, options);
    DialogueRechercher dialogue(nullptr, true, kToutOffrir);
    dialogue.PrendsChaineRecherche(u"avant"_s);
    HoteEspion const hote(&dialogue);
    dialogue.AfficheToi(type, UniChaine(chaine));
    QVERIFY(dialogue.isVisible());
    QCOMPARE(hote.DonneNoms(), appels);
    QCOMPARE(hote.appels.last().chaine, attendue);
    QCOMPARE(hote.appels.last().options, options);
    QCOMPARE(hote.appels.last().sens, type);
    auto const * const champ = Controle<QLineEdit>(dialogue, "ChampRecherche");
    QCOMPARE(champ->text(), attendue);
    QCOMPARE(champ->selectedText(), attendue);
    QCOMPARE(dialogue.focusWidget(), champ);
    QCOMPARE(Controle(dialogue, "ChoixHaut")->isChecked(), type == kVersLeHaut);
}

void tst_DialogueRechercherGestes::ouvertureSimple()
{
    Banc const banc;
    QVERIFY(banc.dialogue->isVisible());
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
    // Asked for again while it is minimised it comes back.
    banc.dialogue->showMinimized();
    banc.dialogue->AfficheToi();
    QVERIFY(!banc.dialogue->isMinimized());
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
}

void tst_DialogueRechercherGestes::sensParLHote()
{
    Banc banc;
    auto const * const haut = Controle(*banc.dialogue, "ChoixHaut");
    banc.dialogue->ModifieSensRecherche(kVersLeHaut);
    QVERIFY(haut->isChecked());
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x14));
    banc.dialogue->ModifieSensRecherche(kVersLeBas);
    QVERIFY(!haut->isChecked());
    banc.dialogue->ModifieSensRecherche(kVersLeHaut);
    banc.dialogue->ModifieSensRecherche(kNouvelleRecherche);
    QVERIFY(!haut->isChecked());
    QCOMPARE(banc.dialogue->DonneSensRecherche(), kNouvelleRecherche);
    QCOMPARE(banc.hote.DonneNoms(), QStringList());

    banc.dialogue->ChercherPrecedent();
    QVERIFY(haut->isChecked());
    QCOMPARE(banc.hote.appels.last().options, short(0x14));
    banc.dialogue->ChercherSuivant();
    QVERIFY(!haut->isChecked());
    QCOMPARE(banc.hote.appels.last().options, short(0x24));
    banc.dialogue->ModifieSensRecherche(kVersLeHaut);
    banc.dialogue->TexteDeRechercheChanger();
    QVERIFY(!haut->isChecked());
    QCOMPARE(banc.hote.appels.last().options, short(0x224));
}

// Upward is all that is offered: a new search goes there, what the host wants goes where it wants.
void tst_DialogueRechercherGestes::sensParLHoteSansChoix()
{
    Banc banc(0x010);
    banc.dialogue->AfficheToi(kNouvelleRecherche, {});
    QCOMPARE(banc.hote.appels.last().options, short(0x10));
    banc.dialogue->ChercherSuivant();
    QCOMPARE(banc.hote.appels.last().options, short(0x20));
    Clique(*banc.dialogue, "BoutonChercher");
    QCOMPARE(banc.hote.appels.last().options, short(0x10));
    QCOMPARE(banc.hote.appels.last().sens, kVersLeHaut);
    QVERIFY(Controle(*banc.dialogue, "ChoixHaut")->isChecked());
}

void tst_DialogueRechercherGestes::sensParLUtilisateur()
{
    Banc banc;
    Clique(*banc.dialogue, "ChoixHaut");
    QCOMPARE(banc.dialogue->DonneSensRecherche(), kVersLeHaut);
    Clique(*banc.dialogue, "BoutonRemplacer");
    QCOMPARE(banc.hote.appels.last().sens, kVersLeHaut);
    Clique(*banc.dialogue, "BoutonChercher");
    QCOMPARE(banc.hote.appels.last().sens, kVersLeHaut);
    QVERIFY(Controle(*banc.dialogue, "ChoixHaut")->isChecked());
    Clique(*banc.dialogue, "ChoixBas");
    QCOMPARE(banc.dialogue->DonneSensRecherche(), kVersLeBas);
    Clique(*banc.dialogue, "BoutonChercher");
    QCOMPARE(banc.hote.appels.last().sens, kVersLeBas);
}

// Backward, with the options of the last gesture but for the direction.
void tst_DialogueRechercherGestes::effectuerRecherche()
{
    Banc banc;
    Clique(*banc.dialogue, "CaseCasse");
    banc.dialogue->PrendsOptions(0x022);
    banc.dialogue->EffectuerRecherche("mot");
    QCOMPARE(banc.hote.DonneNoms(), QStringList{u"Chercher"_s});
    AppelRecherche const & appel = banc.hote.appels.first();
    QCOMPARE(appel.chaine, u"mot"_s);
    QCOMPARE(appel.sens, kVersLeHaut);
    QCOMPARE(appel.options, short(0x012)); // a refresh would have brought "boucler" back
    QVERIFY(Controle(*banc.dialogue, "ChoixHaut")->isChecked());
    QCOMPARE(Controle<QLineEdit>(*banc.dialogue, "ChampRecherche")->text(), u"mot"_s);
}

void tst_DialogueRechercherGestes::effectuerRechercheVide()
{
    Banc const banc;
    banc.dialogue->EffectuerRecherche({});
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
    QCOMPARE(banc.dialogue->DonneSensRecherche(), kNouvelleRecherche);
    QCOMPARE(banc.dialogue->DonneChaineRecherche(), u"texte"_s);
    QVERIFY(Controle(*banc.dialogue, "ChoixBas")->isChecked());
}

void tst_DialogueRechercherGestes::chaines()
{
    DialogueRechercher dialogue(nullptr, true, 0);
    auto const * const champ = Controle<QLineEdit>(dialogue, "ChampRecherche");
    dialogue.MetsChaineAChercher("un");
    QCOMPARE(dialogue.DonneChaineRecherche(), u"un"_s);
    QCOMPARE(champ->text(), u"un"_s);
    dialogue.PrendsChaineRecherche(u"deux"_s);
    QCOMPARE(dialogue.DonneChaineRecherche(), u"deux"_s);
    QCOMPARE(champ->text(), u"deux"_s);
    dialogue.PrendsChaineRemplacement(u"trois"_s);
    QCOMPARE(dialogue.DonneChaineRemplacement(), u"trois"_s);
    QCOMPARE(Controle<QLineEdit>(dialogue, "ChampRemplacement")->text(), u"trois"_s);
    dialogue.MetsChaineAChercher({});
    QCOMPARE(champ->text(), QString());
}

void tst_DialogueRechercherGestes::pasDeCompteur()
{
    Banc const banc;
    banc.dialogue->ActualiseOccurrences(3, 12);
    QVERIFY(EstActif(*banc.dialogue, "BoutonChercher"));
    banc.dialogue->ActualiseOccurrences(0, 0);
    QVERIFY(EstActif(*banc.dialogue, "BoutonChercher"));
}

void tst_DialogueRechercherGestes::sansHote()
{
    DialogueRechercher dialogue(nullptr, true, kToutOffrir);
    dialogue.AfficheToi(kNouvelleRecherche, "mot");
    Clique(dialogue, "BoutonChercher");
    QCOMPARE(dialogue.DonneSensRecherche(), kVersLeBas);
    QCOMPARE(dialogue.DonneChaineRecherche(), u"mot"_s);
    Clique(dialogue, "ChoixHaut");
    for (auto const * const nom : {"BoutonChercher", "BoutonRemplacer", "BoutonRemplacerTout"})
        Clique(dialogue, nom);
    QCOMPARE(dialogue.DonneOptions(), short(0x34));
    dialogue.MetEnCoursDeRemplacerTout(true);
    Clique(dialogue, "BoutonAnnuler");
    dialogue.EffectuerRecherche("autre");
    QCOMPARE(dialogue.DonneSensRecherche(), kVersLeHaut);
    Clique(dialogue, "BoutonFermer");
    QVERIFY(dialogue.isHidden());
}

void tst_DialogueRechercherGestes::fermeture_data()
{
    QTest::addColumn<Fermeture>("fermeture");
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur())
        QTest::newRow(nom) << fermeture;
}

void tst_DialogueRechercherGestes::fermeture()
{
    QFETCH(Fermeture, fermeture);
    Banc banc;
    Greffier const greffier(banc);
    fermeture(*banc.dialogue);
    QCOMPARE(greffier.lignes, FermayParLUtilisateur());
    QVERIFY(banc.dialogue->isHidden());
    QCOMPARE(banc.dialogue->result(), int(QDialog::Rejected));
    banc.hote.pendantUnAppel = nullptr;
}

void tst_DialogueRechercherGestes::fermetureParLHote()
{
    Banc banc;
    Greffier const greffier(banc);
    banc.dialogue->CacheToi();
    QCOMPARE(greffier.lignes, FermayParLHote());
    banc.hote.pendantUnAppel = nullptr;
}

void tst_DialogueRechercherGestes::fermetureDejaCachay()
{
    Banc banc;
    banc.dialogue->hide();
    Greffier const greffier(banc);
    banc.dialogue->CacheToi();
    QCOMPARE(greffier.lignes, QStringList{u"SignalFermeture hidden"_s});
    banc.hote.pendantUnAppel = nullptr;
}

void tst_DialogueRechercherGestes::rouvertApresFermeture()
{
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    Clique(dialogue, "ChoixCommencePar");
    auto * const champ = Controle<QLineEdit>(dialogue, "ChampRecherche");
    champ->deselect();
    Controle(dialogue, "BoutonFermer")->setFocus();
    Clique(dialogue, "BoutonFermer");
    dialogue.AfficheToi();
    QVERIFY(dialogue.isVisible());
    QVERIFY(Controle(dialogue, "ChoixCommencePar")->isChecked());
    QCOMPARE(champ->selectedText(), u"texte"_s);
    QCOMPARE(dialogue.focusWidget(), champ);
}

// An application may also block on it.
void tst_DialogueRechercherGestes::boucleModale()
{
    DialogueRechercher dialogue(nullptr, false, 0);
    QTimer::singleShot(0, &dialogue, [&dialogue] { Clique(dialogue, "BoutonFermer"); });
    QCOMPARE(dialogue.exec(), int(QDialog::Rejected));
}

void tst_DialogueRechercherGestes::detruitALaFermeture()
{
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur()) {
        Banc banc;
        banc.dialogue->setAttribute(Qt::WA_DeleteOnClose);
        fermeture(*banc.dialogue);
        QTRY_VERIFY2(!banc.dialogue, nom);
    }
}

void tst_DialogueRechercherGestes::detruitDansUnAppel_data()
{
    QTest::addColumn<Fermeture>("geste");
    QTest::newRow("find") << Fermeture([](auto & dialogue) { Clique(dialogue, "BoutonChercher"); });
    QTest::newRow("find upward") << Fermeture([](auto & dialogue) {
        Clique(dialogue, "ChoixHaut");
        Clique(dialogue, "BoutonChercher");
    });
    QTest::newRow("Return") << Fermeture([](auto & dialogue) {
        QTest::keyClick(Controle<QWidget>(dialogue, "ChampRecherche"), Qt::Key_Return);
    });
    QTest::newRow("replace") << Fermeture(
        [](auto & dialogue) { Clique(dialogue, "BoutonRemplacer"); });
    QTest::newRow("replace all") << Fermeture(
        [](auto & dialogue) { Clique(dialogue, "BoutonRemplacerTout"); });
    QTest::newRow("cancel") << Fermeture([](auto & dialogue) {
        dialogue.MetEnCoursDeRemplacerTout(true);
        Clique(dialogue, "BoutonAnnuler");
    });
    QTest::newRow("opening") << Fermeture(
        [](auto & dialogue) { dialogue.AfficheToi(kVersLeBas, {}); });
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur())
        QTest::newRow(nom) << fermeture;
}

void tst_DialogueRechercherGestes::detruitDansUnAppel()
{
    QFETCH(Fermeture, geste);
    Banc banc;
    banc.hote.pendantUnAppel = [&banc](QString const &) { delete banc.dialogue; };
    geste(*banc.dialogue);
    QVERIFY(!banc.dialogue);
    QCOMPARE(banc.hote.appels.size(), 1);
}

void tst_DialogueRechercherGestes::detruitDansUnSignal_data()
{
    QTest::addColumn<Fermeture>("fermeture");
    QTest::addColumn<bool>("parLUtilisateur");
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur())
        for (bool const parLUtilisateur : {true, false})
            QTest::addRow("%s, signal %d", nom, parLUtilisateur) << fermeture << parLUtilisateur;
    QTest::newRow("the host") << Fermeture([](auto & dialogue) { dialogue.CacheToi(); }) << false;
}

void tst_DialogueRechercherGestes::detruitDansUnSignal()
{
    QFETCH(Fermeture, fermeture);
    QFETCH(bool, parLUtilisateur);
    Banc const banc;
    auto const signal = parLUtilisateur ? &DialogueRechercher::SignalDialogueRechercheFermay
                                        : &DialogueRechercher::SignalFermeture;
    QObject receveur;
    connect(banc.dialogue, signal, &receveur, [&banc] { delete banc.dialogue; });
    fermeture(*banc.dialogue);
    QVERIFY(!banc.dialogue);
}

QTEST_MAIN(tst_DialogueRechercherGestes)
#include "tst_DialogueRechercherGestes.moc"
