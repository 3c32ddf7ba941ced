// search/tst_DialogueRechercherClavier.cpp
//
// Every control from the keyboard, and as a screen reader names it.
#include "search/EssaisDialogue.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <QAccessible>
#include <QLabel>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

namespace {

// As from the keyboard: to the window, which hands it to what has the focus.
void Tape(QWidget & dialogue, Qt::Key touche, Qt::KeyboardModifiers modificateurs = {})
{
    QTest::keyClick(dialogue.windowHandle(), touche, modificateurs);
}

// The controls that a key reaches one after the other, from the search field round to it.
QStringList Tour(QWidget & dialogue, Qt::Key touche)
{
    QStringList noms;
    do {
        noms << dialogue.focusWidget()->objectName();
        Tape(dialogue, touche, touche == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    } while (noms.size() < 50 && dialogue.focusWidget()->objectName() != noms.first());
    return noms;
}

QString NomLu(QWidget * controle)
{
    return QAccessible::queryAccessibleInterface(controle)->text(QAccessible::Name);
}

} // namespace

class tst_DialogueRechercherClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void altLettre_data();
    void altLettre();

    void tabulation();
    void tabulationEnArriere();
    void tabulationPendantLeRemplacement();
    void fleches();

    void retour_data();
    void retour();
    void retourSansTexte();
    void retourPendantLeRemplacement();
    void boutonDuRetour();
    void frappe();

    void etiquettes();
    void nomsLus_data();
    void nomsLus();
};

void tst_DialogueRechercherClavier::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DialogueRechercherClavier::altLettre_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<QByteArray>("lettres");
    QTest::newRow("French") << kLangueFrancais << QByteArray("CRTF");
    QTest::newRow("English") << kLangueAnglais << QByteArray("FRAC");
    QTest::newRow("Canadian English") << kLangueAnglaisCanada << QByteArray("FRAC");
}

void tst_DialogueRechercherClavier::altLettre()
{
    QFETCH(eLangue, langue);
    QFETCH(QByteArray, lettres);
    Traductions::MetsLanguePourApplicationCourante(langue);
    Banc const banc;
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    for (qsizetype i = 0; i < lettres.size(); ++i) {
        Tape(*banc.dialogue, Qt::Key(lettres.at(i)), Qt::AltModifier);
        QTRY_COMPARE(banc.hote.appels.size(), i + 1); // a button clicks after a while
    }
    QCOMPARE(banc.hote.DonneNoms(), QStringList({u"Chercher"_s, u"Remplacer"_s, u"RemplacerTout"_s,
                                                 u"AnnulerRemplacerTout"_s}));
    QVERIFY(banc.dialogue->isHidden());
}

// The option of a choice that is checked stands for all of it, the arrows reach the others.
void tst_DialogueRechercherClavier::tabulation()
{
    Banc const banc;
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    QCOMPARE(Tour(*banc.dialogue, Qt::Key_Tab),
             QStringList({u"ChampRecherche"_s, u"ChampRemplacement"_s, u"CaseMotEntier"_s,
                          u"CaseCasse"_s, u"CaseBoucler"_s, u"ChoixContient"_s, u"ChoixBas"_s,
                          u"BoutonChercher"_s, u"BoutonRemplacer"_s, u"BoutonRemplacerTout"_s,
                          u"BoutonFermer"_s}));
}

void tst_DialogueRechercherClavier::tabulationEnArriere()
{
    Banc const banc;
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    QStringList enAvant = Tour(*banc.dialogue, Qt::Key_Tab);
    QStringList const enArriere = Tour(*banc.dialogue, Qt::Key_Backtab);
    std::reverse(enAvant.begin() + 1, enAvant.end());
    QCOMPARE(enArriere, enAvant);
}

void tst_DialogueRechercherClavier::tabulationPendantLeRemplacement()
{
    Banc const banc(0);
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    banc.dialogue->MetEnCoursDeRemplacerTout(true);
    QCOMPARE(Tour(*banc.dialogue, Qt::Key_Tab),
             QStringList({u"ChampRecherche"_s, u"ChampRemplacement"_s, u"BoutonAnnuler"_s,
                          u"BoutonFermer"_s}));
}

void tst_DialogueRechercherClavier::fleches()
{
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    Controle(dialogue, "ChoixContient")->setFocus();
    Tape(dialogue, Qt::Key_Down);
    QCOMPARE(dialogue.focusWidget(), Controle(dialogue, "ChoixCommencePar"));
    QCOMPARE(dialogue.DonneOptions(), short(0x64));
    Tape(dialogue, Qt::Key_Up);
    QCOMPARE(dialogue.DonneOptions(), short(0x24));
    Controle(dialogue, "ChoixBas")->setFocus();
    Tape(dialogue, Qt::Key_Down);
    QCOMPARE(dialogue.focusWidget(), Controle(dialogue, "ChoixHaut"));
    QCOMPARE(dialogue.DonneOptions(), short(0x14));
    QCOMPARE(dialogue.DonneSensRecherche(), CstRecherche::kVersLeHaut);
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
}

