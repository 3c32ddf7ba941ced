// tests/galerie/tst_BarreFiltreMots.cpp
#include "BancPageFiltres.h"

class tst_BarreFiltreMots : public QObject, private BancPageFiltres
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void modes();
    void listeDeroulante_data();
    void listeDeroulante();
    void autreChoix();
    void pastilleRetiree();
    void pastilleRetireeAuClavier();
    void texteEpinglay();
    void texteEpinglayDeuxFois();
    void retourSansLettre();
    void desactiver();
    void sousLeChevron();
    void popUpAuClavier();
};

void tst_BarreFiltreMots::modes()
{
    Montre();
    auto & champ = *PreteBarre().PreteComboDeRecherche();
    QCOMPARE(champ.DonneNombreDeModes(), 3);
    QCOMPARE(champ.DonneModeCourant(), int(FiltreMots::kCommencePar));
    QTest::keyClicks(&PreteChamp(), u"re"_s);
    QCOMPARE(DonneMots(), u"reçu refaire retenue réécouter"_s);

    champ.MetsModeCourant(FiltreMots::kFinitPar);
    QCOMPARE(DonneMots(), u"célèbre refaire zèbre"_s);
    champ.MetsModeCourant(FiltreMots::kContient);
    QCOMPARE(DonneMots(), u"célèbre reçu refaire retenue réécouter zèbre"_s);
}

void tst_BarreFiltreMots::listeDeroulante_data()
{
    QTest::addColumn<int>("filtre");
    QTest::addColumn<int>("choix");
    QTest::addColumn<QString>("pastille");
    QTest::addColumn<QString>("mots");
    QTest::newRow("length") << int(BarreFiltreMots::kLongueur) << int(FiltreMots::kNeufAOnze)
                            << u"Longueur\u00A0: 9 à 11"_s << u"arc-en-ciel réécouter"_s;
    QTest::newRow("initial") << int(BarreFiltreMots::kInitiale) << 26 << u"Initiale\u00A0: Z"_s
                             << u"zèbre"_s;
    QTest::newRow("accents") << int(BarreFiltreMots::kAccent) << int(FiltreMots::kCedille)
                             << u"Accents\u00A0: Cédille"_s << u"reçu"_s;
}

void tst_BarreFiltreMots::listeDeroulante()
{
    QFETCH(int, filtre);
    QFETCH(int, choix);
    QFETCH(QString, pastille);
    QFETCH(QString, mots);
    Montre();

    Choisis(BarreFiltreMots::eFiltre(filtre), choix);
    QCOMPARE(DonnePastilles(), QStringList{pastille});
    QVERIFY(Prete<ListePastille>().isVisible());
    QCOMPARE(DonneMots(), mots);

    Choisis(BarreFiltreMots::eFiltre(filtre), 0);
    QVERIFY(DonnePastilles().isEmpty());
    QVERIFY(!Prete<ListePastille>().isVisible());
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s);
}

void tst_BarreFiltreMots::autreChoix()
{
    Montre();
    Choisis(BarreFiltreMots::kInitiale, 1);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kSans);
    Choisis(BarreFiltreMots::kInitiale, 18);

    QCOMPARE(DonnePastilles(), (QStringList{u"Accents\u00A0: Sans"_s, u"Initiale\u00A0: R"_s}));
    QCOMPARE(DonneMots(), u"refaire retenue"_s);
}

void tst_BarreFiltreMots::pastilleRetiree()
{
    Montre();
    Choisis(BarreFiltreMots::kInitiale, 18);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kAvec);
    QCOMPARE(DonneMots(), u"reçu réécouter"_s);
    auto * const pastille = TrouvePastille(u"Initiale\u00A0: R"_s);
    QVERIFY(pastille);
    QTRY_VERIFY(PastillesVisibles());

    QTest::mouseClick(pastille, Qt::LeftButton, {}, pastille->DonneRectBoutonSupprimer().center());

    QCOMPARE(PreteBarre().PreteComboBox(BarreFiltreMots::kInitiale)->currentIndex(), 0);
    QCOMPARE(DonnePastilles(), QStringList{u"Accents\u00A0: Avec"_s});
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"9 mots"_s);
}

void tst_BarreFiltreMots::pastilleRetireeAuClavier()
{
    Montre();
    Choisis(BarreFiltreMots::kInitiale, 18);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kAvec);
    auto * const pastille = TrouvePastille(u"Initiale\u00A0: R"_s);
    QTRY_VERIFY(PastillesVisibles());
    pastille->setFocus();

    QTest::keyClick(pastille, Qt::Key_Delete);

    QCOMPARE(PreteBarre().PreteComboBox(BarreFiltreMots::kInitiale)->currentIndex(), 0);
    QCOMPARE(DonnePastilles(), QStringList{u"Accents\u00A0: Avec"_s});
    QTRY_COMPARE(maPage->focusWidget(), TrouvePastille(u"Accents\u00A0: Avec"_s));
    QTest::keyClick(maPage->focusWidget(), Qt::Key_Return);
    QVERIFY(DonnePastilles().isEmpty());
    QVERIFY(PreteBarre().PreteComboDeRecherche()->hasFocus() || PreteChamp().hasFocus());
}

