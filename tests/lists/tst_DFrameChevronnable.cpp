#include "lists/DFrameChevronnable.h"

#include "controls/DBoutonSansFleche.h"

#include "lists/EssaisChevron.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>
#include <QtTest>

using namespace EssaisChevron;
using namespace Qt::StringLiterals;

// The row of widgets, its signal and its chevron button.

namespace {

// Lends what derived classes have.
class Cadre : public DFrameChevronnable
{
public:
    using DFrameChevronnable::DFrameChevronnable;
    using DFrameChevronnable::PreteBoutonChevron;

    explicit Cadre(QList<int> const & largeurs)
    {
        setSpacing(0);
        PreteBoutonChevron()->setFixedSize(20, 10);
        for (int const largeur : largeurs)
            Ajoute(largeur);
    }

    Outil * Ajoute(int largeur)
    {
        auto * const outil = new Outil(u"Outil %1"_s.arg(layout()->count() + 1), largeur);
        addWidget(outil);
        return outil;
    }

    QList<bool> DonneVisibles() const
    {
        QList<bool> visibles;
        for (int i = 0; i < layout()->count(); ++i)
            visibles.append(WidgetEstVisible(i));
        return visibles;
    }
};

// One whose least size is not that which it asks for.
class OutilDeuxTailles : public Outil
{
public:
    using Outil::Outil;
    QSize DonneTailleMin() override { return {25, 10}; }
    QSize DonneTailleMax() override { return {70, 10}; }
};

} // namespace

class tst_DFrameChevronnable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void bouton();
    void ajout();
    void insertion_data();
    void insertion();
    void ressort();
    void listeDesWidgets();
    void widgetA();
    void retrait();
    void retraitSousLeChevron();
    void vide();
    void espacement();
    void signalAuChangementDeTaille();
    void signalALInsertion();
    void signalSansLargeur();
    void formeSelonLesTaillesMin();
    void autreWidget();
    void tailleSelonLaForme();
    void tailleSansItem();
    void nomDuChevron_data();
    void nomDuChevron();
    void tabAtteintLeChevronEnDernier();
    void dansUneDisposition();
};

void tst_DFrameChevronnable::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DFrameChevronnable::construction()
{
    QWidget parent;
    DFrameChevronnable const seul;
    DFrameChevronnable const enfant(&parent);

    QCOMPARE(seul.parentWidget(), nullptr);
    QCOMPARE(enfant.parentWidget(), &parent);
    for (auto const * const cadre : {&seul, &enfant}) {
        QCOMPARE(cadre->objectName(), u"DFrameChevronnable"_s);
        QVERIFY(qobject_cast<LayoutHorizontalAvecChevron *>(cadre->layout()));
        QCOMPARE(cadre->layout()->contentsMargins(), QMargins());
        QCOMPARE(cadre->layout()->count(), 0);
        QVERIFY(cadre->PreteListeWidgets().empty());
    }
}

void tst_DFrameChevronnable::bouton()
{
    Cadre const cadre;
    DBoutonSansFleche const & bouton = *cadre.PreteBoutonChevron();

    QCOMPARE(bouton.parentWidget(), &cadre);
    QVERIFY(bouton.autoRaise());
    QCOMPARE(bouton.popupMode(), QToolButton::InstantPopup);
    QCOMPARE(bouton.arrowType(), Qt::NoArrow);
    // The style's icon stands in for that of the application, which the tests have not.
    QVERIFY(!bouton.icon().pixmap(16).isNull());
    QVERIFY(bouton.menu());
    QVERIFY(bouton.menu()->isEmpty());
}

void tst_DFrameChevronnable::ajout()
{
    Cadre cadre({30, 40});

    cadre.addWidget(nullptr);
    cadre.resize(100, 10);
    cadre.show();

    QCOMPARE(cadre.layout()->count(), 2);
    QCOMPARE(cadre.PreteWidgetA(0)->geometry(), QRect(0, 0, 30, 10));
    QCOMPARE(cadre.PreteWidgetA(1)->geometry(), QRect(30, 0, 40, 10));
    QCOMPARE(cadre.PreteWidgetA(1)->parentWidget(), &cadre);
    QVERIFY(cadre.PreteWidgetA(1)->isVisible());
}

void tst_DFrameChevronnable::insertion_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("place");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("in the middle") << 1 << 1;
    QTest::newRow("at the end") << 2 << 2;
    QTest::newRow("beyond the end") << 9 << 2;
    QTest::newRow("negative is the end") << -1 << 2;
}

void tst_DFrameChevronnable::insertion()
{
    QFETCH(int, index);
    QFETCH(int, place);
    Cadre cadre({30, 40});
    auto * const outil = new Outil(u"Autre"_s, 50);

    cadre.insertWidget(index, outil, 3);

    QCOMPARE(cadre.layout()->count(), 3);
    QCOMPARE(cadre.PreteWidgetA(place), outil);
}

