// tests/navigation/tst_FenPriseEnMainRangees.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

#include <QSvgWidget>

using namespace Qt::StringLiterals;

namespace {

using Reglages = QList<QPair<QString, bool>>;

constexpr auto kFeuilleLien = "color: rgba(24,126,188,255);"_L1;
constexpr auto kFeuilleVisitay = "color :rgba(0,0,0,255);"_L1;

class CompteurTailles : public QObject
{
public:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        compte += evenement->type() == QEvent::Resize;
        return false;
    }
    int compte = 0;
};

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

    void ordreDesTabulations();
    void clavier();
    void entreeSurUneCase();
    void nomsAccessibles();

    void hauteur_data();
    void hauteur();
    void hauteurUneFois();
    void largeurSansCoupure();
    void defileAuClavier();

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

void tst_FenPriseEnMainRangees::ordreDesTabulations()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(3);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    Case(0).setFocus();
    for (int tour = 0; tour < 2; ++tour)
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(QApplication::focusWidget(), &Case(i));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), &Lien(i));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), &Lien(2));
}

void tst_FenPriseEnMainRangees::clavier()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(4);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    int ouverts = 0;
    for (auto const & [rangee, touche] :
         {std::pair(1, Qt::Key_Space), std::pair(2, Qt::Key_Return), std::pair(3, Qt::Key_Enter)}) {
        Lien(rangee).setFocus();
        QTest::keyClick(&Lien(rangee), touche);
        QCOMPARE(monBanc->Ouverts().size(), ++ouverts);
        QVERIFY(Case(rangee).isChecked());
    }
    QTest::keyClick(&Case(3), Qt::Key_Space);
    QVERIFY(!Case(3).isChecked());
    QCOMPARE(monBanc->Ouverts().size(), ouverts);
}

// It opens nothing: no link is the window's answer.
void tst_FenPriseEnMainRangees::entreeSurUneCase()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(2);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    for (QWidget * const widget :
         {static_cast<QWidget *>(&Case(1)), static_cast<QWidget *>(&fenetre)})
        for (Qt::Key const touche : {Qt::Key_Return, Qt::Key_Enter}) {
            widget->setFocus();
            QTest::keyClick(widget, touche);
            QVERIFY(monBanc->Ouverts().isEmpty());
            QVERIFY(fenetre.isVisible());
        }
}

void tst_FenPriseEnMainRangees::nomsAccessibles()
{
    monBanc->Alloue(2);
    for (int i = 0; i < 2; ++i)
        for (QWidget * const widget :
             {static_cast<QWidget *>(&Case(i)), static_cast<QWidget *>(&Lien(i))})
            QCOMPARE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name),
                     u"Titre %1"_s.arg(i + 1));
}

void tst_FenPriseEnMainRangees::hauteur_data()
{
    QTest::addColumn<int>("rangees");
    QTest::addColumn<bool>("limitee");
    QTest::newRow("no row") << 0 << false;
    QTest::newRow("one row") << 1 << false;
    QTest::newRow("eight rows") << 8 << false;
    QTest::newRow("nine rows") << 9 << true;
    QTest::newRow("forty rows") << 40 << true;
}

void tst_FenPriseEnMainRangees::hauteur()
{
    QFETCH(int, rangees);
    QFETCH(bool, limitee);
    FenPriseEnMain & fenetre = monBanc->Alloue(rangees);
    QCOMPARE(fenetre.maximumHeight(), QWIDGETSIZE_MAX);
    auto const & defilement = *fenetre.findChild<QScrollArea *>();
    fenetre.show();
    fenetre.resize(fenetre.width(), 2000);
    QCoreApplication::processEvents();
    QVERIFY(defilement.widgetResizable());
    if (!limitee) {
        QCOMPARE(fenetre.maximumHeight(), QWIDGETSIZE_MAX);
        QCOMPARE(fenetre.height(), 2000);
        return;
    }
    int attendue = fenetre.findChild<QLabel *>(u"titrePriseEnMain"_s)->sizeHint().height() +
                   fenetre.findChild<QLabel *>(u"explicationPriseEnMain"_s)->sizeHint().height() +
                   50 + 20 + 10;
    for (int i = 0; i < 8; ++i)
        attendue += defilement.widget()->layout()->itemAt(3 + i)->sizeHint().height();
    QCOMPARE(fenetre.maximumHeight(), attendue);
    QTRY_COMPARE(fenetre.height(), attendue);
    QVERIFY(defilement.verticalScrollBar()->maximum() > 0); // the others scroll
    QCOMPARE(defilement.widget()->width(), defilement.viewport()->width());
}

void tst_FenPriseEnMainRangees::hauteurUneFois()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(12);
    CompteurTailles compteur;
    fenetre.installEventFilter(&compteur);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    for (int tour = 0; tour < 50; ++tour)
        QCoreApplication::processEvents();
    int const compte = compteur.compte;
    QVERIFY(compte <= 3); // its size, and the limit
    for (int tour = 0; tour < 50; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(compteur.compte, compte);
}

// There is no bar to scroll sideways with.
void tst_FenPriseEnMainRangees::largeurSansCoupure()
{
    QJsonObject document = CreeDocument(20);
    QJsonArray items = document[u"itemsPriseEnMain"_s].toArray();
    QJsonObject item = items[15].toObject();
    item[u"titreFR"_s] = u"Un titre bien plus long que ceux des autres rangées, "_s.repeated(3);
    items[15] = item;
    document[u"itemsPriseEnMain"_s] = items;
    monBanc->MetsRessources(EcrisDocument(document));
    FenPriseEnMain::AlloueInstance(true, true);
    FenPriseEnMain & fenetre = *FenPriseEnMain::Instance();
    auto const & defilement = *fenetre.findChild<QScrollArea *>();

    fenetre.show();
    for (int const largeur : {fenetre.width(), 10}) {
        fenetre.resize(largeur, fenetre.height());
        QCoreApplication::processEvents();
        QVERIFY(defilement.verticalScrollBar()->isVisible());
        QCOMPARE(defilement.horizontalScrollBar()->maximum(), 0);
        QVERIFY(Lien(15).width() >= Lien(15).sizeHint().width());
    }
}

void tst_FenPriseEnMainRangees::defileAuClavier()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(40);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    auto const & barre = *fenetre.findChild<QScrollArea *>()->verticalScrollBar();
    QTRY_VERIFY(barre.maximum() > 0);
    Case(0).setFocus();
    QCOMPARE(barre.value(), 0);
    QTest::keyClick(&Case(0), Qt::Key_Backtab); // round to the last one
    QCOMPARE(QApplication::focusWidget(), &Lien(39));
    QVERIFY(barre.value() > barre.maximum() / 2);
    QTest::keyClick(&Lien(39), Qt::Key_PageUp);
    QVERIFY(barre.value() < barre.maximum());
}

QTEST_MAIN(tst_FenPriseEnMainRangees)
#include "tst_FenPriseEnMainRangees.moc"
