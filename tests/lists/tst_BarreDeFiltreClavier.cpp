#include "lists/PiecesBarreDeFiltre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreDeFiltreClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void tabulation();
    void tabulationAvecChevron();
    void suppressions_data();
    void suppressions();
    void derniereSuppression();
    void nettoyageAvecLeFocus();
    void suppressionAilleurs();
    void etiquettesDesFiltres();
};

namespace {

void SupprimeSurDemande(BarreDeFiltre & barre)
{
    QObject::connect(&barre, &BarreDeFiltre::PastilleASupprimer, &barre,
                     &BarreDeFiltre::SupprimerPastille, Qt::UniqueConnection);
}

QList<QWidget *> Tabule(int combien)
{
    QList<QWidget *> widgets;
    for (int i = 0; i < combien; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        widgets << QApplication::focusWidget();
    }
    return widgets;
}

} // namespace

void tst_BarreDeFiltreClavier::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltreClavier::tabulation()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(2);
    QList<Pastille *> const pastilles = essai.pieces.Pastilles();
    essai.suite->setFocus();
    QCOMPARE(Tabule(5), QList<QWidget *>({pastilles[0], pastilles[1], essai.pieces.champ,
                                          essai.pieces.bouton, essai.suite}));
    essai.barre->AfficherListePastille(false);
    QCOMPARE(Tabule(3), QList<QWidget *>({essai.pieces.champ, essai.pieces.bouton, essai.suite}));
}

void tst_BarreDeFiltreClavier::tabulationAvecChevron()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(20);
    QList<QWidget *> attendus;
    for (int i = 0; essai.pieces.liste->WidgetEstVisible(i); ++i)
        attendus << essai.pieces.Pastilles()[i];
    QVERIFY(attendus.size() < 20);
    attendus << essai.pieces.chevron << essai.pieces.champ;
    essai.suite->setFocus();
    QCOMPARE(Tabule(int(attendus.size())), attendus);
}

void tst_BarreDeFiltreClavier::suppressions_data()
{
    QTest::addColumn<int>("touche");
    QTest::newRow("Delete") << int(Qt::Key_Delete);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void tst_BarreDeFiltreClavier::suppressions()
{
    QFETCH(int, touche);
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    SupprimeSurDemande(*essai.barre);
    QList<Pastille *> const pastilles = essai.pieces.Pastilles();
    pastilles[1]->setFocus(Qt::TabFocusReason);
    QTest::keyClick(pastilles[1], Qt::Key(touche));
    QCOMPARE(essai.pieces.Cles(), QVariantList({0, 2}));
    QVERIFY(pastilles[2]->hasFocus());
    EnvoieSuppressions();
    QTest::keyClick(pastilles[2], Qt::Key(touche));
    QCOMPARE(essai.pieces.Cles(), QVariantList(1, 0));
    QVERIFY(pastilles[0]->hasFocus());
    QTest::keyClick(pastilles[0], Qt::Key(touche));
    QCOMPARE(essai.pieces.Cles(), QVariantList());
    QVERIFY(essai.pieces.champ->hasFocus());
}

void tst_BarreDeFiltreClavier::derniereSuppression()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(1);
    SupprimeSurDemande(*essai.barre);
    QPointer<Pastille> const pastille = essai.pieces.Pastilles().first();
    pastille->setFocus();
    QTest::keyClick(pastille, Qt::Key_Delete);
    QVERIFY(essai.pieces.champ->hasFocus());
    EnvoieSuppressions();
    QVERIFY(!pastille);
    QVERIFY(essai.pieces.champ->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), u"mot"_s);
    QCOMPARE(essai.pieces.champ->currentText(), u"mot"_s);
}

void tst_BarreDeFiltreClavier::nettoyageAvecLeFocus()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    essai.pieces.Pastilles()[1]->setFocus();
    essai.barre->NetoyerPastille();
    QVERIFY(essai.pieces.champ->hasFocus());
}

void tst_BarreDeFiltreClavier::suppressionAilleurs()
{
    FenetreDeBarreDeFiltre essai;
    QVERIFY(essai.Montre());
    essai.Ajoute(3);
    essai.suite->setFocus();
    essai.barre->SupprimerPastille(1);
    essai.barre->NetoyerPastille();
    QVERIFY(essai.suite->hasFocus());
}

void tst_BarreDeFiltreClavier::etiquettesDesFiltres()
{
    FenetreDeBarreDeFiltre essai;
    essai.barre->AjouterComboBox(1, u"Longueur"_s, CreeComboDeFiltre());
    QAccessibleInterface const * const acces =
        QAccessible::queryAccessibleInterface(essai.barre->PreteComboBox(1));
    auto const relations = acces->relations(QAccessible::Label);
    QCOMPARE(relations.size(), 1);
    QCOMPARE(relations.first().first->text(QAccessible::Name), u"Longueur: "_s);
}

QTEST_MAIN(tst_BarreDeFiltreClavier)
#include "tst_BarreDeFiltreClavier.moc"
