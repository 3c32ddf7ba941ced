// tests/controls/tst_DTreeView.cpp
#include "controls/DTreeView.h"

#include <QtTest>

class tst_DTreeView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void neDessineAucunElement();
};

void tst_DTreeView::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTreeView::construction()
{
    QWidget parent;
    DTreeView const vue(&parent);
    QCOMPARE(vue.parentWidget(), &parent);
    QVERIFY(vue.inherits("QTreeView")); // which the style asks for by name
    QVERIFY(!vue.model());
}

void tst_DTreeView::neDessineAucunElement()
{
    DTreeView const vue;
    QStyleOption option;
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::white);
    QImage const avant = image;
    QPainter peintre(&image);
    for (auto const element : {QStyle::PE_IndicatorItemViewItemDrop, QStyle::PE_PanelItemViewRow})
        QVERIFY(!vue.GereDrawPrimitive(element, &option, &peintre, &vue));
    QVERIFY(!vue.GereDrawPrimitive(QStyle::PE_Frame, nullptr, nullptr, nullptr));
    QCOMPARE(image, avant);
}

QTEST_MAIN(tst_DTreeView)
#include "tst_DTreeView.moc"
