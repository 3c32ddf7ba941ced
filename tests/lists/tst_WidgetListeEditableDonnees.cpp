#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Rows and cells, without an editor.

class tst_WidgetListeEditableDonnees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ajouteValeurs();
    void ajouteRien();
    void ajoutePlusDeColonnes();
    void ajouteItems_data();
    void ajouteItems();
    void ajouteHorsBornes_data();
    void ajouteHorsBornes();
    void ajouteApresSelection_data();
    void ajouteApresSelection();
    void itemsDeLaSousClasse();
    void modifiable_data();
    void modifiable();
    void valeursParDefaut();
    void valeursParDefautRemplacees();
    void itemsParDefautDeLaSousClasse();
    void boutonSansPlace();
    void elements();
    void metsElement();
};

namespace {

int nombreItems = 0;

class ItemCompte : public QStandardItem
{
public:
    ItemCompte() { ++nombreItems; }
    explicit ItemCompte(QString const & texte)
        : QStandardItem(texte)
    {
        ++nombreItems;
    }
    ~ItemCompte() override { --nombreItems; }
    Q_DISABLE_COPY_MOVE(ItemCompte)
};

// Makes the items of its rows itself.
class ListeComptante : public ListeEssai
{
public:
    using ListeEssai::ListeEssai;

private:
    QStandardItem * CreeItem() const override { return new ItemCompte; }
};

} // namespace

void tst_WidgetListeEditableDonnees::cleanup()
{
    QCOMPARE(nombreItems, 0);
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableDonnees::ajouteValeurs()
{
    ListeEssai liste(2);
    JournalSignaux journal(liste);
    Valeurs valeurs;
    valeurs.AjouteFin(Cellule{{u"un"_s, Qt::DisplayRole}, {u"bulle"_s, Qt::ToolTipRole}});
    valeurs.AjouteFin(Cellule{});
    QModelIndex const premiere = liste.AjouteElement(valeurs);
    QModelIndex const seconde = liste.AjouteElement(CreeValeurs({u"deux"_s, u"2"_s}));
    QCOMPARE(premiere, liste.Index(0));
    QCOMPARE(seconde, liste.Index(1));
    QCOMPARE(liste.Textes(), (QStringList{u"un"_s, u"deux"_s}));
    QCOMPARE(liste.Textes(1), (QStringList{QString(), u"2"_s}));
    QCOMPARE(liste.DonneElement(0, 0)->toolTip(), u"bulle"_s);
    QVERIFY(liste.DonneElement(0, 1) != nullptr);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList());
}

void tst_WidgetListeEditableDonnees::ajouteRien()
{
    ListeEssai liste(2);
    QVERIFY(!liste.AjouteElement(Valeurs()).isValid());
    QVERIFY(!liste.AjouteElement(QList<QStandardItem *>(), 0).isValid());
    QCOMPARE(liste.DonneNbRangee(), 0);
}

void tst_WidgetListeEditableDonnees::ajoutePlusDeColonnes()
{
    ListeEssai liste(1);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(liste.PreteModele()->columnCount(), 3);
    QCOMPARE(liste.Texte(0, 2), u"c"_s);
}

void tst_WidgetListeEditableDonnees::ajouteItems_data()
{
    QTest::addColumn<int>("rangee");
    QTest::newRow("at the top") << 0;
    QTest::newRow("between") << 1;
    QTest::newRow("at the end") << 2;
}

void tst_WidgetListeEditableDonnees::ajouteItems()
{
    QFETCH(int, rangee);
    ListeEssai liste(2);
    liste.Remplis({u"a"_s, u"b"_s});
    QModelIndex const index = liste.AjouteElement({new QStandardItem(u"x"_s), nullptr}, rangee);
    QCOMPARE(index, liste.Index(rangee));
    QCOMPARE(liste.Texte(rangee), u"x"_s);
    QVERIFY(liste.DonneElement(rangee, 1) == nullptr);
    QCOMPARE(liste.DonneNbRangee(), 3);
}

void tst_WidgetListeEditableDonnees::ajouteHorsBornes_data()
{
    QTest::addColumn<int>("rangee");
    QTest::newRow("negative") << -1;
    QTest::newRow("beyond the end") << 3;
}

