// tests/search/tst_BarreRecherche.cpp
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QImage Image(QIcon const & icone)
{
    return icone.pixmap(16, 16).toImage();
}

QWidget * Enfant(PiecesBarre const & pieces, QByteArray const & nom)
{
    QHash<QByteArray, QWidget *> const enfants = {{"options", pieces.options},
                                                  {"recherche", pieces.recherche},
                                                  {"compteur", pieces.compteur},
                                                  {"precedent", pieces.precedent},
                                                  {"suivant", pieces.suivant},
                                                  {"fermer", pieces.fermer},
                                                  {"remplacement", pieces.remplacement},
                                                  {"cadre", pieces.cadre},
                                                  {"remplacer", pieces.remplacer},
                                                  {"tout", pieces.tout},
                                                  {"annuler", pieces.annuler}};
    return enfants.value(nom);
}

} // namespace

class tst_BarreRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void bande();
    void boutons_data();
    void boutons();
    void boutonsSansTailleFixe();
    void champs_data();
    void champs();
    void cadreDesBoutons();
    void grille_data();
    void grille();
    void reglagesDeLaGrille();
    void espacePartagay();
    void interfaces();
};

void tst_BarreRecherche::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRecherche::bande()
{
    BarreRecherche const barre;
    QCOMPARE(barre.objectName(), u"BandeauRecherche"_s);
    QCOMPARE(barre.focusPolicy(), Qt::ClickFocus);
    QCOMPARE(barre.accessibleName(), u"Barre de recherche"_s);
    QCOMPARE(barre.frameShape(), int(QFrame::NoFrame));
    QVERIFY(barre.isHidden());
    QCOMPARE(barre.minimumHeight(), 30);
    QCOMPARE(barre.maximumHeight(), 30);

    // The defaults: both modes, neither counter nor replacing.
    PiecesBarre const pieces(barre);
    QCOMPARE(Textes(*pieces.Menu()),
             QStringList({u"contient"_s, u"commence par"_s, u"-"_s, u"respecter la casse"_s}));
    QVERIFY(pieces.compteur == nullptr);
    QVERIFY(pieces.remplacement->isHidden());
    QVERIFY(pieces.cadre->isHidden());

    QWidget parent;
    auto const * const enfant = new BarreRecherche(&parent);
    QCOMPARE(enfant->parentWidget(), &parent);
    QVERIFY(!enfant->isWindow());
}

void tst_BarreRecherche::boutons_data()
{
    QTest::addColumn<QByteArray>("nom");
    QTest::addColumn<QString>("icone");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("infobulle");
    QTest::addColumn<QString>("nomObjet");
    QTest::addColumn<bool>("actif");
    QTest::addColumn<bool>("cochable");

    auto const ligne = [](char const * nom, QString const & icone, QString const & texte,
                          QString const & infobulle, bool actif = true) -> QTestData & {
        return QTest::newRow(nom) << QByteArray(nom) << icone << texte << infobulle
                                  << (nom == "options"_ba ? u"ToolButtonSansFleche"_s : QString())
                                  << actif << (nom == "options"_ba);
    };
    ligne("fermer", u":/Images/rechercheX.svg"_s, {}, u"Fermer la barre de recherche"_s);
    ligne("options", u":/Images/Options_Recherche.svg"_s, {}, u"Options"_s);
    ligne("precedent", u":/Images/recherchePrecedente.svg"_s, {}, u"Occurrence précédente"_s);
    ligne("suivant", u":/Images/rechercheSuivante.svg"_s, {}, u"Occurrence suivante"_s);
    ligne("remplacer", {}, u"Remplacer"_s, {});
    ligne("tout", {}, u"Tout"_s, {});
    ligne("annuler", {}, u"Annuler"_s, {}, false);
}

