// tests/search/tst_BarreRechercheEtats.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include "dialogs/DAlerteEphemere_p.h"
#include "noyau/ExecutionSilencieuse.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <QStyleFactory>
#include <QTextDocumentFragment>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// What can be pressed of the controls that states change.
struct Actifs
{
    bool remplacer;
    bool tout;
    bool annuler;
    bool precedent;
    bool suivant;

    bool operator==(Actifs const &) const = default;
};

char * toString(Actifs const & actifs)
{
    return qstrdup(
        qPrintable(u"replace %1, all %2, cancel %3, previous %4, next %5"_s.arg(actifs.remplacer)
                       .arg(actifs.tout)
                       .arg(actifs.annuler)
                       .arg(actifs.precedent)
                       .arg(actifs.suivant)));
}

Actifs DonneActifs(BarreRecherche const & barre)
{
    PiecesBarre const pieces(barre);
    return {pieces.remplacer->isEnabledTo(&barre), pieces.tout->isEnabledTo(&barre),
            pieces.annuler->isEnabledTo(&barre), pieces.precedent->isEnabledTo(&barre),
            pieces.suivant->isEnabledTo(&barre)};
}

constexpr Actifs kAuRepos{true, true, false, true, true};
constexpr Actifs kSansFleches{true, true, false, false, false};
constexpr Actifs kEnCours{false, false, true, false, false};

void MontreRemplacement(BarreRecherche const & barre)
{
    PiecesBarre(barre).Action(u"Remplacer"_s)->trigger();
}

QList<DAlerteEphemere *> Bulles()
{
    QList<DAlerteEphemere *> bulles;
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (auto * const bulle = qobject_cast<DAlerteEphemere *>(fenetre))
            bulles.append(bulle);
    return bulles;
}

// What a bubble says, without its mark-up.
QString DonneTexte(DAlerteEphemere const & bulle)
{
    QString texte;
    for (QLabel const * const etiquette : bulle.findChildren<QLabel *>())
        texte += QTextDocumentFragment::fromHtml(etiquette->text()).toPlainText();
    return texte;
}

} // namespace

class tst_BarreRechercheEtats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void compteur_data();
    void compteur();
    void sansCompteur();
    void etatsDuRemplacement_data();
    void etatsDuRemplacement();
    void champsPendantLeRemplacement();
    void remplacementRetenuSansChamp();
    void hauteur_data();
    void hauteur();
    void hauteurApresChangement_data();
    void hauteurApresChangement();
    void rangeeVisible();
    void rangeesPlacees();
    void placeRefaite();
    void message_data();
    void message();
    void silence();
    void bulleDuParent();
};

void tst_BarreRechercheEtats::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheEtats::compteur_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("total");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("visible");

    int const grand = std::numeric_limits<int>::max();
    QTest::newRow("nothing found") << 0 << 0 << u"0/0"_s << false;
    QTest::newRow("a position in nothing") << 3 << 0 << u"3/0"_s << false;
    QTest::newRow("the only one") << 1 << 1 << u"1/1"_s << true;
    QTest::newRow("found, none current") << 0 << 1 << u"0/1"_s << true;
    QTest::newRow("one of many") << 3 << 10 << u"3/10"_s << true;
    QTest::newRow("behind the last") << 4 << 2 << u"4/2"_s << true;
    QTest::newRow("negative") << -1 << -5 << u"-1/-5"_s << false;
    QTest::newRow("without separators of thousands")
        << grand << grand << u"2147483647/2147483647"_s << true;
}

void tst_BarreRechercheEtats::compteur()
{
    QFETCH(int, position);
    QFETCH(int, total);
    QFETCH(bool, visible);
    BarreRecherche barre(nullptr, true, true, true);
    PiecesBarre const pieces(barre);
    QVERIFY(pieces.compteur->isHidden());
    QCOMPARE(pieces.compteur->text(), u"0/0"_s);
    barre.ActualiseOccurrences(7, 7); // from the other state

    barre.ActualiseOccurrences(position, total);

    QTEST(pieces.compteur->text(), "texte");
    QCOMPARE(pieces.compteur->isHidden(), !visible);
    QCOMPARE(DonneActifs(barre), visible ? kAuRepos : kSansFleches);
}

void tst_BarreRechercheEtats::sansCompteur()
{
    BarreRecherche barre;
    barre.ActualiseOccurrences(0, 0);
    QCOMPARE(DonneActifs(barre), kAuRepos);
    barre.NettoyerRecherche();
    QCOMPARE(DonneActifs(barre), kAuRepos);
    // A count does not bring the arrows back while everything is being replaced.
    barre.MetEnCoursDeRemplacerTout(true);
    barre.ActualiseOccurrences(1, 2);
    QCOMPARE(DonneActifs(barre), kEnCours);
}

void tst_BarreRechercheEtats::etatsDuRemplacement_data()
{
    QTest::addColumn<bool>("compteur");
    QTest::newRow("without counter") << false;
    QTest::newRow("with counter") << true;
}

