// tests/galerie/tst_PageAlertes.cpp
#include "PageAlertes.h"

#include "ChampAvecDefaut.h"
#include "ChoixBoutons.h"

#include "dialogs/DDialogueProgressionInfinie.h"
#include "dialogs/StockageReponse.h"
#include "noyau/ExecutionSilencieuse.h"
#include "noyau/JournalSimulay.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <QAccessible>

#include <bit>
#include <memory>

using namespace Qt::StringLiterals;
using DDialogue::StockeurNePlusMAviser;

namespace {

constexpr auto kSansStockeur = 0; // indices of the choice of the store
constexpr auto kNePlusMAviser = 2;

// The box that is asking, if any.
QMessageBox * Boite()
{
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (auto * const boite = qobject_cast<QMessageBox *>(fenetre); boite && boite->isVisible())
            return boite;
    return nullptr;
}

} // namespace

class tst_PageAlertes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void saisieAuDepart();
    void typesDansLOrdre();
    void boutonsEtTextes();
    void nomDesReponses_data();
    void nomDesReponses();
    void optionsSelonLaForme_data();
    void optionsSelonLaForme();

    void silenceRepondParLeDefaut_data();
    void silenceRepondParLeDefaut();
    void silenceFiniAvecLaPage();
    void boiteMontree();
    void titreDeLaFenetre();
    void reponseRetenueEtOubliee();
    void typesSansReponseRefuses_data();
    void typesSansReponseRefuses();
    void attenteFermee();
    void bulle();
    void journalRendu();
    void saisieGardee();
    void nomsPourLecteursDEcran();
    void touchesDAccesUniques_data();
    void touchesDAccesUniques();

private:
    template <class T>
    T * Trouve(QString const & nom) const
    {
        return maPage->findChild<T *>(nom);
    }
    void Choisis(QString const & nom, int indice)
    {
        Trouve<QComboBox>(nom)->setCurrentIndex(indice);
    }
    void ChoisisType(DAlerteInfo::eTypeDialogue type) { Choisis(u"typeAlerte"_s, type - 1); }
    void Clique(QString const & nom) { Trouve<QPushButton>(nom)->click(); }
    QString Reponse() const { return Trouve<QLabel>(u"reponse"_s)->text(); }
    QString Fichier() const { return Trouve<QPlainTextEdit>(u"fichierReponses"_s)->toPlainText(); }
    QString Journal() const { return Trouve<QPlainTextEdit>(u"journalAlertes"_s)->toPlainText(); }

    std::unique_ptr<QTemporaryDir> monDossier;
    std::unique_ptr<PageAlertes> maPage;
};

void tst_PageAlertes::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    StockageReponse::Initialise(StockeurNePlusMAviser,
                                UniChaine(monDossier->filePath(u"reponses.ini"_s)),
                                QSettings::IniFormat);
    StockageReponse::Initialise(DDialogue::StockeurParDefaut,
                                UniChaine(monDossier->filePath(u"defaut.ini"_s)),
                                QSettings::IniFormat);
    maPage = std::make_unique<PageAlertes>();
}

