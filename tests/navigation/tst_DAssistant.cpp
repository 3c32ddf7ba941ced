// tests/navigation/tst_DAssistant.cpp
#include "navigation/EssaisAssistant.h"

#include "navigation/DelegayVueEtapes.h"

#include "noyau/Traductions.h"

#include <QHBoxLayout>
#include <QtTest>

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

class tst_DAssistant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fenetre();
    void disposition();
    void listeDesEtapes();
    void barreDeBoutons();
    void libelles_data();
    void libelles();
    void couleurs();
    void methodes();
    void ajouteEtape();
    void ajouteApresAffichage();
    void ajouteRienOuDeuxFois();
    void titreAvecMarque();
    void activeBoutons_data();
    void activeBoutons();
    void barreDEtapes();
    void renommeSuivant();
    void options();
    void titreGenerique();
    void titreGeneriqueApresSaut();
    void titreGeneriqueEnAnglais();
    void debarre();
    void reinitialise();
    void reinitialiseApresAvance();
    void reinitialiseEtSuivant();
    void changeTitre();
    void boutonsCliques();
};

void tst_DAssistant::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

void tst_DAssistant::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistant::fenetre()
{
    QWidget parent;
    DAssistant const assistant(&parent);
    QCOMPARE(assistant.parentWidget(), &parent);
    QCOMPARE(assistant.windowFlags(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    QCOMPARE(assistant.DonneMaxEtapeParcouru(), 0);
}

void tst_DAssistant::disposition()
{
    Banc banc(0, false);
    auto * const verticale = qobject_cast<QVBoxLayout *>(banc.assistant->layout());
    QVERIFY(verticale);
    QCOMPARE(verticale->contentsMargins(), QMargins());
    QCOMPARE(verticale->count(), 2);
    auto * const haut = qobject_cast<QHBoxLayout *>(verticale->itemAt(0)->layout());
    QVERIFY(haut);
    QCOMPARE(haut->count(), 2);
    QCOMPARE(haut->itemAt(0)->widget(), banc.liste);
    QCOMPARE(haut->itemAt(1)->widget(), banc.pile);
    QVERIFY(qobject_cast<QFrame *>(verticale->itemAt(1)->widget()));
}

void tst_DAssistant::listeDesEtapes()
{
    Banc banc(0, false);
    QCOMPARE(banc.liste->minimumWidth(), 175);
    QCOMPARE(banc.liste->maximumWidth(), 175);
    QCOMPARE(banc.liste->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(qobject_cast<DelegayVueEtapes *>(banc.liste->itemDelegate()));
    QVERIFY(banc.liste->uniformItemSizes());
    QCOMPARE(banc.liste->styleSheet(),
             u"QListWidget{border : 0px; border-right: 1px solid #BBBBBB;}"_s);
}

void tst_DAssistant::barreDeBoutons()
{
    Banc banc(0, false);
    QWidget * const barre = banc.annuler->parentWidget();
    QCOMPARE(barre->styleSheet(),
             u"QFrame{background-color: #F0F0F0; border-top: 1px solid #BBBBBB;}"_s);
    auto * const rangee = qobject_cast<QHBoxLayout *>(barre->layout());
    QVERIFY(rangee);
    QCOMPARE(rangee->count(), 5);
    QVERIFY(rangee->itemAt(0)->spacerItem());
    QCOMPARE(rangee->stretch(0), 1);
    QList<QWidget *> boutons;
    for (int i = 1; i < rangee->count(); ++i)
        boutons.append(rangee->itemAt(i)->widget());
    QCOMPARE(boutons, QList<QWidget *>({banc.annuler, banc.precedent, banc.suivant, banc.termine}));
    QCOMPARE(banc.Boutons(), u"a"_s);
    QVERIFY(banc.suivant->isDefault());
}

void tst_DAssistant::libelles_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<QStringList>("textes");
    QTest::newRow("French") << kLangueFrancais
                            << QStringList(
                                   {u"Annuler"_s, u"< Précédent"_s, u"Suivant >"_s, u"Terminer"_s});
    QTest::newRow("English") << kLangueAnglais
                             << QStringList(
                                    {u"Cancel"_s, u"< Previous"_s, u"Next >"_s, u"Finish"_s});
}

void tst_DAssistant::libelles()
{
    QFETCH(eLangue, langue);
    QFETCH(QStringList, textes);
    Traductions::MetsLanguePourApplicationCourante(langue);
    Banc banc(0, false);
    QCOMPARE(QStringList({banc.annuler->text(), banc.precedent->text(), banc.suivant->text(),
                          banc.termine->text()}),
             textes);
}

void tst_DAssistant::couleurs()
{
    DAssistant const assistant(nullptr);
    QVERIFY(assistant.autoFillBackground());
    for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(assistant.palette().color(groupe, QPalette::Window), QColor(Qt::white));
}

void tst_DAssistant::methodes()
{
    QMetaObject const & meta = DAssistant::staticMetaObject;
    QList<QByteArray> noms;
    for (int i = meta.methodOffset(); i < meta.methodOffset() + 5; ++i)
        noms.append(meta.method(i).methodSignature());
    QCOMPARE(noms, QList<QByteArray>({"PriseBoutonAnnuler()", "PriseBoutonPrecedent()",
                                      "PriseBoutonSuivant()", "PriseBoutonTermine()",
                                      "PriseSelectionEtape(QItemSelection,QItemSelection)"}));
    QCOMPARE(meta.method(meta.methodOffset() + 2).returnMetaType(), QMetaType::fromType<bool>());
    for (int const public_ : {0, 1, 2, 3})
        QCOMPARE(meta.method(meta.methodOffset() + public_).access(), QMetaMethod::Public);
    QCOMPARE(meta.method(meta.methodOffset() + 4).access(), QMetaMethod::Private);
}

void tst_DAssistant::ajouteEtape()
{
    Banc banc(3, false);
    QCOMPARE(banc.liste->count(), 3);
    QCOMPARE(banc.liste->item(0)->text(), u"1. Liste 0"_s);
    QCOMPARE(banc.liste->item(1)->text(), u"2. Liste 1"_s);
    QCOMPARE(banc.liste->item(2)->text(), u"3. Liste 2"_s);
    QCOMPARE(banc.Actives(), Rangees{});
    QCOMPARE(banc.pile->count(), 3);
    for (int const i : {0, 1, 2})
        QCOMPARE(banc.pile->widget(i), banc.etapes.at(i));
    QVERIFY(banc.journal.isEmpty()); // no step is entered
    QCOMPARE(banc.Rangee(), -1);

    QPointer<EtapeTemoin> const etape = banc.etapes.first();
    delete banc.assistant;
    QVERIFY(!etape);
}

void tst_DAssistant::ajouteApresAffichage()
{
    Banc banc(2);
    QVERIFY(banc.Avance(1));
    banc.Ajoute();
    QCOMPARE(banc.liste->item(2)->text(), u"3. Liste 2"_s);
    QCOMPARE(banc.Actives(), Rangees({0, 1}));
    QCOMPARE(banc.Rangee(), 1);
    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.Rangee(), 2);
}

void tst_DAssistant::ajouteRienOuDeuxFois()
{
    Banc banc(2, false);
    banc.assistant->AjouteEtape(nullptr, false);
    banc.assistant->AjouteEtape(banc.etapes.at(0), false);
    QCOMPARE(banc.liste->count(), 2);
    QCOMPARE(banc.pile->count(), 2);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 1 de 2"_s);
}

void tst_DAssistant::titreAvecMarque()
{
    DAssistant assistant(nullptr);
    auto * const etape = new DAssistantEtape;
    etape->MetsTitre(u"%1 de %2"_s);
    assistant.AjouteEtape(etape, false);
    QCOMPARE(assistant.findChild<QListWidget *>()->item(0)->text(), u"1. %1 de %2"_s);
}

void tst_DAssistant::activeBoutons_data()
{
    using Operation = void (DAssistant::*)(bool);
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("sans");
    QTest::newRow("Cancel") << &DAssistant::ActiveBoutonAnnuler << u"pst"_s;
    QTest::newRow("Previous") << &DAssistant::ActiveBoutonPrecedent << u"ast"_s;
    QTest::newRow("Next") << &DAssistant::ActiveBoutonSuivant << u"apt"_s;
    QTest::newRow("Finish") << &DAssistant::ActiveBoutonTermine << u"aps"_s;
}

void tst_DAssistant::activeBoutons()
{
    using Operation = void (DAssistant::*)(bool);
    QFETCH(Operation, operation);
    QFETCH(QString, sans);
    Banc banc(1, false);
    banc.ActiveTout();
    (*banc.assistant.*operation)(false);
    QCOMPARE(banc.Boutons(), sans);
    (*banc.assistant.*operation)(true);
    QCOMPARE(banc.Boutons(), u"apst"_s);
}

void tst_DAssistant::barreDEtapes()
{
    Banc banc(3);
    QVERIFY(banc.Avance(2));
    banc.assistant->DesactiveBarreEtapes();
    QVERIFY(!banc.liste->isEnabled());
    banc.Clique(0);
    QCOMPARE(banc.Rangee(), 2);
    banc.assistant->ActiveBarreEtapes();
    QVERIFY(banc.liste->isEnabled());
    banc.Clique(0);
    QCOMPARE(banc.Rangee(), 0);
    banc.assistant->CacheBarreEtapes();
    QVERIFY(banc.liste->isHidden());
    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.Rangee(), 1);
}

