#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QtTest>

#include <memory>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

// Two windows beside each other, each a tab widget.
struct Bureau
{
    explicit Bureau(QString const & groupeDeLaCible = u"g"_s)
        : source(std::make_unique<DTabWidget>(nullptr, u"g"_s))
        , cible(std::make_unique<DTabWidget>(nullptr, groupeDeLaCible))
    {
        cible->setObjectName(u"cible"_s);
        Remplis(*source, u"a b c"_s);
        Remplis(*cible, u"d e"_s);
        source->MetsPeutGlisserDeposerOnglet(true);
        source->setGeometry(0, 0, 700, 150);
        cible->setGeometry(0, 300, 700, 150);
        for (DTabWidget * onglets : {source.get(), cible.get()}) {
            onglets->show();
            QVERIFY(QTest::qWaitForWindowExposed(onglets));
        }
        journal.Ecoute(*source, u"source"_s);
        journal.Ecoute(*cible, u"cible"_s);
    }

    void Prends(int index)
    {
        QTest::mousePress(&Barre(*source), Qt::LeftButton, {},
                          Barre(*source).tabRect(index).center());
    }

    void VaA(QPoint const & global)
    {
        QTest::mouseMove(&Barre(*source), Barre(*source).mapFromGlobal(global));
    }

    void LacheA(QPoint const & global)
    {
        QTest::mouseRelease(&Barre(*source), Qt::LeftButton, {},
                            Barre(*source).mapFromGlobal(global));
    }

    QPoint SurOnglet(int index) const
    {
        QRect const rect = Barre(*cible).tabRect(index);
        return Barre(*cible).mapToGlobal(rect.topLeft() + QPoint(10, rect.height() / 2));
    }

    std::unique_ptr<DTabWidget> source;
    std::unique_ptr<DTabWidget> cible;
    Journal journal;
};

} // namespace

// The whole way of a tab that is dragged out of its bar, from the press to the host.
class tst_DTabWidgetGlisser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void versUnAutreWidget_data();
    void versUnAutreWidget();
    void activeLaFenetreCible();
    void changementRefusayPendantUnGlissement();
    void refuseeSansPermission();
    void autreGroupe();
    void horsDeToutWidget();
    void retourDansLaBarre();
    void hoteQuiOuvreUneFenetre();
    void cibleDetruiteEnChemin();
    void pageFermeeEnChemin();
    void filtreDUneClasseDerivee();
};

void tst_DTabWidgetGlisser::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetGlisser::versUnAutreWidget_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("sur");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("cible");
    QTest::newRow("the current one before the first") << 0 << 0 << u"b c"_s << u"a d e"_s;
    QTest::newRow("another one between two") << 1 << 1 << u"a c"_s << u"d b e"_s;
}

void tst_DTabWidgetGlisser::versUnAutreWidget()
{
    QFETCH(int, index);
    QFETCH(int, sur);
    QFETCH(QString, source);
    QFETCH(QString, cible);
    Bureau bureau;
    QPointer<QWidget> const page(bureau.source->DonneWidget(index));
    bureau.source->MetsDataOnglet(index, u"donnee"_s, 1);
    bureau.Prends(index);
    bureau.journal.Prends();
    bureau.VaA(bureau.SurOnglet(sur));
    bureau.LacheA(bureau.SurOnglet(sur));

    QCOMPARE(Titres(*bureau.source), source);
    QCOMPARE(Titres(*bureau.cible), cible);
    QCOMPARE(bureau.journal.lignes.last(), u"source parti %1 %2 cible"_s.arg(index).arg(sur));
    QCOMPARE(bureau.cible->DonneWidget(sur), page);
    QCOMPARE(bureau.cible->DonneDataOnglet(sur, 257), QVariant(u"donnee"_s));
    QCOMPARE(Barre(*bureau.cible).tabToolTip(sur), bureau.cible->DonneTitre(sur));
}

void tst_DTabWidgetGlisser::activeLaFenetreCible()
{
    Bureau bureau;
    bureau.source->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(bureau.source.get()));
    QVERIFY(bureau.source->EnvoieOnglet(0, bureau.cible.get(), 0));
    QTRY_VERIFY(bureau.cible->isActiveWindow());
}

// Qt's bar keeps its tab while one is dragged; the page on show stays that of the tab.
void tst_DTabWidgetGlisser::changementRefusayPendantUnGlissement()
{
    Bureau bureau;
    bureau.Prends(0);
    QPoint const depart =
        Barre(*bureau.source).mapToGlobal(Barre(*bureau.source).tabRect(0).center());
    bureau.VaA(depart + QPoint(40, 0));
    bureau.source->MetsIndexCourant(2);
    QCOMPARE(bureau.source->DonneIndexCourant(), 0);
    QCOMPARE(bureau.source->DonneWidgetCourant(), bureau.source->DonneWidget(0));
    bureau.LacheA(depart);
}

