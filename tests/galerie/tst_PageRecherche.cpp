// tests/galerie/tst_PageRecherche.cpp
#include "PageRecherche.h"

#include "ApercuFenetre.h"
#include "ChampMots.h"
#include "TraceSignaux.h"

#include "lists/ListeChoixFlottante.h"
#include "noyau/Traductions.h"
#include "search/BarreRecherche.h"
#include "search/DialogueRechercher.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// No-break spaces are part of a French text.
QString const kTexte = u"Un chien\u00A0: deux chiens.\nUn chat ; trois chiens.\n"_s;

} // namespace

class tst_PageRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void texteMontre();
    void fichierAbsent();
    void paquetAbsent_data();
    void paquetAbsent();
    void texteTapaySansFichier();
    void ouvreUnFichier();
    void fichierRefusay();
    void nomDuFichier();
    void apercuTantQueRienNEstTapay();
    void demonstration();
    void demonstrationSansTexte();
    void premierDesMotsAussiFrequents();
    void focusLaissay();
    void boutons();
    void motChoisi();
    void echapDansUnDialogue();
    void tabulation();
    void texteGarday();
    void barreFermeeGardee();
    void saisieCherchee();
    void effacer();
    void champsNommes();

private:
    void Montre();
    QString Ecris(QString const & nom, QString const & texte);
    void Appuie(QString const & bouton);
    void Choisis(QString const & fichier);
    template <typename Type>
    Type & Prete(QString const & nom = {}) const;
    QLineEdit & PreteChamp(QWidget const & barre) const;
    QString DonneCompteur() const;
    QStringList DonneTrace() const;
    QStringList DonneMessages() const;
    bool MontreMessage() const;
    void Remplace(QString const & fichier, QString const & paquet);

    QTemporaryDir monDossier;
    std::unique_ptr<PageRecherche> maPage;
};

void tst_PageRecherche::init()
{
    QVERIFY(monDossier.isValid());
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    PageRecherche::PreteMemoire() = {};
    PageRecherche::PreteMemoire().fichier = Ecris(u"texte.txt"_s, kTexte);
    PageRecherche::PreteMemoire().mots.MetsFichier(Ecris(u"mots"_s, u"été\nétés\n"_s));
    maPage = std::make_unique<PageRecherche>();
}

