// tests/navigation/tst_DelegayVueEtapes.cpp
#include "navigation/DelegayVueEtapes.h"

#include "navigation/DAssistant.h"

#include <QListWidget>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// Keeps the state of the last item that it drew.
class StyleDItems : public QProxyStyle
{
public:
    StyleDItems()
        : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
    {
    }
    void drawControl(ControlElement element, QStyleOption const * option, QPainter *,
                     QWidget const *) const override
    {
        if (element == CE_ItemViewItem)
            etat = option->state;
    }
    mutable State etat;
};

} // namespace

class tst_DelegayVueEtapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void survol_data();
    void survol();
    void taille_data();
    void taille();
};

void tst_DelegayVueEtapes::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DelegayVueEtapes::construction()
{
    DAssistant assistant(nullptr);
    auto * const liste = assistant.findChild<QListWidget *>();
    QVERIFY(qobject_cast<DelegayVueEtapes *>(liste->itemDelegate()));
    DelegayVueEtapes const delegay(&assistant);
    QCOMPARE(delegay.parent(), &assistant);
}

void tst_DelegayVueEtapes::survol_data()
{
    using State = QStyle::State;
    QTest::addColumn<State>("donnay");
    QTest::addColumn<State>("dessinay");
    State const survol = QStyle::State_MouseOver;
    State const actif = QStyle::State_Enabled;
    State const autres = QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_Active;
    QTest::newRow("enabled and hovered") << (actif | survol) << (actif | survol);
    QTest::newRow("disabled and hovered") << survol << State();
    QTest::newRow("enabled") << actif << actif;
    QTest::newRow("disabled") << State() << State();
    QTest::newRow("disabled keeps the rest") << (survol | autres) << autres;
    QTest::newRow("enabled keeps the rest")
        << (actif | survol | autres) << (actif | survol | autres);
}

void tst_DelegayVueEtapes::survol()
{
    QFETCH(QStyle::State, donnay);
    QFETCH(QStyle::State, dessinay);
    StyleDItems style;
    DAssistant assistant(nullptr);
    QListWidget liste;
    liste.setStyle(&style);
    liste.addItem(u"un"_s);
    DelegayVueEtapes const delegay(&assistant);

    QStyleOptionViewItem option;
    option.widget = &liste;
    option.rect = {0, 0, 100, 30};
    option.state = donnay;
    QImage image(100, 30, QImage::Format_ARGB32_Premultiplied);
    QPainter peintre(&image);
    delegay.paint(&peintre, option, liste.model()->index(0, 0));

    QStyle::State const concernay = QStyle::State_MouseOver | QStyle::State_Enabled |
                                    QStyle::State_Selected | QStyle::State_HasFocus |
                                    QStyle::State_Active;
    QCOMPARE(style.etat & concernay, dessinay);
    QCOMPARE(option.state, donnay); // a copy was changed
}

void tst_DelegayVueEtapes::taille_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QSize>("taille");
    QTest::newRow("the width is given, the height fixed") << QRect(5, 6, 120, 80) << QSize(120, 30);
    QTest::newRow("lower than a row") << QRect(0, 0, 10, 4) << QSize(10, 30);
    QTest::newRow("no rectangle") << QRect() << QSize(0, 30);
}

void tst_DelegayVueEtapes::taille()
{
    QFETCH(QRect, rect);
    QFETCH(QSize, taille);
    DAssistant assistant(nullptr);
    DelegayVueEtapes const delegay(&assistant);
    QStyleOptionViewItem option;
    option.rect = rect;
    QCOMPARE(delegay.sizeHint(option, {}), taille);
}

QTEST_MAIN(tst_DelegayVueEtapes)
#include "tst_DelegayVueEtapes.moc"
