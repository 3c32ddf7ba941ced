// tests/galerie/tst_PagePriseEnMain.cpp
#include "PagePriseEnMain.h"

#include "ApercuFenetre.h"
#include "CtrlPriseEnMain.h"
#include "FenetreGalerie.h"
#include "Pages.h"
#include "ThemeGalerie.h"

#include "foundation/ThemesQt.h"
#include "navigation/FenPriseEnMain.h"
#include "noyau/RoutinesTexte.h"
#include "noyau/Traductions.h"
#include "outils/BureauSimulay.h"

#include <QtTest>

#include <QSvgRenderer>

using namespace Qt::StringLiterals;

class tst_PagePriseEnMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void document();
    void ressources();
    void produit_data();
    void produit();

    void ouvre();
    void etatVivant();
    void oublie();
    void oublieFermee();
    void fichier();
    void sansFichierEnMemoire();
    void apercu();
    void fermeture();

    void pageRefaite();
    void pageRefermee();
    void langueDeLaGalerie();
    void nomsAccessibles();
    void ordreDesTabulations();

private:
    template <typename Widget>
    Widget & Prete(QString const & nom) const
    {
        return *maPage->findChild<Widget *>(nom);
    }
    QString Etat() const { return Prete<QLabel>(u"etatPriseEnMain"_s).text(); }
    static QList<QCheckBox *> Cases()
    {
        return FenPriseEnMain::Instance()->findChildren<QCheckBox *>(u"CheckBoxListeLien"_s);
    }
    static QList<QPushButton *> Liens()
    {
        return FenPriseEnMain::Instance()->findChildren<QPushButton *>(u"BoutonListeLien"_s);
    }
    void Refais()
    {
        maPage.reset();
        maPage = std::make_unique<PagePriseEnMain>();
    }

    QTemporaryDir monDossier;
    BureauSimulay * monBureau = nullptr;
    std::unique_ptr<PagePriseEnMain> maPage;
};

void tst_PagePriseEnMain::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    PlateformeBureau::Installe(std::move(bureau));
    CtrlPriseEnMain::MetsFichier({});
    maPage = std::make_unique<PagePriseEnMain>();
}

void tst_PagePriseEnMain::cleanup()
{
    maPage.reset();
    QCoreApplication::processEvents(); // nothing is left for the page of the next test
    PlateformeBureau::Installe(nullptr);
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ThemesQt::DetruisToi();
}

// Each topic in both languages, and a mark for each.
void tst_PagePriseEnMain::document()
{
    QJsonDocument const document = QJsonDocument::fromJson(
        RoutinesGeneralesQt::ContenuFichier(u":/fichiers/DonneesPriseEnMain.json"_s).toUtf8());
    QStringList cles;
    QSet<QString> liens;
    for (QJsonValue const & item : document[u"itemsPriseEnMain"_s].toArray()) {
        cles << item[u"cle"_s].toString();
        QVERIFY(item[u"titreFR"_s].toString() != item[u"titreEN"_s].toString());
        for (QString const & nom : {u"lienFR"_s, u"lienEN"_s}) {
            QUrl const lien(item[nom].toString(), QUrl::StrictMode);
            QVERIFY(lien.isValid() && lien.scheme() == u"https" && lien.host() == u"example.org");
            QVERIFY(!liens.contains(lien.toString()));
            liens << lien.toString();
        }
    }
    QCOMPARE(cles, CtrlPriseEnMain::DonneCles());
    QCOMPARE(cles.size(), 10);
    QCOMPARE(Cases().size(), 10);
}

void tst_PagePriseEnMain::ressources()
{
    QVERIFY(QSvgRenderer(u":/Images/fenetre-decouvrir-panacel.svg"_s).isValid());
    QString const feuille = RoutinesGeneralesQt::ContenuFichier(u":/Style/FenPriseEnMain.qss"_s);
    QVERIFY(feuille.contains(u"BoutonListeLien"));
    QCOMPARE(ThemesQt::Instance()->VariablesInconnues(feuille), QStringList());
}

void tst_PagePriseEnMain::produit_data()
{
    QTest::addColumn<bool>("francais");
    QTest::addColumn<bool>("anglais");
    QTest::addColumn<QString>("modules");
    QTest::newRow("both") << true << true << u"fr,en"_s;
    QTest::newRow("French") << true << false << u"fr"_s;
    QTest::newRow("English") << false << true << u"en"_s;
    QTest::newRow("none") << false << false << QString();
}

