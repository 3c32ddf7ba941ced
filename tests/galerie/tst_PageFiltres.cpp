// tests/galerie/tst_PageFiltres.cpp
#include "PageFiltres.h"

#include "ApercuFenetre.h"
#include "TraceSignaux.h"

#include "controls/DTableView.h"
#include "lists/ListePastille.h"
#include "lists/Pastille.h"
#include "noyau/Traductions.h"
#include "search/DChampRecherche.h"

#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString const kMots = u"abri\nabrité\ncélèbre\nchâteau\nété\nétés\nnaïf\nreçu\nrefaire\nretenue\n"
                      "arc-en-ciel\nréécouter\nzèbre\n"_s;

} // namespace

class tst_PageFiltres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void demonstration();
    void motsLus();
    void frappe();
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
    void ordre_data();
    void ordre();
    void colonnes();
    void allerA();
    void motsVisites();
    void motCourantGarday();
    void sansFichier_data();
    void sansFichier();
    void detruiteAvantLesMots();
    void etatGarday();
    void trace();
    void tabulation();
    void popUpAuClavier();
    void nomsPourLecteurs();
    void longueListe();

private:
    void Refais();
    void Montre(QSize const & taille = QSize(900, 700));
    QString Ecris(QString const & texte);
    template <typename Type>
    Type & Prete(QString const & nom = {}) const;
    BarreFiltreMots & PreteBarre() const { return Prete<BarreFiltreMots>(); }
    QLineEdit & PreteChamp() const { return *PreteBarre().PreteComboDeRecherche()->lineEdit(); }
    BarreDeFiltre & PreteBarreDOrdre() const;
    QString DonneCardinalitay(BarreDeFiltre const & barre) const;
    QString DonneMots() const;
    QStringList DonnePastilles() const;
    bool PastillesVisibles() const;
    Pastille * TrouvePastille(QString const & titre) const;
    void Choisis(BarreFiltreMots::eFiltre filtre, int choix);

    QTemporaryDir monDossier;
    std::unique_ptr<PageFiltres> maPage;
};

void tst_PageFiltres::init()
{
    QVERIFY(monDossier.isValid());
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QLocale::setDefault(QLocale(QLocale::French));
    PageFiltres::PreteMemoire() = {};
    PageFiltres::PreteMemoire().fichier = Ecris(kMots);
    PageFiltres::PreteMemoire().etat = {};
    Refais();
}

void tst_PageFiltres::cleanup()
{
    maPage.reset();
    PageFiltres::PreteMemoire() = {};
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageFiltres::Refais()
{
    maPage.reset();
    maPage = std::make_unique<PageFiltres>();
}

// With its words.
void tst_PageFiltres::Montre(QSize const & taille)
{
    maPage->resize(taille);
    maPage->show();
    QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
    QTRY_VERIFY(DonneCardinalitay(PreteBarre()).contains(u"mot"_s) &&
                !DonneCardinalitay(PreteBarre()).contains(u'…'));
}

QString tst_PageFiltres::Ecris(QString const & texte)
{
    QFile fichier(monDossier.filePath(u"mots"_s));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        return {};
    return fichier.fileName();
}

template <typename Type>
Type & tst_PageFiltres::Prete(QString const & nom) const
{
    auto * const objet = maPage->findChild<Type *>(nom);
    Q_ASSERT(objet);
    return *objet;
}

BarreDeFiltre & tst_PageFiltres::PreteBarreDOrdre() const
{
    for (auto * const barre : maPage->findChildren<BarreDeFiltre *>())
        if (!qobject_cast<BarreFiltreMots *>(barre))
            return *barre;
    Q_UNREACHABLE();
}

QString tst_PageFiltres::DonneCardinalitay(BarreDeFiltre const & barre) const
{
    for (auto const * const etiquette :
         barre.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
        return etiquette->text();
    return {};
}

QString tst_PageFiltres::DonneMots() const
{
    QAbstractItemModel const & modele = *Prete<DTableView>().model();
    QStringList mots;
    for (int ligne = 0; ligne < modele.rowCount(); ++ligne)
        mots.append(modele.index(ligne, ModeleMots::kMot).data().toString());
    return mots.join(u' ');
}

// By the titles that their removal names.
QStringList tst_PageFiltres::DonnePastilles() const
{
    QStringList titres;
    for (auto * const widget : Prete<ListePastille>().PreteListeWidgets())
        titres.append(qobject_cast<Pastille *>(widget)->accessibleName());
    return titres;
}

// Qt shows what has been added to a window later.
bool tst_PageFiltres::PastillesVisibles() const
{
    auto const pastilles = Prete<ListePastille>().PreteListeWidgets();
    return std::all_of(pastilles.begin(), pastilles.end(),
                       [](QWidget const * pastille) { return pastille->isVisible(); });
}

Pastille * tst_PageFiltres::TrouvePastille(QString const & titre) const
{
    for (auto * const widget : Prete<ListePastille>().PreteListeWidgets())
        if (widget->accessibleName() == titre)
            return qobject_cast<Pastille *>(widget);
    return nullptr;
}

void tst_PageFiltres::Choisis(BarreFiltreMots::eFiltre filtre, int choix)
{
    PreteBarre().PreteComboBox(filtre)->setCurrentIndex(choix);
}

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

void tst_PageFiltres::modes()
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

void tst_PageFiltres::listeDeroulante_data()
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

void tst_PageFiltres::listeDeroulante()
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

void tst_PageFiltres::autreChoix()
{
    Montre();
    Choisis(BarreFiltreMots::kInitiale, 1);
    Choisis(BarreFiltreMots::kAccent, FiltreMots::kSans);
    Choisis(BarreFiltreMots::kInitiale, 18);

    QCOMPARE(DonnePastilles(), (QStringList{u"Accents\u00A0: Sans"_s, u"Initiale\u00A0: R"_s}));
    QCOMPARE(DonneMots(), u"refaire retenue"_s);
}

void tst_PageFiltres::pastilleRetiree()
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

void tst_PageFiltres::pastilleRetireeAuClavier()
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

void tst_PageFiltres::texteEpinglay()
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

void tst_PageFiltres::texteEpinglayDeuxFois()
{
    Montre();
    for (int i = 0; i < 2; ++i) {
        QTest::keyClicks(&PreteChamp(), u"re"_s);
        QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    }

    QCOMPARE(DonnePastilles(), QStringList{u"Commence par “re”"_s});
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"4 mots"_s);
}

void tst_PageFiltres::retourSansLettre()
{
    Montre();
    QTest::keyClick(&PreteChamp(), Qt::Key_Return);
    QTest::keyClicks(&PreteChamp(), u"-"_s);
    QTest::keyClick(&PreteChamp(), Qt::Key_Return);

    QVERIFY(DonnePastilles().isEmpty());
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s);
}

