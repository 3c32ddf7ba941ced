// tests/controls/tst_DTableViewEvenements.cpp
#include "controls/EssaisTable.h"

#include <memory>
#include <utility>
#include <vector>

using namespace EssaisTable;

namespace {

class TableTemoin : public DTableView
{
public:
    using DTableView::mouseDoubleClickEvent;
};

/// What the viewport receives of the mouse.
class Temoin : public QObject
{
public:
    explicit Temoin(QWidget * widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() >= QEvent::MouseButtonPress &&
            evenement->type() <= QEvent::MouseButtonDblClick)
            mesEvenements.push_back(
                std::unique_ptr<QEvent>(static_cast<QMouseEvent *>(evenement)->clone()));
        return false;
    }

    QList<QEvent::Type> DonneTypes() const
    {
        QList<QEvent::Type> types;
        for (auto const & evenement : mesEvenements)
            types.append(evenement->type());
        return types;
    }

    QMouseEvent const & Donne(int rang) const
    {
        return static_cast<QMouseEvent const &>(*mesEvenements[static_cast<std::size_t>(rang)]);
    }

private:
    std::vector<std::unique_ptr<QEvent>> mesEvenements;
};

/// What the items receive of the mouse.
class DelegueTemoin : public QStyledItemDelegate
{
public:
    struct Recu
    {
        QEvent::Type type;
        Qt::MouseButton bouton;
        int rangee;

        bool operator==(Recu const &) const = default;
    };

    bool editorEvent(QEvent * evenement, QAbstractItemModel * modele,
                     QStyleOptionViewItem const & option, QModelIndex const & index) override
    {
        auto const type = evenement->type();
        if (type >= QEvent::MouseButtonPress && type <= QEvent::MouseButtonDblClick)
            mesRecus.append({type, static_cast<QMouseEvent *>(evenement)->button(), index.row()});
        return QStyledItemDelegate::editorEvent(evenement, modele, option, index);
    }

    QList<Recu> mesRecus;
};

using Recus = QList<DelegueTemoin::Recu>;

/// Destroys a view when a press comes.
class Destructeur : public QObject
{
public:
    explicit Destructeur(QPointer<DTableView> vue)
        : maVue(std::move(vue))
    {
    }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() != QEvent::MouseButtonPress)
            return false;
        delete maVue;
        return true;
    }

private:
    QPointer<DTableView> maVue;
};

} // namespace

// What a double click has the viewport receive.
class tst_DTableViewEvenements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void evenementsEnvoyes();
    void memeEvenement();
    void positionArrondie();
    void itemDesactive();
    void itemDesactiveALaPresse();
    void rangeesDeplacees();
    void destructionPendantLaPresse();
};

void tst_DTableViewEvenements::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTableViewEvenements::evenementsEnvoyes()
{
    Banc<DTableView> banc;
    {
        Temoin const temoin(banc.vue.viewport());
        banc.DoubleClique(banc.Case(1));
        QCOMPARE(temoin.DonneTypes(),
                 (QList<QEvent::Type>{QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                      QEvent::MouseButtonDblClick, QEvent::MouseButtonPress,
                                      QEvent::MouseButtonRelease}));
    }
    for (auto const & position : {banc.Texte(1, kColonneTexte), QPoint(590, 290)}) {
        Temoin const temoin(banc.vue.viewport());
        banc.DoubleClique(position);
        QCOMPARE(temoin.DonneTypes(),
                 (QList<QEvent::Type>{QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                      QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}));
    }
}

void tst_DTableViewEvenements::memeEvenement()
{
    Banc<TableTemoin> banc;
    Temoin const temoin(banc.vue.viewport());
    QPointF const position = banc.Case(1) + QPointF(0.25, 0.25);
    QMouseEvent evenement(QEvent::MouseButtonDblClick, position, QPointF(11.5, 12), QPointF(13, 14),
                          Qt::LeftButton, Qt::LeftButton | Qt::RightButton, Qt::ShiftModifier,
                          Qt::MouseEventSynthesizedByApplication);
    banc.vue.mouseDoubleClickEvent(&evenement);
    QCOMPARE(temoin.DonneTypes(), QList<QEvent::Type>{QEvent::MouseButtonPress});
    QMouseEvent const & presse = temoin.Donne(0);
    QCOMPARE(presse.position(), position);
    QCOMPARE(presse.scenePosition(), QPointF(11.5, 12));
    QCOMPARE(presse.globalPosition(), QPointF(13, 14));
    QCOMPARE(presse.button(), Qt::LeftButton);
    QCOMPARE(presse.buttons(), Qt::LeftButton | Qt::RightButton);
    QCOMPARE(presse.modifiers(), Qt::ShiftModifier);
    QCOMPARE(presse.source(), Qt::MouseEventSynthesizedByApplication);
    QCOMPARE(presse.pointingDevice(), evenement.pointingDevice());
}