void tst_PageAlertes::cleanup()
{
    maPage.reset();
    StockageReponse::LibereSingletons();
    StockageReponse::assocTypQSettings.clear();
    QVERIFY(!ExecutionSilencieuse::Instance());
    QVERIFY(!PreteBoiteNoire());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageAlertes::saisieAuDepart()
{
    SaisieAlerte const saisie = maPage->DonneSaisie();
    QCOMPARE(saisie.type, DAlerteInfo::kQuestion);
    QVERIFY(!saisie.message.EstVide());
    QVERIFY(saisie.titre.EstVide());
    QVERIFY(!saisie.texteRiche);
    QCOMPARE(saisie.duree, -1.0F);
    QCOMPARE(saisie.boutons,
             DDialogue::kBoutonOui | DDialogue::kBoutonNon | DDialogue::kBoutonAnnuler);
    QCOMPARE(saisie.defaut, DDialogue::kBoutonOui);
    QCOMPARE(saisie.echap, DDialogue::kBoutonAnnuler);
    QCOMPARE(saisie.forme, SaisieAlerte::kRetour);
    QVERIFY(!saisie.stockeur);
    QVERIFY(!saisie.centrageNatif);
    QCOMPARE(Fichier(), QString());
}

void tst_PageAlertes::typesDansLOrdre()
{
    auto * const choix = Trouve<QComboBox>(u"typeAlerte"_s);
    QCOMPARE(choix->count(), 9);
    for (int type = DAlerteInfo::kQuestion; type <= DAlerteInfo::kSansIcone; ++type) {
        ChoisisType(static_cast<DAlerteInfo::eTypeDialogue>(type));
        QCOMPARE(static_cast<int>(maPage->DonneSaisie().type), type);
    }
}

void tst_PageAlertes::boutonsEtTextes()
{
    auto const cases = maPage->findChild<ChoixBoutons *>()->findChildren<QCheckBox *>();
    unsigned masque = 0;
    for (QCheckBox * const coche : cases) {
        for (QCheckBox * const autre : cases)
            autre->setChecked(autre == coche);
        auto const bouton = static_cast<unsigned>(maPage->DonneSaisie().boutons);
        QCOMPARE(std::popcount(bouton), 1);
        QCOMPARE(DonneNomReponse(static_cast<int>(bouton)).section(u' ', 0, 0),
                 coche->objectName());
        masque |= bouton;
    }
    QCOMPARE(cases.size(), 21);
    QCOMPARE(std::popcount(masque), 21);

    for (int i = 1; i <= 5; ++i)
        Trouve<QLineEdit>(u"label%1"_s.arg(i))->setText(u"texte %1"_s.arg(i));
    QCOMPARE(QString(maPage->DonneSaisie().labels.front()), u"texte 1"_s);
    QCOMPARE(QString(maPage->DonneSaisie().labels.back()), u"texte 5"_s);
}

void tst_PageAlertes::nomDesReponses_data()
{
    QTest::addColumn<unsigned>("reponse");
    QTest::addColumn<QString>("nom");
    QTest::newRow("none") << 0U << u"kBoutonAucun (0)"_s;
    QTest::newRow("a standard button") << 128U << u"kBoutonOui (128)"_s;
    QTest::newRow("the highest bit") << 0x80000000U << u"kBoutonMaisonElevee1 (2147483648)"_s;
    QTest::newRow("a link") << (4194304U | 7U) << u"kBoutonLien | 7"_s;
    QTest::newRow("two buttons") << 3U << u"3"_s;
}

void tst_PageAlertes::nomDesReponses()
{
    QFETCH(unsigned, reponse);
    QTEST(DonneNomReponse(static_cast<int>(reponse)), "nom");
}

void tst_PageAlertes::optionsSelonLaForme_data()
{
    QTest::addColumn<int>("forme");
    QTest::addColumn<int>("stockeur");
    QTest::addColumn<bool>("natif");
    QTest::addColumn<bool>("guid");
    QTest::addColumn<bool>("libelle");
    QTest::newRow("blocking") << 0 << 0 << true << false << false;
    QTest::newRow("function") << 1 << 0 << false << false << false;
    QTest::newRow("object") << 2 << 0 << true << false << false;
    QTest::newRow("store without a box to tick") << 0 << 1 << false << true << false;
    QTest::newRow("store with a box to tick") << 2 << 2 << false << true << true;
}

void tst_PageAlertes::optionsSelonLaForme()
{
    QFETCH(int, forme);
    QFETCH(int, stockeur);
    Trouve<QCheckBox>(u"centrageNatif"_s)->setChecked(true);
    Choisis(u"forme"_s, forme);
    Choisis(u"stockeur"_s, stockeur);
    QTEST(Trouve<QCheckBox>(u"centrageNatif"_s)->isEnabled(), "natif");
    QTEST(maPage->DonneSaisie().centrageNatif, "natif");
    QTEST(Trouve<QLineEdit>(u"guid"_s)->isEnabled(), "guid");
    QTEST(Trouve<QLineEdit>(u"libelleCase"_s)->isEnabled(), "libelle");
}

void tst_PageAlertes::silenceRepondParLeDefaut_data()
{
    QTest::addColumn<int>("forme");
    QTest::addColumn<int>("stockeur");
    QTest::addColumn<bool>("natif");
    QTest::addColumn<int>("type");
    for (int const stockeur : {kSansStockeur, kNePlusMAviser}) {
        char const * const memoire = stockeur ? "with a store" : "without a store";
        for (int const type : {1, 2, 3, 4, 8, 9}) {
            QTest::addRow("returned, %s, type %d", memoire, type) << 0 << stockeur << false << type;
            QTest::addRow("function, %s, type %d", memoire, type) << 1 << stockeur << false << type;
            QTest::addRow("object, %s, type %d", memoire, type) << 2 << stockeur << false << type;
        }
    }
    QTest::newRow("function, notification") << 1 << 0 << false << 6;
    QTest::newRow("returned, on a native window") << 0 << 0 << true << 1;
}

void tst_PageAlertes::silenceRepondParLeDefaut()
{
    QFETCH(int, forme);
    QFETCH(int, stockeur);
    QFETCH(bool, natif);
    QFETCH(int, type);
    Trouve<QCheckBox>(u"silence"_s)->setChecked(true);
    Trouve<QCheckBox>(u"centrageNatif"_s)->setChecked(natif);
    Choisis(u"forme"_s, forme);
    Choisis(u"stockeur"_s, stockeur);
    Choisis(u"typeAlerte"_s, type - 1);

    Clique(u"boutonLancer"_s);

    QTRY_VERIFY2(Reponse().endsWith(u"kBoutonOui (128)"), qPrintable(Reponse()));
    QVERIFY(Journal().contains(QString(maPage->DonneSaisie().message)));
    QVERIFY(!Boite());
}

void tst_PageAlertes::silenceFiniAvecLaPage()
{
    Trouve<QCheckBox>(u"silence"_s)->setChecked(true);
    QVERIFY(ExecutionSilencieuse::Instance());
    Trouve<QCheckBox>(u"silence"_s)->setChecked(false);
    QVERIFY(!ExecutionSilencieuse::Instance());
    Trouve<QCheckBox>(u"silence"_s)->setChecked(true);
    maPage.reset();
    QVERIFY(!ExecutionSilencieuse::Instance());
}

void tst_PageAlertes::boiteMontree()
{
    Choisis(u"forme"_s, SaisieAlerte::kRappel);
    Trouve<QLineEdit>(u"titre"_s)->setText(u"Le titre"_s);
    Trouve<QLineEdit>(u"explication"_s)->setText(u"L’explication"_s);
    Trouve<QCheckBox>(u"kBoutonMaison1"_s)->setChecked(true);
    Trouve<QLineEdit>(u"label1"_s)->setText(u"Mon bouton"_s);
    Clique(u"boutonLancer"_s);

    QMessageBox * const boite = Boite();
    QVERIFY(boite);
    QCOMPARE(boite->windowTitle(), u"Le titre"_s);
    QCOMPARE(boite->text(), QString(maPage->DonneSaisie().message));
    QVERIFY(boite->informativeText().startsWith(u"L’explication"_s));
    QVERIFY(boite->informativeText().endsWith(QString(maPage->DonneSaisie().note)));
    QCOMPARE(boite->buttons().size(), 4);
    QVERIFY(!Reponse().contains(u"kBouton"_s));

    for (QAbstractButton * const bouton : boite->buttons())
        if (bouton->text() == u"Mon bouton"_s)
            bouton->click();
    QTRY_VERIFY(Reponse().endsWith(u"kBoutonMaison1 (65536)"));
    QTRY_VERIFY(!Boite());
}

void tst_PageAlertes::titreDeLaFenetre()
{
    QMainWindow fenetre;
    fenetre.setWindowTitle(u"La fenêtre"_s);
    fenetre.setCentralWidget(maPage.release());
    maPage.reset(qobject_cast<PageAlertes *>(fenetre.centralWidget()));
    Choisis(u"forme"_s, SaisieAlerte::kRappel);
    Clique(u"boutonLancer"_s);
    QVERIFY(Boite());
    QCOMPARE(Boite()->windowTitle(), u"La fenêtre"_s);
    Boite()->button(QMessageBox::No)->click();
    QTRY_VERIFY(!Boite());
    maPage.reset();
}

void tst_PageAlertes::reponseRetenueEtOubliee()
{
    Choisis(u"forme"_s, SaisieAlerte::kRappel);
    Choisis(u"stockeur"_s, kNePlusMAviser);
    Trouve<QLineEdit>(u"guid"_s)->setText(u"essai"_s);
    Trouve<QLineEdit>(u"libelleCase"_s)->setText(u"Plus jamais"_s);
    Clique(u"boutonLancer"_s);
    QVERIFY(Boite());
    auto * const coche = Boite()->findChild<QCheckBox *>(u"NePlusMAviser"_s);
    QCOMPARE(coche->text(), u"Plus jamais"_s);
    coche->setChecked(true);
    Boite()->button(QMessageBox::No)->click();
    QTRY_VERIFY(Fichier().contains(u"essai=512"_s));

    Clique(u"boutonLancer"_s); // answered without asking
    QTRY_VERIFY(Reponse().endsWith(u"kBoutonNon (512)"));
    QVERIFY(!Boite());

    Clique(u"boutonOublier"_s);
    QVERIFY(!Fichier().contains(u"essai"_s));
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, UniChaine("essai")));
}

