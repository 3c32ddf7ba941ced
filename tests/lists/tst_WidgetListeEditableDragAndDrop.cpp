#include "lists/WidgetListeEditableDragAndDrop.h"

#include "lists/EssaisDragAndDrop.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

#include <memory>

using namespace EssaisDragAndDrop;
using namespace EssaisVariantes;
using namespace Qt::StringLiterals;

// Rows that are put into another order by the mouse.
class tst_WidgetListeEditableDragAndDrop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void deplacement_data();
    void deplacement();
    void surLeMilieuDUneRangee();
    void surUneCelluleJamaisRemplie();
    void dansLeVide();
    void surUneRangeeChoisie();
    void horsDeLaListe();
    void depuisUneAutreListe();
    void donneesEtrangeres();
    void memesItems();
    void itemQuiNeSeGlissePas();
    void listeInactive();
    void receveurQuiVideLaListe();
    void receveurQuiDetruitLaListe();
    void listeSimple();

private:
    std::unique_ptr<Liste> maListe;
};

void tst_WidgetListeEditableDragAndDrop::init()
{
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    maListe->Montre();
}

void tst_WidgetListeEditableDragAndDrop::cleanup()
{
    maListe.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableDragAndDrop::deplacement_data()
{
    QTest::addColumn<QList<int>>("choisies"); // the first is current, and taken by the mouse
    QTest::addColumn<int>("cible");
    QTest::addColumn<bool>("dessous");
    QTest::addColumn<QString>("attendu");
    QTest::addColumn<QList<int>>("places"); // of the moved rows, afterwards
    QTest::addColumn<int>("modifications");
    QTest::newRow("down, above a row")
        << QList<int>{0} << 3 << false << u"bcade"_s << QList<int>{2} << 1;
    QTest::newRow("down, below a row")
        << QList<int>{0} << 3 << true << u"bcdae"_s << QList<int>{3} << 1;
    QTest::newRow("up, above a row")
        << QList<int>{3} << 1 << false << u"adbce"_s << QList<int>{1} << 1;
    QTest::newRow("up, below a row")
        << QList<int>{3} << 0 << true << u"adbce"_s << QList<int>{1} << 1;
    QTest::newRow("to the top") << QList<int>{4} << 0 << false << u"eabcd"_s << QList<int>{0} << 1;
    QTest::newRow("to the end") << QList<int>{0} << 4 << true << u"bcdea"_s << QList<int>{4} << 1;
    QTest::newRow("several keep their order")
        << QList<int>{3, 0, 1} << 4 << true << u"ceabd"_s << QList<int>{2, 3, 4} << 1;
    QTest::newRow("several from both sides")
        << QList<int>{0, 4} << 2 << false << u"baecd"_s << QList<int>{1, 2} << 1;
    QTest::newRow("below the row above, where it is")
        << QList<int>{2} << 1 << true << u"abcde"_s << QList<int>{2} << 0;
    QTest::newRow("above the row below, where it is")
        << QList<int>{2} << 3 << false << u"abcde"_s << QList<int>{2} << 0;
    QTest::newRow("a block where it is")
        << QList<int>{1, 2} << 3 << false << u"abcde"_s << QList<int>{1, 2} << 0;
}

void tst_WidgetListeEditableDragAndDrop::deplacement()
{
    QFETCH(QList<int>, choisies);
    QFETCH(int, cible);
    QFETCH(bool, dessous);
    QFETCH(QString, attendu);
    QFETCH(QList<int>, places);
    QFETCH(int, modifications);
    maListe->Choisis(choisies);
    QString const pris = maListe->Textes().at(choisies.first());
    QSignalSpy const espion(maListe.get(), &Liste::SignalElementsModifiay);
    QSignalSpy const retraits(maListe.get(),
                              SIGNAL(SignalRangeeSupprimay(QList<QStandardItem *>, int)));

    QVERIFY(maListe->Glisse(choisies.first(), maListe->Bord(cible, dessous ? kDessous : kDessus)));
    QCoreApplication::processEvents();

    QCOMPARE(maListe->Textes().join(QString()), attendu);
    QCOMPARE(maListe->Choisies(), places);
    QCOMPARE(maListe->PreteVue()->currentIndex().data().toString(), pris);
    QCOMPARE(espion.count(), modifications);
    QCOMPARE(retraits.count(), 0);
}

void tst_WidgetListeEditableDragAndDrop::surLeMilieuDUneRangee()
{
    maListe->Choisis({0});
    QVERIFY(maListe->Glisse(0, maListe->Milieu(2) - QPoint(0, 2)));
    QCOMPARE(maListe->Textes().join(QString()), u"bacde"_s);
    for (int rangee = 0; rangee < 5; ++rangee)
        QVERIFY(!maListe->DonneElement(rangee, 0)->hasChildren());
}

void tst_WidgetListeEditableDragAndDrop::surUneCelluleJamaisRemplie()
{
    maListe->AjouteElement({new QStandardItem(u"f"_s)}, 5);
    QVERIFY(!maListe->DonneElement(5, 1));
    maListe->Choisis({0});
    QVERIFY(maListe->Glisse(0, maListe->Milieu(5, 1) - QPoint(0, 2)));
    QCOMPARE(maListe->Textes().join(QString()), u"bcdeaf"_s);
    QCOMPARE(maListe->PreteModele()->rowCount(maListe->PreteModele()->index(5, 1)), 0);
}

void tst_WidgetListeEditableDragAndDrop::dansLeVide()
{
    maListe->Choisis({1, 0});
    QPoint const sousLaDerniere = maListe->Bord(4, kDessous) + QPoint(0, 40);
    QVERIFY(!maListe->PreteVue()->indexAt(sousLaDerniere).isValid());
    QVERIFY(maListe->Glisse(1, sousLaDerniere));
    QCOMPARE(maListe->Textes().join(QString()), u"cdeab"_s);
    QCOMPARE(maListe->Choisies(), (QList<int>{3, 4}));
    QCOMPARE(maListe->PreteVue()->currentIndex().row(), 4);
}

void tst_WidgetListeEditableDragAndDrop::surUneRangeeChoisie()
{
    maListe->Choisis({0, 3});
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    QVERIFY(maListe->Glisse(0, maListe->Bord(3, kDessous)));
    QCOMPARE(maListe->Textes().join(QString()), u"abcde"_s);
    QCOMPARE(maListe->Choisies(), (QList<int>{0, 3}));
    QCOMPARE(modifications.count(), 0);
}

void tst_WidgetListeEditableDragAndDrop::horsDeLaListe()
{
    maListe->Choisis({0, 3});
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    DTreeView const & vue = *maListe->PreteVue();
    QPoint const pied(30, vue.viewport()->height() + 20);
    QVERIFY(maListe->rect().contains(vue.viewport()->mapTo(maListe.get(), pied)));
    QVERIFY(maListe->Glisse(0, pied));
    QCOMPARE(maListe->Textes().join(QString()), u"abcde"_s);
    QCOMPARE(maListe->Choisies(), (QList<int>{0, 3}));
    QCOMPARE(modifications.count(), 0);
}

void tst_WidgetListeEditableDragAndDrop::depuisUneAutreListe()
{
    QWidget fenetre;
    auto * const disposition = new QVBoxLayout(&fenetre);
    auto * const source = new Liste;
    auto * const but = new Liste;
    for (Liste * const liste : {source, but}) {
        disposition->addWidget(liste);
        liste->Remplis({u"x"_s, u"y"_s});
    }
    fenetre.resize(400, 400);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    source->Choisis({0});
    DTreeView & vue = *source->PreteVue();
    QPoint const ailleurs =
        vue.viewport()->mapFromGlobal(but->PreteVue()->viewport()->mapToGlobal(but->Milieu(1)));

    QVERIFY(Glissement::Execute(
        vue, source->Milieu(0),
        {[&] { Glissement::Deplace(vue, ailleurs); }, [&] { Glissement::Lache(vue, ailleurs); }}));

    QCOMPARE(source->Textes(), (QStringList{u"x"_s, u"y"_s}));
    QCOMPARE(but->Textes(), (QStringList{u"x"_s, u"y"_s}));
}

void tst_WidgetListeEditableDragAndDrop::donneesEtrangeres()
{
    std::unique_ptr<QMimeData> const donnees(
        maListe->PreteModele()->mimeData({maListe->PreteModele()->index(0, 0)}));
    donnees->setText(u"texte"_s);
    QWidget * const surface = maListe->PreteVue()->viewport();
    QPoint const place = maListe->Bord(3, kDessus);
    maListe->Choisis({0});

    QDragEnterEvent entree(place, Qt::CopyAction | Qt::MoveAction, donnees.get(), Qt::LeftButton,
                           {});
    entree.ignore();
    QCoreApplication::sendEvent(surface, &entree);
    QVERIFY(!entree.isAccepted());
    QDragMoveEvent passage(place, Qt::CopyAction | Qt::MoveAction, donnees.get(), Qt::LeftButton,
                           {});
    passage.ignore();
    QCoreApplication::sendEvent(surface, &passage);
    QVERIFY(!passage.isAccepted());
    QDropEvent depot(place, Qt::CopyAction | Qt::MoveAction, donnees.get(), Qt::LeftButton, {});
    depot.ignore();
    QCoreApplication::sendEvent(surface, &depot);
    QVERIFY(!depot.isAccepted());

    QCOMPARE(maListe->Textes().join(QString()), u"abcde"_s);
}

namespace {

class ItemTemoin : public QStandardItem
{
public:
    using QStandardItem::QStandardItem;
    int type() const override { return UserType + 7; }
};

struct SansFlux
{
    int valeur = 0;
};

} // namespace

void tst_WidgetListeEditableDragAndDrop::memesItems()
{
    maListe = std::make_unique<Liste>(2, false);
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    maListe->Montre();
    auto * const item = new ItemTemoin(u"f"_s);
    item->setData(QVariant::fromValue(SansFlux{12}), Qt::UserRole);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled);
    item->setCheckState(Qt::Checked);
    maListe->AjouteElement({item, nullptr}, 5);
    Qt::ItemFlags const drapeaux = item->flags();
    maListe->Choisis({5});

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"QVariant::save: unable to save"_s));
    QVERIFY(maListe->Glisse(5, maListe->Bord(0, kDessus)));

    QCOMPARE(maListe->DonneElement(0, 0), item);
    QCOMPARE(item->type(), QStandardItem::UserType + 7);
    QCOMPARE(item->data(Qt::UserRole).value<SansFlux>().valeur, 12);
    QCOMPARE(item->flags(), drapeaux);
    QCOMPARE(item->checkState(), Qt::Checked);
}

