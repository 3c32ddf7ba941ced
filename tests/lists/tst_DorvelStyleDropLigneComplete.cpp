#include "lists/DorvelStyleDropLigneComplete_p.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QtTest>

using namespace Qt::StringLiterals;

// The mark of a drop, across the whole view.

class tst_DorvelStyleDropLigneComplete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void dessin_data();
    void dessin();
    void sansOption();
};

namespace {

// Remembers what the style asks of its base.
class StyleDeBase : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter *,
                       QWidget const * widget) const override
    {
        elements.append(element);
        options.append(option);
        rects.append(option != nullptr ? option->rect : QRect());
        widgets.append(widget);
    }
    mutable QList<PrimitiveElement> elements;
    mutable QList<QStyleOption const *> options;
    mutable QList<QRect> rects;
    mutable QList<QWidget const *> widgets;
};

} // namespace

void tst_DorvelStyleDropLigneComplete::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DorvelStyleDropLigneComplete::dessin_data()
{
    QTest::addColumn<int>("element");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("avecWidget");
    QTest::addColumn<QRect>("attendu");
    int const depot = QStyle::PE_IndicatorItemViewItemDrop;
    QTest::newRow("line") << depot << QRect(30, 40, 50, 0) << true
                          << QRect(QPoint(0, 40), QPoint(200, 39));
    QTest::newRow("row") << depot << QRect(30, 40, 50, 20) << true
                         << QRect(QPoint(0, 40), QPoint(200, 59));
    QTest::newRow("without a widget")
        << depot << QRect(30, 40, 50, 20) << false << QRect(0, 40, 80, 20);
    QTest::newRow("nothing to mark") << depot << QRect() << true << QRect();
    QTest::newRow("another element")
        << int(QStyle::PE_FrameFocusRect) << QRect(30, 40, 50, 20) << true << QRect(30, 40, 50, 20);
}

void tst_DorvelStyleDropLigneComplete::dessin()
{
    QFETCH(int, element);
    QFETCH(QRect, rect);
    QFETCH(bool, avecWidget);
    QFETCH(QRect, attendu);
    auto * const base = new StyleDeBase;
    DorvelStyleDropLigneComplete const style(base); // which takes it
    QWidget widget;
    widget.resize(200, 100);
    QStyleOption option;
    option.rect = rect;
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter peintre(&image);
    QWidget const * const vue = avecWidget ? &widget : nullptr;
    style.drawPrimitive(QStyle::PrimitiveElement(element), &option, &peintre, vue);
    QCOMPARE(base->elements, QList<QStyle::PrimitiveElement>{QStyle::PrimitiveElement(element)});
    QCOMPARE(base->rects, QList<QRect>{attendu});
    QCOMPARE(base->widgets, QList<QWidget const *>{vue});
    QCOMPARE(option.rect, rect); // a copy was drawn
    QCOMPARE(base->options.first() == &option, attendu == rect);
}

void tst_DorvelStyleDropLigneComplete::sansOption()
{
    auto * const base = new StyleDeBase;
    DorvelStyleDropLigneComplete const style(base);
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, nullptr, nullptr, nullptr);
    QCOMPARE(base->options, QList<QStyleOption const *>{nullptr});
}

QTEST_MAIN(tst_DorvelStyleDropLigneComplete)
#include "tst_DorvelStyleDropLigneComplete.moc"
