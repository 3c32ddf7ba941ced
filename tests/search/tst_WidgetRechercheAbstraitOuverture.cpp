// tests/search/tst_WidgetRechercheAbstraitOuverture.cpp
#include "search/FrontalEspion.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using CstRecherche::eTypeRecherche;

class tst_WidgetRechercheAbstraitOuverture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void ouverture_data();
    void ouverture();
    void ouvertureSansHote_data();
    void ouvertureSansHote();
    void copieGardeLHote();
    void affectationGardeLHote();
};

void tst_WidgetRechercheAbstraitOuverture::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetRechercheAbstraitOuverture::ouverture_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<QStringList>("appels");

    QStringList const nettoie = {u"Nettoyer"_s, u"ActualiseOccurrences(0, 0)"_s};
    QStringList const montre = {u"AfficheToi"_s, u"ModifieSensRecherche(0)"_s, u"Chercher"_s};
    QTest::newRow("new search") << 0 << u"mot"_s
                                << nettoie +
                                       QStringList{u"MetsChaineAChercher(mot, 0)"_s,
                                                   u"PrendsFocus"_s} +
                                       montre;
    QTest::newRow("new search, text with white space around it")
        << 0 << u" \t deux mots\n"_s
        << nettoie + QStringList{u"MetsChaineAChercher(deux mots, 0)"_s, u"PrendsFocus"_s} + montre;
    QTest::newRow("new search, blanks only")
        << 0 << u"   "_s << nettoie + QStringList{u"PrendsFocus"_s} + montre;
    QTest::newRow("new search, empty text")
        << 0 << QString() << nettoie + QStringList{u"PrendsFocus"_s} + montre;
    QTest::newRow("forward ignores the text")
        << 1 << u"x"_s << QStringList{u"AfficheToi"_s, u"ModifieSensRecherche(1)"_s, u"Chercher"_s};
    QTest::newRow("backward ignores the text")
        << 2 << u"x"_s << QStringList{u"AfficheToi"_s, u"ModifieSensRecherche(2)"_s, u"Chercher"_s};
}

void tst_WidgetRechercheAbstraitOuverture::ouverture()
{
    QFETCH(int, type);
    QFETCH(QString, chaine);
    FrontalEspion frontal;
    HoteDuFrontal const hote(&frontal);
    frontal.AfficheToi(eTypeRecherche(type), UniChaine(chaine));
    QTEST(frontal.journal, "appels");
    QCOMPARE(int(hote.espion.appels.constLast().sens), type);
}

void tst_WidgetRechercheAbstraitOuverture::ouvertureSansHote_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("appels");
    QTest::newRow("new search") << 0
                                << QStringList{u"ActualiseOccurrences(0, 0)"_s,
                                               u"MetsChaineAChercher(mot, 0)"_s, u"PrendsFocus"_s,
                                               u"AfficheToi"_s, u"ModifieSensRecherche(0)"_s};
    QTest::newRow("forward") << 1 << QStringList{u"AfficheToi"_s, u"ModifieSensRecherche(1)"_s};
    QTest::newRow("backward") << 2 << QStringList{u"AfficheToi"_s, u"ModifieSensRecherche(2)"_s};
}

void tst_WidgetRechercheAbstraitOuverture::ouvertureSansHote()
{
    QFETCH(int, type);
    FrontalEspion frontal;
    frontal.AfficheToi(eTypeRecherche(type), UniChaine("mot"_L1));
    QTEST(frontal.journal, "appels");
}

// All six fields are those that `Prepare` left, the host included.
static void VerifieCopie(FrontalEspion & copie, HoteEspion const & hote)
{
    QVERIFY(copie.DonnePermetRemplacer());
    QCOMPARE(copie.DonneChaineRecherche(), u"ancienne"_s);
    QCOMPARE(copie.DonneChaineRemplacement(), u"ancien remplacement"_s);
    QCOMPARE(copie.DonneOptions(), short(0x40));
    QCOMPARE(copie.DonneSensRecherche(), CstRecherche::kVersLeHaut);
    copie.BoutonAnnulerRemplacerTout();
    QCOMPARE(hote.DonneNoms(), QStringList{u"AnnulerRemplacerTout"_s});
}

void tst_WidgetRechercheAbstraitOuverture::copieGardeLHote()
{
    FrontalEspion frontal(true);
    HoteEspion const hote(&frontal);
    Prepare(frontal, CstRecherche::kVersLeHaut);

    FrontalEspion copie(frontal);

    VerifieCopie(copie, hote);
}

void tst_WidgetRechercheAbstraitOuverture::affectationGardeLHote()
{
    FrontalEspion frontal(true);
    HoteEspion const hote(&frontal);
    Prepare(frontal, CstRecherche::kVersLeHaut);
    FrontalEspion autre;

    autre = frontal;

    VerifieCopie(autre, hote);
}

QTEST_MAIN(tst_WidgetRechercheAbstraitOuverture)
#include "tst_WidgetRechercheAbstraitOuverture.moc"
