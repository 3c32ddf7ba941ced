// tests/controls/tst_DToggleButtonPeinture.cpp
#include "controls/DToggleButton.h"

#include "controls/RenduBoutons.h"

#include <QEnterEvent>
#include <QtTest>

using RenduBoutons::Dispose;
using RenduBoutons::Rendu;

namespace {

constexpr QColor kSurlignay(200, 0, 0);
constexpr QColor kTexteSurlignay(250, 240, 0);
constexpr QColor kFoncay(0, 120, 0);
constexpr QColor kClair(0, 200, 220);
constexpr QColor kOmbre(40, 40, 80);
constexpr QColor kMoyen(160, 80, 160);

// No two alike, and none of them white.
QPalette PaletteEssai()
{
    QPalette palette;
    palette.setColor(QPalette::Highlight, kSurlignay);
    palette.setColor(QPalette::HighlightedText, kTexteSurlignay);
    palette.setColor(QPalette::Dark, kFoncay);
    palette.setColor(QPalette::Light, kClair);
    palette.setColor(QPalette::Shadow, kOmbre);
    palette.setColor(QPalette::Mid, kMoyen);
    return palette;
}

QColor SurBlanc(QColor const & couleur, double opacite)
{
    auto const mele = [opacite](int valeur) { return qRound(255 + (valeur - 255) * opacite); };
    return {mele(couleur.red()), mele(couleur.green()), mele(couleur.blue())};
}

// Blending rounds in its own way.
bool EstProche(QColor const & a, QColor const & b)
{
    constexpr int kTolerance = 3;
    return std::abs(a.red() - b.red()) <= kTolerance &&
           std::abs(a.green() - b.green()) <= kTolerance &&
           std::abs(a.blue() - b.blue()) <= kTolerance;
}

void Entre(QWidget & widget)
{
    QEnterEvent evenement(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&widget, &evenement);
}

void Sors(QWidget & widget)
{
    QEvent evenement(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &evenement);
}

void DonneFocus(QWidget & widget)
{
    widget.show();
    widget.activateWindow();
    widget.setFocus();
    QTRY_VERIFY(widget.hasFocus());
}

} // namespace

class tst_DToggleButtonPeinture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void couleurs_data();
    void couleurs();
    void formes();
    void palette();
    void debordementCoupay();
    void rayonsNuls_data();
    void rayonsNuls();
    void gonflement();
    void cacheSousLaSouris();
    void tailleForcee_data();
    void tailleForcee();
    void focus();
    void pressee();
};

void tst_DToggleButtonPeinture::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToggleButtonPeinture::couleurs_data()
{
    QTest::addColumn<int>("rayonPouce");
    QTest::addColumn<bool>("cochay");
    QTest::addColumn<bool>("active");
    QTest::addColumn<QColor>("piste");
    QTest::addColumn<QColor>("pouce");
    QTest::newRow("inside, unchecked") << 8 << false << true << kFoncay << kClair;
    QTest::newRow("inside, checked") << 8 << true << true << kSurlignay << kTexteSurlignay;
    QTest::newRow("same radius does not overflow")
        << 10 << true << true << kSurlignay << kTexteSurlignay;
    QTest::newRow("overflowing, unchecked")
        << 11 << false << true << SurBlanc(kFoncay, 0.5) << kClair;
    QTest::newRow("overflowing, checked")
        << 11 << true << true << SurBlanc(kSurlignay, 0.5) << kSurlignay;
    QTest::newRow("disabled, unchecked") << 8 << false << false << SurBlanc(kOmbre, 0.8) << kMoyen;
    QTest::newRow("disabled, checked") << 8 << true << false << SurBlanc(kOmbre, 0.8) << kMoyen;
    QTest::newRow("disabled, overflowing")
        << 11 << true << false << SurBlanc(kOmbre, 0.4) << kMoyen;
}

void tst_DToggleButtonPeinture::couleurs()
{
    QFETCH(int, rayonPouce);
    QFETCH(bool, cochay);
    QFETCH(bool, active);
    QFETCH(QColor, piste);
    QFETCH(QColor, pouce);
    DToggleButton bascule(10, rayonPouce);
    bascule.setPalette(PaletteEssai());
    bascule.setEnabled(active);
    bascule.setChecked(cochay);
    Dispose(bascule, bascule.sizeHint());

    QImage const image = Rendu(bascule);
    int const y = image.height() / 2;
    int const autreFin = image.width() - bascule.offset();
    QVERIFY(EstProche(image.pixelColor(autreFin, y), piste));
    QVERIFY(EstProche(image.pixelColor(bascule.offset(), y), pouce));
    QVERIFY(EstProche(image.pixelColor(bascule.offset() + 6, y), pouce));
}

