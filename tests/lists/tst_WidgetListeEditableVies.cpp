#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QIntValidator>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Receivers of each signal that delete the list or empty it, in the middle of each gesture.

class tst_WidgetListeEditableVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void recepteur_data();
    void recepteur();
    void destructionPendantLEdition();
    void destructionAvecParent();
    void destructionAvantLaFin();
    void enfantsDetruits();
};

namespace {

using Geste = std::function<void(ListeEssai &)>;
using Reponse = std::function<void(QPointer<ListeEssai> &)>;
using Branchement = std::function<void(ListeEssai &, QObject *, std::function<void()> const &)>;

template <typename Signal>
Branchement Branche(Signal signal)
{
    return [signal](ListeEssai & liste, QObject * contexte, std::function<void()> const & reponds) {
        QObject::connect(&liste, signal, contexte, reponds);
    };
}

using L = WidgetListeEditable;

struct Emission
{
    char const * nom;
    Branchement branchement;
    Geste preparation; // before anybody listens
    Geste geste;       // makes the list emit
};

// Rows selected as the user does, and an editor with text in it.
void SelectionneDeux(ListeEssai & liste)
{
    liste.SelectionneRangees({0, 2});
}

void SelectionneMilieu(ListeEssai & liste)
{
    liste.SelectionneRangees({1});
}

void Ouvre(ListeEssai & liste)
{
    liste.DoubleCliqueCellule(0);
}

void Tape(ListeEssai & liste)
{
    Ouvre(liste);
    liste.Tape(u"x"_s);
}

void Ajoute(ListeEssai & liste)
{
    QTest::mouseClick(liste.DonneBoutonAjouter(), Qt::LeftButton);
}

// The next ones may lose the list on the way.
void TapeLettre(ListeEssai & liste)
{
    QTest::keyClick(liste.Editeur(), Qt::Key_X);
}

void Valide(ListeEssai & liste)
{
    QTest::keyClick(liste.Editeur(), Qt::Key_Return);
    VideLaFile();
}

void CliqueMilieu(ListeEssai & liste)
{
    QTest::mouseClick(liste.PreteVue()->viewport(), Qt::LeftButton, {}, liste.Milieu(1));
    VideLaFile();
}

void Efface(ListeEssai & liste)
{
    QTest::keyClick(liste.PreteVue(), Qt::Key_Delete);
}

void Retire(ListeEssai & liste)
{
    QTest::mouseClick(liste.DonneBoutonRetirer(), Qt::LeftButton);
}

void Echappe(ListeEssai & liste)
{
    QTest::keyClick(liste.PreteVue(), Qt::Key_Escape);
}

void Descends(ListeEssai & liste)
{
    liste.PriseBougeElementSelectionner(false);
}

void Ecris(ListeEssai & liste)
{
    liste.MetsElement(liste.Index(0), u"y"_s);
    VideLaFile();
}

void Corrige(ListeEssai & liste)
{
    liste.MetsElement(liste.Index(0, 1), u"abc"_s);
    VideLaFile();
}

void Desactive(ListeEssai & liste)
{
    liste.MetsUtilisateurPeutChangerValeur(false);
}

void Rien(ListeEssai &) {}

QList<Emission> DonneEmissions()
{
    Branchement const edition = Branche(&L::SignalEdition);
    Branchement const modifies = Branche(&L::SignalElementsModifiay);
    Branchement const terminee = Branche(&L::SignalEditionTerminay);
    Branchement const selection = Branche(&L::SignalSelectionChangay);
    Branchement const supprimee = Branche(&L::SignalRangeeSupprimay);
    Branchement const suppression = Branche(&L::SignalSuppression);
    Branchement const ajout = Branche(&L::SignalAjout);
    return {
        {"text typed", edition, Ouvre, TapeLettre},
        {"change, by return", modifies, Tape, Valide},
        {"change, by a click elsewhere", modifies, Tape, CliqueMilieu},
        {"change, by removal", modifies, SelectionneDeux, Efface},
        {"change, by an empty row", modifies, Ajoute, Valide},
        {"change, by moving", modifies, SelectionneMilieu, Descends},
        {"change, by moving while editing", modifies, Tape, Descends},
        {"end, by return", terminee, Tape, Valide},
        {"end, by a click elsewhere", terminee, Tape, CliqueMilieu},
        {"end, by escape", terminee, SelectionneMilieu, Echappe},
        {"end, by moving while editing", terminee, Tape, Descends},
        {"end, by removal while editing", terminee, Tape, Retire},
        {"end, by correction", terminee, Rien, Corrige},
        {"end, by adding while editing", terminee, Tape, Ajoute},
        {"selection, by a click", selection, Rien, CliqueMilieu},
        {"selection, by adding", selection, Rien, Ajoute},
        {"selection, by removal", selection, SelectionneDeux, Retire},
        {"selection, by moving", selection, SelectionneMilieu, Descends},
        {"selection, by the end of an edit", selection, SelectionneMilieu, Ecris},
        {"selection, by disabling", selection, SelectionneMilieu, Desactive},
        {"row removed, by key", supprimee, SelectionneDeux, Efface},
        {"row removed, by button", supprimee, SelectionneDeux, Retire},
        {"row removed, while editing", supprimee, Tape, Retire},
        {"row removed, being empty", supprimee, Ajoute, Valide},
        {"removal, by key", suppression, SelectionneDeux, Efface},
        {"removal, by button", suppression, SelectionneDeux, Retire},
        {"added", ajout, Rien, Ajoute},
    };
}

} // namespace