// The items have been taken all the same.
void tst_WidgetListeEditableDonnees::ajouteHorsBornes()
{
    QFETCH(int, rangee);
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    QVERIFY(!liste.AjouteElement({new ItemCompte}, rangee).isValid());
    QCOMPARE(nombreItems, 0);
    QCOMPARE(liste.DonneNbRangee(), 2);
}

void tst_WidgetListeEditableDonnees::ajouteApresSelection_data()
{
    QTest::addColumn<QList<int>>("selection");
    QTest::addColumn<int>("place");
    QTest::newRow("nothing selected") << QList<int>{} << 3;
    QTest::newRow("first row") << QList<int>{0} << 1;
    QTest::newRow("last row") << QList<int>{2} << 3;
    QTest::newRow("two rows") << QList<int>{0, 1} << 3;
}

void tst_WidgetListeEditableDonnees::ajouteApresSelection()
{
    QFETCH(QList<int>, selection);
    QFETCH(int, place);
    ListeEssai liste(2, true, true, {}, true);
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.SelectionneRangees(selection);
    QCOMPARE(liste.AjouteElement(CreeValeurs({u"x"_s})).row(), place);
    QCOMPARE(liste.Texte(place), u"x"_s);
    ListeEssai sansInsertion;
    sansInsertion.Remplis({u"a"_s, u"b"_s, u"c"_s});
    sansInsertion.SelectionneRangees(selection);
    QCOMPARE(sansInsertion.AjouteElement(CreeValeurs({u"x"_s})).row(), 3);
}

void tst_WidgetListeEditableDonnees::itemsDeLaSousClasse()
{
    {
        ListeComptante liste(2);
        liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s}));
        QCOMPARE(nombreItems, 2);
        liste.DonneBoutonAjouter()->click();
        QCOMPARE(nombreItems, 3);
        liste.MetsValeursParDefaut(CreeValeurs({u"x"_s, u"y"_s}));
        QCOMPARE(nombreItems, 3);
        liste.DonneBoutonAjouter()->click();
        QCOMPARE(nombreItems, 5);
        QVERIFY(liste.RetireRangee(0, false));
        QCOMPARE(nombreItems, 3);
    }
    QCOMPARE(nombreItems, 0);
}

void tst_WidgetListeEditableDonnees::modifiable_data()
{
    QTest::addColumn<bool>("editable");
    QTest::newRow("editable") << true;
    QTest::newRow("read only") << false;
}

void tst_WidgetListeEditableDonnees::modifiable()
{
    QFETCH(bool, editable);
    ListeEssai liste(1, editable);
    liste.AjouteElement(CreeValeurs({u"a"_s}));
    auto * const item = new QStandardItem(u"b"_s);
    item->setEditable(!editable);
    liste.AjouteElement({item}, 0);
    liste.DonneBoutonAjouter()->click();
    for (int rangee = 0; rangee < 3; ++rangee)
        QCOMPARE(liste.DonneElement(rangee, 0)->isEditable(), editable);
}

void tst_WidgetListeEditableDonnees::valeursParDefaut()
{
    ListeEssai liste(3, false);
    Valeurs valeurs;
    valeurs.AjouteFin(Cellule{{u"mot"_s, Qt::DisplayRole}, {u"bulle"_s, Qt::ToolTipRole}});
    valeurs.AjouteFin(Cellule{});
    valeurs.AjouteFin(Cellule{{7, Qt::EditRole}});
    liste.MetsValeursParDefaut(valeurs);
    QList<QStandardItem *> const modeles = liste.DonneItemsParDefaut();
    QCOMPARE(modeles.size(), 3);
    QCOMPARE(modeles[0]->text(), u"mot"_s);
    QCOMPARE(modeles[0]->toolTip(), u"bulle"_s);
    liste.DonneBoutonAjouter()->click();
    liste.DonneBoutonAjouter()->click();
    QCOMPARE(liste.Textes(0), (QStringList{u"mot"_s, u"mot"_s}));
    QCOMPARE(liste.Textes(1), (QStringList{QString(), QString()}));
    QCOMPARE(liste.DonneElement(1, 2)->data(Qt::DisplayRole), QVariant(7));
    QVERIFY(liste.DonneElement(0, 0)->toolTip().isEmpty()); // only what is displayed is copied
    QVERIFY(liste.DonneElement(0, 0) != modeles[0]);
    QCOMPARE(liste.DonneItemsParDefaut(), modeles);
}

