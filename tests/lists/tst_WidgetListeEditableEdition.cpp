#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Editing by keys and mouse, from the add button to the last cell of the row.

class tst_WidgetListeEditableEdition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ajoutTapeValide();
    void ajoutPuisEchap();
    void ajoutPuisVide();
    void ajoutDeuxFois_data();
    void ajoutDeuxFois();
    void ajoutEnTete();
    void ajoutApresSelection();
    void celluleVidee();
    void memeTexte();
    void nonEditable();
    void nonEditableSansItem();
    void suiteDepuisUnChampDeLHote();
    void modificationParLeCode();
    void plageModifiee();
    void echapSansEdition();
};

void tst_WidgetListeEditableEdition::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableEdition::ajoutTapeValide()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    JournalSignaux journal(liste);
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(journal.Prends(), QStringList{u"ajout"_s});
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
    QCOMPARE(liste.CelluleEditee(), liste.Index(0));
    QCOMPARE(liste.PreteEditeur(), liste.Editeur());
    liste.Tape(u"ab"_s);
    QCOMPARE(journal.Prends(), (QStringList{u"edition a"_s, u"edition ab"_s}));
    QPointer<QLineEdit> const editeur = liste.Editeur();
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0), u"ab"_s);
    VideLaFile();
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 0,0"_s, u"modifies"_s}));
    QCOMPARE(liste.NombreEditeurs(), 0);
    QTRY_VERIFY(!editeur);
    QVERIFY(liste.PreteEditeur() == nullptr);
    QCOMPARE(QApplication::focusWidget(), liste.PreteVue());
}

void tst_WidgetListeEditableEdition::ajoutPuisEchap()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s});
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(liste.DonneNbRangee(), 2);
    JournalSignaux journal(liste);
    QStandardItem const * const item = liste.DonneElement(1, 0);
    QSignalSpy const suppressions(&liste, &WidgetListeEditable::SignalRangeeSupprimay);
    liste.Touche(Qt::Key_Escape);
    QTRY_COMPARE(liste.Textes(), QStringList{u"a"_s});
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 1,0"_s, u"supprimee 1 "_s, u"modifies"_s}));
    QCOMPARE(suppressions.at(0).at(0).value<QList<QStandardItem *>>().at(0), item);
    QCOMPARE(liste.NombreEditeurs(), 0);
}

void tst_WidgetListeEditableEdition::ajoutPuisVide()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    JournalSignaux journal(liste);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 0,0"_s, u"supprimee 0 "_s, u"modifies"_s}));
    QVERIFY(!liste.DonneBoutonRetirer()->isEnabled());
    QCOMPARE(liste.NombreEditeurs(), 0);
}

void tst_WidgetListeEditableEdition::ajoutDeuxFois_data()
{
    QTest::addColumn<int>("colonnes");
    QTest::addColumn<bool>("enFin");
    QTest::newRow("one column, at the end") << 1 << true;
    QTest::newRow("one column, at the top") << 1 << false;
    QTest::newRow("three columns, at the end") << 3 << true;
    QTest::newRow("three columns, at the top") << 3 << false;
}

// The first of the two, left empty, goes away; the second keeps its editor.
void tst_WidgetListeEditableEdition::ajoutDeuxFois()
{
    QFETCH(int, colonnes);
    QFETCH(bool, enFin);
    ListeEssai liste(colonnes);
    liste.MetsAjouteEnFin(enFin);
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s});
    liste.Clique(liste.DonneBoutonAjouter());
    VideLaFile();
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(liste.DonneNbRangee(), 4);
    QTRY_COMPARE(liste.DonneNbRangee(), 3);
    VideLaFile();
    QCOMPARE(liste.DonneNbRangee(), 3);
    QCOMPARE(liste.CelluleEditee(), liste.Index(enFin ? 2 : 0));
    QCOMPARE(liste.NombreEditeurs(), 1);
    liste.Tape(u"c"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(enFin ? 2 : 0), u"c"_s);
}

void tst_WidgetListeEditableEdition::ajoutEnTete()
{
    ListeEssai liste;
    liste.MetsAjouteEnFin(false);
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s});
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(liste.Textes(), (QStringList{QString(), u"a"_s, u"b"_s}));
    QCOMPARE(liste.CelluleEditee(), liste.Index(0));
}

void tst_WidgetListeEditableEdition::ajoutApresSelection()
{
    ListeEssai liste(1, true, true, {}, true);
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.CliqueCellule(0);
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(liste.CelluleEditee(), liste.Index(1));
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, QString(), u"b"_s, u"c"_s}));
}

