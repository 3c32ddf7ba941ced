// search/tst_DialogueRechercherOptions.cpp
//
// Which options a mask offers, and what the host reads of them.
#include "search/EssaisDialogue.h"

#include <QtTest>

#include <QCheckBox>
#include <QRadioButton>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

namespace {

// The combination that a number from 0 to 255 stands for, with the bits of the masks.
short Masque(int numero)
{
    constexpr short kBits[] = {0x001, 0x002, 0x004, 0x010, 0x020, 0x040, 0x100, 0x200};
    int masque = 0;
    for (int bit = 0; bit < 8; ++bit)
        if ((numero >> bit & 1) != 0)
            masque |= kBits[bit];
    return static_cast<short>(masque);
}

} // namespace

class tst_DialogueRechercherOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void optionsSelonLeMasque();
    void bitsInconnus();
    void boutonsDOptions();
    void etatsAuDepart();

    void motDesOptions();
    void cochayParProgramme();
    void motDesOptionsSansControle();
    void contientNEstJamaisRange();
    void motEntierOuDebut();
    void contientSeul();
    void debutSeul();
    void desactivay();
    void rafraichiParChaqueControle();
};

void tst_DialogueRechercherOptions::optionsSelonLeMasque()
{
    for (int numero = 0; numero < 512; ++numero) {
        short const masque = Masque(numero & 0xff);
        DialogueRechercher const dialogue(nullptr, numero > 255, masque);
        int nombre = 0;
        for (OptionOfferte const & option : Options()) {
            auto const * const bouton = Controle(dialogue, option.nom);
            QVERIFY2((bouton != nullptr) == ((masque & option.bit) != 0),
                     qPrintable(u"%1 %2"_s.arg(masque, 0, 16).arg(option.fr)));
            nombre += bouton != nullptr;
            if (bouton)
                QCOMPARE(bouton->text(), option.fr);
        }
        auto const boutons =
            dialogue.findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(boutons.size(), nombre + (numero > 255 ? 5 : 2));
    }
}

void tst_DialogueRechercherOptions::bitsInconnus()
{
    DialogueRechercher const dialogue(nullptr, false, static_cast<short>(~0x177));
    QCOMPARE(dialogue.findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly).size(),
             2);
}

void tst_DialogueRechercherOptions::boutonsDOptions()
{
    DialogueRechercher const dialogue(nullptr, false, kToutOffrir);
    for (auto const * const nom : {"CaseMotEntier", "CaseCasse", "CaseBoucler"})
        QVERIFY2(Controle<QCheckBox>(dialogue, nom), nom);
    for (auto const * const nom : {"ChoixHaut", "ChoixBas", "ChoixCommencePar", "ChoixContient"})
        QVERIFY2(Controle<QRadioButton>(dialogue, nom), nom);
}

void tst_DialogueRechercherOptions::etatsAuDepart()
{
    DialogueRechercher const dialogue(nullptr, false, kToutOffrir);
    QStringList coches;
    for (OptionOfferte const & option : Options())
        if (Controle(dialogue, option.nom)->isChecked())
            coches << option.fr;
    QCOMPARE(coches, QStringList({u"boucler"_s, u"vers le bas"_s, u"contient"_s}));
}

// All that can be checked, two by two of the choices.
void tst_DialogueRechercherOptions::motDesOptions()
{
    Banc banc;
    auto & dialogue = *banc.dialogue;
    auto const coche = [&dialogue](char const * nom, bool cochay) {
        if (Controle(dialogue, nom)->isChecked() != cochay)
            Controle(dialogue, nom)->click();
    };
    for (int etat = 0; etat < 32; ++etat) {
        bool const motEntier = etat & 1, casse = etat & 2, boucler = etat & 4;
        bool const haut = etat & 8, debut = etat & 16;
        coche(debut ? "ChoixCommencePar" : "ChoixContient", true);
        coche(haut ? "ChoixHaut" : "ChoixBas", true);
        if (!debut)
            coche("CaseMotEntier", motEntier);
        coche("CaseCasse", casse);
        coche("CaseBoucler", boucler);
        int const attendu = (!debut && motEntier ? 0x001 : 0) | (casse ? 0x002 : 0) |
                            (boucler ? 0x004 : 0) | (haut ? 0x010 : 0x020) | (debut ? 0x040 : 0);
        Clique(dialogue, "BoutonChercher");
        QCOMPARE(int(banc.hote.appels.last().options), attendu);
        QCOMPARE(banc.hote.appels.last().sens,
                 haut ? CstRecherche::kVersLeHaut : CstRecherche::kVersLeBas);
    }
    QCOMPARE(banc.hote.appels.size(), 32);
}

