#include "lists/DFrameChevronnable.h"

#include "controls/DBoutonSansFleche.h"

#include "lists/EssaisChevron.h"

#include <QMenu>
#include <QTimer>
#include <QtTest>

#include <memory>

using namespace EssaisChevron;
using namespace Qt::StringLiterals;

// The menu of the chevron: what it shows and when, and who deletes its entries.

namespace {

class Cadre : public DFrameChevronnable
{
public:
    // Tools of 30, of which the first has room at 60.
    explicit Cadre(int nombre)
    {
        setSpacing(0);
        PreteBoutonChevron()->setFixedSize(20, 10);
        for (int i = 0; i < nombre; ++i)
            addWidget(new Outil(u"Outil %1"_s.arg(i + 1), 30, i != 2));
        resize(60, 10);
    }
    using DFrameChevronnable::PreteBoutonChevron;

    QMenu * PreteMenu() const { return PreteBoutonChevron()->menu(); }
    QStringList DonneTitres() const
    {
        QStringList titres;
        for (QAction const * const action : PreteMenu()->actions())
            titres.append(action->text());
        return titres;
    }
};

// Hands out what it is told to.
class OutilPrete : public Outil
{
public:
    explicit OutilPrete(bool estAction)
        : Outil(u"Prete"_s, 100, estAction)
    {
    }
    QAction * DonneQAction() override { return action; }
    QMenu * DonneQMenu() override { return menu; }

    QAction * action = nullptr;
    QMenu * menu = nullptr;
};

void ViseLesMorts()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class tst_DFrameChevronnableMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void avantLaPremierePasse();
    void entrees();
    void ouvertureAuClavier();
    void reconstruitAChaqueOuverture();
    void perimeEntreTemps();
    void actionExecute();
    void nullLaissay();
    void entreesDetruites();
    void entreesAvecParent();
    void reconstructionPendantUneAction();
    void cadreDetruitPendantUneAction();
    void menuMeurtAvecLeCadre();
    void menuDetruit();
    void milleReconstructions();
};

void tst_DFrameChevronnableMenu::cleanup()
{
    ViseLesMorts();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DFrameChevronnableMenu::avantLaPremierePasse()
{
    Cadre cadre(2);
    QVERIFY(cadre.PreteMenu()->isEmpty());

    cadre.MetAJourMenu();

    // Nothing has been shown yet.
    QCOMPARE(cadre.DonneTitres(), (QStringList{u"Outil 1"_s, u"Outil 2"_s}));
}

void tst_DFrameChevronnableMenu::entrees()
{
    Cadre cadre(4);
    cadre.addSpacer();
    cadre.show();

    cadre.MetAJourMenu();

    QCOMPARE(cadre.DonneTitres(), (QStringList{u"Outil 2"_s, u"Outil 3"_s, u"Outil 4"_s}));
    auto const actions = cadre.PreteMenu()->actions();
    QVERIFY(!actions.at(0)->menu());
    QVERIFY(actions.at(1)->menu());
    QCOMPARE(cadre.PreteMenu()->parent(), nullptr);
}

void tst_DFrameChevronnableMenu::ouvertureAuClavier()
{
    Cadre cadre(4);
    cadre.show();
    cadre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&cadre));
    QStringList titres;
    // The menu runs a loop of its own until it closes.
    QTimer::singleShot(0, &cadre, [&] {
        titres = cadre.DonneTitres();
        cadre.PreteMenu()->close();
    });

    cadre.PreteBoutonChevron()->setFocus();
    QTest::keyClick(cadre.PreteBoutonChevron(), Qt::Key_Space);

    QCOMPARE(titres, (QStringList{u"Outil 2"_s, u"Outil 3"_s, u"Outil 4"_s}));
}

void tst_DFrameChevronnableMenu::reconstruitAChaqueOuverture()
{
    Cadre cadre(4);
    cadre.show();

    cadre.PreteMenu()->popup({});
    QCOMPARE(cadre.DonneTitres().size(), 3);
    cadre.PreteMenu()->close();
    cadre.resize(100, 10);
    cadre.PreteMenu()->popup({});

    QCOMPARE(cadre.DonneTitres(), (QStringList{u"Outil 3"_s, u"Outil 4"_s}));
    cadre.PreteMenu()->close();
}

void tst_DFrameChevronnableMenu::perimeEntreTemps()
{
    Cadre cadre(4);
    cadre.show();
    cadre.MetAJourMenu();

    cadre.resize(300, 10);

    // Deliberate: it is rebuilt when it opens, not when the row changes.
    QCOMPARE(cadre.DonneTitres().size(), 3);
    cadre.MetAJourMenu();
    QVERIFY(cadre.PreteMenu()->isEmpty());
}

void tst_DFrameChevronnableMenu::actionExecute()
{
    Cadre cadre(4);
    cadre.show();
    cadre.MetAJourMenu();

    cadre.PreteMenu()->actions().at(2)->trigger();

    QCOMPARE(static_cast<Outil *>(cadre.PreteWidgetA(3))->executions, 1);
    QCOMPARE(static_cast<Outil *>(cadre.PreteWidgetA(1))->executions, 0);
}

