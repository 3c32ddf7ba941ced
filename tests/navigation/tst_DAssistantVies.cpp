// tests/navigation/tst_DAssistantVies.cpp
#include "navigation/EssaisAssistant.h"

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

namespace {

using Effet = std::function<void()> EtapeTemoin::*;

/// One operation of a step, and the gesture that has it asked while the wizard stands on step 2 of
/// 0 to 3.
struct Occasion
{
    char const * nom;
    Effet effet;
    int etape;
    void (*geste)(Banc &);
};

void Avance(Banc & banc)
{
    banc.assistant->PriseBoutonSuivant();
}

void Recule(Banc & banc)
{
    banc.assistant->PriseBoutonPrecedent();
}

void Termine(Banc & banc)
{
    banc.assistant->PriseBoutonTermine();
}

void Annule(Banc & banc)
{
    banc.assistant->PriseBoutonAnnuler();
}

void Ferme(Banc & banc)
{
    banc.assistant->close();
}

void Echappe(Banc & banc)
{
    QTest::keyClick(banc.liste, Qt::Key_Escape);
}

void ClicDevant(Banc & banc)
{
    banc.Clique(3);
}

void ClicDerriere(Banc & banc)
{
    banc.Clique(0);
}

void ToucheDevant(Banc & banc)
{
    QTest::keyClick(banc.liste, Qt::Key_Down);
}

void ToucheDerriere(Banc & banc)
{
    QTest::keyClick(banc.liste, Qt::Key_Home);
}

void SaisieDerriere(Banc & banc)
{
    QInputMethodEvent saisie;
    saisie.setCommitString(u"1"_s);
    QCoreApplication::sendEvent(banc.liste, &saisie);
}

void BoutonSuivant(Banc & banc)
{
    QTest::mouseClick(banc.suivant, Qt::LeftButton);
}

void BoutonPrecedent(Banc & banc)
{
    QTest::mouseClick(banc.precedent, Qt::LeftButton);
}

Occasion const kOccasions[] = {
    {"Next, blocking", &EtapeTemoin::enBloquantAvance, 2, Avance},
    {"Next, leaving", &EtapeTemoin::enAvancant, 2, Avance},
    {"Next, entering", &EtapeTemoin::enEntrant, 3, Avance},
    {"Next by its button, entering", &EtapeTemoin::enEntrant, 3, BoutonSuivant},
    {"Previous, blocking", &EtapeTemoin::enBloquantRetour, 2, Recule},
    {"Previous, leaving", &EtapeTemoin::enRevenant, 2, Recule},
    {"Previous, entering", &EtapeTemoin::enEntrant, 1, Recule},
    {"Previous by its button, entering", &EtapeTemoin::enEntrant, 1, BoutonPrecedent},
    {"Finish", &EtapeTemoin::enTerminant, 2, Termine},
    {"Cancel", &EtapeTemoin::enAnnulant, 2, Annule},
    {"close", &EtapeTemoin::enFermant, 2, Ferme},
    {"Escape", &EtapeTemoin::enFermant, 2, Echappe},
    {"click forward, blocking", &EtapeTemoin::enBloquantAvance, 2, ClicDevant},
    {"click forward, leaving", &EtapeTemoin::enAvancant, 2, ClicDevant},
    {"click forward, entering", &EtapeTemoin::enEntrant, 3, ClicDevant},
    {"click back, leaving", &EtapeTemoin::enRevenant, 2, ClicDerriere},
    {"click back, on the way", &EtapeTemoin::enEntrant, 1, ClicDerriere},
    {"click back, keeping Previous", &EtapeTemoin::enGardant, 0, ClicDerriere},
    {"click back, entering", &EtapeTemoin::enEntrant, 0, ClicDerriere},
    {"key forward, leaving", &EtapeTemoin::enAvancant, 2, ToucheDevant},
    {"key forward, entering", &EtapeTemoin::enEntrant, 3, ToucheDevant},
    {"key back, on the way", &EtapeTemoin::enRevenant, 1, ToucheDerriere},
    {"key back, keeping Previous", &EtapeTemoin::enGardant, 0, ToucheDerriere},
    {"key back, entering", &EtapeTemoin::enEntrant, 0, ToucheDerriere},
    {"composed text, leaving", &EtapeTemoin::enRevenant, 2, SaisieDerriere},
    {"composed text, entering", &EtapeTemoin::enEntrant, 0, SaisieDerriere},
};

void LignesDOccasions()
{
    QTest::addColumn<int>("occasion");
    for (int i = 0; i < int(std::size(kOccasions)); ++i)
        QTest::newRow(kOccasions[i].nom) << i;
}

/// A wizard on step 2 of 0 to 3, all of them reached.
std::unique_ptr<Banc> Prepare()
{
    auto banc = std::make_unique<Banc>(4);
    if (!banc->Avance(2))
        return nullptr;
    banc->assistant->DebarreToutesLesEtapes();
    banc->ActiveTout();
    return banc;
}

/// List, stack, selection and title agree, and every move still works.
void VerifieCoherence(Banc & banc)
{
    QCOMPARE(banc.liste->count(), banc.pile->count());
    if (banc.pile->count() == 0)
        return;
    if (!banc.assistant->isVisible())
        banc.assistant->show();
    auto const accord = [&banc] {
        auto * const etape = qobject_cast<DAssistantEtape *>(banc.pile->currentWidget());
        return etape && banc.liste->currentRow() == banc.pile->currentIndex() &&
               banc.liste->selectedItems() == QList<QListWidgetItem *>{banc.liste->currentItem()} &&
               banc.liste->currentItem()->flags().testFlag(Qt::ItemIsEnabled) &&
               banc.assistant->windowTitle() == etape->DonneTitre();
    };
    for (int i = 0; i < banc.liste->count(); ++i)
        QVERIFY(banc.liste->item(i)->text().startsWith(QString::number(i + 1) + u'.'));
    QVERIFY(accord());
    while (banc.assistant->PriseBoutonSuivant())
        QVERIFY(accord());
    QCOMPARE(banc.pile->currentIndex(), banc.pile->count() - 1);
    banc.Clique(0);
    QVERIFY(accord());
    for (int i = 0; i < 5; ++i)
        banc.assistant->PriseBoutonPrecedent();
    QVERIFY(accord());
}

} // namespace

