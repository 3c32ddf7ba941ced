// tests/style/tst_DStyleProxyFenetres.cpp
#include "foundation/ProgrammeEnfant.h"
#include "style/EssaisPeinture.h"
#include "style/EssaisTransparence.h"

#include <QtTest>

using namespace Qt::StringLiterals;

// What depends on the ratio of a window is seen in a process that has another one from the start.

namespace {

constexpr char kOptionImages[] = "--pictures";
constexpr char kOptionAnimations[] = "--animations";

// The names of the widgets that the style draws otherwise than its base.
QString DonneDifferences()
{
    QStringList differences;
    for (QString const & base : {u"Fusion"_s, u"Windows"_s}) {
        std::unique_ptr<QStyle> const seul(QStyleFactory::create(base));
        DStyleProxy style(QStyleFactory::create(base));
        auto const photographie = [](WidgetOrdinaire const & ordinaire, QStyle & choisi) {
            auto const widget = ordinaire.fabrique();
            widget->setStyle(&choisi);
            widget->resize(121, 61);
            widget->show();
            widget->grab(); // fills the base's cache of pictures
            return widget->grab().toImage();
        };
        for (WidgetOrdinaire const & ordinaire : DonneWidgetsOrdinaires(base)) {
            QImage const image = photographie(ordinaire, style);
            if (image.isNull() || image != photographie(ordinaire, *seul))
                differences.append(base + u": "_s + QString::fromLatin1(ordinaire.nom));
        }
    }
    return differences.join(u", "_s);
}

// Draws one element for an object of its own. Tells whether the animations of the object were off
// when the base drew, and are for good.
template <typename Dessin>
bool ArreteAnimations(BancStyle const & banc, Dessin const & dessin)
{
    QObject anime;
    QStyleOptionComplex option;
    option.rect = QRect(0, 0, 20, 10);
    option.styleObject = &anime;
    banc.espion->appels.clear();
    Peins(option.rect.size(), [&](QPainter & peintre) { dessin(option, peintre); });
    return !banc.espion->appels.isEmpty() && banc.espion->appels.first().sansAnimation &&
           anime.property("_q_no_animation") == QVariant(true);
}

// The numbers of the elements that stop animations, by function.
QString DonneElementsArretes(QWidget const * widget)
{
    BancStyle const banc;
    QStringList arretes;
    for (int i = 0; i <= int(QStyle::CE_ShapedFrame); ++i) {
        if (ArreteAnimations(banc, [&](QStyleOption const & option, QPainter & peintre) {
                banc.style.drawControl(QStyle::ControlElement(i), &option, &peintre, widget);
            }))
            arretes.append(u"CE %1"_s.arg(i));
    }
    for (int i = 0; i <= int(QStyle::PE_PanelMenu); ++i) {
        if (ArreteAnimations(banc, [&](QStyleOption const & option, QPainter & peintre) {
                banc.style.drawPrimitive(QStyle::PrimitiveElement(i), &option, &peintre, widget);
            }))
            arretes.append(u"PE %1"_s.arg(i));
    }
    for (int i = 0; i <= int(QStyle::CC_MdiControls); ++i) {
        if (ArreteAnimations(banc, [&](QStyleOptionComplex const & option, QPainter & peintre) {
                banc.style.drawComplexControl(QStyle::ComplexControl(i), &option, &peintre, widget);
            }))
            arretes.append(u"CC %1"_s.arg(i));
    }
    return arretes.join(u' ');
}

// There may be no object to tell, and no option.
void DessineSansObjet(QWidget const * widget)
{
    BancStyle const banc;
    QStyleOptionComplex const option;
    Peins(QSize(20, 10), [&](QPainter & peintre) {
        for (QStyleOptionComplex const * donnee :
             {&option, static_cast<QStyleOptionComplex const *>(nullptr)}) {
            banc.style.drawControl(QStyle::CE_RadioButton, donnee, &peintre, widget);
            banc.style.drawPrimitive(QStyle::PE_PanelLineEdit, donnee, &peintre, widget);
            banc.style.drawComplexControl(QStyle::CC_ComboBox, donnee, &peintre, widget);
        }
    });
}

// For a widget in a window, for the window and for no widget.
QString DonneAnimations()
{
    QWidget fenetre;
    QWidget enfant(&fenetre);
    DessineSansObjet(&enfant);
    QString const arretes = DonneElementsArretes(&enfant);
    QString const deFenetre = DonneElementsArretes(&fenetre);
    QString const dAucun = DonneElementsArretes(nullptr);
    return deFenetre == arretes && dAucun.isEmpty() ? arretes : u"unequal"_s;
}

QString DonneElementsAnimes()
{
    return u"CE %1 CE %2 PE %3 PE %4 PE %5 PE %6 CC %7"_s.arg(QStyle::CE_RadioButton)
        .arg(QStyle::CE_ComboBoxLabel)
        .arg(QStyle::PE_FrameLineEdit)
        .arg(QStyle::PE_PanelLineEdit)
        .arg(QStyle::PE_IndicatorCheckBox)
        .arg(QStyle::PE_IndicatorRadioButton)
        .arg(QStyle::CC_ComboBox);
}

} // namespace

class tst_DStyleProxyFenetres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void imagesIdentiques_data();
    void imagesIdentiques();
    void animations_data();
    void animations();
};

void tst_DStyleProxyFenetres::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyFenetres::imagesIdentiques_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::newRow("100%") << u"1"_s;
    QTest::newRow("125%") << u"1.25"_s;
    QTest::newRow("200%") << u"2"_s;
}

void tst_DStyleProxyFenetres::imagesIdentiques()
{
    QFETCH(QString, ratio);
    QCOMPARE(LanceEnfant({QString::fromLatin1(kOptionImages)}, {{u"QT_SCALE_FACTOR"_s, ratio}}),
             u"ratio %1:"_s.arg(ratio));
}

void tst_DStyleProxyFenetres::animations_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<bool>("arretees");
    QTest::newRow("100%") << u"1"_s << false;
    QTest::newRow("125%") << u"1.25"_s << true;
    QTest::newRow("150%") << u"1.5"_s << true;
    QTest::newRow("200%") << u"2"_s << false;
    QTest::newRow("225%") << u"2.25"_s << true;
    QTest::newRow("300%") << u"3"_s << false;
}

void tst_DStyleProxyFenetres::animations()
{
    QFETCH(QString, ratio);
    QFETCH(bool, arretees);
    QString const attendu = arretees ? u' ' + DonneElementsAnimes() : QString();
    QCOMPARE(LanceEnfant({QString::fromLatin1(kOptionAnimations)}, {{u"QT_SCALE_FACTOR"_s, ratio}}),
             u"ratio %1:"_s.arg(ratio) + attendu);
}

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    QStringList const options = QApplication::arguments();
    QString const ratio = u"ratio %1: "_s.arg(qApp->devicePixelRatio());
    if (options.contains(QLatin1StringView(kOptionImages)))
        return Imprime(ratio + DonneDifferences());
    if (options.contains(QLatin1StringView(kOptionAnimations)))
        return Imprime(ratio + DonneAnimations());
    tst_DStyleProxyFenetres test;
    return QTest::qExec(&test, nombre, arguments);
}
#include "tst_DStyleProxyFenetres.moc"
