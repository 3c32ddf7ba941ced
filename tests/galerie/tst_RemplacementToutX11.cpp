// tests/galerie/tst_RemplacementToutX11.cpp
#include "RemplacementTout.h"

#include "dialogs/DDialogueProgressionInfinie.h"

#include <QPlainTextEdit>
#include <QtTest>

using namespace Qt::StringLiterals;

// On a real desktop: the window of the progress leaves the keyboard to the text and goes with the
// editor's.
class tst_RemplacementToutX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void fenetreSansFoyer();
    void fenetreIconifieeAvecLaSienne();
};

void tst_RemplacementToutX11::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

namespace {

void Montre(QPlainTextEdit & editeur)
{
    editeur.setGeometry(300, 250, 500, 400);
    editeur.show();
    editeur.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editeur));
    QTRY_VERIFY(editeur.hasFocus());
}

} // namespace

void tst_RemplacementToutX11::fenetreSansFoyer()
{
    QPlainTextEdit editeur;
    Montre(editeur);
    auto * const fenetre = new DDialogueProgressionInfinie(&editeur, u"texte"_s, u"texte"_s,
                                                           RemplacementTout::kDrapeauxFenetre);
    fenetre->show();
    QVERIFY(QTest::qWaitForWindowExposed(fenetre));
    QCOMPARE(fenetre->windowHandle()->transientParent(), editeur.windowHandle());
    QCoreApplication::processEvents();
    QVERIFY(editeur.hasFocus());
    QVERIFY(editeur.isActiveWindow());
}

void tst_RemplacementToutX11::fenetreIconifieeAvecLaSienne()
{
    QPlainTextEdit editeur;
    Montre(editeur);
    auto * const fenetre = new DDialogueProgressionInfinie(&editeur, u"texte"_s, u"texte"_s,
                                                           RemplacementTout::kDrapeauxFenetre);
    fenetre->show();
    QVERIFY(QTest::qWaitForWindowExposed(fenetre));
    editeur.showMinimized();
    QTRY_VERIFY(!fenetre->windowHandle()->isExposed());
    editeur.showNormal();
    QTRY_VERIFY(fenetre->windowHandle()->isExposed());
}

QTEST_MAIN(tst_RemplacementToutX11)
#include "tst_RemplacementToutX11.moc"
