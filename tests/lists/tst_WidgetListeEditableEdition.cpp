#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QStyledItemDelegate>

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
    void ajoutPendantLaSecondeCellule();
    void celluleSuivante();
    void celluleSuivanteParTab();
    void celluleSuivanteRemplie();
    void echapDansLaSecondeCellule();
    void secondeCelluleVide();
    void colonneCachee();
    void celluleNonModifiable();
    void celluleVidee();
    void memeTexte();
    void effacerDansLEditeur_data();
    void effacerDansLEditeur();
    void texteModifiayParLaSouris();
    void clicAilleurs();
    void nonEditable();
    void invites();
    void inviteDeLaColonneCourante();
    void champEtranger();
    void editeurInitialisayDeuxFois();
    void nouvelEditeur();
    void autreGenreDEditeur();
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
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 1,0"_s, u"modifies"_s, u"supprimee 1 "_s}));
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
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 0,0"_s, u"modifies"_s, u"supprimee 0 "_s}));
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

// The editor of the second cell is not that of the current cell, which is still the first.
void tst_WidgetListeEditableEdition::ajoutPendantLaSecondeCellule()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Return);
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

void tst_WidgetListeEditableEdition::celluleSuivante()
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

void tst_WidgetListeEditableEdition::celluleSuivanteParTab()
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

void tst_WidgetListeEditableEdition::celluleSuivanteRemplie()
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
void tst_WidgetListeEditableEdition::echapDansLaSecondeCellule()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Return);
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
void tst_WidgetListeEditableEdition::secondeCelluleVide()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"a"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(0, 1));
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(liste.NombreEditeurs(), 0);
}

void tst_WidgetListeEditableEdition::colonneCachee()
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

void tst_WidgetListeEditableEdition::celluleNonModifiable()
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

void tst_WidgetListeEditableEdition::effacerDansLEditeur_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<QString>("texte");
    QTest::newRow("delete") << Qt::Key_Delete << u"b"_s;
    QTest::newRow("backspace") << Qt::Key_Backspace << u"a"_s;
}

void tst_WidgetListeEditableEdition::effacerDansLEditeur()
{
    QFETCH(Qt::Key, touche);
    QFETCH(QString, texte);
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"ab"_s});
    liste.DoubleCliqueCellule(0);
    liste.Touche(touche == Qt::Key_Delete ? Qt::Key_Home : Qt::Key_End);
    JournalSignaux journal(liste);
    liste.Touche(touche);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList{u"edition "_s + texte});
    QCOMPARE(liste.Editeur()->text(), texte);
    // A release that reaches the view all the same, as that of a key held down may.
    QTest::keyRelease(liste.PreteVue(), touche);
    QCOMPARE(liste.DonneNbRangee(), 1);
    QCOMPARE(journal.Prends(), QStringList());
}

void tst_WidgetListeEditableEdition::texteModifiayParLaSouris()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s});
    liste.DoubleCliqueCellule(0);
    liste.Tape(u"x"_s);
    JournalSignaux journal(liste);
    liste.CliqueCellule(1);
    QCOMPARE(liste.Textes(), (QStringList{u"x"_s, u"b"_s}));
    VideLaFile();
    QCOMPARE(liste.NombreEditeurs(), 0);
    QCOMPARE(journal.Prends(), (QStringList{u"terminee 0,0"_s, u"modifies"_s}));
}

