// tests/search/tst_BarreRechercheGestes.cpp
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

// What the user does to the bar.
using Geste = std::function<void(PiecesBarre const &)>;

Geste Clic(QToolButton * PiecesBarre::*bouton)
{
    return
        [bouton](PiecesBarre const & pieces) { QTest::mouseClick(pieces.*bouton, Qt::LeftButton); };
}

Geste Touche(QLineEdit * PiecesBarre::*champ, Qt::Key touche)
{
    return [=](PiecesBarre const & pieces) { QTest::keyClick(pieces.*champ, touche); };
}

Geste Choix(QString const & texte)
{
    return [texte](PiecesBarre const & pieces) { pieces.Action(texte)->trigger(); };
}

} // namespace

Q_DECLARE_METATYPE(Geste)

class tst_BarreRechercheGestes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void gestes_data();
    void gestes();
    void gesteSansHote();
    void chaqueFrappe();
    void effacement();
    void texteParProgramme();
    void remplacementTapay();
    void choixDansLeMenu();
    void casseDansLeMenu();
    void optionsActualisees_data();
    void optionsActualisees();
    void optionsSansModes();
    void prisesActualisent_data();
    void prisesActualisent();
    void suivantRedefini();
    void rechercheDeLHote();
    void ouverture_data();
    void ouverture();
    void suppressionPendantLeChoix();
};

void tst_BarreRechercheGestes::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheGestes::gestes_data()
{
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<QStringList>("appels");
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("sens");

    QStringList const cherche = {u"Chercher"_s};
    QStringList const remplace = {u"Remplacer"_s};
    // The direction before is backward, 0x14: what keeps it is seen.
    QTest::newRow("next") << Clic(&PiecesBarre::suivant) << cherche << 0x24 << 1;
    QTest::newRow("previous") << Clic(&PiecesBarre::precedent) << cherche << 0x14 << 2;
    QTest::newRow("replace") << Clic(&PiecesBarre::remplacer) << remplace << 0x14 << 2;
    QTest::newRow("replace all") << Clic(&PiecesBarre::tout) << QStringList{u"RemplacerTout"_s}
                                 << 0x34 << 2;
    QTest::newRow("cancel, while nothing runs")
        << Clic(&PiecesBarre::annuler) << QStringList() << 0x14 << 2;
    QTest::newRow("Return in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_Return) << cherche << 0x24 << 1;
    QTest::newRow("Enter in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_Enter) << cherche << 0x24 << 1;
    QTest::newRow("Return in the replace field")
        << Touche(&PiecesBarre::remplacement, Qt::Key_Return) << remplace << 0x14 << 2;
    QTest::newRow("letter in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_A) << cherche << 0x224 << 1;
    QTest::newRow("letter in the replace field")
        << Touche(&PiecesBarre::remplacement, Qt::Key_A) << QStringList() << 0x14 << 2;
    QTest::newRow("arrow key in the search field")
        << Touche(&PiecesBarre::recherche, Qt::Key_Left) << QStringList() << 0x14 << 2;
    QTest::newRow("mode contains, chosen again") << Choix(u"contient"_s) << cherche << 0x24 << 1;
    QTest::newRow("mode begins with") << Choix(u"commence par"_s) << cherche << 0x64 << 1;
    QTest::newRow("mode whole word") << Choix(u"Mot entier"_s) << cherche << 0x25 << 1;
    QTest::newRow("case") << Choix(u"respecter la casse"_s) << cherche << 0x26 << 1;
    QTest::newRow("replace row") << Choix(u"Remplacer"_s) << QStringList() << 0x14 << 2;
}

void tst_BarreRechercheGestes::gestes()
{
    QFETCH(Geste, geste);
    FenetreDeBarre essai;
    essai.barre->ActualiseOccurrences(1, 2);
    essai.pieces.Action(u"Remplacer"_s)->trigger();
    QVERIFY(essai.Montre());
    HoteEspion const hote(essai.barre);
    essai.barre->ModifieSensRecherche(CstRecherche::kVersLeHaut);

    geste(essai.pieces);

    QTEST(hote.DonneNoms(), "appels");
    QTEST(int(essai.barre->DonneOptions()), "options");
    QTEST(int(essai.barre->DonneSensRecherche()), "sens");
    for (AppelRecherche const & appel : hote.appels)
        QTEST(int(appel.options), "options");
}

void tst_BarreRechercheGestes::gesteSansHote()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    QTest::keyClicks(pieces.recherche, u"mot"_s);
    QCOMPARE(barre.DonneChaineRecherche(), u"mot"_s);
    QCOMPARE(barre.DonneSensRecherche(), CstRecherche::kVersLeBas);
    QTest::mouseClick(pieces.precedent, Qt::LeftButton);
    QCOMPARE(barre.DonneSensRecherche(), CstRecherche::kVersLeHaut);
    QTest::mouseClick(pieces.tout, Qt::LeftButton);
    QCOMPARE(barre.DonneOptions(), short(0x34));
    QTest::mouseClick(pieces.fermer, Qt::LeftButton);
}

void tst_BarreRechercheGestes::chaqueFrappe()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);

    QTest::keyClicks(pieces.recherche, u"mot"_s);
    QCOMPARE(hote.DonneNoms(), QStringList({u"Chercher"_s, u"Chercher"_s, u"Chercher"_s}));
    QStringList chaines;
    for (AppelRecherche const & appel : hote.appels) {
        chaines.append(appel.chaine);
        QVERIFY((appel.options & CstRecherche::kTexteEdite) != 0);
    }
    QCOMPARE(chaines, QStringList({u"m"_s, u"mo"_s, u"mot"_s}));

    QTest::keyClick(pieces.recherche, Qt::Key_Return);
    QCOMPARE(hote.appels.size(), 4);
    QCOMPARE(hote.appels.constLast().options & CstRecherche::kTexteEdite, 0);
    QCOMPARE(hote.appels.constLast().chaine, u"mot"_s);
}