void tst_DAssistant::renommeSuivant()
{
    Banc banc(1, false);
    banc.assistant->RenommeBoutonSuivant(u"Importer"_s);
    QCOMPARE(banc.suivant->text(), u"Importer"_s);
    QCOMPARE(banc.precedent->text(), u"< Précédent"_s);
}

void tst_DAssistant::options()
{
    DAssistant assistant(nullptr);
    QVERIFY(!assistant.DonneOption(u"a"_s).isValid());
    assistant.PrendsOption(u"a"_s, 1);
    assistant.PrendsOption(u"b"_s, u"texte"_s);
    assistant.PrendsOption({}, 3.5);
    QCOMPARE(assistant.DonneOption(u"a"_s), QVariant(1));
    QCOMPARE(assistant.DonneOption(u"b"_s), QVariant(u"texte"_s));
    QCOMPARE(assistant.DonneOption({}), QVariant(3.5));
    QVERIFY(!assistant.DonneOption(u"A"_s).isValid());

    assistant.PrendsOption(u"a"_s, u"autre"_s);
    QCOMPARE(assistant.DonneOption(u"a"_s), QVariant(u"autre"_s));
    assistant.EnleveOption(u"inconnue"_s);
    assistant.EnleveOption(u"a"_s);
    assistant.EnleveOption(u"a"_s);
    QVERIFY(!assistant.DonneOption(u"a"_s).isValid());
    QCOMPARE(assistant.DonneOption(u"b"_s), QVariant(u"texte"_s));

    assistant.Reinitialise();
    QCOMPARE(assistant.DonneOption(u"b"_s), QVariant(u"texte"_s));
}