void tst_DFrameChevronnableMenu::nullLaissay()
{
    Cadre cadre(0);
    cadre.addWidget(new OutilPrete(true));
    cadre.addWidget(new OutilPrete(false));

    cadre.MetAJourMenu();

    QVERIFY(cadre.PreteMenu()->isEmpty());
}

void tst_DFrameChevronnableMenu::entreesDetruites()
{
    Cadre cadre(0);
    auto * const action = new OutilPrete(true);
    auto * const sousMenu = new OutilPrete(false);
    QPointer<QAction> const entree = action->action = new QAction;
    QPointer<QMenu> const sousEntree = sousMenu->menu = new QMenu;
    cadre.addWidget(action);
    cadre.addWidget(sousMenu);
    cadre.MetAJourMenu();
    QCOMPARE(cadre.PreteMenu()->actions(), (QList{entree.data(), sousEntree->menuAction()}));

    action->action = nullptr;
    sousMenu->menu = nullptr;
    cadre.MetAJourMenu();

    QVERIFY(cadre.PreteMenu()->isEmpty());
    // Not at once: it may be the one that is under way.
    QVERIFY(entree && sousEntree);
    ViseLesMorts();
    QVERIFY(!entree && !sousEntree);
}

void tst_DFrameChevronnableMenu::entreesAvecParent()
{
    QWidget parent;
    QPointer<QAction> const entree = new QAction(&parent);
    QPointer<QMenu> const sousEntree = new QMenu(&parent);
    {
        Cadre cadre(0);
        auto * const action = new OutilPrete(true);
        auto * const sousMenu = new OutilPrete(false);
        action->action = entree;
        sousMenu->menu = sousEntree;
        cadre.addWidget(action);
        cadre.addWidget(sousMenu);
        cadre.MetAJourMenu();
        cadre.MetAJourMenu();
        ViseLesMorts();
        QCOMPARE(cadre.PreteMenu()->actions().size(), 2);
    }
    ViseLesMorts();

    QVERIFY(entree && sousEntree);
}

void tst_DFrameChevronnableMenu::reconstructionPendantUneAction()
{
    Cadre cadre(3);
    cadre.show();
    cadre.MetAJourMenu();
    QAction * const action = cadre.PreteMenu()->actions().at(0);
    connect(action, &QAction::triggered, &cadre, &DFrameChevronnable::MetAJourMenu);
    QSignalSpy espion(cadre.PreteMenu(), &QMenu::triggered);
    cadre.PreteMenu()->popup({});
    QAction * const ouverte = cadre.PreteMenu()->actions().at(0);
    connect(ouverte, &QAction::triggered, &cadre, &DFrameChevronnable::MetAJourMenu);

    cadre.PreteMenu()->setActiveAction(ouverte);
    QTest::keyClick(cadre.PreteMenu(), Qt::Key_Return);

    QCOMPARE(espion.count(), 1);
    QCOMPARE(static_cast<Outil *>(cadre.PreteWidgetA(1))->executions, 1);
}

void tst_DFrameChevronnableMenu::cadreDetruitPendantUneAction()
{
    auto * const cadre = new Cadre(3);
    cadre->show();
    QPointer<QMenu> const menu = cadre->PreteMenu();
    menu->popup({});
    QAction * const action = menu->actions().at(0);
    connect(action, &QAction::triggered, this, [cadre] { delete cadre; });

    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);

    ViseLesMorts();
    QVERIFY(!menu);
}

void tst_DFrameChevronnableMenu::menuMeurtAvecLeCadre()
{
    auto cadre = std::make_unique<Cadre>(3);
    QPointer<QMenu> const menu = cadre->PreteMenu();
    cadre->MetAJourMenu();
    QPointer<QAction> const action = menu->actions().at(0);

    cadre.reset();

    QVERIFY(!menu);
    ViseLesMorts();
    QVERIFY(!action);
}

void tst_DFrameChevronnableMenu::menuDetruit()
{
    Cadre cadre(3);
    cadre.show();

    delete cadre.PreteMenu();
    cadre.MetAJourMenu();

    QVERIFY(cadre.PreteMenu());
    QCOMPARE(cadre.DonneTitres().size(), 2);
    cadre.resize(300, 10);
    cadre.PreteMenu()->popup({});
    QVERIFY(cadre.PreteMenu()->isEmpty());
    cadre.PreteMenu()->close();
}

void tst_DFrameChevronnableMenu::milleReconstructions()
{
    Cadre cadre(0);
    auto * const action = new OutilPrete(true);
    auto * const sousMenu = new OutilPrete(false);
    cadre.addWidget(action);
    cadre.addWidget(sousMenu);
    int detruits = 0;
    QObject const contexte; // the last entries outlive the count
    auto const compte = [&detruits] { ++detruits; };

    for (int i = 0; i < 1000; ++i) {
        action->action = new QAction;
        sousMenu->menu = new QMenu;
        connect(action->action, &QObject::destroyed, &contexte, compte);
        connect(sousMenu->menu, &QObject::destroyed, &contexte, compte);
        cadre.MetAJourMenu();
    }
    ViseLesMorts();

    // All but those of the menu as it is now.
    QCOMPARE(detruits, 1998);
    QCOMPARE(cadre.PreteMenu()->actions().size(), 2);
}

QTEST_MAIN(tst_DFrameChevronnableMenu)
#include "tst_DFrameChevronnableMenu.moc"
