#include "controls/DComboBoxAvecDLabelElision.h"

#include <QClipboard>
#include <QCompleter>
#include <QLineEdit>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

// The completer, and the line edit with it, comes after the hiding.

namespace {

std::unique_ptr<DComboBox> Cree(bool avecLabel)
{
    auto combo =
        avecLabel ? std::make_unique<DComboBoxAvecDLabelElision>() : std::make_unique<DComboBox>();
    combo->CachePremierElement();
    combo->addItems({u"alpha"_s, u"alto"_s, u"beta"_s});
    return combo;
}

// Straight to the line edit, where a test or an input panel may send them.
void Tape(DComboBox & combo, QString const & texte)
{
    combo.lineEdit()->clear();
    QTest::keyClicks(combo.lineEdit(), texte);
}

QCompleter * CreeCompleteur(DComboBox & combo, QCompleter::CompletionMode mode)
{
    auto * const completeur = new QCompleter(combo.model(), &combo);
    completeur->setCompletionMode(mode);
    return completeur;
}

// The popup of a completer has no parent.
void FermeLaListe(DComboBox const & combo)
{
    combo.completer()->popup()->hide();
}

} // namespace

class tst_DComboBoxPremierCachayCompleteur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void touchesAuChamp_data();
    void touchesAuChamp();
    void entreeValideLeSuivant();
    void nonEditablePuisEditable();
    void champDeLHote_data();
    void champDeLHote();
    void champDejaEnfant();
    void completeurDeLHote_data();
    void completeurDeLHote();
    void completeurApresLeChamp();
    void collage_data();
    void collage();
    void collageInvisible();
    void methodeDeSaisieAuChamp();
    void fleches();
    void sansCache();
    void filtreDUneClasseDerivee();
};

void tst_DComboBoxPremierCachayCompleteur::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayCompleteur::touchesAuChamp_data()
{
    QTest::addColumn<bool>("avecLabel");
    QTest::addColumn<bool>("montray");
    QTest::newRow("plain, never shown") << false << false;
    QTest::newRow("plain, shown") << false << true;
    QTest::newRow("with a label, never shown") << true << false;
    QTest::newRow("with a label, shown") << true << true;
}

void tst_DComboBoxPremierCachayCompleteur::touchesAuChamp()
{
    QFETCH(bool, avecLabel);
    QFETCH(bool, montray);
    auto const combo = Cree(avecLabel);
    combo->setVisible(montray);
    combo->setEditable(true);
    Tape(*combo, u"al"_s);
    QCOMPARE(combo->completer()->completionCount(), 1);
    QCOMPARE(combo->completer()->currentCompletion(), u"alto"_s);
}

void tst_DComboBoxPremierCachayCompleteur::entreeValideLeSuivant()
{
    auto const combo = Cree(false);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCurrentIndex(2);
    combo->show();
    combo->activateWindow();
    combo->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(combo.get())); // inline completion needs the focus
    Tape(*combo, u"al"_s);
    QCOMPARE(combo->lineEdit()->text(), u"alto"_s);
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    QCOMPARE(combo->currentIndex(), 1);
}

void tst_DComboBoxPremierCachayCompleteur::nonEditablePuisEditable()
{
    auto const combo = Cree(false);
    for (int i = 0; i < 3; ++i) {
        combo->setEditable(true);
        Tape(*combo, u"al"_s);
        QCOMPARE(combo->completer()->completionCount(), 1);
        combo->setEditable(false);
    }
    // The former line edits may go only now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    combo->setEditable(true);
    Tape(*combo, u"al"_s);
    QCOMPARE(combo->completer()->completionCount(), 1);
}

void tst_DComboBoxPremierCachayCompleteur::champDeLHote_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("montray");
    QTest::newRow("the first line edit") << false << false;
    QTest::newRow("the first line edit, shown") << false << true;
    QTest::newRow("in place of another one") << true << false;
    QTest::newRow("in place of another one, shown") << true << true;
}

void tst_DComboBoxPremierCachayCompleteur::champDeLHote()
{
    QFETCH(bool, editable);
    QFETCH(bool, montray);
    auto const combo = Cree(false);
    combo->setVisible(montray);
    combo->setEditable(editable);
    QCoreApplication::processEvents(); // has the former one followed
    combo->setLineEdit(new QLineEdit);
    Tape(*combo, u"al"_s);
    QCOMPARE(combo->completer()->completionCount(), 1);
}

void tst_DComboBoxPremierCachayCompleteur::champDejaEnfant()
{
    auto const combo = Cree(false);
    auto * const champ = new QLineEdit(combo.get());
    combo->show();
    combo->setLineEdit(champ);
    Tape(*combo, u"al"_s);
    QCOMPARE(combo->completer()->completionCount(), 1);
}

void tst_DComboBoxPremierCachayCompleteur::completeurDeLHote_data()
{
    QTest::addColumn<QCompleter::CompletionMode>("mode");
    QTest::newRow("inline") << QCompleter::InlineCompletion;
    QTest::newRow("popup") << QCompleter::PopupCompletion;
    QTest::newRow("unfiltered") << QCompleter::UnfilteredPopupCompletion;
}

void tst_DComboBoxPremierCachayCompleteur::completeurDeLHote()
{
    QFETCH(QCompleter::CompletionMode, mode);
    auto const combo = Cree(false);
    combo->show();
    combo->setEditable(true);
    combo->setCompleter(CreeCompleteur(*combo, mode));
    Tape(*combo, u"al"_s);
    bool const tout = mode == QCompleter::UnfilteredPopupCompletion;
    QCOMPARE(combo->completer()->completionModel()->rowCount(), tout ? 2 : 1);
    QCOMPARE(combo->completer()->completionModel()->index(0, 0).data().toString(), u"alto"_s);
    if (mode != QCompleter::InlineCompletion)
        FermeLaListe(*combo);
}

