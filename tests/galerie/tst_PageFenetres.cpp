// tests/galerie/tst_PageFenetres.cpp
#include "PageFenetres.h"

#include "outils/FenetresSimulees.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
// Columns
constexpr int kTitre = 0;
constexpr int kClasse = 1;
constexpr int kProgramme = 2;
constexpr int kEtat = 3;
constexpr int kRole = 4;
} // namespace

class tst_PageFenetres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sansSysteme();
    void ordreEtNoms();
    void programme();
    void etats_data();
    void etats();
    void roles();
    void cachees();
    void actualiseGardeLaSelection();
    void actualiseSelonLAvantPlan();
    void metsDevant();
    void fenetrePartieEntreTemps();

private:
    HWND Ajoute(QString const & titre, DWORD style = WS_VISIBLE | WS_CAPTION | WS_SYSMENU,
                DWORD styleEtendu = WS_EX_APPWINDOW);
    static QTableWidget * PreteTable(QWidget const & page);
    static QString DonneTexte(QWidget const & page, int ligne, int colonne);
    static QStringList DonneTitres(QWidget const & page);

    FenetresSimulees * mesFenetres = nullptr; // owned by the library while it is in place
    std::unique_ptr<PlateformeFenetres> mesFenetresAvant;
};

void tst_PageFenetres::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    mesFenetresAvant = PlateformeFenetres::Installe(std::move(fenetres));
}