void tst_BarreRecherche::boutons()
{
    QFETCH(QByteArray, nom);
    QFETCH(QString, icone);
    BarreRecherche const barre(nullptr, true);
    auto * const bouton = qobject_cast<QToolButton *>(Enfant(PiecesBarre(barre), nom));
    QVERIFY(bouton != nullptr);
    QCOMPARE(bouton->metaObject()->className(), "QToolButton");
    QVERIFY(bouton->autoRaise());
    QTEST(bouton->text(), "texte");
    QTEST(bouton->toolTip(), "infobulle");
    QTEST(bouton->objectName(), "nomObjet");
    QTEST(bouton->isEnabledTo(&barre), "actif");
    QTEST(bouton->isCheckable(), "cochable");
    QCOMPARE(bouton->toolButtonStyle(), Qt::ToolButtonIconOnly);
    if (icone.isEmpty())
        QVERIFY(bouton->icon().isNull());
    else
        QCOMPARE(Image(bouton->icon()), Image(QIcon(icone)));
}

void tst_BarreRecherche::boutonsSansTailleFixe()
{
    BarreRecherche const barre;
    PiecesBarre const pieces(barre);
    QCOMPARE(pieces.fermer->minimumSize(), QSize(20, 20));
    QCOMPARE(pieces.fermer->maximumSize(), QSize(20, 20));
    QCOMPARE(pieces.fermer->iconSize(), QSize(10, 8));
    QCOMPARE(pieces.options->minimumSize(), QSize(20, 20));
    QCOMPARE(pieces.options->maximumSize(), QSize(20, 20));
    QCOMPARE(pieces.options->popupMode(), QToolButton::InstantPopup);
    QVERIFY(!pieces.options->isChecked());
    for (QToolButton const * const fleche : {pieces.precedent, pieces.suivant}) {
        QCOMPARE(fleche->minimumSize(), QSize(0, 0));
        QCOMPARE(fleche->maximumWidth(), QWIDGETSIZE_MAX);
    }
}

void tst_BarreRecherche::champs_data()
{
    QTest::addColumn<QByteArray>("nom");
    QTest::addColumn<QString>("invite");
    QTest::addColumn<QString>("infobulle");
    QTest::newRow("search") << QByteArray("recherche") << u"Rechercher"_s << u"Chercher un mot"_s;
    QTest::newRow("replacement") << QByteArray("remplacement") << u"Remplacer"_s << QString();
}

