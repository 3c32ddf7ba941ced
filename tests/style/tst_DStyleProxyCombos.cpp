// tests/style/tst_DStyleProxyCombos.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

#include <QPixmapCache>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(120, 30);

enum eGenre
{
    kOrdinaire,
    kSansFleche,
    kSansFrame,
    kSansLesDeux,
    kCadreEnleve ///< by QComboBox::setFrame
};

void MetsGenre(QComboBox & combo, int genre)
{
    combo.setProperty(DStyleProxy::DonneNomAttributStyleComboBoxSansFleche(),
                      genre == kSansFleche || genre == kSansLesDeux);
    combo.setProperty(DStyleProxy::DonneNomStyleComboBoxSansFrame(),
                      genre == kSansFrame || genre == kSansLesDeux);
}

QStyleOptionComboBox DonneOption(bool editable, QStyle::State etat)
{
    QStyleOptionComboBox option;
    option.rect = QRect(QPoint(0, 0), kTaille);
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.subControls = QStyle::SC_All;
    option.editable = editable;
    return option;
}

} // namespace

// Combo boxes on Fusion, which keeps the pictures that it draws.
class tst_DStyleProxyCombos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void imagesNonPartagees_data();
    void imagesNonPartagees();
    void sansFrameSansBiseau_data();
    void sansFrameSansBiseau();
    void sansFlecheSansDessin();

private:
    // Twice: beside a picture that it makes anew, Fusion has other pens.
    QImage PeinsCombo(int genre, QStyleOptionComboBox option) const
    {
        option.frame = genre != kCadreEnleve;
        QComboBox combo;
        MetsGenre(combo, genre);
        QImage image;
        for (int tour = 0; tour < 2; ++tour) {
            image = Peins(kTaille, [&](QPainter & peintre) {
                monStyle->drawComplexControl(QStyle::CC_ComboBox, &option, &peintre, &combo);
            });
        }
        return image;
    }

    std::unique_ptr<DStyleProxy> monStyle;
};

void tst_DStyleProxyCombos::init()
{
    monStyle = std::make_unique<DStyleProxy>(QStyleFactory::create(u"Fusion"_s));
    QPixmapCache::clear();
}

void tst_DStyleProxyCombos::cleanup()
{
    monStyle.reset();
    QPixmapCache::clear();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyCombos::imagesNonPartagees_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QStyle::State>("etat");
    QStyle::State const normal = QStyle::State_Enabled | QStyle::State_Active;
    for (bool const editable : {false, true}) {
        char const * const suite = editable ? ", editable" : "";
        QTest::addRow("normal%s", suite) << editable << normal;
        QTest::addRow("focused%s", suite) << editable << (normal | QStyle::State_HasFocus);
        QTest::addRow("open%s", suite) << editable << (normal | QStyle::State_On);
        QTest::addRow("under the mouse%s", suite) << editable << (normal | QStyle::State_MouseOver);
        QTest::addRow("disabled%s", suite) << editable << QStyle::State();
    }
}

// Whatever was drawn before, each has its own look.
void tst_DStyleProxyCombos::imagesNonPartagees()
{
    QFETCH(bool, editable);
    QFETCH(QStyle::State, etat);
    QStyleOptionComboBox const option = DonneOption(editable, etat);
    QList<int> ordre = {kOrdinaire, kSansFleche, kSansFrame, kSansLesDeux, kCadreEnleve};
    QList<QImage> attendues;
    for (int const genre : std::as_const(ordre)) {
        QPixmapCache::clear();
        attendues.append(PeinsCombo(genre, option));
    }
    QVERIFY(attendues.at(kOrdinaire) != attendues.at(kSansFleche));
    QVERIFY(attendues.at(kOrdinaire) != attendues.at(kSansFrame));
    QVERIFY(attendues.at(kSansFleche) != attendues.at(kSansFrame));
    if (!editable) // which alone has a bevel without a frame
        QVERIFY(attendues.at(kCadreEnleve) != attendues.at(kSansFrame));
    do {
        QPixmapCache::clear();
        for (int const genre : std::as_const(ordre))
            QVERIFY2(PeinsCombo(genre, option) == attendues.at(genre), QByteArray::number(genre));
    } while (std::next_permutation(ordre.begin(), ordre.end()));
}

void tst_DStyleProxyCombos::sansFrameSansBiseau_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QStyle::State const normal = QStyle::State_Enabled | QStyle::State_Active;
    QTest::newRow("normal") << normal;
    QTest::newRow("under the mouse") << (normal | QStyle::State_MouseOver);
    QTest::newRow("open") << (normal | QStyle::State_On | QStyle::State_Sunken);
    QTest::newRow("disabled") << QStyle::State();
}

void tst_DStyleProxyCombos::sansFrameSansBiseau()
{
    QFETCH(QStyle::State, etat);
    QStyleOptionComboBox const option = DonneOption(false, etat);
    QRect const champ = monStyle->subControlRect(QStyle::CC_ComboBox, &option,
                                                 QStyle::SC_ComboBoxEditField, nullptr);
    QVERIFY(!champ.isEmpty());

    QImage const image = PeinsCombo(kSansFrame, option);

    // Nothing but the arrow, in the middle of its part.
    QRect const encre = Encre(image);
    QVERIFY(!encre.isEmpty());
    QCOMPARE_GT(encre.left(), champ.right());
    QVERIFY(encre.top() > 4 && encre.bottom() < kTaille.height() - 5);
    QCOMPARE(Encre(PeinsCombo(kOrdinaire, option)).left(), 0);
}

void tst_DStyleProxyCombos::sansFlecheSansDessin()
{
    QStyle::State const normal = QStyle::State_Enabled | QStyle::State_Active;
    QVERIFY(EstVide(PeinsCombo(kSansLesDeux, DonneOption(false, normal))));

    // The right half is as the left one.
    QImage const image = PeinsCombo(kSansFleche, DonneOption(false, normal));
    for (int x = 0; x < kTaille.width() / 2; ++x)
        QCOMPARE(image.pixelColor(kTaille.width() - 1 - x, kTaille.height() / 2),
                 image.pixelColor(x, kTaille.height() / 2));
}

QTEST_MAIN(tst_DStyleProxyCombos)
#include "tst_DStyleProxyCombos.moc"
