// tests/controls/tst_DBoutonAbstraitClavier.cpp
#include "controls/EssaisBouton.h"

#include <QButtonGroup>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

class tst_DBoutonAbstraitClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void focusALIndicateur_data();
    void focusALIndicateur();
    void ordreNaturel_data();
    void ordreNaturel();
    void ordreDonnay_data();
    void ordreDonnay();
    void ordreSauteLeGelay();
    void espace_data();
    void espace();
    void clicSurLibelleDonneLeFocus_data();
    void clicSurLibelleDonneLeFocus();
    void politiqueDeLApplication_data();
    void politiqueDeLApplication();
    void flechesDansUnGroupe();

private:
    void Remplis(eGenre genre, int nombre);
    QList<int> Tabule(int fois, bool arriere = false);

    std::unique_ptr<QWidget> maFenetre;
    QList<DBoutonAbstrait *> mesControles;
};

void tst_DBoutonAbstraitClavier::init()
{
    maFenetre = std::make_unique<QWidget>();
    new QVBoxLayout(maFenetre.get());
}

void tst_DBoutonAbstraitClavier::cleanup()
{
    mesControles.clear();
    maFenetre.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonAbstraitClavier::Remplis(eGenre genre, int nombre)
{
    for (int i = 0; i < nombre; ++i) {
        mesControles << Cree(genre, u"abc <a href='x'>lien</a>"_s);
        maFenetre->layout()->addWidget(mesControles.last());
    }
    maFenetre->show();
    QVERIFY(QTest::qWaitForWindowActive(maFenetre.get()));
}

// Which controls have the focus in turn.
QList<int> tst_DBoutonAbstraitClavier::Tabule(int fois, bool arriere)
{
    QList<int> passages;
    for (int i = 0; i < fois; ++i) {
        QTest::keyClick(maFenetre->windowHandle(), arriere ? Qt::Key_Backtab : Qt::Key_Tab,
                        arriere ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget const * const focus = QApplication::focusWidget();
        passages << mesControles.indexOf(
            focus ? qobject_cast<DBoutonAbstrait *>(focus->parentWidget()) : nullptr);
    }
    return passages;
}

void tst_DBoutonAbstraitClavier::focusALIndicateur_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitClavier::focusALIndicateur()
{
    QFETCH(eGenre, genre);
    Remplis(genre, 2);
    DBoutonAbstrait & controle = *mesControles.last();
    QCOMPARE(controle.focusProxy(), &Indicateur(controle));
    QCOMPARE(controle.focusPolicy(), Qt::StrongFocus);
    controle.setFocus();
    QVERIFY(controle.hasFocus());
    QVERIFY(Indicateur(controle).hasFocus());
    QCOMPARE(QApplication::focusWidget(), &Indicateur(controle));
}

void tst_DBoutonAbstraitClavier::ordreNaturel_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitClavier::ordreNaturel()
{
    QFETCH(eGenre, genre);
    Remplis(genre, 3);
    mesControles.first()->setFocus();
    QCOMPARE(Tabule(4), (QList<int>{1, 2, 0, 1}));
    QCOMPARE(Tabule(4, true), (QList<int>{0, 2, 1, 0}));
}

void tst_DBoutonAbstraitClavier::ordreDonnay_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitClavier::ordreDonnay()
{
    QFETCH(eGenre, genre);
    Remplis(genre, 3);
    QWidget::setTabOrder(mesControles.at(2), mesControles.at(0));
    QWidget::setTabOrder(mesControles.at(0), mesControles.at(1));
    mesControles.at(2)->setFocus();
    QCOMPARE(Tabule(3), (QList<int>{0, 1, 2}));
    QCOMPARE(Tabule(3, true), (QList<int>{1, 0, 2}));
}

void tst_DBoutonAbstraitClavier::ordreSauteLeGelay()
{
    Remplis(kCase, 3);
    static_cast<DCheckBox *>(mesControles.at(1))->MetsUtilisateurPeutChangerValeur(false);
    mesControles.first()->setFocus();
    QCOMPARE(Tabule(2), (QList<int>{2, 0}));
}

void tst_DBoutonAbstraitClavier::espace_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitClavier::espace()
{
    QFETCH(eGenre, genre);
    Remplis(genre, 1);
    DBoutonAbstrait & controle = *mesControles.first();
    controle.setFocus();
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Space);
    QVERIFY(controle.EstCochay());
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Space);
    QVERIFY(!controle.EstCochay());
}

void tst_DBoutonAbstraitClavier::clicSurLibelleDonneLeFocus_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitClavier::clicSurLibelleDonneLeFocus()
{
    QFETCH(eGenre, genre);
    Remplis(genre, 2);
    mesControles.first()->setFocus();
    DBoutonAbstrait & controle = *mesControles.last();
    QLabel const & libelle = Libelle(controle);
    QTest::mouseClick(maFenetre->windowHandle(), Qt::LeftButton, {},
                      libelle.mapTo(maFenetre.get(), libelle.rect().center()));
    QVERIFY(controle.hasFocus());
    QVERIFY(controle.EstCochay());
}

void tst_DBoutonAbstraitClavier::politiqueDeLApplication_data()
{
    AjouteGenres();
}

void tst_DBoutonAbstraitClavier::politiqueDeLApplication()
{
    QFETCH(eGenre, genre);
    Remplis(genre, 2);
    DBoutonAbstrait & controle = *mesControles.last();
    controle.setFocusPolicy(Qt::TabFocus);
    mesControles.first()->setFocus();
    QLabel const & libelle = Libelle(controle);
    QTest::mouseClick(maFenetre->windowHandle(), Qt::LeftButton, {},
                      libelle.mapTo(maFenetre.get(), libelle.rect().center()));
    QVERIFY(mesControles.first()->hasFocus());
    QVERIFY(controle.EstCochay());
    QCOMPARE(Tabule(1), QList<int>{1});
}

void tst_DBoutonAbstraitClavier::flechesDansUnGroupe()
{
    QButtonGroup groupe;
    Remplis(kRadio, 3);
    for (DBoutonAbstrait * const controle : std::as_const(mesControles))
        static_cast<DRadioButton *>(controle)->AssocierAuGroupe(&groupe);
    mesControles.first()->MetsCochay(true);
    mesControles.first()->setFocus();
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Down);
    QVERIFY(mesControles.at(1)->EstCochay());
    QVERIFY(mesControles.at(1)->hasFocus());
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Up);
    QVERIFY(mesControles.at(0)->EstCochay());
    QVERIFY(!mesControles.at(1)->EstCochay());

    // A group is one stop.
    auto * const champ = new QLineEdit;
    maFenetre->layout()->addWidget(champ);
    champ->show();
    QTest::keyClick(maFenetre->windowHandle(), Qt::Key_Tab);
    QVERIFY(champ->hasFocus());
    QCOMPARE(Tabule(1), QList<int>{0});
}

QTEST_MAIN(tst_DBoutonAbstraitClavier)
#include "tst_DBoutonAbstraitClavier.moc"
