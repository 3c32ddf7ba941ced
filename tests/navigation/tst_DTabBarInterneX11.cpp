// navigation/tst_DTabBarInterneX11.cpp
// The drag under a real window manager, with a mouse and a keyboard that it sees.
#include "RangeeDEssai.h"

#include "outils/EntreeX11.h"

#include <xcb/xcb.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time

using Point = std::function<QPoint()>;

/// Three windows: that of the dragged tab, one of its group and one of another.
struct Scene
{
    Scene()
    {
        QPixmap rouge(20, 20);
        rouge.fill(Qt::red);
        source.barre->MetsIconeOnglet(1, QIcon(rouge));
        for (RangeeDEssai * const rangee : {&source, cible.get(), &etrangere}) {
            rangee->show();
            QVERIFY(QTest::qWaitForWindowExposed(rangee, kDelai));
        }
        infobulles = source.DonneInfobulles();
    }
    /// All but the tool tips.
    bool EstAuRepos() const
    {
        return !source.barre->EstEnDeplacementExterne() && !TrouveFantome() &&
               (!cible || cible->barre->DonnePositionIndicateur().isNull());
    }

    RangeeDEssai source{4, "groupe", {40, 60}, 780};
    std::unique_ptr<RangeeDEssai> cible =
        std::make_unique<RangeeDEssai>(3, "groupe", QPoint(40, 400), 620);
    RangeeDEssai etrangere{2, "autre groupe", {40, 700}, 620};
    QStringList infobulles;
    QSignalSpy depots{source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne};
    QSignalSpy fenetres{source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre};
};

double LisOpacite(QWidget const & widget)
{
    auto * const natif = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t * const connexion = natif->connection();
    QByteArray const nom = "_NET_WM_WINDOW_OPACITY";
    std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> const atome(
        xcb_intern_atom_reply(connexion,
                              xcb_intern_atom(connexion, 0, uint16_t(nom.size()), nom.constData()),
                              nullptr),
        &std::free);
    std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> const reponse(
        xcb_get_property_reply(connexion,
                               xcb_get_property(connexion, 0, xcb_window_t(widget.winId()),
                                                atome->atom, XCB_ATOM_CARDINAL, 0, 1),
                               nullptr),
        &std::free);
    if (!reponse || xcb_get_property_value_length(reponse.get()) != 4)
        return 1.0;
    return *static_cast<uint32_t *>(xcb_get_property_value(reponse.get())) / double(UINT32_MAX);
}

} // namespace

class tst_DTabBarInterneX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void memeGroupe();
    void autreGroupe();
    void boutonsDeDefilement();
    void bureau();
    void retour();
    void deplacementDansLaRangee();
    void echappement();
    void sourisPerdue_data();
    void sourisPerdue();
    void cibleFermee_data();
    void cibleFermee();
    void ongletFermeParLHote();
    void fantome();
    void ordreDesFenetres();

private:
    bool Amene(Point const & point, std::function<bool()> const & condition);
    bool Commence(Scene & scene);
    void Relache(Scene & scene);

    EntreeX11 monEntree;
};

// The mouse goes there until that has the effect: the manager may still be moving a window.
bool tst_DTabBarInterneX11::Amene(Point const & point, std::function<bool()> const & condition)
{
    int essais = 0;
    auto const amene = [&] {
        monEntree.Deplace(point() + QPoint(++essais % 2, 0));
        return condition();
    };
    return QTest::qWaitFor(amene, kDelai);
}

// Presses tab 1 and takes it over the other bar of the group.
bool tst_DTabBarInterneX11::Commence(Scene & scene)
{
    QSignalSpy presses(scene.source.barre, &QTabBar::tabBarClicked);
    auto const surLOnglet = [&] { return scene.source.DonnePoint(1); };
    auto const dessous = [&] {
        return QApplication::widgetAt(QCursor::pos()) &&
               scene.source.barre->isAncestorOf(QApplication::widgetAt(QCursor::pos()));
    };
    if (!Amene(surLOnglet, dessous))
        return false;
    monEntree.Presse();
    return QTest::qWaitFor([&] { return presses.count() == 1; }, kDelai) &&
           presses.at(0).at(0).toInt() == 1 &&
           Amene([&] { return scene.cible->DonnePoint(1); },
                 [&] { return !scene.cible->barre->DonnePositionIndicateur().isNull(); });
}

void tst_DTabBarInterneX11::Relache(Scene & scene)
{
    monEntree.Relache();
    QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::mouseButtons() == Qt::NoButton, kDelai);
    QVERIFY(scene.EstAuRepos());
}