void tst_BarreRechercheGestes::effacement()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QTest::keyClicks(essai.pieces.recherche, u"ab"_s);
    HoteEspion const hote(essai.barre);

    QTest::keyClick(essai.pieces.recherche, Qt::Key_Backspace);
    auto * const croix = essai.pieces.recherche->findChild<QToolButton *>();
    QVERIFY(croix != nullptr);
    croix->click(); // its picture fades in, so that a click of the mouse may come too early

    QCOMPARE(hote.appels.size(), 2);
    QCOMPARE(hote.appels.at(0).chaine, u"a"_s);
    QCOMPARE(hote.appels.at(1).chaine, QString());
    QVERIFY((hote.appels.at(1).options & CstRecherche::kTexteEdite) != 0);
}

void tst_BarreRechercheGestes::texteParProgramme()
{
    BarreRecherche barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);

    barre.MetsChaineAChercher(UniChaine("un"_L1));
    QCOMPARE(pieces.recherche->text(), u"un"_s);
    QCOMPARE(barre.DonneChaineRecherche(), u"un"_s);
    barre.PrendsChaineRecherche(u"deux"_s);
    QCOMPARE(pieces.recherche->text(), u"deux"_s);
    QCOMPARE(barre.DonneChaineRecherche(), u"deux"_s);
    barre.MetsChaineAChercher(kUniChaineNulle);
    QVERIFY(pieces.recherche->text().isEmpty());
    QVERIFY(barre.DonneChaineRecherche().isEmpty());

    QVERIFY(hote.appels.isEmpty()); // only the user's text searches
}

void tst_BarreRechercheGestes::remplacementTapay()
{
    BarreRecherche barre(nullptr, true);
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    QTest::keyClicks(pieces.recherche, u"a"_s);
    QTest::keyClicks(pieces.remplacement, u"b"_s);
    QTest::keyClick(pieces.remplacement, Qt::Key_Return);
    QCOMPARE(hote.DonneNoms(), QStringList({u"Chercher"_s, u"Remplacer"_s}));
    QCOMPARE(hote.appels.constLast().chaine, u"a"_s);
    QCOMPARE(hote.appels.constLast().remplacement, u"b"_s);
    QCOMPARE(hote.appels.constLast().sens, CstRecherche::kVersLeBas);
}

