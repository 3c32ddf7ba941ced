#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// The rows that the host hands over: what becomes of them, how large they make the list, and which
// of them are selected, found and chosen.

class tst_ListeChoixFlottanteDonnees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void taille_data();
    void taille();
    void reference_data();
    void reference();
    void colonnesEntieres();
    void rangeesInegales();
    void casesVides();
    void moinsDeColonnes();
    void proprietaire();
    void sansReference();
    void autreModele();
    void aucunePropositionCache();
    void preselection_data();
    void preselection();
    void itemsSelectionnes();
    void choixAutomatique_data();
    void choixAutomatique();
    void activay();
    void recherche_data();
    void recherche();
    void clones();
    void mesureLineaire();
};

namespace {

// How many of them there are.
class ItemCompte : public QStandardItem
{
public:
    ItemCompte() { ++nombre; }
    ItemCompte(ItemCompte const & autre)
        : QStandardItem(autre)
    {
        ++nombre;
    }
    ~ItemCompte() override { --nombre; }
    ItemCompte & operator=(ItemCompte const &) = delete;
    QStandardItem * clone() const override { return new ItemCompte(*this); }

    static inline int nombre = 0;
};

Rangees CreeItemsComptes(int rangees, int colonnes)
{
    Rangees resultat;
    for (int i = 0; i < rangees; ++i) {
        resultat.append(QList<QStandardItem *>());
        for (int j = 0; j < colonnes; ++j)
            resultat.last().append(new ItemCompte);
    }
    return resultat;
}

class DelegueCompteur : public QStyledItemDelegate
{
public:
    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override
    {
        ++mesures;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    mutable int mesures = 0;
};

QString const kLong = QString(40, u'w');

} // namespace

void tst_ListeChoixFlottanteDonnees::cleanup()
{
    QCOMPARE(ItemCompte::nombre, 0);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteDonnees::taille_data()
{
    QTest::addColumn<int>("rangees");
    QTest::addColumn<int>("colonnes");
    QTest::newRow("one proposal") << 1 << 1;
    QTest::newRow("ten proposals") << 10 << 1;
    QTest::newRow("two columns double the rows") << 10 << 2;
    QTest::newRow("three columns") << 2 << 3;
    QTest::newRow("a thousand proposals") << 1000 << 1;
}

void tst_ListeChoixFlottanteDonnees::taille()
{
    QFETCH(int, rangees);
    QFETCH(int, colonnes);
    Hote const hote;
    hote.champ->resize(2000, 20);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(rangees), colonnes));
    QAbstractItemModel const * const modele = hote.Vue()->model();
    QCOMPARE(modele->rowCount(), rangees);
    QCOMPARE(modele->columnCount(), colonnes);
    QSize attendue(0, 6);
    for (int i = 0; i < rangees; ++i) {
        int largeur = 0;
        for (int j = 0; j < colonnes; ++j) {
            largeur += hote.Vue()->sizeHintForIndex(modele->index(i, j)).width();
            attendue.rheight() += hote.Vue()->sizeHintForRow(i);
        }
        attendue.setWidth(std::max(attendue.width(), largeur));
    }
    QVERIFY(hote.liste->isVisible());
    for (QWidget const * const widget :
         {static_cast<QWidget *>(hote.liste), static_cast<QWidget *>(hote.Vue())}) {
        QCOMPARE(widget->size(), attendue);
        QCOMPARE(widget->minimumSize(), attendue);
        QCOMPARE(widget->maximumSize(), attendue);
    }
}

void tst_ListeChoixFlottanteDonnees::reference_data()
{
    QTest::addColumn<int>("reference");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("largeur"); // 0: that of the text
    QTest::newRow("a wide reference leaves the text alone") << 3000 << 0 << 0;
    QTest::newRow("a narrow reference cuts the text") << 90 << 0 << 90;
    QTest::newRow("the least width is not below the reference") << 90 << 50 << 90;
    QTest::newRow("the least width wins over the reference") << 90 << 120 << 120;
    QTest::newRow("the least width widens the list") << 3000 << 2500 << 2500;
    QTest::newRow("a negative least width is none") << 90 << -4 << 90;
}

void tst_ListeChoixFlottanteDonnees::reference()
{
    QFETCH(int, reference);
    QFETCH(int, minimum);
    QFETCH(int, largeur);
    QWidget lie;
    QWidget autre;
    lie.resize(10, 20);
    autre.resize(reference, 20);
    ListeChoixFlottante liste(nullptr, false, &lie, &autre);
    liste.MetsLargeurMinimum(minimum);
    liste.ActualiseListeChoix(CreeRangees({kLong}));
    QTreeView const * const vue = liste.PreteListeChoix();
    QModelIndex const index = vue->model()->index(0, 0);
    QCOMPARE(liste.width(), largeur ? largeur : vue->sizeHintForIndex(index).width());
    QCOMPARE(vue->width(), liste.width());
    // The column is the view's, so that the delegate cuts a text with an ellipsis.
    QTRY_COMPARE(vue->visualRect(index).width(), vue->viewport()->width());
}