void tst_BarreFiltreMots::texteEpinglay()
{
    Montre();
    PreteChamp().setFocus();
    PreteBarre().PreteComboDeRecherche()->MetsModeCourant(FiltreMots::kContient);
    QTest::keyClicks(&PreteChamp(), u"e"_s);
    QString const mots = DonneMots();

    QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    QCOMPARE(PreteChamp().text(), QString());
    QCOMPARE(DonnePastilles(), QStringList{u"Contient “e”"_s});
    QCOMPARE(DonneMots(), mots);

    // One more holds as well.
    QTest::keyClicks(&PreteChamp(), u"br"_s);
    QTest::keyClick(&PreteChamp(), Qt::Key_Enter);
    QCOMPARE(DonnePastilles().size(), 2);
    QCOMPARE(DonneMots(), u"abrité célèbre zèbre"_s);

    auto * const premiere = TrouvePastille(u"Contient “e”"_s);
    QTRY_VERIFY(PastillesVisibles());
    QTest::mouseClick(premiere, Qt::LeftButton, {}, premiere->DonneRectBoutonSupprimer().center());
    QCOMPARE(DonneMots(), u"abri abrité célèbre zèbre"_s);
}

void tst_BarreFiltreMots::texteEpinglayDeuxFois()
{
    Montre();
    for (QString const & texte : {u"re"_s, u"re"_s, u"R-E"_s}) {
        QTest::keyClicks(&PreteChamp(), texte);
        QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    }

    QCOMPARE(DonnePastilles(), QStringList{u"Commence par “re”"_s});
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"4 mots"_s);
}

void tst_BarreFiltreMots::retourSansLettre()
{
    Montre();
    QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    QTest::keyClicks(&PreteChamp(), u"-"_s);
    QTest::keyClick(&PreteChamp(), Qt::Key_Return);

    QVERIFY(DonnePastilles().isEmpty());
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s);
}

// What was typed is no combo box: it stays.
void tst_BarreFiltreMots::desactiver()
{
    Montre();
    Choisis(BarreFiltreMots::kLongueur, FiltreMots::kUnACinq);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kAvec);
    QTest::keyClicks(&PreteChamp(), u"e"_s);
    QTest::keyClick(&PreteChamp(), Qt::Key_Return);

    auto & bouton = Prete<QPushButton>(u"BoutonDesactiverFiltre"_s);
    QVERIFY(bouton.isEnabled());
    bouton.click();

    QCOMPARE(DonnePastilles(), QStringList{u"Commence par “e”"_s});
    QCOMPARE(DonneMots(), u"été étés"_s);
    QVERIFY(!bouton.isEnabled());
}

void tst_BarreFiltreMots::sousLeChevron()
{
    Montre();
    for (QString const & texte : {u"a"_s, u"b"_s, u"i"_s, u"r"_s, u"t"_s, u"e"_s}) {
        PreteBarre().PreteComboDeRecherche()->MetsModeCourant(FiltreMots::kContient);
        QTest::keyClicks(&PreteChamp(), texte);
        QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    }
    Choisis(BarreFiltreMots::kLongueur, FiltreMots::kSixAHuit);
    auto & pastilles = Prete<ListePastille>();
    maPage->resize(maPage->minimumSizeHint());
    int const nombre = static_cast<int>(DonnePastilles().size());
    QCOMPARE(nombre, 7);
    QTRY_VERIFY(!pastilles.WidgetEstVisible(nombre - 1));
    QCOMPARE(DonneMots(), u"abrité"_s);

    // The last one goes by the chevron's menu, which the event loop builds.
    auto * const chevron = pastilles.findChild<QToolButton *>();
    QVERIFY(chevron && chevron->menu());
    Q_EMIT chevron->menu()->aboutToShow();
    QAction * const derniere = chevron->menu()->actions().constLast();
    QVERIFY(derniere->text().contains(u"Longueur"_s));
    derniere->trigger();
    QTRY_COMPARE(PreteBarre().PreteComboBox(BarreFiltreMots::kLongueur)->currentIndex(), 0);
    QCOMPARE(DonnePastilles().size(), 6);
}

// The button opens the pop-up, Down chooses in the first combo box, Escape closes it.
void tst_BarreFiltreMots::popUpAuClavier()
{
    Montre();
    auto * const bouton =
        PreteBarre().findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    bouton->setFocus();
    bool ouvert = false;
    QTimer touches;
    touches.setInterval(0);
    // The pop-up blocks until it is closed.
    connect(&touches, &QTimer::timeout, this, [&] {
        QWidget * const fenetre = QApplication::activePopupWidget();
        if (!fenetre)
            return;
        if (!ouvert) {
            ouvert = true;
            auto & combo = *PreteBarre().PreteComboBox(BarreFiltreMots::kLongueur);
            combo.setFocus();
            QTest::keyClick(&combo, Qt::Key_Down);
        }
        QTest::keyClick(fenetre, Qt::Key_Escape);
    });
    touches.start();

    QTest::keyClick(bouton, Qt::Key_Space);

    QTRY_VERIFY(ouvert && !QApplication::activePopupWidget());
    touches.stop();
    QCOMPARE(DonnePastilles(), QStringList{u"Longueur\u00A0: 1 à 5"_s});
    QCOMPARE(DonneMots(), u"abri été étés naïf reçu zèbre"_s);
}

QTEST_MAIN(tst_BarreFiltreMots)
#include "tst_BarreFiltreMots.moc"
