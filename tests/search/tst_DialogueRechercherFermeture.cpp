// search/tst_DialogueRechercherFermeture.cpp
//
// In which order the dialog closes, and who may destroy it meanwhile.
#include "search/EssaisDialogue.h"

#include <QtTest>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

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
        {"Escape in the search field",
         [](auto & dialogue) { EchapDans(dialogue, "ChampRecherche"); }},
        {"Escape on an option", [](auto & dialogue) { EchapDans(dialogue, "CaseCasse"); }},
        {"the button of the window", [](auto & dialogue) { dialogue.close(); }},
        {"rejected by the application", [](auto & dialogue) { dialogue.reject(); }},
    };
}

} // namespace

Q_DECLARE_METATYPE(Fermeture)

class tst_DialogueRechercherFermeture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void parLUtilisateur_data();
    void parLUtilisateur();
    void parLHote();
    void dejaCachay();
    void rouvertApresFermeture();
    void boucleModale();
    void detruitALaFermeture();

    void detruitDansUnAppel_data();
    void detruitDansUnAppel();
    void detruitDansUnSignal_data();
    void detruitDansUnSignal();
};

void tst_DialogueRechercherFermeture::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DialogueRechercherFermeture::parLUtilisateur_data()
{
    QTest::addColumn<Fermeture>("fermeture");
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur())
        QTest::newRow(nom) << fermeture;
}

void tst_DialogueRechercherFermeture::parLUtilisateur()
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

void tst_DialogueRechercherFermeture::parLHote()
{
    Banc banc;
    Greffier const greffier(banc);
    banc.dialogue->CacheToi();
    QCOMPARE(greffier.lignes, FermayParLHote());
    banc.hote.pendantUnAppel = nullptr;
}

void tst_DialogueRechercherFermeture::dejaCachay()
{
    Banc banc;
    banc.dialogue->hide();
    Greffier const greffier(banc);
    banc.dialogue->CacheToi();
    QCOMPARE(greffier.lignes, QStringList{u"SignalFermeture hidden"_s});
    banc.hote.pendantUnAppel = nullptr;
}

void tst_DialogueRechercherFermeture::rouvertApresFermeture()
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
void tst_DialogueRechercherFermeture::boucleModale()
{
    DialogueRechercher dialogue(nullptr, false, 0);
    QTimer::singleShot(0, &dialogue, [&dialogue] { Clique(dialogue, "BoutonFermer"); });
    QCOMPARE(dialogue.exec(), int(QDialog::Rejected));
}

void tst_DialogueRechercherFermeture::detruitALaFermeture()
{
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur()) {
        Banc banc;
        banc.dialogue->setAttribute(Qt::WA_DeleteOnClose);
        fermeture(*banc.dialogue);
        QTRY_VERIFY2(!banc.dialogue, nom);
    }
}

void tst_DialogueRechercherFermeture::detruitDansUnAppel_data()
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
        [](auto & dialogue) { dialogue.AfficheToi(CstRecherche::kVersLeBas, {}); });
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur())
        QTest::newRow(nom) << fermeture;
}

void tst_DialogueRechercherFermeture::detruitDansUnAppel()
{
    QFETCH(Fermeture, geste);
    Banc banc;
    banc.hote.pendantUnAppel = [&banc](QString const &) { delete banc.dialogue; };
    geste(*banc.dialogue);
    QVERIFY(!banc.dialogue);
    QCOMPARE(banc.hote.appels.size(), 1);
}

void tst_DialogueRechercherFermeture::detruitDansUnSignal_data()
{
    QTest::addColumn<Fermeture>("fermeture");
    QTest::addColumn<bool>("premier");
    for (auto const & [nom, fermeture] : FermeturesParLUtilisateur())
        for (bool const premier : {true, false})
            QTest::addRow("%s, signal %d", nom, premier ? 1 : 2) << fermeture << premier;
    QTest::newRow("the host") << Fermeture([](auto & dialogue) { dialogue.CacheToi(); }) << false;
}

void tst_DialogueRechercherFermeture::detruitDansUnSignal()
{
    QFETCH(Fermeture, fermeture);
    QFETCH(bool, premier);
    Banc const banc;
    auto const signal = premier ? &DialogueRechercher::SignalDialogueRechercheFermay
                                : &DialogueRechercher::SignalFermeture;
    QObject receveur;
    connect(banc.dialogue, signal, &receveur, [&banc] { delete banc.dialogue; });
    fermeture(*banc.dialogue);
    QVERIFY(!banc.dialogue);
}

QTEST_MAIN(tst_DialogueRechercherFermeture)
#include "tst_DialogueRechercherFermeture.moc"
