#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"
#include "outils/EntreeX11.h"

#include <QDialog>
#include <QScreen>
#include <QStandardItemModel>
#include <QWindow>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// Under a real window manager, with a mouse and a keyboard that it sees.

class tst_ListeChoixFlottanteX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void frappePendantQueLaListeParait();
    void choixAuClavier();
    void clicSansActivation();
    void survolReel();
    void fenetreIconisee();
    void bordDeLEcran_data();
    void bordDeLEcran();
    void dialogueModal();

private:
    /// Moves the mouse over a row until the list has noticed, which the window manager may still
    /// be moving.
    void Survole(Hote const & hote, int rangee);

    EntreeX11 monEntree;
};

namespace {

constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time

void Active(Hote & hote)
{
    QVERIFY(QTest::qWaitForWindowExposed(&hote.fenetre, kDelai));
    hote.champ->setFocus();
    // Again and again: a manager forgets what is asked for a window that it is still placing.
    auto const activee = [&] {
        hote.fenetre.activateWindow();
        return hote.fenetre.isActiveWindow();
    };
    QTRY_VERIFY_WITH_TIMEOUT(activee(), kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(hote.champ->hasFocus(), kDelai);
}

void Montre(Hote & hote, int nombre = 4)
{
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(nombre)));
    QVERIFY(QTest::qWaitForWindowExposed(hote.liste, kDelai));
}

QPoint SurLEcran(Hote const & hote, int rangee)
{
    return hote.Vue()->viewport()->mapToGlobal(hote.Milieu(rangee));
}

} // namespace

void tst_ListeChoixFlottanteX11::Survole(Hote const & hote, int rangee)
{
    int essais = 0;
    auto const survolay = [&] {
        monEntree.Deplace(SurLEcran(hote, rangee) + QPoint(++essais % 2, 0));
        return hote.Rangee() == rangee;
    };
    QTRY_VERIFY_WITH_TIMEOUT(survolay(), kDelai);
}

void tst_ListeChoixFlottanteX11::initTestCase()
{
    if (QGuiApplication::platformName() != u"xcb"_s || !monEntree.EstPrete())
        QSKIP("Needs an X server that simulates input.");
}

void tst_ListeChoixFlottanteX11::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteX11::frappePendantQueLaListeParait()
{
    Hote hote;
    Active(hote);
    QSignalSpy const activations(qApp, &QGuiApplication::focusWindowChanged);
    // As a host does: new proposals at each keystroke.
    connect(hote.champ, &QLineEdit::textEdited, hote.liste, [&](QString const & texte) {
        hote.liste->ActualiseListeChoix(
            CreeRangees(CreeTextes(static_cast<int>(texte.size()) * 3)));
    });
    QString const mot = u"abcdef"_s;
    for (int i = 0; i < mot.size(); ++i) {
        monEntree.Frappe(mot.at(i).unicode());
        QTRY_COMPARE_WITH_TIMEOUT(hote.champ->text(), mot.left(i + 1), kDelai);
        QVERIFY(QTest::qWaitForWindowExposed(hote.liste, kDelai));
    }
    QVERIFY(hote.fenetre.isActiveWindow());
    QVERIFY(hote.champ->hasFocus());
    QCOMPARE(activations.count(), 0);
}

void tst_ListeChoixFlottanteX11::choixAuClavier()
{
    Hote hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Active(hote);
    Montre(hote);
    monEntree.Frappe(EntreeX11::kBas);
    monEntree.Frappe(EntreeX11::kBas);
    QTRY_COMPARE_WITH_TIMEOUT(hote.Rangee(), 1, kDelai);
    monEntree.Frappe(EntreeX11::kRetour);
    QTRY_COMPARE_WITH_TIMEOUT(DernierChoix(choix), QStringList(u"mot 1"_s), kDelai);
    monEntree.Frappe(EntreeX11::kEchappement);
    QTRY_VERIFY_WITH_TIMEOUT(hote.liste->isHidden(), kDelai);
    QTRY_COMPARE_WITH_TIMEOUT(hote.champ->touches, QList<int>{Qt::Key_Escape}, kDelai);
}

