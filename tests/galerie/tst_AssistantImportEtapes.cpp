#include "galerie/EssaisImport.h"

#include "controls/DListView.h"
#include "controls/DTreeView.h"

using namespace Qt::StringLiterals;

class tst_AssistantImportEtapes : public QObject, private EssaisImport
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup();

    void formatDevine();
    void formatRefusay();
    void colonneEtEnTete();
    void apercuDesRangees();
    void cellulesLues_data();
    void cellulesLues();
    void triEnDirect();
    void triRefusay();
    void verification();
    void verificationRefusee();
    void verificationBloque();
    void sansListeFrancaise();
    void nomDejaPris();
    void nomEffacay();
    void nomPropose();
    void resume();
};

void tst_AssistantImportEtapes::cleanup()
{
    Nettoie();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_AssistantImportEtapes::formatDevine()
{
    Ouvre();
    Champ<QLineEdit>("chemin").setText(Ecris(u"latin"_s, "\xE9t\xE9\tn. m.\r\nchat\tn. m.\r\n"));
    AvanceJusqua(kFormat);
    QCOMPARE(Champ<QComboBox>("codage").currentText(), u"Latin-1"_s);
    QCOMPARE(Champ<QComboBox>("separateur").currentText(), u"Tabulation"_s);
    QCOMPARE(Champ<QSpinBox>("colonne").value(), 1);
    QCOMPARE(Champ<QLabel>("nombreLu").text(), u"2 mots lus"_s);
    QCOMPARE(Textes(*Champ<DTreeView>("rangees").model()), (QStringList{u"été"_s, u"chat"_s}));
}

void tst_AssistantImportEtapes::formatRefusay()
{
    Ouvre();
    Champ<QLineEdit>("chemin").setText(Ecris(u"latin"_s, "\xE9t\xE9;a\nchat;b\n"));
    AvanceJusqua(kFormat);
    Champ<QComboBox>("codage").setCurrentIndex(0);
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kFormat));
    QCOMPARE(Refus(), u"Ce texte n’est pas en UTF-8."_s);
    QVERIFY(!Suivant().isEnabled());
    Champ<QComboBox>("codage").setCurrentIndex(1);
    QVERIFY(Refus().isEmpty() && Suivant().isEnabled());

    Champ<QSpinBox>("colonne").setValue(5);
    QCOMPARE(Champ<QLabel>("nombreLu").text(), u"0 mot lu"_s);
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kFormat));
    QVERIFY(Refus().contains(u"aucun mot"_s));
    Champ<QSpinBox>("colonne").setValue(2);
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kTri));
}

void tst_AssistantImportEtapes::colonneEtEnTete()
{
    OuvreALEtape(kFormat, u"mot;genre\narbre;masculin\nforêt;féminin"_s);
    QVERIFY(!Champ<QComboBox>("codage").isEnabled()); // nobody chose that of what is pasted
    auto const mots = [this] {
        return Assistant().DonneOption(OptionsImport::kMots).toStringList();
    };
    QCOMPARE(mots(), (QStringList{u"mot"_s, u"arbre"_s, u"forêt"_s}));
    Champ<QCheckBox>("enTete").setChecked(true);
    QCOMPARE(mots(), (QStringList{u"arbre"_s, u"forêt"_s}));
    Champ<QSpinBox>("colonne").setValue(2);
    QCOMPARE(mots(), (QStringList{u"masculin"_s, u"féminin"_s}));
    // A line has no second column, and none can be chosen; the one that was is kept.
    Champ<QComboBox>("separateur").setCurrentIndex(0);
    QVERIFY(!Champ<QSpinBox>("colonne").isEnabled());
    QCOMPARE(mots(), (QStringList{u"arbre;masculin"_s, u"forêt;féminin"_s}));
    Champ<QComboBox>("separateur").setCurrentIndex(2);
    QCOMPARE(mots(), (QStringList{u"masculin"_s, u"féminin"_s}));
    Champ<QSpinBox>("colonne").setValue(0);
    QCOMPARE(Champ<QSpinBox>("colonne").text(), u"Toutes"_s);
    QCOMPARE(mots().size(), 4);
}

