// navigation/tst_DTabBarInterneSouris.cpp
// The drag as an application sees it: whole tab widgets, and no more than a mouse.
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"
#include "navigation/DTabWidget.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

class Fenetre : public QWidget
{
public:
    Fenetre(QString const & groupe, QPoint const & place)
        : onglets(new DTabWidget(this, groupe))
        , barre(onglets->PreteBarre()->PreteBarreInterne())
    {
        (new QVBoxLayout(this))->addWidget(onglets);
        for (auto const * titre : {"un", "deux", "trois"})
            onglets->AjouteOnglet(new QWidget, QString::fromLatin1(titre));
        onglets->MetsPeutGlisserDeposerOnglet(true);
        setGeometry(QRect(place, QSize(640, 120)));
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }

    QStringList DonneTitres() const
    {
        QStringList titres;
        for (int i = 0; i < onglets->DonneTotalOnglet(); ++i)
            titres << onglets->DonneTitre(i);
        return titres;
    }
    QPoint DonneMilieu(int index) const { return barre->tabRect(index).center(); }

    DTabWidget * onglets;
    DTabBarInterne * barre;
};

enum class Facon
{
    kQTest,
    kCadre, // to the frame of the tab, which Qt finds under the mouse
    kEvenements,
    kSansBouton // the moves do not tell of the button
};

/// A mouse that always tells the widget that was pressed.
class Souris
{
public:
    Souris(DTabBarInterne & barre, Facon facon)
        : maBarre(barre)
        , maFacon(facon)
    {
        maBarre.setMouseTracking(facon == Facon::kSansBouton); // else Qt drops those moves
    }

    void Presse(QPoint const & point)
    {
        if (maFacon == Facon::kCadre)
            monRecepteur = maBarre.tabButton(maBarre.tabAt(point), QTabBar::LeftSide);
        if (ParQTest())
            QTest::mousePress(monRecepteur, Qt::LeftButton, {},
                              monRecepteur->mapFrom(&maBarre, point));
        else
            Envoie(QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
    }
    void Deplace(QPoint const & global)
    {
        QPoint const point = maBarre.mapFromGlobal(global);
        if (ParQTest())
            QTest::mouseMove(monRecepteur, monRecepteur->mapFrom(&maBarre, point));
        else
            Envoie(QEvent::MouseMove, point, Qt::NoButton,
                   maFacon == Facon::kSansBouton ? Qt::NoButton : Qt::LeftButton);
    }
    void Relache(QPoint const & global)
    {
        QPoint const point = maBarre.mapFromGlobal(global);
        if (ParQTest())
            QTest::mouseRelease(monRecepteur, Qt::LeftButton, {},
                                monRecepteur->mapFrom(&maBarre, point));
        else
            Envoie(QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
    }

private:
    bool ParQTest() const { return maFacon == Facon::kQTest || maFacon == Facon::kCadre; }
    void Envoie(QEvent::Type type, QPoint const & point, Qt::MouseButton bouton,
                Qt::MouseButtons enfonces)
    {
        QMouseEvent evenement(type, point, maBarre.mapToGlobal(point), bouton, enfonces,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&maBarre, &evenement);
    }

    DTabBarInterne & maBarre;
    Facon maFacon;
    QWidget * monRecepteur = &maBarre;
};

QWidget * TrouveImage()
{
    QWidgetList const widgets = QApplication::topLevelWidgets();
    for (QWidget * const widget : widgets)
        if (widget->isVisible() && widget->windowType() == Qt::Tool)
            return widget;
    return nullptr;
}

} // namespace

class tst_DTabBarInterneSouris : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void etats_data() { Facons(); }
    void etats();
    void versLAutreFenetre_data() { Facons(); }
    void versLAutreFenetre();
    void apresLeDernier_data() { Facons(); }
    void apresLeDernier();
    void deuxFoisDeSuite_data() { Facons(); }
    void deuxFoisDeSuite();

private:
    void Facons()
    {
        QTest::addColumn<int>("facon");
        QTest::newRow("QTest") << int(Facon::kQTest);
        QTest::newRow("QTest, to the frame") << int(Facon::kCadre);
        QTest::newRow("hand-made events") << int(Facon::kEvenements);
        QTest::newRow("moves without buttons") << int(Facon::kSansBouton);
    }
};

