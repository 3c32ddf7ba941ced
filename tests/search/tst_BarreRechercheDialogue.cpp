// tests/search/tst_BarreRechercheDialogue.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include <QtTest>

#include <QDialog>
#include <QPushButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// The way in which a host keeps the keys of a dialog from it.
class GardeTouches : public QObject
{
public:
    explicit GardeTouches(BarreRecherche & barre)
    {
        barre.installEventFilter(this);
        for (QLineEdit * const champ : barre.findChildren<QLineEdit *>())
            champ->installEventFilter(this);
    }

    bool eventFilter(QObject * objet, QEvent * evenement) override
    {
        if (evenement->type() != QEvent::KeyPress && evenement->type() != QEvent::KeyRelease)
            return false;
        auto const & touche = *static_cast<QKeyEvent *>(evenement);
        bool const estEchap = touche.key() == Qt::Key_Escape;
        if (evenement->type() == QEvent::KeyRelease)
            return estEchap && touche.isAutoRepeat();
        bool const estEntree = touche.key() == Qt::Key_Return || touche.key() == Qt::Key_Enter;
        if (qobject_cast<BarreRecherche *>(objet) == nullptr || (!estEchap && !estEntree))
            return false;
        evenement->accept();
        return true;
    }
};

// As of a key that is held down.
void RepeteEchap(QDialog const & dialogue, QEvent::Type type)
{
    QKeyEvent evenement(type, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(dialogue.focusWidget(), &evenement);
}

} // namespace

class tst_BarreRechercheDialogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void echap_data();
    void echap();
    void retour_data();
    void retour();
};

void tst_BarreRechercheDialogue::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheDialogue::echap_data()
{
    QTest::addColumn<bool>("garde");
    QTest::addColumn<bool>("tenue");
    QTest::newRow("the press goes to the dialog") << false << false;
    QTest::newRow("the host keeps the press") << true << false;
    QTest::newRow("held down, kept") << true << true;
}

void tst_BarreRechercheDialogue::echap()
{
    QFETCH(bool, garde);
    QFETCH(bool, tenue);
    QDialog dialogue;
    auto * const barre = new BarreRecherche(&dialogue, true);
    barre->resize(400, barre->height());
    std::unique_ptr<GardeTouches> const gardien(garde ? new GardeTouches(*barre) : nullptr);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    QTRY_VERIFY(PiecesBarre(*barre).recherche->hasFocus());

    QTest::keyPress(dialogue.windowHandle(), Qt::Key_Escape);
    if (tenue) {
        RepeteEchap(dialogue, QEvent::KeyRelease);
        QVERIFY(barre->isVisible());
        RepeteEchap(dialogue, QEvent::KeyPress);
    }
    QTest::keyRelease(dialogue.windowHandle(), Qt::Key_Escape);

    QCOMPARE(dialogue.isVisible(), garde);
    if (garde)
        QVERIFY(barre->isHidden());
}

void tst_BarreRechercheDialogue::retour_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<bool>("garde");
    for (bool const garde : {false, true}) {
        QTest::addRow("Return, kept %d", int(garde)) << Qt::Key_Return << garde;
        QTest::addRow("Enter, kept %d", int(garde)) << Qt::Key_Enter << garde;
    }
}

void tst_BarreRechercheDialogue::retour()
{
    QFETCH(Qt::Key, touche);
    QFETCH(bool, garde);
    QDialog dialogue;
    auto * const barre = new BarreRecherche(&dialogue);
    barre->resize(400, barre->height());
    auto * const defaut = new QPushButton(&dialogue);
    defaut->move(0, 60);
    defaut->setDefault(true);
    HoteEspion const hote(barre);
    QSignalSpy const clics(defaut, &QPushButton::clicked);
    std::unique_ptr<GardeTouches> const gardien(garde ? new GardeTouches(*barre) : nullptr);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    QTRY_VERIFY(PiecesBarre(*barre).recherche->hasFocus());

    QTest::keyClick(dialogue.windowHandle(), touche);

    QCOMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
    QCOMPARE(clics.size(), garde ? 0 : 1);
}

QTEST_MAIN(tst_BarreRechercheDialogue)
#include "tst_BarreRechercheDialogue.moc"
