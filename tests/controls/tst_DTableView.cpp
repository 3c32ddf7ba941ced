// tests/controls/tst_DTableView.cpp
#include "controls/DTableView.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QtTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int kColonneCase = 0;
constexpr int kColonneTexte = 1;
constexpr int kColonneEtat = 2; // a check state that the user may not change

/// Where the box of an item is drawn.
class Delegue : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QPoint DonneCase(QTableView const & vue, QModelIndex const & index) const
    {
        QStyleOptionViewItem option;
        option.initFrom(&vue);
        option.widget = &vue;
        option.rect = vue.visualRect(index);
        initStyleOption(&option, index);
        return vue.style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &vue)
            .center();
    }
};

class TableTemoin : public DTableView
{
public:
    using DTableView::mouseDoubleClickEvent;

    bool Edite() const { return state() == EditingState; }
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

template <typename Vue>
struct Banc
{
    Banc()
        : modele(3, 3)
    {
        for (int rangee = 0; rangee < 3; ++rangee) {
            for (int colonne = 0; colonne < 3; ++colonne)
                modele.setItem(rangee, colonne, new QStandardItem(u"un texte"_s));
            modele.item(rangee, kColonneCase)->setCheckable(true);
            modele.item(rangee, kColonneCase)->setCheckState(Qt::Unchecked);
            modele.item(rangee, kColonneEtat)->setCheckState(Qt::Checked);
        }
        vue.setModel(&modele);
        vue.setItemDelegate(&delegue);
        vue.setEditTriggers(QAbstractItemView::NoEditTriggers);
        vue.horizontalHeader()->setDefaultSectionSize(150);
        vue.resize(600, 300);
        vue.show();
    }

    QPoint Case(int rangee, int colonne = kColonneCase) const
    {
        return delegue.DonneCase(vue, modele.index(rangee, colonne));
    }
    QPoint Texte(int rangee, int colonne = kColonneCase) const
    {
        return vue.visualRect(modele.index(rangee, colonne)).center();
    }
    void DoubleClique(QPoint const & position, Qt::KeyboardModifiers touches = {})
    {
        DoubleClique(Qt::LeftButton, touches, position);
    }
    void DoubleClique(Qt::MouseButton bouton, Qt::KeyboardModifiers touches,
                      QPoint const & position)
    {
        QTest::mouseClick(vue.viewport(), bouton, touches, position);
        QTest::mouseDClick(vue.viewport(), bouton, touches, position); // no release with it
        QTest::mouseRelease(vue.viewport(), bouton, touches, position);
    }
    Qt::CheckState Etat(int rangee) const
    {
        return modele.item(rangee, kColonneCase)->checkState();
    }

    QStandardItemModel modele;
    Delegue delegue;
    Vue vue;
};

/// How often the signals of a view were emitted.
struct Espions
{
    explicit Espions(QTableView & vue, QStandardItemModel & modele)
        : presses(&vue, &QTableView::pressed)
        , clics(&vue, &QTableView::clicked)
        , doubles(&vue, &QTableView::doubleClicked)
        , activations(&vue, &QTableView::activated)
        , changements(&modele, &QStandardItemModel::itemChanged)
    {
    }

    QList<int> Comptes() const
    {
        QList<int> comptes;
        for (auto const * espion : {&presses, &clics, &doubles, &changements})
            comptes.append(static_cast<int>(espion->count()));
        return comptes;
    }

    QSignalSpy presses;
    QSignalSpy clics;
    QSignalSpy doubles;
    QSignalSpy activations;
    QSignalSpy changements;
};

using Comptes = QList<int>; // pressed, clicked, doubleClicked, itemChanged

} // namespace

class tst_DTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void doubleClic_data();
    void doubleClic();
    void deuxFoisLaCase();
    void caseApresDoubleClic();
    void troisEtats();
    void evenementsEnvoyes();
    void memeEvenement();
    void positionArrondie();
    void itemDesactive();
    void tableDesactivee();
    void boutonDroit();
    void editeur_data();
    void editeur();
    void editeurOuvertAilleurs();
    void selection();
    void destructionPendantLaPresse();
    void reinitialisation_data();
    void reinitialisation();
    void clavier();
};

