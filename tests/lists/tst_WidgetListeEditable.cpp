#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// The list as it is built.

class tst_WidgetListeEditable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void cadre();
    void vueEtModele();
    void entete();
    void bouton_data();
    void bouton();
    void pied_data();
    void pied();
    void valeursDeDepart();
    void reglagesDesSousClasses();
    void nombreDeColonnes_data();
    void nombreDeColonnes();
    void validateursDetruits();
    void validateurPartagay();
    void validateurDejaDetruit();
    void ordreDeTabulation();
    void nomAccessible();
    void placeholderEtItemParDefaut();
};

void tst_WidgetListeEditable::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditable::cadre()
{
    QWidget parent;
    auto * const liste = new WidgetListeEditable(&parent, 2, true, true, {}, false);
    QCOMPARE(liste->parentWidget(), &parent);
    QCOMPARE(liste->focusPolicy(), Qt::NoFocus);
    auto * const vue = liste->findChild<DTreeView *>();
    QVERIFY(vue != nullptr);
    QCOMPARE(liste->focusProxy(), vue);
    QVERIFY(vue->focusPolicy() != Qt::NoFocus);
    auto * const disposition = qobject_cast<QVBoxLayout *>(liste->layout());
    QVERIFY(disposition != nullptr);
    QCOMPARE(disposition->count(), 2);
    QCOMPARE(disposition->itemAt(0)->widget(), vue);
    auto * const pied = qobject_cast<QFrame *>(disposition->itemAt(1)->widget());
    QVERIFY(pied != nullptr);
    QCOMPARE(pied->parentWidget(), liste);
    QCOMPARE(pied->layout(), liste->DonneLayoutPied());
}

