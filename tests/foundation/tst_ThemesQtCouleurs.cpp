// tests/foundation/tst_ThemesQtCouleurs.cpp
//
// What the table of the theme keeps of the colours that it has read must not be seen.
#include "foundation/ThemesQt.h"
#include "foundation/VariablesAttendues.h"

#include <QtTest>

#include <QColor>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

class tst_ThemesQtCouleurs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void deuxFoisLaMemeReponse_data();
    void deuxFoisLaMemeReponse();
    void valeurRemplacee();
    void variableUtiliseeRemplacee();
    void nomAjoutayApresUneDemande();
    void couleurDevenueInvalide();
    void couleurAjouteeParQColor();
    void copie();
    void deplacement();
    void nouvelleInstance();
    void nomEmpruntay();
    void nomsInconnus();
    void tableAuHasard();
};

void tst_ThemesQtCouleurs::cleanup()
{
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ThemesQtCouleurs::deuxFoisLaMemeReponse_data()
{
    QTest::addColumn<QString>("nom");
    for (VariableAttendue const & variable : kVariablesAttendues) {
        QString const nom = QString::fromUtf16(variable.nom);
        QTest::newRow(qPrintable(nom)) << nom;
    }
    QTest::newRow("no such name") << u"absente"_s;
    QTest::newRow("null") << QString();
}

void tst_ThemesQtCouleurs::deuxFoisLaMemeReponse()
{
    QFETCH(QString, nom);
    ThemesQt const themes;
    QColor const premiere = themes.DonneCouleur(nom);
    QCOMPARE(themes.DonneCouleur(nom), premiere);
    QCOMPARE(themes.DonneCouleur(nom), ThemesQt().DonneCouleur(nom));
}

void tst_ThemesQtCouleurs::valeurRemplacee()
{
    ThemesQt themes;
    QCOMPARE(themes.DonneCouleur(u"couleurBordure"_s), QColor(220, 220, 220));
    themes.AjouterVariable(u"couleurBordure"_s, u"rgba(1,2,3,4)"_s);
    QCOMPARE(themes.DonneCouleur(u"couleurBordure"_s), QColor(1, 2, 3, 4));
}

void tst_ThemesQtCouleurs::variableUtiliseeRemplacee()
{
    ThemesQt themes;
    themes.AjouterVariable(u"rouge"_s, u"10"_s);
    themes.AjouterVariable(u"base"_s, u"rgba(@rouge,20,30,40)"_s);
    themes.AjouterVariable(u"alias"_s, u"@base"_s);
    QCOMPARE(themes.DonneCouleur(u"alias"_s), QColor(10, 20, 30, 40));
    themes.AjouterVariable(u"rouge"_s, u"11"_s);
    QCOMPARE(themes.DonneCouleur(u"alias"_s), QColor(11, 20, 30, 40));
    QCOMPARE(themes.DonneCouleur(u"base"_s), QColor(11, 20, 30, 40));
    themes.AjouterVariable(u"base"_s, u"rgba(1,2,3,4)"_s);
    QCOMPARE(themes.DonneCouleur(u"alias"_s), QColor(1, 2, 3, 4));
}

void tst_ThemesQtCouleurs::nomAjoutayApresUneDemande()
{
    ThemesQt themes;
    QVERIFY(!themes.DonneCouleur(u"nouvelle"_s).isValid());
    themes.AjouterVariable(u"nouvelle"_s, u"rgba(1,2,3,4)"_s);
    QCOMPARE(themes.DonneCouleur(u"nouvelle"_s), QColor(1, 2, 3, 4));
}

void tst_ThemesQtCouleurs::couleurDevenueInvalide()
{
    ThemesQt themes;
    QVERIFY(themes.DonneCouleur(u"couleurBordure"_s).isValid());
    themes.AjouterVariable(u"couleurBordure"_s, u"#dcdcdc"_s);
    QVERIFY(!themes.DonneCouleur(u"couleurBordure"_s).isValid());
    QVERIFY(!themes.DonneCouleur(u"couleurBordure"_s).isValid());
    themes.AjouterVariable(u"couleurBordure"_s, u"rgba(0,0,0,0)"_s);
    QCOMPARE(themes.DonneCouleur(u"couleurBordure"_s), QColor(0, 0, 0, 0));
}

void tst_ThemesQtCouleurs::couleurAjouteeParQColor()
{
    ThemesQt themes;
    QVERIFY(themes.DonneCouleur(u"couleurSeparateur"_s).isValid());
    themes.AjouterVariable(u"couleurSeparateur"_s, QColor(9, 8, 7, 6));
    QCOMPARE(themes.DonneCouleur(u"couleurSeparateur"_s), QColor(9, 8, 7, 6));
}

void tst_ThemesQtCouleurs::copie()
{
    ThemesQt source;
    source.AjouterVariable(u"a"_s, u"rgba(1,1,1,1)"_s);
    QCOMPARE(source.DonneCouleur(u"a"_s), QColor(1, 1, 1, 1));
    ThemesQt copie(source);
    QCOMPARE(copie.DonneCouleur(u"a"_s), QColor(1, 1, 1, 1));
    copie.AjouterVariable(u"a"_s, u"rgba(2,2,2,2)"_s);
    QCOMPARE(copie.DonneCouleur(u"a"_s), QColor(2, 2, 2, 2));
    QCOMPARE(source.DonneCouleur(u"a"_s), QColor(1, 1, 1, 1));
    source.AjouterVariable(u"a"_s, u"rgba(3,3,3,3)"_s);
    QCOMPARE(copie.DonneCouleur(u"a"_s), QColor(2, 2, 2, 2));
    QCOMPARE(source.DonneCouleur(u"a"_s), QColor(3, 3, 3, 3));
}

void tst_ThemesQtCouleurs::deplacement()
{
    ThemesQt source;
    source.AjouterVariable(u"a"_s, u"rgba(1,1,1,1)"_s);
    QCOMPARE(source.DonneCouleur(u"a"_s), QColor(1, 1, 1, 1));
    ThemesQt deplacee(std::move(source));
    QCOMPARE(deplacee.DonneCouleur(u"a"_s), QColor(1, 1, 1, 1));
    deplacee.AjouterVariable(u"a"_s, u"rgba(2,2,2,2)"_s);
    QCOMPARE(deplacee.DonneCouleur(u"a"_s), QColor(2, 2, 2, 2));
}

void tst_ThemesQtCouleurs::nouvelleInstance()
{
    ThemesQt::Instance()->AjouterVariable(u"couleurBordure"_s, u"rgba(1,2,3,4)"_s);
    QCOMPARE(ThemesQt::Instance()->DonneCouleur(u"couleurBordure"_s), QColor(1, 2, 3, 4));
    ThemesQt::DetruisToi();
    QCOMPARE(ThemesQt::Instance()->DonneCouleur(u"couleurBordure"_s), QColor(220, 220, 220));
}

// The name of a request may stand in memory that its owner writes over.
void tst_ThemesQtCouleurs::nomEmpruntay()
{
    ThemesQt const themes;
    QString memoire = u"couleurBordure"_s;
    memoire.detach();
    QColor const couleur =
        themes.DonneCouleur(QString::fromRawData(memoire.constData(), memoire.size()));
    QCOMPARE(couleur, QColor(220, 220, 220));
    memoire.fill(u'z');
    QCOMPARE(themes.DonneCouleur(u"couleurBordure"_s), couleur);
    QVERIFY(!themes.DonneCouleur(memoire).isValid());
}

void tst_ThemesQtCouleurs::nomsInconnus()
{
    ThemesQt const themes;
    for (int i = 0; i < 1000; ++i)
        QVERIFY(!themes.DonneCouleur(u"inconnue%1"_s.arg(i)).isValid());
    QCOMPARE(themes.DonneCouleur(u"couleurBordure"_s), QColor(220, 220, 220));
}

// Beside a table that is made anew for each question, and so keeps nothing.
void tst_ThemesQtCouleurs::tableAuHasard()
{
    QRandomGenerator hasard(1234);
    QStringList const noms = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    ThemesQt themes;
    QHash<QString, QString> valeurs;
    for (int i = 0; i < 2000; ++i) {
        QString const nom = noms[hasard.bounded(noms.size())];
        if (hasard.bounded(3) == 0) {
            // Only names further on, so that no variable leads to itself; "d" is never one.
            bool const estAlias = nom != u"d"_s && valeurs.contains(u"d"_s) && hasard.bounded(2);
            valeurs[nom] =
                estAlias ? u" @d"_s : u"rgba(%1,2,3,4%2"_s.arg(i % 256).arg(i % 5 ? u")"_s : u""_s);
            themes.AjouterVariable(nom, valeurs[nom]);
        }
        ThemesQt neuve;
        for (auto valeur = valeurs.cbegin(); valeur != valeurs.cend(); ++valeur)
            neuve.AjouterVariable(valeur.key(), valeur.value());
        QCOMPARE(themes.DonneCouleur(nom), neuve.DonneCouleur(nom));
    }
}

QTEST_MAIN(tst_ThemesQtCouleurs)
#include "tst_ThemesQtCouleurs.moc"
