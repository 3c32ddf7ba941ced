// tests/controls/tst_DLabelElisionClickable.cpp
#include "controls/DLabelElisionClickable.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_DLabelElisionClickable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void constructeurs();
    void toutBouton_data();
    void toutBouton();
    void relacheSansSignal();
};

void tst_DLabelElisionClickable::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElisionClickable::constructeurs()
{
    QWidget parent;
    DLabelElisionClickable const avecTexte(u"abc"_s, &parent);
    QCOMPARE(avecTexte.DonneTexte(), u"abc"_s);
    DLabelElisionClickable const sansTexte(&parent);
    QCOMPARE(sansTexte.DonneTexte(), QString());
    QCOMPARE(sansTexte.parentWidget(), &parent);
}

void tst_DLabelElisionClickable::toutBouton_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_DLabelElisionClickable::toutBouton()
{
    QFETCH(Qt::MouseButton, bouton);
    DLabelElisionClickable label(u"abc"_s, nullptr);
    QSignalSpy espion(&label, &DLabelElisionClickable::SignalCliquer);
    QTest::mousePress(&label, bouton);
    QCOMPARE(espion.count(), 1);
}

void tst_DLabelElisionClickable::relacheSansSignal()
{
    DLabelElisionClickable label(u"abc"_s, nullptr);
    QSignalSpy espion(&label, &DLabelElisionClickable::SignalCliquer);
    QTest::mouseMove(&label);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(espion.count(), 0);
}

QTEST_MAIN(tst_DLabelElisionClickable)
#include "tst_DLabelElisionClickable.moc"