class tst_DAssistantVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void detruitLAssistant_data();
    void detruitLAssistant();
    void detruitLEtape_data();
    void detruitLEtape();
    void detruitToutesLesEtapes_data();
    void detruitToutesLesEtapes();
    void reinitialise_data();
    void reinitialise();
    void reinitialiseEnChemin();
    void bougeEncore_data();
    void bougeEncore();
    void etapeCouranteDetruite();
    void premiereDetruite();
    void seuleDetruite();
    void autreDetruite();
    void detruiteCachay();
    void detruiteEnSAffichant();
    void etapeReprise();
    void hasardDesDestructions();
    void passeToutSeul();
    void sautParDessusUneAutomatique();
    void passeEnSAffichant();
    void detruitParLeTitre_data();
    void detruitParLeTitre();
    void bougeParLeTitre();
};

void tst_DAssistantVies::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantVies::detruitLAssistant_data()
{
    LignesDOccasions();
}

void tst_DAssistantVies::detruitLAssistant()
{
    QFETCH(int, occasion);
    Occasion const & cas = kOccasions[occasion];
    auto const banc = Prepare();
    QVERIFY(banc);
    (*banc->etapes.at(cas.etape)).*cas.effet = [&banc] { delete banc->assistant; };
    cas.geste(*banc);
    QVERIFY(!banc->assistant);
    QVERIFY(!banc->etapes.at(cas.etape));
}

void tst_DAssistantVies::detruitLEtape_data()
{
    LignesDOccasions();
}

