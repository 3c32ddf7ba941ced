// tests/navigation/tst_DAssistantEtapesAutomatiques.cpp
#include "navigation/EssaisAssistant.h"

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

class tst_DAssistantEtapesAutomatiques : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void passeToutSeul();
    void sautParDessusUneAutomatique();
    void passeEnSAffichant();
    void bougeParLeTitre();
};

void tst_DAssistantEtapesAutomatiques::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// A step with nothing to ask goes on by itself.
void tst_DAssistantEtapesAutomatiques::passeToutSeul()
{
    Banc banc(4);
    banc.etapes.at(1)->enEntrant = [&banc] { banc.assistant->PriseBoutonSuivant(); };
    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.Rangee(), 2);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 3 de 4"_s);
}

// The jump ends where it was to lead, although a step on the way has made one of the moves.
void tst_DAssistantEtapesAutomatiques::sautParDessusUneAutomatique()
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
void tst_DAssistantEtapesAutomatiques::passeEnSAffichant()
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

// Whoever listens to the title moves on: the step is left before it was entered.
void tst_DAssistantEtapesAutomatiques::bougeParLeTitre()
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

QTEST_MAIN(tst_DAssistantEtapesAutomatiques)
#include "tst_DAssistantEtapesAutomatiques.moc"