void tst_WidgetListeEditableEdition::clicAilleurs()
{
    QWidget fenetre;
    auto * const autre = new QLineEdit(&fenetre);
    autre->setGeometry(0, 250, 100, 25);
    auto * const liste = new ListeEssai(1, true, true, {}, false, &fenetre);
    liste->resize(300, 200);
    fenetre.resize(320, 300);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    liste->Clique(liste->DonneBoutonAjouter());
    liste->Tape(u"a"_s);
    QTest::mouseClick(autre, Qt::LeftButton);
    QCOMPARE(liste->Textes(), QStringList{u"a"_s});
    QCOMPARE(liste->NombreEditeurs(), 0);
    liste->Clique(liste->DonneBoutonAjouter());
    QTest::mouseClick(autre, Qt::LeftButton);
    QTRY_COMPARE(liste->Textes(), QStringList{u"a"_s});
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

void tst_WidgetListeEditableEdition::invites()
{
    ListeEssai liste;
    liste.invites = {u"Un mot de la liste"_s};
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    QLineEdit const & editeur = *liste.Editeur();
    QCOMPARE(editeur.placeholderText(), liste.invites[0]);
    QCOMPARE(editeur.minimumWidth(),
             liste.fontMetrics().boundingRect(liste.invites[0]).width() + 10);
    ListeEssai sansInvite;
    QVERIFY(sansInvite.Montre());
    sansInvite.Clique(sansInvite.DonneBoutonAjouter());
    QCOMPARE(sansInvite.Editeur()->placeholderText(), QString());
    QCOMPARE(sansInvite.Editeur()->minimumWidth(), 10);
}

void tst_WidgetListeEditableEdition::inviteDeLaColonneCourante()
{
    ListeEssai liste(2);
    liste.invites = {u"premier"_s, u"second"_s};
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s}));
    liste.DoubleCliqueCellule(0, 1);
    QCOMPARE(liste.Editeur()->placeholderText(), u"second"_s);
    liste.Touche(Qt::Key_Escape);
    QTRY_COMPARE(liste.NombreEditeurs(), 0);
    // Deliberate: an edit that moves on by itself leaves the current cell behind.
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"c"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(1, 1));
    QCOMPARE(liste.Editeur()->placeholderText(), u"premier"_s);
}

void tst_WidgetListeEditableEdition::champEtranger()
{
    QWidget fenetre;
    auto * const champ = new QLineEdit(u"texte"_s, &fenetre);
    champ->setPlaceholderText(u"a moi"_s);
    auto * const liste = new ListeEssai(1, true, true, {}, false, &fenetre);
    liste->invites = {u"invite"_s};
    auto * const champDuPied = new QLineEdit;
    liste->DonneLayoutPied()->addWidget(champDuPied);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    JournalSignaux journal(*liste);
    for (QLineEdit * const etranger : {champ, champDuPied}) {
        int const largeur = etranger->minimumWidth();
        QString const invite = etranger->placeholderText();
        liste->setFocus();
        etranger->setFocus();
        QTest::keyClick(etranger, 'z');
        QCOMPARE(etranger->placeholderText(), invite);
        QCOMPARE(etranger->minimumWidth(), largeur);
    }
    QVERIFY(liste->editeursRecus.isEmpty());
    QVERIFY(liste->PreteEditeur() == nullptr);
    QCOMPARE(journal.Prends(), QStringList());
}

void tst_WidgetListeEditableEdition::editeurInitialisayDeuxFois()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    QVERIFY(liste.editeursRecus.size() > 1); // by the view's loss of focus and by the button
    QFocusEvent perte(QEvent::FocusOut);
    QCoreApplication::sendEvent(liste.DonneBoutonRetirer(), &perte);
    JournalSignaux journal(liste);
    liste.Tape(u"a"_s);
    QCOMPARE(journal.Prends(), QStringList{u"edition a"_s});
}

void tst_WidgetListeEditableEdition::nouvelEditeur()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s});
    liste.PreteVue()->edit(liste.Index(0));
    QPointer<QLineEdit> const premier = liste.Editeur();
    QCOMPARE(liste.PreteEditeur(), premier);
    liste.Touche(Qt::Key_Escape);
    liste.DoubleCliqueCellule(1);
    QPointer<QLineEdit> const second = liste.Editeur();
    QVERIFY(second && second != premier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(!premier);
    QCOMPARE(liste.PreteEditeur(), second.data());
}

void tst_WidgetListeEditableEdition::autreGenreDEditeur()
{
    class Deleguay : public QStyledItemDelegate
    {
    public:
        QWidget * createEditor(QWidget * parent, QStyleOptionViewItem const &,
                               QModelIndex const &) const override
        {
            auto * const combo = new QComboBox(parent);
            combo->addItems({u"un"_s, u"deux"_s});
            return combo;
        }
    };
    ListeEssai liste;
    Deleguay deleguay;
    liste.MetsDeleguaySurColonne(0, &deleguay);
    QVERIFY(liste.Montre());
    liste.Clique(liste.DonneBoutonAjouter());
    auto * const combo = qobject_cast<QComboBox *>(liste.PreteVue()->indexWidget(liste.Index(0)));
    QVERIFY(combo != nullptr);
    QVERIFY(liste.PreteEditeur() == nullptr);
    QVERIFY(liste.editeursRecus.isEmpty());
    combo->setCurrentIndex(1);
    liste.DonneBoutonAjouter()->setFocus();
    QTRY_COMPARE(liste.Texte(0), u"deux"_s);
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
