#include "lists/PiecesBarreDeFiltre.h"
#include "outils/EntreeX11.h"

#include <QLineEdit>
#include <QWindow>
#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;

// Under a real window manager, with a mouse that it sees.

class tst_BarreDeFiltreX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void clicSurLeBoutonFerme();
    void auClavier();
    void placement();
    void flecheDuChamp();
    void croixDUnePastille();

private:
    EntreeX11 monEntree;
};

namespace {

constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time
constexpr int kTour = 20;      // ms; between two looks at what has become of a click

struct Essai : FenetreDeBarreDeFiltre
{
    Essai() { barre->AjouterComboBox(1, u"Longueur"_s, CreeComboDeFiltre()); }

    bool Active()
    {
        barre->AfficherListePastille(true);
        fenetre.show();
        if (!QTest::qWaitForWindowExposed(&fenetre, kDelai))
            return false;
        // Again and again: a manager forgets what is asked for a window that it is still placing.
        return QTest::qWaitFor(
            [this] {
                fenetre.activateWindow();
                return fenetre.isActiveWindow();
            },
            kDelai);
    }

    static QPoint Centre(QWidget const & widget)
    {
        return widget.mapToGlobal(widget.rect().center());
    }
};

// Does something once the menu is on the screen, in its event loop.
class UneFoisOuvert : public QObject
{
public:
    UneFoisOuvert(QMenu & menu, std::function<void()> travail)
        : monMenu(menu)
        , monTravail(std::move(travail))
    {
        connect(&menu, &QMenu::aboutToShow, this, [this] {
            ++ouvertures;
            maMinuterie.start(kTour, this);
        });
    }

    int ouvertures = 0;

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (!monMenu.isVisible() || !monMenu.windowHandle()->isExposed())
            return;
        maMinuterie.stop();
        monTravail();
    }

private:
    QMenu & monMenu;
    std::function<void()> monTravail;
    QBasicTimer maMinuterie;
};

} // namespace

void tst_BarreDeFiltreX11::initTestCase()
{
    if (QGuiApplication::platformName() != u"xcb"_s || !monEntree.EstPrete())
        QSKIP("Needs an X server that simulates input.");
}

void tst_BarreDeFiltreX11::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltreX11::clicSurLeBoutonFerme()
{
    Essai essai;
    QVERIFY(essai.Active());
    QSignalSpy const clics(essai.pieces.bouton, &QToolButton::clicked);
    UneFoisOuvert const ouvert(*essai.pieces.Menu(),
                               [&] { monEntree.Clique(Essai::Centre(*essai.pieces.bouton)); });
    for (int fois = 1; fois <= 2; ++fois) {
        monEntree.Clique(Essai::Centre(*essai.pieces.bouton));
        QTRY_COMPARE_WITH_TIMEOUT(ouvert.ouvertures, fois, kDelai);
        QTRY_VERIFY_WITH_TIMEOUT(!essai.pieces.Menu()->isVisible(), kDelai);
        // A click that comes later has arrived: so have all that one before it could do.
        essai.suite->setFocus();
        monEntree.Clique(Essai::Centre(*essai.pieces.champ->lineEdit()));
        QTRY_VERIFY_WITH_TIMEOUT(essai.pieces.champ->hasFocus(), kDelai);
        QVERIFY(!essai.pieces.Menu()->isVisible());
        QCOMPARE(ouvert.ouvertures, fois);
        QCOMPARE(clics.count(), fois);
        QVERIFY(!essai.pieces.bouton->isChecked());
        QVERIFY(!essai.pieces.bouton->isDown());
    }
}

void tst_BarreDeFiltreX11::auClavier()
{
    Essai essai;
    QVERIFY(essai.Active());
    UneFoisOuvert const ouvert(*essai.pieces.Menu(),
                               [&] { monEntree.Frappe(EntreeX11::kEchappement); });
    essai.pieces.bouton->setFocus();
    monEntree.Frappe(' ');
    QTRY_COMPARE_WITH_TIMEOUT(ouvert.ouvertures, 1, kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(!essai.pieces.Menu()->isVisible(), kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(essai.pieces.bouton->hasFocus(), kDelai);
    QVERIFY(!essai.pieces.bouton->isChecked());
}

void tst_BarreDeFiltreX11::placement()
{
    Essai essai;
    QVERIFY(essai.Active());
    QPoint position;
    QPoint attendue;
    UneFoisOuvert const ouvert(*essai.pieces.Menu(), [&] {
        position = essai.pieces.Menu()->pos();
        QPoint const bouton = essai.pieces.bouton->mapToGlobal(QPoint(0, 0));
        attendue = {bouton.x() + essai.pieces.bouton->width() / 2 - essai.pieces.popUp->width() / 2,
                    bouton.y() - 10 - essai.pieces.popUp->height()};
        essai.pieces.Menu()->close();
    });
    monEntree.Clique(Essai::Centre(*essai.pieces.bouton));
    QTRY_COMPARE_WITH_TIMEOUT(ouvert.ouvertures, 1, kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(!attendue.isNull(), kDelai);
    QCOMPARE(position, attendue);
}

void tst_BarreDeFiltreX11::flecheDuChamp()
{
    Essai essai;
    DChampRecherche & champ = *essai.pieces.champ;
    champ.AjouteMode(1, u"contient"_s);
    champ.AjouteMode(2, u"commence par"_s);
    QVERIFY(essai.Active());
    QPoint const fleche = champ.mapToGlobal(QPoint(champ.width() - 6, champ.height() / 2));
    monEntree.Clique(fleche);
    QTRY_VERIFY_WITH_TIMEOUT(champ.findChild<QMenu *>(), kDelai);
    QMenu const * const menu = champ.findChild<QMenu *>();
    QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), kDelai);
    QVERIFY(QTest::qWaitForWindowExposed(menu->windowHandle(), kDelai));
    QSignalSpy const ouvertures(menu, &QMenu::aboutToShow);
    monEntree.Clique(fleche);
    QTRY_VERIFY_WITH_TIMEOUT(!menu->isVisible(), kDelai);
    essai.suite->setFocus();
    monEntree.Clique(Essai::Centre(*champ.lineEdit()));
    QTRY_VERIFY_WITH_TIMEOUT(champ.hasFocus(), kDelai);
    QCOMPARE(ouvertures.count(), 0);
}

void tst_BarreDeFiltreX11::croixDUnePastille()
{
    Essai essai;
    QVERIFY(essai.Active());
    essai.Ajoute(3);
    connect(essai.barre, &BarreDeFiltre::PastilleASupprimer, essai.barre,
            &BarreDeFiltre::SupprimerPastille, Qt::UniqueConnection);
    Pastille const * const pastille = essai.pieces.Pastilles()[1];
    monEntree.Clique(pastille->mapToGlobal(pastille->DonneRectBoutonSupprimer().center()));
    QTRY_COMPARE_WITH_TIMEOUT(essai.pieces.Cles(), QVariantList({0, 2}), kDelai);
}

QTEST_MAIN(tst_BarreDeFiltreX11)
#include "tst_BarreDeFiltreX11.moc"
