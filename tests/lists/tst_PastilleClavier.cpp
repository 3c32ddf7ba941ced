#include "lists/Pastille.h"

#include "lists/EssaisPastille.h"
#include "outils/LecteurSimulay.h"

#include <QtTest>

using namespace EssaisPastille;
using namespace Qt::StringLiterals;

class tst_PastilleClavier : public QObject
{
    Q_OBJECT

public:
    static void initMain() { LecteurSimulay::Installe(); }

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void touches_data();
    void touches();
    void toucheTenue();
    void accessibilite();
    void nomDeLHote();
    void pressionParLeLecteur();
    void etatDuFocus();
};

void tst_PastilleClavier::initTestCase()
{
    QAccessible::setActive(true);
}

void tst_PastilleClavier::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PastilleClavier::touches_data()
{
    QTest::addColumn<int>("touche");
    QTest::addColumn<int>("modificateurs");
    QTest::addColumn<bool>("enleve");
    auto const rangee = [](char const * nom, Qt::Key touche, bool enleve,
                           Qt::KeyboardModifier modificateurs = Qt::NoModifier) {
        QTest::newRow(nom) << int(touche) << int(modificateurs) << enleve;
    };
    rangee("Delete", Qt::Key_Delete, true);
    rangee("Backspace", Qt::Key_Backspace, true);
    rangee("Return", Qt::Key_Return, true);
    rangee("Enter of the keypad", Qt::Key_Enter, true, Qt::KeypadModifier);
    rangee("Space", Qt::Key_Space, true);
    rangee("Control and Delete", Qt::Key_Delete, false, Qt::ControlModifier);
    rangee("Alt and Return", Qt::Key_Return, false, Qt::AltModifier);
    rangee("a letter", Qt::Key_A, false);
    rangee("Escape", Qt::Key_Escape, false);
}

void tst_PastilleClavier::touches()
{
    QFETCH(int, touche);
    QFETCH(int, modificateurs);
    QFETCH(bool, enleve);
    Pastille pastille(u"mot"_s, 7);
    QSignalSpy const espion(&pastille, &Pastille::PastilleASupprimer);
    QKeyEvent evenement(QEvent::KeyPress, touche, Qt::KeyboardModifiers(modificateurs));
    evenement.setAccepted(true);
    QCoreApplication::sendEvent(&pastille, &evenement);
    QCOMPARE(espion.count(), enleve ? 1 : 0);
    QCOMPARE(evenement.isAccepted(), enleve); // others go to what is around
}

void tst_PastilleClavier::toucheTenue()
{
    Pastille pastille(u"mot"_s, 7);
    QSignalSpy const espion(&pastille, &Pastille::PastilleASupprimer);
    QKeyEvent evenement(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&pastille, &evenement);
    QCOMPARE(espion.count(), 0);
    QVERIFY(evenement.isAccepted());
}

void tst_PastilleClavier::accessibilite()
{
    Hote hote(u"mot & phrase"_s);
    QAccessibleInterface * const acces = QAccessible::queryAccessibleInterface(hote.pastille);
    QVERIFY(acces);
    QCOMPARE(acces->role(), QAccessible::Button);
    QCOMPARE(acces->text(QAccessible::Name), u"mot & phrase"_s);
    QCOMPARE(acces->text(QAccessible::Description), u"Enlever «mot & phrase»"_s);
    QCOMPARE(acces->childCount(), 0);
    QVERIFY(acces->state().focusable);
    QVERIFY(acces->actionInterface());
    QCOMPARE(acces->actionInterface()->actionNames().value(0),
             QAccessibleActionInterface::pressAction());
}

void tst_PastilleClavier::nomDeLHote()
{
    Hote hote;
    hote.pastille->setAccessibleDescription(u"autre"_s);
    hote.pastille->setAccessibleName(u"nom"_s);
    QAccessibleInterface * const acces = QAccessible::queryAccessibleInterface(hote.pastille);
    QCOMPARE(acces->text(QAccessible::Name), u"nom"_s);
    QCOMPARE(acces->text(QAccessible::Description), u"autre"_s);
}

void tst_PastilleClavier::pressionParLeLecteur()
{
    Hote hote;
    QPointer<Pastille> const pastille = hote.pastille;
    int fois = 0;
    connect(pastille, &Pastille::PastilleASupprimer, this, [&] {
        ++fois;
        pastille->Supprime();
    });
    QAccessibleInterface * const acces = QAccessible::queryAccessibleInterface(pastille);
    acces->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(fois, 0);
    QTRY_COMPARE(fois, 1);
    QTRY_VERIFY(!pastille);
}

void tst_PastilleClavier::etatDuFocus()
{
    Hote hote;
    hote.Montre();
    QVERIFY(QTest::qWaitForWindowActive(&hote.fenetre));
    QAccessibleInterface * const acces = QAccessible::queryAccessibleInterface(hote.pastille);
    hote.pastille->clearFocus();
    QVERIFY(!acces->state().focused);
    LecteurSimulay::Oublie();
    QTest::keyClick(&hote.fenetre, Qt::Key_Tab);
    QVERIFY(hote.pastille->hasFocus());
    QVERIFY(acces->state().focused);
    bool annonce = false;
    for (auto const & recue : LecteurSimulay::Annonces())
        annonce |= recue.nature == QAccessible::Focus && recue.objet == hote.pastille;
    QVERIFY(annonce);

    acces->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(hote.pastille->hasFocus());
}

QTEST_MAIN(tst_PastilleClavier)
#include "tst_PastilleClavier.moc"
