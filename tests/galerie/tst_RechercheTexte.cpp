// tests/galerie/tst_RechercheTexte.cpp
#include "RechercheTexte.h"

#include "search/CstRecherche.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_RechercheTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modes_data();
    void modes();
    void seulementLesOptions();
    void rienDeNouveau();
    void autreDocument();
    void oublie();
};

void tst_RechercheTexte::modes_data()
{
    using namespace CstRecherche;
    QTest::addColumn<int>("options");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<QString>("debuts");
    QTest::newRow("contains") << 0 << u"été"_s << u"0 4 10 14"_s;
    QTest::newRow("contains, case") << int(kRespecterCasse) << u"été"_s << u"4 14"_s;
    QTest::newRow("begins with") << int(kCommencePar) << u"été"_s << u"0 4 14"_s;
    QTest::newRow("begins with, case")
        << int(kCommencePar | kRespecterCasse) << u"été"_s << u"4 14"_s;
    QTest::newRow("whole word") << int(kMotEntier) << u"été"_s << u"0 14"_s;
    QTest::newRow("whole word, case") << int(kMotEntier | kRespecterCasse) << u"été"_s << u"14"_s;
    QTest::newRow("whole word before begins with")
        << int(kMotEntier | kCommencePar) << u"été"_s << u"0 14"_s;
    QTest::newRow("other options do not count")
        << int(kBoucler | kHaut | kTexteEdite) << u"été"_s << u"0 4 10 14"_s;
    QTest::newRow("not an expression") << 0 << u".t."_s << QString();
    QTest::newRow("not an expression, whole word") << int(kMotEntier) << u".t."_s << QString();
    QTest::newRow("nothing") << 0 << QString() << QString();
    QTest::newRow("nothing, whole word") << int(kMotEntier) << QString() << QString();
    QTest::newRow("no-break finds plain blank") << 0 << u"été\u00A0étés"_s << u"0"_s;
}

void tst_RechercheTexte::modes()
{
    QFETCH(int, options);
    QFETCH(QString, chaine);
    QTextDocument document(u"Été étés\u202FaÉté été"_s);
    RechercheTexte recherche;
    recherche.Demande(chaine, static_cast<short>(options));
    QVERIFY(recherche.Cherche(document));
    QCOMPARE(recherche.EstVide(), chaine.isEmpty());
    OccurrencesTexte const & occurrences = recherche.PreteOccurrences();
    QStringList debuts;
    for (int numero = 1; numero <= occurrences.DonneNombre(); ++numero)
        debuts += QString::number(occurrences.DonnePlage(numero).debut);
    QTEST(debuts.join(u' '), "debuts");
}

void tst_RechercheTexte::seulementLesOptions()
{
    RechercheTexte recherche;
    QVERIFY(!recherche.Demande(u"ab"_s, 0));
    QVERIFY(!recherche.Demande(u"ab"_s, 0));
    QVERIFY(recherche.Demande(u"ab"_s, CstRecherche::kMotEntier));
    QVERIFY(!recherche.Demande(u"ab"_s, CstRecherche::kMotEntier | CstRecherche::kBoucler));
    QVERIFY(!recherche.Demande(u"abc"_s, CstRecherche::kRespecterCasse));
}

void tst_RechercheTexte::rienDeNouveau()
{
    QTextDocument document(u"ab ab"_s);
    RechercheTexte recherche;
    recherche.Demande(u"ab"_s, 0);
    QVERIFY(recherche.Cherche(document));
    QVERIFY(!recherche.Cherche(document));
    recherche.Demande(u"ab"_s, CstRecherche::kBoucler);
    QVERIFY(!recherche.Cherche(document));
    recherche.Demande(u"ab"_s, CstRecherche::kCommencePar);
    QVERIFY(recherche.Cherche(document));
    QTextCursor(&document).insertText(u"ab "_s);
    QVERIFY(recherche.Cherche(document));
    QCOMPARE(recherche.PreteOccurrences().DonneNombre(), 3);
}

// Also one that stands at the same revision.
void tst_RechercheTexte::autreDocument()
{
    QTextDocument document(u"ab ab"_s);
    QTextDocument autre(u"ab"_s);
    QCOMPARE(autre.revision(), document.revision());
    RechercheTexte recherche;
    recherche.Demande(u"ab"_s, 0);
    QVERIFY(recherche.Cherche(document));
    QVERIFY(recherche.Cherche(autre));
    QCOMPARE(recherche.PreteOccurrences().DonneNombre(), 1);
}

void tst_RechercheTexte::oublie()
{
    QTextDocument document(u"ab"_s);
    RechercheTexte recherche;
    recherche.Demande(u"ab"_s, CstRecherche::kMotEntier);
    recherche.Cherche(document);
    recherche.Oublie();
    QVERIFY(recherche.EstVide());
    QCOMPARE(recherche.PreteOccurrences().DonneNombre(), 0);
    QVERIFY(recherche.Cherche(document));
    QCOMPARE(recherche.PreteOccurrences().DonneNombre(), 0);
    QVERIFY(!recherche.Demande(u"ab"_s, CstRecherche::kMotEntier)); // the text differs, too
}

QTEST_MAIN(tst_RechercheTexte)
#include "tst_RechercheTexte.moc"