void tst_BarreRechercheGestes::choixDansLeMenu()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    HoteEspion const hote(essai.barre);
    QMenu * const menu = essai.pieces.Menu();
    QAction * const motEntier = essai.pieces.Action(u"Mot entier"_s);
    // The button opens its menu at once and waits for it; the user clicks in the meantime.
    QTimer::singleShot(0, menu, [=] {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(motEntier).center());
    });
    QTimer::singleShot(5000, menu, &QMenu::close); // rather a failed test than one that hangs

    QTest::mouseClick(essai.pieces.options, Qt::LeftButton);

    QTRY_COMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
    QCOMPARE(hote.appels.constFirst().options, short(0x25));
    QVERIFY(motEntier->isChecked());
    QVERIFY(!essai.pieces.Action(u"contient"_s)->isChecked());
}

void tst_BarreRechercheGestes::casseDansLeMenu()
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

void tst_BarreRechercheGestes::optionsActualisees_data()
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
    int const bitsDuSens[] = {0x24, 0x24, 0x14};
    for (int sens = 0; sens < 3; ++sens)
        for (bool const casse : {false, true})
            for (auto const & [nom, mode, bits] : modes)
                QTest::addRow("direction %d, case %d, %s", sens, int(casse), nom)
                    << sens << casse << mode << (bitsDuSens[sens] | bits | (casse ? 0x02 : 0));
}

void tst_BarreRechercheGestes::optionsActualisees()
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

void tst_BarreRechercheGestes::optionsSansModes()
{
    BarreRecherche barre(nullptr, false, false, false, false);
    barre.ModifieSensRecherche(CstRecherche::kNouvelleRecherche);
    QCOMPARE(barre.DonneOptions(), short(0x24));

    // Both modes on, as no group allows: "begins with" is looked at first and alone.
    BarreRecherche double_(nullptr, false, true, false, true);
    PiecesBarre const pieces(double_);
    Choisis(pieces, Mode::Aucun);
    pieces.Action(u"commence par"_s)->setChecked(true);
    pieces.Action(u"Mot entier"_s)->setChecked(true);
    double_.ModifieSensRecherche(CstRecherche::kVersLeBas);
    QCOMPARE(double_.DonneOptions(), short(0x64));
}

void tst_BarreRechercheGestes::prisesActualisent_data()
{
    QTest::addColumn<QByteArray>("prise");
    QTest::newRow("protected") << QByteArray("PriseActualiserEtatPanneau");
    QTest::newRow("private") << QByteArray("PriseActualiseEtatPanneau");
}

void tst_BarreRechercheGestes::prisesActualisent()
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

void tst_BarreRechercheGestes::suivantRedefini()
{
    class BarreDerivee : public BarreRecherche
    {
    public:
        using BarreRecherche::BarreRecherche;
        void ChercherSuivant() override { ++suivants; }
        void ChercherPrecedent() override { ++precedents; }

        int suivants = 0;
        int precedents = 0;
    };
    BarreDerivee barre;
    PiecesBarre const pieces(barre);
    HoteEspion const hote(&barre);
    QTest::mouseClick(pieces.suivant, Qt::LeftButton);
    QTest::mouseClick(pieces.precedent, Qt::LeftButton);
    QCOMPARE(barre.suivants, 1);
    QCOMPARE(barre.precedents, 1);
    QTest::keyClick(pieces.recherche, Qt::Key_Return); // the gesture itself, not its virtual name
    QCOMPARE(barre.suivants, 1);
    QCOMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
}

void tst_BarreRechercheGestes::rechercheDeLHote()
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

void tst_BarreRechercheGestes::ouverture_data()
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

void tst_BarreRechercheGestes::ouverture()
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

void tst_BarreRechercheGestes::suppressionPendantLeChoix()
{
    auto * const barre = new BarreRecherche;
    HoteEspion hote(barre);
    hote.pendantUnAppel = [&](QString const &) {
        hote.OublieRecherche();
        delete barre;
    };
    QPointer<QMenu> const menu(PiecesBarre(*barre).Menu());
    PiecesBarre(*barre).Action(u"commence par"_s)->trigger();
    QCOMPARE(hote.DonneNoms(), QStringList{u"Chercher"_s});
    QVERIFY(!menu.isNull()); // it may be open still
}

QTEST_MAIN(tst_BarreRechercheGestes)
#include "tst_BarreRechercheGestes.moc"
