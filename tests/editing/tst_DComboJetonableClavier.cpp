// tests/editing/tst_DComboJetonableClavier.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"

#include <QtTest>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

namespace {

// The signals of the field are known by name only.
class Destructeur : public QObject
{
    Q_OBJECT

public:
    explicit Destructeur(QObject * cible)
        : maCible(cible)
    {
    }

public Q_SLOTS:
    void Detruis() { delete maCible; }

private:
    QPointer<QObject> maCible;
};

} // namespace

class tst_DComboJetonableClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lettreRemplaceLeJeton();
    void touchesQuiTerminentLeJeton_data();
    void touchesQuiTerminentLeJeton();
    void modificateurSeul_data();
    void modificateurSeul();
    void tabulationGardeLeJeton();
    void jetonFaitDeLaSaisie_data();
    void jetonFaitDeLaSaisie();
    void jetonFaitDeLaSaisieAvecArticles_data();
    void jetonFaitDeLaSaisieAvecArticles();
    void touchesSansJeton();
    void echappement_data();
    void echappement();
    void echappementAvantUnRaccourci();
    void echappementRevientParAnnuler();
    void jetonRevientEnTexteParAnnuler();
    void touchesDeLaListe_data();
    void touchesDeLaListe();
    void flechesSansArticles();
    void flechesAvecArticles();
    void completionSansListe();
    void saisieDUneMethode();
    void compositionDUneMethode();
    void evenementVideDUneMethode();
    void collage();
    void destructionDansUneTouche_data();
    void destructionDansUneTouche();

private:
    DComboJetonable * monCombo = nullptr;
    QWidget * maFenetre = nullptr;
    QLineEdit * monAutre = nullptr;
};

void tst_DComboJetonableClavier::init()
{
    maFenetre = new QWidget;
    auto * const disposition = new QVBoxLayout(maFenetre);
    monCombo = CreeSansIcones();
    monAutre = new QLineEdit;
    disposition->addWidget(monCombo);
    disposition->addWidget(monAutre);
    maFenetre->show();
    maFenetre->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(maFenetre));
    monCombo->setFocus();
    QTRY_VERIFY(monCombo->hasFocus());
}

void tst_DComboJetonableClavier::cleanup()
{
    delete maFenetre;
    maFenetre = nullptr;
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboJetonableClavier::lettreRemplaceLeJeton()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, u"infobulle"_s);
    QSignalSpy const jeton(monCombo->lineEdit(), SIGNAL(SignalJetonChangay()));

    for (Qt::Key const touche : {Qt::Key_X, Qt::Key_Y})
        QTest::keyClick(maFenetre->windowHandle(), touche);

    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), u"xy"_s);
    QCOMPARE(monCombo->lineEdit()->toolTip(), QString());
    QCOMPARE(jeton.count(), 1);
}

void tst_DComboJetonableClavier::touchesQuiTerminentLeJeton_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    using M = Qt::KeyboardModifiers;
    QTest::newRow("Backspace") << Qt::Key_Backspace << M();
    QTest::newRow("Delete") << Qt::Key_Delete << M();
    QTest::newRow("Left") << Qt::Key_Left << M();
    QTest::newRow("Home") << Qt::Key_Home << M();
    QTest::newRow("Return") << Qt::Key_Return << M();
    QTest::newRow("Escape") << Qt::Key_Escape << M();
    QTest::newRow("copy") << Qt::Key_C << M(Qt::ControlModifier);
    QTest::newRow("a function key of nobody") << Qt::Key_F9 << M();
}

void tst_DComboJetonableClavier::touchesQuiTerminentLeJeton()
{
    QFETCH(Qt::Key, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QSignalSpy const changements(monCombo, &DComboJetonable::SignalJetonChangay);

    QTest::keyClick(monCombo, touche, modificateurs);

    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), QString());
    QCOMPARE(changements.count(), 1); // the text alone would not tell
}

void tst_DComboJetonableClavier::modificateurSeul_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("Shift") << Qt::Key_Shift;
    QTest::newRow("Control") << Qt::Key_Control;
    QTest::newRow("Alt") << Qt::Key_Alt;
    QTest::newRow("AltGr") << Qt::Key_AltGr;
    QTest::newRow("Meta") << Qt::Key_Meta;
    QTest::newRow("left Super") << Qt::Key_Super_L;
    QTest::newRow("right Super") << Qt::Key_Super_R;
    QTest::newRow("left Hyper") << Qt::Key_Hyper_L;
    QTest::newRow("right Hyper") << Qt::Key_Hyper_R;
    QTest::newRow("Caps Lock") << Qt::Key_CapsLock;
    QTest::newRow("Num Lock") << Qt::Key_NumLock;
    QTest::newRow("Scroll Lock") << Qt::Key_ScrollLock;
}