void tst_DAssistant::titreGenerique()
{
    Banc banc(5, false);
    DAssistant const & assistant = *banc.assistant;
    QCOMPARE(QString(assistant.DonneTitreGenerique(nullptr)), u"Étape 1 de 5"_s);
    banc.Montre();
    QVERIFY(banc.Avance(2));
    for (DAssistantEtape * const etape : {static_cast<DAssistantEtape *>(nullptr),
                                          static_cast<DAssistantEtape *>(banc.etapes.at(0)),
                                          static_cast<DAssistantEtape *>(banc.etapes.at(4))})
        QCOMPARE(QString(assistant.DonneTitreGenerique(etape)), u"Étape 3 de 5"_s);
    DAssistant const vide(nullptr);
    QCOMPARE(QString(vide.DonneTitreGenerique(nullptr)), u"Étape 1 de 0"_s);
}

// The text counts the visited steps, so it is behind the list's numbers when one was left out.
void tst_DAssistant::titreGeneriqueApresSaut()
{
    Banc banc(5);
    QVERIFY(banc.Avance(4));
    banc.Clique(2);
    QCOMPARE(banc.Rangee(), 2);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(banc.etapes.at(4))), u"Étape 3 de 5"_s);
    delete banc.etapes.at(0);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 2 de 4"_s);
    banc.assistant->Reinitialise();
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 1 de 4"_s);
}

void tst_DAssistant::titreGeneriqueEnAnglais()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    Banc banc(2, false);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Step 1 of 2"_s);
}

void tst_DAssistant::debarre()
{
    Banc banc(4);
    QCOMPARE(banc.Actives(), Rangees{0});
    banc.assistant->DebarreToutesLesEtapes();
    QCOMPARE(banc.Actives(), Rangees({0, 1, 2, 3}));
    QCOMPARE(banc.Rangee(), 0);
    QVERIFY(banc.journal.isEmpty());
    Banc vide(0, false);
    vide.assistant->DebarreToutesLesEtapes();
    vide.assistant->Reinitialise();
}