void tst_AssistantImportEtapes::apercuDesRangees()
{
    OuvreALEtape(kFormat,
                 QString(1'000'000, u'x') + u"\na,b,c,d,e,f,g,h\n"_s + u"mot\n"_s.repeated(50));
    auto const & modele = *Champ<DTreeView>("rangees").model();
    QVERIFY(modele.rowCount() > 1 && modele.rowCount() < 20);
    QVERIFY(modele.index(0, 0).data().toString().size() < 200); // the line has a million
    Champ<QComboBox>("separateur").setCurrentIndex(1);
    QVERIFY(modele.columnCount() > 3 && modele.columnCount() < 8);
    QCOMPARE(modele.headerData(0, Qt::Horizontal).toString(), u"Colonne 1"_s);
}

void tst_AssistantImportEtapes::cellulesLues_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<bool>("enTete");
    QTest::addColumn<QList<bool>>("lues"); // of two rows of two cells
    QTest::newRow("all") << 0 << false << QList<bool>{true, true, true, true};
    QTest::newRow("first column") << 1 << false << QList<bool>{true, false, true, false};
    QTest::newRow("second column") << 2 << false << QList<bool>{false, true, false, true};
    QTest::newRow("heading") << 0 << true << QList<bool>{false, false, true, true};
    QTest::newRow("heading of a column") << 2 << true << QList<bool>{false, false, false, true};
}

// The others are grey.
void tst_AssistantImportEtapes::cellulesLues()
{
    QFETCH(int, colonne);
    QFETCH(bool, enTete);
    OuvreALEtape(kFormat, u"mot;genre\narbre;m"_s);
    Champ<QSpinBox>("colonne").setValue(colonne);
    Champ<QCheckBox>("enTete").setChecked(enTete);
    auto const & modele = *Champ<DTreeView>("rangees").model();
    QList<bool> noires;
    for (int i = 0; i < 4; ++i)
        noires.append(!modele.index(i / 2, i % 2).data(Qt::ForegroundRole).isValid());
    QTEST(noires, "lues");
}

void tst_AssistantImportEtapes::triEnDirect()
{
    OuvreALEtape(kTri, u"Chat\nchat\nchat\ny\nmp3"_s);
    auto const gardes = [this] {
        return Assistant().DonneOption(OptionsImport::kMotsTries).toStringList();
    };
    auto const & ecartes = *Champ<DTreeView>("ecartes").model();
    QCOMPARE(gardes(), (QStringList{u"Chat"_s, u"chat"_s}));
    QCOMPARE(Textes(ecartes), (QStringList{u"chat"_s, u"y"_s, u"mp3"_s}));
    QCOMPARE(Textes(ecartes, 1),
             (QStringList{u"Doublon"_s, u"Trop court"_s, u"Avec des chiffres"_s}));
    QCOMPARE(Champ<QLabel>("nombresTri").text(), u"Mots gardés\u00A0: 2. Mots écartés\u00A0: 3."_s);

    Champ<QComboBox>("casse").setCurrentIndex(1);
    QCOMPARE(gardes(), QStringList{u"chat"_s});
    Champ<QComboBox>("casse").setCurrentIndex(2);
    QCOMPARE(gardes(), QStringList{u"CHAT"_s});
    Champ<QCheckBox>("doublons").setChecked(false);
    QCOMPARE(gardes().size(), 3);
    Champ<QCheckBox>("chiffres").setChecked(false);
    QCOMPARE(gardes().size(), 4);
    Champ<QSpinBox>("longueurMin").setValue(1);
    QCOMPARE(gardes().size(), 5);
    QCOMPARE(ecartes.rowCount(), 0);
    QCOMPARE(Champ<QLabel>("nombresTri").text(), u"Mots gardés\u00A0: 5. Mots écartés\u00A0: 0."_s);
}