// What was typed is no combo box: it stays.
void tst_PageFiltres::desactiver()
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

void tst_PageFiltres::sousLeChevron()
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

    Prete<QAction>(ordre).trigger();

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

void tst_PageFiltres::allerA()
{
    Montre();
    auto & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
    QCOMPARE(champ.DonneNombreDeModes(), 0);
    QTest::keyClicks(champ.lineEdit(), u"REF"_s);

    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s); // nothing is filtered
    QTest::keyClicks(champ.lineEdit(), u"xyz"_s);
    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
}

// Those that one has gone to stand in the list of the field, the last one first.
void tst_PageFiltres::motsVisites()
{
    Montre();
    for (QString const & mot : {u"reteNUE"_s, u"abr"_s, u"xyz"_s, u"refai"_s, u"abr"_s}) {
        auto & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
        champ.lineEdit()->clear();
        QTest::keyClicks(champ.lineEdit(), mot);
        QTest::keyClick(champ.lineEdit(), Qt::Key_Return);
    }
    auto const & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
    QStringList const visites = {u"abri"_s, u"refaire"_s, u"retenue"_s};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(champ.itemText(i), visites.at(i));
    QCOMPARE(champ.count(), 3);
    QCOMPARE(champ.currentText(), u"abri"_s);

    Refais();
    auto & autre = *PreteBarreDOrdre().PreteComboDeRecherche();
    QCOMPARE(autre.count(), 3);
    QCOMPARE(autre.currentText(), QString());
    Montre();
    autre.setCurrentIndex(1);
    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
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

// The button opens the pop-up, Down chooses in the first combo box, Escape closes it.
void tst_PageFiltres::popUpAuClavier()
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

// As many as the real list has: each key up to the list and the number.
void tst_PageFiltres::longueListe()
{
    constexpr int kMotsDeLaListe = 346'205;
    constexpr int kDelai = 1'000; // ms; a frame in a release build, and here far more than needed
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
        QElapsedTimer horloge;
        horloge.start();
        QTest::keyClick(&PreteChamp(), lettre.toLatin1());
        QCoreApplication::processEvents();
        QVERIFY2(horloge.elapsed() < kDelai, qPrintable(QString::number(horloge.elapsed())));
        int const reste = Prete<DTableView>().model()->rowCount();
        QVERIFY(reste > 0 && reste <= nombre);
        QCOMPARE(DonneCardinalitay(PreteBarre()), QLocale().toString(reste) + u" mots"_s);
        nombre = reste;
    }
    QCOMPARE(nombre, 513);
}

QTEST_MAIN(tst_PageFiltres)
#include "tst_PageFiltres.moc"
