#include "lists/EssaisListeEditable.h"

#include <QDrag>
#include <QMimeData>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Rows that are dropped in the view of the list; only a drag under way tells its source, which
// takes a window system.

class tst_DorvelTreeViewPrive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void depotDeLaVue_data();
    void depotDeLaVue();
    void depotSousLesRangees();
    void depotDAilleurs();
};

namespace {

constexpr auto kActions = Qt::CopyAction | Qt::MoveAction;

// Drops on the viewport, as the drag does that is under way.
void Depose(QTreeView & vue, QMimeData const & donnees, QPoint const & position)
{
    QWidget * const viewport = vue.viewport();
    QDragEnterEvent entree(position, kActions, &donnees, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &entree);
    QDragMoveEvent passage(position, kActions, &donnees, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &passage);
    QDropEvent depot(position, kActions, &donnees, Qt::LeftButton, Qt::NoModifier);
    depot.setDropAction(Qt::CopyAction);
    QCoreApplication::sendEvent(viewport, &depot);
    QVERIFY(depot.isAccepted());
    QCOMPARE(depot.dropAction(), depot.proposedAction());
}

// Drags a row away from `source` and drops it on the view of `liste`.
void Glisse(QModelIndex const & rangee, QWidget * source, ListeEssai & liste,
            QPoint const & position)
{
    auto * const glissement = new QDrag(source);
    auto * const donnees = rangee.model()->mimeData({rangee});
    glissement->setMimeData(donnees);
    auto const depose = [&] {
        Depose(*liste.PreteVue(), *donnees, position);
        QDrag::cancel();
    };
    QMetaObject::invokeMethod(&liste, depose, Qt::QueuedConnection);
    glissement->exec(kActions, Qt::CopyAction);
}

void Prepare(ListeEssai & liste)
{
    liste.PreteVue()->setAcceptDrops(true);
    liste.PreteVue()->setDragDropMode(QAbstractItemView::DragDrop);
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
}

} // namespace

void tst_DorvelTreeViewPrive::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_DorvelTreeViewPrive::depotDeLaVue_data()
{
    QTest::addColumn<int>("rangee");
    QTest::addColumn<int>("decalage"); // of the position, from the middle of the row to its edges
    QTest::addColumn<QStringList>("textes");
    QTest::newRow("above the first row") << 0 << -1 << QStringList{u"c"_s, u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("below the first row") << 0 << 1 << QStringList{u"a"_s, u"c"_s, u"b"_s, u"c"_s};
    QTest::newRow("above the second row") << 1 << -1 << QStringList{u"a"_s, u"c"_s, u"b"_s, u"c"_s};
    QTest::newRow("on the second row") << 1 << 0 << QStringList{u"a"_s, u"c"_s, u"b"_s, u"c"_s};
    QTest::newRow("below the last row") << 2 << 1 << QStringList{u"a"_s, u"b"_s, u"c"_s, u"c"_s};
}

// The row comes to the level of the rows, never into one.
void tst_DorvelTreeViewPrive::depotDeLaVue()
{
    QFETCH(int, rangee);
    QFETCH(int, decalage);
    QFETCH(QStringList, textes);
    ListeEssai liste;
    Prepare(liste);
    QVERIFY(liste.Montre());
    QRect const place = liste.PreteVue()->visualRect(liste.Index(rangee));
    QPoint position = place.center();
    if (decalage != 0)
        position.setY(decalage < 0 ? place.top() : place.bottom());
    Glisse(liste.Index(2), liste.PreteVue(), liste, position);
    QCOMPARE(liste.Textes(), textes);
    for (int i = 0; i < liste.DonneNbRangee(); ++i)
        QVERIFY(!liste.DonneElement(i, 0)->hasChildren());
}

void tst_DorvelTreeViewPrive::depotSousLesRangees()
{
    ListeEssai liste;
    Prepare(liste);
    QVERIFY(liste.Montre());
    int const bas = liste.PreteVue()->visualRect(liste.Index(2)).bottom();
    Glisse(liste.Index(0), liste.PreteVue(), liste, QPoint(10, bas + 20));
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"a"_s}));
}

// From another view Qt decides: on a row, the dropped one becomes its child.
void tst_DorvelTreeViewPrive::depotDAilleurs()
{
    ListeEssai liste;
    ListeEssai autre;
    Prepare(liste);
    autre.Remplis({u"z"_s});
    QVERIFY(liste.Montre());
    Glisse(autre.Index(0), autre.PreteVue(), liste, liste.Milieu(1));
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(liste.DonneElement(1, 0)->rowCount(), 1);
}

QTEST_MAIN(tst_DorvelTreeViewPrive)
#include "tst_DorvelTreeViewPrive.moc"