void tst_DFrameChevronnable::ressort()
{
    Cadre cadre({30});
    cadre.addSpacer();
    QSpacerItem * const ressort = cadre.layout()->itemAt(1)->spacerItem();
    QVERIFY(ressort);
    QCOMPARE(ressort->sizeHint(), QSize(1, 1));
    QCOMPARE(ressort->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(ressort->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    cadre.Ajoute(40);

    cadre.resize(200, 10);
    cadre.show();

    QCOMPARE(cadre.PreteWidgetA(2)->geometry(), QRect(159, 0, 40, 10));
}

void tst_DFrameChevronnable::listeDesWidgets()
{
    Cadre cadre({30});
    cadre.addSpacer();
    auto * const dernier = cadre.Ajoute(40);

    QCOMPARE(cadre.PreteListeWidgets(), (std::list<QWidget *>{cadre.PreteWidgetA(0), dernier}));
}

void tst_DFrameChevronnable::widgetA()
{
    Cadre cadre({30});
    cadre.addSpacer();

    QVERIFY(cadre.PreteWidgetA(0));
    for (int const index : {-1, 1, 2})
        QCOMPARE(cadre.PreteWidgetA(index), nullptr);
    QVERIFY(!cadre.WidgetEstVisible(-1));
    QVERIFY(!cadre.WidgetEstVisible(2));
}

void tst_DFrameChevronnable::retrait()
{
    Cadre cadre({30, 40});
    QWidget * const premier = cadre.PreteWidgetA(0);
    QWidget etranger;

    cadre.RetireWidget(&etranger);
    cadre.RetireWidget(nullptr);
    cadre.RetireWidget(cadre.PreteBoutonChevron());
    QCOMPARE(cadre.layout()->count(), 2);

    cadre.RetireWidget(premier);
    QCOMPARE(cadre.layout()->count(), 1);
    QCOMPARE(premier->parentWidget(), &cadre);
    cadre.RetireWidget(premier);
    QCOMPARE(cadre.layout()->count(), 1);
}

void tst_DFrameChevronnable::retraitSousLeChevron()
{
    Cadre cadre({30, 100});
    QWidget * const cachay = cadre.PreteWidgetA(1);
    cachay->setFocusPolicy(Qt::StrongFocus);
    cadre.resize(60, 10);
    cadre.show();
    QCOMPARE(cachay->focusPolicy(), Qt::NoFocus);

    cadre.RetireWidget(cachay);

    QCOMPARE(cachay->focusPolicy(), Qt::StrongFocus);
    QTRY_COMPARE(cadre.PreteBoutonChevron()->focusPolicy(), Qt::NoFocus);
}

void tst_DFrameChevronnable::vide()
{
    Cadre cadre({30, 40});
    cadre.addSpacer();
    cadre.Ajoute(50);
    QPointer<QWidget> const premier = cadre.PreteWidgetA(0);
    QPointer<QWidget> const dernier = cadre.PreteWidgetA(3);

    cadre.Vide();

    QCOMPARE(cadre.layout()->count(), 0);
    QVERIFY(!premier && !dernier);
    QVERIFY(cadre.PreteBoutonChevron()->menu());
    cadre.Vide();
    cadre.Ajoute(30);
    QCOMPARE(cadre.layout()->count(), 1);
}

void tst_DFrameChevronnable::espacement()
{
    Cadre cadre({30, 40});

    cadre.setSpacing(7);

    QCOMPARE(cadre.layout()->spacing(), 7);
}

void tst_DFrameChevronnable::signalAuChangementDeTaille()
{
    Cadre cadre({30, 40});
    cadre.resize(100, 10);
    cadre.show();
    QSignalSpy espion(&cadre, &DFrameChevronnable::SignalChangeForme);

    cadre.resize(71, 10);
    cadre.resize(70, 10);
    cadre.resize(65, 10);
    cadre.resize(80, 10);

    QList<int> formes;
    for (auto const & arguments : espion)
        formes.append(arguments.at(0).toInt());
    QCOMPARE(formes, (QList{1, 0, 0, 1}));
}

void tst_DFrameChevronnable::signalALInsertion()
{
    Cadre cadre({30});
    QSignalSpy espion(&cadre, &DFrameChevronnable::SignalChangeForme);

    cadre.Ajoute(100);
    QCOMPARE(espion.takeFirst().at(0).toInt(), 1);

    cadre.resize(60, 10);
    cadre.show();
    espion.clear();
    cadre.insertWidget(0, new Outil(u"Autre"_s, 5));
    QCOMPARE(espion.takeFirst().at(0).toInt(), 0);

    // Neither a spacer nor nothing at all.
    cadre.addSpacer();
    cadre.addWidget(nullptr);
    QCOMPARE(espion.count(), 0);
}

void tst_DFrameChevronnable::signalSansLargeur()
{
    Cadre cadre({30});
    cadre.resize(100, 10);
    cadre.show();
    QSignalSpy espion(&cadre, &DFrameChevronnable::SignalChangeForme);

    QResizeEvent evenement(QSize(0, 10), cadre.size());
    QCoreApplication::sendEvent(&cadre, &evenement);

    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toInt(), 0);
}

void tst_DFrameChevronnable::formeSelonLesTaillesMin()
{
    Cadre cadre(QList<int>{});
    cadre.addWidget(new OutilDeuxTailles(u"Outil"_s, 50));
    QSignalSpy espion(&cadre, &DFrameChevronnable::SignalChangeForme);

    cadre.resize(30, 10);
    cadre.show();

    // It would have room at its least size, but the row gives it the one that it asks for.
    QCOMPARE(espion.takeLast().at(0).toInt(), 1);
    QVERIFY(!cadre.WidgetEstVisible(0));

    cadre.resize(25, 10);
    QCOMPARE(espion.takeLast().at(0).toInt(), 0);
}

void tst_DFrameChevronnable::autreWidget()
{
    Cadre cadre({30});
    cadre.layout()->addWidget(new Pave(100));
    QSignalSpy espion(&cadre, &DFrameChevronnable::SignalChangeForme);

    cadre.resize(60, 10);
    cadre.show();

    QCOMPARE(espion.takeLast().at(0).toInt(), 0);
    QCOMPARE(cadre.sizeHint(), QSize(130, 0));
    cadre.MetAJourMenu();
    QVERIFY(cadre.PreteBoutonChevron()->menu()->isEmpty());
}

void tst_DFrameChevronnable::tailleSelonLaForme()
{
    Cadre cadre(QList<int>{});
    cadre.addWidget(new OutilDeuxTailles(u"Premier"_s, 50));
    cadre.addSpacer();
    cadre.addWidget(new OutilDeuxTailles(u"Second"_s, 50));
    cadre.setSpacing(5);

    // Deliberate: the least sizes while nothing is hidden, and no spacing.
    QCOMPARE(cadre.sizeHint(), QSize(50, 0));
    cadre.resize(30, 10);
    cadre.show();
    QCOMPARE(cadre.sizeHint(), QSize(140, 0));
}

void tst_DFrameChevronnable::tailleSansItem()
{
    Cadre const cadre(QList<int>{});

    QCOMPARE(cadre.sizeHint(), QSize(0, 0));
    QCOMPARE(cadre.minimumSizeHint(), QSize(20, 0));
}

void tst_DFrameChevronnable::nomDuChevron_data()
{
    QTest::addColumn<int>("largeur");
    QTest::addColumn<QString>("nom");
    QTest::newRow("nothing hidden") << 200 << QString();
    QTest::newRow("two") << 130 << u"Outil 4, Outil 5"_s;
    QTest::newRow("three") << 90 << u"Outil 3, Outil 4, Outil 5"_s;
    QTest::newRow("more") << 60 << u"Outil 2, Outil 3, Outil 4, …"_s;
}

void tst_DFrameChevronnable::nomDuChevron()
{
    QFETCH(int, largeur);
    QFETCH(QString, nom);
    Cadre cadre({30, 30, 30, 30, 30});
    cadre.resize(largeur, 10);
    cadre.show();

    QAccessibleInterface * const lecture =
        QAccessible::queryAccessibleInterface(cadre.PreteBoutonChevron());

    QCOMPARE(lecture->text(QAccessible::Name), nom);
    QCOMPARE(lecture->role(), QAccessible::ButtonMenu);
}

void tst_DFrameChevronnable::tabAtteintLeChevronEnDernier()
{
    QWidget fenetre;
    auto * const disposition = new QVBoxLayout(&fenetre);
    auto * const avant = new QLineEdit;
    disposition->addWidget(avant);
    auto * const cadre = new Cadre({30, 30, 100});
    cadre->setMinimumHeight(10);
    disposition->addWidget(cadre);
    auto * const apres = new QLineEdit;
    disposition->addWidget(apres);
    for (QWidget * const outil : cadre->PreteListeWidgets())
        outil->setFocusPolicy(Qt::StrongFocus);
    cadre->setFixedWidth(90);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    avant->setFocus();

    for (QWidget * const attendu :
         {cadre->PreteWidgetA(0), cadre->PreteWidgetA(1),
          static_cast<QWidget *>(cadre->PreteBoutonChevron()), static_cast<QWidget *>(apres)}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), attendu);
    }
}

void tst_DFrameChevronnable::dansUneDisposition()
{
    QWidget fenetre;
    auto * const disposition = new QVBoxLayout(&fenetre);
    disposition->setContentsMargins({});
    auto * const cadre = new Cadre({30, 30, 30});
    cadre->setMinimumHeight(10);
    disposition->addWidget(cadre);
    fenetre.resize(80, 10);
    fenetre.show();
    QCOMPARE(cadre->DonneVisibles(), (QList{true, false, false}));

    // A widget less, without a resize.
    delete cadre->PreteWidgetA(1);

    QTRY_COMPARE(cadre->DonneVisibles(), (QList{true, true}));
    QVERIFY(cadre->PreteBoutonChevron()->accessibleName().isEmpty());
}

QTEST_MAIN(tst_DFrameChevronnable)
#include "tst_DFrameChevronnable.moc"
