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
    void fichierCorrige_data();
    void fichierCorrige();
    void fichierParcouru();
    void texteRefusay();
    void lectureBloque();
    void lectureAbandonnee();
    void retourGarde();
    void autreSource();
    void saut();
    void sautRefusay();
    void titres();
    void nomsAccessibles();
};

void tst_AssistantImport::cleanup()
{
    Nettoie();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
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

void tst_AssistantImport::fichierCorrige_data()
{
    QTest::addColumn<bool>("parcouru");
    QTest::newRow("typed again") << false;
    QTest::newRow("chosen again") << true;
}

// Who is told that the file has no words may put some in.
void tst_AssistantImport::fichierCorrige()
{
    QFETCH(bool, parcouru);
    QString const fichier = Ecris(u"corrige"_s, "--");
    Ouvre();
    auto & chemin = Champ<QLineEdit>("chemin");
    chemin.setText(fichier);
    Clique(Suivant());
    QTRY_VERIFY(Refus().contains(u"aucun mot"_s));
    Ecris(u"corrige"_s, "chat");
    if (parcouru) {
        Clique(Champ<QPushButton>("parcourir"));
        auto * const dialogue = Assistant().findChild<QFileDialog *>();
        dialogue->selectFile(fichier);
        QMetaObject::invokeMethod(dialogue, "accept");
        QTRY_VERIFY(!Assistant().findChild<QFileDialog *>());
    } else {
        chemin.selectAll();
        QTest::keyClicks(&chemin, fichier);
    }
    QVERIFY(Refus().isEmpty());
    AvanceJusqua(kFormat);
    QCOMPARE(Champ<QLabel>("nombreLu").text(), u"1 mot lu"_s);
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