// An application restores what it kept.
void tst_DialogueRechercherOptions::cochayParProgramme()
{
    for (OptionOfferte const & option : Options()) {
        for (short const masque : {option.bit, kToutOffrir, short(-1)}) {
            Banc const banc(masque);
            Controle(*banc.dialogue, option.nom)->setChecked(true);
            banc.dialogue->AfficheToi(CstRecherche::kNouvelleRecherche, {});
            banc.dialogue->BoutonChercher();
            banc.dialogue->BoutonRemplacer();
            for (AppelRecherche const & appel : banc.hote.appels.mid(1)) // behind "Nettoyer"
                QCOMPARE(appel.options & option.bit, option.bit == 0x100 ? 0 : option.bit);
            QVERIFY(Controle(*banc.dialogue, option.nom)->isChecked());
        }
    }
}

// Nothing is offered, so nothing but the direction is asked for.
void tst_DialogueRechercherOptions::motDesOptionsSansControle()
{
    Banc banc(0);
    banc.dialogue->ChercherSuivant();
    banc.dialogue->ChercherPrecedent();
    Clique(*banc.dialogue, "BoutonRemplacer");
    Clique(*banc.dialogue, "BoutonChercher");
    QList<short> options;
    for (AppelRecherche const & appel : banc.hote.appels)
        options << appel.options;
    QCOMPARE(options, QList<short>({0x20, 0x10, 0x10, 0x20}));
    QCOMPARE(banc.hote.appels.last().sens, CstRecherche::kVersLeBas);
    banc.dialogue->ModifieSensRecherche(CstRecherche::kNouvelleRecherche);
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x20));
}

void tst_DialogueRechercherOptions::contientNEstJamaisRange()
{
    for (short const masque : {short(0x100), short(0x140), kToutOffrir}) {
        Banc banc(masque);
        Clique(*banc.dialogue, "ChoixContient");
        QVERIFY(Controle(*banc.dialogue, "ChoixContient")->isChecked());
        Clique(*banc.dialogue, "BoutonChercher");
        QCOMPARE(banc.hote.appels.last().options & 0x340, 0);
    }
}

void tst_DialogueRechercherOptions::motEntierOuDebut()
{
    Banc const banc;
    Clique(*banc.dialogue, "CaseMotEntier");
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x25));
    Clique(*banc.dialogue, "ChoixCommencePar");
    QVERIFY(!EstActif(*banc.dialogue, "CaseMotEntier"));
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x64));
    // It was only in the way: what the user had checked counts again.
    Clique(*banc.dialogue, "ChoixContient");
    QVERIFY(EstActif(*banc.dialogue, "CaseMotEntier"));
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x25));
}

// Without "commence par" there is nothing else to choose.
void tst_DialogueRechercherOptions::contientSeul()
{
    for (short const masque : {short(0x100), short(0x110), short(0x130)}) {
        Banc const banc(masque);
        Clique(*banc.dialogue, "ChoixContient");
        QVERIFY(Controle(*banc.dialogue, "ChoixContient")->isChecked());
        if ((masque & 0x010) != 0)
            Clique(*banc.dialogue, "ChoixHaut"); // a choice of its own
        QVERIFY(Controle(*banc.dialogue, "ChoixContient")->isChecked());
    }
}

void tst_DialogueRechercherOptions::debutSeul()
{
    Banc const banc(0x041);
    Clique(*banc.dialogue, "CaseMotEntier");
    Clique(*banc.dialogue, "ChoixCommencePar");
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x60));
    QVERIFY(!EstActif(*banc.dialogue, "CaseMotEntier"));
    Clique(*banc.dialogue, "ChoixCommencePar");
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x21));
}

// What the user chose holds while an application keeps the whole dialog out of use.
void tst_DialogueRechercherOptions::desactivay()
{
    Banc const banc;
    Clique(*banc.dialogue, "CaseCasse");
    banc.dialogue->setEnabled(false);
    banc.dialogue->ChercherPrecedent();
    QCOMPARE(banc.hote.appels.last().options, short(0x16));
}

// A host may read the state at any time; it is not called for it.
void tst_DialogueRechercherOptions::rafraichiParChaqueControle()
{
    Banc banc;
    auto & dialogue = *banc.dialogue;
    for (auto const & [nom, options] :
         {std::pair{"CaseCasse", 0x26}, std::pair{"CaseBoucler", 0x22},
          std::pair{"CaseMotEntier", 0x23}, std::pair{"ChoixHaut", 0x13},
          std::pair{"ChoixCommencePar", 0x52}, std::pair{"ChoixBas", 0x62}}) {
        Clique(dialogue, nom);
        QCOMPARE(int(dialogue.DonneOptions()), options);
    }
    QTest::keyClicks(Controle<QLineEdit>(dialogue, "ChampRecherche"), u"mot"_s);
    QTest::keyClicks(Controle<QLineEdit>(dialogue, "ChampRemplacement"), u"mieux"_s);
    QCOMPARE(dialogue.DonneChaineRecherche(), u"mot"_s); // over the text, which was all selected
    QCOMPARE(dialogue.DonneChaineRemplacement(), u"mieux"_s);
    Controle<QLineEdit>(dialogue, "ChampRecherche")->findChild<QAbstractButton *>()->click();
    QCOMPARE(dialogue.DonneChaineRecherche(), QString());
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
}

QTEST_MAIN(tst_DialogueRechercherOptions)
#include "tst_DialogueRechercherOptions.moc"