void tst_DAssistantVies::detruitLEtape()
{
    QFETCH(int, occasion);
    Occasion const & cas = kOccasions[occasion];
    auto const banc = Prepare();
    QVERIFY(banc);
    (*banc->etapes.at(cas.etape)).*cas.effet = [&] { delete banc->etapes.at(cas.etape); };
    cas.geste(*banc);
    QVERIFY(!banc->etapes.at(cas.etape));
    QCOMPARE(banc->pile->count(), 3);
    VerifieCoherence(*banc);
}

void tst_DAssistantVies::detruitToutesLesEtapes_data()
{
    LignesDOccasions();
}

void tst_DAssistantVies::detruitToutesLesEtapes()
{
    QFETCH(int, occasion);
    Occasion const & cas = kOccasions[occasion];
    auto const banc = Prepare();
    QVERIFY(banc);
    (*banc->etapes.at(cas.etape)).*cas.effet = [&] {
        for (QPointer<EtapeTemoin> const & etape : banc->etapes) {
            if (etape)
                etape->enEntrant = nullptr; // it would come here again
        }
        for (QPointer<EtapeTemoin> const & etape : banc->etapes)
            delete etape;
    };
    cas.geste(*banc);
    QCOMPARE(banc->liste->count(), 0);
    VerifieCoherence(*banc);
    banc->assistant->PriseBoutonPrecedent();
    QVERIFY(!banc->assistant->PriseBoutonSuivant());
    banc->Ajoute();
    banc->assistant->hide();
    VerifieCoherence(*banc);
}

void tst_DAssistantVies::reinitialise_data()
{
    LignesDOccasions();
}

void tst_DAssistantVies::reinitialise()
{
    QFETCH(int, occasion);
    Occasion const & cas = kOccasions[occasion];
    auto const banc = Prepare();
    QVERIFY(banc);
    (*banc->etapes.at(cas.etape)).*cas.effet = [&banc] { banc->assistant->Reinitialise(); };
    cas.geste(*banc);
    (*banc->etapes.at(cas.etape)).*cas.effet = nullptr;
    // Whatever was under way has ended, and no step is the current one.
    QCOMPARE(banc->Actives(), Rangees{});
    QCOMPARE(QString(banc->assistant->DonneTitreGenerique(nullptr)), u"Étape 1 de 4"_s);
    banc->journal.clear();
    banc->assistant->PriseBoutonPrecedent();
    banc->Clique(0);
    QVERIFY(banc->journal.isEmpty());
    banc->assistant->hide();
    VerifieCoherence(*banc);
}

// The rest of the jump doesn't begin again.
void tst_DAssistantVies::reinitialiseEnChemin()
{
    Banc banc(4);
    banc.assistant->DebarreToutesLesEtapes();
    banc.etapes.at(1)->enEntrant = [&banc] { banc.assistant->Reinitialise(); };
    banc.Clique(3);
    QCOMPARE(banc.journal.filter(u"EntreDansEtape"_s), QStringList{u"1 EntreDansEtape"_s});
    QCOMPARE(banc.Actives(), Rangees{});
}

void tst_DAssistantVies::bougeEncore_data()
{
    LignesDOccasions();
}

// The operation makes a move of its own; the one under way then ends.
void tst_DAssistantVies::bougeEncore()
{
    QFETCH(int, occasion);
    Occasion const & cas = kOccasions[occasion];
    for (auto const mouvement : {Recule, Avance}) {
        auto const banc = Prepare();
        QVERIFY(banc);
        Effet const effet = cas.effet;
        EtapeTemoin & etape = *banc->etapes.at(cas.etape);
        etape.*effet = [&banc, &etape, effet, mouvement] {
            etape.*effet = nullptr;
            mouvement(*banc);
        };
        cas.geste(*banc);
        VerifieCoherence(*banc);
    }
}

void tst_DAssistantVies::etapeCouranteDetruite()
{
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    banc.ActiveTout();
    delete banc.etapes.at(2);
    QCOMPARE(banc.journal, QStringList{u"1 EntreDansEtape"_s});
    QCOMPARE(banc.pile->currentWidget(), banc.etapes.at(1));
    QCOMPARE(banc.liste->currentRow(), 1);
    QCOMPARE(banc.assistant->windowTitle(), u"Titre 1"_s);
    QCOMPARE(banc.Boutons(), u"ap"_s);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 2 de 3"_s);
    QCOMPARE(banc.liste->item(2)->text(), u"3. Liste 3"_s);
    VerifieCoherence(banc);
}