void tst_DTableViewEvenements::positionArrondie()
{
    Banc<TableTemoin> banc;
    banc.vue.setShowGrid(false);
    QRect const rect = banc.vue.visualRect(banc.modele.index(1, kColonneTexte));
    Temoin const temoin(banc.vue.viewport());
    for (double const ecart : {-0.4, -0.6}) { // of the left edge of the column without boxes
        QPointF const position(rect.left() + ecart, rect.center().y());
        QMouseEvent evenement(QEvent::MouseButtonDblClick, position, position, Qt::LeftButton,
                              Qt::LeftButton, {});
        banc.vue.mouseDoubleClickEvent(&evenement);
    }
    QCOMPARE(temoin.DonneTypes(), QList<QEvent::Type>{QEvent::MouseButtonPress});
    QCOMPARE(temoin.Donne(0).position().x(), rect.left() - 0.6);
}

// For which Qt makes a press of the double click by itself: what follows is a release as any other.
void tst_DTableViewEvenements::itemDesactive()
{
    Banc<QTableView> plain;
    Banc<DTableView> banc;
    DelegueTemoin delegue;
    banc.vue.setItemDelegate(&delegue);
    plain.modele.item(1, kColonneCase)->setEnabled(false);
    banc.modele.item(1, kColonneCase)->setEnabled(false);
    Espions const espionsDeQt(plain.vue, plain.modele);
    Espions const espions(banc.vue, banc.modele);
    plain.DoubleClique(plain.Case(1));
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(espions.Comptes(), espionsDeQt.Comptes());
    QCOMPARE(delegue.mesRecus, (Recus{{QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonRelease, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonRelease, Qt::LeftButton, 1}}));
}

void tst_DTableViewEvenements::itemDesactiveALaPresse()
{
    Banc<DTableView> banc;
    DelegueTemoin delegue;
    QTest::mouseClick(banc.vue.viewport(), Qt::LeftButton, {}, banc.Texte(1));
    banc.vue.setItemDelegate(&delegue);
    connect(&banc.vue, &DTableView::pressed, this,
            [&banc] { banc.modele.item(1, kColonneCase)->setEnabled(false); });
    QTest::mouseDClick(banc.vue.viewport(), Qt::LeftButton, {}, banc.Texte(1));
    QTest::mouseRelease(banc.vue.viewport(), Qt::LeftButton, {}, banc.Texte(1));
    QCOMPARE(delegue.mesRecus, (Recus{{QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonRelease, Qt::LeftButton, 1}}));
}

// A receiver of the second press has moved another item under the mouse, which Qt presses then.
void tst_DTableViewEvenements::rangeesDeplacees()
{
    Banc<DTableView> banc;
    DelegueTemoin delegue;
    QPoint const position = banc.Texte(1);
    QTest::mouseClick(banc.vue.viewport(), Qt::LeftButton, {}, position);
    banc.vue.setItemDelegate(&delegue);
    connect(
        &banc.vue, &DTableView::pressed, this,
        [&banc] { banc.modele.appendRow(banc.modele.takeRow(0)); }, Qt::SingleShotConnection);
    QSignalSpy const clics(&banc.vue, &DTableView::clicked);
    QSignalSpy const doubles(&banc.vue, &DTableView::doubleClicked);
    QTest::mouseDClick(banc.vue.viewport(), Qt::LeftButton, {}, position);
    QTest::mouseRelease(banc.vue.viewport(), Qt::LeftButton, {}, position);
    QCOMPARE(delegue.mesRecus, (Recus{{QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonPress, Qt::LeftButton, 1},
                                      {QEvent::MouseButtonRelease, Qt::LeftButton, 1}}));
    QCOMPARE(clics.count(), 1);
    QCOMPARE(doubles.count(), 0);
}

// Qt does not bear the end of a view in `pressed` or `doubleClicked`, but there are other ways.
void tst_DTableViewEvenements::destructionPendantLaPresse()
{
    Banc<QTableView> banc;
    QPointer<DTableView> const vue = new DTableView;
    vue->setModel(&banc.modele);
    vue->resize(600, 300);
    vue->show();
    Destructeur destructeur(vue);
    vue->viewport()->installEventFilter(&destructeur);
    QPointF const position = vue->visualRect(banc.modele.index(1, kColonneCase)).center();
    QMouseEvent evenement(QEvent::MouseButtonDblClick, position, position, Qt::LeftButton,
                          Qt::LeftButton, {});
    QCoreApplication::sendEvent(vue->viewport(), &evenement);
    QVERIFY(!vue);
}

QTEST_MAIN(tst_DTableViewEvenements)
#include "tst_DTableViewEvenements.moc"