void tst_DToggleButtonPeinture::formes()
{
    DToggleButton bascule(10, 6); // margin 4
    bascule.setPalette(PaletteEssai());
    Dispose(bascule, bascule.sizeHint());
    QImage const image = Rendu(bascule);
    QCOMPARE(Encre::BornesEncre(image), QRect(4, 4, 40, 20));
    QCOMPARE(Encre::BornesDe(image, kClair).center(), QPoint(13, 13));
    QCOMPARE(image.pixelColor(4, 4), QColor(Qt::white)); // the corners are round
    QCOMPARE(image.pixelColor(43, 23), QColor(Qt::white));
    QRect const pouce = Encre::Bornes(image,
                                      [](QColor const & pixel) {
                                          return pixel != QColor(Qt::white) && pixel.blue() > 60;
                                      }) &
                        QRect(8, 8, 12, 12);
    QCOMPARE(pouce, QRect(8, 8, 12, 12));
}

void tst_DToggleButtonPeinture::palette()
{
    DToggleButton bascule(10, 8);
    Dispose(bascule, bascule.sizeHint());
    bascule.setChecked(true);
    bascule.setPalette(PaletteEssai());
    QVERIFY(!Encre::BornesDe(Rendu(bascule), kSurlignay).isNull());
    QPalette autre = PaletteEssai();
    autre.setColor(QPalette::Highlight, kOmbre);
    bascule.setPalette(autre);
    QVERIFY(Encre::BornesDe(Rendu(bascule), kSurlignay).isNull());
    QVERIFY(!Encre::BornesDe(Rendu(bascule), kOmbre).isNull());
}

// Deliberate: the switch asks for no room for a thumb that overflows.
void tst_DToggleButtonPeinture::debordementCoupay()
{
    DToggleButton bascule(8, 12);
    bascule.setPalette(PaletteEssai());
    Dispose(bascule, bascule.sizeHint());
    QRect const pouce = Encre::BornesDe(Rendu(bascule), kClair);
    QCOMPARE(pouce.topLeft(), QPoint(0, 0));
    QCOMPARE(pouce.height(), 16);

    bascule.resize(60, 40);                                         // with room it is whole
    QCOMPARE(Encre::BornesDe(Rendu(bascule), kClair).height(), 22); // and its edge is blended
}

void tst_DToggleButtonPeinture::rayonsNuls_data()
{
    QTest::addColumn<int>("rayonPiste");
    QTest::addColumn<int>("rayonPouce");
    QTest::addColumn<QRect>("encre");
    QTest::addColumn<bool>("gonfle");
    QTest::newRow("nothing") << 0 << 0 << QRect() << false;
    QTest::newRow("both negative") << -10 << -20 << QRect() << false;
    QTest::newRow("negative thumb: the track alone") << 5 << -8 << QRect(5, 15, 20, 10) << false;
    QTest::newRow("no thumb: the track alone") << 5 << 0 << QRect(5, 15, 20, 10) << false;
    QTest::newRow("negative track: the thumb alone") << -5 << 3 << QRect(0, 17, 3, 6) << true;
}

void tst_DToggleButtonPeinture::rayonsNuls()
{
    QFETCH(int, rayonPiste);
    QFETCH(int, rayonPouce);
    QFETCH(QRect, encre);
    QFETCH(bool, gonfle);
    DToggleButton bascule(rayonPiste, rayonPouce);
    bascule.setPalette(PaletteEssai());
    bascule.resize(60, 40);
    DonneFocus(bascule);
    Sors(bascule); // the window may have come up under the mouse
    bascule.setAttribute(Qt::WA_KeyboardFocusChange, false);
    QCOMPARE(Encre::BornesEncre(Rendu(bascule)), encre);
    bascule.setAttribute(Qt::WA_KeyboardFocusChange); // its mark is on the track
    QCOMPARE(Encre::BornesEncre(Rendu(bascule)), encre);
    Entre(bascule);
    QCOMPARE(Encre::BornesEncre(Rendu(bascule)), gonfle ? encre.adjusted(0, -1, 1, 1) : encre);
}

