// tests/controls/tst_DBoutonAbstraitAccessibleActions.cpp
//
// What a screen reader can do with the control, and what it is told.
#include "controls/LectureBouton.h"
#include "outils/LecteurSimulay.h"

using namespace Qt::StringLiterals;
using namespace LectureBouton;

using Actions = QAccessibleActionInterface;

class tst_DBoutonAbstraitAccessibleActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void actions_data();
    void actions();
    void actionBasculer_data();
    void actionBasculer();
    void actionAppuyer_data();
    void actionAppuyer();
    void actionFocus_data();
    void actionFocus();
    void actionRefusee_data();
    void actionRefusee();
    void annonceDuCochage_data();
    void annonceDuCochage();
    void annonceParClic_data();
    void annonceParClic();
    void annonceDuGel();
};

void tst_DBoutonAbstraitAccessibleActions::initTestCase()
{
    LecteurSimulay::Installe();
}

void tst_DBoutonAbstraitAccessibleActions::cleanup()
{
    LecteurSimulay::Oublie();
    DetruisAttente();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonAbstraitAccessibleActions::actions_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessibleActions::actions()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    for (QAccessibleInterface * const lu : LesDeux(*controle)) {
        QVERIFY(lu->actionInterface());
        QCOMPARE(lu->actionInterface()->actionNames(),
                 (QStringList{Actions::toggleAction(), Actions::setFocusAction()}));
    }
    controle->setEnabled(false);
    for (QAccessibleInterface * const lu : LesDeux(*controle))
        QCOMPARE(lu->actionInterface()->actionNames(), QStringList());
    if (genre == kRadio)
        return;
    controle->setEnabled(true);
    static_cast<DCheckBox *>(controle.get())->MetsUtilisateurPeutChangerValeur(false);
    for (QAccessibleInterface * const lu : LesDeux(*controle))
        QCOMPARE(lu->actionInterface()->actionNames(), QStringList());
}

void tst_DBoutonAbstraitAccessibleActions::actionBasculer_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessibleActions::actionBasculer()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    QSignalSpy cochages(controle.get(), &DBoutonAbstrait::SignalCochageChangay);
    for (QAccessibleInterface * const lu : LesDeux(*controle)) {
        cochages.clear();
        lu->actionInterface()->doAction(Actions::toggleAction());
        QVERIFY(controle->EstCochay());
        lu->actionInterface()->doAction(Actions::toggleAction());
        QVERIFY(!controle->EstCochay());
        QCOMPARE(cochages, (QList<QVariantList>{{true}, {false}}));
    }
}

void tst_DBoutonAbstraitAccessibleActions::actionAppuyer_data()
{
    AjouteGenres();
}

// Not among the names, yet some systems ask for it, above all of radio buttons.
void tst_DBoutonAbstraitAccessibleActions::actionAppuyer()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    QSignalSpy const clics(&Indicateur(*controle), &QAbstractButton::clicked);
    for (QAccessibleInterface * const lu : LesDeux(*controle))
        lu->actionInterface()->doAction(Actions::pressAction());
    QCOMPARE(clics, (QList<QVariantList>{{true}, {false}}));
}

void tst_DBoutonAbstraitAccessibleActions::actionFocus_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessibleActions::actionFocus()
{
    QFETCH(eGenre, genre);
    QWidget fenetre;
    DBoutonAbstrait * const controle = Cree(genre, u"abc"_s, &fenetre);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    for (QAccessibleInterface * const lu : LesDeux(*controle)) {
        controle->clearFocus();
        lu->actionInterface()->doAction(Actions::setFocusAction());
        QVERIFY(controle->hasFocus());
    }
    QVERIFY(!controle->EstCochay());
}

void tst_DBoutonAbstraitAccessibleActions::actionRefusee_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("gel");
    QTest::newRow("toggle, disabled") << Actions::toggleAction() << false;
    QTest::newRow("toggle, frozen") << Actions::toggleAction() << true;
    QTest::newRow("press, disabled") << Actions::pressAction() << false;
    QTest::newRow("press, frozen") << Actions::pressAction() << true;
}

void tst_DBoutonAbstraitAccessibleActions::actionRefusee()
{
    QFETCH(QString, action);
    QFETCH(bool, gel);
    DCheckBox controle(u"abc"_s, nullptr, true);
    QSignalSpy const bascules(&controle, &DCheckBox::toggled);
    for (QAccessibleInterface * const lu : LesDeux(controle)) {
        lu->actionInterface()->doAction(u"inconnue"_s);
        controle.setEnabled(gel);
        controle.MetsUtilisateurPeutChangerValeur(!gel);
        lu->actionInterface()->doAction(action);
        controle.setEnabled(true);
        controle.MetsUtilisateurPeutChangerValeur(true);
    }
    QCOMPARE(bascules.count(), 0);
}

void tst_DBoutonAbstraitAccessibleActions::annonceDuCochage_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessibleActions::annonceDuCochage()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    QAccessible::State coche;
    coche.checked = true;
    LecteurSimulay::Oublie();
    controle->MetsCochay(true);
    QCOMPARE(LecteurSimulay::CompteChangements(controle.get(), coche), 1);
    QCOMPARE(LecteurSimulay::CompteChangements(&Indicateur(*controle), coche), 1);
    controle->MetsCochay(true); // nothing changes
    QCOMPARE(LecteurSimulay::CompteChangements(controle.get(), coche), 1);
    QCOMPARE(LecteurSimulay::CompteChangements(&Indicateur(*controle), coche), 1);
    controle->MetsCochay(false);
    QCOMPARE(LecteurSimulay::CompteChangements(controle.get(), coche), 2);
}

void tst_DBoutonAbstraitAccessibleActions::annonceParClic_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitAccessibleActions::annonceParClic()
{
    QFETCH(eGenre, genre);
    std::unique_ptr<DBoutonAbstrait> const controle(Cree(genre, u"abc"_s));
    controle->show();
    QAccessible::State coche;
    coche.checked = true;
    LecteurSimulay::Oublie();
    QTest::mouseClick(&Libelle(*controle), Qt::LeftButton);
    QCOMPARE(LecteurSimulay::CompteChangements(controle.get(), coche), 1);
    QTest::mouseClick(&Indicateur(*controle), Qt::LeftButton, {}, QPoint(5, 7));
    QCOMPARE(LecteurSimulay::CompteChangements(controle.get(), coche), 2);
    QTest::keyClick(&Indicateur(*controle), Qt::Key_Space);
    QCOMPARE(LecteurSimulay::CompteChangements(controle.get(), coche), 3);
}

void tst_DBoutonAbstraitAccessibleActions::annonceDuGel()
{
    DCheckBox controle(u"abc"_s);
    QAccessible::State desactivay;
    desactivay.disabled = true;
    LecteurSimulay::Oublie();
    controle.MetsUtilisateurPeutChangerValeur(false);
    QCOMPARE(LecteurSimulay::CompteChangements(&controle, desactivay), 1);
    controle.MetsUtilisateurPeutChangerValeur(false);
    QCOMPARE(LecteurSimulay::CompteChangements(&controle, desactivay), 1);
    controle.MetsUtilisateurPeutChangerValeur(true);
    QCOMPARE(LecteurSimulay::CompteChangements(&controle, desactivay), 2);
}

QTEST_MAIN(tst_DBoutonAbstraitAccessibleActions)
#include "tst_DBoutonAbstraitAccessibleActions.moc"
