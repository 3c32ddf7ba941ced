// tests/controls/tst_DBoutonSansFleche.cpp
#include "controls/EssaisSansFleche.h"

#include "controls/RenduBoutons.h"
#include "controls/StyleNommay.h"

#include <QMenu>
#include <QProxyStyle>
#include <QtTest>

using namespace EssaisSansFleche;
using namespace Qt::StringLiterals;
using RenduBoutons::Rendu;

class tst_DBoutonSansFleche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aucuneFleche_data();
    void aucuneFleche();
    void menuDUneAction_data();
    void menuDUneAction();
    void feuilleDeStyle_data();
    void feuilleDeStyle();
    void flecheDuBoutonReste_data();
    void flecheDuBoutonReste();
    void enfoncayPendantLeMenu_data();
    void enfoncayPendantLeMenu();
    void menuSOuvre_data();
    void menuSOuvre();
    void partieDuMenuGardee();
    void imageLissay();
    void constructeur();
};

void tst_DBoutonSansFleche::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonSansFleche::aucuneFleche_data()
{
    QTest::addColumn<QString>("nomStyle");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<bool>("autoRaise");
    std::pair<char const *, QToolButton::ToolButtonPopupMode> const modes[] = {
        {"delayed", QToolButton::DelayedPopup},
        {"menu button", QToolButton::MenuButtonPopup},
        {"instant", QToolButton::InstantPopup},
    };
    for (char const * const style : {"Fusion", "Windows", "DStyleProxy"}) {
        auto const nomStyle = QString::fromLatin1(style);
        for (auto const & [nom, mode] : modes) {
            QTest::addRow("%s, %s", style, nom) << nomStyle << mode << Qt::LeftToRight << false;
            QTest::addRow("%s, %s, right to left", style, nom)
                << nomStyle << mode << Qt::RightToLeft << false;
            QTest::addRow("%s, %s, auto-raise", style, nom)
                << nomStyle << mode << Qt::LeftToRight << true;
        }
    }
}

void tst_DBoutonSansFleche::aucuneFleche()
{
    QFETCH(QString, nomStyle);
    auto const style = DonneStyleNommay(nomStyle);
    QFETCH(QToolButton::ToolButtonPopupMode, mode);
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(bool, autoRaise);
    QMenu menu;
    QToolButton sansMenu;
    Regle(sansMenu, style.get(), {.sens = sens, .autoRaise = autoRaise});
    QToolButton ordinaire;
    Regle(ordinaire, style.get(), {mode, sens, Qt::NoArrow, autoRaise});
    ordinaire.setMenu(&menu);
    DBoutonSansFleche bouton;
    Regle(bouton, style.get(), {mode, sens, Qt::NoArrow, autoRaise});
    bouton.setMenu(&menu);

    QVERIFY(QFile::exists(u":/Images/chevron-DToolButton.svg"_s)); // what one style draws
    QVERIFY(Rendu(ordinaire) != Rendu(sansMenu));
    QCOMPARE(Rendu(bouton), Rendu(sansMenu));
    // Deliberate: the part that opens the menu keeps its room.
    QCOMPARE(bouton.sizeHint(), ordinaire.sizeHint());
}

void tst_DBoutonSansFleche::menuDUneAction_data()
{
    QTest::addColumn<QString>("nomStyle");
    for (char const * const nom : {"Fusion", "Windows", "DStyleProxy"})
        QTest::newRow(nom) << QString::fromLatin1(nom);
}

