// tests/navigation/tst_DAssistantEtapesDetruites.cpp
#include "navigation/EssaisAssistant.h"

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

class tst_DAssistantEtapesDetruites : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void etapeCouranteDetruite();
    void premiereDetruite();
    void seuleDetruite();
    void autreDetruite();
    void detruiteCachay();
    void detruiteEnSAffichant();
    void etapeReprise();
    void hasardDesDestructions();
    void autreWidgetDetruit();
};

void tst_DAssistantEtapesDetruites::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantEtapesDetruites::etapeCouranteDetruite()
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

void tst_DAssistantEtapesDetruites::premiereDetruite()
{
    Banc banc(3);
    banc.ActiveTout();
    delete banc.etapes.at(0);
    QCOMPARE(banc.journal, QStringList({u"1 GardePrecedentActif"_s, u"1 EntreDansEtape"_s}));
    QCOMPARE(banc.Actives(), Rangees{0});
    QCOMPARE(banc.Boutons(), u"a"_s);
    VerifieCoherence(banc);
}

void tst_DAssistantEtapesDetruites::seuleDetruite()
{
    Banc banc(1);
    delete banc.etapes.at(0);
    QCOMPARE(banc.liste->count(), 0);
    QVERIFY(!banc.assistant->PriseBoutonSuivant());
    banc.assistant->PriseBoutonTermine();
    QVERIFY(banc.assistant->isVisible());
    QVERIFY(banc.assistant->close());
}

void tst_DAssistantEtapesDetruites::autreDetruite()
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
void tst_DAssistantEtapesDetruites::detruiteCachay()
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

void tst_DAssistantEtapesDetruites::detruiteEnSAffichant()
{
    Banc banc(3, false);
    banc.etapes.at(0)->enEntrant = [&banc] { delete banc.etapes.at(0); };
    banc.assistant->show();
    QCOMPARE(banc.journal, QStringList({u"0 EntreDansEtape"_s, u"1 GardePrecedentActif"_s,
                                        u"1 EntreDansEtape"_s}));
    VerifieCoherence(banc);
}

// The application takes a step back without destroying it.
void tst_DAssistantEtapesDetruites::etapeReprise()
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

void tst_DAssistantEtapesDetruites::hasardDesDestructions()
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

// A widget of the host's among the steps is none of the wizard's.
void tst_DAssistantEtapesDetruites::autreWidgetDetruit()
{
    Banc banc(3);
    QVERIFY(banc.Avance(1));
    for (int const place : {0, 3}) {
        auto * const autre = new QWidget;
        banc.pile->insertWidget(place, autre);
        delete autre;
        QCOMPARE(banc.liste->count(), 3);
        QCOMPARE(banc.Rangee(), 1);
    }
    VerifieCoherence(banc);
}

QTEST_MAIN(tst_DAssistantEtapesDetruites)
#include "tst_DAssistantEtapesDetruites.moc"
