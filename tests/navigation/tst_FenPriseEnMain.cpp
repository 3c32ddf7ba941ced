// tests/navigation/tst_FenPriseEnMain.cpp
#include "navigation/FenPriseEnMain.h"

#include "foundation/ThemesQt.h"
#include "foundation/TraductionGui.h"
#include "navigation/FenetrePriseEnMain.h"

#include <QtTest>

#include <QAccessible>
#include <QSvgRenderer>
#include <QSvgWidget>

#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

namespace {
bool unLecteurEcoute = false;
} // namespace

// In place of Qt's: no platform without a screen tells of a reader.
bool QAccessible::isActive()
{
    return unLecteurEcoute;
}

class tst_FenPriseEnMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void drapeaux();
    void titre_data();
    void titre();
    void defilement();
    void entete();
    void imageAuxProportions();
    void etiquettes();
    void arguments();
    void feuille();
    void accessibilite_data();
    void accessibilite();

    void sansControleur();
    void sansRessources();
    void documentVide();
    void exceptionDuDocument();
    void populeEncore();

private:
    std::unique_ptr<FenetrePriseEnMain> monBanc;
};

void tst_FenPriseEnMain::init()
{
    unLecteurEcoute = false;
    monBanc = std::make_unique<FenetrePriseEnMain>();
}

