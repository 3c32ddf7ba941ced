// search/tst_DialogueRechercherSens.cpp
//
// Which direction is checked, asked for, and said.
#include "search/EssaisDialogue.h"

#include <QtTest>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;
using CstRecherche::kNouvelleRecherche;
using CstRecherche::kVersLeBas;
using CstRecherche::kVersLeHaut;

class tst_DialogueRechercherSens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void sensParLHote();
    void unSeulSens_data();
    void unSeulSens();
    void gestesSansChoixDuSens();
    void sensParLUtilisateur();
    void remplacerToutVersLeHaut();
    void effectuerRecherche();
    void effectuerRechercheVide();
};

void tst_DialogueRechercherSens::sensParLHote()
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
    QVERIFY(haut->isChecked()); // as everything else that the user chose
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x14));
    QCOMPARE(banc.dialogue->DonneSensRecherche(), kNouvelleRecherche);
    QCOMPARE(banc.hote.DonneNoms(), QStringList());

    banc.dialogue->ChercherPrecedent();
    QVERIFY(haut->isChecked());
    QCOMPARE(banc.hote.appels.last().options, short(0x14));
    banc.dialogue->ChercherSuivant();
    QVERIFY(!haut->isChecked());
    QCOMPARE(banc.hote.appels.last().options, short(0x24));
}

void tst_DialogueRechercherSens::unSeulSens_data()
{
    QTest::addColumn<short>("masque");
    QTest::addColumn<QByteArray>("nom");
    QTest::newRow("upward") << short(0x010) << QByteArray("ChoixHaut");
    QTest::newRow("downward") << short(0x020) << QByteArray("ChoixBas");
}

// It is switched on and off, and begins downward like any other dialog.
void tst_DialogueRechercherSens::unSeulSens()
{
    QFETCH(short, masque);
    QFETCH(QByteArray, nom);
    Banc const banc(masque);
    auto & dialogue = *banc.dialogue;
    auto const * const choix = Controle(dialogue, nom);
    auto const verifie = [&](bool versLeHaut) {
        QCOMPARE(choix->isChecked(), versLeHaut == (masque == 0x010));
        QCOMPARE(banc.hote.appels.last().options, short(versLeHaut ? 0x10 : 0x20));
        QCOMPARE(banc.hote.appels.last().sens, versLeHaut ? kVersLeHaut : kVersLeBas);
    };
    for (bool const versLeHaut : {false, true, false}) {
        Clique(dialogue, "BoutonChercher");
        verifie(versLeHaut);
        Clique(dialogue, nom);
    }
    dialogue.ChercherSuivant();
    verifie(false);
    dialogue.ChercherPrecedent();
    verifie(true);
    dialogue.AfficheToi(kVersLeBas, {});
    verifie(false);
}

// The two gestures that have a direction of their own rebuild the word from what is checked.
void tst_DialogueRechercherSens::gestesSansChoixDuSens()
{
    Banc const banc;
    Controle(*banc.dialogue, "ChoixHaut")->setChecked(true);
    banc.dialogue->BoutonChercher();
    QCOMPARE(banc.hote.appels.last().options, short(0x14));
    QCOMPARE(banc.hote.appels.last().sens, kVersLeBas);
    banc.dialogue->TexteDeRechercheChanger();
    QCOMPARE(banc.hote.appels.last().options, short(0x214));
    QCOMPARE(banc.hote.appels.last().sens, kVersLeBas);
    QVERIFY(Controle(*banc.dialogue, "ChoixHaut")->isChecked());
}

void tst_DialogueRechercherSens::sensParLUtilisateur()
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

// Every match, whatever the dialog says of directions and ends.
void tst_DialogueRechercherSens::remplacerToutVersLeHaut()
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

// Backward, with the options of the last gesture.
void tst_DialogueRechercherSens::effectuerRecherche()
{
    Banc const banc;
    Clique(*banc.dialogue, "CaseCasse");
    banc.dialogue->PrendsOptions(0x022);
    banc.dialogue->EffectuerRecherche("mot");
    QCOMPARE(banc.hote.DonneNoms(), QStringList{u"Chercher"_s});
    AppelRecherche const & appel = banc.hote.appels.first();
    QCOMPARE(appel.chaine, u"mot"_s);
    QCOMPARE(appel.sens, kVersLeHaut);
    QCOMPARE(appel.options, short(0x022)); // a refresh would have brought "boucler" back
    QCOMPARE(Controle<QLineEdit>(*banc.dialogue, "ChampRecherche")->text(), u"mot"_s);
    // What the user sees is what the user gets.
    QVERIFY(Controle(*banc.dialogue, "ChoixBas")->isChecked());
    Clique(*banc.dialogue, "BoutonChercher");
    QCOMPARE(banc.hote.appels.last().options, short(0x026));
    QCOMPARE(banc.hote.appels.last().sens, kVersLeBas);
}

void tst_DialogueRechercherSens::effectuerRechercheVide()
{
    Banc const banc;
    banc.dialogue->EffectuerRecherche({});
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
    QCOMPARE(banc.dialogue->DonneSensRecherche(), kNouvelleRecherche);
    QCOMPARE(banc.dialogue->DonneChaineRecherche(), u"texte"_s);
    QVERIFY(Controle(*banc.dialogue, "ChoixBas")->isChecked());
}

QTEST_MAIN(tst_DialogueRechercherSens)
#include "tst_DialogueRechercherSens.moc"
