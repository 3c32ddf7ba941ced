// tests/search/tst_WidgetRechercheAbstrait.cpp
#include "search/FrontalEspion.h"

#include <QtTest>

#include <type_traits>

using namespace Qt::StringLiterals;
using CstRecherche::eTypeRecherche;

namespace {

enum class Geste
{
    Chercher,
    Suivant,
    Precedent,
    Texte,
    Remplacer,
    RemplacerTout,
    Annuler,
    Nettoyer,
    Effectuer,
    EffectuerBlancs,
    EffectuerVide
};

void Fais(FrontalEspion & frontal, Geste geste)
{
    switch (geste) {
    case Geste::Chercher:
        return frontal.BoutonChercher();
    case Geste::Suivant:
        return frontal.ChercherSuivant();
    case Geste::Precedent:
        return frontal.ChercherPrecedent();
    case Geste::Texte:
        return frontal.TexteDeRechercheChanger();
    case Geste::Remplacer:
        return frontal.BoutonRemplacer();
    case Geste::RemplacerTout:
        return frontal.BoutonRemplacerTout();
    case Geste::Annuler:
        return frontal.BoutonAnnulerRemplacerTout();
    case Geste::Nettoyer:
        return frontal.NettoyerRecherche();
    case Geste::Effectuer:
        return frontal.EffectuerRecherche(UniChaine("mot"_L1));
    case Geste::EffectuerBlancs:
        return frontal.EffectuerRecherche(UniChaine("   "_L1));
    case Geste::EffectuerVide:
        return frontal.EffectuerRecherche(kUniChaineNulle);
    }
}

} // namespace

class tst_WidgetRechercheAbstrait : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void etatDeDepart();
    void valeursFigees();
    void gestes_data();
    void gestes();
    void gestesSansHote_data();
    void gestesSansHote();
    void remplacementGardeLeSens_data();
    void remplacementGardeLeSens();
    void remplacerToutGardeLesAutresOptions();
    void hoteRetiray();
    void annulationParDefautNeFaitRien();
    void hoteSansAnnulation();
};

void tst_WidgetRechercheAbstrait::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetRechercheAbstrait::etatDeDepart()
{
    FrontalEspion const frontal;
    QVERIFY(frontal.DonneChaineRecherche().isEmpty());
    QVERIFY(frontal.DonneChaineRemplacement().isEmpty());
    QCOMPARE(frontal.DonneOptions(), short(0));
    QCOMPARE(frontal.DonneSensRecherche(), CstRecherche::kNouvelleRecherche);
    QVERIFY(!frontal.DonnePermetRemplacer());
    QVERIFY(FrontalEspion(true).DonnePermetRemplacer());
    QVERIFY(!FrontalEspion(false).DonnePermetRemplacer());
}

void tst_WidgetRechercheAbstrait::valeursFigees()
{
    // Hosts and stored settings hold these numbers.
    QCOMPARE(sizeof(eTypeRecherche), sizeof(qint32));
    QCOMPARE(int(CstRecherche::kNouvelleRecherche), 0);
    QCOMPARE(int(CstRecherche::kVersLeBas), 1);
    QCOMPARE(int(CstRecherche::kVersLeHaut), 2);
    QCOMPARE(int(CstRecherche::kMotEntier), 0x001);
    QCOMPARE(int(CstRecherche::kRespecterCasse), 0x002);
    QCOMPARE(int(CstRecherche::kBoucler), 0x004);
    QCOMPARE(int(CstRecherche::kHaut), 0x010);
    QCOMPARE(int(CstRecherche::kBas), 0x020);
    QCOMPARE(int(CstRecherche::kCommencePar), 0x040);
    QCOMPARE(int(CstRecherche::kContient), 0x100);
    QCOMPARE(int(CstRecherche::kTexteEdite), 0x200);
    QVERIFY(std::has_virtual_destructor_v<WidgetRechercheAbstrait>);
    QVERIFY(!std::has_virtual_destructor_v<UtilisateurWidgetRecherche>);
    QCOMPARE(sizeof(UtilisateurWidgetRecherche), sizeof(void *)); // no data
}