void tst_WidgetListeEditableDonnees::valeursParDefautRemplacees()
{
    ListeEssai liste(2, false);
    liste.MetsValeursParDefaut(CreeValeurs({u"a"_s, u"b"_s}));
    liste.MetsValeursParDefaut(CreeValeurs({u"c"_s}));
    QCOMPARE(liste.DonneItemsParDefaut().size(), 1);
    liste.DonneBoutonAjouter()->click();
    QCOMPARE(liste.Texte(0), u"c"_s);
    liste.MetsValeursParDefaut(Valeurs());
    QVERIFY(liste.DonneItemsParDefaut().isEmpty());
    liste.DonneBoutonAjouter()->click();
    QCOMPARE(liste.Texte(1), QString());
    QVERIFY(liste.DonneElement(1, 1) == nullptr);
}

void tst_WidgetListeEditableDonnees::itemsParDefautDeLaSousClasse()
{
    auto const item = std::make_unique<ItemCompte>(u"a"_s);
    {
        ListeEssai liste(2, false);
        liste.MetsItemsParDefaut({item.get(), nullptr});
        liste.DonneBoutonAjouter()->click();
        QCOMPARE(liste.Texte(0), u"a"_s);
        liste.MetsValeursParDefaut(CreeValeurs({u"b"_s}));
        QCOMPARE(nombreItems, 1);
        liste.MetsItemsParDefaut({item.get()});
    }
    QCOMPARE(nombreItems, 1); // it was lent
}

void tst_WidgetListeEditableDonnees::boutonSansPlace()
{
    ListeEssai liste(1, false);
    liste.MetsAjouteEnFin(false);
    liste.MetsValeursParDefaut(CreeValeurs({u"x"_s}));
    liste.Remplis({u"a"_s});
    liste.PriseBoutonAjouter();
    QCOMPARE(liste.Textes(), (QStringList{u"x"_s, u"a"_s}));
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
}

void tst_WidgetListeEditableDonnees::elements()
{
    ListeEssai liste(2);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s}));
    liste.Remplis({u"c"_s});
    QCOMPARE(liste.DonneNbRangee(), 2);
    QCOMPARE(liste.DonneElement(0, 1)->text(), u"b"_s);
    QVERIFY(liste.DonneElement(1, 1) == nullptr);
    for (QPoint const hors : {QPoint(-1, 0), QPoint(0, -1), QPoint(2, 0), QPoint(0, 2)})
        QVERIFY(liste.DonneElement(hors.x(), hors.y()) == nullptr);
    QList<QList<QStandardItem *>> const items = liste.DonneListeStandardItems();
    QList<QList<QStandardItem *>> const attendus = {
        {liste.DonneElement(0, 0), liste.DonneElement(0, 1)}, {liste.DonneElement(1, 0), nullptr}};
    QCOMPARE(items, attendus);
    QVERIFY(ListeEssai().DonneListeStandardItems().isEmpty());
}

void tst_WidgetListeEditableDonnees::metsElement()
{
    ListeEssai liste(2);
    ListeEssai autre;
    liste.Remplis({u"a"_s});
    autre.Remplis({u"z"_s});
    QVERIFY(liste.MetsElement(liste.Index(0), u"b"_s));
    QCOMPARE(liste.Texte(0), u"b"_s);
    QVERIFY(!liste.MetsElement(liste.Index(0), QString())); // a filled cell keeps its text
    QCOMPARE(liste.Texte(0), u"b"_s);
    QVERIFY(!liste.MetsElement(QModelIndex(), u"c"_s));
    QVERIFY(!liste.MetsElement(autre.Index(0), u"c"_s));
    QCOMPARE(autre.Texte(0), u"z"_s);
    QVERIFY(liste.MetsElement(liste.Index(0, 1), u"d"_s)); // never filled before
    QCOMPARE(liste.DonneElement(0, 1)->text(), u"d"_s);
}

QTEST_MAIN(tst_WidgetListeEditableDonnees)
#include "tst_WidgetListeEditableDonnees.moc"
