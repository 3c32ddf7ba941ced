// search/tst_DialogueRechercherGestes.cpp
//
// What each gesture asks of the host, and what the host asks of the dialog.
#include "search/EssaisDialogue.h"

#include <QtTest>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;
using CstRecherche::kNouvelleRecherche;
using CstRecherche::kVersLeBas;
using CstRecherche::kVersLeHaut;

class tst_DialogueRechercherGestes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void gestes_data();
    void gestes();
    void ouverture_data();
    void ouverture();
    void ouvertureSimple();
    void focus();
    void dejaOuvert();
    void chaines();
    void pasDeCompteur();
    void sansHote();
};

void tst_DialogueRechercherGestes::cleanup()
{
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
    QTest::newRow("replace all") << QByteArray("BoutonRemplacerTout") << false << u"RemplacerTout"_s
                                 << short(0x24) << kNouvelleRecherche;
    QTest::newRow("cancel refreshes nothing")
        << QByteArray("BoutonAnnuler") << true << u"AnnulerRemplacerTout"_s << short(0)
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

void tst_DialogueRechercherGestes::focus()
{
    Banc const banc;
    auto * const champ = Controle<QLineEdit>(*banc.dialogue, "ChampRecherche");
    champ->deselect();
    Controle(*banc.dialogue, "CaseCasse")->setFocus();
    banc.dialogue->PrendsFocus();
    QCOMPARE(banc.dialogue->focusWidget(), champ);
    QCOMPARE(champ->selectedText(), u"texte"_s);
}

// F3 in the document: the window in which the user works stays the active one.
void tst_DialogueRechercherGestes::dejaOuvert()
{
    QLineEdit document;
    document.show();
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    Controle(dialogue, "CaseCasse")->setFocus();
    document.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&document));
    for (auto const type : {kVersLeBas, kVersLeHaut})
        dialogue.AfficheToi(type, "x");
    QCoreApplication::processEvents();
    QVERIFY(document.isActiveWindow());
    QCOMPARE(dialogue.focusWidget(), Controle(dialogue, "CaseCasse"));
    dialogue.AfficheToi(kNouvelleRecherche, {});
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    QCOMPARE(dialogue.focusWidget(), Controle<QLineEdit>(dialogue, "ChampRecherche"));
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

QTEST_MAIN(tst_DialogueRechercherGestes)
#include "tst_DialogueRechercherGestes.moc"