void tst_ListeChoixFlottanteDonnees::colonnesEntieres()
{
    Hote const hote;
    hote.champ->resize(2000, 20);
    hote.liste->ActualiseListeChoix({{new QStandardItem(u"a"_s), new QStandardItem(kLong)},
                                     {new QStandardItem(u"bbbbbbb"_s), new QStandardItem}});
    QAbstractItemModel const * const modele = hote.Vue()->model();
    auto const place = [&](int rangee, int colonne) {
        return hote.Vue()->visualRect(modele->index(rangee, colonne)).width();
    };
    auto const besoin = [&](int rangee, int colonne) {
        QModelIndex const index = modele->index(rangee, colonne);
        return hote.Vue()->sizeHintForIndex(index).width();
    };
    QTRY_COMPARE(place(0, 0), std::max(besoin(1, 0), hote.Vue()->header()->minimumSectionSize()));
    QCOMPARE(place(0, 0) + place(0, 1), hote.Vue()->viewport()->width());
    // A lone column gets all that its text needs, without the frame that the width includes.
    hote.liste->ActualiseListeChoix(CreeRangees({kLong}));
    QTRY_COMPARE(place(0, 0), hote.liste->width() - 6);
    QCOMPARE(place(0, 0), besoin(0, 0) - 6);
}

void tst_ListeChoixFlottanteDonnees::rangeesInegales()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(
        {{new QStandardItem(u"a"_s)}, {new QStandardItem(u"b"_s), new QStandardItem(u"c"_s)}, {}});
    QCOMPARE(hote.Vue()->model()->rowCount(), 3);
    QCOMPARE(hote.Vue()->model()->columnCount(), 2);
    for (int i = 0; i < 3; ++i) {
        hote.MetsRangee(i);
        hote.liste->SelectionneItemActivay();
        QStringList const attendu[] = {{u"a"_s, {}}, {u"b"_s, u"c"_s}, {{}, {}}};
        QCOMPARE(choix.count(), i + 1);
        QCOMPARE(DernierChoix(choix), attendu[i]);
    }
}

void tst_ListeChoixFlottanteDonnees::casesVides()
{
    Hote const hote(true);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix({{nullptr, new QStandardItem(u"b"_s)}, {nullptr, nullptr}});
    QVERIFY(hote.liste->isVisible());
    QList<QStandardItem *> const items = hote.liste->DonneItemsSelectionnay();
    QCOMPARE(items.size(), 2);
    QVERIFY(items.at(0));
    QCOMPARE(items.at(1)->text(), u"b"_s);
    QVERIFY(!hote.liste->SelectionneItem(u"absent"_s, Qt::DisplayRole));
    hote.liste->SelectionneItemActivay(); // a missing first cell forbids nothing
    QCOMPARE(DernierChoix(choix), QStringList({{}, u"b"_s}));
    hote.liste->ActualiseListeChoix({{}});
    QCOMPARE(hote.Vue()->model()->rowCount(), 1);
    hote.liste->SelectionneItemActivay();
    QCOMPARE(DernierChoix(choix), QStringList({QString()}));
}

void tst_ListeChoixFlottanteDonnees::moinsDeColonnes()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s}, 3));
    int const haute = hote.liste->height();
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s}, 1));
    QCOMPARE(hote.Vue()->model()->columnCount(), 1);
    QCOMPARE(3 * (hote.liste->height() - 6), haute - 6);
}

void tst_ListeChoixFlottanteDonnees::proprietaire()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeItemsComptes(3, 2));
    QCOMPARE(ItemCompte::nombre, 6);
    hote.liste->ActualiseListeChoix(CreeItemsComptes(1, 1));
    QCOMPARE(ItemCompte::nombre, 1);
    hote.liste->CacheToi();
    QCOMPARE(ItemCompte::nombre, 1);
    hote.liste->DebuteActualisation();
    QCOMPARE(ItemCompte::nombre, 0);
    hote.liste->ActualiseListeChoix(CreeItemsComptes(2, 1));
    hote.liste->ActualiseListeChoix({});
    QCOMPARE(ItemCompte::nombre, 0);
    hote.liste->ActualiseListeChoix(CreeItemsComptes(2, 2));
    delete hote.liste;
    QCOMPARE(ItemCompte::nombre, 0);
}