void tst_DAssistantVies::premiereDetruite()
{
    Banc banc(3);
    banc.ActiveTout();
    delete banc.etapes.at(0);
    QCOMPARE(banc.journal, QStringList({u"1 GardePrecedentActif"_s, u"1 EntreDansEtape"_s}));
    QCOMPARE(banc.Actives(), Rangees{0});
    QCOMPARE(banc.Boutons(), u"a"_s);
    VerifieCoherence(banc);
}

void tst_DAssistantVies::seuleDetruite()
{
    Banc banc(1);
    delete banc.etapes.at(0);
    QCOMPARE(banc.liste->count(), 0);
    QVERIFY(!banc.assistant->PriseBoutonSuivant());
    banc.assistant->PriseBoutonTermine();
    QVERIFY(banc.assistant->isVisible());
    QVERIFY(banc.assistant->close());
}

void tst_DAssistantVies::autreDetruite()
{
    for (int const autre : {0, 1, 3}) {
        Banc banc(4);
        QVERIFY(banc.Avance(2));
        banc.ActiveTout();
        delete banc.etapes.at(autre);
        QVERIFY(banc.journal.isEmpty());
        QCOMPARE(banc.pile->currentWidget(), banc.etapes.at(2));
        QCOMPARE(banc.liste->currentRow(), autre < 2 ? 1 : 2);
        QCOMPARE(banc.Boutons(), u"apst"_s);
        QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)),
                 autre < 2 ? u"Étape 2 de 3"_s : u"Étape 3 de 3"_s);
        VerifieCoherence(banc);
    }
}

// A hidden wizard enters no step; its next show does.
void tst_DAssistantVies::detruiteCachay()
{
    Banc banc(3);
    QVERIFY(banc.Avance(1));
    banc.assistant->hide();
    delete banc.etapes.at(1);
    QVERIFY(!banc.journal.contains(u"0 EntreDansEtape"_s));
    banc.Montre();
    QCOMPARE(banc.liste->currentRow(), 0);
    VerifieCoherence(banc);
}

void tst_DAssistantVies::detruiteEnSAffichant()
{
    Banc banc(3, false);
    banc.etapes.at(0)->enEntrant = [&banc] { delete banc.etapes.at(0); };
    banc.assistant->show();
    QCOMPARE(banc.journal, QStringList({u"0 EntreDansEtape"_s, u"1 GardePrecedentActif"_s,
                                        u"1 EntreDansEtape"_s}));
    VerifieCoherence(banc);
}

// The application takes a step back without destroying it.
void tst_DAssistantVies::etapeReprise()
{
    Banc banc(3);
    QVERIFY(banc.Avance(1));
    banc.etapes.at(1)->setParent(nullptr);
    std::unique_ptr<EtapeTemoin> const reprise(banc.etapes.at(1));
    QCOMPARE(banc.liste->count(), 2);
    VerifieCoherence(banc);
    banc.assistant->AjouteEtape(banc.etapes.at(1), false);
    QCOMPARE(banc.liste->item(2)->text(), u"3. Liste 1"_s);
    VerifieCoherence(banc);
}

void tst_DAssistantVies::hasardDesDestructions()
{
    QRandomGenerator hasard(8);
    for (int tour = 0; tour < 200; ++tour) {
        Banc banc(6);
        for (int action = 0; action < 12; ++action) {
            if (banc.liste->count() > 0 && hasard.bounded(2))
                banc.Clique(hasard.bounded(banc.liste->count()));
            for (int pas = hasard.bounded(4); pas > 0; --pas)
                banc.assistant->PriseBoutonSuivant();
            if (hasard.bounded(3) == 0)
                delete banc.etapes.at(hasard.bounded(int(banc.etapes.size())));
            if (hasard.bounded(4) == 0)
                banc.Ajoute();
        }
        banc.assistant->hide();
        VerifieCoherence(banc);
        if (QTest::currentTestFailed())
            return;
    }
}

