// search/tst_DialogueRechercher.cpp
#include "search/EssaisDialogue.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

namespace {

struct OptionOfferte
{
    short bit;
    char const * nom;
    QString fr;
    QString en;
};

QList<OptionOfferte> Options()
{
    return {
        {0x001, "CaseMotEntier", u"mot entier"_s, u"whole word"_s},
        {0x002, "CaseCasse", u"sensible à la casse"_s, u"case sensitive"_s},
        {0x004, "CaseBoucler", u"boucler"_s, u"wraparound"_s},
        {0x010, "ChoixHaut", u"vers le haut"_s, u"upward"_s},
        {0x020, "ChoixBas", u"vers le bas"_s, u"downward"_s},
        {0x040, "ChoixCommencePar", u"commence par"_s, u"starts with"_s},
        {0x100, "ChoixContient", u"contient"_s, u"contains"_s},
    };
}

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

class tst_DialogueRechercher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void reglages();
    void optionsSelonLeMasque();
    void bitsInconnus();
    void boutonsDOptions();
    void etatsAuDepart();
    void remplacement_data();
    void remplacement();
    void textes_data();
    void textes();

    void motDesOptions();
    void motDesOptionsSansControle();
    void contientNEstJamaisRange();
    void motEntierOuDebut();
    void choixDejaFaits();
    void debutSeul();
    void desactivay();
    void rafraichiParChaqueControle();

    void boutonsSansTexte();
    void remplacerToutEnCours();
    void remplacerToutSansTexte();
    void remplacerToutSansRemplacement();
    void focusDuRemplacerTout();
    void grandePolice();
};

void tst_DialogueRechercher::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DialogueRechercher::reglages()
{
    QWidget parent;
    auto * const dialogue = new DialogueRechercher(&parent, true, kToutOffrir);
    QCOMPARE(dialogue->parentWidget(), &parent);
    QCOMPARE(dialogue->DonneMoiEnWidget(), dialogue);
    QCOMPARE(dialogue->objectName(), u"DialogueRechercher"_s);
    QVERIFY(dialogue->isWindow());
    QVERIFY(!dialogue->isModal());
    QVERIFY(dialogue->isHidden());
    QCOMPARE(dialogue->DonneOptions(), short(0));
    QCOMPARE(dialogue->DonneSensRecherche(), CstRecherche::kNouvelleRecherche);
    for (auto const * const nom : {"ChampRecherche", "ChampRemplacement"})
        QVERIFY(Controle<QLineEdit>(*dialogue, nom)->isClearButtonEnabled());
}

void tst_DialogueRechercher::optionsSelonLeMasque()
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
                QCOMPARE(SansLettre(bouton->text()), option.fr);
        }
        auto const boutons =
            dialogue.findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(boutons.size(), nombre + (numero > 255 ? 5 : 2));
    }
}

void tst_DialogueRechercher::bitsInconnus()
{
    DialogueRechercher const dialogue(nullptr, false, static_cast<short>(~0x177));
    QCOMPARE(dialogue.findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly).size(),
             2);
}

void tst_DialogueRechercher::boutonsDOptions()
{
    DialogueRechercher const dialogue(nullptr, false, kToutOffrir);
    for (auto const * const nom : {"CaseMotEntier", "CaseCasse", "CaseBoucler"})
        QVERIFY2(Controle<QCheckBox>(dialogue, nom), nom);
    for (auto const * const nom : {"ChoixHaut", "ChoixBas", "ChoixCommencePar", "ChoixContient"})
        QVERIFY2(Controle<QRadioButton>(dialogue, nom), nom);
}

void tst_DialogueRechercher::etatsAuDepart()
{
    DialogueRechercher const dialogue(nullptr, false, kToutOffrir);
    QStringList coches;
    for (OptionOfferte const & option : Options())
        if (Controle(dialogue, option.nom)->isChecked())
            coches << option.fr;
    QCOMPARE(coches, QStringList({u"boucler"_s, u"vers le bas"_s, u"contient"_s}));
}

void tst_DialogueRechercher::remplacement_data()
{
    QTest::addColumn<bool>("remplacer");
    QTest::newRow("searching only") << false;
    QTest::newRow("searching and replacing") << true;
}

void tst_DialogueRechercher::remplacement()
{
    QFETCH(bool, remplacer);
    DialogueRechercher dialogue(nullptr, remplacer, 0);
    QVERIFY(Controle<QLineEdit>(dialogue, "ChampRecherche"));
    QCOMPARE(Controle<QLineEdit>(dialogue, "ChampRemplacement") != nullptr, remplacer);
    for (auto const * const nom : {"BoutonChercher", "BoutonFermer"})
        QVERIFY2(Controle<QPushButton>(dialogue, nom), nom);
    for (auto const * const nom : {"BoutonRemplacer", "BoutonRemplacerTout", "BoutonAnnuler"})
        QCOMPARE(Controle<QPushButton>(dialogue, nom) != nullptr, remplacer);
    dialogue.PrendsChaineRemplacement(u"mieux"_s);
    dialogue.ModifieSensRecherche(CstRecherche::kVersLeBas);
    QCOMPARE(dialogue.DonneChaineRemplacement(), u"mieux"_s);
}

