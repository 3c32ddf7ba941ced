#include "lists/ToolTipComboBox.h"

#include "lists/EssaisToolTipComboBox.h"

#include <memory>

using namespace EssaisToolTipComboBox;
using namespace Qt::StringLiterals;

class tst_ToolTipComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void boutonTraduit();
    void rangee();
    void rangeesDansLOrdre();
    void comboNul();
    void valeurChangee();
    void donneesDeLUtilisateur();
    void etatDuBouton();
    void ajoutNeChangePasLetat();
    void desactiver();
    void desactiverSansFiltre();
    void comboVide();
    void idInconnu();
    void indexParDonnees_data();
    void indexParDonnees();
    void redimensionnement();
};

void tst_ToolTipComboBox::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ToolTipComboBox::construction()
{
    ToolTipComboBox const popUp;
    QPushButton const * const bouton = Bouton(popUp);
    QVERIFY(bouton);
    QCOMPARE(bouton->text(), u"Désactiver les filtres"_s);
    QVERIFY(bouton->isFlat());
    QVERIFY(!bouton->isEnabled());
    QCOMPARE(Rangees(popUp)->count(), 1);
    QCOMPARE(Piece<QPushButton>(popUp, 0, 0), bouton);
    QCOMPARE(Rangees(popUp)->itemAt(0)->layout()->count(), 1);
    QVERIFY(qobject_cast<QHBoxLayout *>(Rangees(popUp)->itemAt(0)->layout()));
}

void tst_ToolTipComboBox::boutonTraduit()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    auto const retour =
        qScopeGuard([] { Traductions::MetsLanguePourApplicationCourante(kLangueFrancais); });
    ToolTipComboBox const popUp;
    QCOMPARE(Bouton(popUp)->text(), u"Disable Filters"_s);
}

void tst_ToolTipComboBox::rangee()
{
    ToolTipComboBox popUp;
    QComboBox * const combo = CreeCombo();
    popUp.AjouterComboBox(4, u"Longueur"_s, combo);
    QCOMPARE(popUp.PreteComboBox(4), combo);
    QCOMPARE(Rangees(popUp)->count(), 2);
    auto const * const etiquette = Piece<QLabel>(popUp, 0, 0);
    QVERIFY(etiquette);
    QCOMPARE(etiquette->text(), u"Longueur: "_s);
    QCOMPARE(etiquette->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(etiquette->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(etiquette->alignment() & Qt::AlignRight);
    QCOMPARE(etiquette->buddy(), combo); // names it for a screen reader
    QCOMPARE(Piece<QComboBox>(popUp, 0, 1), combo);
    QCOMPARE(combo->minimumWidth(), 100);
    QCOMPARE(combo->maximumWidth(), 100);
    QVERIFY(popUp.isAncestorOf(combo));
}

void tst_ToolTipComboBox::rangeesDansLOrdre()
{
    ToolTipComboBox popUp;
    QList<QComboBox *> const combos = {CreeCombo(), CreeCombo(), CreeCombo()};
    popUp.AjouterComboBox(3, u"a"_s, combos[0]);
    popUp.AjouterComboBox(1, u"b"_s, combos[1]);
    popUp.AjouterComboBox(2, u"c"_s, combos[2]);
    QCOMPARE(Rangees(popUp)->count(), 4);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(Piece<QComboBox>(popUp, i, 1), combos[i]);
    QCOMPARE(Piece<QPushButton>(popUp, 3, 0), Bouton(popUp)); // stays at the bottom
}

void tst_ToolTipComboBox::comboNul()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, nullptr);
    QCOMPARE(Rangees(popUp)->count(), 1);
    QCOMPARE(popUp.PreteComboBox(1), nullptr);
}

void tst_ToolTipComboBox::valeurChangee()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(7, u"a"_s, CreeCombo());
    QSignalSpy const espion(&popUp, &ToolTipComboBox::SignalValeurChanger);
    Ecoute ecoute(popUp);
    popUp.MetsIndexCourantComboBox(7, 2);
    QCOMPARE(popUp.PreteComboBox(7)->currentIndex(), 2);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0), QVariantList({7, 2, QVariant(102)}));
    QCOMPARE(ecoute.Prends(), QStringList({u"7:2"_s, u"+"_s})); // in this order
    popUp.MetsIndexCourantComboBox(7, 2);
    QCOMPARE(ecoute.Prends(), QStringList());
    popUp.MetsIndexCourantComboBox(7, -1);
    QCOMPARE(ecoute.Prends(), QStringList({u"7:-1"_s, u"+"_s}));
}

void tst_ToolTipComboBox::donneesDeLUtilisateur()
{
    ToolTipComboBox popUp;
    auto * const combo = new QComboBox;
    combo->addItems({u"tous"_s, u"sans"_s});
    combo->setItemData(1, u"cle"_s, Qt::UserRole);
    combo->setItemData(1, u"autre"_s, Qt::UserRole + 1);
    popUp.AjouterComboBox(1, u"a"_s, combo);
    QSignalSpy const espion(&popUp, &ToolTipComboBox::SignalValeurChanger);
    combo->setCurrentIndex(1);
    combo->setCurrentIndex(0);
    QCOMPARE(espion.at(0).at(2), QVariant(u"cle"_s));
    QVERIFY(!espion.at(1).at(2).value<QVariant>().isValid());
}

