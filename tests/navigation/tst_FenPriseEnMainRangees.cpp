// tests/navigation/tst_FenPriseEnMainRangees.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Reglages = QList<QPair<QString, bool>>;

constexpr auto kFeuilleLien = "color: rgba(24,126,188,255);"_L1;
constexpr auto kFeuilleVisitay = "color :rgba(0,0,0,255);"_L1;

} // namespace

class tst_FenPriseEnMainRangees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void widgets();
    void etatInitial();
    void lien();
    void adresseEntiere();
    void lienEncore();
    void lienDejaCoche();
    void navigateurAbsent();
    void cocher();
    void decocher();
    void cochePar();
    void rangeesSeparees();
    void cleSansReglage();
    void couleursDuTheme();
    void controleurParti();
    void controleurQuiFerme_data();
    void controleurQuiFerme();

private:
    static QCheckBox & Case(int rangee) { return FenetrePriseEnMain::Case(rangee); }
    static QPushButton & Lien(int rangee) { return FenetrePriseEnMain::Lien(rangee); }

    std::unique_ptr<FenetrePriseEnMain> monBanc;
};

void tst_FenPriseEnMainRangees::init()
{
    monBanc = std::make_unique<FenetrePriseEnMain>();
}

void tst_FenPriseEnMainRangees::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

