// tests/controls/tst_DControleBoutonsExclusifsMenu.cpp
#include "controls/DBoutonAvecMenu_p.h"
#include "controls/DControleBoutonsExclusifs.h"

#include "controls/RenduBoutons.h"

#include <QAbstractButton>
#include <QtTest>

using namespace Qt::StringLiterals;

// The parts for menus.
class tst_DControleBoutonsExclusifsMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void presseSurLaPartie_data();
    void presseSurLaPartie();
    void presseACotay();
    void glisseeVersLaPartie();
    void autreBoutonDeSouris();
    void touches_data();
    void touches();
    void toucheRepetee();
    void sansMenu();
    void affichage();
    void boutonDesactivay();
    void recepteurDetruit();

private:
    DBoutonAvecMenu & Bouton(QVariant const & identifiant) const;

    std::unique_ptr<DControleBoutonsExclusifs> monControle;
};

void tst_DControleBoutonsExclusifsMenu::init()
{
    std::vector<DControleBoutonsExclusifs::InfosBouton> const infos{
        {u"a"_s, 1, true, false}, {u"b"_s, 2, false, true}, {u"c"_s, u"trois"_s, false, true}};
    monControle = std::make_unique<DControleBoutonsExclusifs>(infos);
    RenduBoutons::Dispose(*monControle, QSize(400, 40));
}

void tst_DControleBoutonsExclusifsMenu::cleanup()
{
    monControle.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

DBoutonAvecMenu & tst_DControleBoutonsExclusifsMenu::Bouton(QVariant const & identifiant) const
{
    return *qobject_cast<DBoutonAvecMenu *>(monControle->DonneBouton(identifiant));
}

void tst_DControleBoutonsExclusifsMenu::presseSurLaPartie_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<QVariant>("identifiant");
    QTest::newRow("left to right") << Qt::LeftToRight << QVariant(2);
    QTest::newRow("right to left") << Qt::RightToLeft << QVariant(2);
    QTest::newRow("identifier of another type") << Qt::LeftToRight << QVariant(u"trois"_s);
}

void tst_DControleBoutonsExclusifsMenu::presseSurLaPartie()
{
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(QVariant, identifiant);
    monControle->setLayoutDirection(sens);
    auto & bouton = Bouton(identifiant);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QSignalSpy bascules(monControle.get(), &DControleBoutonsExclusifs::toggled);
    QSignalSpy presses(&bouton, &QAbstractButton::pressed);
    QSignalSpy clics(&bouton, &QAbstractButton::clicked);
    int const bord = sens == Qt::LeftToRight ? bouton.width() - 2 : 1;
    QVERIFY(bouton.DonneRectMenu().contains(QPoint(bord, 5)));

    QTest::mousePress(&bouton, Qt::LeftButton, {}, QPoint(bord, 5));
    QCOMPARE(menus.count(), 1); // on the press
    QCOMPARE(menus.at(0).at(0), identifiant);
    QTest::mouseRelease(&bouton, Qt::LeftButton, {}, QPoint(bord, 5));
    QCOMPARE(menus.count(), 1);
    QCOMPARE(bascules.count() + presses.count() + clics.count(), 0);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(1));
}

void tst_DControleBoutonsExclusifsMenu::presseACotay()
{
    auto & bouton = Bouton(2);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QTest::mouseClick(&bouton, Qt::LeftButton, {}, bouton.DonneRectMenu().topLeft() - QPoint(1, 0));
    QCOMPARE(menus.count(), 0);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(2));
}

void tst_DControleBoutonsExclusifsMenu::glisseeVersLaPartie()
{
    auto & bouton = Bouton(2);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QTest::mousePress(&bouton, Qt::LeftButton, {}, QPoint(3, 5));
    QVERIFY(bouton.isDown());
    QTest::mouseRelease(&bouton, Qt::LeftButton, {}, bouton.DonneRectMenu().center());
    QCOMPARE(menus.count(), 0);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(1));
}

void tst_DControleBoutonsExclusifsMenu::autreBoutonDeSouris()
{
    auto & bouton = Bouton(2);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QTest::mouseClick(&bouton, Qt::RightButton, {}, bouton.DonneRectMenu().center());
    QCOMPARE(menus.count(), 0);
}

