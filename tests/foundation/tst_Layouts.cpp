// tests/foundation/tst_Layouts.cpp
#include "foundation/Layouts.h"

#include <QtTest>

class tst_Layouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void margesEnlevees();
    void sousDispositionIntacte();
    void nulNeFaitRien();
};

void tst_Layouts::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_Layouts::margesEnlevees()
{
    QHBoxLayout disposition;
    disposition.setContentsMargins(1, 2, 3, 4);
    disposition.setSpacing(7);

    RoutinesGeneralesQt::EnleveMargesDuLayout(&disposition);

    QCOMPARE(disposition.contentsMargins(), QMargins());
    QCOMPARE(disposition.spacing(), 7);
}

void tst_Layouts::sousDispositionIntacte()
{
    QVBoxLayout disposition;
    auto * const interieure = new QHBoxLayout;
    interieure->setContentsMargins(1, 2, 3, 4);
    disposition.addLayout(interieure);

    RoutinesGeneralesQt::EnleveMargesDuLayout(&disposition);

    QCOMPARE(interieure->contentsMargins(), QMargins(1, 2, 3, 4));
}

void tst_Layouts::nulNeFaitRien()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    RoutinesGeneralesQt::EnleveMargesDuLayout(nullptr);
}

QTEST_MAIN(tst_Layouts)
#include "tst_Layouts.moc"