void tst_ListeChoixFlottanteDonnees::sansReference()
{
    QWidget lie;
    ListeChoixFlottante liste(nullptr, true, &lie, nullptr);
    liste.AfficheToi();
    Rangees rangees = CreeItemsComptes(3, 2);
    rangees[1][1] = (delete rangees[1][1], nullptr);
    rangees.append(QList<QStandardItem *>());
    liste.ActualiseListeChoix(rangees);
    QCOMPARE(ItemCompte::nombre, 0);
    QCOMPARE(liste.PreteListeChoix()->model()->rowCount(), 0);
    QVERIFY(liste.isVisible()); // nothing else is done
    // The proposals of a reference that died stay as well.
    auto reference = std::make_unique<QWidget>();
    reference->resize(100, 20);
    ListeChoixFlottante autre(nullptr, true, &lie, reference.get());
    autre.ActualiseListeChoix(CreeItemsComptes(2, 1));
    reference.reset();
    autre.ActualiseListeChoix(CreeItemsComptes(3, 1));
    QCOMPARE(autre.PreteListeChoix()->model()->rowCount(), 2);
    QCOMPARE(ItemCompte::nombre, 2);
}

void tst_ListeChoixFlottanteDonnees::autreModele()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QStringListModel modele({u"a"_s});
    hote.liste->ActualiseListeChoix(CreeItemsComptes(3, 1));
    QVERIFY(hote.liste->isVisible());
    for (QAbstractItemModel * const etranger :
         {static_cast<QAbstractItemModel *>(&modele), static_cast<QAbstractItemModel *>(nullptr)}) {
        hote.Vue()->setModel(etranger);
        hote.liste->AfficheToi();
        hote.liste->ActualiseListeChoix(CreeItemsComptes(3, 1));
        QVERIFY(hote.liste->isHidden());
        hote.liste->DebuteActualisation();
        hote.liste->TermineActualisation();
        hote.liste->SelectionneItemActivay();
        hote.liste->EnleveSelection();
        QVERIFY(!hote.liste->SelectionneItem(u"a"_s, Qt::DisplayRole));
        QVERIFY(hote.liste->DonneItemsSelectionnay().isEmpty());
    }
    QCOMPARE(modele.rowCount(), 1);
    QCOMPARE(choix.count(), 0);
    QCOMPARE(ItemCompte::nombre, 3); // of the model that no view shows any more
}

void tst_ListeChoixFlottanteDonnees::aucunePropositionCache()
{
    Hote const hote;
    QSignalSpy const fermeture(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix);
    hote.liste->ActualiseListeChoix({});
    QVERIFY(hote.liste->isHidden());
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1)));
    QVERIFY(hote.liste->isVisible());
    hote.liste->ActualiseListeChoix({});
    QVERIFY(hote.liste->isHidden());
    QCOMPARE(fermeture.count(), 0);
}

void tst_ListeChoixFlottanteDonnees::preselection_data()
{
    QTest::addColumn<bool>("preselectionne");
    QTest::newRow("first row selected") << true;
    QTest::newRow("nothing selected") << false;
}

void tst_ListeChoixFlottanteDonnees::preselection()
{
    QFETCH(bool, preselectionne);
    Hote const hote(preselectionne);
    for (int colonnes = 1; colonnes < 3; ++colonnes) {
        hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3), colonnes));
        QItemSelectionModel const * const selection = hote.Vue()->selectionModel();
        QCOMPARE(selection->selectedIndexes().size(), preselectionne ? 1 : 0);
        QCOMPARE(selection->isSelected(hote.Vue()->model()->index(0, 0)), preselectionne);
        QCOMPARE(hote.Rangee(), -1); // selected, but not current
        // What the user did with the former proposals is forgotten.
        hote.MetsRangee(2);
    }
}

void tst_ListeChoixFlottanteDonnees::itemsSelectionnes()
{
    Hote const hote(true);
    QVERIFY(hote.liste->DonneItemsSelectionnay().isEmpty());
    hote.liste->ActualiseListeChoix(CreeRangees({u"a"_s, u"b"_s}, 2));
    auto const * const modele = qobject_cast<QStandardItemModel *>(hote.Vue()->model());
    QCOMPARE(hote.liste->DonneItemsSelectionnay(),
             QList<QStandardItem *>({modele->item(0, 0), modele->item(0, 1)}));
    hote.MetsRangee(1);
    QCOMPARE(hote.liste->DonneItemsSelectionnay(),
             QList<QStandardItem *>({modele->item(1, 0), modele->item(1, 1)}));
    hote.liste->EnleveSelection();
    QVERIFY(hote.liste->DonneItemsSelectionnay().isEmpty());
    QCOMPARE(hote.Rangee(), -1);
}