void tst_PagePriseEnMain::produit()
{
    QFETCH(bool, francais);
    QFETCH(bool, anglais);
    QFETCH(QString, modules);
    CtrlPriseEnMain ctrl;
    QCOMPARE(QString(ctrl.DonneModulesLangue(francais, anglais)), modules);

    Liens().first()->click();
    QUrl const url = monBureau->urlsOuvertes.value(0).first;
    QCOMPARE(url.toString(QUrl::RemoveQuery), u"https://example.org/aide/demarrer"_s);
    QUrlQuery const question(url);
    QCOMPARE(question.queryItemValue(u"nom-produit"_s), QString(ctrl.DonneNomProduit()));
    QCOMPARE(question.queryItemValue(u"modules-langue"_s), u"fr,en"_s);
    QCOMPARE(question.queryItemValue(u"version-numerique-produit"_s),
             QString(ctrl.DonneVersionNumerique()));
}

void tst_PagePriseEnMain::ouvre()
{
    FenPriseEnMain const & fenetre = *FenPriseEnMain::Instance();
    QVERIFY(!fenetre.isVisible());
    QVERIFY(!fenetre.testAttribute(Qt::WA_QuitOnClose)); // the gallery's window decides
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    QVERIFY(fenetre.isVisible());
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    QVERIFY(fenetre.isVisible());
}

void tst_PagePriseEnMain::etatVivant()
{
    auto const & barre = *maPage->findChild<QProgressBar *>();
    auto const & oublier = Prete<QPushButton>(u"oublierPriseEnMain"_s);
    QCOMPARE(Etat(), u"Vus : 0 sur 10"_s);
    QCOMPARE(barre.maximum(), 10);
    QVERIFY(!oublier.isEnabled());

    Liens().at(3)->click();
    QCOMPARE(Etat(), u"Vus : 1 sur 10"_s);
    QVERIFY(oublier.isEnabled());
    Cases().at(7)->click();
    QCOMPARE(Etat(), u"Vus : 2 sur 10"_s);
    QCOMPARE(barre.value(), 2);
    Cases().at(3)->click();
    QCOMPARE(Etat(), u"Vus : 1 sur 10"_s);
    QCOMPARE(monBureau->urlsOuvertes.size(), 2);
}

void tst_PagePriseEnMain::oublie()
{
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    QString const couleur = Liens().first()->styleSheet();
    for (QCheckBox * const caseVue : Cases())
        caseVue->click();
    QCOMPARE(Etat(), u"Vus : 10 sur 10"_s);

    Prete<QPushButton>(u"oublierPriseEnMain"_s).click();

    QCOMPARE(Etat(), u"Vus : 0 sur 10"_s);
    for (int i = 0; i < Cases().size(); ++i) {
        QVERIFY(!Cases().at(i)->isChecked());
        QCOMPARE(Liens().at(i)->styleSheet(), couleur);
    }
    QCOMPARE(monBureau->urlsOuvertes.size(), 10); // none is opened by that
    QVERIFY(FenPriseEnMain::Instance()->isVisible());
}

void tst_PagePriseEnMain::oublieFermee()
{
    Liens().first()->click();
    Prete<QPushButton>(u"oublierPriseEnMain"_s).click();
    QCOMPARE(Etat(), u"Vus : 0 sur 10"_s);
    Refais();
    QCOMPARE(Etat(), u"Vus : 0 sur 10"_s);
}

void tst_PagePriseEnMain::fichier()
{
    QString const nom = monDossier.filePath(u"prise-en-main.ini"_s);
    CtrlPriseEnMain::MetsFichier(nom);
    Refais();
    Liens().at(1)->click();
    Liens().at(2)->click();
    Cases().at(2)->click();
    {
        QSettings reglages(nom, QSettings::IniFormat);
        QCOMPARE(reglages.value(u"priseEnMain/theme"_s).toBool(), true);
        QCOMPARE(reglages.value(u"priseEnMain/traduction"_s).toBool(), false);
        reglages.setValue(u"priseEnMain/jetons"_s, true);
    }

    Refais(); // as at the next start
    QCOMPARE(Etat(), u"Vus : 2 sur 10"_s);
    for (int i = 0; i < 10; ++i)
        QCOMPARE(Cases().at(i)->isChecked(), i == 1 || i == 8);
}

void tst_PagePriseEnMain::sansFichierEnMemoire()
{
    Cases().at(4)->click();
    Refais();
    QCOMPARE(Etat(), u"Vus : 1 sur 10"_s);
    QVERIFY(Cases().at(4)->isChecked());
    CtrlPriseEnMain::MetsFichier({});
    Refais();
    QCOMPARE(Etat(), u"Vus : 0 sur 10"_s);
}