void tst_PageAlertes::typesSansReponseRefuses_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("bubble") << static_cast<int>(DAlerteInfo::kEphemere);
    QTest::newRow("progress window") << static_cast<int>(DAlerteInfo::kProgressionInfinie);
}

void tst_PageAlertes::typesSansReponseRefuses()
{
    QFETCH(int, type);
    Choisis(u"typeAlerte"_s, type - 1);
    QString const avant = Reponse();
    Clique(u"boutonLancer"_s);
    QVERIFY(Reponse() != avant);
    QVERIFY(!Reponse().contains(u"kBouton"_s));
    for (QWidget const * const fenetre : QApplication::topLevelWidgets())
        QCOMPARE(fenetre, maPage.get());
}

void tst_PageAlertes::attenteFermee()
{
    auto * const bouton = Trouve<QPushButton>(u"boutonFermerAttente"_s);
    QVERIFY(!bouton->isEnabled());
    ChoisisType(DAlerteInfo::kProgressionInfinie);
    Choisis(u"forme"_s, SaisieAlerte::kReceveur);
    QString const avant = Reponse();
    Clique(u"boutonLancer"_s);
    QVERIFY(Reponse() != avant);
    QPointer<DDialogueProgressionInfinie> const attente =
        maPage->findChild<DDialogueProgressionInfinie *>();
    QVERIFY(attente);
    QVERIFY(bouton->isEnabled());

    bouton->click();
    QTRY_VERIFY(attente.isNull());
    QVERIFY(!bouton->isEnabled());
}

