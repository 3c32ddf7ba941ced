// tests/search/tst_BarreRechercheEtats.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include <QtTest>

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

QTEST_MAIN(tst_BarreRechercheEtats)
#include "tst_BarreRechercheEtats.moc"
