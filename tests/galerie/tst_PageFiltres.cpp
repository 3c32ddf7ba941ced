// tests/galerie/tst_PageFiltres.cpp
#include "BancPageFiltres.h"

class tst_PageFiltres : public QObject, private BancPageFiltres
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void demonstration();
    void motsLus();
    void frappe();
    void ordre_data();
    void ordre();
    void colonnes();
    void motCourantGarday();
    void flecheVersLaListe();
    void sansFichier_data();
    void sansFichier();
    void detruiteAvantLesMots();
    void etatGarday();
    void trace();
    void tabulation();
    void nomsPourLecteurs();
    void longueListe();
};

void tst_PageFiltres::demonstration()
{
    PageFiltres::PreteMemoire() = {};
    PageFiltres::PreteMemoire().fichier = Ecris(u"récitations\nrefait\ncélébrons\nrécupérons"_s);
    Refais();
    Montre();

    QCOMPARE(PreteChamp().text(), u"re"_s);
    QCOMPARE(DonnePastilles(), (QStringList{u"Longueur\u00A0: 9 à 11"_s, u"Accents\u00A0: Aigu"_s,
                                            u"Finit par “ons”"_s}));
    QVERIFY(Prete<ListePastille>().isVisible());
    QCOMPARE(DonneMots(), u"récitations récupérons"_s);
    QVERIFY(Prete<ApercuFenetre>().isVisible());
    QVERIFY(Prete<ApercuFenetre>().height() > 3 * maPage->fontMetrics().height());
}

void tst_PageFiltres::motsLus()
{
    QVERIFY(DonneCardinalitay(PreteBarre()).contains(u'…')); // they are being read
    Montre();

    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s);
    QCOMPARE(DonneMots(), kMots.trimmed().replace(u'\n', u' '));
    QVERIFY(DonnePastilles().isEmpty());
    QVERIFY(!Prete<ListePastille>().isVisible());
    QVERIFY(Prete<QLabel>(u"messageErreur"_s).isHidden());
}

void tst_PageFiltres::frappe()
{
    Montre();
    PreteChamp().setFocus();

    QTest::keyClick(&PreteChamp(), 'r');
    QCOMPARE(DonneMots(), u"reçu refaire retenue réécouter"_s);
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"4 mots"_s);
    QTest::keyClicks(&PreteChamp(), u"ec"_s); // accents do not count
    QCOMPARE(DonneMots(), u"reçu"_s);
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"1 mot"_s);
    QTest::keyClick(&PreteChamp(), 'x');
    QCOMPARE(DonneMots(), QString());
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"0 mot"_s);
    QTest::keyClick(&PreteChamp(), Qt::Key_Backspace);
    QCOMPARE(DonneMots(), u"reçu"_s);
    PreteChamp().clear();
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s);
}

void tst_PageFiltres::ordre_data()
{
    QTest::addColumn<QString>("ordre");
    QTest::addColumn<QString>("mots");
    QTest::addColumn<QString>("texte");
    QTest::newRow("shortest first")
        << u"courtsDAbord"_s << u"reçu refaire retenue réécouter"_s << u"Les plus courts d’abord"_s;
    QTest::newRow("longest first")
        << u"longsDAbord"_s << u"réécouter refaire retenue reçu"_s << u"Les plus longs d’abord"_s;
    QTest::newRow("as the list") << u"ordreDeLaListe"_s << u"reçu refaire retenue réécouter"_s
                                 << u"Ordre de la liste"_s;
}

void tst_PageFiltres::ordre()
{
    QFETCH(QString, ordre);
    QFETCH(QString, mots);
    QFETCH(QString, texte);
    Montre();
    QTest::keyClicks(&PreteChamp(), u"r"_s);
    auto const icone = [this] {
        auto * const bouton =
            PreteBarreDOrdre().findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
        return bouton->icon().pixmap(bouton->iconSize()).toImage();
    };
    QImage const inactive = icone();

    Prete<QAction>(ordre).trigger();
    QCOMPARE(icone() == inactive, ordre == u"ordreDeLaListe"_s);

    QCOMPARE(DonneMots(), mots);
    QCOMPARE(DonneCardinalitay(PreteBarreDOrdre()), texte);
    QVERIFY(Prete<QAction>(ordre).isChecked());
    Refais(); // it stays
    Montre();
    QCOMPARE(DonneMots(), mots);
    QVERIFY(Prete<QAction>(ordre).isChecked());
}

