#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QStyledItemDelegate>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// The open editor: its keys, its placeholder, and what is not one.

class tst_WidgetListeEditableEditeur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void effacerDansLEditeur_data();
    void effacerDansLEditeur();
    void texteModifiayParLaSouris();
    void clicAilleurs();
    void invites();
    void inviteDeLaColonneCourante();
    void champEtranger();
    void editeurInitialisayDeuxFois();
    void nouvelEditeur();
    void autreGenreDEditeur();
};

void tst_WidgetListeEditableEditeur::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableEditeur::effacerDansLEditeur_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<QString>("texte");
    QTest::newRow("delete") << Qt::Key_Delete << u"b"_s;
    QTest::newRow("backspace") << Qt::Key_Backspace << u"a"_s;
}

void tst_WidgetListeEditableEditeur::effacerDansLEditeur()
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

void tst_WidgetListeEditableEditeur::texteModifiayParLaSouris()
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

void tst_WidgetListeEditableEditeur::clicAilleurs()
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

void tst_WidgetListeEditableEditeur::invites()
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

void tst_WidgetListeEditableEditeur::inviteDeLaColonneCourante()
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

void tst_WidgetListeEditableEditeur::champEtranger()
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

void tst_WidgetListeEditableEditeur::editeurInitialisayDeuxFois()
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

void tst_WidgetListeEditableEditeur::nouvelEditeur()
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

void tst_WidgetListeEditableEditeur::autreGenreDEditeur()
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

QTEST_MAIN(tst_WidgetListeEditableEditeur)
#include "tst_WidgetListeEditableEditeur.moc"