void tst_WidgetRechercheAbstrait::gestes_data()
{
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<QStringList>("appels");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("sens");

    QString const lue = QString::fromLatin1(kChaineLue);
    QStringList const avance = {u"ActualiserEtatPanneau(1)"_s, u"Chercher"_s};
    QStringList const recule = {u"ActualiserEtatPanneau(2)"_s, u"Chercher"_s};
    QTest::newRow("search") << Geste::Chercher << avance << lue << 0x12 << 1;
    QTest::newRow("next") << Geste::Suivant << avance << lue << 0x12 << 1;
    QTest::newRow("previous") << Geste::Precedent << recule << lue << 0x12 << 2;
    QTest::newRow("typed text adds its bit") << Geste::Texte << avance << lue << 0x212 << 1;
    QTest::newRow("replace keeps the direction")
        << Geste::Remplacer << QStringList{u"ActualiserEtatPanneau(0)"_s, u"Remplacer"_s} << lue
        << 0x12 << 0;
    QTest::newRow("replace all adds both bits")
        << Geste::RemplacerTout << QStringList{u"ActualiserEtatPanneau(0)"_s, u"RemplacerTout"_s}
        << lue << 0x36 << 0;
    QTest::newRow("cancel refreshes nothing")
        << Geste::Annuler << QStringList{u"AnnulerRemplacerTout"_s} << u"ancienne"_s << 0x40 << 0;
    QTest::newRow("clear") << Geste::Nettoyer
                           << QStringList{u"Nettoyer"_s, u"ActualiseOccurrences(0, 0)"_s}
                           << u"ancienne"_s << 0x40 << 0;
    QTest::newRow("host's text goes backward without a refresh")
        << Geste::Effectuer << QStringList{u"MetsChaineAChercher(mot, 2)"_s, u"Chercher"_s}
        << u"ancienne"_s << 0x40 << 2;
    QTest::newRow("host's blanks are searched for")
        << Geste::EffectuerBlancs << QStringList{u"MetsChaineAChercher(   , 2)"_s, u"Chercher"_s}
        << u"ancienne"_s << 0x40 << 2;
    QTest::newRow("empty text does nothing")
        << Geste::EffectuerVide << QStringList() << u"ancienne"_s << 0x40 << 0;
}

void tst_WidgetRechercheAbstrait::gestes()
{
    QFETCH(Geste, geste);
    QFETCH(QStringList, appels);
    FrontalEspion frontal;
    HoteDuFrontal const hote(&frontal);
    Prepare(frontal, CstRecherche::kNouvelleRecherche);

    Fais(frontal, geste);

    QCOMPARE(frontal.journal, appels);
    QTEST(frontal.DonneChaineRecherche(), "chaine");
    QTEST(int(frontal.DonneOptions()), "options");
    QTEST(int(frontal.DonneSensRecherche()), "sens");
    if (geste == Geste::Nettoyer || hote.espion.appels.isEmpty())
        return;
    // The host reads the same state during its call.
    AppelRecherche const & appel = hote.espion.appels.constFirst();
    QTEST(appel.chaine, "chaine");
    QTEST(int(appel.options), "options");
    QTEST(int(appel.sens), "sens");
}

void tst_WidgetRechercheAbstrait::gestesSansHote_data()
{
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<QStringList>("appels");
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("sens");

    QStringList const avance = {u"ActualiserEtatPanneau(1)"_s};
    QStringList const recule = {u"ActualiserEtatPanneau(2)"_s};
    QStringList const reste = {u"ActualiserEtatPanneau(0)"_s};
    QTest::newRow("search") << Geste::Chercher << avance << 0x12 << 1;
    QTest::newRow("next") << Geste::Suivant << avance << 0x12 << 1;
    QTest::newRow("previous") << Geste::Precedent << recule << 0x12 << 2;
    QTest::newRow("typed text") << Geste::Texte << avance << 0x212 << 1;
    QTest::newRow("replace") << Geste::Remplacer << reste << 0x12 << 0;
    QTest::newRow("replace all") << Geste::RemplacerTout << reste << 0x36 << 0;
    QTest::newRow("cancel") << Geste::Annuler << QStringList() << 0x40 << 0;
    QTest::newRow("clear") << Geste::Nettoyer << QStringList{u"ActualiseOccurrences(0, 0)"_s}
                           << 0x40 << 0;
    QTest::newRow("host's text") << Geste::Effectuer
                                 << QStringList{u"MetsChaineAChercher(mot, 2)"_s} << 0x40 << 2;
    QTest::newRow("host's blanks")
        << Geste::EffectuerBlancs << QStringList{u"MetsChaineAChercher(   , 2)"_s} << 0x40 << 2;
    QTest::newRow("empty text") << Geste::EffectuerVide << QStringList() << 0x40 << 0;
}