void tst_PageFiltres::colonnes()
{
    Montre();
    auto const & liste = Prete<DTableView>();
    QVERIFY(!liste.isColumnHidden(ModeleMots::kLettres));
    QVERIFY(!liste.isColumnHidden(ModeleMots::kAccents));

    Prete<QAction>(u"colonneLettres"_s).trigger();
    QVERIFY(liste.isColumnHidden(ModeleMots::kLettres));
    QVERIFY(!liste.isColumnHidden(ModeleMots::kAccents));
    QVERIFY(!liste.isColumnHidden(ModeleMots::kMot));

    Refais();
    QVERIFY(Prete<DTableView>().isColumnHidden(ModeleMots::kLettres));
    Prete<QAction>(u"colonneLettres"_s).trigger();
    QVERIFY(!Prete<DTableView>().isColumnHidden(ModeleMots::kLettres));
}

void tst_PageFiltres::motCourantGarday()
{
    Montre();
    auto & liste = Prete<DTableView>();
    liste.setCurrentIndex(liste.model()->index(8, 0));
    QCOMPARE(liste.currentIndex().data().toString(), u"refaire"_s);

    QTest::keyClicks(&PreteChamp(), u"re"_s);
    QCOMPARE(liste.currentIndex().data().toString(), u"refaire"_s);
    QCOMPARE(liste.currentIndex().row(), 1);
    Prete<QAction>(u"longsDAbord"_s).trigger();
    QCOMPARE(liste.currentIndex().data().toString(), u"refaire"_s);

    QTest::keyClicks(&PreteChamp(), u"c"_s);
    QVERIFY(!liste.currentIndex().isValid());
    QTest::keyClick(&PreteChamp(), Qt::Key_Backspace);
    QCOMPARE(liste.currentIndex().data().toString(), u"refaire"_s);
    Refais();
    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
}

void tst_PageFiltres::flecheVersLaListe()
{
    Montre();
    auto & liste = Prete<DTableView>();
    PreteChamp().setFocus();
    QTest::keyClicks(&PreteChamp(), u"rex"_s);
    QTest::keyClick(maPage->focusWidget(), Qt::Key_Down); // nothing there to go to
    QVERIFY(!liste.hasFocus());
    QTest::keyClick(&PreteChamp(), Qt::Key_Backspace);
    QTest::keyClick(maPage->focusWidget(), Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(!liste.hasFocus());

    QTest::keyClick(maPage->focusWidget(), Qt::Key_Down);
    QVERIFY(liste.hasFocus());
    QCOMPARE(liste.currentIndex().data().toString(), u"reçu"_s);
    QCOMPARE(PreteChamp().text(), u"re"_s);
    QTest::keyClick(&liste, Qt::Key_Down);
    QCOMPARE(liste.currentIndex().data().toString(), u"refaire"_s);

    // Back to the word on which one stood.
    PreteChamp().setFocus();
    QTest::keyClick(maPage->focusWidget(), Qt::Key_Down, Qt::KeypadModifier);
    QVERIFY(liste.hasFocus());
    QCOMPARE(liste.currentIndex().data().toString(), u"refaire"_s);
}

void tst_PageFiltres::sansFichier_data()
{
    QTest::addColumn<QString>("paquet");
    QTest::addColumn<QString>("message");
    QTest::newRow("of a package") << u"wfrench"_s << u"wfrench"_s;
    QTest::newRow("of no package") << QString() << u"absent"_s;
}

void tst_PageFiltres::sansFichier()
{
    QFETCH(QString, paquet);
    QFETCH(QString, message);
    PageFiltres::PreteMemoire().fichier = monDossier.filePath(u"absent"_s);
    PageFiltres::PreteMemoire().paquet = paquet;
    Refais();
    Montre();

    auto const & etiquette = Prete<QLabel>(u"messageErreur"_s);
    QVERIFY(etiquette.isVisible());
    QVERIFY2(etiquette.text().contains(message), qPrintable(etiquette.text()));
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"0 mot"_s);
    QTest::keyClicks(&PreteChamp(), u"re"_s);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kAvec);
    Prete<QAction>(u"longsDAbord"_s).trigger();
    QTest::keyClicks(PreteBarreDOrdre().PreteComboDeRecherche()->lineEdit(), u"re"_s);
    QCOMPARE(DonneMots(), QString());

    // Once it is there, the next page finds it.
    PageFiltres::PreteMemoire().fichier = Ecris(kMots);
    Refais();
    Montre();
    QVERIFY(Prete<QLabel>(u"messageErreur"_s).isHidden());
    QCOMPARE(DonneMots(), u"réécouter reçu"_s);
}

void tst_PageFiltres::detruiteAvantLesMots()
{
    for (int i = 0; i < 10; ++i)
        Refais();
    maPage->show();
    PreteChamp().setText(u"re"_s);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kSans);
    Prete<QAction>(u"longsDAbord"_s).trigger();
    Montre();

    QCOMPARE(DonneMots(), u"refaire retenue"_s); // what was asked meanwhile holds
}