// Every way from one state of the drag to another, on one press.
void tst_DTabBarInterneSouris::etats()
{
    QFETCH(int, facon);
    Fenetre source(u"g"_s, {20, 20});
    Fenetre cible(u"g"_s, {20, 220});
    Fenetre autre(u"h"_s, {20, 420});
    QSignalSpy fenetres(source.onglets, &DTabWidget::SignalOngletNouvelleFenetre);
    Souris souris(*source.barre, Facon(facon));
    QPoint const dansLaCible = cible.barre->mapToGlobal(cible.DonneMilieu(1));
    QPoint const dansLAutre = autre.barre->mapToGlobal(autre.DonneMilieu(1));
    QPoint const page = source.mapToGlobal(QPoint(300, 100));

    souris.Presse(source.DonneMilieu(1));
    QVERIFY(!TrouveImage());
    for (QPoint const & point : {page, dansLAutre, dansLaCible, QPoint(750, 590), dansLaCible}) {
        souris.Deplace(point);
        QVERIFY(TrouveImage());
        QCOMPARE(TrouveImage()->pos(), point);
        QCOMPARE(source.barre->tabToolTip(1), QString());
        QCOMPARE(!cible.barre->DonnePositionIndicateur().isNull(), point == dansLaCible);
        QVERIFY(autre.barre->DonnePositionIndicateur().isNull());
    }
    souris.Deplace(source.barre->mapToGlobal(source.DonneMilieu(1)));
    QVERIFY(!TrouveImage());
    QVERIFY(cible.barre->DonnePositionIndicateur().isNull());
    QCOMPARE(source.barre->tabToolTip(1), u"deux"_s);
    souris.Deplace(dansLAutre);
    QVERIFY(TrouveImage());
    souris.Relache(dansLAutre);

    QVERIFY(!TrouveImage());
    QCOMPARE(source.barre->tabToolTip(1), u"deux"_s);
    QCOMPARE(fenetres.count(), 1);
    QCOMPARE(fenetres.at(0).at(0).toInt(), 1);
    QCOMPARE(fenetres.at(0).at(1).value<QWidget *>(), source.onglets->DonneWidget(1));
    QCOMPARE(source.DonneTitres(), (QStringList{u"un"_s, u"deux"_s, u"trois"_s}));
}

void tst_DTabBarInterneSouris::versLAutreFenetre()
{
    QFETCH(int, facon);
    Fenetre source(u"g"_s, {20, 20});
    Fenetre cible(u"g"_s, {20, 220});
    QSignalSpy departs(source.onglets, &DTabWidget::SignalOngletDeplacayVersBarreExterne);
    Souris souris(*source.barre, Facon(facon));
    QPointer<QWidget> const page = source.onglets->DonneWidget(2);
    QPoint const point = cible.barre->mapToGlobal(cible.DonneMilieu(1) - QPoint(30, 0));

    souris.Presse(source.DonneMilieu(2));
    souris.Deplace(point);
    souris.Relache(point);

    QCOMPARE(departs.count(), 1);
    QCOMPARE(source.DonneTitres(), (QStringList{u"un"_s, u"deux"_s}));
    QCOMPARE(cible.DonneTitres(), (QStringList{u"un"_s, u"trois"_s, u"deux"_s, u"trois"_s}));
    QCOMPARE(cible.onglets->DonneWidget(1), page.data());
    QCOMPARE(cible.barre->tabToolTip(1), u"trois"_s);
}

void tst_DTabBarInterneSouris::apresLeDernier()
{
    QFETCH(int, facon);
    Fenetre source(u"g"_s, {20, 20});
    Fenetre cible(u"g"_s, {20, 220});
    QSignalSpy departs(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    Souris souris(*source.barre, Facon(facon));
    QPushButton const & ajout = *cible.onglets->PreteBarre()->PreteBoutonAjout();
    QPoint const point = ajout.mapToGlobal(ajout.rect().center());

    souris.Presse(source.DonneMilieu(0));
    souris.Deplace(point);
    souris.Relache(point);

    QCOMPARE(departs.count(), 1);
    QCOMPARE(departs.at(0).at(2).toInt(), 3);
    QCOMPARE(cible.DonneTitres(), (QStringList{u"un"_s, u"deux"_s, u"trois"_s, u"un"_s}));
}

void tst_DTabBarInterneSouris::deuxFoisDeSuite()
{
    QFETCH(int, facon);
    Fenetre source(u"g"_s, {20, 20});
    QSignalSpy fenetres(source.onglets, &DTabWidget::SignalOngletNouvelleFenetre);
    Souris souris(*source.barre, Facon(facon));
    QPoint const page = source.mapToGlobal(QPoint(300, 100));

    for (int const index : {2, 0}) {
        souris.Presse(source.DonneMilieu(index));
        souris.Deplace(page);
        souris.Relache(page);
        QCOMPARE(fenetres.count(), index == 2 ? 1 : 2);
        QCOMPARE(fenetres.last().at(0).toInt(), index);
    }
}

QTEST_MAIN(tst_DTabBarInterneSouris)
#include "tst_DTabBarInterneSouris.moc"
