// tests/search/tst_BarreRechercheAcces.cpp
#include "search/PiecesBarre.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <QAccessible>

using namespace Qt::StringLiterals;

class tst_BarreRechercheAcces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void ordreTabulation();
    void ordreTabulationVisible();
    void accessibilite();
    void langues_data();
    void langues();
};

void tst_BarreRechercheAcces::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheAcces::ordreTabulation()
{
    BarreRecherche const barre(nullptr, true, true, true, true);
    PiecesBarre const pieces(barre);
    QList<QWidget *> const ordre = {pieces.options,   pieces.recherche, pieces.remplacement,
                                    pieces.precedent, pieces.suivant,   pieces.remplacer,
                                    pieces.tout,      pieces.annuler,   pieces.fermer};
    QList<QWidget *> trouvees;
    for (QWidget * widget = barre.nextInFocusChain(); widget != &barre;
         widget = widget->nextInFocusChain())
        if (ordre.contains(widget))
            trouvees.append(widget);
    QCOMPARE(trouvees, ordre);
}

void tst_BarreRechercheAcces::ordreTabulationVisible()
{
    FenetreDeBarre essai;
    PiecesBarre const & pieces = essai.pieces;
    QVERIFY(essai.Montre());
    essai.barre->ActualiseOccurrences(1, 2);
    pieces.Action(u"Remplacer"_s)->trigger();
    QTRY_VERIFY(pieces.recherche->hasFocus());

    // The button to cancel is disabled: the key passes over it.
    for (QWidget const * const suivant :
         std::initializer_list<QWidget *>{pieces.remplacement, pieces.precedent, pieces.suivant,
                                          pieces.remplacer, pieces.tout, pieces.fermer}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), suivant);
    }
    // Without its row, nothing of it is reached.
    pieces.Action(u"Remplacer"_s)->trigger();
    pieces.recherche->setFocus();
    for (QWidget const * const suivant :
         std::initializer_list<QWidget *>{pieces.precedent, pieces.suivant, pieces.fermer}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), suivant);
    }
}

void tst_BarreRechercheAcces::accessibilite()
{
    BarreRecherche const barre(nullptr, true, true, true, true);
    PiecesBarre const pieces(barre);
    QHash<QWidget *, QString> const noms = {
        {pieces.fermer, u"Fermer la barre de recherche"_s},
        {pieces.options, u"Options"_s},
        {pieces.precedent, u"Occurrence précédente"_s},
        {pieces.suivant, u"Occurrence suivante"_s},
        {pieces.remplacer, u"Remplacer"_s},
        {pieces.tout, u"Tout"_s},
        {pieces.annuler, u"Annuler"_s},
        {pieces.recherche, u"Rechercher"_s},
        {pieces.remplacement, u"Remplacer"_s},
    };
    for (auto it = noms.cbegin(); it != noms.cend(); ++it) {
        QAccessibleInterface const * const acces = QAccessible::queryAccessibleInterface(it.key());
        QVERIFY(acces != nullptr);
        QCOMPARE(acces->text(QAccessible::Name), it.value());
    }
}

void tst_BarreRechercheAcces::langues_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QStringList>("textes");
    QStringList const francais = {u"Barre de recherche"_s,
                                  u"Fermer la barre de recherche"_s,
                                  u"Options"_s,
                                  u"Occurrence précédente"_s,
                                  u"Occurrence suivante"_s,
                                  u"Rechercher"_s,
                                  u"Chercher un mot"_s,
                                  u"Remplacer"_s,
                                  u"Remplacer"_s,
                                  u"Tout"_s,
                                  u"Annuler"_s,
                                  u"Remplacer|-|contient|commence par|Mot entier|-|"
                                  "respecter la casse"_s};
    QStringList const anglais = {
        u"Search Bar"_s,      u"Close Search Bar"_s,
        u"Options"_s,         u"Previous Occurrence"_s,
        u"Next Occurrence"_s, u"Search"_s,
        u"Find a Word"_s,     u"Replace"_s,
        u"Replace"_s,         u"All"_s,
        u"Cancel"_s,          u"Replace|-|contains|starts with|Whole Word|-|match case"_s};
    QTest::newRow("French") << int(kLangueFrancais) << francais;
    QTest::newRow("English") << int(kLangueAnglais) << anglais;
    QTest::newRow("Canadian English") << int(kLangueAnglaisCanada) << anglais;
}

void tst_BarreRechercheAcces::langues()
{
    QFETCH(int, langue);
    Traductions::MetsLanguePourApplicationCourante(eLangue(langue));
    auto const retour =
        qScopeGuard([] { Traductions::MetsLanguePourApplicationCourante(kLangueFrancais); });
    BarreRecherche const barre(nullptr, true, true, true, true);
    PiecesBarre const pieces(barre);
    QStringList const trouves = {
        barre.accessibleName(),      pieces.fermer->toolTip(),
        pieces.options->toolTip(),   pieces.precedent->toolTip(),
        pieces.suivant->toolTip(),   pieces.recherche->placeholderText(),
        pieces.recherche->toolTip(), pieces.remplacement->placeholderText(),
        pieces.remplacer->text(),    pieces.tout->text(),
        pieces.annuler->text(),      Textes(*pieces.Menu()).join(u'|')};
    QTEST(trouves, "textes");
}

QTEST_MAIN(tst_BarreRechercheAcces)
#include "tst_BarreRechercheAcces.moc"
