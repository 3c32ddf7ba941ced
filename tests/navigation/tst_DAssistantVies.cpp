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
    void detruitParLeTitre_data();
    void detruitParLeTitre();
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

QTEST_MAIN(tst_DAssistantVies)
#include "tst_DAssistantVies.moc"