void tst_DComboJetonableClavier::modificateurSeul()
{
    QFETCH(Qt::Key, touche);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    QKeyEvent pression(QEvent::KeyPress, touche, Qt::NoModifier);
    QApplication::sendEvent(monCombo, &pression);

    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableClavier::tabulationGardeLeJeton()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Tab);
    QTRY_VERIFY(monAutre->hasFocus());
    QVERIFY(monCombo->UnJetonEstActif());

    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Tab);
    QTRY_VERIFY(monCombo->hasFocus());
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTRY_VERIFY(monAutre->hasFocus());
    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableClavier::jetonFaitDeLaSaisie_data()
{
    QTest::addColumn<bool>("edite");
    QTest::newRow("textEdited of the field") << true;
    QTest::newRow("editTextChanged") << false;
}

void tst_DComboJetonableClavier::jetonFaitDeLaSaisie()
{
    QFETCH(bool, edite);
    auto const reconnais = [this](QString const & texte) {
        if (texte == u"nom")
            monCombo->PrendsTexteJeton(u"Nom commun"_s, {});
    };
    if (edite)
        connect(monCombo->lineEdit(), &QLineEdit::textEdited, this, reconnais);
    else
        connect(monCombo, &QComboBox::editTextChanged, this, reconnais);

    QTest::keyClicks(monCombo, u"nom"_s);

    QVERIFY(monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), QString());
}

void tst_DComboJetonableClavier::jetonFaitDeLaSaisieAvecArticles_data()
{
    QTest::addColumn<Qt::ConnectionType>("connexion");
    QTest::addColumn<bool>("reste");
    QTest::newRow("the completion takes its place") << Qt::DirectConnection << false;
    QTest::newRow("queued") << Qt::QueuedConnection << true;
}

void tst_DComboJetonableClavier::jetonFaitDeLaSaisieAvecArticles()
{
    QFETCH(Qt::ConnectionType, connexion);
    QFETCH(bool, reste);
    monCombo->addItems({u"arbre"_s, u"nombre"_s});
    monCombo->clearEditText();
    auto const reconnais = [this] { monCombo->PrendsTexteJeton(u"Nom commun"_s, {}); };
    connect(monCombo->lineEdit(), &QLineEdit::textEdited, this, reconnais, connexion);

    QTest::keyClicks(monCombo, u"n"_s);

    QTRY_COMPARE(monCombo->UnJetonEstActif(), reste);
    QCOMPARE(monCombo->currentText().isEmpty(), reste);
}

void tst_DComboJetonableClavier::touchesSansJeton()
{
    monCombo->lineEdit()->setToolTip(u"de l’hôte"_s);
    QSignalSpy const jeton(monCombo->lineEdit(), SIGNAL(SignalJetonChangay()));

    QTest::keyClicks(monCombo, u"mot"_s);

    QCOMPARE(monCombo->currentText(), u"mot"_s);
    QCOMPARE(jeton.count(), 0);
    QCOMPARE(monCombo->lineEdit()->toolTip(), u"de l’hôte"_s);
}

void tst_DComboJetonableClavier::echappement_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("key press") << QEvent::KeyPress;
    QTest::newRow("shortcut override") << QEvent::ShortcutOverride;
}

void tst_DComboJetonableClavier::echappement()
{
    QFETCH(QEvent::Type, type);
    monCombo->setEditText(u"texte"_s);
    QSignalSpy const changements(monCombo, &QComboBox::currentTextChanged);
    QKeyEvent touche(type, Qt::Key_Escape, Qt::NoModifier, u"\x1b"_s);

    QApplication::sendEvent(monCombo, &touche);

    QCOMPARE(monCombo->currentText(), QString());
    QCOMPARE(changements.count(), 1);
}

void tst_DComboJetonableClavier::echappementAvantUnRaccourci()
{
    QAction action;
    action.setShortcut(Qt::Key_Escape);
    maFenetre->addAction(&action);
    QSignalSpy const fermetures(&action, &QAction::triggered);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Escape);

    // The key never arrives as a key press.
    QCOMPARE(fermetures.count(), 1);
    QVERIFY(monCombo->UnJetonEstActif());

    monCombo->setEditText(u"texte"_s);
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Escape);

    QCOMPARE(fermetures.count(), 2);
    QCOMPARE(monCombo->currentText(), QString());
}

