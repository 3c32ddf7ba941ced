#include "lists/DorvelStyleDropLigneComplete_p.h"

#include "lists/StyleEspion.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_DorvelStyleDropLigneComplete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void marque_data();
    void marque();
    void autreElement();
    void sansOption();
    void styleDeLApplication();
    void autreStyleDeLApplication();
    void feuilleDeStyle();
    void finDuStyle();
    void widgetPoli();

private:
    StyleEspion * monStyle = nullptr; // the application's
};

namespace {

int LisMesure(QStyle const & style)
{
    return style.pixelMetric(QStyle::PM_CustomBase, nullptr, nullptr);
}

} // namespace

void tst_DorvelStyleDropLigneComplete::init()
{
    monStyle = new StyleEspion;
    QApplication::setStyle(monStyle);
}

void tst_DorvelStyleDropLigneComplete::cleanup()
{
    qApp->setStyleSheet({});
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DorvelStyleDropLigneComplete::marque_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("avecWidget");
    QTest::addColumn<QRect>("attendu");
    // The right edge is the width, one pixel behind the last.
    QTest::newRow("between rows") << QRect(40, 20, 50, 0) << true << QRect(0, 20, 301, 0);
    QTest::newRow("around a row") << QRect(40, 20, 50, 18) << true << QRect(0, 20, 301, 18);
    QTest::newRow("wider than the widget") << QRect(-5, 3, 900, 1) << true << QRect(0, 3, 301, 1);
    QTest::newRow("no widget") << QRect(40, 20, 50, 0) << false << QRect(0, 20, 90, 0);
    QTest::newRow("null") << QRect() << true << QRect();
    QTest::newRow("null but not at the origin") << QRect(7, 9, 0, 0) << true << QRect(7, 9, 0, 0);
}

void tst_DorvelStyleDropLigneComplete::marque()
{
    QFETCH(QRect, rect);
    QFETCH(bool, avecWidget);
    QFETCH(QRect, attendu);
    DorvelStyleDropLigneComplete const style;
    QWidget widget;
    widget.resize(300, 200);
    QStyleOption option;
    option.rect = rect;

    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, nullptr,
                        avecWidget ? &widget : nullptr);

    QCOMPARE(monStyle->marques.size(), 1);
    QCOMPARE(monStyle->marques.first().rect, attendu);
    QCOMPARE(monStyle->marques.first().widget, avecWidget ? &widget : nullptr);
    QCOMPARE(option.rect, rect);
}

void tst_DorvelStyleDropLigneComplete::autreElement()
{
    DorvelStyleDropLigneComplete const style;
    QWidget widget;
    widget.resize(300, 200);
    QStyleOptionViewItem option;
    option.rect = QRect(40, 20, 50, 18);

    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, nullptr, &widget);

    QCOMPARE(monStyle->autres, QList<QRect>{QRect(40, 20, 50, 18)});
    QVERIFY(monStyle->marques.isEmpty());
}

void tst_DorvelStyleDropLigneComplete::sansOption()
{
    DorvelStyleDropLigneComplete const style;
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, nullptr, nullptr);
    QCOMPARE(monStyle->marques.size(), 1);
    QCOMPARE(monStyle->marques.first().rect, QRect());
}

void tst_DorvelStyleDropLigneComplete::styleDeLApplication()
{
    DorvelStyleDropLigneComplete const style;
    QCOMPARE(LisMesure(style), StyleEspion::kMesureReconnue);
    QCOMPARE(QApplication::style(), monStyle);
    // What the application draws does not go through the style of one view.
    QCOMPARE(monStyle->proxy(), monStyle);
}

void tst_DorvelStyleDropLigneComplete::autreStyleDeLApplication()
{
    DorvelStyleDropLigneComplete const style;
    QApplication::setStyle(QStyleFactory::create(u"Windows"_s));
    QVERIFY(LisMesure(style) != StyleEspion::kMesureReconnue);
    QApplication::setStyle(new StyleEspion);
    QCOMPARE(LisMesure(style), StyleEspion::kMesureReconnue);
}

void tst_DorvelStyleDropLigneComplete::feuilleDeStyle()
{
    DorvelStyleDropLigneComplete const style;
    qApp->setStyleSheet(u"QTreeView { color: red }"_s);
    QVERIFY(QApplication::style() != monStyle);
    QWidget widget;
    QStyleOption option;
    option.rect = QRect(10, 20, 50, 0);

    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, nullptr, &widget);

    QCOMPARE(LisMesure(style), StyleEspion::kMesureReconnue);
    QCOMPARE(monStyle->marques.size(), 1);
}

void tst_DorvelStyleDropLigneComplete::finDuStyle()
{
    QPointer<QStyle> const application = monStyle;
    {
        DorvelStyleDropLigneComplete const style;
        QCOMPARE(LisMesure(style), StyleEspion::kMesureReconnue);
    }
    QVERIFY(application);
    QCOMPARE(QApplication::style(), application.data());
    QCOMPARE(LisMesure(*application), StyleEspion::kMesureReconnue);
}

void tst_DorvelStyleDropLigneComplete::widgetPoli()
{
    DorvelStyleDropLigneComplete style;
    QWidget widget;

    style.polish(&widget);
    QCOMPARE(monStyle->polis, QList<QWidget *>{&widget});
    style.unpolish(&widget);
    QVERIFY(monStyle->polis.isEmpty());
}

QTEST_MAIN(tst_DorvelStyleDropLigneComplete)
#include "tst_DorvelStyleDropLigneComplete.moc"
