// search/tst_DialogueRechercher.cpp
#include "search/EssaisDialogue.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <QLabel>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

class tst_DialogueRechercher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void reglages();
    void remplacement_data();
    void remplacement();
    void textes_data();
    void textes();

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
    QStringList const anglais{u"&Find"_s, u"&Replace"_s, u"Replace &All"_s, u"Cancel"_s,
                              u"&Close"_s};
    QTest::newRow("French") << kLangueFrancais
                            << QStringList{u"&Chercher"_s, u"&Remplacer"_s, u"&Tout remplacer"_s,
                                           u"Annuler"_s, u"&Fermer"_s}
                            << QStringList{u"Rechercher"_s, u"Remplacer"_s};
    QTest::newRow("English") << kLangueAnglais << anglais << QStringList{u"Search"_s, u"Replace"_s};
    QTest::newRow("Canadian English")
        << kLangueAnglaisCanada << anglais << QStringList{u"Search"_s, u"Replace"_s};
}

// Deliberate: the letters for the keyboard are those of the catalogue, none is added.
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
        lus << bouton->text();
    QCOMPARE(lus, boutons);
    lus.clear();
    for (auto const * const etiquette : dialogue.findChildren<QLabel *>())
        lus << etiquette->text();
    QCOMPARE(lus, etiquettes);
    for (OptionOfferte const & option : Options())
        QCOMPARE(Controle(dialogue, option.nom)->text(),
                 langue == kLangueFrancais ? option.fr : option.en);
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
