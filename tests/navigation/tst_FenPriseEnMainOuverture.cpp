#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

#include <QDesktopServices>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFeuilleLien = "color: rgba(24,126,188,255);"_L1;
constexpr auto kFeuilleVisitay = "color :rgba(0,0,0,255);"_L1;

// An application that opens its addresses itself.
class Fureteur : public QObject
{
    Q_OBJECT

public:
    Fureteur() { QDesktopServices::setUrlHandler(u"https"_s, this, "PriseUrl"); }
    ~Fureteur() override { QDesktopServices::unsetUrlHandler(u"https"_s); }

    int ouvertures = 0;
    std::function<void()> surOuverture;

public Q_SLOTS:
    void PriseUrl(QUrl const & url)
    {
        QCOMPARE(url.host(), u"example.org"_s);
        ++ouvertures;
        if (surOuverture)
            surOuverture();
    }
};

} // namespace

// What happens in which order, and when the window goes in between.
class tst_FenPriseEnMainOuverture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ordreDuLien();
    void ordreDeLaCase();
    void fenetreDetruite_data();
    void fenetreDetruite();

private:
    static QCheckBox & Case(int rangee) { return FenetrePriseEnMain::Case(rangee); }
    static QPushButton & Lien(int rangee) { return FenetrePriseEnMain::Lien(rangee); }
    static void Clique(QWidget & cible)
    {
        QTest::mouseClick(&cible, Qt::LeftButton, {}, QPoint(8, cible.height() / 2));
    }

    std::unique_ptr<FenetrePriseEnMain> monBanc;
    std::unique_ptr<Fureteur> monFureteur;
};

void tst_FenPriseEnMainOuverture::init()
{
    monBanc = std::make_unique<FenetrePriseEnMain>();
    PlateformeBureau::Installe(nullptr); // the desktop itself, which asks the application first
    monFureteur = std::make_unique<Fureteur>();
}

void tst_FenPriseEnMainOuverture::cleanup()
{
    monFureteur.reset();
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

void tst_FenPriseEnMainOuverture::ordreDuLien()
{
    monBanc->Alloue(2).show();
    QStringList etapes;
    monFureteur->surOuverture = [&etapes] {
        etapes << u"opens"_s;
        QVERIFY(!Case(1).isChecked());
        QCOMPARE(Lien(1).styleSheet(), kFeuilleLien);
    };
    monBanc->monCtrl.surReglage = [&etapes] {
        etapes << u"records"_s;
        QCOMPARE(Lien(1).styleSheet(), kFeuilleLien);
    };

    Clique(Lien(1));

    QCOMPARE(etapes, (QStringList{u"opens"_s, u"records"_s}));
    QCOMPARE(Lien(1).styleSheet(), kFeuilleVisitay);
}

void tst_FenPriseEnMainOuverture::ordreDeLaCase()
{
    monBanc->Alloue(2).show();
    QStringList etapes;
    auto const note = [&etapes](QString const & etape) {
        etapes << etape;
        QVERIFY(Case(1).isChecked());
        QCOMPARE(Lien(1).styleSheet(), kFeuilleLien);
    };
    monFureteur->surOuverture = [&note] { note(u"opens"_s); };
    monBanc->monCtrl.surReglage = [&note] { note(u"records"_s); };

    Clique(Case(1));

    QCOMPARE(etapes, (QStringList{u"records"_s, u"opens"_s}));
    QCOMPARE(Lien(1).styleSheet(), kFeuilleVisitay);
}

void tst_FenPriseEnMainOuverture::fenetreDetruite_data()
{
    QTest::addColumn<bool>("parLeLien");
    QTest::newRow("the link") << true;
    QTest::newRow("the check box") << false;
}

// The help shows in the application's own window, and this one goes for good.
void tst_FenPriseEnMainOuverture::fenetreDetruite()
{
    QFETCH(bool, parLeLien);
    monFureteur->surOuverture = [] { FenPriseEnMain::LibereSingleton(); };
    monBanc->Alloue(2).show();

    Clique(parLeLien ? static_cast<QWidget &>(Lien(1)) : Case(1));

    QVERIFY(!FenPriseEnMain::Instance());
    QCOMPARE(monFureteur->ouvertures, 1);
    // The box is checked after the page opens when the link was clicked, before it otherwise.
    QCOMPARE(monBanc->monCtrl.reglages.size(), parLeLien ? 0 : 1);
}

QTEST_MAIN(tst_FenPriseEnMainOuverture)
#include "tst_FenPriseEnMainOuverture.moc"
