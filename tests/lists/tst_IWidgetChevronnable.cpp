#include "lists/IWidgetChevronnable.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

// What a widget under a chevron answers unless it says otherwise.

namespace {

class WidgetNu : public IWidgetChevronnable
{
public:
    using IWidgetChevronnable::IWidgetChevronnable;
    QString DonneTitre() override { return u"titre"_s; }
    QSize sizeHint() const override { return {31, 17}; }
    bool executay = false;

protected:
    void PriseExecuteAction() override { executay = true; }
};

} // namespace

class tst_IWidgetChevronnable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void parent();
    void tailles();
    void sousMenu();
    void entreesNeuves();
    void executeAction();
};

void tst_IWidgetChevronnable::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_IWidgetChevronnable::parent()
{
    QWidget parent;
    WidgetNu const seul;
    WidgetNu const enfant(&parent);

    QCOMPARE(seul.parentWidget(), nullptr);
    QCOMPARE(enfant.parentWidget(), &parent);
    QCOMPARE(seul.frameWidth(), 0);
}

void tst_IWidgetChevronnable::tailles()
{
    WidgetNu widget;

    QCOMPARE(widget.DonneTailleMin(), QSize(31, 17));
    QCOMPARE(widget.DonneTailleMax(), QSize(31, 17));
}

void tst_IWidgetChevronnable::sousMenu()
{
    WidgetNu widget;

    QVERIFY(!widget.EstUneAction());
}

void tst_IWidgetChevronnable::entreesNeuves()
{
    WidgetNu widget;
    std::unique_ptr<QMenu> const menu(widget.DonneQMenu());
    std::unique_ptr<QMenu> const autreMenu(widget.DonneQMenu());
    std::unique_ptr<QAction> const action(widget.DonneQAction());
    std::unique_ptr<QAction> const autreAction(widget.DonneQAction());

    QVERIFY(menu && menu->isEmpty());
    QCOMPARE(menu->parent(), nullptr);
    QVERIFY(menu != autreMenu);
    QVERIFY(action && action->text().isEmpty());
    QCOMPARE(action->parent(), nullptr);
    QVERIFY(action != autreAction);
}

void tst_IWidgetChevronnable::executeAction()
{
    WidgetNu widget;

    // A slot that hosts may call by its name.
    QVERIFY(QMetaObject::invokeMethod(&widget, "PriseExecuteAction"));

    QVERIFY(widget.executay);
}

QTEST_MAIN(tst_IWidgetChevronnable)
#include "tst_IWidgetChevronnable.moc"