void tst_DControleBoutonsExclusifsMenu::touches_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Qt::KeyboardModifiers>("modificateurs");
    QTest::addColumn<int>("compte");
    QTest::newRow("Alt+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::AltModifier) << 1;
    QTest::newRow("Alt+Down of the keypad")
        << Qt::Key_Down << (Qt::AltModifier | Qt::KeypadModifier) << 1;
    QTest::newRow("F4") << Qt::Key_F4 << Qt::KeyboardModifiers() << 1;
    QTest::newRow("Down") << Qt::Key_Down << Qt::KeyboardModifiers() << 0;
    QTest::newRow("Alt+F4 closes windows")
        << Qt::Key_F4 << Qt::KeyboardModifiers(Qt::AltModifier) << 0;
    QTest::newRow("Alt+Shift+Down") << Qt::Key_Down << (Qt::AltModifier | Qt::ShiftModifier) << 0;
    QTest::newRow("Alt+Up") << Qt::Key_Up << Qt::KeyboardModifiers(Qt::AltModifier) << 0;
}

void tst_DControleBoutonsExclusifsMenu::touches()
{
    QFETCH(Qt::Key, touche);
    QFETCH(Qt::KeyboardModifiers, modificateurs);
    QFETCH(int, compte);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QTest::keyClick(&Bouton(2), touche, modificateurs);
    QCOMPARE(menus.count(), compte);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(1));
    QTest::keyClick(&Bouton(1), touche, modificateurs); // made without the part
    QCOMPARE(menus.count(), compte);
}

void tst_DControleBoutonsExclusifsMenu::toucheRepetee()
{
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QKeyEvent repetition(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&Bouton(2), &repetition);
    QCOMPARE(menus.count(), 0);
}

void tst_DControleBoutonsExclusifsMenu::sansMenu()
{
    monControle->AjusterAffichageMenuBoutons(1, true);
    auto & bouton = Bouton(1);
    QVERIFY(!bouton.MenuEstAffichay());
    QVERIFY(bouton.DonneRectMenu().isNull());
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    monControle->MetsCochay(2, true);
    QTest::mouseClick(&bouton, Qt::LeftButton, {}, QPoint(bouton.width() - 2, 5));
    QCOMPARE(menus.count(), 0);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(1));
}

void tst_DControleBoutonsExclusifsMenu::affichage()
{
    auto & bouton = Bouton(2);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    int const largeur = bouton.sizeHint().width();
    int const part = bouton.DonneRectMenu().width();
    QPoint const position = bouton.DonneRectMenu().center();
    monControle->AjusterAffichageMenuBoutons(99, false);
    QVERIFY(bouton.MenuEstAffichay());

    monControle->AjusterAffichageMenuBoutons(2, false);
    QVERIFY(!bouton.MenuEstAffichay());
    QVERIFY(Bouton(u"trois"_s).MenuEstAffichay());
    QCOMPARE(bouton.sizeHint().width(), largeur - part);
    QCOMPARE(bouton.minimumSizeHint().width(), largeur - part);
    QTest::keyClick(&bouton, Qt::Key_F4);
    QTest::mouseClick(&bouton, Qt::LeftButton, {}, position);
    QCOMPARE(menus.count(), 0);
    QCOMPARE(monControle->DonneIdentifiantCochay(), QVariant(2)); // the whole button clicks

    monControle->AjusterAffichageMenuBoutons(2, true);
    QCOMPARE(bouton.sizeHint().width(), largeur);
    QTest::mouseClick(&bouton, Qt::LeftButton, {}, bouton.DonneRectMenu().center());
    QCOMPARE(menus.count(), 1);
}

void tst_DControleBoutonsExclusifsMenu::boutonDesactivay()
{
    auto & bouton = Bouton(2);
    bouton.setEnabled(false);
    QSignalSpy menus(monControle.get(), &DControleBoutonsExclusifs::menuCliquay);
    QTest::mouseClick(&bouton, Qt::LeftButton, {}, bouton.DonneRectMenu().center());
    QCOMPARE(menus.count(), 0);
}

void tst_DControleBoutonsExclusifsMenu::recepteurDetruit()
{
    connect(monControle.get(), &DControleBoutonsExclusifs::menuCliquay, this,
            [this] { monControle.reset(); });
    QKeyEvent evenement(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier);
    QCoreApplication::sendEvent(&Bouton(2), &evenement);
    QVERIFY(!monControle);
}

QTEST_MAIN(tst_DControleBoutonsExclusifsMenu)
#include "tst_DControleBoutonsExclusifsMenu.moc"
