// tests/galerie/tst_PageEcrans.cpp
#include "PageEcrans.h"

#include "ThemeGalerie.h"
#include "VueEcrans.h"

#include "foundation/ThemesQt.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr char kOptionSansEcran[] = "--sans-ecran"; // makes this program its own child
constexpr int kDelai = 60'000;                      // ms, for that child on a busy machine

QLabel * PreteEcran(QWidget const & page)
{
    return page.findChild<QLabel *>(u"ecranLePlusProche"_s);
}

// What the page does when there is no screen at all.
int VisSansEcran()
{
    if (!QGuiApplication::screens().isEmpty())
        return 2;
    PageEcrans const page;
    auto * const vue = page.findChild<VueEcrans *>();
    vue->MetsRectangle(vue->DonneRectangle().translated(10, 10));
    auto * const disposition = page.findChild<QComboBox *>(u"disposition"_s);
    disposition->setCurrentIndex(1);
    disposition->setCurrentIndex(0);
    return PreteEcran(page)->text() == u"Aucun écran" ? 0 : 3;
}

} // namespace

class tst_PageEcrans : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase();

    void legendeSuitLeTheme();
    void ecransSuivis_data();
    void ecransSuivis();
    void disposition();
    void nombresDansLaLangue();
    void sansEcran();
};

void tst_PageEcrans::cleanupTestCase()
{
    ThemesQt::DetruisToi();
}

void tst_PageEcrans::legendeSuitLeTheme()
{
    ThemeGalerie theme;
    theme.Reinitialise();
    QVERIFY(theme.Applique());
    PageEcrans const page;
    auto * const pastille = page.findChild<QWidget *>(u"couleurAccentGuides"_s);
    auto const couleur = [&] {
        QImage image(pastille->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        pastille->render(&image, {}, {}, {}); // no background: an alpha stays to be seen
        return image.pixelColor(image.rect().center());
    };
    QCOMPARE(couleur(), ThemesQt::Instance()->DonneCouleur(u"couleurAccentGuides"_s));

    theme.Remplace(u"couleurAccentGuides"_s, QColor(0, 0, 255, 51));
    QVERIFY(theme.Applique());

    QCOMPARE(couleur(), QColor(0, 0, 255, 51));
    theme.Reinitialise();
    QVERIFY(theme.Applique());
}

void tst_PageEcrans::ecransSuivis_data()
{
    QTest::addColumn<bool>("entier");
    QTest::newRow("another geometry") << true;
    QTest::newRow("another available geometry") << false;
}

void tst_PageEcrans::ecransSuivis()
{
    QFETCH(bool, entier);
    PageEcrans const page;
    QLabel * const texte = PreteEcran(page);
    QString const avant = texte->text();
    QVERIFY(!avant.isEmpty());
    texte->clear();

    QScreen * const ecran = QGuiApplication::primaryScreen();
    if (entier)
        Q_EMIT ecran->geometryChanged(ecran->geometry());
    else
        Q_EMIT ecran->availableGeometryChanged(ecran->availableGeometry());

    QCOMPARE(texte->text(), avant);
}

void tst_PageEcrans::disposition()
{
    PageEcrans const page;
    auto * const disposition = page.findChild<QComboBox *>(u"disposition"_s);
    auto * const vue = page.findChild<VueEcrans *>();

    for (int i = 0; i < disposition->count(); ++i) {
        disposition->setCurrentIndex(i);
        QVERIFY2(!PreteEcran(page)->text().isEmpty(), qPrintable(disposition->itemText(i)));
    }
    page.findChild<QSpinBox *>(u"largeur"_s)->setValue(700);
    QCOMPARE(vue->DonneRectangle().width(), 700);
}

void tst_PageEcrans::nombresDansLaLangue()
{
    QLocale const avant;
    auto const remets = qScopeGuard([&] { QLocale::setDefault(avant); });

    QLocale::setDefault(QLocale(QLocale::English));
    QCOMPARE(EnTaille({1920, 800}), u"1,920 × 800"_s);
    QLocale::setDefault(QLocale(QLocale::French));
    QCOMPARE(EnTaille({1920, 800}), u"1\u202F920 × 800"_s);
}

void tst_PageEcrans::sansEcran()
{
    QTemporaryFile ecrans;
    QVERIFY(ecrans.open());
    ecrans.write(R"({"screens": []})");
    ecrans.close();
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + ecrans.fileName());
    QProcess enfant;
    enfant.setProcessEnvironment(environnement);
    enfant.start(QCoreApplication::applicationFilePath(), {QLatin1String(kOptionSansEcran)});

    QVERIFY(enfant.waitForFinished(kDelai));

    QCOMPARE(enfant.exitStatus(), QProcess::NormalExit);
    QCOMPARE(enfant.exitCode(), 0);
}

int main(int nombre, char ** arguments)
{
    QApplication application(nombre, arguments);
    if (QCoreApplication::arguments().contains(QLatin1String(kOptionSansEcran)))
        return VisSansEcran();
    tst_PageEcrans test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_PageEcrans.moc"