void tst_DTabBarInterneX11::initTestCase()
{
    QVERIFY(monEntree.EstPrete());
}

void tst_DTabBarInterneX11::cleanup()
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        monEntree.Relache();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabBarInterneX11::memeGroupe()
{
    Scene scene;
    QVERIFY(Commence(scene));
    QCOMPARE(scene.source.barre->tabToolTip(1), QString());

    Relache(scene);

    QCOMPARE(scene.depots.count(), 1);
    QCOMPARE(scene.depots.at(0).at(0).toInt(), 1);
    QCOMPARE(scene.depots.at(0).at(1).value<QWidget *>(), scene.cible->barre);
    QCOMPARE(scene.depots.at(0).at(2).toInt(), 1);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneX11::autreGroupe()
{
    Scene scene;
    QVERIFY(Commence(scene));

    QVERIFY(Amene([&] { return scene.etrangere.DonnePoint(1); },
                  [&] { return scene.cible->barre->DonnePositionIndicateur().isNull(); }));
    QVERIFY(scene.etrangere.barre->DonnePositionIndicateur().isNull());
    Relache(scene);

    QCOMPARE(scene.depots.count(), 0);
    QCOMPARE(scene.fenetres.count(), 1);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneX11::boutonsDeDefilement()
{
    Scene scene;
    for (int i = 0; i < 5; ++i)
        scene.cible->AjouteOnglet(u"Un de plus"_s);
    QVERIFY(Commence(scene));
    auto const surLesBoutons = [&] {
        return scene.cible->barre->mapToGlobal(QPoint(scene.cible->barre->width() - 6, 14));
    };

    QVERIFY(Amene(surLesBoutons,
                  [&] { return scene.cible->barre->DonnePositionIndicateur().isNull(); }));
    QVERIFY(qobject_cast<QToolButton *>(QApplication::widgetAt(surLesBoutons())));
    Relache(scene);

    QCOMPARE(scene.depots.count(), 0);
    QCOMPARE(scene.fenetres.count(), 1);
}

void tst_DTabBarInterneX11::bureau()
{
    Scene scene;
    QVERIFY(Commence(scene));
    QPoint const vide(1200, 500);

    QVERIFY(Amene([&] { return vide; },
                  [&] { return scene.cible->barre->DonnePositionIndicateur().isNull(); }));
    QVERIFY(!QApplication::widgetAt(vide)); // the picture is there
    QVERIFY(TrouveFantome()->geometry().contains(vide + QPoint(1, 1)));
    Relache(scene);

    QCOMPARE(scene.depots.count(), 0);
    QCOMPARE(scene.fenetres.count(), 1);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneX11::retour()
{
    Scene scene;
    QVERIFY(Commence(scene));

    QVERIFY(Amene([&] { return scene.source.DonnePoint(1); },
                  [&] { return !scene.source.barre->EstEnDeplacementExterne(); }));
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    Relache(scene);

    QCOMPARE(scene.depots.count() + scene.fenetres.count(), 0);
    QCOMPARE(scene.source.DonneTitre(1), u"Onglet 1"_s);
}

void tst_DTabBarInterneX11::deplacementDansLaRangee()
{
    Scene scene;
    QSignalSpy mouvements(scene.source.barre, &QTabBar::tabMoved);
    QVERIFY(Commence(scene));

    // Back home, and on to the right: Qt's own move goes on.
    QVERIFY(Amene([&] { return scene.source.DonnePoint(2, 0.9); },
                  [&] { return mouvements.count() > 0; }));
    QVERIFY(scene.source.barre->currentIndex() > 1);
    QCOMPARE(scene.source.DonneTitre(scene.source.barre->currentIndex()), u"Onglet 1"_s);
    Relache(scene);

    QCOMPARE(scene.depots.count() + scene.fenetres.count(), 0);
}

void tst_DTabBarInterneX11::echappement()
{
    Scene scene;
    QVERIFY(Commence(scene));

    monEntree.Frappe(EntreeX11::kEchappement);
    QTRY_VERIFY_WITH_TIMEOUT(scene.EstAuRepos(), kDelai);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QSignalSpy mouvements(scene.source.barre, &QTabBar::tabMoved);
    monEntree.Deplace(scene.cible->DonnePoint(2));
    monEntree.Deplace(scene.source.DonnePoint(3));
    Relache(scene);

    QCOMPARE(scene.depots.count() + scene.fenetres.count() + mouvements.count(), 0);
}

void tst_DTabBarInterneX11::sourisPerdue_data()
{
    QTest::addColumn<bool>("dialogue");
    QTest::newRow("to a menu") << false;
    QTest::newRow("to a dialog") << true;
}

void tst_DTabBarInterneX11::sourisPerdue()
{
    QFETCH(bool, dialogue);
    Scene scene;
    QMenu menu;
    menu.addAction(u"Action"_s);
    QDialog boite(&scene.source);
    QVERIFY(Commence(scene));

    if (dialogue)
        boite.open();
    else
        menu.popup(QPoint(1000, 300));
    QTRY_VERIFY_WITH_TIMEOUT(scene.EstAuRepos(), kDelai);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    monEntree.Relache();
    QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::mouseButtons() == Qt::NoButton, kDelai);

    QCOMPARE(scene.depots.count() + scene.fenetres.count(), 0);
}

void tst_DTabBarInterneX11::cibleFermee_data()
{
    QTest::addColumn<bool>("detruite");
    QTest::newRow("closed") << false;
    QTest::newRow("destroyed") << true;
}

void tst_DTabBarInterneX11::cibleFermee()
{
    QFETCH(bool, detruite);
    Scene scene;
    QVERIFY(Commence(scene));

    if (detruite)
        scene.cible.reset();
    else
        scene.cible->close();
    Relache(scene);

    QCOMPARE(scene.depots.count(), 0);
    QCOMPARE(scene.fenetres.count(), 1);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneX11::ongletFermeParLHote()
{
    Scene scene;
    QVERIFY(Commence(scene));
    scene.infobulles.removeAt(1);

    scene.source.barre->removeTab(1);
    QVERIFY(scene.EstAuRepos());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    monEntree.Deplace(scene.cible->DonnePoint(2));
    Relache(scene);

    QCOMPARE(scene.depots.count() + scene.fenetres.count(), 0);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneX11::fantome()
{
    Scene scene;
    QPoint const icone = scene.source.barre->DonneInfos(1).etiquetteIcone->geometry().center();
    QVERIFY(Commence(scene));
    QWidget * const fantome = TrouveFantome();
    QVERIFY(fantome);
    QVERIFY(qAbs(LisOpacite(*fantome) - 0.75) < 0.01);
    QVERIFY(QApplication::activeWindow() == &scene.source); // it has not taken the focus

    for (QPoint const point : {QPoint(1000, 500), QPoint(1100, 700), QPoint(1050, 650)}) {
        QVERIFY(Amene([&] { return point; }, [&] { return fantome->pos() == point; }));
        // Where X has it, with nothing between the mouse and it, and what it shows.
        auto const rouge = [&] {
            QPoint const endroit = point + icone;
            QImage const ecran =
                fantome->screen()->grabWindow(0, endroit.x(), endroit.y(), 1, 1).toImage();
            return ecran.pixelColor(0, 0) == QColor(Qt::red);
        };
        QTRY_VERIFY_WITH_TIMEOUT(rouge(), kDelai);
        QCOMPARE(QApplication::widgetAt(point + QPoint(2, 2)), nullptr);
    }
    Relache(scene);
    QVERIFY(!fantome->isVisible());
}

// A picture that belonged to a window would raise it over the bar that the tab is taken to.
void tst_DTabBarInterneX11::ordreDesFenetres()
{
    Scene scene;
    QVERIFY(Commence(scene));
    scene.cible->move(scene.source.pos() + QPoint(40, 60));
    scene.cible->raise();
    auto const commun = [&] { return scene.cible->mapToGlobal(QPoint(100, 10)); };
    auto const surLaCible = [&] {
        QWidget * const dessous = QApplication::widgetAt(commun());
        return dessous && dessous->window() == scene.cible.get();
    };
    QTRY_VERIFY_WITH_TIMEOUT(surLaCible(), kDelai);

    for (int i = 0; i < 5; ++i)
        QVERIFY(Amene([&] { return commun() + QPoint(10 * i, 0); }, [] { return true; }));
    QVERIFY(Amene(commun, [&] { return TrouveFantome() && surLaCible(); }));
    QVERIFY(scene.source.frameGeometry().contains(commun()));

    QTRY_VERIFY_WITH_TIMEOUT(!scene.cible->barre->DonnePositionIndicateur().isNull(), kDelai);
    Relache(scene);
    QCOMPARE(scene.depots.count(), 1);
}

QTEST_MAIN(tst_DTabBarInterneX11)
#include "tst_DTabBarInterneX11.moc"