void tst_DComboJetonableClavier::echappementRevientParAnnuler()
{
    QTest::keyClicks(monCombo, u"texte"_s);
    QTest::keyClick(monCombo, Qt::Key_Escape);
    QCOMPARE(monCombo->currentText(), QString());

    monCombo->lineEdit()->undo();

    QCOMPARE(monCombo->currentText(), u"texte"_s);
}

void tst_DComboJetonableClavier::jetonRevientEnTexteParAnnuler()
{
    QTest::keyClicks(monCombo, u"texte"_s);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    QTest::keyClick(monCombo, Qt::Key_Z, Qt::ControlModifier);

    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), u"texte"_s);
}

void tst_DComboJetonableClavier::touchesDeLaListe_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::newRow("F4") << Qt::Key_F4 << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_DComboJetonableClavier::touchesDeLaListe()
{
    QFETCH(Qt::Key, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    monCombo->addItems({u"un"_s, u"deux"_s});
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QSignalSpy const demandes(monCombo, &DComboJetonable::SignalShowPopup);

    QTest::keyClick(monCombo, touche, modificateurs);

    QCOMPARE(demandes.count(), 1);
    QVERIFY(!monCombo->view()->isVisible());
    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableClavier::flechesSansArticles()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    for (Qt::Key const touche : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp})
        QTest::keyClick(monCombo, touche);

    QVERIFY(monCombo->UnJetonEstActif()); // none of them comes to the field
}

void tst_DComboJetonableClavier::flechesAvecArticles()
{
    monCombo->addItems({u"un"_s, u"deux"_s});
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    QTest::keyClick(monCombo, Qt::Key_Down);

    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), u"deux"_s);
    QVERIFY(!monCombo->view()->isVisible());
}

void tst_DComboJetonableClavier::completionSansListe()
{
    monCombo->addItem(u"arbre"_s);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    QTest::keyClicks(monCombo, u"ar"_s);

    QCOMPARE(monCombo->currentText(), u"arbre"_s);
    QCOMPARE(monCombo->lineEdit()->selectedText(), u"bre"_s);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_DComboJetonableClavier::saisieDUneMethode()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QInputMethodEvent saisie;
    saisie.setCommitString(u"漢字"_s);

    QApplication::sendEvent(monCombo, &saisie);

    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), u"漢字"_s);
}

void tst_DComboJetonableClavier::compositionDUneMethode()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QInputMethodEvent composition(u"かん"_s, {});

    QApplication::sendEvent(monCombo, &composition);

    QVERIFY(!monCombo->UnJetonEstActif()); // what is composed can be seen
    QInputMethodEvent fin;
    fin.setCommitString(u"漢"_s);
    QApplication::sendEvent(monCombo, &fin);
    QCOMPARE(monCombo->currentText(), u"漢"_s);
}

void tst_DComboJetonableClavier::evenementVideDUneMethode()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QInputMethodEvent vide;

    QApplication::sendEvent(monCombo, &vide);

    QVERIFY(monCombo->UnJetonEstActif());
}

void tst_DComboJetonableClavier::collage()
{
    monCombo->PrendsTexteJeton(u"jeton"_s, {});

    monCombo->lineEdit()->insert(u"collé"_s); // as the context menu pastes, without a key

    QVERIFY(!monCombo->UnJetonEstActif());
    QCOMPARE(monCombo->currentText(), u"collé"_s);
}

void tst_DComboJetonableClavier::destructionDansUneTouche_data()
{
    QTest::addColumn<bool>("parLaDemande");
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("the token goes by a letter") << false << Qt::Key_A;
    QTest::newRow("the token goes by Escape") << false << Qt::Key_Escape;
    QTest::newRow("the pop-up is asked for") << true << Qt::Key_F4;
}

void tst_DComboJetonableClavier::destructionDansUneTouche()
{
    QFETCH(bool, parLaDemande);
    QFETCH(Qt::Key, touche);
    monCombo->PrendsTexteJeton(u"jeton"_s, {});
    QPointer<QWidget> const combo(monCombo);
    Destructeur destructeur(monCombo);
    QObject * const champ = monCombo->lineEdit();
    if (parLaDemande)
        connect(monCombo, SIGNAL(SignalShowPopup()), &destructeur, SLOT(Detruis()));
    else
        connect(champ, SIGNAL(SignalJetonChangay()), &destructeur, SLOT(Detruis()));

    QTest::keyClick(maFenetre->windowHandle(), touche);

    QVERIFY(!combo);
}

QTEST_MAIN(tst_DComboJetonableClavier)
#include "tst_DComboJetonableClavier.moc"