void tst_FenPriseEnMain::cleanup()
{
    monBanc.reset();
    QVERIFY(!FenPriseEnMain::Instance());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

void tst_FenPriseEnMain::drapeaux()
{
    FenPriseEnMain const & fenetre = monBanc->Alloue(1);
    QVERIFY(!fenetre.parent());
    QVERIFY(!fenetre.isVisible());
    QCOMPARE(fenetre.windowType(), Qt::Dialog);
    QVERIFY(fenetre.windowFlags() & Qt::MSWindowsFixedSizeDialogHint);
    QVERIFY(!(fenetre.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(fenetre.sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(fenetre.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void tst_FenPriseEnMain::titre_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::newRow("French") << kLangueFrancais;
    QTest::newRow("English") << kLangueAnglais;
}

void tst_FenPriseEnMain::titre()
{
    QFETCH(eLangue, langue);
    Traductions::MetsLanguePourApplicationCourante(langue);
    QString const attendu = TraductionGui(TexteGui("Prise en main"));
    QCOMPARE(attendu == u"Prise en main"_s, langue == kLangueFrancais);
    QCOMPARE(monBanc->Alloue(1).windowTitle(), attendu);
    QCOMPARE(FenetrePriseEnMain::Lien(0).text(),
             langue == kLangueFrancais ? u"Titre 1"_s : u"Title 1"_s);
}

void tst_FenPriseEnMain::defilement()
{
    FenPriseEnMain const & fenetre = monBanc->Alloue(3);
    auto const * const defilement = fenetre.findChild<QScrollArea *>();
    QCOMPARE(fenetre.layout()->contentsMargins(), QMargins());
    QCOMPARE(fenetre.layout()->itemAt(0)->widget(), defilement);
    QCOMPARE(defilement->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(defilement->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(defilement->widgetResizable());
    QCOMPARE(defilement->frameShape(), QFrame::NoFrame);

    auto const * const contenu = qobject_cast<QFrame *>(defilement->widget());
    QVERIFY(contenu);
    QCOMPARE(contenu->frameStyle(), 0);
    QCOMPARE(contenu->layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    QVERIFY(qobject_cast<QVBoxLayout *>(contenu->layout()));
    QCOMPARE(contenu->layout()->count(), 3 + 3); // picture, title, explanation, then the rows
    for (int i = 3; i < 6; ++i)
        QVERIFY(qobject_cast<QHBoxLayout *>(contenu->layout()->itemAt(i)->layout()));
}

void tst_FenPriseEnMain::entete()
{
    FenPriseEnMain const & fenetre = monBanc->Alloue(1);
    auto const * const image = fenetre.findChild<QSvgWidget *>();
    auto const * const contenu = fenetre.findChild<QScrollArea *>()->widget();
    auto const * const entete = qobject_cast<QHBoxLayout *>(contenu->layout()->itemAt(0)->layout());
    QVERIFY(entete);
    QCOMPARE(entete->alignment(), Qt::AlignCenter);
    QCOMPARE(entete->itemAt(0)->widget(), image);
    QCOMPARE(image->minimumHeight(), 50);
    QCOMPARE(image->maximumHeight(), 50);
    QVERIFY(image->renderer()->isValid());
    QCOMPARE(image->renderer()->aspectRatioMode(), Qt::KeepAspectRatio);
}

// Four times as wide as high: in a square, blank above and below.
void tst_FenPriseEnMain::imageAuxProportions()
{
    auto * const image = monBanc->Alloue(1).findChild<QSvgWidget *>();
    image->resize(50, 50);
    QImage const rendu = image->grab().toImage();
    int const echelle = rendu.height() / 50;
    QCOMPARE(rendu.pixelColor(rendu.rect().center()), QColor(255, 0, 0));
    QVERIFY(rendu.pixelColor(25 * echelle, 5 * echelle) != QColor(255, 0, 0));
    QVERIFY(rendu.pixelColor(25 * echelle, 44 * echelle) != QColor(255, 0, 0));
}

void tst_FenPriseEnMain::etiquettes()
{
    FenPriseEnMain const & fenetre = monBanc->Alloue(1);
    auto const * const titre = fenetre.findChild<QLabel *>(u"titrePriseEnMain"_s);
    auto const * const explication = fenetre.findChild<QLabel *>(u"explicationPriseEnMain"_s);
    QCOMPARE(titre->text(), u"Découvrir"_s);
    QCOMPARE(titre->alignment(), Qt::AlignCenter);
    QVERIFY(!titre->wordWrap());
    QCOMPARE(explication->text(), u"Cochez ce que vous avez vu."_s);
    QCOMPARE(explication->alignment(), Qt::AlignCenter);
    QVERIFY(explication->wordWrap());

    QLayout const * const contenu = fenetre.findChild<QScrollArea *>()->widget()->layout();
    QCOMPARE(contenu->itemAt(1)->widget(), titre);
    QCOMPARE(contenu->itemAt(2)->widget(), explication);
}

void tst_FenPriseEnMain::arguments()
{
    monBanc->Alloue(1);
    QVERIFY(monBanc->monCtrl.questions.contains(u"modules 1 0"_s));
    FenPriseEnMain::LibereSingleton();
    FenPriseEnMain::AlloueInstance(false, true);
    QCOMPARE(monBanc->monCtrl.questions.at(4), u"modules 0 1"_s);
}

void tst_FenPriseEnMain::feuille()
{
    ThemesQt::Instance()->AjouterVariable(u"couleurEssai"_s, u"rgba(1,2,3,255)"_s);
    monBanc->MetsRessources(EcrisDocument(CreeDocument(1)),
                            "#titrePriseEnMain { color: @couleurEssai; } /* é */");
    FenPriseEnMain::AlloueInstance(true, true);
    FenPriseEnMain * const fenetre = FenPriseEnMain::Instance();
    QCOMPARE(fenetre->styleSheet(), u"#titrePriseEnMain { color: rgba(1,2,3,255); } /* é */"_s);
    auto * const titre = fenetre->findChild<QLabel *>(u"titrePriseEnMain"_s);
    titre->ensurePolished();
    QCOMPARE(titre->palette().color(QPalette::WindowText), QColor(1, 2, 3));
}

void tst_FenPriseEnMain::accessibilite_data()
{
    QTest::addColumn<bool>("active");
    QTest::newRow("with a screen reader") << true;
    QTest::newRow("without one") << false;
}

void tst_FenPriseEnMain::accessibilite()
{
    QFETCH(bool, active);
    unLecteurEcoute = active;
    FenPriseEnMain const & fenetre = monBanc->Alloue(1);
    Qt::FocusPolicy const attendu = active ? Qt::TabFocus : Qt::NoFocus;
    QCOMPARE(fenetre.findChild<QSvgWidget *>()->focusPolicy(), attendu);
    QCOMPARE(fenetre.findChild<QLabel *>(u"titrePriseEnMain"_s)->focusPolicy(), attendu);
    QCOMPARE(fenetre.findChild<QLabel *>(u"explicationPriseEnMain"_s)->focusPolicy(), attendu);
}

void tst_FenPriseEnMain::sansControleur()
{
    FenPriseEnMain::monCtrl = nullptr;
    FenPriseEnMain & fenetre = monBanc->Alloue(3);
    QCOMPARE(fenetre.findChild<QLabel *>(u"titrePriseEnMain"_s)->text(), QString());
    QVERIFY(!fenetre.findChild<QCheckBox *>());
    fenetre.show();
    QVERIFY(fenetre.close());
}

void tst_FenPriseEnMain::sansRessources()
{
    FenPriseEnMain::AlloueInstance(true, true);
    FenPriseEnMain & fenetre = *FenPriseEnMain::Instance();
    QVERIFY(fenetre.styleSheet().isEmpty());
    QCOMPARE(fenetre.findChild<QLabel *>(u"titrePriseEnMain"_s)->text(), QString());
    QCOMPARE(fenetre.findChild<QLabel *>(u"explicationPriseEnMain"_s)->text(), QString());
    QVERIFY(!fenetre.findChild<QCheckBox *>());
    fenetre.show();
    QVERIFY(fenetre.close());
}

void tst_FenPriseEnMain::documentVide()
{
    monBanc->MetsRessources({});
    FenPriseEnMain::AlloueInstance(true, true);
    QVERIFY(!FenPriseEnMain::Instance()->findChild<QCheckBox *>());
    QVERIFY(monBanc->monCtrl.DonneTitreFenetre().EstVide());
}

// The caller sees the exception, and nothing is left of the window.
void tst_FenPriseEnMain::exceptionDuDocument()
{
    monBanc->MetsRessources("{");
    QVERIFY_THROWS_EXCEPTION(nlohmann::json::parse_error,
                             FenPriseEnMain::AlloueInstance(true, true));
    QVERIFY(!FenPriseEnMain::Instance());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());

    monBanc->MetsRessources("{}");
    QVERIFY_THROWS_EXCEPTION(nlohmann::json::out_of_range, FenPriseEnMain(true, true));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());

    FenPriseEnMain * const bonne = &monBanc->Alloue(1);
    monBanc->MetsRessources("[]");
    QVERIFY_THROWS_EXCEPTION(nlohmann::json::type_error,
                             FenPriseEnMain::AlloueInstance(true, true));
    QCOMPARE(FenPriseEnMain::Instance(), bonne);
    QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{bonne});
}

void tst_FenPriseEnMain::populeEncore()
{
    FenPriseEnMain & fenetre = monBanc->Alloue(9);
    fenetre.PopuleAffichage(nullptr);
    QCOMPARE(fenetre.findChildren<QCheckBox *>().size(), 9);

    auto * const autre = new QWidget(&fenetre);
    auto * const disposition = new QVBoxLayout(autre);
    fenetre.PopuleAffichage(disposition);
    QCOMPARE(disposition->count(), 3 + 9);
    QCOMPARE(autre->findChildren<QCheckBox *>().size(), 9);
}

QTEST_MAIN(tst_FenPriseEnMain)
#include "tst_FenPriseEnMain.moc"