void tst_WidgetListeEditable::vueEtModele()
{
    ListeEssai liste(3);
    DTreeView const & vue = *liste.PreteVue();
    QCOMPARE(vue.parentWidget(), &liste);
    QCOMPARE(vue.model(), liste.PreteModele());
    QCOMPARE(liste.PreteModele()->QObject::parent(), &vue);
    QVERIFY(qobject_cast<QStyledItemDelegate *>(vue.itemDelegate()) != nullptr);
    QCOMPARE(vue.itemDelegate()->parent(), &liste);
    QCOMPARE(vue.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(vue.selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(!vue.rootIsDecorated());
    QVERIFY(!vue.allColumnsShowFocus());
    QCOMPARE(vue.indentation(), 0);
    QVERIFY(!vue.isSortingEnabled());
    QCOMPARE(vue.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(vue.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(vue.contextMenuPolicy(), Qt::CustomContextMenu);
}

void tst_WidgetListeEditable::entete()
{
    ListeEssai const liste(2);
    QHeaderView const * const entete = liste.DonneEntete();
    QCOMPARE(entete, liste.PreteVue()->header());
    QCOMPARE(entete->orientation(), Qt::Horizontal);
    QCOMPARE(entete->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(entete->isSortIndicatorShown());
    QVERIFY(entete->sectionsClickable());
    QCOMPARE(entete->sortIndicatorSection(), 0);
    QCOMPARE(entete->sortIndicatorOrder(), Qt::AscendingOrder);
    // None is left from the view's own.
    QCOMPARE(liste.findChildren<QHeaderView *>().size(), 1);
}

void tst_WidgetListeEditable::bouton_data()
{
    QTest::addColumn<bool>("ajouter");
    QTest::addColumn<QString>("nom");
    QTest::newRow("add") << true << u"Ajouter"_s;
    QTest::newRow("remove") << false << u"Retirer"_s;
}

void tst_WidgetListeEditable::bouton()
{
    QFETCH(bool, ajouter);
    QFETCH(QString, nom);
    ListeEssai const liste;
    QToolButton const & bouton =
        ajouter ? *liste.DonneBoutonAjouter() : *liste.DonneBoutonRetirer();
    QCOMPARE(bouton.parentWidget(), liste.DonneLayoutPied()->parentWidget());
    QVERIFY(bouton.autoRaise());
    QCOMPARE(bouton.minimumSize(), QSize(24, 24));
    QCOMPARE(bouton.maximumSize(), QSize(24, 24));
    QCOMPARE(bouton.accessibleName(), nom);
    QCOMPARE(bouton.toolTip(), nom);
    QCOMPARE(bouton.isEnabled(), ajouter); // nothing is selected
    // The pictures are the application's, which has none here.
    QVERIFY(bouton.icon().availableSizes().isEmpty());
    QVERIFY(bouton.text().isEmpty());
}

void tst_WidgetListeEditable::pied_data()
{
    QTest::addColumn<bool>("avecBoutonAjouter");
    QTest::newRow("with add button") << true;
    QTest::newRow("without") << false;
}

void tst_WidgetListeEditable::pied()
{
    QFETCH(bool, avecBoutonAjouter);
    ListeEssai const liste(1, true, avecBoutonAjouter);
    QCOMPARE(liste.DonneBoutonAjouter() != nullptr, avecBoutonAjouter);
    QHBoxLayout const & pied = *liste.DonneLayoutPied();
    int place = 0;
    if (avecBoutonAjouter)
        QCOMPARE(pied.itemAt(place++)->widget(), liste.DonneBoutonAjouter());
    QVERIFY(pied.itemAt(place)->spacerItem() != nullptr);
    QCOMPARE(pied.itemAt(place++)->sizeHint().width(), 2);
    QCOMPARE(pied.itemAt(place++)->widget(), liste.DonneBoutonRetirer());
    QVERIFY(pied.itemAt(place)->spacerItem() != nullptr);
    QVERIFY(pied.itemAt(place)->expandingDirections() & Qt::Horizontal);
    QCOMPARE(pied.count(), place + 1);
}

void tst_WidgetListeEditable::valeursDeDepart()
{
    ListeEssai const liste(2, true, true, {}, false);
    QVERIFY(liste.DonneAjouteEnFin());
    QVERIFY(!liste.DonneInsereApresSelection());
    QVERIFY(liste.DonneEditable());
    QCOMPARE(liste.DonneTailleIcone(), QSize(11, 11));
    QVERIFY(liste.DonneItemsParDefaut().isEmpty());
    QVERIFY(liste.PreteEditeur() == nullptr);
    QCOMPARE(liste.DonneNbRangee(), 0);
    ListeEssai const autre(2, false, true, {}, true);
    QVERIFY(!autre.DonneEditable());
    QVERIFY(autre.DonneInsereApresSelection());
}

void tst_WidgetListeEditable::reglagesDesSousClasses()
{
    ListeEssai liste;
    liste.MetsAjouteEnFin(false);
    QVERIFY(!liste.DonneAjouteEnFin());
    liste.MetsTailleIcone(QSize(16, 12));
    QCOMPARE(liste.DonneTailleIcone(), QSize(16, 12));
}

void tst_WidgetListeEditable::nombreDeColonnes_data()
{
    QTest::addColumn<int>("colonnes");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("many") << 40;
}

void tst_WidgetListeEditable::nombreDeColonnes()
{
    QFETCH(int, colonnes);
    ListeEssai liste(colonnes);
    QCOMPARE(liste.PreteModele()->columnCount(), colonnes);
    QCOMPARE(liste.PreteModele()->rowCount(), 0);
    QVERIFY(liste.Montre());
}

void tst_WidgetListeEditable::validateursDetruits()
{
    QPointer<QValidator> const premier = new QIntValidator;
    QPointer<QValidator> const second = new QIntValidator;
    {
        ListeEssai const liste(3, true, true, {premier, nullptr, second});
        QVERIFY(premier);
    }
    QVERIFY(!premier);
    QVERIFY(!second);
}

void tst_WidgetListeEditable::validateurPartagay()
{
    QPointer<QValidator> const validateur = new QIntValidator;
    {
        ListeEssai const liste(2, true, true, {validateur, validateur});
    }
    QVERIFY(!validateur);
}

void tst_WidgetListeEditable::validateurDejaDetruit()
{
    auto * const validateur = new QIntValidator;
    ListeEssai liste(1, true, true, {validateur});
    delete validateur;
    liste.Remplis({u"texte"_s});
    liste.PriseElementModifiay(liste.Index(0), QString());
    QCOMPARE(liste.Texte(0), u"texte"_s);
}

void tst_WidgetListeEditable::ordreDeTabulation()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s});
    liste.SelectionneRangees({0}); // the remove button takes part
    liste.setFocus();
    QCOMPARE(QApplication::focusWidget(), liste.PreteVue());
    liste.PreteVue()->setTabKeyNavigation(false);
    liste.Touche(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), liste.DonneBoutonAjouter());
    liste.Touche(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), liste.DonneBoutonRetirer());
}

void tst_WidgetListeEditable::nomAccessible()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.DonneBoutonAjouter()->setFocus();
    liste.setAccessibleName(u"Mots"_s);
    liste.setFocus();
    QCOMPARE(liste.PreteVue()->accessibleName(), u"Mots"_s);
    liste.DonneBoutonAjouter()->setFocus();
    liste.PreteVue()->setAccessibleName(u"Autre"_s);
    liste.setAccessibleName(QString());
    liste.setFocus();
    QCOMPARE(liste.PreteVue()->accessibleName(), u"Autre"_s);
}

void tst_WidgetListeEditable::placeholderEtItemParDefaut()
{
    WidgetListeEditable liste(nullptr, 2, false, true, {}, false);
    liste.DonneBoutonAjouter()->click();
    QCOMPARE(liste.DonneNbRangee(), 1);
    QVERIFY(!liste.DonneElement(0, 0)->isEditable());
    QVERIFY(liste.DonneElement(0, 0)->text().isEmpty());
    QVERIFY(liste.DonneElement(0, 1) == nullptr); // without templates one column is filled
}

QTEST_MAIN(tst_WidgetListeEditable)
#include "tst_WidgetListeEditable.moc"