void tst_DAssistant::reinitialise()
{
    Banc banc(4);
    QVERIFY(banc.Avance(3));
    banc.ActiveTout();
    banc.assistant->hide();
    banc.assistant->Reinitialise();
    QCOMPARE(banc.Actives(), Rangees{});
    QVERIFY(banc.journal.isEmpty());
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 3);

    banc.assistant->show();
    QCOMPARE(banc.journal, QStringList{u"0 EntreDansEtape"_s});
    QCOMPARE(banc.Rangee(), 0);
    QCOMPARE(banc.Actives(), Rangees{0});
    QCOMPARE(banc.Boutons(), u"apst"_s); // the application's to set
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 3);

    // Nothing to go back to: the questions are asked and nothing else happens.
    banc.journal.clear();
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.journal, QStringList({u"0 BloqueRetour"_s, u"0 PeutRevenir"_s}));
    QCOMPARE(banc.Rangee(), 0);
    QCOMPARE(banc.Boutons(), u"apst"_s);
}

void tst_DAssistant::reinitialiseApresAvance()
{
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    banc.assistant->Reinitialise();
    // Still visible, with no current step.
    banc.ActiveTout();
    banc.assistant->PriseBoutonPrecedent();
    banc.assistant->PriseBoutonTermine();
    banc.Clique(0);
    QVERIFY(banc.journal.isEmpty());
    QVERIFY(banc.assistant->isVisible());
    QCOMPARE(banc.Boutons(), u"apst"_s);
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 2);

    banc.assistant->DebarreToutesLesEtapes();
    for (int const rangee : {3, 1, 0})
        banc.Clique(rangee);
    QVERIFY(banc.journal.isEmpty());
    banc.assistant->hide();
    banc.assistant->show();
    QCOMPARE(banc.Rangee(), 0);
}

// Next begins again without a new show.
void tst_DAssistant::reinitialiseEtSuivant()
{
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    banc.ActiveTout();
    banc.assistant->Reinitialise();
    for (int const rangee : {0, 1}) {
        QVERIFY(banc.assistant->PriseBoutonSuivant());
        QCOMPARE(banc.Rangee(), rangee);
        QCOMPARE(banc.Boutons(), rangee == 0 ? u"a"_s : u"ap"_s); // behind the first is nothing
        QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)),
                 u"Étape %1 de 4"_s.arg(rangee + 1));
    }
    QCOMPARE(banc.journal, QStringList({u"0 EntreDansEtape"_s, u"0 BloqueAvance"_s,
                                        u"0 PeutAvancer"_s, u"1 EntreDansEtape"_s}));
    QCOMPARE(banc.Actives(), Rangees({0, 1}));
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 2);
}

void tst_DAssistant::changeTitre()
{
    class Ouvert : public DAssistant
    {
    public:
        using DAssistant::ChangeTitre;
        using DAssistant::DAssistant;
    };
    Ouvert assistant(nullptr);
    assistant.setWindowTitle(u"avant"_s);
    assistant.ChangeTitre(); // without a step
    QCOMPARE(assistant.windowTitle(), u"avant"_s);

    auto * const etape = new DAssistantEtape;
    etape->MetsTitre(u"un"_s);
    assistant.AjouteEtape(etape, false);
    QCOMPARE(assistant.windowTitle(), u"avant"_s);
    assistant.show();
    QCOMPARE(assistant.windowTitle(), u"un"_s);
    etape->MetsTitre(u"deux"_s);
    QCOMPARE(assistant.windowTitle(), u"un"_s);
    assistant.ChangeTitre();
    QCOMPARE(assistant.windowTitle(), u"deux"_s);
}

void tst_DAssistant::boutonsCliques()
{
    Banc banc(3);
    banc.ActiveTout();
    QTest::mouseClick(banc.suivant, Qt::LeftButton);
    QCOMPARE(banc.Rangee(), 1);
    QTest::mouseClick(banc.precedent, Qt::LeftButton);
    QCOMPARE(banc.Rangee(), 0);
    banc.ActiveTout();
    QTest::mouseClick(banc.termine, Qt::LeftButton);
    QVERIFY(!banc.assistant->isVisible());
    QCOMPARE(banc.assistant->result(), int(QDialog::Accepted));
    banc.Montre();
    QTest::mouseClick(banc.annuler, Qt::LeftButton);
    QVERIFY(!banc.assistant->isVisible());
    QCOMPARE(banc.assistant->result(), int(QDialog::Rejected));
    QCOMPARE(banc.journal, QStringList{u"0 AnnuleEtape"_s});
}

QTEST_MAIN(tst_DAssistant)
#include "tst_DAssistant.moc"