void tst_DTabWidgetGlisser::refuseeSansPermission()
{
    Bureau bureau;
    bureau.source->MetsPeutGlisserDeposerOnglet(false);
    bureau.Prends(0);
    bureau.VaA(bureau.SurOnglet(0));
    bureau.LacheA(bureau.SurOnglet(0));
    QVERIFY(bureau.journal.lignes.isEmpty());
    QCOMPARE(bureau.source->DonneTotalOnglet(), 3);
}

void tst_DTabWidgetGlisser::autreGroupe()
{
    Bureau bureau(u"autre"_s);
    bureau.Prends(0);
    bureau.VaA(bureau.SurOnglet(0));
    bureau.LacheA(bureau.SurOnglet(0));
    QCOMPARE(bureau.journal.lignes, QStringList(u"source fenetre 0 a"_s));
    QCOMPARE(Titres(*bureau.source), u"a b c"_s);
    QCOMPARE(Titres(*bureau.cible), u"d e"_s);
}

void tst_DTabWidgetGlisser::horsDeToutWidget()
{
    Bureau bureau;
    bureau.Prends(1);
    bureau.journal.Prends();
    bureau.VaA(bureau.SurOnglet(0));
    bureau.VaA({5, 600});
    bureau.LacheA({5, 600});
    QCOMPARE(bureau.journal.lignes, QStringList(u"source fenetre 1 b"_s));
}

void tst_DTabWidgetGlisser::retourDansLaBarre()
{
    Bureau bureau;
    bureau.Prends(0);
    bureau.VaA(bureau.SurOnglet(0));
    QPoint const maison =
        Barre(*bureau.source).mapToGlobal(Barre(*bureau.source).tabRect(0).center());
    bureau.VaA(maison);
    bureau.LacheA(maison);
    QVERIFY(bureau.journal.lignes.isEmpty());
    QCOMPARE(Titres(*bureau.source), u"a b c"_s);
    QCOMPARE(Barre(*bureau.source).tabToolTip(0), u"a"_s);
}

void tst_DTabWidgetGlisser::hoteQuiOuvreUneFenetre()
{
    Bureau bureau;
    std::unique_ptr<DTabWidget> fenetre;
    connect(bureau.source.get(), &DTabWidget::SignalOngletNouvelleFenetre, this,
            [&](int index, QWidget * page) {
                QString const titre = bureau.source->DonneTitre(index);
                bureau.source->RetireOnglet(index);
                fenetre = std::make_unique<DTabWidget>(nullptr, u"g"_s);
                fenetre->AjouteOnglet(page, titre);
            });
    bureau.Prends(2);
    bureau.VaA({5, 600});
    bureau.LacheA({5, 600});
    QVERIFY(fenetre);
    QCOMPARE(Titres(*fenetre), u"c"_s);
    QCOMPARE(Titres(*bureau.source), u"a b"_s);
    QCOMPARE(bureau.source->DonneIndexCourant(), 1);
}

void tst_DTabWidgetGlisser::cibleDetruiteEnChemin()
{
    Bureau bureau;
    bureau.Prends(0);
    QPoint const but = bureau.SurOnglet(0);
    bureau.VaA(but);
    bureau.cible.reset();
    bureau.LacheA(but);
    QCOMPARE(bureau.journal.lignes, QStringList(u"source fenetre 0 a"_s));
}

void tst_DTabWidgetGlisser::pageFermeeEnChemin()
{
    Bureau bureau;
    bureau.Prends(0);
    QPoint const but = bureau.SurOnglet(0);
    bureau.VaA(but);
    delete bureau.source->DonneWidget(0);
    bureau.journal.Prends();
    bureau.LacheA(but);
    QCOMPARE(Titres(*bureau.source), u"b c"_s);
    QCOMPARE(Titres(*bureau.cible), u"d e"_s);
    QVERIFY(bureau.journal.lignes.filter(u"parti"_s).isEmpty());
}

// A derived widget that filters the events of a page gives the rest to the base.
void tst_DTabWidgetGlisser::filtreDUneClasseDerivee()
{
    class Derive : public DTabWidget
    {
    public:
        using DTabWidget::DTabWidget;
        bool eventFilter(QObject * objet, QEvent * evenement) override
        {
            return DTabWidget::eventFilter(objet, evenement);
        }
    } onglets(nullptr, {});
    QWidget page;
    QMouseEvent mouvement(QEvent::MouseMove, {5, 5}, {5, 5}, Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
    QVERIFY(!onglets.eventFilter(&page, &mouvement));
}

QTEST_MAIN(tst_DTabWidgetGlisser)
#include "tst_DTabWidgetGlisser.moc"
