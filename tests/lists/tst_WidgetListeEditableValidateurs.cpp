#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QIntValidator>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// What the validators of the columns make of a finished cell.

class tst_WidgetListeEditableValidateurs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void texteCorrigay();
    void texteAcceptay();
    void positionDuTexte();
    void sansCorrection();
    void correctionVide();
    void celluleVide();
    void colonnes_data();
    void colonnes();
    void celluleSuivanteApresCorrection();
    void texteChangeParLaVerification();
};

namespace {

// Wants capitals, and can make them; nothing is acceptable when it is strict.
class Majuscules : public QValidator
{
public:
    State validate(QString & texte, int & position) const override
    {
        vus.append(u"%1 %2"_s.arg(texte).arg(position));
        return !texte.isEmpty() && texte == texte.toUpper() ? Acceptable : Intermediate;
    }
    void fixup(QString & texte) const override
    {
        ++corrections;
        if (mode == u"upper"_s)
            texte = texte.toUpper();
        else if (mode == u"empty"_s)
            texte.clear();
    }

    QString mode = u"upper"_s;
    mutable QStringList vus;
    mutable int corrections = 0;
};

} // namespace

void tst_WidgetListeEditableValidateurs::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableValidateurs::texteCorrigay()
{
    auto * const validateur = new Majuscules;
    ListeEssai liste(1, true, true, {validateur});
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"ab"_s);
    JournalSignaux journal(liste);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0), u"AB"_s);
    // The first end reports no change; the corrected text brings the second, which does.
    VideLaFile();
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 0,0"_s, u"terminee 0,0"_s, u"modifies"_s}));
    QCOMPARE(validateur->corrections, 1);
}

void tst_WidgetListeEditableValidateurs::texteAcceptay()
{
    auto * const validateur = new Majuscules;
    ListeEssai liste(1, true, true, {validateur});
    liste.Remplis({u"A"_s});
    JournalSignaux journal(liste);
    liste.MetsElement(liste.Index(0), u"B"_s);
    VideLaFile();
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 0,0"_s, u"modifies"_s}));
    QCOMPARE(validateur->corrections, 0);
}

void tst_WidgetListeEditableValidateurs::positionDuTexte()
{
    auto * const validateur = new Majuscules;
    ListeEssai liste(1, true, true, {validateur});
    liste.Remplis({u"a"_s});
    liste.PriseElementModifiay(liste.Index(0), u"a"_s); // at once when called
    QCOMPARE(validateur->vus, QStringList{u"a 0"_s});
    QCOMPARE(liste.Texte(0), u"A"_s);
}

void tst_WidgetListeEditableValidateurs::sansCorrection()
{
    auto * const validateur = new Majuscules;
    validateur->mode = u"none"_s;
    ListeEssai liste(2, true, true, {validateur});
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"ab"_s);
    JournalSignaux journal(liste);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.Texte(0), u"ab"_s);
    VideLaFile();
    // It stays as typed, unreported, and the edit does not move on.
    QCOMPARE(journal.Prends(), QStringList{u"terminee 0,0"_s});
    QCOMPARE(liste.NombreEditeurs(), 0);
    QCOMPARE(liste.DonneNbRangee(), 1);
}

void tst_WidgetListeEditableValidateurs::correctionVide()
{
    auto * const validateur = new Majuscules;
    validateur->mode = u"empty"_s;
    ListeEssai liste(1, true, true, {validateur});
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"ab"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.DonneNbRangee(), 0);
}

// An empty row goes away also where the validator does not accept an empty text.
void tst_WidgetListeEditableValidateurs::celluleVide()
{
    for (Qt::Key const touche : {Qt::Key_Return, Qt::Key_Escape}) {
        auto * const validateur = new QIntValidator(1, 9, nullptr);
        ListeEssai liste(1, true, true, {validateur});
        QVERIFY(liste.Montre());
        liste.Clique(liste.DonneBoutonAjouter());
        liste.Touche(touche);
        QTRY_COMPARE(liste.DonneNbRangee(), 0);
    }
}

void tst_WidgetListeEditableValidateurs::colonnes_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<QString>("texte");
    QTest::newRow("null") << 0 << u"x"_s;
    QTest::newRow("validated") << 1 << u"X"_s;
    QTest::newRow("beyond the validators") << 2 << u"x"_s;
}

void tst_WidgetListeEditableValidateurs::colonnes()
{
    QFETCH(int, colonne);
    QFETCH(QString, texte);
    ListeEssai liste(3, true, true, {nullptr, new Majuscules});
    liste.AjouteElement(CreeValeurs({u"A"_s, u"B"_s, u"C"_s}));
    liste.MetsElement(liste.Index(0, colonne), u"x"_s);
    VideLaFile();
    QCOMPARE(liste.Texte(0, colonne), texte);
}

void tst_WidgetListeEditableValidateurs::celluleSuivanteApresCorrection()
{
    ListeEssai liste(2, true, true, {new Majuscules});
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    QCOMPARE(liste.Texte(0), u"A"_s);
}

// Deliberate: what `validate` itself makes of an acceptable text is not taken over.
void tst_WidgetListeEditableValidateurs::texteChangeParLaVerification()
{
    class Elagueur : public QValidator
    {
    public:
        State validate(QString & texte, int &) const override
        {
            texte = texte.trimmed();
            return Acceptable;
        }
    };
    ListeEssai liste(1, true, true, {new Elagueur});
    liste.Remplis({u"a"_s});
    liste.MetsElement(liste.Index(0), u" b "_s);
    VideLaFile();
    QCOMPARE(liste.Texte(0), u" b "_s);
}

QTEST_MAIN(tst_WidgetListeEditableValidateurs)
#include "tst_WidgetListeEditableValidateurs.moc"
