// tests/controls/tst_DListView.cpp
#include "controls/DListView.h"

#include <QtTest>

class tst_DListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void neDessineAucunElement();
};

void tst_DListView::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DListView::construction()
{
    QWidget parent;
    DListView const vue(&parent);
    QCOMPARE(vue.parentWidget(), &parent);
    QVERIFY(vue.inherits("QListView")); // which the style asks for by name
    QVERIFY(!vue.model());
}

void tst_DListView::neDessineAucunElement()
{
    DListView const vue;
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

QTEST_MAIN(tst_DListView)
#include "tst_DListView.moc"