// A default action sets the mode, and actions without a menu are offered in one.
void tst_DBoutonSansFleche::menuDUneAction()
{
    QFETCH(QString, nomStyle);
    auto const style = DonneStyleNommay(nomStyle);
    QMenu menu;
    QAction action(u"abc"_s);
    action.setMenu(&menu);
    QToolButton sansMenu;
    Regle(sansMenu, style.get());
    DBoutonSansFleche bouton;
    Regle(bouton, style.get());
    bouton.setDefaultAction(&action);
    QCOMPARE(bouton.popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(Rendu(bouton), Rendu(sansMenu));

    QAction autre(u"def"_s);
    DBoutonSansFleche avecActions;
    Regle(avecActions, style.get());
    avecActions.addAction(&autre);
    QCOMPARE(Rendu(avecActions), Rendu(sansMenu));
}

void tst_DBoutonSansFleche::feuilleDeStyle_data()
{
    QTest::addColumn<QString>("feuille");
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    auto const bordure = u"QToolButton { border: 1px solid red; }"_s;
    auto const parties =
        u"QToolButton { border: 1px solid red; }"
        "QToolButton::menu-indicator { background: green; width: 9px; height: 9px; }"
        "QToolButton::menu-button { background: blue; border: 1px solid green; width: 14px; }"_s;
    std::pair<char const *, QString> const feuilles[] = {{"border", bordure},
                                                         {"menu parts", parties}};
    for (auto const & [nom, feuille] : feuilles) {
        QTest::addRow("%s, delayed", nom) << feuille << QToolButton::DelayedPopup;
        QTest::addRow("%s, menu button", nom) << feuille << QToolButton::MenuButtonPopup;
        QTest::addRow("%s, instant", nom) << feuille << QToolButton::InstantPopup;
    }
}

void tst_DBoutonSansFleche::feuilleDeStyle()
{
    QFETCH(QString, feuille);
    QFETCH(QToolButton::ToolButtonPopupMode, mode);
    QMenu menu;
    QToolButton sansMenu;
    QToolButton ordinaire;
    DBoutonSansFleche bouton;
    for (QToolButton * const un : {&sansMenu, &ordinaire, static_cast<QToolButton *>(&bouton)}) {
        un->setText(u"abc"_s);
        un->resize(kTaille);
        un->setStyleSheet(feuille);
    }
    for (QToolButton * const un : {&ordinaire, static_cast<QToolButton *>(&bouton)}) {
        un->setMenu(&menu);
        un->setPopupMode(mode);
    }
    QVERIFY(Rendu(ordinaire) != Rendu(sansMenu));
    QCOMPARE(Rendu(bouton), Rendu(sansMenu));
}

void tst_DBoutonSansFleche::flecheDuBoutonReste_data()
{
    menuDUneAction_data();
}

void tst_DBoutonSansFleche::flecheDuBoutonReste()
{
    QFETCH(QString, nomStyle);
    auto const style = DonneStyleNommay(nomStyle);
    QMenu menu;
    QToolButton sansFleche;
    Regle(sansFleche, style.get());
    sansFleche.setText({});
    QToolButton ordinaire;
    Regle(ordinaire, style.get(), {.fleche = Qt::RightArrow});
    DBoutonSansFleche bouton;
    Regle(bouton, style.get(), {QToolButton::InstantPopup, Qt::LeftToRight, Qt::RightArrow});
    bouton.setMenu(&menu);

    QCOMPARE(Rendu(bouton), Rendu(ordinaire));
    QVERIFY(Rendu(bouton) != Rendu(sansFleche));
}

void tst_DBoutonSansFleche::enfoncayPendantLeMenu_data()
{
    menuDUneAction_data();
}

void tst_DBoutonSansFleche::enfoncayPendantLeMenu()
{
    QFETCH(QString, nomStyle);
    auto const style = DonneStyleNommay(nomStyle);
    QToolButton enfoncay;
    Regle(enfoncay, style.get());
    enfoncay.setDown(true);
    QMenu menu;
    menu.addAction(u"abc"_s);
    DBoutonSansFleche bouton;
    Regle(bouton, style.get(), {.mode = QToolButton::MenuButtonPopup});
    bouton.setMenu(&menu);
    QImage pendant;
    connect(&menu, &QMenu::aboutToShow, this, [&] {
        pendant = Rendu(bouton);
        QTimer::singleShot(0, &menu, &QMenu::close);
    });
    bouton.showMenu();
    QCOMPARE(pendant, Rendu(enfoncay));
}

void tst_DBoutonSansFleche::menuSOuvre_data()
{
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
    QTest::addColumn<QPoint>("position");
    QPoint const milieu(kTaille.width() / 2, kTaille.height() / 2);
    QTest::newRow("delayed") << QToolButton::DelayedPopup << milieu;
    QTest::newRow("instant") << QToolButton::InstantPopup << milieu;
    QTest::newRow("menu button") << QToolButton::MenuButtonPopup
                                 << QPoint(kTaille.width() - 3, milieu.y());
}

void tst_DBoutonSansFleche::menuSOuvre()
{
    auto const style = DonneStyleNommay(u"Fusion"_s);
    QFETCH(QToolButton::ToolButtonPopupMode, mode);
    QFETCH(QPoint, position);
    QMenu menu;
    menu.addAction(u"abc"_s);
    DBoutonSansFleche bouton;
    Regle(bouton, style.get(), {.mode = mode});
    bouton.setMenu(&menu);
    QSignalSpy ouvertures(&menu, &QMenu::aboutToShow);
    connect(&menu, &QMenu::aboutToShow, &menu,
            [&] { QTimer::singleShot(0, &menu, &QMenu::close); });
    QTest::mousePress(&bouton, Qt::LeftButton, {}, position);
    QTRY_COMPARE(ouvertures.count(), 1);
    QTRY_VERIFY(!menu.isVisible());
}

// Deliberate: the part for the menu is where it is in the base class, though nobody sees it.
void tst_DBoutonSansFleche::partieDuMenuGardee()
{
    auto const style = DonneStyleNommay(u"Fusion"_s);
    QMenu menu;
    DBoutonSansFleche bouton;
    Regle(bouton, style.get(), {.mode = QToolButton::MenuButtonPopup});
    bouton.setMenu(&menu);
    QSignalSpy clics(&bouton, &QToolButton::clicked);
    QSignalSpy ouvertures(&menu, &QMenu::aboutToShow);
    QTest::mouseClick(&bouton, Qt::LeftButton, {}, QPoint(5, 15));
    QCOMPARE(clics.count(), 1);
    QCOMPARE(ouvertures.count(), 0);
}

void tst_DBoutonSansFleche::imageLissay()
{
    class StyleIndices : public QProxyStyle
    {
    public:
        mutable bool lissay = false;
        void drawComplexControl(ComplexControl, QStyleOptionComplex const *, QPainter * peintre,
                                QWidget const *) const override
        {
            lissay = peintre->testRenderHint(QPainter::SmoothPixmapTransform);
        }
    };
    StyleIndices style;
    DBoutonSansFleche bouton;
    Regle(bouton, &style);
    Rendu(bouton);
    QVERIFY(style.lissay);
}

void tst_DBoutonSansFleche::constructeur()
{
    QWidget parent;
    DBoutonSansFleche const bouton(&parent);
    QCOMPARE(bouton.parentWidget(), &parent);
    QCOMPARE(bouton.popupMode(), QToolButton::DelayedPopup);
}

QTEST_MAIN(tst_DBoutonSansFleche)
#include "tst_DBoutonSansFleche.moc"
