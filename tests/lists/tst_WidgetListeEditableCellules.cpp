#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// From one cell of the row to the next.

class tst_WidgetListeEditableCellules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ajoutPendantLaSecondeCellule();
    void celluleSuivante();
    void celluleSuivanteParTab();
    void celluleSuivanteRemplie();
    void echapDansLaSecondeCellule();
    void secondeCelluleVide();
    void colonneCachee();
    void celluleNonModifiable();
};

namespace {

// Adds a row and fills its first cell; the edit then goes on to the second.
void AjouteJusquALaSeconde(ListeEssai & liste)
{
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Return);
}

} // namespace

void tst_WidgetListeEditableCellules::cleanup()
{
    QVERIFY(ToutEstParti());
}

// The editor of the second cell is not that of the current cell, which is still the first.
void tst_WidgetListeEditableCellules::ajoutPendantLaSecondeCellule()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    AjouteJusquALaSeconde(liste);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    liste.Tape(u"b"_s);
    liste.Clique(liste.DonneBoutonAjouter());
    QCOMPARE(liste.CelluleEditee(), liste.Index(1));
    QCOMPARE(liste.NombreEditeurs(), 1);
    VideLaFile();
    QCOMPARE(liste.DonneNbRangee(), 2);
    QCOMPARE(liste.Texte(0, 0), u"a"_s);
    QCOMPARE(liste.Texte(0, 1), u"b"_s);
    QCOMPARE(liste.NombreEditeurs(), 1);
}

void tst_WidgetListeEditableCellules::celluleSuivante()
{
    ListeEssai liste(3);
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    for (int colonne = 0; colonne < 3; ++colonne) {
        QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, colonne));
        QCOMPARE(liste.NombreEditeurs(), 1);
        QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
        liste.Tape(u"v%1"_s.arg(colonne));
        liste.Touche(Qt::Key_Return);
        QTRY_COMPARE(liste.Texte(0, colonne), u"v%1"_s.arg(colonne));
        // Deliberate: the current cell stays behind the edit by one.
        VideLaFile();
        QCOMPARE(liste.PreteVue()->currentIndex(), liste.Index(0, std::min(colonne, 1)));
    }
    QCOMPARE(liste.NombreEditeurs(), 0);
    QCOMPARE(liste.DonneNbRangee(), 1);
}

void tst_WidgetListeEditableCellules::celluleSuivanteParTab()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"x"_s, u"y"_s}));
    liste.MetsAjouteEnFin(false);
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Tab);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    QCOMPARE(liste.NombreEditeurs(), 1);
    liste.Tape(u"b"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0, 1), u"b"_s);
    // The last row, where Qt opens the same cell again.
    liste.MetsAjouteEnFin(true);
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"c"_s);
    liste.Touche(Qt::Key_Tab);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(2, 1));
    QCOMPARE(liste.NombreEditeurs(), 1);
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"x"_s, u"c"_s}));
}

void tst_WidgetListeEditableCellules::celluleSuivanteRemplie()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s}));
    liste.DoubleCliqueCellule(0);
    QCOMPARE(liste.CelluleEditee(), liste.Index(0));
    liste.Tape(u"c"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0), u"c"_s);
    VideLaFile();
    QCOMPARE(liste.NombreEditeurs(), 0);
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
}

// Deliberate: Escape ends the edit of the first selected cell, and the next cell is still empty.
void tst_WidgetListeEditableCellules::echapDansLaSecondeCellule()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    AjouteJusquALaSeconde(liste);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    QLineEdit const * const editeur = liste.Editeur();
    JournalSignaux journal(liste);
    liste.Touche(Qt::Key_Escape);
    QTRY_COMPARE(journal.lignes, QStringList{u"terminee 0,0 a"_s});
    VideLaFile();
    QCOMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    QVERIFY(liste.Editeur() != editeur);
    QCOMPARE(liste.Textes(), QStringList{u"a"_s});
    QCOMPARE(journal.Prends(), QStringList{u"terminee 0,0 a"_s}); // it has the same text
}

// Deliberate: an empty cell takes its row with it, whatever the other cells hold.
void tst_WidgetListeEditableCellules::secondeCelluleVide()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    AjouteJusquALaSeconde(liste);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(liste.NombreEditeurs(), 0);
}

void tst_WidgetListeEditableCellules::colonneCachee()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.ToggleAffichageDeColonne(1, true);
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0), u"a"_s);
    VideLaFile();
    QCOMPARE(liste.NombreEditeurs(), 0);
    QVERIFY(liste.Editeur() == nullptr);
}

void tst_WidgetListeEditableCellules::celluleNonModifiable()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, QString()}));
    {
        QSignalBlocker const silence(liste.PreteModele()); // it would be an edit that ends
        liste.DonneElement(0, 1)->setEditable(false);
    }
    liste.DoubleCliqueCellule(0);
    liste.Tape(u"b"_s);
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0), u"b"_s);
    VideLaFile();
    QCOMPARE(liste.NombreEditeurs(), 0);
}

QTEST_MAIN(tst_WidgetListeEditableCellules)
#include "tst_WidgetListeEditableCellules.moc"
