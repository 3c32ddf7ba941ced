// tests/search/tst_BarreRechercheVie.cpp
#include "search/HoteEspion.h"
#include "search/PiecesBarre.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreRechercheVie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void suppression_data();
    void suppression();
    void suppressionParAnnulation();
    void suppressionPendantLeChoix();
    void menuSurvit();
    void menuOuvert();
    void rienNeReste();
};

void tst_BarreRechercheVie::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheVie::suppression_data()
{
    QTest::addColumn<bool>("fermay");
    QTest::addColumn<bool>("echap");
    QTest::addColumn<QStringList>("entendus");
    QTest::newRow("button, first signal") << true << false << QStringList{u"Fermay"_s};
    QTest::newRow("button, second signal")
        << false << false << QStringList{u"Fermay"_s, u"Fermeture"_s};
    QTest::newRow("Escape, first signal") << false << true << QStringList{u"Fermeture"_s};
    QTest::newRow("Escape, second signal")
        << true << true << QStringList{u"Fermeture"_s, u"Fermay"_s};
}

void tst_BarreRechercheVie::suppression()
{
    QFETCH(bool, fermay);
    QFETCH(bool, echap);
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    QStringList entendus;
    auto const entends = [&](QString const & nom, bool fatal) {
        entendus << nom;
        if (fatal)
            delete essai.barre;
    };
    connect(essai.barre, &BarreRecherche::SignalFermeture, this,
            [&] { entends(u"Fermeture"_s, !fermay); });
    connect(essai.barre, &BarreRecherche::SignalBarreRechercheFermay, this,
            [&] { entends(u"Fermay"_s, fermay); });

    if (echap)
        QTest::keyClick(essai.fenetre.windowHandle(), Qt::Key_Escape);
    else
        QTest::mouseClick(essai.pieces.fermer, Qt::LeftButton);

    QTEST(entendus, "entendus");
    QVERIFY(essai.fenetre.findChild<BarreRecherche *>() == nullptr);
}

void tst_BarreRechercheVie::suppressionParAnnulation()
{
    for (bool const fermeture : {false, true}) {
        FenetreDeBarre essai;
        QVERIFY(essai.Montre());
        essai.barre->MetEnCoursDeRemplacerTout(true);
        HoteEspion hote(essai.barre);
        QSignalSpy const espion(essai.barre, &BarreRecherche::SignalBarreRechercheFermay);
        hote.pendantUnAppel = [&](QString const &) {
            hote.OublieRecherche();
            delete essai.barre;
        };
        QTest::mouseClick(fermeture ? essai.pieces.fermer : essai.pieces.annuler, Qt::LeftButton);
        QCOMPARE(hote.DonneNoms(), QStringList{u"AnnulerRemplacerTout"_s});
        QCOMPARE(espion.size(), 0);
    }
}

void tst_BarreRechercheVie::suppressionPendantLeChoix()
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

void tst_BarreRechercheVie::menuSurvit()
{
    auto * const barre = new BarreRecherche(nullptr, true, true, true, true);
    PiecesBarre const pieces(*barre);
    QPointer<QMenu> const menu(pieces.Menu());
    QPointer<QAction> const remplacer(pieces.Action(u"Remplacer"_s));
    QList<QPointer<QAction>> autres;
    for (QString const & texte :
         {u"contient"_s, u"commence par"_s, u"Mot entier"_s, u"respecter la casse"_s})
        autres.append(pieces.Action(texte));

    delete barre;

    for (QPointer<QAction> const & action : autres)
        QVERIFY(action.isNull());
    QVERIFY(!menu.isNull());
    QVERIFY(!remplacer.isNull());
    remplacer->trigger(); // there is no row to open any more
    QVERIFY(remplacer->isChecked());
    EnvoieSuppressions();
    QVERIFY(menu.isNull());
    QVERIFY(remplacer.isNull());
}

void tst_BarreRechercheVie::menuOuvert()
{
    auto * const barre = new BarreRecherche(nullptr, true);
    barre->resize(400, barre->height());
    barre->show();
    QVERIFY(QTest::qWaitForWindowActive(barre));
    QPointer<QMenu> const menu(PiecesBarre(*barre).Menu());
    menu->popup(barre->mapToGlobal(QPoint(0, barre->height())));
    QTRY_VERIFY(menu->isVisible());
    delete barre;
    QVERIFY(!menu.isNull());
    QTRY_VERIFY(menu.isNull());
}

void tst_BarreRechercheVie::rienNeReste()
{
    constexpr int kBarres = 200;
    auto const compte = [] {
        EnvoieSuppressions();
        return QApplication::allWidgets().size();
    };
    qsizetype const avant = compte();
    QList<QPointer<QAction>> actions;
    {
        QWidget parent;
        for (int rang = 0; rang < kBarres; ++rang) {
            auto const * const barre =
                new BarreRecherche(&parent, true, rang % 2 == 0, rang % 3 == 0, true);
            for (QAction * const action : PiecesBarre(*barre).Menu()->actions())
                actions.append(action);
        }
        QVERIFY(QApplication::allWidgets().size() >= avant + kBarres);
    }
    QCOMPARE(compte(), avant);
    for (QPointer<QAction> const & action : actions)
        QVERIFY(action.isNull());
}

QTEST_MAIN(tst_BarreRechercheVie)
#include "tst_BarreRechercheVie.moc"