void tst_AssistantImportEtapes::triRefusay()
{
    OuvreALEtape(kTri, u"chat\nété"_s);
    Champ<QSpinBox>("longueurMin").setValue(20);
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kTri));
    QVERIFY(Refus().contains(u"Aucun mot"_s));
    QVERIFY(!Suivant().isEnabled());
    QVERIFY(Precedent().isEnabled());
    Clique(Precedent()); // and back: nothing was tried yet
    AvanceJusqua(kTri);
    QVERIFY(Refus().isEmpty());
    QVERIFY(Suivant().isEnabled());
    Clique(Suivant());
    QVERIFY(Refus().contains(u"Aucun mot"_s));
    Champ<QSpinBox>("longueurMin").setValue(2);
    QVERIFY(Refus().isEmpty());
    AvanceJusqua(kVerification);
}

void tst_AssistantImportEtapes::verification()
{
    OuvreALEtape(kVerification, u"CHAT\nété\nete\nzzz"_s);
    QTRY_COMPARE(Champ<QLabel>("resultatVerification").text(),
                 u"Mots connus\u00A0: 2. Mots inconnus\u00A0: 2."_s);
    QCOMPARE(Textes(*Champ<DListView>("inconnus").model()), (QStringList{u"ete"_s, u"zzz"_s}));
    QVERIFY(!Champ<QCheckBox>("retrait").isChecked());
    auto const retenus = [this] {
        return Assistant().DonneOption(OptionsImport::kMotsRetenus).toStringList();
    };
    AvanceJusqua(kResume);
    QCOMPARE(retenus(), (QStringList{u"CHAT"_s, u"été"_s, u"ete"_s, u"zzz"_s}));
    Clique(Precedent());
    Clique(Champ<QCheckBox>("retrait"));
    AvanceJusqua(kResume);
    QCOMPARE(retenus(), (QStringList{u"CHAT"_s, u"été"_s}));
}

void tst_AssistantImportEtapes::verificationRefusee()
{
    OuvreALEtape(kVerification, u"qsdf\nwxcv"_s);
    QTRY_VERIFY(Champ<QLabel>("resultatVerification").text().contains(u"inconnus\u00A0: 2"_s));
    Clique(Champ<QCheckBox>("retrait"));
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kVerification));
    QVERIFY(Refus().contains(u"tous sont inconnus"_s));
    QVERIFY(!Suivant().isEnabled());
    Clique(Champ<QCheckBox>("retrait"));
    AvanceJusqua(kResume);
}

void tst_AssistantImportEtapes::verificationBloque()
{
    QString texte;
    for (int i = 0; i < 60'000; ++i)
        texte += u"mot"_s + QString::number(i, 26).replace(QRegularExpression(u"[0-9]"_s), u"z"_s) +
                 QString(i % 7, u'q') + u'\n';
    OuvreALEtape(kTri, texte);
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kVerification));
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kVerification)); // blocked, and remembered
    QVERIFY(Suivant().isEnabled() && Refus().isEmpty());
    QTRY_COMPARE(Etape(), static_cast<int>(kResume));

    // Given up in the middle.
    CliqueEtape(kTri);
    QCOMPARE(Etape(), static_cast<int>(kTri));
    Champ<QComboBox>("casse").setCurrentIndex(2);
    Clique(Suivant());
    Clique(Suivant());
    Clique(Precedent());
    for (int tour = 0; tour < 20; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(Etape(), static_cast<int>(kTri));
}

void tst_AssistantImportEtapes::sansListeFrancaise()
{
    PageRecherche::PreteMemoire().mots.MetsFichier(QString());
    OuvreALEtape(kVerification, u"chat\nzzz"_s);
    QTRY_VERIFY(Champ<QLabel>("resultatVerification").text().contains(u"wfrench"_s));
    QVERIFY(!Champ<QCheckBox>("retrait").isEnabled());
    AvanceJusqua(kResume);
    Clique(Termine());
    QCOMPARE(MemoireImports::DonneListes().first().mots, (QStringList{u"chat"_s, u"zzz"_s}));
}

