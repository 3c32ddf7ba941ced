// tests/controls/tst_DLabelClickable.cpp
#include "controls/DLabelClickable.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_DLabelClickable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void constructeurs();
    void toutBouton_data();
    void toutBouton();
    void doubleClic();
    void relacheSansSignal();
    void evenementGarday();
    void selectionNonCommencee();
    void lienSuivi();
    void lienNonSuiviAvecUneSelection();
    void desactivay();
    void suppressionParUnReceveur();
};

void tst_DLabelClickable::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelClickable::constructeurs()
{
    QWidget parent;
    DLabelClickable const avecTexte(u"abc"_s, &parent);
    QCOMPARE(avecTexte.text(), u"abc"_s);
    QCOMPARE(avecTexte.parentWidget(), &parent);
    DLabelClickable const sansTexte(&parent);
    QCOMPARE(sansTexte.text(), QString());
    QCOMPARE(sansTexte.parentWidget(), &parent);
    QVERIFY(DLabelClickable(u"abc"_s, nullptr, Qt::Tool).windowFlags() & Qt::Tool);
    QVERIFY(DLabelClickable(nullptr, Qt::Tool).windowFlags() & Qt::Tool);
}

void tst_DLabelClickable::toutBouton_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_DLabelClickable::toutBouton()
{
    QFETCH(Qt::MouseButton, bouton);
    DLabelClickable label(u"abc"_s);
    QSignalSpy const clics(&label, &DLabelClickable::SignalCliquer);
    QTest::mouseClick(&label, bouton);
    QCOMPARE(clics.count(), 1);
}

void tst_DLabelClickable::doubleClic()
{
    DLabelClickable label(u"abc"_s);
    QSignalSpy const clics(&label, &DLabelClickable::SignalCliquer);
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseDClick(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clics.count(), 2);
}

void tst_DLabelClickable::relacheSansSignal()
{
    DLabelClickable label(u"abc"_s);
    QSignalSpy const clics(&label, &DLabelClickable::SignalCliquer);
    QMouseEvent deplacement(QEvent::MouseMove, QPointF(1, 1), QPointF(1, 1), Qt::NoButton,
                            Qt::NoButton, {});
    QCoreApplication::sendEvent(&label, &deplacement);
    QMouseEvent relache(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, {});
    QCoreApplication::sendEvent(&label, &relache);
    QCOMPARE(clics.count(), 0);
}

// Deliberate: a plain QLabel leaves the press to its parent.
void tst_DLabelClickable::evenementGarday()
{
    DLabelClickable cadre(u"dehors"_s);
    DLabelClickable label(u"abc"_s, &cadre);
    QSignalSpy const clics(&cadre, &DLabelClickable::SignalCliquer);
    QMouseEvent pression(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                         Qt::LeftButton, {});
    QCoreApplication::sendEvent(&label, &pression);
    QVERIFY(pression.isAccepted());
    QCOMPARE(clics.count(), 0);
}

void tst_DLabelClickable::selectionNonCommencee()
{
    DLabelClickable label(u"abcdef"_s);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setSelection(0, 3);
    label.resize(200, 30);
    QTest::mousePress(&label, Qt::LeftButton, {}, QPoint(190, 15));
    // The base would have moved the cursor there and forgotten the selection.
    QCOMPARE(label.selectedText(), u"abc"_s);
}

void tst_DLabelClickable::lienSuivi()
{
    DLabelClickable label(u"<a href='x'>abcdef</a>"_s);
    label.adjustSize();
    QSignalSpy const clics(&label, &DLabelClickable::SignalCliquer);
    QSignalSpy const liens(&label, &QLabel::linkActivated);
    QPoint const surLeLien(5, label.height() / 2);
    QTest::mousePress(&label, Qt::LeftButton, {}, surLeLien);
    QCOMPARE(clics.count(), 1);
    QCOMPARE(liens.count(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, surLeLien);
    QCOMPARE(clics.count(), 1);
    QCOMPARE(liens, (QList<QVariantList>{{u"x"_s}}));
}

// As the base did not see the press, Qt takes the release for the end of a selection.
void tst_DLabelClickable::lienNonSuiviAvecUneSelection()
{
    DLabelClickable label(u"<a href='x'>abcdef</a>"_s);
    label.setTextInteractionFlags(Qt::TextBrowserInteraction);
    label.adjustSize();
    label.setSelection(0, 3);
    QSignalSpy const liens(&label, &QLabel::linkActivated);
    QPoint const surLeLien(5, label.height() / 2);
    QTest::mouseClick(&label, Qt::LeftButton, {}, surLeLien);
    QCOMPARE(liens.count(), 0);
    label.setSelection(0, 0);
    QTest::mouseClick(&label, Qt::LeftButton, {}, surLeLien);
    QCOMPARE(liens.count(), 1);
}

void tst_DLabelClickable::desactivay()
{
    DLabelClickable label(u"abc"_s);
    label.setEnabled(false);
    QSignalSpy const clics(&label, &DLabelClickable::SignalCliquer);
    QMouseEvent pression(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                         Qt::LeftButton, {});
    QCoreApplication::sendEvent(&label, &pression);
    QCOMPARE(clics.count(), 0);
}

void tst_DLabelClickable::suppressionParUnReceveur()
{
    QPointer<DLabelClickable> const label = new DLabelClickable(u"abc"_s);
    connect(label, &DLabelClickable::SignalCliquer, this, [&] { delete label.data(); });
    QTest::mousePress(label, Qt::LeftButton);
    QVERIFY(!label);
}

QTEST_MAIN(tst_DLabelClickable)
#include "tst_DLabelClickable.moc"