void tst_DTableView::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTableView::construction()
{
    QWidget parent;
    DTableView const vue(&parent);
    QCOMPARE(vue.parentWidget(), &parent);
    QVERIFY(vue.inherits("QTableView")); // which the style asks for by name
    QVERIFY(!vue.model());
}

void tst_DTableView::doubleClic_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<bool>("surLaCase");
    QTest::addColumn<Comptes>("comptesDeQt");
    QTest::addColumn<Comptes>("comptes");
    QTest::newRow("on the box: two clicks")
        << kColonneCase << true << Comptes{0, 1, 1, 1} << Comptes{0, 2, 1, 2};
    QTest::newRow("on the text of an item with a box")
        << kColonneCase << false << Comptes{1, 1, 1, 0} << Comptes{2, 2, 1, 0};
    QTest::newRow("on an item without a box")
        << kColonneTexte << false << Comptes{1, 1, 1, 0} << Comptes{1, 1, 1, 0};
    QTest::newRow("on a box that the user may not change")
        << kColonneEtat << true << Comptes{1, 1, 1, 0} << Comptes{2, 2, 1, 0};
}

void tst_DTableView::doubleClic()
{
    QFETCH(int, colonne);
    QFETCH(bool, surLaCase);
    QFETCH(Comptes, comptesDeQt);
    QFETCH(Comptes, comptes);

    Banc<QTableView> plain;
    Espions const espionsDeQt(plain.vue, plain.modele);
    plain.DoubleClique(surLaCase ? plain.Case(1, colonne) : plain.Texte(1, colonne));
    QCOMPARE(espionsDeQt.Comptes(), comptesDeQt);

    Banc<DTableView> banc;
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(surLaCase ? banc.Case(1, colonne) : banc.Texte(1, colonne));
    QCOMPARE(espions.Comptes(), comptes);
    QCOMPARE(espions.doubles.at(0).at(0).toModelIndex(), banc.modele.index(1, colonne));
    QCOMPARE(espions.activations.count(), espionsDeQt.activations.count());
}

void tst_DTableView::deuxFoisLaCase()
{
    Banc<DTableView> banc;
    QList<Qt::CheckState> etats;
    connect(&banc.modele, &QStandardItemModel::itemChanged, this,
            [&etats](QStandardItem * item) { etats.append(item->checkState()); });
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(etats, (QList<Qt::CheckState>{Qt::Checked, Qt::Unchecked}));
    QCOMPARE(banc.Etat(1), Qt::Unchecked);
    QCOMPARE(banc.Etat(0), Qt::Unchecked);
}

// Nothing of the double click lasts into the next click.
void tst_DTableView::caseApresDoubleClic()
{
    Banc<DTableView> banc;
    for (auto const & premier : {banc.Case(1), banc.Texte(1), banc.Texte(1, kColonneTexte)}) {
        banc.DoubleClique(premier);
        QTest::mouseClick(banc.vue.viewport(), Qt::LeftButton, {}, banc.Case(1));
        QCOMPARE(banc.Etat(1), Qt::Checked);
        QTest::mouseClick(banc.vue.viewport(), Qt::LeftButton, {}, banc.Case(1));
        QCOMPARE(banc.Etat(1), Qt::Unchecked);
    }
}

void tst_DTableView::troisEtats()
{
    Banc<DTableView> banc;
    banc.modele.item(1, kColonneCase)->setUserTristate(true);
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(banc.Etat(1), Qt::Checked); // over the partial state
}

void tst_DTableView::evenementsEnvoyes()
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

void tst_DTableView::memeEvenement()
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

void tst_DTableView::positionArrondie()
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

void tst_DTableView::itemDesactive()
{
    Banc<DTableView> banc;
    banc.modele.item(1, kColonneCase)->setEnabled(false);
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(espions.presses.count(), 0);
    QCOMPARE(espions.doubles.count(), 0);
    QCOMPARE(espions.changements.count(), 0);
}

void tst_DTableView::tableDesactivee()
{
    Banc<DTableView> banc;
    QPoint const position = banc.Case(1);
    banc.vue.setEnabled(false);
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(position);
    QCOMPARE(espions.Comptes(), (Comptes{0, 0, 0, 0}));
}