void tst_ListeChoixFlottanteX11::clicSansActivation()
{
    Hote hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Active(hote);
    QSignalSpy const activations(qApp, &QGuiApplication::focusWindowChanged);
    Montre(hote);
    Survole(hote, 2);
    monEntree.Clique(SurLEcran(hote, 2));
    QTRY_COMPARE_WITH_TIMEOUT(choix.count(), 1, kDelai);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 2"_s));
    monEntree.Frappe('a');
    QTRY_COMPARE_WITH_TIMEOUT(hote.champ->text(), u"a"_s, kDelai);
    QVERIFY(hote.liste->isVisible());
    QVERIFY(hote.fenetre.isActiveWindow());
    QVERIFY(hote.champ->hasFocus());
    QCOMPARE(activations.count(), 0);
}

void tst_ListeChoixFlottanteX11::survolReel()
{
    Hote hote;
    Active(hote);
    Montre(hote);
    for (int const rangee : {3, 1}) {
        Survole(hote, rangee);
        QCOMPARE(hote.Rangee(), rangee);
    }
    QVERIFY(hote.champ->hasFocus());
}

void tst_ListeChoixFlottanteX11::fenetreIconisee()
{
    Hote hote;
    Active(hote);
    Montre(hote);
    hote.fenetre.showMinimized();
    QTRY_VERIFY_WITH_TIMEOUT(hote.liste->isHidden(), kDelai);
    hote.fenetre.showNormal();
    QVERIFY(QTest::qWaitForWindowExposed(&hote.fenetre, kDelai));
    QVERIFY(hote.liste->isHidden());
    Montre(hote);
    QVERIFY(hote.liste->isVisible());
}

void tst_ListeChoixFlottanteX11::bordDeLEcran_data()
{
    QTest::addColumn<QPoint>("coin"); // of the field, from the lower right corner of the screen
    QTest::newRow("lower edge") << QPoint(-600, -60);
    QTest::newRow("right edge") << QPoint(-30, -600);
}

void tst_ListeChoixFlottanteX11::bordDeLEcran()
{
    // Deliberate: the list stays with its field and hangs over the edge. Only what the manager
    // would leave no handful of is moved by it.
    QFETCH(QPoint, coin);
    Hote hote;
    Active(hote);
    hote.champ->setWindowFlags(Qt::Window | Qt::BypassWindowManagerHint);
    hote.champ->move(QGuiApplication::primaryScreen()->geometry().bottomRight() + coin);
    hote.champ->show();
    QVERIFY(QTest::qWaitForWindowExposed(hote.champ, kDelai));
    Montre(hote, 10);
    QTRY_COMPARE_WITH_TIMEOUT(hote.liste->pos(), hote.champ->geometry().bottomLeft(), kDelai);
}

void tst_ListeChoixFlottanteX11::dialogueModal()
{
    Hote hote;
    QDialog dialogue(&hote.fenetre);
    dialogue.setModal(true);
    dialogue.resize(300, 200);
    hote.champ->setParent(&dialogue);
    hote.champ->show();
    dialogue.show();
    hote.champ->setFocus();
    QTRY_VERIFY_WITH_TIMEOUT(dialogue.isActiveWindow(), kDelai);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Montre(hote);
    Survole(hote, 2);
    monEntree.Clique(SurLEcran(hote, 2));
    QTRY_COMPARE_WITH_TIMEOUT(DernierChoix(choix), QStringList(u"mot 2"_s), kDelai);
    QVERIFY(dialogue.isActiveWindow());
    hote.champ->setParent(&hote.fenetre);
}

QTEST_MAIN(tst_ListeChoixFlottanteX11)
#include "tst_ListeChoixFlottanteX11.moc"
