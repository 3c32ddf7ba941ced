// tests/navigation/tst_FenPriseEnMainClavier.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

#include <QSvgWidget>

using namespace Qt::StringLiterals;

class tst_FenPriseEnMainClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void raccourci();
    void ordreDesTabulations();
    void clavier();
    void entreeSurUneCase();
    void nomsAccessibles();
    void defileAuClavier();

private:
    static QCheckBox & Case(int rangee) { return FenetrePriseEnMain::Case(rangee); }
    static QPushButton & Lien(int rangee) { return FenetrePriseEnMain::Lien(rangee); }

    std::unique_ptr<FenetrePriseEnMain> monBanc;
};

void tst_FenPriseEnMainClavier::init()
{
    monBanc = std::make_unique<FenetrePriseEnMain>();
}

void tst_FenPriseEnMainClavier::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

// The application's other windows keep the keys for what they close.
void tst_FenPriseEnMainClavier::raccourci()
{
    auto const raccourcis = monBanc->Alloue(1).findChildren<QShortcut *>();
    QCOMPARE(raccourcis.size(), 1);
    QCOMPARE(raccourcis.first()->key(), QKeySequence(Qt::CTRL | Qt::Key_W));
    QCOMPARE(raccourcis.first()->context(), Qt::WindowShortcut);
}

void tst_FenPriseEnMainClavier::ordreDesTabulations()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(3);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    Case(0).setFocus();
    for (int tour = 0; tour < 2; ++tour)
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(QApplication::focusWidget(), &Case(i));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), &Lien(i));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), &Lien(2));
}

void tst_FenPriseEnMainClavier::clavier()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(4);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    int ouverts = 0;
    for (auto const & [rangee, touche] :
         {std::pair(1, Qt::Key_Space), std::pair(2, Qt::Key_Return), std::pair(3, Qt::Key_Enter)}) {
        Lien(rangee).setFocus();
        QTest::keyClick(&Lien(rangee), touche);
        QCOMPARE(monBanc->Ouverts().size(), ++ouverts);
        QVERIFY(Case(rangee).isChecked());
    }
    QTest::keyClick(&Case(3), Qt::Key_Space);
    QVERIFY(!Case(3).isChecked());
    QCOMPARE(monBanc->Ouverts().size(), ouverts);
}

// It opens nothing: no link is the window's answer.
void tst_FenPriseEnMainClavier::entreeSurUneCase()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(2);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    for (QWidget * const widget :
         {static_cast<QWidget *>(&Case(1)), static_cast<QWidget *>(&fenetre)})
        for (Qt::Key const touche : {Qt::Key_Return, Qt::Key_Enter}) {
            widget->setFocus();
            QTest::keyClick(widget, touche);
            QVERIFY(monBanc->Ouverts().isEmpty());
            QVERIFY(fenetre.isVisible());
        }
}

void tst_FenPriseEnMainClavier::nomsAccessibles()
{
    monBanc->Alloue(2);
    for (int i = 0; i < 2; ++i)
        for (QWidget * const widget :
             {static_cast<QWidget *>(&Case(i)), static_cast<QWidget *>(&Lien(i))})
            QCOMPARE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name),
                     u"Titre %1"_s.arg(i + 1));
    // A screen reader can reach it.
    auto * const image = FenPriseEnMain::Instance()->findChild<QSvgWidget *>();
    QCOMPARE(QAccessible::queryAccessibleInterface(image)->text(QAccessible::Name), u"Découvrir"_s);
}

void tst_FenPriseEnMainClavier::defileAuClavier()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(40);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    auto const & barre = *fenetre.findChild<QScrollArea *>()->verticalScrollBar();
    QTRY_VERIFY(barre.maximum() > 0);
    Case(0).setFocus();
    QCOMPARE(barre.value(), 0);
    QTest::keyClick(&Case(0), Qt::Key_Backtab); // round to the last one
    QCOMPARE(QApplication::focusWidget(), &Lien(39));
    QVERIFY(barre.value() > barre.maximum() / 2);
    QTest::keyClick(&Lien(39), Qt::Key_PageUp);
    QVERIFY(barre.value() < barre.maximum());
}

QTEST_MAIN(tst_FenPriseEnMainClavier)
#include "tst_FenPriseEnMainClavier.moc"