void tst_PageFiltres::etatGarday()
{
    Montre();
    QTest::keyClicks(&PreteChamp(), u"re"_s);
    QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    Choisis(BarreFiltreMots::kLongueur, FiltreMots::kSixAHuit);
    PreteBarre().PreteComboDeRecherche()->MetsModeCourant(FiltreMots::kFinitPar);
    QTest::keyClicks(&PreteChamp(), u"e"_s);
    QString const mots = DonneMots();
    QCOMPARE(mots, u"refaire retenue"_s);

    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    Refais();
    // The words are there at once.
    QCOMPARE(DonneMots(), mots);
    QCOMPARE(PreteChamp().text(), u"e"_s);
    QCOMPARE(PreteBarre().PreteComboDeRecherche()->DonneModeCourant(), int(FiltreMots::kFinitPar));
    QStringList pastilles = DonnePastilles();
    pastilles.sort();
    QCOMPARE(pastilles, (QStringList{u"Length: 6 to 8"_s, u"Starts with “re”"_s}));
}

void tst_PageFiltres::trace()
{
    Montre();
    auto & texte = Prete<TraceSignaux>();
    QVERIFY(texte.toPlainText().isEmpty());
    Choisis(BarreFiltreMots::kInitiale, 18);
    QCOMPARE(texte.toPlainText(), u"BarreFiltreMots::SignalValeurChanger(2, 18, 18)"_s);

    Prete<QPushButton>(u"effacer"_s).click();
    QVERIFY(texte.toPlainText().isEmpty());
}

// Each by the key, in the order in which they stand.
void tst_PageFiltres::tabulation()
{
    Choisis(BarreFiltreMots::kInitiale, 18);
    Montre();
    auto * const pastille = TrouvePastille(u"Initiale\u00A0: R"_s);
    QTRY_VERIFY(PastillesVisibles());
    pastille->setFocus();
    QList<QWidget *> suivants;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(maPage->focusWidget(), Qt::Key_Tab);
        suivants.append(maPage->focusWidget());
    }
    auto const place = [&suivants](QWidget const & widget) {
        for (qsizetype i = 0; i < suivants.size(); ++i)
            if (suivants.at(i) == &widget || widget.focusProxy() == suivants.at(i) ||
                suivants.at(i)->focusProxy() == &widget || widget.isAncestorOf(suivants.at(i)))
                return static_cast<int>(i);
        return -1;
    };
    auto * const bouton =
        PreteBarre().findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(bouton);
    QVERIFY(place(*PreteBarre().PreteComboDeRecherche()) >= 0);
    QVERIFY(place(*bouton) > place(*PreteBarre().PreteComboDeRecherche()));
    QVERIFY(place(Prete<DTableView>()) > place(*bouton));
    QVERIFY(place(PreteBarreDOrdre()) > place(Prete<DTableView>()));
    QVERIFY(place(Prete<TraceSignaux>()) > place(PreteBarreDOrdre()));
    QVERIFY(place(Prete<QPushButton>(u"effacer"_s)) > place(Prete<TraceSignaux>()));
}

void tst_PageFiltres::nomsPourLecteurs()
{
    Montre();
    for (auto * const widget : maPage->findChildren<QWidget *>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisibleTo(maPage.get()) ||
            widget->objectName().startsWith(u"qt_"_s))
            continue;
        auto * const acces = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(acces && !acces->text(QAccessible::Name).isEmpty(),
                 widget->metaObject()->className());
    }
    QVERIFY(PreteBarre().accessibleName() != PreteBarreDOrdre().accessibleName());
}

// As many as the real list has: each key up to the list and the number, with no turn of the event
// loop in between.
void tst_PageFiltres::longueListe()
{
    constexpr int kMotsDeLaListe = 346'205;
    QString texte;
    for (int i = 0; i < kMotsDeLaListe; ++i)
        texte += QChar(u'a' + i % 26) + u"é"_s + QChar(u'a' + i / 26 % 26) + u"tion"_s +
                 QChar(u'a' + i / 676 % 26) + u'\n';
    PageFiltres::PreteMemoire().fichier = Ecris(texte);
    Refais();
    Montre();
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"346\u202F205 mots"_s);

    int nombre = kMotsDeLaListe;
    for (QChar const lettre : u"reation"_s) {
        QTest::keyClick(&PreteChamp(), lettre.toLatin1());
        int const reste = Prete<DTableView>().model()->rowCount();
        QVERIFY(reste > 0 && reste <= nombre);
        QCOMPARE(DonneCardinalitay(PreteBarre()), QLocale().toString(reste) + u" mots"_s);
        nombre = reste;
    }
    QCOMPARE(nombre, 513);
}

QTEST_MAIN(tst_PageFiltres)
#include "tst_PageFiltres.moc"