Q_DECLARE_METATYPE(Geste)
Q_DECLARE_METATYPE(Reponse)
Q_DECLARE_METATYPE(Branchement)

void tst_WidgetListeEditableVies::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableVies::recepteur_data()
{
    QTest::addColumn<Branchement>("branchement");
    QTest::addColumn<Geste>("preparation");
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<Reponse>("reponse");
    struct
    {
        char const * nom;
        Reponse reponse;
    } const reponses[] = {
        {"destroyed", [](QPointer<ListeEssai> & l) { delete l.data(); }},
        {"destroyed later", [](QPointer<ListeEssai> & l) { l->deleteLater(); }},
        {"emptied", [](QPointer<ListeEssai> & l) { l->Vide(true); }},
        {"emptied in the model",
         [](QPointer<ListeEssai> & l) { l->PreteModele()->setRowCount(0); }},
        {"selection cleared", [](QPointer<ListeEssai> & l) { l->VideSelection(); }},
        {"disabled", [](QPointer<ListeEssai> & l) { l->setEnabled(false); }},
        {"hidden", [](QPointer<ListeEssai> & l) { l->hide(); }},
        {"row added", [](QPointer<ListeEssai> & l) { l->PriseBoutonAjouter(); }},
    };
    for (Emission const & emission : DonneEmissions())
        for (auto const & reponse : reponses)
            QTest::addRow("%s, %s", emission.nom, reponse.nom)
                << emission.branchement << emission.preparation << emission.geste
                << reponse.reponse;
}

void tst_WidgetListeEditableVies::recepteur()
{
    QFETCH(Branchement, branchement);
    QFETCH(Geste, preparation);
    QFETCH(Geste, geste);
    QFETCH(Reponse, reponse);
    QPointer<ListeEssai> liste =
        new ListeEssai(3, true, true, {nullptr, new QIntValidator(0, 9, nullptr)});
    QVERIFY(liste->Montre());
    for (QString const & texte : {u"a"_s, u"b"_s, u"c"_s})
        liste->AjouteElement(CreeValeurs({texte, u"1"_s, texte == u"c"_s ? QString() : texte}));
    preparation(*liste);
    int appels = 0;
    branchement(*liste, this, [&] {
        if (++appels == 1)
            reponse(liste);
    });
    geste(*liste);
    QVERIFY(appels > 0);
    VideLaFile();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    VideLaFile();
    if (liste) {
        QVERIFY(liste->NombreEditeurs() <= 1);
        liste->disconnect(this);
        liste->setEnabled(true);
        liste->Vide(false);
        QCOMPARE(liste->NombreEditeurs(), 0);
        delete liste.data();
    }
}

// The text of the open editor dies with the list, and nobody hears of it.
void tst_WidgetListeEditableVies::destructionPendantLEdition()
{
    auto liste = std::make_unique<ListeEssai>();
    QVERIFY(liste->Montre());
    liste->Remplis({u"a"_s});
    liste->DoubleCliqueCellule(0);
    liste->Tape(u"x"_s);
    JournalSignaux journal(*liste);
    QPointer<QLineEdit> const editeur = liste->Editeur();
    QPointer<DTreeView> const vue = liste->PreteVue();
    liste.reset();
    QVERIFY(!vue); // at once
    QVERIFY(!editeur);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList());
}

void tst_WidgetListeEditableVies::destructionAvecParent()
{
    auto parent = std::make_unique<QWidget>();
    auto * const liste = new ListeEssai(2, true, true, {}, false, parent.get());
    parent->show();
    QVERIFY(QTest::qWaitForWindowActive(parent.get()));
    liste->Clique(liste->DonneBoutonAjouter());
    liste->Tape(u"x"_s);
    parent.reset();
    VideLaFile();
}

void tst_WidgetListeEditableVies::destructionAvantLaFin()
{
    auto liste = std::make_unique<ListeEssai>();
    liste->Remplis({u"a"_s});
    liste->MetsElement(liste->Index(0), u"b"_s);
    liste.reset();
    VideLaFile(); // where the end of the edit would have come
}

// What is still at work when the list dies goes with the next turn of the event loop.
void tst_WidgetListeEditableVies::enfantsDetruits()
{
    QPointer<ListeEssai> const liste = new ListeEssai;
    QVERIFY(liste->Montre());
    QPointer<QToolButton> const bouton = liste->DonneBoutonAjouter();
    QPointer<DTreeView> const vue = liste->PreteVue();
    QPointer<QAbstractItemDelegate> const deleguay = vue->itemDelegate();
    connect(liste, &WidgetListeEditable::SignalAjout, this, [&] { delete liste.data(); });
    QTest::mouseClick(bouton, Qt::LeftButton);
    QVERIFY(!liste);
    QVERIFY(bouton && vue && deleguay);
    QVERIFY(!vue->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!bouton);
    QVERIFY(!vue);
    QVERIFY(!deleguay);
}

QTEST_MAIN(tst_WidgetListeEditableVies)
#include "tst_WidgetListeEditableVies.moc"
