// tests/controls/tst_DComboBoxPremierCachayLettres.cpp
#include "controls/EssaisPremierCachay.h"

using namespace Qt::StringLiterals;
using namespace EssaisPremierCachay;

class tst_DComboBoxPremierCachayLettres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void lettres_data();
    void lettres();
    void lettresEnsemble();
    void lettreRepetee();
    void lettresDUneAutreColonne();
    void espaceOuvreLaListe();
};

void tst_DComboBoxPremierCachayLettres::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboBoxPremierCachayLettres::lettres_data()
{
    QTest::addColumn<int>("depart");
    QTest::addColumn<Qt::Key>("lettre");
    QTest::addColumn<int>("arrivee");
    // abricot (hidden), avocat, banane, disabled, separator, Ananas
    QTest::newRow("from none") << -1 << Qt::Key_A << 1;
    QTest::newRow("from the hidden one") << 0 << Qt::Key_A << 1;
    QTest::newRow("to the next one") << 1 << Qt::Key_A << 5;
    QTest::newRow("around, over the hidden one") << 5 << Qt::Key_A << 1;
    QTest::newRow("the only one") << 1 << Qt::Key_B << 2;
    QTest::newRow("the only one again") << 2 << Qt::Key_B << 2;
    QTest::newRow("a disabled one") << 1 << Qt::Key_C << 1;
    QTest::newRow("none") << 2 << Qt::Key_Z << 2;
    QTest::newRow("none, from the hidden one") << 0 << Qt::Key_Z << 0;
}

void tst_DComboBoxPremierCachayLettres::lettres()
{
    QFETCH(int, depart);
    QFETCH(Qt::Key, lettre);
    QFETCH(int, arrivee);
    SansIntervalle const sansIntervalle;
    DComboBox combo;
    combo.addItems({u"abricot"_s, u"avocat"_s, u"banane"_s, u"cerise"_s, u"Ananas"_s});
    combo.insertSeparator(4);
    Desactive(combo, 3);
    combo.CachePremierElement();
    combo.setCurrentIndex(depart);
    QTest::keyClick(&combo, lettre);
    QCOMPARE(combo.currentIndex(), arrivee);
}

void tst_DComboBoxPremierCachayLettres::lettresEnsemble()
{
    QApplication::setKeyboardInputInterval(60000); // so that no pause parts them
    auto const retablis = qScopeGuard([] { QApplication::setKeyboardInputInterval(-1); });
    DComboBox combo;
    combo.addItems({u"la fin"_s, u"la nuit"_s, u"le jour"_s, u"lent"_s});
    combo.CachePremierElement();
    QTest::keyClicks(&combo, u"le"_s);
    QCOMPARE(combo.currentIndex(), 2);
    QTest::keyClick(&combo, Qt::Key_N);
    QCOMPARE(combo.currentIndex(), 3);
    QTest::keyClick(&combo, Qt::Key_Z); // no such item: stays
    QCOMPARE(combo.currentIndex(), 3);
}

void tst_DComboBoxPremierCachayLettres::lettreRepetee()
{
    QApplication::setKeyboardInputInterval(60000);
    auto const retablis = qScopeGuard([] { QApplication::setKeyboardInputInterval(-1); });
    DComboBox combo;
    combo.addItems({u"a0"_s, u"a1"_s, u"b"_s, u"a3"_s, u"a4"_s});
    combo.CachePremierElement();
    QList<int> chemin;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&combo, Qt::Key_A);
        chemin << combo.currentIndex();
    }
    QCOMPARE(chemin, QList<int>({1, 3, 4, 1}));
}

void tst_DComboBoxPremierCachayLettres::lettresDUneAutreColonne()
{
    SansIntervalle const sansIntervalle;
    QStandardItemModel modele(3, 2);
    for (int i = 0; i < 3; ++i) {
        modele.setItem(i, 0, new QStandardItem(u"x"_s));
        modele.setItem(i, 1, new QStandardItem(QString(QChar(u'a' + i))));
    }
    DComboBox combo;
    combo.setModel(&modele);
    combo.setModelColumn(1);
    combo.CachePremierElement();
    combo.setCurrentIndex(-1);
    QTest::keyClick(&combo, Qt::Key_C);
    QCOMPARE(combo.currentText(), u"c"_s);
    QTest::keyClick(&combo, Qt::Key_A);
    QCOMPARE(combo.currentText(), u"c"_s);
    QTest::keyClick(&combo, Qt::Key_X);
    QCOMPARE(combo.currentText(), u"c"_s);
}

void tst_DComboBoxPremierCachayLettres::espaceOuvreLaListe()
{
    DComboBox combo;
    combo.addItems({u"a"_s, u" b"_s});
    combo.CachePremierElement();
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Space);
    QTRY_VERIFY(combo.view()->isVisible());
    QCOMPARE(combo.currentIndex(), 0);
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboBoxPremierCachayLettres)
#include "tst_DComboBoxPremierCachayLettres.moc"