void tst_WidgetListeEditableEdition::celluleVidee()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"abc"_s});
    JournalSignaux journal(liste);
    liste.DoubleCliqueCellule(0);
    QCOMPARE(liste.Editeur()->text(), u"abc"_s);
    liste.Touche(Qt::Key_Delete); // the whole text is selected
    QCOMPARE(liste.Editeur()->text(), QString());
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.NombreEditeurs(), 0);
    VideLaFile();
    QCOMPARE(liste.Textes(), QStringList{u"abc"_s});
    QCOMPARE(journal.Prends(), QStringList{u"edition "_s});
}

void tst_WidgetListeEditableEdition::memeTexte()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"abc"_s});
    JournalSignaux journal(liste);
    liste.DoubleCliqueCellule(0);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.NombreEditeurs(), 0);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList());
}

void tst_WidgetListeEditableEdition::nonEditable()
{
    ListeEssai liste(1, false);
    QVERIFY(liste.Montre());
    JournalSignaux journal(liste);
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(liste.DonneNbRangee(), 1);
    QVERIFY(liste.Editeur() == nullptr);
    QCOMPARE(liste.PreteVue()->currentIndex(), liste.Index(0));
    QCOMPARE(journal.Prends(), QStringList{u"ajout"_s});
    liste.DoubleCliqueCellule(0);
    QCOMPARE(liste.NombreEditeurs(), 0);
}

// Rows of the add button have one cell filled; the others have no item that could refuse.
void tst_WidgetListeEditableEdition::nonEditableSansItem()
{
    ListeEssai liste(2, false);
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    QVERIFY(liste.DonneElement(0, 1) == nullptr);
    liste.DoubleCliqueCellule(0, 1);
    QCOMPARE(liste.NombreEditeurs(), 0);
}

// The edit goes on to the next cell while a field of the host's has the focus.
void tst_WidgetListeEditableEdition::suiteDepuisUnChampDeLHote()
{
    QWidget fenetre;
    auto * const champ = new QLineEdit(&fenetre);
    auto * const liste = new ListeEssai(2, true, true, {}, false, &fenetre);
    liste->invites = {u"premier"_s, u"second"_s};
    liste->Remplis({u"a"_s});
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    champ->setFocus();
    liste->MetsElement(liste->Index(0), u"b"_s);
    QTRY_VERIFY(liste->PreteEditeur() != nullptr);
    QCOMPARE(liste->PreteEditeur()->placeholderText(), u"premier"_s);
    JournalSignaux journal(*liste);
    QTest::keyClick(liste->PreteEditeur(), 'x');
    QCOMPARE(journal.Prends(), QStringList{u"edition x"_s});
}

// A change by the host ends an edit as the user's does.
void tst_WidgetListeEditableEdition::modificationParLeCode()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, QString()}));
    JournalSignaux journal(liste);
    QVERIFY(liste.MetsElement(liste.Index(0), u"b"_s));
    QCOMPARE(journal.Prends(), QStringList{u"terminee 0,0"_s}); // the rest comes later
    QCOMPARE(liste.NombreEditeurs(), 0);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList{u"modifies"_s});
    QCOMPARE(liste.CelluleEditee(), liste.Index(0, 1));
}

void tst_WidgetListeEditableEdition::plageModifiee()
{
    ListeEssai liste(2);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s}));
    JournalSignaux journal(liste);
    Q_EMIT liste.PreteModele()->dataChanged(liste.Index(0, 0), liste.Index(0, 1));
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList());
    Q_EMIT liste.PreteModele()->dataChanged(liste.Index(0, 1), liste.Index(0, 1));
    QCOMPARE(journal.Prends(), QStringList{u"terminee 0,1"_s});
}

void tst_WidgetListeEditableEdition::echapSansEdition()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s});
    liste.setFocus();
    JournalSignaux journal(liste);
    liste.Touche(Qt::Key_Escape); // nothing is selected
    QCOMPARE(journal.Prends(), QStringList());
    liste.SelectionneRangees({1, 0});
    liste.Touche(Qt::Key_Escape);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList{u"terminee 1,0 b"_s});
    QCOMPARE(liste.DonneNbRangee(), 2);
}

QTEST_MAIN(tst_WidgetListeEditableEdition)
#include "tst_WidgetListeEditableEdition.moc"