void tst_FenPriseEnMainRangees::widgets()
{
    FenPriseEnMain const & fenetre = monBanc->Alloue(3);
    QCOMPARE(fenetre.findChildren<QCheckBox *>().size(), 3);
    QCOMPARE(fenetre.findChildren<QPushButton *>().size(), 3);
    QLayout const * const contenu = fenetre.findChild<QScrollArea *>()->widget()->layout();
    for (int i = 0; i < 3; ++i) {
        QLayout const * const rangee = contenu->itemAt(3 + i)->layout();
        QCOMPARE(rangee->count(), 2);
        QCOMPARE(rangee->itemAt(0)->widget(), &Case(i));
        QCOMPARE(rangee->itemAt(1)->widget(), &Lien(i));
        QVERIFY(Case(i).text().isEmpty());
        QVERIFY(!Case(i).isTristate());
        QCOMPARE(Lien(i).text(), u"Titre %1"_s.arg(i + 1));
        QVERIFY(Lien(i).isFlat());
        QCOMPARE(Lien(i).sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(Lien(i).sizePolicy().verticalPolicy(),
                 QPushButton().sizePolicy().verticalPolicy());
        QCOMPARE(Lien(i).styleSheet(), kFeuilleLien);
    }
}

void tst_FenPriseEnMainRangees::etatInitial()
{
    ReglageSimulay deuxieme(u"groupe"_s, u"cle2"_s, true);
    ReglageSimulay troisieme(u"groupe"_s, u"cle3"_s, false);
    monBanc->monCtrl.AjouteReglage(&deuxieme);
    monBanc->monCtrl.AjouteReglage(&troisieme);

    monBanc->Alloue(3);

    QVERIFY(!Case(0).isChecked());
    QVERIFY(Case(1).isChecked());
    QVERIFY(!Case(2).isChecked());
    // Deliberate: all links begin in their colour, and nothing is told that was asked.
    QCOMPARE(Lien(1).styleSheet(), kFeuilleLien);
    QVERIFY(monBanc->monCtrl.reglages.isEmpty());
    QVERIFY(monBanc->Ouverts().isEmpty());
}

void tst_FenPriseEnMainRangees::lien()
{
    monBanc->Alloue(3);

    Lien(1).click();

    QCOMPARE(monBanc->Ouverts(), QStringList{u"https://example.org/fr/2"_s});
    QVERIFY(Case(1).isChecked());
    QCOMPARE(monBanc->monCtrl.reglages, (Reglages{{u"groupe/cle2"_s, true}})); // once
    QCOMPARE(Lien(1).styleSheet(), kFeuilleVisitay);
    Lien(1).ensurePolished();
    QCOMPARE(Lien(1).palette().color(QPalette::ButtonText), QColor(0, 0, 0));
}

void tst_FenPriseEnMainRangees::adresseEntiere()
{
    monBanc->monCtrl.nomProduit = "Mon%20produit";
    monBanc->Alloue(1);
    Lien(0).click();
    QCOMPARE(monBanc->monBureau->urlsOuvertes.size(), 1);
    auto const & [url, fureteur] = monBanc->monBureau->urlsOuvertes.first();
    QCOMPARE(url, QUrl(u"https://example.org/fr/1?nom-produit=Mon produit&plateforme=win&"
                       "modules-langue=fr-en&version-numerique-produit=12"_s));
    QVERIFY(fureteur.isEmpty());
}

void tst_FenPriseEnMainRangees::lienEncore()
{
    monBanc->Alloue(1);
    Lien(0).click();
    Lien(0).click();
    QCOMPARE(monBanc->Ouverts().size(), 2);
    QCOMPARE(monBanc->monCtrl.reglages.size(), 1); // the state has not changed again
}

void tst_FenPriseEnMainRangees::lienDejaCoche()
{
    ReglageSimulay reglage(u"groupe"_s, u"cle1"_s, true);
    monBanc->monCtrl.AjouteReglage(&reglage);
    monBanc->Alloue(1);
    Lien(0).click();
    QCOMPARE(monBanc->Ouverts().size(), 1);
    QVERIFY(monBanc->monCtrl.reglages.isEmpty());
    QCOMPARE(Lien(0).styleSheet(), kFeuilleVisitay);
}

// Deliberate: whether the page opened is not asked.
void tst_FenPriseEnMainRangees::navigateurAbsent()
{
    monBanc->monBureau->ouvertureReussit = false;
    monBanc->Alloue(1);
    Lien(0).click();
    QVERIFY(Case(0).isChecked());
    QCOMPARE(Lien(0).styleSheet(), kFeuilleVisitay);
}

void tst_FenPriseEnMainRangees::cocher()
{
    monBanc->Alloue(2);
    bool ouvertAvant = false;
    monBanc->monCtrl.surReglage = [&] { ouvertAvant = !monBanc->Ouverts().isEmpty(); };

    Case(1).click();

    QCOMPARE(monBanc->monCtrl.reglages, (Reglages{{u"groupe/cle2"_s, true}}));
    QVERIFY(!ouvertAvant); // recorded first
    QCOMPARE(monBanc->Ouverts(), QStringList{u"https://example.org/fr/2"_s});
    QCOMPARE(Lien(1).styleSheet(), kFeuilleVisitay);
    QCOMPARE(Lien(0).styleSheet(), kFeuilleLien);
}

void tst_FenPriseEnMainRangees::decocher()
{
    monBanc->Alloue(1);
    Lien(0).click();
    monBanc->monBureau->urlsOuvertes.clear();
    monBanc->monCtrl.reglages.clear();

    Case(0).click();

    QVERIFY(!Case(0).isChecked());
    QVERIFY(monBanc->Ouverts().isEmpty());
    QCOMPARE(Lien(0).styleSheet(), kFeuilleLien);
    QCOMPARE(monBanc->monCtrl.reglages, (Reglages{{u"groupe/cle1"_s, false}}));
}

// By the program: recorded, but no visit.
void tst_FenPriseEnMainRangees::cochePar()
{
    monBanc->Alloue(1);
    Case(0).setChecked(true);
    QCOMPARE(monBanc->monCtrl.reglages, (Reglages{{u"groupe/cle1"_s, true}}));
    QVERIFY(monBanc->Ouverts().isEmpty());
    QCOMPARE(Lien(0).styleSheet(), kFeuilleLien);
    Case(0).setTristate(true);
    Case(0).setCheckState(Qt::PartiallyChecked);
    QCOMPARE(monBanc->monCtrl.reglages.last(), (QPair<QString, bool>{u"groupe/cle1"_s, false}));
}

void tst_FenPriseEnMainRangees::rangeesSeparees()
{
    monBanc->Alloue(40);
    for (int i : {0, 39, 20})
        Lien(i).click();
    QCOMPARE(monBanc->Ouverts(),
             (QStringList{u"https://example.org/fr/1"_s, u"https://example.org/fr/40"_s,
                          u"https://example.org/fr/21"_s}));
    for (int i = 0; i < 40; ++i)
        QCOMPARE(Case(i).isChecked(), i == 0 || i == 20 || i == 39);
}

void tst_FenPriseEnMainRangees::cleSansReglage()
{
    QJsonObject document = CreeDocument(0);
    QJsonObject item = CreeItem(1);
    item[u"cle"_s] = QString();
    document[u"itemsPriseEnMain"_s] = QJsonArray{item, item};
    monBanc->MetsRessources(EcrisDocument(document));
    FenPriseEnMain::AlloueInstance(true, true);
    Case(1).click();
    QCOMPARE(monBanc->monCtrl.reglages, (Reglages{{QString(), true}}));
    QVERIFY(!Case(0).isChecked());
}

void tst_FenPriseEnMainRangees::couleursDuTheme()
{
    ThemesQt::Instance()->AjouterVariable(u"couleurTexteLien"_s, QColor(1, 2, 3));
    ThemesQt::Instance()->AjouterVariable(u"couleurTexteDeBase"_s, QColor(4, 5, 6));
    monBanc->Alloue(1);
    QCOMPARE(Lien(0).styleSheet(), u"color: rgba(1,2,3,255);"_s);
    Case(0).click();
    QCOMPARE(Lien(0).styleSheet(), u"color :rgba(4,5,6,255);"_s);
    // The theme of the moment, not that of the window's birth.
    ThemesQt::Instance()->AjouterVariable(u"couleurTexteLien"_s, QColor(7, 8, 9));
    Case(0).click();
    QCOMPARE(Lien(0).styleSheet(), u"color: rgba(7,8,9,255);"_s);
}

void tst_FenPriseEnMainRangees::controleurParti()
{
    monBanc->Alloue(1);
    FenPriseEnMain::monCtrl = nullptr;
    Lien(0).click();
    QCOMPARE(monBanc->Ouverts().size(), 1);
    QVERIFY(monBanc->monCtrl.reglages.isEmpty());
}

void tst_FenPriseEnMainRangees::controleurQuiFerme_data()
{
    QTest::addColumn<bool>("parLeLien");
    QTest::newRow("the link") << true;
    QTest::newRow("the check box") << false;
}

// All was seen: an application puts the window away.
void tst_FenPriseEnMainRangees::controleurQuiFerme()
{
    QFETCH(bool, parLeLien);
    monBanc->monCtrl.surReglage = [] { FenPriseEnMain::Instance()->close(); };
    monBanc->Alloue(2).show();
    QWidget & cible = parLeLien ? static_cast<QWidget &>(Lien(1)) : Case(1);
    QTest::mouseClick(&cible, Qt::LeftButton, {}, QPoint(8, cible.height() / 2));
    QVERIFY(!FenPriseEnMain::Instance()->isVisible());
    QCOMPARE(monBanc->monCtrl.reglages.size(), 1);
    QCOMPARE(monBanc->Ouverts().size(), 1);
    QCOMPARE(Lien(1).styleSheet(), kFeuilleVisitay);
}

QTEST_MAIN(tst_FenPriseEnMainRangees)
#include "tst_FenPriseEnMainRangees.moc"