void tst_BarreRechercheEtats::etatsDuRemplacement()
{
    QFETCH(bool, compteur);
    BarreRecherche barre(nullptr, true, true, compteur);
    QCOMPARE(DonneActifs(barre), compteur ? kSansFleches : kAuRepos);

    barre.MetEnCoursDeRemplacerTout(true);
    QCOMPARE(DonneActifs(barre), kEnCours);
    barre.ActualiseOccurrences(1, 5);
    QCOMPARE(DonneActifs(barre), kEnCours);
    barre.MetEnCoursDeRemplacerTout(true);
    QCOMPARE(DonneActifs(barre), kEnCours);

    barre.ActualiseOccurrences(0, 0);
    barre.MetEnCoursDeRemplacerTout(false);
    // The arrows are back though nothing is left, until the next count.
    QCOMPARE(DonneActifs(barre), kAuRepos);
    barre.ActualiseOccurrences(0, 0);
    QCOMPARE(DonneActifs(barre), compteur ? kSansFleches : kAuRepos);
}

void tst_BarreRechercheEtats::champsPendantLeRemplacement()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    barre.MetEnCoursDeRemplacerTout(true);
    QVERIFY(pieces.recherche->isEnabledTo(&barre));
    QVERIFY(pieces.remplacement->isEnabledTo(&barre));
    QVERIFY(pieces.options->isEnabledTo(&barre));
    QVERIFY(pieces.fermer->isEnabledTo(&barre));
    QTest::mouseClick(pieces.annuler, Qt::LeftButton);
    QCOMPARE(hote.DonneNoms(), QStringList{u"AnnulerRemplacerTout"_s});
}

void tst_BarreRechercheEtats::remplacementRetenuSansChamp()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    pieces.remplacement->setText(u"champ"_s);
    barre.PrendsChaineRemplacement(u"hote"_s);
    QCOMPARE(barre.DonneChaineRemplacement(), u"hote"_s);
    QCOMPARE(pieces.remplacement->text(), u"champ"_s);
    barre.BoutonRemplacer(); // refreshes
    QCOMPARE(barre.DonneChaineRemplacement(), u"champ"_s);
}

void tst_BarreRechercheEtats::hauteur_data()
{
    QTest::addColumn<bool>("montree");
    QTest::newRow("before it is shown") << false;
    QTest::newRow("while it is shown") << true;
}

void tst_BarreRechercheEtats::hauteur()
{
    QFETCH(bool, montree);
    FenetreDeBarre essai;
    if (montree)
        QVERIFY(essai.Montre());
    for (int const attendue : {50, 30, 50}) {
        MontreRemplacement(*essai.barre);
        QCOMPARE(essai.barre->minimumHeight(), attendue);
        QCOMPARE(essai.barre->maximumHeight(), attendue);
        QCOMPARE(essai.barre->height(), attendue);
    }
    QVERIFY(essai.Montre());
    QCOMPARE(essai.barre->height(), 50);
    QCOMPARE(essai.pieces.recherche->height(), 20);
    QCOMPARE(essai.pieces.remplacement->height(), 20);
}

void tst_BarreRechercheEtats::hauteurApresChangement_data()
{
    QTest::addColumn<bool>("montree");
    QTest::addColumn<bool>("style");
    for (bool const montree : {false, true}) {
        QTest::addRow("style, shown %d", montree) << montree << true;
        QTest::addRow("font, shown %d", montree) << montree << false;
    }
}

void tst_BarreRechercheEtats::hauteurApresChangement()
{
    QFETCH(bool, montree);
    QFETCH(bool, style);
    FenetreDeBarre essai;
    if (montree)
        QVERIFY(essai.Montre());
    QScopedPointer<QStyle> const windows(QStyleFactory::create(u"Windows"_s));
    if (style) {
        for (QWidget * const widget : essai.barre->findChildren<QWidget *>())
            widget->setStyle(windows.data());
        essai.barre->setStyle(windows.data());
    } else {
        QFont police = essai.barre->font();
        police.setPointSize(40);
        essai.barre->setFont(police);
    }
    QCOMPARE(essai.barre->height(), 30);
    MontreRemplacement(*essai.barre);
    QVERIFY(essai.Montre());
    QCOMPARE(essai.barre->height(), 50);
    QCOMPARE(essai.pieces.recherche->height(), 20);
    MontreRemplacement(*essai.barre);
    QCOMPARE(essai.barre->height(), 30);
}

void tst_BarreRechercheEtats::rangeeVisible()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QVERIFY(!essai.pieces.remplacement->isVisible());
    QVERIFY(!essai.pieces.cadre->isVisible());
    MontreRemplacement(*essai.barre);
    QVERIFY(essai.pieces.remplacement->isVisible());
    QVERIFY(essai.pieces.tout->isVisible());
    MontreRemplacement(*essai.barre);
    QVERIFY(!essai.pieces.remplacement->isVisible());
    QVERIFY(!essai.pieces.tout->isVisible());
}