void tst_WidgetRechercheAbstrait::gestesSansHote()
{
    QFETCH(Geste, geste);
    FrontalEspion frontal;
    Prepare(frontal, CstRecherche::kNouvelleRecherche);

    Fais(frontal, geste);

    QTEST(frontal.journal, "appels");
    QTEST(int(frontal.DonneOptions()), "options");
    QTEST(int(frontal.DonneSensRecherche()), "sens");
}

void tst_WidgetRechercheAbstrait::remplacementGardeLeSens_data()
{
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<int>("sens");
    for (int const sens : {0, 1, 2}) {
        QTest::addRow("replace, direction %d", sens) << Geste::Remplacer << sens;
        QTest::addRow("replace all, direction %d", sens) << Geste::RemplacerTout << sens;
        QTest::addRow("cancel, direction %d", sens) << Geste::Annuler << sens;
        QTest::addRow("empty text, direction %d", sens) << Geste::EffectuerVide << sens;
    }
}

void tst_WidgetRechercheAbstrait::remplacementGardeLeSens()
{
    QFETCH(Geste, geste);
    QFETCH(int, sens);
    FrontalEspion frontal;
    Prepare(frontal, eTypeRecherche(sens));
    Fais(frontal, geste);
    QCOMPARE(int(frontal.DonneSensRecherche()), sens);
}

void tst_WidgetRechercheAbstrait::remplacerToutGardeLesAutresOptions()
{
    FrontalEspion frontal;
    HoteEspion const hote(&frontal);
    frontal.BoutonRemplacerTout();
    // 0x12 was read from the controls: upward and downward at once, which a host has to accept.
    QCOMPARE(hote.appels.constFirst().options, short(kOptionsLues | 0x24));
    QCOMPARE(hote.appels.constFirst().remplacement, QString::fromLatin1(kRemplacementLu));
}

void tst_WidgetRechercheAbstrait::hoteRetiray()
{
    FrontalEspion frontal;
    HoteEspion const hote(&frontal);
    frontal.BoutonChercher();
    frontal.MetsCallback(nullptr);
    frontal.ChercherPrecedent();
    QCOMPARE(hote.appels.size(), 1);
    QCOMPARE(frontal.journal,
             QStringList({u"ActualiserEtatPanneau(1)"_s, u"ActualiserEtatPanneau(2)"_s}));
}

void tst_WidgetRechercheAbstrait::annulationParDefautNeFaitRien()
{
    FrontalEspion frontal;
    HoteEspion const hote(&frontal);
    frontal.PriseBoutonAnnuler();
    frontal.WidgetRechercheAbstrait::MetEnCoursDeRemplacerTout(true);
    frontal.WidgetRechercheAbstrait::ActualiseOccurrences(1, 2);
    QVERIFY(hote.appels.isEmpty());
    QVERIFY(frontal.journal.isEmpty());
}

void tst_WidgetRechercheAbstrait::hoteSansAnnulation()
{
    class HoteMinimal final : public UtilisateurWidgetRecherche
    {
    public:
        void CallbackNettoyerRecherche() override { ++nombre; }
        void CallbackChercher() override { ++nombre; }
        void CallbackRemplacer() override { ++nombre; }
        void CallbackRemplacerTout() override { ++nombre; }

        int nombre = 0;
    };
    FrontalEspion frontal;
    HoteMinimal hote;
    frontal.MetsCallback(&hote);
    frontal.BoutonAnnulerRemplacerTout();
    QCOMPARE(hote.nombre, 0);
    frontal.BoutonRemplacerTout();
    QCOMPARE(hote.nombre, 1);
}

QTEST_MAIN(tst_WidgetRechercheAbstrait)
#include "tst_WidgetRechercheAbstrait.moc"
