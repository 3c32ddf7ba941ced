// tests/controls/tst_DComboSansDeco.cpp
#include "controls/DComboSansDeco.h"
#include "controls/Encre.h"
#include "style/DStyleProxy.h"

#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(120, 40);
constexpr QRect kADroite(112, 16, 8, 8);
constexpr QRect kAGauche(0, 16, 8, 8);

std::unique_ptr<QStyle> CreeStyle(QString const & nom)
{
    std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
    if (nom == "proxy"_L1)
        return std::make_unique<DStyleProxy>(fusion.release());
    return fusion;
}

QImage Peins(QWidget & widget)
{
    QImage image = Encre::ImageBlanche(widget.size());
    widget.render(&image, {}, {}, {}); // without the background of the window
    return image;
}

// What the style was asked for.
class StyleQuiNote : public QProxyStyle
{
public:
    struct Dessin
    {
        int element;
        QRect rectangle;
        QString texte;
        QColor crayon;
    };
    mutable QList<Dessin> mesPrimitives;
    mutable int mesAutres = 0;

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const *) const override
    {
        auto const * const combo = qstyleoption_cast<QStyleOptionComboBox const *>(option);
        mesPrimitives << Dessin{element, option->rect, combo ? combo->currentText : u"?"_s,
                                peintre->pen().color()};
    }
    void drawControl(ControlElement, QStyleOption const *, QPainter *,
                     QWidget const *) const override
    {
        ++mesAutres;
    }
    void drawComplexControl(ComplexControl, QStyleOptionComplex const *, QPainter *,
                            QWidget const *) const override
    {
        ++mesAutres;
    }
};

} // namespace

class tst_DComboSansDeco : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void demandeAuStyle();
    void seuleLaFleche_data();
    void seuleLaFleche();
    void couleurDuTexte();
    void desactivay();
    void hauteurImpaire();
    void cadreDuFocus();
    void sEmploieCommeUnCombo();
};

void tst_DComboSansDeco::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboSansDeco::construction()
{
    DComboSansDeco const combo;
    QCOMPARE(combo.parentWidget(), nullptr);
    QVERIFY(!combo.hasFrame());
}

void tst_DComboSansDeco::demandeAuStyle()
{
    StyleQuiNote style;
    DComboSansDeco combo;
    combo.setStyle(&style);
    combo.addItem(u"texte"_s);
    combo.resize(kTaille);
    QPalette palette = combo.palette();
    palette.setColor(QPalette::Text, QColor(1, 2, 3));
    combo.setPalette(palette);
    Peins(combo);
    QCOMPARE(style.mesAutres, 0);
    QCOMPARE(style.mesPrimitives.size(), 1);
    QCOMPARE(style.mesPrimitives.at(0).element, int(QStyle::PE_IndicatorArrowDown));
    QCOMPARE(style.mesPrimitives.at(0).rectangle, kADroite);
    QCOMPARE(style.mesPrimitives.at(0).texte, QString());
    QCOMPARE(style.mesPrimitives.at(0).crayon, QColor(1, 2, 3));
}

void tst_DComboSansDeco::seuleLaFleche_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<QRect>("place");
    for (QString const & style : {u"fusion"_s, u"proxy"_s}) {
        QTest::addRow("%s left to right", qPrintable(style))
            << style << Qt::LeftToRight << kADroite;
        QTest::addRow("%s right to left", qPrintable(style))
            << style << Qt::RightToLeft << kAGauche;
    }
}

void tst_DComboSansDeco::seuleLaFleche()
{
    QFETCH(QString, style);
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(QRect, place);
    auto const monStyle = CreeStyle(style);
    DComboSansDeco combo;
    combo.setStyle(monStyle.get());
    combo.setLayoutDirection(sens);
    QPixmap icone(16, 16);
    icone.fill(Qt::blue);
    combo.addItem(QIcon(icone), u"MMMMMMMMMMMM"_s);
    combo.resize(kTaille);
    QRect const encre = Encre::BornesEncre(Peins(combo));
    QVERIFY(!encre.isEmpty());
    QVERIFY2(place.contains(encre), qPrintable(QDebug::toString(encre)));
    QVERIFY(qAbs(encre.center().y() - place.center().y()) <= 1);
}

void tst_DComboSansDeco::couleurDuTexte()
{
    auto const style = CreeStyle(u"fusion"_s);
    DComboSansDeco combo;
    combo.setStyle(style.get());
    combo.resize(kTaille);
    QPalette palette = combo.palette();
    palette.setColor(QPalette::Text, Qt::red);
    palette.setColor(QPalette::WindowText, Qt::green);
    palette.setColor(QPalette::ButtonText, Qt::green);
    combo.setPalette(palette);
    QImage const image = Peins(combo);
    QVERIFY(!Encre::BornesEncre(image).isEmpty());
    // On white, red of any opacity has the full red.
    QVERIFY(Encre::Bornes(image, [](QColor const & c) { return c.red() < 250; }).isEmpty());
}

void tst_DComboSansDeco::desactivay()
{
    auto const style = CreeStyle(u"fusion"_s);
    DComboSansDeco combo;
    combo.setStyle(style.get());
    combo.resize(kTaille);
    QPalette palette = combo.palette();
    palette.setColor(QPalette::Active, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0xB0, 0xB0, 0xB0));
    combo.setPalette(palette);
    int const active = Encre::Noirceur(Peins(combo));
    combo.setEnabled(false);
    int const desactive = Encre::Noirceur(Peins(combo));
    QVERIFY(desactive > 0);
    QVERIFY(desactive < active);
}

void tst_DComboSansDeco::hauteurImpaire()
{
    StyleQuiNote style;
    DComboSansDeco combo;
    combo.setStyle(&style);
    for (QSize const & taille : {QSize(120, 41), QSize(120, 4), QSize(5, 40)}) {
        style.mesPrimitives.clear();
        combo.resize(taille);
        Peins(combo);
        QRect const attendu = QStyle::alignedRect(
            Qt::LeftToRight, Qt::AlignRight | Qt::AlignVCenter, QSize(8, 8), combo.rect());
        QCOMPARE(style.mesPrimitives.at(0).rectangle, attendu);
    }
}

void tst_DComboSansDeco::cadreDuFocus()
{
    StyleQuiNote style;
    DComboSansDeco combo;
    combo.setStyle(&style);
    combo.resize(kTaille);
    combo.show();
    combo.activateWindow();
    combo.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&combo));
    style.mesPrimitives.clear();
    Peins(combo);
    QCOMPARE(style.mesPrimitives.size(), 2);
    QCOMPARE(style.mesPrimitives.at(1).element, int(QStyle::PE_FrameFocusRect));
    QCOMPARE(style.mesPrimitives.at(1).rectangle, combo.rect());
}

void tst_DComboSansDeco::sEmploieCommeUnCombo()
{
    DComboSansDeco combo;
    combo.addItems({u"a"_s, u"b"_s});
    combo.resize(kTaille);
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentText(), u"b"_s);
    QTest::mousePress(&combo, Qt::LeftButton, {}, QPoint(20, 20)); // beside the arrow
    QVERIFY(combo.view()->isVisible());
    combo.hidePopup();
}

QTEST_MAIN(tst_DComboSansDeco)
#include "tst_DComboSansDeco.moc"