void tst_DialogueRechercher::textes_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<QStringList>("boutons");
    QTest::addColumn<QStringList>("etiquettes");
    QStringList const anglais{u"Find"_s, u"Replace"_s, u"Replace All"_s, u"Cancel"_s, u"Close"_s};
    QTest::newRow("French") << kLangueFrancais
                            << QStringList{u"Chercher"_s, u"Remplacer"_s, u"Tout remplacer"_s,
                                           u"Annuler"_s, u"Fermer"_s}
                            << QStringList{u"Rechercher"_s, u"Remplacer"_s};
    QTest::newRow("English") << kLangueAnglais << anglais << QStringList{u"Search"_s, u"Replace"_s};
    QTest::newRow("Canadian English")
        << kLangueAnglaisCanada << anglais << QStringList{u"Search"_s, u"Replace"_s};
}

void tst_DialogueRechercher::textes()
{
    QFETCH(eLangue, langue);
    QFETCH(QStringList, boutons);
    QFETCH(QStringList, etiquettes);
    Traductions::MetsLanguePourApplicationCourante(langue);
    DialogueRechercher const dialogue(nullptr, true, kToutOffrir);
    QCOMPARE(dialogue.windowTitle(), etiquettes.last());
    QCOMPARE(DialogueRechercher(nullptr, false, 0).windowTitle(), etiquettes.first());
    QStringList lus;
    for (auto const * const bouton : dialogue.findChildren<QPushButton *>())
        lus << SansLettre(bouton->text());
    QCOMPARE(lus, boutons);
    lus.clear();
    for (auto const * const etiquette : dialogue.findChildren<QLabel *>())
        lus << SansLettre(etiquette->text());
    QCOMPARE(lus, etiquettes);
    for (OptionOfferte const & option : Options())
        QCOMPARE(SansLettre(Controle(dialogue, option.nom)->text()),
                 langue == kLangueFrancais ? option.fr : option.en);
}

// All that can be checked, two by two of the choices.
void tst_DialogueRechercher::motDesOptions()
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

// Nothing is offered, so nothing but the direction is asked for.
void tst_DialogueRechercher::motDesOptionsSansControle()
{
    Banc banc(0);
    banc.dialogue->ChercherSuivant();
    banc.dialogue->ChercherPrecedent();
    banc.dialogue->ModifieSensRecherche(CstRecherche::kNouvelleRecherche);
    QCOMPARE(banc.hote.appels.at(0).options, short(0x20));
    QCOMPARE(banc.hote.appels.at(1).options, short(0x10));
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x20));
    Clique(*banc.dialogue, "BoutonChercher");
    QCOMPARE(banc.hote.appels.last().sens, CstRecherche::kVersLeBas);
}

void tst_DialogueRechercher::contientNEstJamaisRange()
{
    for (short const masque : {short(0x100), short(0x140), kToutOffrir}) {
        Banc banc(masque);
        Clique(*banc.dialogue, "ChoixContient");
        QVERIFY(Controle(*banc.dialogue, "ChoixContient")->isChecked());
        Clique(*banc.dialogue, "BoutonChercher");
        QCOMPARE(banc.hote.appels.last().options & 0x340, 0);
    }
}

void tst_DialogueRechercher::motEntierOuDebut()
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

// The one direction, or mode, that is offered cannot be switched off.
void tst_DialogueRechercher::choixDejaFaits()
{
    for (auto const & [masque, nom, options] :
         {std::tuple{short(0x010), "ChoixHaut", short(0x10)},
          std::tuple{short(0x020), "ChoixBas", short(0x20)},
          std::tuple{short(0x100), "ChoixContient", short(0x20)}}) {
        Banc banc(masque);
        QVERIFY(Controle(*banc.dialogue, nom)->isChecked());
        Clique(*banc.dialogue, nom);
        QVERIFY(Controle(*banc.dialogue, nom)->isChecked());
        Clique(*banc.dialogue, "BoutonChercher");
        QCOMPARE(banc.hote.appels.last().options, options);
    }
    // Both are choices of their own.
    Banc const banc(0x110);
    for (auto const * const nom : {"ChoixHaut", "ChoixContient"}) {
        Clique(*banc.dialogue, nom);
        QVERIFY(Controle(*banc.dialogue, "ChoixHaut")->isChecked());
        QVERIFY(Controle(*banc.dialogue, "ChoixContient")->isChecked());
    }
}