void tst_PageRecherche::cleanup()
{
    maPage.reset();
    // The menu of a search bar dies later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageRecherche::Montre()
{
    maPage->resize(900, 700);
    maPage->show();
    QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
}

QString tst_PageRecherche::Ecris(QString const & nom, QString const & texte)
{
    QFile fichier(monDossier.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        return {};
    return fichier.fileName();
}

void tst_PageRecherche::Appuie(QString const & bouton)
{
    QTest::mouseClick(&Prete<QPushButton>(bouton), Qt::LeftButton);
}

// In the file dialog, which this opens.
void tst_PageRecherche::Choisis(QString const & fichier)
{
    Appuie(u"ouvrir"_s);
    auto & dialogue = Prete<QFileDialog>();
    dialogue.selectFile(fichier);
    QMetaObject::invokeMethod(&dialogue, "accept");
}

template <typename Type>
Type & tst_PageRecherche::Prete(QString const & nom) const
{
    auto * const objet = maPage->findChild<Type *>(nom);
    Q_ASSERT(objet);
    return *objet;
}

QLineEdit & tst_PageRecherche::PreteChamp(QWidget const & barre) const
{
    return *barre.findChild<QLineEdit *>(u"ChampTexteRecherche"_s);
}

QString tst_PageRecherche::DonneCompteur() const
{
    return Prete<BarreRecherche>().findChild<QLabel *>()->text();
}

QStringList tst_PageRecherche::DonneTrace() const
{
    return Prete<TraceSignaux>().toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

// Those that can be seen.
QStringList tst_PageRecherche::DonneMessages() const
{
    QStringList messages;
    for (auto const * const message : maPage->findChildren<QLabel *>(u"messageErreur"_s))
        if (!message->isHidden() && !message->text().isEmpty())
            messages.append(message->text());
    return messages;
}

bool tst_PageRecherche::MontreMessage() const
{
    return !DonneMessages().isEmpty();
}

// The page by one without words that begins with `fichier`, which comes with `paquet`.
void tst_PageRecherche::Remplace(QString const & fichier, QString const & paquet)
{
    maPage.reset();
    PageRecherche::PreteMemoire() = {};
    PageRecherche::PreteMemoire().fichier = fichier;
    PageRecherche::PreteMemoire().paquet = paquet;
    PageRecherche::PreteMemoire().mots.MetsFichier(monDossier.filePath(u"absent"_s));
    maPage = std::make_unique<PageRecherche>();
}

void tst_PageRecherche::texteMontre()
{
    QCOMPARE(Prete<QPlainTextEdit>().document()->toRawText(),
             QString(kTexte).replace(u'\n', QChar::ParagraphSeparator));
    bool nommay = false;
    for (auto const * const groupe : maPage->findChildren<QGroupBox *>())
        nommay = nommay || groupe->title() == u"texte.txt"_s;
    QVERIFY(nommay);
    QVERIFY(!MontreMessage());
}

void tst_PageRecherche::fichierAbsent()
{
    Remplace(monDossier.filePath(u"absent"_s), {});
    Montre();

    QVERIFY(MontreMessage());
    QCOMPARE(Prete<QPlainTextEdit>().toPlainText(), QString());
    QVERIFY(Prete<ApercuFenetre>().isHidden()); // no words either
    QVERIFY(Prete<BarreRecherche>().isHidden());

    Choisis(monDossier.filePath(u"texte.txt"_s));
    QTRY_VERIFY(Prete<QPlainTextEdit>().toPlainText().startsWith(u"Un chien"));
}

void tst_PageRecherche::paquetAbsent_data()
{
    QTest::addColumn<QString>("fichier");
    QTest::addColumn<QString>("paquet");
    QTest::addColumn<QString>("nommay");
    QTest::addColumn<QString>("tu");
    QString const absent = monDossier.filePath(u"absent"_s);
    QTest::newRow("the file of a package") << absent << u"paquet-du-texte"_s << u"paquet-du-texte"_s
                                           << QDir::toNativeSeparators(absent);
    QTest::newRow("a file that was asked for")
        << absent << QString() << QDir::toNativeSeparators(absent) << u"paquet"_s;
    QTest::newRow("there, but cannot be read")
        << monDossier.path() << u"paquet-du-texte"_s << QDir::toNativeSeparators(monDossier.path())
        << u"paquet-du-texte"_s;
}

void tst_PageRecherche::paquetAbsent()
{
    QFETCH(QString, fichier);
    QFETCH(QString, paquet);
    QFETCH(QString, nommay);
    QFETCH(QString, tu);
    Remplace(fichier, paquet);

    QCOMPARE(DonneMessages().size(), 1);
    QVERIFY2(DonneMessages().constFirst().contains(nommay),
             qPrintable(DonneMessages().constFirst()));
    QVERIFY(!DonneMessages().constFirst().contains(tu));

    Montre(); // the list of words is asked for when the page is seen
    QCOMPARE(DonneMessages().size(), 2);
    QVERIFY(DonneMessages().constLast().contains(u"wfrench"));
    QCOMPARE(PageRecherche::Memoire().paquet, u"debian-reference-fr"_s);
}

void tst_PageRecherche::texteTapaySansFichier()
{
    Remplace(monDossier.filePath(u"absent"_s), {});
    Montre();
    QTest::keyClicks(&Prete<QPlainTextEdit>(), u"Un loup"_s);

    maPage.reset();
    maPage = std::make_unique<PageRecherche>();

    QCOMPARE(Prete<QPlainTextEdit>().toPlainText(), u"Un loup"_s);
    QVERIFY(!MontreMessage());
    for (auto const * const groupe : maPage->findChildren<QGroupBox *>())
        QVERIFY(!groupe->title().isEmpty() && groupe->title() != u"absent"_s);
}

void tst_PageRecherche::ouvreUnFichier()
{
    Montre();
    QString const autre = Ecris(u"autre.txt"_s, u"Tout autre chose"_s);

    Choisis(autre);

    QTRY_COMPARE(Prete<QPlainTextEdit>().toPlainText(), u"Tout autre chose"_s);
    QCOMPARE(PageRecherche::PreteMemoire().fichier, autre);
    QTRY_VERIFY(!maPage->findChild<QFileDialog *>());
}

void tst_PageRecherche::fichierRefusay()
{
    Montre();
    QFile fichier(monDossier.filePath(u"latin1.txt"_s));
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write("\xE9t\xE9");
    fichier.close();

    Choisis(fichier.fileName());

    QTRY_VERIFY(MontreMessage());
    QVERIFY(Prete<QPlainTextEdit>().toPlainText().startsWith(u"Un chien")); // as before
    QVERIFY(PageRecherche::PreteMemoire().fichier.endsWith(u"texte.txt"));

    QTRY_VERIFY(!maPage->findChild<QFileDialog *>());
    Choisis(monDossier.filePath(u"texte.txt"_s));
    QTRY_VERIFY(!MontreMessage());
}

void tst_PageRecherche::demonstration()
{
    Montre();

    auto & barre = Prete<BarreRecherche>();
    QVERIFY(barre.isVisible());
    QCOMPARE(PreteChamp(barre).text(), u"chien"_s); // the long word that comes most often
    QCOMPARE(DonneCompteur(), u"1/3"_s);
    QCOMPARE(Prete<QPlainTextEdit>().textCursor().selectedText(), u"chien"_s);
    QVERIFY(!Prete<QPlainTextEdit>().extraSelections().isEmpty());
    QVERIFY(Prete<ApercuFenetre>().isVisible());
    QVERIFY(Prete<ApercuFenetre>().height() > 2 * maPage->fontMetrics().height()); // both words
    QVERIFY(!Prete<ChampMots>().PreteListe().isVisible());
}

// Neither a mnemonic nor a mark-up, and no wider window.
void tst_PageRecherche::nomDuFichier()
{
    Montre();
    auto const titre = [this] {
        return static_cast<QGroupBox *>(
                   Prete<QPlainTextEdit>().parentWidget()->parentWidget()->parentWidget())
            ->title();
    };
    Choisis(Ecris(u"R&D <b>x<b>.txt"_s, u"a"_s));
    QTRY_COMPARE(titre(), u"R&&D <b>x<b>.txt"_s);

    QTRY_VERIFY(!maPage->findChild<QFileDialog *>());
    Choisis(Ecris(QString(200, u'm'), u"a"_s));
    QTRY_VERIFY(titre().startsWith(u"mm"));
    QCOMPARE_LT(maPage->fontMetrics().horizontalAdvance(titre()), maPage->width() / 2);

    QTRY_VERIFY(!maPage->findChild<QFileDialog *>());
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    int const largeur = maPage->minimumSizeHint().width();
    Choisis(Ecris(QString(200, u'n'), QString(QChar::Null)));
    QTRY_VERIFY(MontreMessage());
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE_LE(maPage->minimumSizeHint().width(), largeur);

    Remplace(monDossier.filePath(u"<b>absent</b>"_s), {});
    for (auto const * const message : maPage->findChildren<QLabel *>(u"messageErreur"_s))
        QCOMPARE(message->textFormat(), Qt::PlainText);
}

void tst_PageRecherche::apercuTantQueRienNEstTapay()
{
    Montre();
    QTRY_VERIFY(Prete<ApercuFenetre>().isVisible());

    QTest::keyClicks(&Prete<ChampMots>(), u"s"_s);

    QVERIFY(!Prete<ApercuFenetre>().isVisible());
    for (auto const * const legende : maPage->findChildren<QLabel *>())
        QVERIFY(legende->isHidden() || legende->text() != u"Ce qui s’ouvre"_s);
}

void tst_PageRecherche::demonstrationSansTexte()
{
    maPage.reset();
    PageRecherche::PreteMemoire().texte = QString();
    maPage = std::make_unique<PageRecherche>();
    Montre();

    QVERIFY(Prete<BarreRecherche>().isVisible());
    QVERIFY(!PreteChamp(Prete<BarreRecherche>()).property("introuvable").toBool());
    QVERIFY(!MontreMessage());
}

void tst_PageRecherche::premierDesMotsAussiFrequents()
{
    maPage.reset();
    PageRecherche::PreteMemoire().texte = u"Un loup, un chat : le loup et le chat."_s;
    maPage = std::make_unique<PageRecherche>();
    Montre();

    QCOMPARE(PreteChamp(Prete<BarreRecherche>()).text(), u"loup"_s);
}

void tst_PageRecherche::focusLaissay()
{
    maPage->resize(900, 700);
    Prete<QPushButton>(u"ouvrir"_s).setFocus();
    Montre();

    QVERIFY(Prete<BarreRecherche>().isVisible());
    QVERIFY(Prete<QPushButton>(u"ouvrir"_s).hasFocus());
}

void tst_PageRecherche::boutons()
{
    Montre();
    auto & barre = Prete<BarreRecherche>();

    Appuie(u"dialogue"_s);
    QVERIFY(Prete<DialogueRechercher>().isVisible());
    QVERIFY(barre.isHidden());

    Appuie(u"barre"_s);
    QVERIFY(barre.isVisible());

    Prete<QCheckBox>(u"editeurRiche"_s).click();
    QVERIFY(!Prete<QPlainTextEdit>().isVisible());
}

void tst_PageRecherche::motChoisi()
{
    Montre();
    auto & mot = Prete<ChampMots>();
    mot.setFocus();
    mot.clear();
    QTest::keyClicks(&mot, u"etes"_s);
    QVERIFY(mot.PreteListe().isVisible());

    QTest::keyClick(&mot, Qt::Key_Return);

    QCOMPARE(mot.text(), u"étés"_s);
    QCOMPARE(PreteChamp(Prete<BarreRecherche>()).text(), u"étés"_s);
    QVERIFY(DonneTrace().constLast().startsWith(u"CallbackChercher(\"étés\""));
}

void tst_PageRecherche::echapDansUnDialogue()
{
    Montre();
    Appuie(u"dansUnDialogue"_s);
    QPointer<QDialog> const dialogue = &Prete<QDialog>(u"dialogueAvecBarre"_s);
    QVERIFY(QTest::qWaitForWindowActive(dialogue));
    auto & barre = *dialogue->findChild<BarreRecherche *>();
    QVERIFY(barre.isVisible());
    QTRY_VERIFY(PreteChamp(barre).hasFocus()); // activations of windows come late

    QTest::keyClick(&PreteChamp(barre), Qt::Key_Escape);
    QVERIFY(barre.isHidden());
    QVERIFY(dialogue->isVisible());

    QTest::keyClick(dialogue->focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(dialogue.isNull());
}

// Each in turn by the key, as they stand on the page; the editors let it through.
void tst_PageRecherche::tabulation()
{
    Montre();
    auto & editeur = Prete<QPlainTextEdit>();
    editeur.setFocus();
    QTest::keyClick(&editeur, Qt::Key_Tab);
    auto const & barre = Prete<BarreRecherche>();
    QVERIFY(barre.isAncestorOf(maPage->focusWidget()));
    for (int i = 0; i < 20 && barre.isAncestorOf(maPage->focusWidget()); ++i)
        QTest::keyClick(maPage->focusWidget(), Qt::Key_Tab);
    QCOMPARE(maPage->focusWidget(), &Prete<ChampMots>());

    Appuie(u"dansUnDialogue"_s);
    auto & dialogue = Prete<QDialog>(u"dialogueAvecBarre"_s);
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    auto & autre = *dialogue.findChild<QPlainTextEdit *>();
    autre.setFocus();
    QTest::keyClick(&autre, Qt::Key_Tab);
    QVERIFY(dialogue.findChild<BarreRecherche *>()->isAncestorOf(dialogue.focusWidget()));
    QCOMPARE(autre.toPlainText(), editeur.toPlainText());
}

void tst_PageRecherche::texteGarday()
{
    Montre();
    Prete<QPlainTextEdit>().textCursor().insertText(u"loup"_s);

    maPage.reset();
    maPage = std::make_unique<PageRecherche>();

    QCOMPARE(Prete<QPlainTextEdit>().document()->toRawText(),
             QString(kTexte)
                 .replace(u"Un chien\u00A0"_s, u"Un loup\u00A0"_s)
                 .replace(u'\n', QChar::ParagraphSeparator));
}

void tst_PageRecherche::barreFermeeGardee()
{
    Montre();
    Prete<BarreRecherche>().PriseBoutonFermer();

    maPage.reset();
    maPage = std::make_unique<PageRecherche>();
    Montre();

    QVERIFY(Prete<BarreRecherche>().isHidden());
    QTRY_VERIFY(Prete<ApercuFenetre>().isVisible()); // the rest of the demonstration
}

// What was entered on a former page stands in the field before the page is shown.
void tst_PageRecherche::saisieCherchee()
{
    PreteChamp(Prete<BarreRecherche>()).setText(u"chat"_s);
    Montre();

    QCOMPARE(PreteChamp(Prete<BarreRecherche>()).text(), u"chat"_s);
    QCOMPARE(Prete<QPlainTextEdit>().textCursor().selectedText(), u"chat"_s);
}

void tst_PageRecherche::effacer()
{
    Montre();
    QVERIFY(!DonneTrace().isEmpty());

    Appuie(u"effacer"_s);

    QVERIFY(DonneTrace().isEmpty());
}

void tst_PageRecherche::champsNommes()
{
    for (auto const * const champ : maPage->findChildren<QWidget *>()) {
        bool const saisie = qobject_cast<QAbstractScrollArea const *>(champ) ||
                            qobject_cast<QToolButton const *>(champ);
        if (!saisie || !(champ->focusPolicy() & Qt::TabFocus))
            continue;
        auto const * const bouton = qobject_cast<QToolButton const *>(champ);
        QVERIFY2(!champ->accessibleName().isEmpty() || (bouton && !bouton->text().isEmpty()),
                 champ->metaObject()->className());
    }
}

QTEST_MAIN(tst_PageRecherche)
#include "tst_PageRecherche.moc"