void tst_DTableView::boutonDroit()
{
    Banc<DTableView> banc;
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(Qt::RightButton, {}, banc.Case(1));
    QCOMPARE(espions.Comptes(), (Comptes{2, 0, 1, 0}));
}

void tst_DTableView::editeur_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<bool>("surLaCase");
    QTest::addColumn<bool>("ouvert");
    QTest::newRow("on the box: none") << kColonneCase << true << false;
    QTest::newRow("beside the box") << kColonneCase << false << true;
    QTest::newRow("without a box") << kColonneTexte << false << true;
}

void tst_DTableView::editeur()
{
    QFETCH(int, colonne);
    QFETCH(bool, surLaCase);
    QFETCH(bool, ouvert);
    for (auto const declencheurs :
         {QAbstractItemView::EditTriggers(QAbstractItemView::DoubleClicked),
          QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked}) {
        Banc<TableTemoin> banc;
        banc.vue.setEditTriggers(declencheurs);
        Espions const espions(banc.vue, banc.modele);
        banc.DoubleClique(surLaCase ? banc.Case(1, colonne) : banc.Texte(1, colonne));
        QCOMPARE(banc.vue.Edite(), ouvert);
        QCOMPARE(banc.vue.viewport()->findChild<QLineEdit *>() != nullptr, ouvert);
        QCOMPARE(espions.doubles.count(), 1);
        QCOMPARE(espions.changements.count(), surLaCase ? 2 : 0);
    }
}

void tst_DTableView::editeurOuvertAilleurs()
{
    Banc<DTableView> banc;
    banc.vue.edit(banc.modele.index(0, kColonneTexte));
    QVERIFY(banc.vue.viewport()->findChild<QLineEdit *>());
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(espions.changements.count(), 2);
    QCOMPARE(banc.Etat(1), Qt::Unchecked);
}

// The same rows as in a plain table, whichever cell was selected before.
void tst_DTableView::selection()
{
    for (auto const touches : {Qt::NoModifier, Qt::ControlModifier}) {
        for (int const colonne : {kColonneCase, kColonneTexte}) {
            Banc<QTableView> plain;
            Banc<DTableView> banc;
            plain.vue.selectRow(1);
            banc.vue.selectRow(1);
            plain.DoubleClique(plain.Texte(1, colonne), touches);
            banc.DoubleClique(banc.Texte(1, colonne), touches);
            if (touches == Qt::NoModifier)
                QCOMPARE(banc.vue.selectionModel()->selectedIndexes().size(),
                         plain.vue.selectionModel()->selectedIndexes().size());
            QCOMPARE(banc.vue.currentIndex(), banc.modele.index(1, colonne));
        }
    }
}

void tst_DTableView::reinitialisation_data()
{
    QTest::addColumn<bool>("auDoubleClic");
    QTest::newRow("pressed") << false;
    QTest::newRow("doubleClicked") << true;
}

void tst_DTableView::reinitialisation()
{
    QFETCH(bool, auDoubleClic);
    Banc<DTableView> banc;
    auto const vide = [&banc] { banc.modele.clear(); };
    if (auDoubleClic)
        connect(&banc.vue, &DTableView::doubleClicked, &banc.modele, vide);
    else
        connect(&banc.vue, &DTableView::pressed, &banc.modele, vide);
    banc.DoubleClique(banc.Texte(1));
    QCOMPARE(banc.modele.rowCount(), 0);
}

// Qt does not bear the end of a view in `pressed` or `doubleClicked`, but there are other ways.
void tst_DTableView::destructionPendantLaPresse()
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

void tst_DTableView::clavier()
{
    Banc<DTableView> banc;
    banc.vue.setCurrentIndex(banc.modele.index(1, kColonneCase));
    QTest::keyClick(&banc.vue, Qt::Key_Space);
    QCOMPARE(banc.Etat(1), Qt::Checked);
    QTest::keyClick(&banc.vue, Qt::Key_Right);
    QCOMPARE(banc.vue.currentIndex(), banc.modele.index(1, kColonneTexte));
}

QTEST_MAIN(tst_DTableView)
#include "tst_DTableView.moc"