void tst_PageAlertes::bulle()
{
    auto * const duree = Trouve<QDoubleSpinBox>(u"dureeAffichage"_s);
    QVERIFY(!duree->isEnabled());
    ChoisisType(DAlerteInfo::kEphemere);
    QVERIFY(duree->isEnabled());
    duree->setValue(60.0);
    Choisis(u"forme"_s, SaisieAlerte::kRappel);
    Clique(u"boutonLancer"_s);
    // Rich text makes ordinary ones of narrow spaces.
    QString const message = QString(maPage->DonneSaisie().message).simplified();
    bool montree = false;
    for (QWidget const * const fenetre : QApplication::topLevelWidgets())
        montree = montree ||
                  (fenetre->windowType() == Qt::ToolTip && fenetre->accessibleName() == message);
    QVERIFY(montree);
}

void tst_PageAlertes::journalRendu()
{
    maPage.reset();
    {
        JournalSimulay autre;
        auto page = std::make_unique<PageAlertes>();
        QVERIFY(PreteBoiteNoire() != &autre);
        JournaliseSiActif(UniChaine("une ligne"));
        QVERIFY(page->findChild<QPlainTextEdit *>(u"journalAlertes"_s)
                    ->toPlainText()
                    .contains(u"une ligne"_s));
        QVERIFY(autre.DonneLignes().isEmpty());
        page.reset();
        QCOMPARE(PreteBoiteNoire(), &autre);
    }
    maPage = std::make_unique<PageAlertes>();
}

