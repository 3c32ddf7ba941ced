#include "galerie/EssaisImport.h"

#include "controls/DListView.h"
#include "controls/DTreeView.h"

using namespace Qt::StringLiterals;

class tst_AssistantImport : public QObject, private EssaisImport
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup();

    void toutAuClavier();
    void toutALaSouris();
    void sourceRefusee_data();
    void sourceRefusee();
    void fichierParcouru();
    void texteRefusay();
    void lectureBloque();
    void lectureAbandonnee();
    void formatDevine();
    void formatRefusay();
    void colonneEtEnTete();
    void apercuDesRangees();
    void triEnDirect();
    void triRefusay();
    void verification();
    void verificationRefusee();
    void verificationBloque();
    void sansListeFrancaise();
    void nomDejaPris();
    void nomPropose();
    void resume();
    void retourGarde();
    void autreSource();
    void saut();
    void sautRefusay();
    void titres();
    void nomsAccessibles();

private:
    static QStringList Textes(QAbstractItemModel const & modele, int colonne = 0);
    QListWidget & Etapes() const { return *Assistant().findChild<QListWidget *>(); }
    void CliqueEtape(int etape);
};

void tst_AssistantImport::cleanup()
{
    Nettoie();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QStringList tst_AssistantImport::Textes(QAbstractItemModel const & modele, int colonne)
{
    QStringList textes;
    for (int rangee = 0; rangee < modele.rowCount(); ++rangee)
        textes.append(modele.index(rangee, colonne).data().toString());
    return textes;
}

void tst_AssistantImport::CliqueEtape(int etape)
{
    QTest::mouseClick(Etapes().viewport(), Qt::LeftButton, {},
                      Etapes().visualItemRect(Etapes().item(etape)).center());
}

void tst_AssistantImport::toutAuClavier()
{
    QString const fichier = Ecris(u"liste.csv"_s, "mot;genre\narbre;m\nchat;m\narbre;m\nxyz;f\n");
    maPage->findChild<QPushButton *>(u"importer"_s)->setFocus();
    Frappe(Qt::Key_Space);
    AttendsAssistant();

    QCOMPARE(QApplication::focusWidget(), &Champ<QLineEdit>("chemin"));
    QTest::keyClicks(QApplication::focusWidget(), fichier);
    Frappe(Qt::Key_Return);
    QTRY_COMPARE(Etape(), static_cast<int>(kFormat));
    QCOMPARE(QApplication::focusWidget(), &Champ<QComboBox>("codage"));
    Frappe(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY(Champ<QCheckBox>("enTete").isChecked());
    Frappe(Qt::Key_Return);
    QCOMPARE(Etape(), static_cast<int>(kTri));
    Frappe(Qt::Key_Return);
    QCOMPARE(Etape(), static_cast<int>(kVerification));
    QTRY_COMPARE(Textes(*Champ<DListView>("inconnus").model()), QStringList{u"xyz"_s});
    Frappe(Qt::Key_U, Qt::AltModifier);
    QTRY_VERIFY(Champ<QCheckBox>("retrait").isChecked());
    Frappe(Qt::Key_Return);
    QCOMPARE(Etape(), static_cast<int>(kResume));
    QCOMPARE(QApplication::focusWidget(), &Champ<QLineEdit>("nom"));
    Champ<QLineEdit>("nom").selectAll();
    QTest::keyClicks(QApplication::focusWidget(), u"Animaux"_s);
    Frappe(Qt::Key_Return);

    QVERIFY(!maPage->PreteAssistant());
    QCOMPARE(MemoireImports::DonneListes().size(), 1);
    QCOMPARE(MemoireImports::DonneListes().first().nom, u"Animaux"_s);
    QCOMPARE(MemoireImports::DonneListes().first().mots, (QStringList{u"arbre"_s, u"chat"_s}));
}

void tst_AssistantImport::toutALaSouris()
{
    OuvreALEtape(kResume, u"chat, été\nChat, xyz"_s);
    QVERIFY(!Suivant().isEnabled());
    QVERIFY(Termine().isEnabled());
    Clique(Termine());
    QVERIFY(!maPage->PreteAssistant());
    QCOMPARE(MemoireImports::DonneListes().first().nom, u"Texte collé"_s);
    QCOMPARE(MemoireImports::DonneListes().first().mots, (QStringList{u"chat"_s, u"Chat"_s}));
}

void tst_AssistantImport::sourceRefusee_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<QString>("refus");
    QTest::newRow("nothing is chosen") << QString() << QByteArray() << u"Aucun fichier"_s;
    QTest::newRow("no such file") << u"absent"_s << QByteArray() << u"Il n’y a pas de fichier"_s;
    QTest::newRow("a directory") << u"."_s << QByteArray() << u"ne peut pas être lu"_s;
    QTest::newRow("empty file") << u"vide"_s << QByteArray() << u"ne contient aucun mot"_s;
    QTest::newRow("separators alone") << u"sans"_s << QByteArray(",;\t\r\n--") << u"aucun mot"_s;
    QTest::newRow("binary") << u"binaire"_s << QByteArray("a\0b\xFF", 4) << u"n’est pas un texte"_s;
}

void tst_AssistantImport::sourceRefusee()
{
    QFETCH(QString, nom);
    QFETCH(QByteArray, octets);
    QFETCH(QString, refus);
    if (nom != u"absent"_s && nom != u"."_s && !nom.isEmpty())
        QVERIFY(!Ecris(nom, octets).isEmpty());
    Ouvre();
    QVERIFY(Refus().isEmpty());
    if (!nom.isEmpty())
        QTest::keyClicks(&Champ<QLineEdit>("chemin"), monDossier.filePath(nom));

    Clique(Suivant());

    QTRY_VERIFY(!Refus().isEmpty());
    QVERIFY2(Refus().contains(refus), qPrintable(Refus()));
    QCOMPARE(Etape(), static_cast<int>(kSource));
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(QApplication::activeWindow(), &Assistant()); // told in the step, not in a box
    QCOMPARE(QApplication::focusWidget(), &Champ<QLineEdit>("chemin"));
    // What is entered next may do.
    Champ<QLineEdit>("chemin").clear();
    QTest::keyClicks(&Champ<QLineEdit>("chemin"), Ecris(u"bon"_s, "chat"));
    QVERIFY(Refus().isEmpty());
    QVERIFY(Suivant().isEnabled());
    Clique(Suivant());
    QTRY_COMPARE(Etape(), static_cast<int>(kFormat));
}

void tst_AssistantImport::fichierParcouru()
{
    QString const fichier = Ecris(u"faune.txt"_s, "chat\n");
    Ouvre();
    Clique(Champ<QPushButton>("parcourir"));
    auto * const dialogue = Assistant().findChild<QFileDialog *>();
    QVERIFY(dialogue && dialogue->isVisible());
    dialogue->selectFile(fichier);
    QMetaObject::invokeMethod(dialogue, "accept");
    QTRY_COMPARE(QDir::fromNativeSeparators(Champ<QLineEdit>("chemin").text()), fichier);
    QTRY_VERIFY(!Assistant().findChild<QFileDialog *>());
    AvanceJusqua(kFormat);
}

void tst_AssistantImport::texteRefusay()
{
    Ouvre();
    for (QString const & texte : {u""_s, u"  \n\t\n"_s, u"-- ; --"_s}) {
        Colle(texte);
        Clique(Suivant());
        QCOMPARE(Etape(), static_cast<int>(kSource));
        QVERIFY(Refus().contains(u"aucun mot"_s));
        QVERIFY(!Suivant().isEnabled());
    }
    QTest::keyClicks(&Champ<QPlainTextEdit>("texteColle"), u"mot"_s);
    QVERIFY(Suivant().isEnabled());
}

// While the file is read, Next does nothing but wait for it; then the wizard makes one move.
void tst_AssistantImport::lectureBloque()
{
    Ouvre();
    Champ<QLineEdit>("chemin").setText(Ecris(u"long"_s, QByteArray("chat\n").repeated(400'000)));
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kSource));
    QVERIFY(Suivant().isEnabled());
    Clique(Suivant());
    QVERIFY(!Assistant().PriseBoutonSuivant());
    QVERIFY(Refus().isEmpty());
    QTRY_COMPARE(Etape(), static_cast<int>(kFormat));
    QCoreApplication::processEvents();
    QCOMPARE(Etape(), static_cast<int>(kFormat));
}

void tst_AssistantImport::lectureAbandonnee()
{
    Ouvre();
    QString const bon = Ecris(u"bon"_s, "été");
    Champ<QLineEdit>("chemin").setText(Ecris(u"long"_s, QByteArray("chat\n").repeated(400'000)));
    Clique(Suivant());
    Champ<QLineEdit>("chemin").setText(bon); // another one after all
    QCoreApplication::processEvents();
    QCOMPARE(Etape(), static_cast<int>(kSource));
    Clique(Suivant());
    QTRY_COMPARE(Etape(), static_cast<int>(kFormat));
    QCOMPARE(Champ<QLabel>("nombreLu").text(), u"1 mot lu"_s);

    Clique(Precedent());
    Champ<QLineEdit>("chemin").setText(Ecris(u"autre"_s, "chat"));
    Clique(Suivant());
    Assistant().reject(); // in the middle of the reading
    QVERIFY(!maPage->PreteAssistant());
}

void tst_AssistantImport::formatDevine()
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

void tst_AssistantImport::formatRefusay()
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

void tst_AssistantImport::colonneEtEnTete()
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
    Champ<QSpinBox>("colonne").setValue(0);
    QCOMPARE(Champ<QSpinBox>("colonne").text(), u"Toutes"_s);
    QCOMPARE(mots().size(), 4);
    Champ<QComboBox>("separateur").setCurrentIndex(0);
    QVERIFY(!Champ<QSpinBox>("colonne").isEnabled());
    QCOMPARE(mots(), (QStringList{u"arbre;masculin"_s, u"forêt;féminin"_s}));
}

void tst_AssistantImport::apercuDesRangees()
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

void tst_AssistantImport::triEnDirect()
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

void tst_AssistantImport::triRefusay()
{
    OuvreALEtape(kTri, u"chat\nété"_s);
    Champ<QSpinBox>("longueurMin").setValue(20);
    Clique(Suivant());
    QCOMPARE(Etape(), static_cast<int>(kTri));
    QVERIFY(Refus().contains(u"Aucun mot"_s));
    QVERIFY(!Suivant().isEnabled());
    QVERIFY(Precedent().isEnabled());
    Champ<QSpinBox>("longueurMin").setValue(2);
    QVERIFY(Refus().isEmpty());
    AvanceJusqua(kVerification);
}

void tst_AssistantImport::verification()
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

void tst_AssistantImport::verificationRefusee()
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

void tst_AssistantImport::verificationBloque()
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

void tst_AssistantImport::sansListeFrancaise()
{
    PageRecherche::PreteMemoire().mots.MetsFichier(QString());
    OuvreALEtape(kVerification, u"chat\nzzz"_s);
    QTRY_VERIFY(Champ<QLabel>("resultatVerification").text().contains(u"wfrench"_s));
    QVERIFY(!Champ<QCheckBox>("retrait").isEnabled());
    AvanceJusqua(kResume);
    Clique(Termine());
    QCOMPARE(MemoireImports::DonneListes().first().mots, (QStringList{u"chat"_s, u"zzz"_s}));
}

void tst_AssistantImport::nomDejaPris()
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

void tst_AssistantImport::nomPropose()
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

void tst_AssistantImport::resume()
{
    OuvreALEtape(kResume, u"chat\nété\nfor<b>êt"_s);
    QStringList textes;
    for (QLabel const * const label : Assistant().findChildren<QLabel *>())
        if (label->isVisible())
            textes.append(label->text());
    QVERIFY(textes.contains(u"3"_s));
    QVERIFY(textes.contains(u"chat, été, for<b>êt"_s));
}

void tst_AssistantImport::retourGarde()
{
    OuvreALEtape(kFormat, u"a1;Chat\nb1;Été\n"_s);
    Champ<QSpinBox>("colonne").setValue(2);
    AvanceJusqua(kTri);
    Champ<QComboBox>("casse").setCurrentIndex(1);
    Champ<QSpinBox>("longueurMin").setValue(3);
    AvanceJusqua(kResume);
    QTest::keyClicks(&Champ<QLineEdit>("nom"), u" bis"_s);
    for (int etape = kResume; etape > kSource; --etape) {
        QCOMPARE(Etape(), etape);
        Clique(Precedent());
    }
    QCOMPARE(Etape(), static_cast<int>(kSource));
    QVERIFY(!Precedent().isEnabled());
    QCOMPARE(Champ<QPlainTextEdit>("texteColle").toPlainText(), u"a1;Chat\nb1;Été\n"_s);
    AvanceJusqua(kFormat);
    QCOMPARE(Champ<QSpinBox>("colonne").value(), 2);
    AvanceJusqua(kTri);
    QCOMPARE(Champ<QComboBox>("casse").currentIndex(), 1);
    QCOMPARE(Champ<QSpinBox>("longueurMin").value(), 3);
    AvanceJusqua(kResume);
    QCOMPARE(Champ<QLineEdit>("nom").text(), u"Texte collé bis"_s);
    QCOMPARE(Assistant().DonneListe().mots, (QStringList{u"chat"_s, u"été"_s}));
}

// Another text is read as it looks, not as the one before it was.
void tst_AssistantImport::autreSource()
{
    OuvreALEtape(kFormat, u"a;b\nc;d"_s);
    Champ<QSpinBox>("colonne").setValue(2);
    Clique(Precedent());
    Colle(u"arbre\nchat"_s);
    AvanceJusqua(kFormat);
    QCOMPARE(Champ<QComboBox>("separateur").currentIndex(), 0);
    QCOMPARE(Champ<QSpinBox>("colonne").value(), 0);
    AvanceJusqua(kVerification);
    QTRY_VERIFY(Champ<QLabel>("resultatVerification").text().contains(u"connus\u00A0: 2"_s));
}

void tst_AssistantImport::saut()
{
    OuvreALEtape(kTri, u"chat"_s);
    CliqueEtape(kResume); // not reached yet
    QCOMPARE(Etape(), static_cast<int>(kTri));
    AvanceJusqua(kResume);
    CliqueEtape(kSource);
    QCOMPARE(Etape(), static_cast<int>(kSource));
    CliqueEtape(kVerification);
    QCOMPARE(Etape(), static_cast<int>(kVerification));
    QCOMPARE(Etapes().selectionModel()->selectedRows().value(0).row(),
             static_cast<int>(kVerification));
    // With the arrow keys, which stay in the list.
    Etapes().setFocus();
    Frappe(Qt::Key_Up);
    QCOMPARE(Etape(), static_cast<int>(kTri));
    QCOMPARE(QApplication::focusWidget(), &Etapes());
    Frappe(Qt::Key_Up);
    QCOMPARE(Etape(), static_cast<int>(kFormat));
    Frappe(Qt::Key_Down);
    QCOMPARE(Etape(), static_cast<int>(kTri));
    QCOMPARE(QApplication::focusWidget(), &Etapes());
}

void tst_AssistantImport::sautRefusay()
{
    OuvreALEtape(kResume, u"chat\nété"_s);
    CliqueEtape(kTri);
    Champ<QSpinBox>("longueurMin").setValue(20);
    CliqueEtape(kSource);
    CliqueEtape(kResume); // the third step refuses on the way
    QCOMPARE(Etape(), static_cast<int>(kTri));
    QVERIFY(Refus().contains(u"Aucun mot"_s));
    QCOMPARE(Etapes().selectionModel()->selectedRows().value(0).row(), static_cast<int>(kTri));
}

void tst_AssistantImport::titres()
{
    OuvreALEtape(kFormat, u"chat"_s);
    QCOMPARE(Assistant().windowTitle(), u"Importer une liste de mots – Format"_s);
    QCOMPARE(Etapes().item(kFormat)->text(), u"2. Format"_s);
    auto const entete = [this] {
        for (QLabel const * const label : Assistant().findChildren<QLabel *>(u"titreEtape"_s))
            if (label->isVisible())
                return label->text();
        return QString();
    };
    QCOMPARE(entete(), u"Étape 2 de 5 – Format"_s);
    AvanceJusqua(kTri);
    QCOMPARE(entete(), u"Étape 3 de 5 – Tri"_s);
    Clique(Precedent());
    QCOMPARE(entete(), u"Étape 2 de 5 – Format"_s);
}

void tst_AssistantImport::nomsAccessibles()
{
    Ouvre();
    QList<QWidget *> champs;
    for (QWidget * const champ : Assistant().findChildren<QWidget *>())
        if (!champ->objectName().isEmpty() && !champ->objectName().startsWith(u"qt_"_s) &&
            champ->focusPolicy() != Qt::NoFocus)
            champs.append(champ);
    QVERIFY(champs.size() > 10);
    for (QWidget * const champ : std::as_const(champs))
        QVERIFY2(!QAccessible::queryAccessibleInterface(champ)->text(QAccessible::Name).isEmpty(),
                 qPrintable(champ->objectName()));
}

QTEST_MAIN(tst_AssistantImport)
#include "tst_AssistantImport.moc"
