#include "FenetreGalerie.h"
#include "Pages.h"
#include "ThemeGalerie.h"

#include "galerie/EssaisImport.h"

#include "dialogs/DMessageBox.h"
#include "dialogs/StockageReponse.h"
#include "foundation/ThemesQt.h"

using namespace Qt::StringLiterals;

class tst_PageAssistantVies : public QObject, private EssaisImport
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup();
    void cleanupTestCase() { StockageReponse::LibereSingletons(); }

    void fermetureVierge_data();
    void fermetureVierge();
    void fermetureAvecSaisie_data();
    void fermetureAvecSaisie();
    void annulerSansQuestion();
    void pageRefaite();
    void assistantRefait();
    void assistantRefaitQuiRefuse();
    void assistantRefaitQuiLit_data();
    void assistantRefaitQuiLit();
    void assistantRefaitQuiVerifie();
    void pageRefaitePendantLaQuestion();
    void langueDeLaGalerie();

private:
    void EntreTout();
    void VerifieTout();
    void DemandeFermeture(QString const & maniere);
    DMessageBox * Question() const { return Assistant().findChild<DMessageBox *>(); }
    void Reponds(QString const & bouton);
};

void tst_PageAssistantVies::cleanup()
{
    Nettoie();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageAssistantVies::DemandeFermeture(QString const & maniere)
{
    if (maniere == u"Escape"_s)
        QTest::keyClick(&Assistant(), Qt::Key_Escape);
    else
        Assistant().close();
}

void tst_PageAssistantVies::Reponds(QString const & bouton)
{
    QTRY_VERIFY(Question() && Question()->isVisible());
    for (QAbstractButton * const candidat : Question()->findChildren<QAbstractButton *>())
        if (candidat->text().remove(u'&') == bouton)
            return candidat->click();
    QFAIL(qPrintable(bouton));
}

void tst_PageAssistantVies::fermetureVierge_data()
{
    QTest::addColumn<QString>("maniere");
    QTest::newRow("Escape") << u"Escape"_s;
    QTest::newRow("the window's button") << u"croix"_s;
}

void tst_PageAssistantVies::fermetureVierge()
{
    QFETCH(QString, maniere);
    Ouvre();
    DemandeFermeture(maniere);
    QVERIFY(!maPage->PreteAssistant());
}

void tst_PageAssistantVies::fermetureAvecSaisie_data()
{
    QTest::addColumn<QString>("maniere");
    QTest::addColumn<bool>("collay");
    QTest::newRow("Escape, text") << u"Escape"_s << true;
    QTest::newRow("the window's button, text") << u"croix"_s << true;
    QTest::newRow("Escape, path") << u"Escape"_s << false;
}

void tst_PageAssistantVies::fermetureAvecSaisie()
{
    QFETCH(QString, maniere);
    QFETCH(bool, collay);
    Ouvre();
    if (collay)
        Colle(u"chat"_s);
    else
        Champ<QLineEdit>("chemin").setText(Ecris(u"mots"_s, "chat"));
    AvanceJusqua(kFormat);
    DemandeFermeture(maniere);
    QVERIFY(Assistant().isVisible());
    Reponds(u"Cancel"_s);
    QTRY_VERIFY(!Question());
    QVERIFY(Assistant().isVisible());
    QCOMPARE(Etape(), static_cast<int>(kFormat));

    DemandeFermeture(maniere);
    Reponds(u"Abandonner"_s);
    QTRY_VERIFY(!maPage->PreteAssistant());
    QVERIFY(MemoireImports::DonneListes().isEmpty());
}

void tst_PageAssistantVies::annulerSansQuestion()
{
    OuvreALEtape(kTri, u"chat"_s);
    Clique(Annule());
    QVERIFY(!maPage->PreteAssistant());
}

void tst_PageAssistantVies::pageRefaite()
{
    Importe(u"Faune"_s, u"chat"_s);
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    Construis();
    QVERIFY(!maPage->PreteAssistant());
    QCOMPARE(NomsDesListes(), QStringList{u"Faune"_s});
    QCOMPARE(Listes().model()->headerData(0, Qt::Horizontal).toString(), u"Name"_s);
}

void tst_PageAssistantVies::EntreTout()
{
    Ouvre();
    Colle(u"collé"_s);
    Clique(Champ<QRadioButton>("choixFichier"));
    Champ<QLineEdit>("chemin").setText(
        Ecris(u"liste"_s, "mot;genre\na;Chat\nb;\xC3\xA9t\xC3\xA9\nc;Zz\nd;Chat\ne;chat1\n"));
    AvanceJusqua(kFormat);
    Champ<QComboBox>("codage").setCurrentIndex(1);
    Champ<QSpinBox>("colonne").setValue(2);
    Clique(Champ<QCheckBox>("enTete"));
    AvanceJusqua(kTri);
    Champ<QComboBox>("casse").setCurrentIndex(1);
    Champ<QSpinBox>("longueurMin").setValue(3);
    Clique(Champ<QCheckBox>("doublons"));
    Clique(Champ<QCheckBox>("chiffres"));
    AvanceJusqua(kVerification);
    QTRY_VERIFY(Champ<QLabel>("resultatVerification").text().contains(u"inconnus\u00A0: 2"_s));
    Clique(Champ<QCheckBox>("retrait"));
    AvanceJusqua(kResume);
    QTest::keyClicks(&Champ<QLineEdit>("nom"), u" bis"_s);
}

void tst_PageAssistantVies::VerifieTout()
{
    QVERIFY(Champ<QRadioButton>("choixFichier").isChecked());
    QCOMPARE(Champ<QLineEdit>("chemin").text(), monDossier.filePath(u"liste"_s));
    QCOMPARE(Champ<QPlainTextEdit>("texteColle").toPlainText(), u"collé"_s);
    QCOMPARE(Champ<QComboBox>("codage").currentIndex(), 1);
    QCOMPARE(Champ<QComboBox>("separateur").currentIndex(), 2);
    QCOMPARE(Champ<QSpinBox>("colonne").value(), 2);
    QVERIFY(Champ<QCheckBox>("enTete").isChecked());
    QCOMPARE(Champ<QComboBox>("casse").currentIndex(), 1);
    QCOMPARE(Champ<QSpinBox>("longueurMin").value(), 3);
    QVERIFY(!Champ<QCheckBox>("doublons").isChecked());
    QVERIFY(!Champ<QCheckBox>("chiffres").isChecked());
    QVERIFY(Champ<QCheckBox>("retrait").isChecked());
    QCOMPARE(Champ<QLineEdit>("nom").text(), u"liste bis"_s);
}

// What was entered, where one stood, and how far one had come.
void tst_PageAssistantVies::assistantRefait()
{
    EntreTout();
    Clique(Precedent());
    Clique(Precedent());
    QSize const taille = Assistant().size() + QSize(30, 20);
    Assistant().resize(taille);

    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    Construis();

    QVERIFY(maPage->PreteAssistant());
    Assistant().activateWindow();
    AttendsAssistant();
    QCOMPARE(Assistant().size(), taille);
    QCOMPARE(Etape(), static_cast<int>(kTri));
    QCOMPARE(Assistant().windowTitle(), u"Import a Word List – Cleaning"_s);
    QCOMPARE(Assistant().DonneMaxEtapeParcouru(), static_cast<int>(kResume));
    VerifieTout();
    QVERIFY(Etapes().item(kResume)->flags().testFlag(Qt::ItemIsEnabled));
    for (int i = 0; i < 2; ++i)
        Clique(Bouton(u"Next >"_s));
    QTRY_COMPARE(Etape(), static_cast<int>(kResume));
    Clique(Bouton(u"Finish"_s));
    QCOMPARE(MemoireImports::DonneListes().value(0).nom, u"liste bis"_s);
    QCOMPARE(MemoireImports::DonneListes().value(0).mots, (QStringList{u"chat"_s, u"chat"_s}));
    // Once only.
    Construis();
    QVERIFY(!maPage->PreteAssistant());
}

// The moves that lead back to a step are real ones: they end where one is refused.
void tst_PageAssistantVies::assistantRefaitQuiRefuse()
{
    OuvreALEtape(kResume, u"chat\nété"_s);
    for (int i = 0; i < 2; ++i)
        Clique(Precedent());
    Champ<QSpinBox>("longueurMin").setValue(20);
    Clique(Precedent());
    QCOMPARE(Etape(), static_cast<int>(kFormat));
    Construis();
    QVERIFY(maPage->PreteAssistant());
    QCOMPARE(Etape(), static_cast<int>(kFormat));
    AvanceJusqua(kTri);
    QCOMPARE(Champ<QSpinBox>("longueurMin").value(), 20);
}

void tst_PageAssistantVies::assistantRefaitQuiLit_data()
{
    QTest::addColumn<QString>("nom");
    QTest::newRow("a file") << u"francais"_s;
    QTest::newRow("no such file") << u"franc"_s;
    QTest::newRow("nothing") << QString(); // refused at once
}

// A path that was being typed is not read before one says so, nor told to be wrong.
void tst_PageAssistantVies::assistantRefaitQuiLit()
{
    QFETCH(QString, nom);
    QString const chemin = nom.isEmpty() ? nom : monDossier.filePath(nom);
    OuvreALEtape(kTri, u"chat"_s);
    for (int i = 0; i < 2; ++i)
        Clique(Precedent());
    Clique(Champ<QRadioButton>("choixFichier"));
    Champ<QLineEdit>("chemin").setText(chemin);
    Construis();
    for (int tour = 0; tour < 5; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(Etape(), static_cast<int>(kSource));
    QCOMPARE(Champ<QLineEdit>("chemin").text(), chemin);
    QVERIFY(Refus().isEmpty());
    QVERIFY(Suivant().isEnabled());
}

void tst_PageAssistantVies::assistantRefaitQuiVerifie()
{
    OuvreALEtape(kResume, u"chat\nété"_s);
    CliqueEtape(kTri);
    Champ<QComboBox>("casse").setCurrentIndex(2);
    Clique(Suivant()); // the words are others now, and checked anew
    Construis();
    QTRY_VERIFY(Champ<QLabel>("resultatVerification").text().contains(u"connus\u00A0: 2"_s));
    QCOMPARE(Etape(), static_cast<int>(kVerification));
}

void tst_PageAssistantVies::pageRefaitePendantLaQuestion()
{
    OuvreALEtape(kFormat, u"chat"_s);
    QTest::keyClick(&Assistant(), Qt::Key_Escape);
    QTRY_VERIFY(Question() && Question()->isVisible());
    Construis();
    QVERIFY(maPage->PreteAssistant());
    QVERIFY(!Question());
    QCOMPARE(Etape(), static_cast<int>(kFormat));
}

void tst_PageAssistantVies::langueDeLaGalerie()
{
    Nettoie();
    {
        ThemeGalerie theme;
        theme.Reinitialise();
        FenetreGalerie fenetre(theme);
        for (int i = 0; i < DonnePages().size(); ++i)
            if (DonnePages().at(i).nom == u"assistant"_s)
                fenetre.MontrePage(i);
        fenetre.show();
        auto const page = [&fenetre] { return fenetre.findChild<PageAssistant *>(); };
        page()->findChild<QPushButton *>(u"importer"_s)->click();
        auto const champ = [&page] {
            return page()->PreteAssistant()->findChild<QLineEdit *>(u"chemin"_s);
        };
        champ()->setText(u"/tmp/mots"_s);
        fenetre.MetsLangue(kLangueAnglais);
        QTRY_VERIFY(page()->PreteAssistant() && page()->PreteAssistant()->isVisible());
        QCOMPARE(champ()->text(), u"/tmp/mots"_s);
        fenetre.RefaisPages(); // as for another theme
        QTRY_VERIFY(page()->PreteAssistant());
        QCOMPARE(champ()->text(), u"/tmp/mots"_s);
    }
    ThemesQt::DetruisToi();
}

QTEST_MAIN(tst_PageAssistantVies)
#include "tst_PageAssistantVies.moc"