void tst_PageFenetres::cleanup()
{
    PlateformeFenetres::Installe(std::move(mesFenetresAvant));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

HWND tst_PageFenetres::Ajoute(QString const & titre, DWORD style, DWORD styleEtendu)
{
    FenetresSimulees::Fenetre fenetre;
    fenetre.classe = u"Classe"_s;
    fenetre.titre = titre;
    fenetre.style = style;
    fenetre.styleEtendu = styleEtendu;
    return mesFenetres->Ajoute(fenetre);
}

QTableWidget * tst_PageFenetres::PreteTable(QWidget const & page)
{
    return page.findChild<QTableWidget *>();
}

QString tst_PageFenetres::DonneTexte(QWidget const & page, int ligne, int colonne)
{
    return PreteTable(page)->item(ligne, colonne)->text();
}

QStringList tst_PageFenetres::DonneTitres(QWidget const & page)
{
    QStringList titres;
    for (int ligne = 0; ligne < PreteTable(page)->rowCount(); ++ligne)
        titres.append(DonneTexte(page, ligne, kTitre));
    return titres;
}

void tst_PageFenetres::sansSysteme()
{
    PlateformeFenetres::Installe(std::move(mesFenetresAvant)); // offscreen: the null one
    PageFenetres page;
    page.show();
    QVERIFY(page.findChild<QLabel *>(u"sansFenetres"_s)->isVisible());
    QVERIFY(!PreteTable(page)->isVisible());
    QCOMPARE(page.findChild<QLabel *>(u"fenetreTexteur"_s)->text(), u"Aucune"_s);
    QVERIFY(!page.findChild<QPushButton *>(u"premierPlan"_s)->isEnabled());
    page.findChild<QPushButton *>(u"actualise"_s)->click();
    QCOMPARE(PreteTable(page)->rowCount(), 0);
}

void tst_PageFenetres::ordreEtNoms()
{
    Ajoute({});
    mesFenetres->Prete(Ajoute({})).classe.clear();
    Ajoute(u"<b>Lettre</b>"_s);
    PageFenetres page;
    page.show();
    QVERIFY(PreteTable(page)->isVisible());
    QStringList const titres{u"<b>Lettre</b>"_s, u"Sans titre"_s, u"Classe"_s};
    QCOMPARE(DonneTitres(page), titres);
    QCOMPARE(DonneTexte(page, 0, kClasse), u"Classe"_s);
    QCOMPARE(DonneTexte(page, 1, kClasse), QString());
    QCOMPARE(PreteTable(page)->item(0, kTitre)->toolTip(), u"&lt;b&gt;Lettre&lt;/b&gt;"_s);
}

void tst_PageFenetres::programme()
{
    mesFenetres->Prete(Ajoute(u"Inconnu"_s)).processus = 0;
    Ajoute(u"Sans nom"_s);
    mesFenetres->Prete(Ajoute(u"Editeur"_s)).executable = u"/usr/bin/editeur"_s;
    PageFenetres const page;
    QCOMPARE(DonneTexte(page, 0, kProgramme), u"editeur (200)"_s);
    QCOMPARE(DonneTexte(page, 1, kProgramme), u"200"_s);
    QCOMPARE(DonneTexte(page, 2, kProgramme), QString());
}

void tst_PageFenetres::etats_data()
{
    QTest::addColumn<DWORD>("style");
    QTest::addColumn<DWORD>("styleEtendu");
    QTest::addColumn<bool>("gelee");
    QTest::addColumn<QString>("etat");
    QTest::newRow("open") << WS_VISIBLE << DWORD(0) << false << u"ouverte"_s;
    QTest::newRow("iconic") << (WS_VISIBLE | WS_MINIMIZE) << DWORD(0) << false << u"réduite"_s;
    QTest::newRow("layered") << WS_VISIBLE << WS_EX_LAYERED << false << u"ouverte, translucide"_s;
    QTest::newRow("tool, topmost") << WS_VISIBLE << (WS_EX_TOOLWINDOW | WS_EX_TOPMOST) << false
                                   << u"ouverte, fenêtre-outil, toujours devant"_s;
    QTest::newRow("hung") << WS_VISIBLE << DWORD(0) << true << u"ne répond plus, ouverte"_s;
    QTest::newRow("hidden") << DWORD(0) << DWORD(0) << false << u"cachée"_s;
    QTest::newRow("a hidden one is not asked") << DWORD(0) << DWORD(0) << true << u"cachée"_s;
}

void tst_PageFenetres::etats()
{
    QFETCH(DWORD, style);
    QFETCH(DWORD, styleEtendu);
    QFETCH(bool, gelee);
    QFETCH(QString, etat);
    mesFenetres->Prete(Ajoute(u"Fenetre"_s, style, styleEtendu)).gelee = gelee;
    PageFenetres const page;
    page.findChild<QCheckBox *>(u"cachees"_s)->setChecked(true);
    QCOMPARE(DonneTexte(page, 0, kEtat), etat);
}

void tst_PageFenetres::roles()
{
    Ajoute(u"Fond"_s);
    HWND const editeur = Ajoute(u"Brouillon"_s);
    HWND const console = Ajoute(u"Console"_s);
    mesFenetres->Prete(console).classe = u"ConsoleWindowClass"_s;
    HWND const notre = Ajoute(u"Galerie"_s, WS_VISIBLE, WS_EX_TOPMOST);
    mesFenetres->Prete(notre).processus = static_cast<DWORD>(QCoreApplication::applicationPid());
    mesFenetres->avantPlan = console;

    PageFenetres const page;

    QCOMPARE(DonneTexte(page, 0, kRole), u"de la galerie"_s);
    QCOMPARE(DonneTexte(page, 1, kRole), u"au premier plan"_s);
    QCOMPARE(DonneTexte(page, 2, kRole), u"éditeur de texte"_s);
    QCOMPARE(DonneTexte(page, 3, kRole), QString());
    QLabel const * const avantPlan = page.findChild<QLabel *>(u"fenetreAvantPlan"_s);
    QLabel const * const texteur = page.findChild<QLabel *>(u"fenetreTexteur"_s);
    QCOMPARE(avantPlan->text(), u"Console"_s);
    QCOMPARE(texteur->text(), u"Brouillon"_s);

    mesFenetres->avantPlan = editeur;
    page.findChild<QPushButton *>(u"actualise"_s)->click();
    QCOMPARE(DonneTexte(page, 2, kRole), u"éditeur de texte, au premier plan"_s);
}

void tst_PageFenetres::cachees()
{
    Ajoute(u"Cachee"_s, WS_CAPTION);
    Ajoute(u"Visible"_s);
    PageFenetres const page;
    QCOMPARE(DonneTitres(page), QStringList{u"Visible"_s});
    page.findChild<QCheckBox *>(u"cachees"_s)->setChecked(true);
    QStringList const toutes{u"Visible"_s, u"Cachee"_s};
    QCOMPARE(DonneTitres(page), toutes);
}

void tst_PageFenetres::actualiseGardeLaSelection()
{
    HWND const choisie = Ajoute(u"Choisie"_s);
    Ajoute(u"Autre"_s);
    PageFenetres const page;
    auto * const devant = page.findChild<QPushButton *>(u"premierPlan"_s);
    auto * const actualise = page.findChild<QPushButton *>(u"actualise"_s);
    QVERIFY(!devant->isEnabled());
    PreteTable(page)->setCurrentCell(1, kEtat);
    QVERIFY(devant->isEnabled());

    Ajoute(u"Nouvelle"_s);
    actualise->click();
    QCOMPARE(PreteTable(page)->currentRow(), 2);
    QCOMPARE(PreteTable(page)->currentColumn(), kEtat);

    mesFenetres->Retire(choisie);
    actualise->click();
    QCOMPARE(PreteTable(page)->currentRow(), -1);
    QVERIFY(PreteTable(page)->selectedItems().isEmpty());
    QVERIFY(!devant->isEnabled());
}

void tst_PageFenetres::actualiseSelonLAvantPlan()
{
    PageFenetres page;
    page.show();
    Ajoute(u"Nouvelle"_s);
    for (QEvent::Type const type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        PreteTable(page)->setRowCount(0);
        QEvent evenement(type);
        QCoreApplication::sendEvent(&page, &evenement);
        QCOMPARE(DonneTitres(page), QStringList{u"Nouvelle"_s});
    }
}

void tst_PageFenetres::metsDevant()
{
    HWND const choisie = Ajoute(u"Choisie"_s);
    Ajoute(u"Autre"_s);
    PageFenetres const page;
    PreteTable(page)->setCurrentCell(1, kTitre);

    page.findChild<QPushButton *>(u"premierPlan"_s)->click();

    QCOMPARE(mesFenetres->DonnePile().front(), choisie);
    QCOMPARE(PreteTable(page)->currentRow(), 0); // it goes with its window

    PreteTable(page)->setCurrentCell(1, kTitre);
    Q_EMIT PreteTable(page)->itemActivated(PreteTable(page)->item(1, kTitre));
    QCOMPARE(DonneTexte(page, 0, kTitre), u"Autre"_s);
}

void tst_PageFenetres::fenetrePartieEntreTemps()
{
    HWND const partie = Ajoute(u"Partie"_s);
    PageFenetres const page;
    PreteTable(page)->setCurrentCell(0, kTitre);
    mesFenetres->Retire(partie);

    page.findChild<QPushButton *>(u"premierPlan"_s)->click();

    QCOMPARE(PreteTable(page)->rowCount(), 0);
}

QTEST_MAIN(tst_PageFenetres)
#include "tst_PageFenetres.moc"
