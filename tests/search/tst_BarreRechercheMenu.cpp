// tests/search/tst_BarreRechercheMenu.cpp
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreRechercheMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void menu_data();
    void menu();
    void actions_data();
    void actions();
    void modesExclusifs();
};

void tst_BarreRechercheMenu::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheMenu::menu_data()
{
    QTest::addColumn<int>("drapeaux");
    for (int drapeaux = 0; drapeaux < 16; ++drapeaux)
        QTest::addRow("replace %d, begins with %d, counter %d, whole word %d", drapeaux & 1,
                      (drapeaux >> 1) & 1, (drapeaux >> 2) & 1, (drapeaux >> 3) & 1)
            << drapeaux;
}

void tst_BarreRechercheMenu::menu()
{
    QFETCH(int, drapeaux);
    bool const remplacer = (drapeaux & 1) != 0;
    bool const commencePar = (drapeaux & 2) != 0;
    bool const occurrences = (drapeaux & 4) != 0;
    bool const motEntier = (drapeaux & 8) != 0;
    BarreRecherche const barre(nullptr, remplacer, commencePar, occurrences, motEntier);
    PiecesBarre const pieces(barre);

    QStringList attendus;
    if (remplacer)
        attendus << u"Remplacer"_s << u"-"_s;
    attendus << u"contient"_s;
    if (commencePar)
        attendus << u"commence par"_s;
    if (motEntier)
        attendus << u"Mot entier"_s;
    attendus << u"-"_s << u"respecter la casse"_s;
    QCOMPARE(Textes(*pieces.Menu()), attendus);
    QCOMPARE(pieces.compteur != nullptr, occurrences);
    QVERIFY(pieces.Menu()->parent() == nullptr);
    // What replaces exists in every bar, without a way to it where it was not asked for.
    QVERIFY(pieces.remplacement->isHidden());
    QCOMPARE(barre.height(), 30);
}

void tst_BarreRechercheMenu::actions_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("cochee");
    QTest::addColumn<bool>("dansLeGroupe");
    QTest::newRow("contains") << u"contient"_s << true << true;
    QTest::newRow("begins with") << u"commence par"_s << false << true;
    QTest::newRow("whole word") << u"Mot entier"_s << false << true;
    QTest::newRow("case") << u"respecter la casse"_s << false << false;
    QTest::newRow("replace") << u"Remplacer"_s << false << false;
}

void tst_BarreRechercheMenu::actions()
{
    QFETCH(QString, texte);
    QFETCH(bool, dansLeGroupe);
    BarreRecherche const barre(nullptr, true, true, true, true);
    QAction const * const action = PiecesBarre(barre).Action(texte);
    QVERIFY(action != nullptr);
    QVERIFY(action->isCheckable());
    QVERIFY(action->isEnabled());
    QTEST(action->isChecked(), "cochee");
    QCOMPARE(action->actionGroup() != nullptr, dansLeGroupe);
    if (!dansLeGroupe) {
        QVERIFY(action->parent() == nullptr);
        return;
    }
    QCOMPARE(action->actionGroup()->parent(), &barre);
    QVERIFY(action->actionGroup()->isExclusive());
}

void tst_BarreRechercheMenu::modesExclusifs()
{
    BarreRecherche const barre(nullptr, false, true, false, true);
    PiecesBarre const pieces(barre);
    QList<QAction *> const modes = {pieces.Action(u"contient"_s), pieces.Action(u"commence par"_s),
                                    pieces.Action(u"Mot entier"_s)};
    for (QAction * const choisi : modes) {
        choisi->setChecked(true);
        for (QAction const * const mode : modes)
            QCOMPARE(mode->isChecked(), mode == choisi);
    }
}

QTEST_MAIN(tst_BarreRechercheMenu)
#include "tst_BarreRechercheMenu.moc"