// A step with nothing to ask goes on by itself.
void tst_DAssistantVies::passeToutSeul()
{
    Banc banc(4);
    banc.etapes.at(1)->enEntrant = [&banc] { banc.assistant->PriseBoutonSuivant(); };
    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.Rangee(), 2);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 3 de 4"_s);
}

// The jump ends where it was to lead, although a step on the way has made one of the moves.
void tst_DAssistantVies::sautParDessusUneAutomatique()
{
    Banc banc(6);
    banc.assistant->DebarreToutesLesEtapes();
    banc.etapes.at(1)->enEntrant = [&banc] { banc.assistant->PriseBoutonSuivant(); };
    banc.Clique(3);
    QCOMPARE(banc.Rangee(), 3);

    // It can't be entered to stay: the selection follows the wizard.
    banc.Clique(0);
    QVERIFY(banc.Rangee() >= 0);
    VerifieCoherence(banc);
}

// The step needs no entering: it goes on as soon as it is shown.
void tst_DAssistantVies::passeEnSAffichant()
{
    class EtapeVue : public EtapeTemoin
    {
    public:
        using EtapeTemoin::EtapeTemoin;
        std::function<void()> enSeMontrant;

    protected:
        void showEvent(QShowEvent *) override { enSeMontrant(); }
    };
    Banc banc(1, false);
    auto * const etape = new EtapeVue(banc.journal, u"1"_s);
    etape->enSeMontrant = [&banc] { banc.assistant->PriseBoutonSuivant(); };
    banc.etapes.append(etape);
    banc.assistant->AjouteEtape(etape, false);
    banc.Ajoute();
    banc.Montre();

    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.Rangee(), 2);
    QCOMPARE(banc.journal.count(u"1 EntreDansEtape"_s), 0);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 3 de 3"_s);

    banc.journal.clear();
    etape->enSeMontrant = [&banc] { banc.assistant->PriseBoutonPrecedent(); };
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.Rangee(), 0);
    QCOMPARE(banc.journal.filter(u"EntreDansEtape"_s), QStringList{u"0 EntreDansEtape"_s});
    etape->enSeMontrant = [] {};
    VerifieCoherence(banc);
}

void tst_DAssistantVies::detruitParLeTitre_data()
{
    using Geste = void (*)(Banc &);
    QTest::addColumn<Geste>("geste");
    QTest::newRow("Next") << Geste(Avance);
    QTest::newRow("Previous") << Geste(Recule);
    QTest::newRow("click forward") << Geste(ClicDevant);
    QTest::newRow("click back") << Geste(ClicDerriere);
    QTest::newRow("key forward") << Geste(ToucheDevant);
    QTest::newRow("key back") << Geste(ToucheDerriere);
}

void tst_DAssistantVies::detruitParLeTitre()
{
    using Geste = void (*)(Banc &);
    QFETCH(Geste, geste);
    auto const banc = Prepare();
    QVERIFY(banc);
    connect(banc->assistant, &QWidget::windowTitleChanged, banc->assistant,
            [&banc] { delete banc->assistant; });
    geste(*banc);
    QVERIFY(!banc->assistant);
}

// Whoever listens to the title moves on: the step is left before it was entered.
void tst_DAssistantVies::bougeParLeTitre()
{
    auto const banc = std::make_unique<Banc>(4, false);
    connect(banc->assistant, &QWidget::windowTitleChanged, banc->assistant,
            [&banc] { banc->assistant->PriseBoutonSuivant(); });
    banc->assistant->show();
    QCOMPARE(banc->pile->currentIndex(), 3);
    QCOMPARE(banc->journal.filter(u"EntreDansEtape"_s), QStringList{u"3 EntreDansEtape"_s});
    disconnect(banc->assistant, &QWidget::windowTitleChanged, nullptr, nullptr);
    VerifieCoherence(*banc);
}

QTEST_MAIN(tst_DAssistantVies)
#include "tst_DAssistantVies.moc"
