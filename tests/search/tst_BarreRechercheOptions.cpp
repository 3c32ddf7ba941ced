// tests/search/tst_BarreRechercheOptions.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using CstRecherche::eTypeRecherche;

namespace {

enum class Mode
{
    Contient,
    CommencePar,
    MotEntier,
    Aucun
};

void Choisis(PiecesBarre const & pieces, Mode mode)
{
    switch (mode) {
    case Mode::Contient:
        return pieces.Action(u"contient"_s)->setChecked(true);
    case Mode::CommencePar:
        return pieces.Action(u"commence par"_s)->setChecked(true);
    case Mode::MotEntier:
        return pieces.Action(u"Mot entier"_s)->setChecked(true);
    case Mode::Aucun:
        QAction * const contient = pieces.Action(u"contient"_s);
        contient->actionGroup()->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
        return contient->setChecked(false);
    }
}

} // namespace

class tst_BarreRechercheOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void optionsActualisees_data();
    void optionsActualisees();
    void optionsSansModes();
    void prisesActualisent_data();
    void prisesActualisent();
    void casseDansLeMenu();
    void rechercheDeLHote();
    void ouverture_data();
    void ouverture();
};

void tst_BarreRechercheOptions::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheOptions::optionsActualisees_data()
{
    QTest::addColumn<int>("sens");
    QTest::addColumn<bool>("casse");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<int>("options");

    struct
    {
        char const * nom;
        Mode mode;
        int bits;
    } const modes[] = {{"contains", Mode::Contient, 0},
                       {"begins with", Mode::CommencePar, 0x40},
                       {"whole word", Mode::MotEntier, 0x01},
                       {"no mode", Mode::Aucun, 0}};
    struct
    {
        int sens;
        int bits;
    } const directions[] = {{-1, 0x24}, {0, 0x24}, {1, 0x24}, {2, 0x14}, {3, 0x14}};
    for (auto const & [sens, bitsDuSens] : directions)
        for (bool const casse : {false, true})
            for (auto const & [nom, mode, bits] : modes)
                QTest::addRow("direction %d, case %d, %s", sens, int(casse), nom)
                    << sens << casse << mode << (bitsDuSens | bits | (casse ? 0x02 : 0));
}

void tst_BarreRechercheOptions::optionsActualisees()
{
    QFETCH(int, sens);
    QFETCH(bool, casse);
    QFETCH(Mode, mode);
    BarreRecherche barre(nullptr, true, true, true, true);
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    pieces.recherche->setText(u"cherche"_s);
    pieces.remplacement->setText(u"remplace"_s);
    pieces.Action(u"respecter la casse"_s)->setChecked(casse);
    Choisis(pieces, mode);
    barre.PrendsOptions(0x7FFF); // nothing of it stays

    barre.ModifieSensRecherche(eTypeRecherche(sens));

    QTEST(int(barre.DonneOptions()), "options");
    QCOMPARE(int(barre.DonneSensRecherche()), sens);
    QCOMPARE(barre.DonneChaineRecherche(), u"cherche"_s);
    QCOMPARE(barre.DonneChaineRemplacement(), u"remplace"_s);
    QVERIFY(hote.appels.isEmpty()); // a refresh asks nothing of the host
}

void tst_BarreRechercheOptions::optionsSansModes()
{
    BarreRecherche barre(nullptr, false, false, false, false);
    barre.ModifieSensRecherche(CstRecherche::kNouvelleRecherche);
    QCOMPARE(barre.DonneOptions(), short(0x24));

    // Both modes on, as no group allows: "begins with" is looked at first and alone.
    BarreRecherche barreSansGroupe(nullptr, false, true, false, true);
    PiecesBarre const pieces(barreSansGroupe);
    Choisis(pieces, Mode::Aucun);
    pieces.Action(u"commence par"_s)->setChecked(true);
    pieces.Action(u"Mot entier"_s)->setChecked(true);
    barreSansGroupe.ModifieSensRecherche(CstRecherche::kVersLeBas);
    QCOMPARE(barreSansGroupe.DonneOptions(), short(0x64));
}