void tst_BarreRechercheEtats::rangeesPlacees()
{
    FenetreDeBarre essai;
    MontreRemplacement(*essai.barre);
    QVERIFY(essai.Montre());
    PiecesBarre const & pieces = essai.pieces;
    QRect const champ = pieces.recherche->geometry();
    QRect const remplacement = pieces.remplacement->geometry();
    // Tight, but one below the other, inside the band and wide alike.
    QVERIFY(champ.bottom() < remplacement.top());
    QVERIFY(essai.barre->rect().contains(remplacement));
    QVERIFY(essai.barre->rect().contains(pieces.cadre->geometry()));
    QCOMPARE(champ.left(), remplacement.left());
    QCOMPARE(champ.width(), remplacement.width());
    for (QToolButton const * const bouton : {pieces.remplacer, pieces.tout, pieces.annuler})
        QVERIFY(bouton->height() >= 16);
    for (QToolButton const * const bouton : {pieces.precedent, pieces.suivant})
        QVERIFY(bouton->height() >= 16);
}

void tst_BarreRechercheEtats::placeRefaite()
{
    QWidget fenetre;
    auto * const colonne = new QVBoxLayout(&fenetre);
    auto * const barre = new BarreRecherche(nullptr, true);
    auto * const document = new QWidget;
    document->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    colonne->addWidget(barre);
    colonne->addWidget(document);
    fenetre.resize(600, 300);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    int const avant = document->height();
    MontreRemplacement(*barre);
    QTRY_COMPARE(document->height(), avant - 20);
    MontreRemplacement(*barre);
    QTRY_COMPARE(document->height(), avant);
}

void tst_BarreRechercheEtats::message_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<bool>("pourListe");
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("texte");

    QString const autour[] = {u"Texte introuvable."_s, u"Texte introuvable dans la liste."_s};
    QString const fin[] = {u"Texte introuvable; fin du texte atteinte."_s,
                           u"Texte introuvable; fin de la liste atteinte."_s};
    QString const debut[] = {u"Texte introuvable; début du texte atteint."_s,
                             u"Texte introuvable; début de la liste atteint."_s};
    for (bool const liste : {false, true}) {
        for (int const options : {0x004, 0x024, 0x014, 0x034, 0x277})
            QTest::addRow("around, 0x%x, list %d", options, liste)
                << options << liste << int(kLangueFrancais) << autour[liste];
        for (int const options : {0x020, 0x030, 0x263})
            QTest::addRow("end, 0x%x, list %d", options, liste)
                << options << liste << int(kLangueFrancais) << fin[liste];
        for (int const options : {0x000, 0x010, 0x343})
            QTest::addRow("beginning, 0x%x, list %d", options, liste)
                << options << liste << int(kLangueFrancais) << debut[liste];
    }
    struct
    {
        int options;
        bool liste;
        QString texte;
    } const anglais[] = {
        {0x04, false, u"Text not found."_s},
        {0x04, true, u"Text not found in the list."_s},
        {0x20, false, u"Text not found; end of the text reached."_s},
        {0x20, true, u"Text not found; end of the list reached."_s},
        {0x10, false, u"Text not found; beginning of the text reached."_s},
        {0x10, true, u"Text not found; beginning of the list reached."_s},
    };
    for (auto const & [options, liste, texte] : anglais)
        for (eLangue const langue : {kLangueAnglais, kLangueAnglaisCanada})
            QTest::addRow("language %d, 0x%x, list %d", int(langue), options, liste)
                << options << liste << int(langue) << texte;
}

void tst_BarreRechercheEtats::message()
{
    QFETCH(int, options);
    QFETCH(bool, pourListe);
    QFETCH(int, langue);
    QFETCH(QString, texte);
    Traductions::MetsLanguePourApplicationCourante(eLangue(langue));
    auto const retour = qScopeGuard([] {
        qDeleteAll(Bulles());
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    });
    BarreRecherche barre;
    barre.PrendsOptions(short(options));

    static_cast<BarreRecherche const &>(barre).AfficheMessageTexteIntrouvable(pourListe);

    QCOMPARE(Bulles().size(), 1);
    QCOMPARE(DonneTexte(*Bulles().constFirst()), texte);
    QCOMPARE(barre.DonneOptions(), short(options));
}

void tst_BarreRechercheEtats::silence()
{
    ExecutionSilencieuse::Demarre();
    ExecutionSilencieuse::OublieDialoguesJournalises();
    auto const retour = qScopeGuard([] { ExecutionSilencieuse::Arrete(); });
    BarreRecherche barre;
    barre.AfficheMessageTexteIntrouvable(false);
    QVERIFY(Bulles().isEmpty());
    // A bubble makes nobody wait, so that a script need not hear of it.
    QVERIFY(ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty());
}

void tst_BarreRechercheEtats::bulleDuParent()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    essai.barre->ModifieSensRecherche(CstRecherche::kVersLeHaut);
    essai.barre->AfficheMessageTexteIntrouvable(false);
    QCOMPARE(Bulles().size(), 1);
    DAlerteEphemere * const bulle = Bulles().constFirst();
    QCOMPARE(bulle->parentWidget(), &essai.fenetre);
    // The refresh has set the bit which hides that the beginning was reached.
    QCOMPARE(DonneTexte(*bulle), u"Texte introuvable."_s);
    delete bulle;
}

QTEST_MAIN(tst_BarreRechercheEtats)
#include "tst_BarreRechercheEtats.moc"