void tst_ToolTipComboBox::etatDuBouton()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, CreeCombo());
    popUp.AjouterComboBox(2, u"b"_s, CreeCombo());
    Ecoute ecoute(popUp);
    bool pendantLeSignal = false;
    connect(&popUp, &ToolTipComboBox::SignalFiltreActif, this,
            [&](bool) { pendantLeSignal = Bouton(popUp)->isEnabled(); });
    popUp.MetsIndexCourantComboBox(1, 1);
    QVERIFY(Bouton(popUp)->isEnabled());
    QVERIFY(pendantLeSignal);
    popUp.MetsIndexCourantComboBox(2, 2);
    popUp.MetsIndexCourantComboBox(1, 0);
    QVERIFY(Bouton(popUp)->isEnabled());
    popUp.MetsIndexCourantComboBox(2, 0);
    QVERIFY(!Bouton(popUp)->isEnabled());
    QVERIFY(!pendantLeSignal);
    QCOMPARE(ecoute.Prends().filter(QRegularExpression(u"^[+-]$"_s)),
             QStringList({u"+"_s, u"+"_s, u"+"_s, u"-"_s}));
}

void tst_ToolTipComboBox::ajoutNeChangePasLetat()
{
    ToolTipComboBox popUp;
    Ecoute ecoute(popUp);
    QComboBox * const combo = CreeCombo();
    combo->setCurrentIndex(1);
    popUp.AjouterComboBox(1, u"a"_s, combo);
    QVERIFY(!Bouton(popUp)->isEnabled());
    QCOMPARE(ecoute.Prends(), QStringList());
}

void tst_ToolTipComboBox::desactiver()
{
    ToolTipComboBox popUp;
    for (int const id : {3, 1, 2})
        popUp.AjouterComboBox(id, u"a"_s, CreeCombo());
    popUp.MetsIndexCourantComboBox(3, 1);
    popUp.MetsIndexCourantComboBox(1, 2);
    Ecoute ecoute(popUp);
    Bouton(popUp)->click();
    // Once per combo box that was not at 0, in the order of their ids; off only with the last.
    QCOMPARE(ecoute.Prends(), QStringList({u"1:0"_s, u"+"_s, u"3:0"_s, u"-"_s}));
    QVERIFY(!Bouton(popUp)->isEnabled());
}

void tst_ToolTipComboBox::desactiverSansFiltre()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, CreeCombo());
    QVERIFY(!popUp.PreteComboBox(9)); // leaves an entry without a combo box
    Ecoute ecoute(popUp);
    Bouton(popUp)->setEnabled(true);
    Bouton(popUp)->click();
    QCOMPARE(ecoute.Prends(), QStringList());
}

void tst_ToolTipComboBox::comboVide()
{
    // Deliberate: an empty combo box is at -1, which is not 0.
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, new QComboBox);
    popUp.AjouterComboBox(2, u"b"_s, CreeCombo());
    Ecoute ecoute(popUp);
    popUp.MetsIndexCourantComboBox(2, 1);
    Bouton(popUp)->click();
    QCOMPARE(ecoute.Prends(), QStringList({u"2:1"_s, u"+"_s, u"2:0"_s, u"+"_s}));
    QVERIFY(Bouton(popUp)->isEnabled());
}

void tst_ToolTipComboBox::idInconnu()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, CreeCombo());
    QCOMPARE(popUp.PreteComboBox(5), nullptr);
    popUp.MetsIndexCourantComboBox(5, 1);
    popUp.MetsIndexCourantComboBox(6, 1);
    QCOMPARE(popUp.TrouveIndexAvecData(5, 101), -1);
    QCOMPARE(popUp.TrouveIndexAvecData(8, 101), -1);
    popUp.MetsIndexCourantComboBox(1, 1);
    QVERIFY(Bouton(popUp)->isEnabled());
    Bouton(popUp)->click();
    QVERIFY(!Bouton(popUp)->isEnabled());
    popUp.AjouterComboBox(5, u"b"_s, CreeCombo());
    QVERIFY(popUp.PreteComboBox(5));
}

void tst_ToolTipComboBox::indexParDonnees_data()
{
    QTest::addColumn<QVariant>("donnees");
    QTest::addColumn<int>("index");
    QTest::newRow("first") << QVariant(u"tous"_s) << 0;
    QTest::newRow("other") << QVariant(u"Cle"_s) << 2;
    QTest::newRow("case counts") << QVariant(u"cle"_s) << 1;
    QTest::newRow("no such data") << QVariant(u"CLE"_s) << -1;
    QTest::newRow("part of it") << QVariant(u"cl"_s) << -1;
    QTest::newRow("the text is no data") << QVariant(u"texte"_s) << -1;
}

void tst_ToolTipComboBox::indexParDonnees()
{
    QFETCH(QVariant, donnees);
    ToolTipComboBox popUp;
    auto * const combo = new QComboBox;
    for (QString const & cle : {u"tous"_s, u"cle"_s, u"Cle"_s})
        combo->addItem(u"texte"_s, cle);
    popUp.AjouterComboBox(1, u"a"_s, combo);
    QTEST(popUp.TrouveIndexAvecData(1, donnees), "index");
}

void tst_ToolTipComboBox::redimensionnement()
{
    ToolTipComboBox popUp;
    QList<QSize> tailles;
    connect(&popUp, &ToolTipComboBox::SignalResizeEvent, this,
            [&](QResizeEvent const * evenement) { tailles << evenement->size(); });
    QResizeEvent evenement(QSize(120, 80), QSize(10, 10));
    QCoreApplication::sendEvent(&popUp, &evenement);
    QCOMPARE(tailles, QList<QSize>{QSize(120, 80)});
}

QTEST_MAIN(tst_ToolTipComboBox)
#include "tst_ToolTipComboBox.moc"