void tst_DComboBoxPremierCachayCompleteur::completeurApresLeChamp()
{
    auto const combo = Cree(false);
    combo->setEditable(true);
    Tape(*combo, u"al"_s);
    for (int i = 0; i < 2; ++i) { // of the line edit that has been heard of
        combo->lineEdit()->setCompleter(CreeCompleteur(*combo, QCompleter::InlineCompletion));
        Tape(*combo, u"al"_s);
        QCOMPARE(combo->completer()->completionCount(), 1);
    }
    combo->setCompleter(nullptr);
    Tape(*combo, u"al"_s);
    QCOMPARE(combo->lineEdit()->text(), u"al"_s);
}

void tst_DComboBoxPremierCachayCompleteur::collage_data()
{
    QTest::addColumn<bool>("avecLabel");
    QTest::newRow("plain") << false;
    QTest::newRow("with a label") << true;
}

void tst_DComboBoxPremierCachayCompleteur::collage()
{
    QFETCH(bool, avecLabel);
    auto const combo = Cree(avecLabel);
    combo->show();
    combo->setEditable(true);
    combo->setCompleter(CreeCompleteur(*combo, QCompleter::PopupCompletion));
    combo->lineEdit()->clear();
    QGuiApplication::clipboard()->setText(u"al"_s);
    combo->lineEdit()->paste();
    QCOMPARE(combo->lineEdit()->text(), u"al"_s);
    QCOMPARE(combo->completer()->completionCount(), 1);
    QVERIFY(combo->completer()->popup()->isVisible());
    QCOMPARE(combo->completer()->popup()->model()->index(0, 0).data().toString(), u"alto"_s);
    FermeLaListe(*combo);

    // One that arrives between two pastes.
    combo->setCompleter(CreeCompleteur(*combo, QCompleter::PopupCompletion));
    combo->lineEdit()->selectAll();
    combo->lineEdit()->paste();
    QCOMPARE(combo->completer()->completionCount(), 1);
    FermeLaListe(*combo);
}

void tst_DComboBoxPremierCachayCompleteur::collageInvisible()
{
    auto const combo = Cree(false);
    combo->setEditable(true);
    combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
    combo->lineEdit()->clear();
    QGuiApplication::clipboard()->setText(u"al"_s);
    combo->lineEdit()->paste();
    QCOMPARE(combo->completer()->completionCount(), 1);
    FermeLaListe(*combo);
}

void tst_DComboBoxPremierCachayCompleteur::methodeDeSaisieAuChamp()
{
    auto const combo = Cree(false);
    combo->setEditable(true);
    combo->lineEdit()->clear();
    QInputMethodEvent evenement;
    evenement.setCommitString(u"al"_s);
    QCoreApplication::sendEvent(combo->lineEdit(), &evenement);
    QCOMPARE(combo->lineEdit()->text().left(2), u"al"_s);
    QCOMPARE(combo->completer()->completionCount(), 1);
}

// With Ctrl they go through the completions, and edit no text before.
void tst_DComboBoxPremierCachayCompleteur::fleches()
{
    auto const combo = Cree(false);
    combo->setEditable(true);
    combo->setCurrentIndex(2);
    combo->show();
    combo->activateWindow();
    combo->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(combo.get()));
    combo->lineEdit()->setText(u"al"_s);
    combo->setCompleter(CreeCompleteur(*combo, QCompleter::InlineCompletion));
    for (Qt::Key const touche : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Down}) {
        // Not with QTest, which presses Ctrl before.
        QKeyEvent evenement(QEvent::KeyPress, touche, Qt::ControlModifier);
        QCoreApplication::sendEvent(combo->lineEdit(), &evenement);
        QCOMPARE(combo->lineEdit()->text(), u"alto"_s);
    }
}

void tst_DComboBoxPremierCachayCompleteur::sansCache()
{
    DComboBox combo;
    combo.addItems({u"alpha"_s, u"alto"_s});
    combo.setEditable(true);
    Tape(combo, u"al"_s);
    QCOMPARE(combo.completer()->completionCount(), 2);
    QCOMPARE(combo.completer()->model(), combo.model());
}

void tst_DComboBoxPremierCachayCompleteur::filtreDUneClasseDerivee()
{
    class Combo : public DComboBox
    {
    public:
        bool eventFilter(QObject * objet, QEvent * evenement) override
        {
            mesDuChamp += objet == lineEdit();
            return DComboBox::eventFilter(objet, evenement);
        }
        int mesDuChamp = 0;
    };
    Combo combo;
    combo.CachePremierElement();
    combo.addItems({u"alpha"_s, u"alto"_s});
    combo.setEditable(true);
    Tape(combo, u"al"_s);
    QCOMPARE(combo.completer()->completionCount(), 1);
    QCOMPARE(combo.mesDuChamp, 0); // only what the derived class asks for
    combo.lineEdit()->installEventFilter(&combo);
    Tape(combo, u"al"_s);
    QVERIFY(combo.mesDuChamp > 0);
    QCOMPARE(combo.completer()->completionCount(), 1);
}

QTEST_MAIN(tst_DComboBoxPremierCachayCompleteur)
#include "tst_DComboBoxPremierCachayCompleteur.moc"
