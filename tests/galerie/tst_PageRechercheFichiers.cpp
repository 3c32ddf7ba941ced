// tests/galerie/tst_PageRechercheFichiers.cpp
#include "BancPageRecherche.h"

class tst_PageRechercheFichiers : public QObject, private BancPageRecherche
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void texteMontre();
    void fichierAbsent();
    void paquetAbsent_data();
    void paquetAbsent();
    void texteTapaySansFichier();
    void ouvreUnFichier();
    void fichierRefusay();
    void nomDuFichier();
};

void tst_PageRechercheFichiers::texteMontre()
{
    QCOMPARE(Prete<QPlainTextEdit>().document()->toRawText(),
             QString(kTexte).replace(u'\n', QChar::ParagraphSeparator));
    bool nommay = false;
    for (auto const * const groupe : maPage->findChildren<QGroupBox *>())
        nommay = nommay || groupe->title() == u"texte.txt"_s;
    QVERIFY(nommay);
    QVERIFY(!MontreMessage());
}

void tst_PageRechercheFichiers::fichierAbsent()
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

void tst_PageRechercheFichiers::paquetAbsent_data()
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

void tst_PageRechercheFichiers::paquetAbsent()
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

void tst_PageRechercheFichiers::texteTapaySansFichier()
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

void tst_PageRechercheFichiers::ouvreUnFichier()
{
    Montre();
    QString const autre = Ecris(u"autre.txt"_s, u"Tout autre chose"_s);

    Choisis(autre);

    QTRY_COMPARE(Prete<QPlainTextEdit>().toPlainText(), u"Tout autre chose"_s);
    QCOMPARE(PageRecherche::PreteMemoire().fichier, autre);
    QTRY_VERIFY(!maPage->findChild<QFileDialog *>());
}

void tst_PageRechercheFichiers::fichierRefusay()
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

// Neither a mnemonic nor a mark-up, and no wider window.
void tst_PageRechercheFichiers::nomDuFichier()
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

QTEST_MAIN(tst_PageRechercheFichiers)
#include "tst_PageRechercheFichiers.moc"
