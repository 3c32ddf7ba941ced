// tests/galerie/tst_PageTheme.cpp
#include "PageTheme.h"

#include "TexteCellule.h"
#include "ThemeGalerie.h"

#include "foundation/ThemesQt.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int kNom = 0; // columns
constexpr int kValeur = 1;
} // namespace

class tst_PageTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void toutesLesVariables();
    void valeurRefusee();
    void reinitialisation();
    void choixDeCouleur();
    void celluleEntiere();
    void feuille();
    void nomsAccessibles();

private:
    QModelIndex DonneCellule(QString const & nom, int colonne) const;
    template <typename Widget>
    Widget * Prete(QString const & nom) const
    {
        return maPage->findChild<Widget *>(nom);
    }

    ThemeGalerie monTheme;
    std::unique_ptr<PageTheme> maPage;
    QTableView * maTable = nullptr;
    QLabel * monVerdict = nullptr;
};

void tst_PageTheme::init()
{
    monTheme.Reinitialise();
    QVERIFY(monTheme.Applique());
    maPage = std::make_unique<PageTheme>(monTheme);
    maTable = Prete<QTableView>(u"tableVariables"_s);
    monVerdict = Prete<QLabel>(u"messageErreur"_s);
    QVERIFY(maTable && monVerdict);
}

void tst_PageTheme::cleanup()
{
    maPage.reset();
    ThemesQt::DetruisToi();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QModelIndex tst_PageTheme::DonneCellule(QString const & nom, int colonne) const
{
    QModelIndexList const trouvays = maTable->model()->match(
        maTable->model()->index(0, kNom), Qt::DisplayRole, nom, 1, Qt::MatchExactly);
    return trouvays.isEmpty() ? QModelIndex() : trouvays.first().siblingAtColumn(colonne);
}

void tst_PageTheme::toutesLesVariables()
{
    QStringList const noms = ThemesQt::Instance()->DonneNoms();
    QCOMPARE(maTable->model()->rowCount(), noms.size());
    for (QString const & nom : noms)
        QCOMPARE(DonneCellule(nom, kValeur).data().toString(), monTheme.DonneValeur(nom));
}

void tst_PageTheme::valeurRefusee()
{
    QModelIndex const cellule = DonneCellule(u"couleurBordure"_s, kValeur);
    QString const avant = cellule.data().toString();
    QVERIFY(monVerdict->text().isEmpty());

    maTable->model()->setData(cellule, u"@inconnue"_s);

    QCOMPARE(cellule.data().toString(), avant);
    QCOMPARE(monTheme.DonneValeur(u"couleurBordure"_s), avant);
    QVERIFY(!monVerdict->text().isEmpty());

    maTable->model()->setData(cellule, u"rgba(1,2,3,255)"_s);

    QCOMPARE(ThemesQt::Instance()->DonneCouleur(u"couleurBordure"_s), QColor(1, 2, 3));
    QVERIFY(monVerdict->text().isEmpty());
}

void tst_PageTheme::reinitialisation()
{
    QModelIndex const cellule = DonneCellule(u"couleurFondBlanc"_s, kValeur);
    QString const avant = cellule.data().toString();
    maTable->model()->setData(cellule, u"rgba(10,20,30,255)"_s);
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(10, 20, 30));

    Prete<QPushButton>(u"boutonReinitialiser"_s)->click();

    QCOMPARE(cellule.data().toString(), avant);
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(Qt::white));

    Prete<QPushButton>(u"boutonSombre"_s)->click();
    QVERIFY(cellule.data().toString() != avant);
    Prete<QPushButton>(u"boutonReinitialiser"_s)->click();
    QCOMPARE(cellule.data().toString(), avant);
}

void tst_PageTheme::choixDeCouleur()
{
    auto const * const bouton = Prete<QPushButton>(u"boutonCouleur"_s);
    QModelIndex const cellule = DonneCellule(u"couleurBordure"_s, kValeur);
    QVERIFY(!bouton->isEnabled()); // no current line

    maTable->setCurrentIndex(cellule);
    QVERIFY(bouton->isEnabled());
    maTable->model()->setData(cellule, u"aucune"_s);
    QVERIFY(!bouton->isEnabled());
    maTable->model()->setData(cellule, u"rgba(1,2,3,255)"_s);
    QVERIFY(bouton->isEnabled());

    maTable->setCurrentIndex(DonneCellule(u"tailleTitre"_s, kValeur));
    QVERIFY(!bouton->isEnabled());
    // A filter that hides the current line leaves none.
    maTable->setCurrentIndex(cellule);
    Prete<QLineEdit>(u"filtreVariables"_s)->setText(u"aucun nom"_s);
    QVERIFY(!bouton->isEnabled());
}

void tst_PageTheme::celluleEntiere()
{
    auto const * const texte = maPage->findChild<TexteCellule *>();
    QVERIFY(texte->toPlainText().isEmpty());
    QVERIFY(texte->focusPolicy() & Qt::TabFocus);

    QModelIndex const cellule = DonneCellule(u"couleurBordure"_s, kValeur);
    maTable->setCurrentIndex(cellule);
    QCOMPARE(texte->toPlainText(), cellule.data().toString());
    maTable->model()->setData(cellule, u"rgba(1,2,3,255)"_s);
    QCOMPARE(texte->toPlainText(), u"rgba(1,2,3,255)"_s);
    maTable->setCurrentIndex(cellule.siblingAtColumn(kNom));
    QCOMPARE(texte->toPlainText(), u"couleurBordure"_s);
}

void tst_PageTheme::feuille()
{
    auto * const feuille = Prete<QPlainTextEdit>(u"feuille"_s);

    feuille->setPlainText(u"QLabel { color: @inconnue; }"_s);
    QVERIFY(monVerdict->text().contains(u"inconnue"_s));

    feuille->setPlainText(u"QLabel { color: @couleurBordure; }"_s);
    QVERIFY(monVerdict->text().isEmpty());
}

void tst_PageTheme::nomsAccessibles()
{
    QVERIFY(!maTable->accessibleName().isEmpty());
    QVERIFY(!maPage->findChild<TexteCellule *>()->accessibleName().isEmpty());
    // The keyboard's way to choose a colour is told of.
    QString bouton = Prete<QPushButton>(u"boutonCouleur"_s)->text();
    QVERIFY(Prete<QLabel>(u"explicationPage"_s)->text().contains(bouton.remove(u'&')));
}

QTEST_MAIN(tst_PageTheme)
#include "tst_PageTheme.moc"