void tst_PageAlertes::saisieGardee()
{
    auto * const message = Trouve<ChampAvecDefaut>(u"message"_s);
    QVERIFY(message->DonneSaisie().isNull());
    QCOMPARE(message->metaObject()->userProperty().name(), "saisie");

    message->MetsSaisie({});
    QVERIFY(!message->text().isEmpty());
    message->setFocus();
    message->selectAll();
    QTest::keyClick(message, Qt::Key_Delete);
    QVERIFY(!message->DonneSaisie().isNull());
    QTest::keyClicks(message, u"neuf"_s);
    QCOMPARE(message->DonneSaisie(), u"neuf"_s);

    PageAlertes neuve;
    auto * const autre = neuve.findChild<ChampAvecDefaut *>(u"message"_s);
    autre->MetsSaisie(message->DonneSaisie());
    QCOMPARE(autre->text(), u"neuf"_s);
    QCOMPARE(autre->DonneSaisie(), u"neuf"_s);
}

void tst_PageAlertes::nomsPourLecteursDEcran()
{
    auto const nom = [](QWidget * widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    QList<QWidget *> champs;
    for (auto * const champ : maPage->findChildren<QLineEdit *>())
        if (!champ->objectName().startsWith(u"qt_"))
            champs.append(champ);
    for (auto * const choix : maPage->findChildren<QComboBox *>())
        champs.append(choix);
    for (auto * const texte : maPage->findChildren<QPlainTextEdit *>())
        champs.append(texte);
    champs.append(Trouve<QDoubleSpinBox>(u"dureeAffichage"_s));
    for (QWidget * const champ : std::as_const(champs))
        QVERIFY2(!nom(champ).isEmpty(), qPrintable(champ->objectName()));
}

void tst_PageAlertes::touchesDAccesUniques_data()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("French") << static_cast<int>(kLangueFrancais);
    QTest::newRow("English") << static_cast<int>(kLangueAnglais);
    QTest::newRow("Canadian English") << static_cast<int>(kLangueAnglaisCanada);
}

void tst_PageAlertes::touchesDAccesUniques()
{
    QFETCH(int, langue);
    maPage.reset();
    Traductions::MetsLanguePourApplicationCourante(static_cast<eLangue>(langue));
    PageAlertes const page;
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);

    QStringList textes;
    for (auto const * const etiquette : page.findChildren<QLabel *>())
        if (etiquette->buddy())
            textes.append(etiquette->text());
    for (auto const * const bouton : page.findChildren<QAbstractButton *>())
        textes.append(bouton->text());
    QSet<QString> touches = {u"ALT+L"_s}; // of the choice of the language beside the page
    for (QString const & texte : std::as_const(textes)) {
        QString const touche = QKeySequence::mnemonic(texte).toString().toUpper();
        QVERIFY2(touche.isEmpty() || !touches.contains(touche), qPrintable(texte));
        touches.insert(touche);
    }
    QVERIFY(touches.size() > 15);
}

QTEST_MAIN(tst_PageAlertes)
#include "tst_PageAlertes.moc"