void tst_DialogueRechercherClavier::retour_data()
{
    QTest::addColumn<QByteArray>("controle");
    QTest::addColumn<QStringList>("appels");
    QStringList const cherche{u"Chercher"_s};
    QTest::newRow("search field") << QByteArray("ChampRecherche") << cherche;
    QTest::newRow("replacement field")
        << QByteArray("ChampRemplacement") << QStringList{u"Remplacer"_s};
    QTest::newRow("option") << QByteArray("CaseCasse") << cherche;
    QTest::newRow("choice") << QByteArray("ChoixBas") << cherche;
    QTest::newRow("find") << QByteArray("BoutonChercher") << cherche;
    QTest::newRow("replace all") << QByteArray("BoutonRemplacerTout")
                                 << QStringList{u"RemplacerTout"_s};
    QTest::newRow("close") << QByteArray("BoutonFermer") << QStringList{u"AnnulerRemplacerTout"_s};
}

void tst_DialogueRechercherClavier::retour()
{
    QFETCH(QByteArray, controle);
    QFETCH(QStringList, appels);
    for (Qt::Key const touche : {Qt::Key_Return, Qt::Key_Enter}) {
        Banc const banc;
        QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
        Controle<QWidget>(*banc.dialogue, controle)->setFocus();
        Tape(*banc.dialogue, touche, touche == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        QCOMPARE(banc.hote.DonneNoms(), appels);
    }
}

void tst_DialogueRechercherClavier::retourSansTexte()
{
    Banc const banc(kToutOffrir, {});
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    for (auto const * const nom : {"ChampRecherche", "ChampRemplacement", "CaseCasse"}) {
        Controle<QWidget>(*banc.dialogue, nom)->setFocus();
        Tape(*banc.dialogue, Qt::Key_Return);
    }
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
    QVERIFY(banc.dialogue->isVisible());
}

void tst_DialogueRechercherClavier::retourPendantLeRemplacement()
{
    Banc const banc;
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    banc.dialogue->MetEnCoursDeRemplacerTout(true);
    for (auto const * const nom : {"ChampRecherche", "ChampRemplacement"}) {
        Controle<QWidget>(*banc.dialogue, nom)->setFocus();
        Tape(*banc.dialogue, Qt::Key_Return);
    }
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
}

// What Return presses is seen.
void tst_DialogueRechercherClavier::boutonDuRetour()
{
    Banc const banc;
    auto & dialogue = *banc.dialogue;
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    for (auto const & [controle, bouton] : {std::pair{"ChampRecherche", "BoutonChercher"},
                                            std::pair{"ChampRemplacement", "BoutonRemplacer"},
                                            std::pair{"CaseCasse", "BoutonChercher"},
                                            std::pair{"ChampRemplacement", "BoutonRemplacer"},
                                            std::pair{"ChampRecherche", "BoutonChercher"}}) {
        Controle<QWidget>(dialogue, controle)->setFocus();
        for (auto const * const autre : dialogue.findChildren<QPushButton *>())
            QCOMPARE(autre->isDefault(), autre == Controle(dialogue, bouton));
    }
}

// It is the explicit front end: the host hears nothing of the typing.
void tst_DialogueRechercherClavier::frappe()
{
    Banc const banc(kToutOffrir, {});
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    QTest::keyClicks(banc.dialogue->focusWidget(), u"mot"_s);
    QCOMPARE(banc.dialogue->DonneChaineRecherche(), u"mot"_s);
    QCOMPARE(banc.dialogue->DonneOptions(), short(0x24));
    Tape(*banc.dialogue, Qt::Key_Tab);
    QTest::keyClicks(banc.dialogue->focusWidget(), u"x"_s);
    QCOMPARE(banc.dialogue->DonneChaineRemplacement(), u"x"_s);
    QCOMPARE(banc.hote.DonneNoms(), QStringList());
    Tape(*banc.dialogue, Qt::Key_Return);
    QCOMPARE(banc.hote.appels.first().chaine, u"mot"_s);
    QCOMPARE(banc.hote.appels.first().remplacement, u"x"_s);
}

void tst_DialogueRechercherClavier::etiquettes()
{
    DialogueRechercher const dialogue(nullptr, true, 0);
    QList<QWidget *> champs;
    for (auto const * const etiquette : dialogue.findChildren<QLabel *>())
        champs << etiquette->buddy();
    QCOMPARE(champs, QList<QWidget *>({Controle<QLineEdit>(dialogue, "ChampRecherche"),
                                       Controle<QLineEdit>(dialogue, "ChampRemplacement")}));
}

void tst_DialogueRechercherClavier::nomsLus_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::newRow("French") << kLangueFrancais;
    QTest::newRow("English") << kLangueAnglais;
    QTest::newRow("Canadian English") << kLangueAnglaisCanada;
}

void tst_DialogueRechercherClavier::nomsLus()
{
    QFETCH(eLangue, langue);
    Traductions::MetsLanguePourApplicationCourante(langue);
    DialogueRechercher const dialogue(nullptr, true, kToutOffrir);
    bool const enFrancais = langue == kLangueFrancais;
    QCOMPARE(NomLu(Controle<QWidget>(dialogue, "ChampRecherche")),
             enFrancais ? u"Rechercher"_s : u"Search"_s);
    QCOMPARE(NomLu(Controle<QWidget>(dialogue, "ChampRemplacement")),
             enFrancais ? u"Remplacer"_s : u"Replace"_s);
    for (auto * const bouton :
         dialogue.findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly))
        QCOMPARE(NomLu(bouton), bouton->text().remove(u'&'));
}

QTEST_MAIN(tst_DialogueRechercherClavier)
#include "tst_DialogueRechercherClavier.moc"