void tst_BarreRecherche::champs()
{
    QFETCH(QByteArray, nom);
    BarreRecherche const barre;
    auto const * const champ = qobject_cast<QLineEdit *>(Enfant(PiecesBarre(barre), nom));
    QVERIFY(champ != nullptr);
    QCOMPARE(champ->metaObject()->className(), "QLineEdit");
    QCOMPARE(champ->minimumHeight(), 20);
    QCOMPARE(champ->maximumHeight(), 20);
    QCOMPARE(champ->minimumWidth(), 100);
    QCOMPARE(champ->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(champ->objectName(), u"ChampTexteRecherche"_s);
    QVERIFY(champ->isClearButtonEnabled());
    QVERIFY(champ->text().isEmpty());
    QTEST(champ->placeholderText(), "invite");
    QTEST(champ->toolTip(), "infobulle");
}

void tst_BarreRecherche::cadreDesBoutons()
{
    BarreRecherche const barre;
    PiecesBarre const pieces(barre);
    QCOMPARE(pieces.cadre->metaObject()->className(), "QFrame");
    auto const * const rangee = qobject_cast<QHBoxLayout *>(pieces.cadre->layout());
    QVERIFY(rangee != nullptr);
    QCOMPARE(rangee->count(), 3);
    QCOMPARE(rangee->contentsMargins(), QMargins());
    for (QToolButton const * const bouton : {pieces.remplacer, pieces.tout, pieces.annuler})
        QCOMPARE(bouton->parentWidget(), pieces.cadre);
}

void tst_BarreRecherche::grille_data()
{
    QTest::addColumn<bool>("compteur");
    QTest::addColumn<QByteArray>("nom");
    QTest::addColumn<QRect>("cases"); // column, row, columns, rows

    for (bool const compteur : {false, true}) {
        int const c = compteur ? 4 : 3;
        struct
        {
            char const * nom;
            QRect cases;
        } const places[] = {
            {"options", {0, 0, 1, 1}},    {"recherche", {1, 0, 1, 1}},
            {"precedent", {c, 0, 1, 1}},  {"suivant", {c + 1, 0, 1, 1}},
            {"fermer", {c + 2, 0, 1, 1}}, {"remplacement", {1, 1, 1, 1}},
            {"cadre", {c, 1, 3, 1}},
        };
        for (auto const & [nom, cases] : places)
            QTest::addRow("%s, %s", nom, compteur ? "counter" : "no counter")
                << compteur << QByteArray(nom) << cases;
    }
    QTest::newRow("compteur") << true << QByteArray("compteur") << QRect(3, 0, 1, 1);
}

void tst_BarreRecherche::grille()
{
    QFETCH(bool, compteur);
    QFETCH(QByteArray, nom);
    QFETCH(QRect, cases);
    BarreRecherche const barre(nullptr, true, true, compteur, true);
    PiecesBarre const pieces(barre);
    QCOMPARE(pieces.grille->count(), compteur ? 8 : 7);

    int const rang = pieces.grille->indexOf(Enfant(pieces, nom));
    QVERIFY(rang >= 0);
    int ligne = -1;
    int colonne = -1;
    int lignes = -1;
    int colonnes = -1;
    pieces.grille->getItemPosition(rang, &ligne, &colonne, &lignes, &colonnes);
    QCOMPARE(QRect(colonne, ligne, colonnes, lignes), cases);
    QCOMPARE(pieces.grille->itemAt(rang)->alignment(),
             nom == "fermer" ? Qt::AlignRight : Qt::Alignment());
}

void tst_BarreRecherche::reglagesDeLaGrille()
{
    BarreRecherche const barre(nullptr, true, true, true, true);
    QGridLayout const * const grille = PiecesBarre(barre).grille;
    QCOMPARE(grille->contentsMargins(), QMargins(0, 5, 0, 5));
    QCOMPARE(grille->horizontalSpacing(), 3);
    QCOMPARE(grille->verticalSpacing(), 3);
    for (int colonne = 0; colonne < grille->columnCount(); ++colonne)
        QCOMPARE(grille->columnStretch(colonne), colonne == 1 || colonne == 2 ? 1 : 0);
}

void tst_BarreRecherche::espacePartagay()
{
    FenetreDeBarre essai;
    essai.barre->resize(900, 30);
    QVERIFY(essai.Montre());
    // The field and the empty column beside it share what the buttons leave.
    QRect const champ = essai.pieces.recherche->geometry();
    int const vide = essai.pieces.precedent->x() - champ.right();
    QVERIFY(champ.width() > 300);
    QVERIFY(std::abs(champ.width() - vide) < 20);
}

void tst_BarreRecherche::interfaces()
{
    BarreRecherche barre;
    WidgetRechercheAbstrait & recherche = barre;
    QCOMPARE(recherche.DonneMoiEnWidget(), &barre);

    // Signals and slots in their order, which hosts built against an older library rely on.
    QMetaObject const & meta = BarreRecherche::staticMetaObject;
    QByteArrayList methodes;
    for (int rang = meta.methodOffset(); rang < meta.methodCount(); ++rang)
        methodes.append(meta.method(rang).methodSignature());
    QCOMPARE(methodes, QByteArrayList({"SignalFermeture()", "SignalBarreRechercheFermay()",
                                       "PriseBoutonFermer()", "PriseActualiserEtatPanneau()",
                                       "PriseBoutonChercher()", "PriseChercherSuivant()",
                                       "PriseChercherPrecedent()", "PriseBoutonRemplacerTout()",
                                       "PriseBoutonRemplacer()", "PriseBoutonAnnuler()",
                                       "PriseTexteEditer()", "PriseActualiseEtatPanneau()"}));
}

QTEST_MAIN(tst_BarreRecherche)
#include "tst_BarreRecherche.moc"