void tst_ListeChoixFlottanteDonnees::choixAutomatique_data()
{
    QTest::addColumn<QVariantList>("roles");
    QTest::addColumn<QStringList>("choix"); // empty for no signal
    QTest::newRow("no role at all") << QVariantList{{}, {}} << QStringList{u"mot 0"_s};
    QTest::newRow("true") << QVariantList{true, true} << QStringList{u"mot 0"_s};
    QTest::newRow("false is passed over") << QVariantList{false, {}} << QStringList{u"mot 1"_s};
    QTest::newRow("several are passed over")
        << QVariantList{false, false, true, {}} << QStringList{u"mot 2"_s};
    QTest::newRow("past the end") << QVariantList{false, false} << QStringList{};
    QTest::newRow("no row") << QVariantList{} << QStringList{};
}

void tst_ListeChoixFlottanteDonnees::choixAutomatique()
{
    QFETCH(QVariantList, roles);
    QFETCH(QStringList, choix);
    Hote const hote;
    QSignalSpy const espion(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(static_cast<int>(roles.size())));
    for (int i = 0; i < roles.size(); ++i) {
        if (roles.at(i).isValid())
            hote.liste->MetsItemSelectionnableParDefaut(rangees.at(i).at(0), roles.at(i).toBool());
        QCOMPARE(rangees.at(i).at(0)->data(kRoleChoixAutomatique), roles.at(i));
    }
    hote.liste->ActualiseListeChoix(rangees);
    hote.liste->SelectionneItemActivay();
    QCOMPARE(espion.count(), choix.isEmpty() ? 0 : 1);
    QCOMPARE(DernierChoix(espion), choix);
}

void tst_ListeChoixFlottanteDonnees::activay()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(2).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    hote.MetsRangee(2);
    hote.liste->SelectionneItemActivay();
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 2"_s)); // the user's own choice
    QVERIFY(hote.liste->isVisible());                       // hiding is the host's affair
    hote.liste->CacheToi();
    hote.liste->SelectionneItemActivay(); // a call of the host, whether the list shows or not
    QCOMPARE(choix.count(), 2);
}

void tst_ListeChoixFlottanteDonnees::recherche_data()
{
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("rangee"); // -1 for none
    QTest::newRow("first column") << QVariant(u"b"_s) << int(Qt::DisplayRole) << 1;
    QTest::newRow("second column") << QVariant(u"c1"_s) << int(Qt::DisplayRole) << 2;
    QTest::newRow("first of two rows") << QVariant(7) << int(Qt::UserRole) << 1;
    QTest::newRow("other role") << QVariant(7) << int(Qt::DisplayRole) << -1;
    QTest::newRow("absent") << QVariant(u"z"_s) << int(Qt::DisplayRole) << -1;
    QTest::newRow("row that the automatic choice passes over")
        << QVariant(false) << kRoleChoixAutomatique << 0;
}

void tst_ListeChoixFlottanteDonnees::recherche()
{
    QFETCH(QVariant, valeur);
    QFETCH(int, role);
    QFETCH(int, rangee);
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QStringList const textes = {u"a"_s, u"b"_s, u"c"_s};
    Rangees const rangees = CreeRangees(textes, 2);
    rangees.at(1).at(1)->setData(7, Qt::UserRole);
    rangees.at(2).at(0)->setData(7, Qt::UserRole); // a later row, in an earlier column
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(0).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    QCOMPARE(hote.liste->SelectionneItem(valeur, role), rangee >= 0);
    QCOMPARE(choix.count(), rangee >= 0 ? 1 : 0);
    if (rangee >= 0)
        QCOMPARE(DernierChoix(choix), QStringList({textes.at(rangee), textes.at(rangee) + u'1'}));
    QCOMPARE(hote.Rangee(), -1);
}

void tst_ListeChoixFlottanteDonnees::clones()
{
    Hote const hote;
    Choix recu;
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, this,
            [&recu](Choix const & items) { recu = items; });
    Rangees const rangees = CreeItemsComptes(2, 2);
    rangees.at(1).at(0)->setData(42, Qt::UserRole + 7);
    hote.liste->ActualiseListeChoix(rangees);
    QVERIFY(hote.liste->SelectionneItem(42, Qt::UserRole + 7));
    QCOMPARE(recu.size(), 2);
    QCOMPARE(ItemCompte::nombre, 4 + 2);
    QVERIFY(recu.at(0).get() != rangees.at(1).at(0));
    hote.liste->ActualiseListeChoix({});
    QCOMPARE(ItemCompte::nombre, 2);
    QVERIFY(!recu.at(0)->model());
    QCOMPARE(recu.at(0)->data(Qt::UserRole + 7).toInt(), 42);
    recu.clear();
}

void tst_ListeChoixFlottanteDonnees::mesureLineaire()
{
    Hote const hote;
    DelegueCompteur delegue;
    hote.liste->MetsDelegue(&delegue);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(1000)));
    // The width, the height, and what the view asks for itself.
    QVERIFY(delegue.mesures <= 3 * 1000 + 10);
}

QTEST_MAIN(tst_ListeChoixFlottanteDonnees)
#include "tst_ListeChoixFlottanteDonnees.moc"