void tst_AssistantImportEtapes::nomDejaPris()
{
    MemoireImports::Ajoute({u"Noms"_s, {u"a"_s}});
    OuvreALEtape(kResume, u"chat"_s);
    auto & nom = Champ<QLineEdit>("nom");
    for (QString const & pris : {u"Noms"_s, u"  noms "_s, u""_s, u"   "_s}) {
        nom.clear();
        QTest::keyClicks(&nom, u"x"_s + pris);
        QVERIFY(Termine().isEnabled());
        QTest::keyClick(&nom, Qt::Key_Home);
        QTest::keyClick(&nom, Qt::Key_Delete);
        QCOMPARE(nom.text(), pris);
        QVERIFY(!Termine().isEnabled());
        QVERIFY(!Refus().isEmpty());
        Assistant().PriseBoutonTermine(); // as an application may
        QVERIFY(maPage->PreteAssistant());
        QTest::keyClick(&nom, Qt::Key_Return);
        QVERIFY(maPage->PreteAssistant());
    }
    QCOMPARE(MemoireImports::DonneListes().size(), 1);
    nom.clear();
    QTest::keyClicks(&nom, u"Autres noms"_s);
    QVERIFY(Refus().isEmpty());
    // Taken in the meantime.
    MemoireImports::Ajoute({u"Autres noms"_s, {u"b"_s}});
    Clique(Termine());
    QVERIFY(maPage->PreteAssistant());
    QCOMPARE(Refus(), u"Une liste a déjà ce nom."_s);
}

// Coming back, one is told why Finish cannot be pressed.
void tst_AssistantImportEtapes::nomEffacay()
{
    OuvreALEtape(kResume, u"chat"_s);
    QVERIFY(Refus().isEmpty());
    Champ<QLineEdit>("nom").selectAll();
    QTest::keyClick(&Champ<QLineEdit>("nom"), Qt::Key_Delete);
    Clique(Precedent());
    QVERIFY(Refus().isEmpty());
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kResume));
    QVERIFY(Champ<QLineEdit>("nom").text().isEmpty());
    QVERIFY(!Termine().isEnabled());
    QCOMPARE(Refus(), u"La liste n’a pas de nom."_s);
}

void tst_AssistantImportEtapes::nomPropose()
{
    MemoireImports::Ajoute({u"LISTE.v1"_s, {u"a"_s}});
    Ouvre();
    Champ<QLineEdit>("chemin").setText(Ecris(u"liste.v1.txt"_s, "chat\n"));
    AvanceJusqua(kResume);
    QCOMPARE(Champ<QLineEdit>("nom").text(), u"liste.v1 2"_s);
    QVERIFY(Termine().isEnabled());
    // What was typed is kept; what was proposed follows the source.
    CliqueEtape(kSource);
    Champ<QLineEdit>("chemin").setText(Ecris(u"faune.txt"_s, "chat\n"));
    AvanceJusqua(kResume);
    QCOMPARE(Champ<QLineEdit>("nom").text(), u"faune"_s);
    QTest::keyClicks(&Champ<QLineEdit>("nom"), u"!"_s);
    CliqueEtape(kSource);
    Champ<QLineEdit>("chemin").setText(Ecris(u"flore.txt"_s, "arbre\n"));
    AvanceJusqua(kResume);
    QCOMPARE(Champ<QLineEdit>("nom").text(), u"faune!"_s);
}

void tst_AssistantImportEtapes::resume()
{
    OuvreALEtape(kResume, u"chat\nété\nfor<b>êt"_s);
    QStringList textes;
    for (QLabel const * const label : Assistant().findChildren<QLabel *>())
        if (label->isVisible())
            textes.append(label->text());
    QVERIFY(textes.contains(u"3"_s));
    QVERIFY(textes.contains(u"chat, été, for<b>êt"_s));
}

QTEST_MAIN(tst_AssistantImportEtapes)
#include "tst_AssistantImportEtapes.moc"