void tst_DialogueRechercher::debutSeul()
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
void tst_DialogueRechercher::desactivay()
{
    Banc const banc;
    Clique(*banc.dialogue, "CaseCasse");
    banc.dialogue->setEnabled(false);
    banc.dialogue->ChercherPrecedent();
    QCOMPARE(banc.hote.appels.last().options, short(0x16));
}

// A host may read the state at any time; it is not called for it.
void tst_DialogueRechercher::rafraichiParChaqueControle()
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

void tst_DialogueRechercher::boutonsSansTexte()
{
    Banc const banc(kToutOffrir, {});
    auto & dialogue = *banc.dialogue;
    auto const verifie = [&dialogue](bool actifs) {
        for (auto const * const nom : {"BoutonChercher", "BoutonRemplacer", "BoutonRemplacerTout"})
            QVERIFY2(EstActif(dialogue, nom) == actifs, nom);
        QVERIFY(!EstActif(dialogue, "BoutonAnnuler"));
        QVERIFY(EstActif(dialogue, "BoutonFermer"));
    };
    verifie(false);
    QTest::keyClicks(Controle<QLineEdit>(dialogue, "ChampRecherche"), u" "_s);
    verifie(true); // a blank is something to search for
    dialogue.PrendsChaineRecherche({});
    verifie(false);
    dialogue.MetsChaineAChercher("mot");
    verifie(true);
    dialogue.PrendsChaineRemplacement(u"mieux"_s);
    QCOMPARE(Controle<QLineEdit>(dialogue, "ChampRemplacement")->text(), u"mieux"_s);
    verifie(true);
}

void tst_DialogueRechercher::remplacerToutEnCours()
{
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    for (bool const enCours : {true, true, false, false, true, false}) {
        dialogue.MetEnCoursDeRemplacerTout(enCours);
        for (auto const * const nom : {"BoutonChercher", "BoutonRemplacer", "BoutonRemplacerTout"})
            QVERIFY2(EstActif(dialogue, nom) != enCours, nom);
        QCOMPARE(EstActif(dialogue, "BoutonAnnuler"), enCours);
        QVERIFY(EstActif(dialogue, "BoutonFermer"));
        for (auto const * const nom : {"ChampRecherche", "ChampRemplacement"})
            QVERIFY(Controle<QLineEdit>(dialogue, nom)->isEnabled());
    }
}

// Typing while it runs changes nothing, and its end does not search for nothing.
void tst_DialogueRechercher::remplacerToutSansTexte()
{
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    dialogue.MetEnCoursDeRemplacerTout(true);
    dialogue.PrendsChaineRecherche(u"autre"_s);
    QVERIFY(!EstActif(dialogue, "BoutonChercher"));
    QVERIFY(EstActif(dialogue, "BoutonAnnuler"));
    dialogue.PrendsChaineRecherche({});
    dialogue.MetEnCoursDeRemplacerTout(false);
    QVERIFY(!EstActif(dialogue, "BoutonChercher"));
    QVERIFY(!EstActif(dialogue, "BoutonAnnuler"));
}

void tst_DialogueRechercher::remplacerToutSansRemplacement()
{
    DialogueRechercher dialogue(nullptr, false, 0);
    dialogue.PrendsChaineRecherche(u"texte"_s);
    dialogue.MetEnCoursDeRemplacerTout(true);
    QVERIFY(!EstActif(dialogue, "BoutonChercher"));
    dialogue.MetEnCoursDeRemplacerTout(false);
    QVERIFY(EstActif(dialogue, "BoutonChercher"));
}

// "Fermer" would be next to take the focus of a disabled button.
void tst_DialogueRechercher::focusDuRemplacerTout()
{
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    auto * const tout = Controle(dialogue, "BoutonRemplacerTout");
    tout->setFocus();
    dialogue.MetEnCoursDeRemplacerTout(true);
    QCOMPARE(dialogue.focusWidget(), Controle(dialogue, "BoutonAnnuler"));
    dialogue.MetEnCoursDeRemplacerTout(false);
    QCOMPARE(dialogue.focusWidget(), tout);
    Controle(dialogue, "BoutonFermer")->setFocus();
    dialogue.MetEnCoursDeRemplacerTout(true);
    dialogue.MetEnCoursDeRemplacerTout(false);
    QCOMPARE(dialogue.focusWidget(), Controle(dialogue, "BoutonFermer"));
}

void tst_DialogueRechercher::grandePolice()
{
    Banc const banc;
    QFont police = banc.dialogue->font();
    police.setPixelSize(48);
    banc.dialogue->setFont(police);
    // Once the layout has heard of it.
    auto const controles =
        banc.dialogue->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(controles.size() > 10);
    for (QWidget const * const controle : controles)
        QTRY_VERIFY2(controle->width() >= controle->minimumSizeHint().width() &&
                         controle->height() >= controle->minimumSizeHint().height(),
                     qPrintable(controle->objectName()));
}

QTEST_MAIN(tst_DialogueRechercher)
#include "tst_DialogueRechercher.moc"