void tst_DToggleButtonPeinture::gonflement()
{
    DToggleButton bascule(12, 6);
    bascule.setPalette(PaletteEssai());
    Dispose(bascule, bascule.sizeHint());
    auto const largeur = [&] { return Encre::BornesDe(Rendu(bascule), kClair).width(); };
    int const auRepos = largeur();

    Entre(bascule);
    QCOMPARE(largeur(), auRepos + 2);
    Entre(bascule);
    QCOMPARE(largeur(), auRepos + 2);
    Sors(bascule);
    QCOMPARE(largeur(), auRepos);
    Sors(bascule);
    QCOMPARE(largeur(), auRepos);
}

void tst_DToggleButtonPeinture::cacheSousLaSouris()
{
    DToggleButton bascule(12, 6);
    bascule.setPalette(PaletteEssai());
    Dispose(bascule, bascule.sizeHint());
    int const auRepos = Encre::BornesDe(Rendu(bascule), kClair).width();
    Entre(bascule);
    bascule.hide();
    QCOMPARE(Encre::BornesDe(Rendu(bascule), kClair).width(), auRepos);
}

void tst_DToggleButtonPeinture::tailleForcee_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<bool>("cochay");
    QTest::addColumn<QRect>("piste");
    QTest::addColumn<QPoint>("pouce");
    QTest::newRow("left to right, unchecked")
        << Qt::LeftToRight << false << QRect(2, 20, 40, 20) << QPoint(12, 30);
    QTest::newRow("left to right, checked")
        << Qt::LeftToRight << true << QRect(2, 20, 40, 20) << QPoint(32, 30);
    QTest::newRow("right to left, unchecked")
        << Qt::RightToLeft << false << QRect(58, 20, 40, 20) << QPoint(88, 30);
    QTest::newRow("right to left, checked")
        << Qt::RightToLeft << true << QRect(58, 20, 40, 20) << QPoint(68, 30);
}

void tst_DToggleButtonPeinture::tailleForcee()
{
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(bool, cochay);
    QFETCH(QPoint, pouce);
    DToggleButton bascule(10, 8);
    bascule.setPalette(PaletteEssai());
    bascule.setLayoutDirection(sens);
    bascule.setChecked(cochay);
    Dispose(bascule, QSize(100, 60));
    QImage const image = Rendu(bascule);
    QTEST(Encre::BornesEncre(image), "piste");
    QCOMPARE(bascule.offset(), cochay ? 32 : 12); // the property knows no direction
    QRect const bornes = Encre::BornesDe(image, cochay ? kTexteSurlignay : kClair);
    QCOMPARE(bornes, QRect(pouce - QPoint(7, 7), QSize(14, 14))); // the edge is blended
}

void tst_DToggleButtonPeinture::focus()
{
    DToggleButton bascule(10, 8);
    bascule.setPalette(PaletteEssai());
    DonneFocus(bascule);
    bascule.clearFocus();
    QImage const sans = Rendu(bascule);
    bascule.setFocus();
    bascule.setAttribute(Qt::WA_KeyboardFocusChange, false);
    QCOMPARE(Rendu(bascule), sans); // the mouse gave it
    bascule.setAttribute(Qt::WA_KeyboardFocusChange);
    QImage const avec = Rendu(bascule);
    QVERIFY(avec != sans);
    QCOMPARE(Encre::BornesEncre(avec), Encre::BornesEncre(sans)); // the mark is on the track
    QCOMPARE(avec.pixelColor(22, 2), bascule.palette().color(QPalette::WindowText));
}

// Deliberate: a press changes nothing, the release does.
void tst_DToggleButtonPeinture::pressee()
{
    DToggleButton bascule(10, 8);
    bascule.setPalette(PaletteEssai());
    Dispose(bascule, bascule.sizeHint());
    QImage const auRepos = Rendu(bascule);
    QTest::mousePress(&bascule, Qt::LeftButton);
    QVERIFY(bascule.isDown());
    QCOMPARE(Rendu(bascule), auRepos);
    QTest::mouseRelease(&bascule, Qt::LeftButton);
    QVERIFY(Rendu(bascule) != auRepos);
}

QTEST_MAIN(tst_DToggleButtonPeinture)
#include "tst_DToggleButtonPeinture.moc"