// The picture of the window follows what is done in it, and what is undone behind it.
void tst_PagePriseEnMain::apercu()
{
    maPage->show();
    QCoreApplication::processEvents();
    auto & apercu = *maPage->findChild<ApercuFenetre *>();
    QImage const avant = apercu.grab().toImage();
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    Cases().first()->click();
    FenPriseEnMain::Instance()->close();
    QTRY_VERIFY(apercu.grab().toImage() != avant);
    QImage const cochay = apercu.grab().toImage();
    Prete<QPushButton>(u"oublierPriseEnMain"_s).click();
    QTRY_VERIFY(apercu.grab().toImage() != cochay);
}

void tst_PagePriseEnMain::fermeture()
{
    auto const textes = [this] {
        QStringList liste;
        for (auto const * const etiquette : maPage->findChildren<QLabel *>())
            liste << etiquette->text();
        return liste;
    };
    FenPriseEnMain & fenetre = *FenPriseEnMain::Instance();
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    fenetre.move(120, 140);
    QCoreApplication::processEvents();
    fenetre.close();
    QString const attendu =
        u"Fermée à la position %1, %2."_s.arg(fenetre.pos().x()).arg(fenetre.pos().y());
    QVERIFY2(textes().contains(attendu), qPrintable(textes().join(u'\n')));
}

// For another language or theme: the window is there again, where it was.
void tst_PagePriseEnMain::pageRefaite()
{
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    FenPriseEnMain::Instance()->move(150, 160);
    QCoreApplication::processEvents();
    QPoint const position = FenPriseEnMain::Instance()->pos();
    Liens().at(2)->click();
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);

    Refais();

    QVERIFY(FenPriseEnMain::Instance()->isVisible());
    QCOMPARE(FenPriseEnMain::Instance()->pos(), position);
    QCOMPARE(Liens().first()->text(), u"Start an application"_s);
    QVERIFY(Cases().at(2)->isChecked());
    QCOMPARE(Etat(), u"Seen: 1 of 10"_s);
    // It is heard by the new page.
    Cases().at(2)->click();
    QCOMPARE(Etat(), u"Seen: 0 of 10"_s);

    FenPriseEnMain::Instance()->close();
    Refais();
    QVERIFY(!FenPriseEnMain::Instance()->isVisible());
}

// The window goes with a page that nothing replaces.
void tst_PagePriseEnMain::pageRefermee()
{
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).click();
    maPage.reset();
    QVERIFY(!FenPriseEnMain::Instance());
    QVERIFY(!FenPriseEnMain::monCtrl);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QCoreApplication::processEvents();
    maPage = std::make_unique<PagePriseEnMain>();
    QVERIFY(!FenPriseEnMain::Instance()->isVisible());
}

void tst_PagePriseEnMain::langueDeLaGalerie()
{
    maPage.reset();
    ThemeGalerie theme;
    theme.Reinitialise();
    QVERIFY(theme.Applique());
    FenetreGalerie galerie(theme);
    for (int i = 0; i < DonnePages().size(); ++i)
        if (DonnePages().at(i).nom == u"accueil"_s)
            galerie.MontrePage(i);
    galerie.show();
    galerie.findChild<QPushButton *>(u"ouvrirPriseEnMain"_s)->click();
    for (eLangue const langue : {kLangueAnglais, kLangueAnglaisCanada, kLangueFrancais}) {
        galerie.MetsLangue(langue);
        QVERIFY(FenPriseEnMain::Instance()->isVisible());
        QCOMPARE(Liens().first()->text(), langue == kLangueFrancais ? u"Démarrer une application"_s
                                                                    : u"Start an application"_s);
    }
    theme.Assombris();
    QVERIFY(theme.Applique());
    galerie.RefaisPages();
    QVERIFY(FenPriseEnMain::Instance()->isVisible());
    QVERIFY(Liens().first()->styleSheet().contains(u"110,180,240"));
    theme.Reinitialise();
    QVERIFY(theme.Applique());
}

void tst_PagePriseEnMain::nomsAccessibles()
{
    for (QWidget * const widget : {static_cast<QWidget *>(maPage->findChild<QProgressBar *>()),
                                   static_cast<QWidget *>(maPage->findChild<ApercuFenetre *>()),
                                   static_cast<QWidget *>(maPage->findChild<QPlainTextEdit *>())})
        QVERIFY(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty());
}

void tst_PagePriseEnMain::ordreDesTabulations()
{
    Cases().first()->click(); // there is something to forget
    maPage->show();
    QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
    Prete<QPushButton>(u"ouvrirPriseEnMain"_s).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &Prete<QPushButton>(u"oublierPriseEnMain"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), maPage->findChild<QPlainTextEdit *>());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &Prete<QPushButton>(u"ouvrirPriseEnMain"_s));
}

QTEST_MAIN(tst_PagePriseEnMain)
#include "tst_PagePriseEnMain.moc"
