// search/tst_DialogueRechercherX11.cpp
//
// The dialog in front of a real window manager, whose frames have a size.
#include "search/EssaisDialogue.h"

#include <QtTest>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

namespace {

// Once the manager has framed it. Asked from the window: the widget may never hear of its frame.
bool AttendsCadre(DialogueRechercher const & dialogue)
{
    return QTest::qWaitForWindowActive(dialogue.windowHandle()) &&
           QTest::qWaitFor([&] { return !dialogue.windowHandle()->frameMargins().isNull(); });
}

QPoint DonnePosition(DialogueRechercher const & dialogue)
{
    return dialogue.windowHandle()->framePosition();
}

} // namespace

class tst_DialogueRechercherX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void resteEnPlace();
    void nouveauAuMemeEndroit();
    void devantSaFenetreSansLaBloquer();
    void fermayParLeGestionnaire();
};

void tst_DialogueRechercherX11::initTestCase()
{
    if (QGuiApplication::platformName() != "xcb"_L1)
        QSKIP("needs an X server");
}

// Frames must not make it creep.
void tst_DialogueRechercherX11::resteEnPlace()
{
    Banc const banc;
    QVERIFY(AttendsCadre(*banc.dialogue));
    banc.dialogue->windowHandle()->setFramePosition({140, 110});
    QTRY_COMPARE(DonnePosition(*banc.dialogue), QPoint(140, 110));
    for (int fois = 0; fois < 4; ++fois) {
        banc.dialogue->CacheToi();
        banc.dialogue->AfficheToi();
        QVERIFY(AttendsCadre(*banc.dialogue));
        QTRY_COMPARE(DonnePosition(*banc.dialogue), QPoint(140, 110));
    }
}

void tst_DialogueRechercherX11::nouveauAuMemeEndroit()
{
    {
        Banc const banc;
        QVERIFY(AttendsCadre(*banc.dialogue));
        banc.dialogue->windowHandle()->setFramePosition({180, 130});
        QTRY_COMPARE(DonnePosition(*banc.dialogue), QPoint(180, 130));
    }
    for (int fois = 0; fois < 4; ++fois) {
        Banc const banc;
        QVERIFY(AttendsCadre(*banc.dialogue));
        QTRY_COMPARE(DonnePosition(*banc.dialogue), QPoint(180, 130));
    }
}

void tst_DialogueRechercherX11::devantSaFenetreSansLaBloquer()
{
    QLineEdit document;
    document.setGeometry(300, 300, 300, 200);
    document.show();
    QVERIFY(QTest::qWaitForWindowActive(&document));
    auto * const dialogue = new DialogueRechercher(&document, true, kToutOffrir);
    dialogue->AfficheToi(CstRecherche::kNouvelleRecherche, "texte");
    QVERIFY(QTest::qWaitForWindowActive(dialogue));
    auto const * const champ = Controle<QLineEdit>(*dialogue, "ChampRecherche");
    QTRY_VERIFY(champ->hasFocus());
    QCOMPARE(champ->selectedText(), u"texte"_s);
    // The manager may refuse a request that it takes for an old one.
    QTRY_VERIFY((document.activateWindow(), document.isActiveWindow()));
    QTest::keyClicks(&document, u"abc"_s);
    QCOMPARE(document.text(), u"abc"_s);
    QVERIFY(dialogue->isVisible());
    dialogue->AfficheToi(CstRecherche::kVersLeBas, {});
    QVERIFY(document.isActiveWindow());
    QTRY_VERIFY((dialogue->PrendsFocus(), dialogue->isActiveWindow()));
}

// The message that the close button of the frame sends.
void tst_DialogueRechercherX11::fermayParLeGestionnaire()
{
    Banc const banc;
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
    QSignalSpy const fermay(banc.dialogue, &DialogueRechercher::SignalDialogueRechercheFermay);
    banc.dialogue->windowHandle()->close();
    QTRY_COMPARE(fermay.size(), 1);
    QTRY_VERIFY(banc.dialogue->isHidden());
    QCOMPARE(banc.hote.DonneNoms(), QStringList{u"AnnulerRemplacerTout"_s});
    banc.dialogue->AfficheToi();
    QVERIFY(QTest::qWaitForWindowActive(banc.dialogue));
}

QTEST_MAIN(tst_DialogueRechercherX11)
#include "tst_DialogueRechercherX11.moc"