void tst_WidgetListeEditableDragAndDrop::itemQuiNeSeGlissePas()
{
    maListe->DonneElement(1, 0)->setDragEnabled(false);
    QCoreApplication::processEvents(); // what follows a change of a cell
    maListe->Choisis({0, 1, 2});
    QVERIFY(maListe->Glisse(0, maListe->Bord(4, kDessous)));
    QCOMPARE(maListe->Textes().join(QString()), u"bdeac"_s);
}

void tst_WidgetListeEditableDragAndDrop::listeInactive()
{
    maListe->MetsUtilisateurPeutChangerValeur(false);
    QVERIFY(!maListe->Glisse(0, maListe->Bord(4, kDessous)));
    QCOMPARE(maListe->Textes().join(QString()), u"abcde"_s);
}

void tst_WidgetListeEditableDragAndDrop::receveurQuiVideLaListe()
{
    maListe->Choisis({0, 1});
    connect(maListe.get(), &Liste::SignalElementsModifiay, maListe.get(), [this] {
        while (maListe->RetireRangee(0, false)) {
        }
    });
    QVERIFY(maListe->Glisse(0, maListe->Bord(4, kDessous)));
    QCOMPARE(maListe->DonneNbRangee(), 0);
}

void tst_WidgetListeEditableDragAndDrop::receveurQuiDetruitLaListe()
{
    maListe->Choisis({0, 1});
    connect(maListe.get(), &Liste::SignalElementsModifiay, this, [this] { maListe.reset(); });
    QVERIFY(maListe->Glisse(0, maListe->Bord(4, kDessous)));
    QVERIFY(!maListe);
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

// A host that turns dragging on in a plain list gets copies of its rows, each between two others.
void tst_WidgetListeEditableDragAndDrop::listeSimple()
{
    Ouverte<WidgetListeEditable> liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    liste.PreteVue()->setDragDropMode(QAbstractItemView::InternalMove);
    liste.Montre();
    DTreeView & vue = *liste.PreteVue();
    QStandardItem const * const premier = liste.DonneElement(0, 0);
    liste.Choisis({0});
    QRect const rect = vue.visualRect(vue.model()->index(2, 0));
    QPoint const place(rect.center().x(), rect.bottom());

    QVERIFY(Glissement::Execute(
        vue, liste.Milieu(0),
        {[&] { Glissement::Deplace(vue, place); }, [&] { Glissement::Lache(vue, place); }}));

    QCOMPARE(liste.Textes().join(QString()), u"bcad"_s);
    QCOMPARE(liste.Textes(1).last(), u"d2"_s);
    QVERIFY(liste.DonneElement(2, 0) != premier);
}

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts"); // which leaves drags to Qt
    QApplication const application(nombre, arguments);
    tst_WidgetListeEditableDragAndDrop essai;
    return QTest::qExec(&essai, nombre, arguments);
}

#include "tst_WidgetListeEditableDragAndDrop.moc"