void tst_BarreRechercheOptions::prisesActualisent_data()
{
    QTest::addColumn<QByteArray>("prise");
    QTest::newRow("protected") << QByteArray("PriseActualiserEtatPanneau");
    QTest::newRow("private") << QByteArray("PriseActualiseEtatPanneau");
}

void tst_BarreRechercheOptions::prisesActualisent()
{
    QFETCH(QByteArray, prise);
    BarreRecherche barre;
    HoteEspion const hote(&barre);
    PiecesBarre(barre).recherche->setText(u"mot"_s);
    QVERIFY(barre.DonneChaineRecherche().isEmpty());
    QVERIFY(QMetaObject::invokeMethod(&barre, prise.constData(), Qt::DirectConnection));
    QCOMPARE(barre.DonneChaineRecherche(), u"mot"_s);
    QVERIFY(hote.appels.isEmpty());
}

void tst_BarreRechercheOptions::casseDansLeMenu()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    pieces.Action(u"respecter la casse"_s)->trigger();
    pieces.Action(u"respecter la casse"_s)->trigger();
    QCOMPARE(hote.appels.size(), 2);
    QCOMPARE(hote.appels.at(0).options, short(0x26));
    QCOMPARE(hote.appels.at(1).options, short(0x24));
}

void tst_BarreRechercheOptions::rechercheDeLHote()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    barre.PrendsOptions(0x40);

    barre.EffectuerRecherche(kUniChaineNulle);
    QVERIFY(hote.appels.isEmpty());
    barre.EffectuerRecherche(UniChaine("mot"_L1));

    QCOMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
    QCOMPARE(hote.appels.constFirst().chaine, u"mot"_s);
    QCOMPARE(hote.appels.constFirst().options, short(0x40)); // no refresh
    QCOMPARE(hote.appels.constFirst().sens, CstRecherche::kVersLeHaut);
    QCOMPARE(pieces.recherche->text(), u"mot"_s);
}

void tst_BarreRechercheOptions::ouverture_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<QStringList>("appels");
    QTest::addColumn<QString>("champ");
    QTest::addColumn<int>("options");

    QStringList const nouvelle = {u"Nettoyer"_s, u"Chercher"_s};
    QStringList const suite = {u"Chercher"_s};
    QTest::newRow("new search") << 0 << u" mot "_s << nouvelle << u"mot"_s << 0x24;
    QTest::newRow("new search, blanks") << 0 << u"   "_s << nouvelle << u"avant"_s << 0x24;
    QTest::newRow("new search, empty") << 0 << QString() << nouvelle << u"avant"_s << 0x24;
    QTest::newRow("forward") << 1 << u"x"_s << suite << u"avant"_s << 0x24;
    QTest::newRow("backward") << 2 << u"x"_s << suite << u"avant"_s << 0x14;
}

void tst_BarreRechercheOptions::ouverture()
{
    QFETCH(int, type);
    QFETCH(QString, chaine);
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    essai.pieces.recherche->setText(u"avant"_s);
    essai.barre->ActualiseOccurrences(2, 5);
    essai.barre->hide();
    HoteEspion const hote(essai.barre);

    essai.barre->AfficheToi(eTypeRecherche(type), UniChaine(chaine));

    QTEST(hote.DonneNoms(), "appels");
    QTEST(essai.pieces.recherche->text(), "champ");
    QTEST(hote.appels.constLast().chaine, "champ");
    QTEST(int(hote.appels.constLast().options), "options");
    QCOMPARE(int(hote.appels.constLast().sens), type);
    QVERIFY(essai.barre->isVisible());
    // A new search forgets the count as well.
    QCOMPARE(essai.pieces.compteur->text(), type == 0 ? u"0/0"_s : u"2/5"_s);
    QCOMPARE(essai.pieces.suivant->isEnabled(), type != 0);
}

QTEST_MAIN(tst_BarreRechercheOptions)
#include "tst_BarreRechercheOptions.moc"
