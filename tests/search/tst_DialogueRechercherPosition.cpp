// search/tst_DialogueRechercherPosition.cpp
//
// Where the dialog opens. The process remembers one place, so each test leaves one behind, and the
// first is the one that finds none.
#include "search/EssaisDialogue.h"

#include <QtTest>

#include <QScreen>

using namespace EssaisDialogue;

namespace {

constexpr QPoint kLaisseIci(120, 90);
constexpr int kEcartDuCadre = 40; // the frame is guessed before the window has one

// Puts a dialog somewhere, as the user does, and closes it there.
void Laisse(QPoint const & position)
{
    DialogueRechercher dialogue(nullptr, false, 0);
    dialogue.AfficheToi();
    dialogue.move(position);
    dialogue.CacheToi();
}

QPoint PositionDUnNouveau()
{
    DialogueRechercher dialogue(nullptr, true, kToutOffrir);
    dialogue.AfficheToi();
    QPoint const position = dialogue.pos();
    dialogue.hide();
    return position;
}

QRect DonneEcran()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

bool EstALEcran(QWidget const & dialogue)
{
    QRect const cadre = dialogue.frameGeometry();
    return DonneEcran().contains(QPoint(cadre.center().x(), cadre.top())) &&
           DonneEcran()
               .marginsAdded({kEcartDuCadre, kEcartDuCadre, kEcartDuCadre, kEcartDuCadre})
               .contains(cadre);
}

} // namespace

class tst_DialogueRechercherPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void premiereOuverture();
    void rouvert();
    void nouveau();
    void dernierFermay();
    void detruitOuvert();
    void fermayDeToutesLesFacons();
    void placeParLApplication();
    void tailleNaturelle();
    void horsDeLEcran();
    void titreALEcran();
    void rouvertHorsDeLEcran();
    void minimisay();
};

void tst_DialogueRechercherPosition::premiereOuverture()
{
    QWidget parent;
    parent.setGeometry(200, 250, 300, 300);
    parent.show();
    auto * const dialogue = new DialogueRechercher(&parent, false, 0);
    dialogue->AfficheToi();
    QPoint const ecart = dialogue->geometry().center() - parent.geometry().center();
    QVERIFY(ecart.manhattanLength() <= kEcartDuCadre);

    // It stays there as long as it is open, wherever another one was left meanwhile.
    QPoint const position = dialogue->pos();
    Laisse(kLaisseIci);
    dialogue->AfficheToi();
    QCOMPARE(dialogue->pos(), position);
}

void tst_DialogueRechercherPosition::rouvert()
{
    Laisse({10, 10});
    DialogueRechercher dialogue(nullptr, false, 0);
    dialogue.AfficheToi();
    dialogue.move(kLaisseIci);
    for (int fois = 0; fois < 5; ++fois) {
        dialogue.CacheToi();
        Laisse({10, 10}); // another one
        dialogue.AfficheToi();
        QCOMPARE(dialogue.pos(), kLaisseIci);
    }
}

void tst_DialogueRechercherPosition::nouveau()
{
    Laisse(kLaisseIci);
    for (int fois = 0; fois < 5; ++fois)
        QCOMPARE(PositionDUnNouveau(), kLaisseIci);
}

// Of two, it is the one that was closed last.
void tst_DialogueRechercherPosition::dernierFermay()
{
    DialogueRechercher premier(nullptr, false, 0);
    premier.AfficheToi();
    DialogueRechercher second(nullptr, false, 0);
    second.AfficheToi();
    premier.move(200, 210);
    second.move(30, 40);
    second.hide();
    premier.hide();
    QCOMPARE(PositionDUnNouveau(), QPoint(200, 210));
}

void tst_DialogueRechercherPosition::detruitOuvert()
{
    Laisse({10, 10});
    {
        DialogueRechercher dialogue(nullptr, false, 0);
        dialogue.AfficheToi();
        dialogue.move(kLaisseIci);
    }
    QCOMPARE(PositionDUnNouveau(), kLaisseIci);
    // One that was never open was nowhere.
    {
        DialogueRechercher dialogue(nullptr, false, 0);
        dialogue.move(300, 300);
    }
    QCOMPARE(PositionDUnNouveau(), kLaisseIci);
}

void tst_DialogueRechercherPosition::fermayDeToutesLesFacons()
{
    QPoint position(50, 60);
    for (auto const ferme :
         {+[](DialogueRechercher & d) { Clique(d, "BoutonFermer"); },
          +[](DialogueRechercher & d) { QTest::keyClick(&d, Qt::Key_Escape); },
          +[](DialogueRechercher & d) { d.close(); }, +[](DialogueRechercher & d) { d.hide(); }}) {
        DialogueRechercher dialogue(nullptr, false, 0);
        dialogue.AfficheToi();
        position += QPoint(10, 20);
        dialogue.move(position);
        ferme(dialogue);
        QCOMPARE(PositionDUnNouveau(), position);
    }
}

void tst_DialogueRechercherPosition::placeParLApplication()
{
    Laisse({10, 10});
    DialogueRechercher dialogue(nullptr, false, 0);
    dialogue.move(kLaisseIci);
    dialogue.AfficheToi();
    QCOMPARE(dialogue.pos(), kLaisseIci);
}

// That it is measured before it opens gives it no size for ever.
void tst_DialogueRechercherPosition::tailleNaturelle()
{
    Laisse(kLaisseIci);
    DialogueRechercher dialogue(nullptr, false, 0);
    QFont police = dialogue.font();
    police.setPixelSize(30);
    dialogue.setFont(police);
    dialogue.AfficheToi();
    int const large = dialogue.width();
    dialogue.hide();
    police.setPixelSize(15);
    dialogue.setFont(police);
    dialogue.AfficheToi();
    QVERIFY(dialogue.width() < large);
}

// The screen on which it was left may be gone.
void tst_DialogueRechercherPosition::horsDeLEcran()
{
    QRect const ecran = DonneEcran();
    for (QPoint const position : {ecran.bottomRight() + QPoint(500, 500),
                                  ecran.topLeft() - QPoint(5000, 10), QPoint(100, -3000)}) {
        Laisse(position);
        DialogueRechercher dialogue(nullptr, true, kToutOffrir);
        dialogue.AfficheToi();
        QVERIFY(EstALEcran(dialogue));
    }
}

// Half of it is off the screen: that is how the user wants it.
void tst_DialogueRechercherPosition::titreALEcran()
{
    QRect const ecran = DonneEcran();
    QPoint const enBas(ecran.left() + 50, ecran.bottom() - 30);
    Laisse(enBas);
    QCOMPARE(PositionDUnNouveau(), enBas);
}

void tst_DialogueRechercherPosition::rouvertHorsDeLEcran()
{
    DialogueRechercher dialogue(nullptr, false, 0);
    dialogue.AfficheToi();
    dialogue.move(7000, 7000);
    dialogue.hide();
    dialogue.AfficheToi();
    QVERIFY(EstALEcran(dialogue));
}

// The place of an icon, where there is one, is not that of the dialog.
void tst_DialogueRechercherPosition::minimisay()
{
    Laisse(kLaisseIci);
    for (Qt::WindowState const etat : {Qt::WindowMinimized, Qt::WindowMaximized}) {
        DialogueRechercher dialogue(nullptr, false, 0);
        dialogue.AfficheToi();
        dialogue.move(300, 300);
        dialogue.setWindowState(etat);
        dialogue.hide();
        QCOMPARE(PositionDUnNouveau(), kLaisseIci);
    }
}

QTEST_MAIN(tst_DialogueRechercherPosition)
#include "tst_DialogueRechercherPosition.moc"
