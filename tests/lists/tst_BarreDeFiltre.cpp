#include "lists/PiecesBarreDeFiltre.h"

#include "noyau/Traductions.h"

#include <QAccessible>
#include <QtTest>

using namespace Qt::StringLiterals;

class tst_BarreDeFiltre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction_data();
    void construction();
    void ordre();
    void signaux();
    void champ();
    void noms();
    void etiquette();
    void filtres();
    void transmetLesValeurs();
    void rienSansPopUp();
    void destructionAvecPopUp();
};

namespace {

QStringList Signaux(QMetaObject const & meta)
{
    QStringList noms;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            noms << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return noms;
}

} // namespace

void tst_BarreDeFiltre::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreDeFiltre::construction_data()
{
    QTest::addColumn<bool>("avecBouton");
    QTest::addColumn<bool>("avecPopUp");
    QTest::newRow("everything") << true << true;
    QTest::newRow("a menu instead of the pop-up") << true << false;
    QTest::newRow("a pop-up that no button opens") << false << true;
    QTest::newRow("neither") << false << false;
}

void tst_BarreDeFiltre::construction()
{
    QFETCH(bool, avecBouton);
    QFETCH(bool, avecPopUp);
    QWidget parent;
    auto * const barre = new BarreDeFiltre(avecBouton, avecPopUp, &parent);
    PiecesBarreDeFiltre const pieces(*barre);
    QCOMPARE(barre->parentWidget(), &parent);
    QCOMPARE(barre->objectName(), u"BandeauRecherche"_s);
    QCOMPARE(barre->accessibleName(), u"Barre des filtres"_s);
    QCOMPARE(barre->layout()->contentsMargins(), QMargins(15, 0, 0, 0));
    QCOMPARE(pieces.bouton != nullptr, avecBouton);
    QCOMPARE(pieces.popUp != nullptr, avecPopUp);
    QVERIFY(pieces.liste->isHidden());
    QCOMPARE(pieces.liste->layout()->spacing(), 10);
    QCOMPARE(pieces.liste->maximumWidth(), 0);
    QCOMPARE(pieces.etiquette->text(), QString());
    QCOMPARE(BarreDeFiltre(avecBouton, avecPopUp).parentWidget(), nullptr);
}

void tst_BarreDeFiltre::ordre()
{
    BarreDeFiltre const barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    QList<QWidget *> widgets;
    for (int i = 0; i < barre.layout()->count(); ++i)
        widgets << barre.layout()->itemAt(i)->widget();
    QCOMPARE(widgets,
             QList<QWidget *>({pieces.liste, pieces.champ, pieces.etiquette, pieces.bouton}));
    QVERIFY(qobject_cast<QHBoxLayout *>(barre.layout()));
    QCOMPARE(barre.layout()->itemAt(0)->alignment(), Qt::AlignVCenter);
}

void tst_BarreDeFiltre::signaux()
{
    QCOMPARE(
        Signaux(BarreDeFiltre::staticMetaObject),
        QStringList({u"SignalValeurChanger(int,int,QVariant)"_s, u"PastilleASupprimer(QVariant)"_s,
                     u"EtiquetteCardinalitayModifiay()"_s}));
    QCOMPARE(
        Signaux(ToolTipComboBox::staticMetaObject),
        QStringList({u"SignalResizeEvent(QResizeEvent*)"_s,
                     u"SignalValeurChanger(int,int,QVariant)"_s, u"SignalFiltreActif(bool)"_s}));
    QCOMPARE(Signaux(Pastille::staticMetaObject), QStringList(u"PastilleASupprimer(QVariant)"_s));
}

void tst_BarreDeFiltre::champ()
{
    BarreDeFiltre const barre(true, true);
    DChampRecherche const * const champ = barre.PreteComboDeRecherche();
    QVERIFY(champ);
    QCOMPARE(champ->objectName(), u"ComboFiltre"_s);
    QCOMPARE(champ->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(champ->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(champ->DonneNombreDeModes(), 0);
}

void tst_BarreDeFiltre::noms()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    auto const retour =
        qScopeGuard([] { Traductions::MetsLanguePourApplicationCourante(kLangueFrancais); });
    BarreDeFiltre const barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    QCOMPARE(barre.accessibleName(), u"Filter Bar"_s);
    QCOMPARE(pieces.bouton->toolTip(), u"Display Configuration"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(pieces.bouton)->text(QAccessible::Name),
             u"Display Configuration"_s);
}

void tst_BarreDeFiltre::etiquette()
{
    BarreDeFiltre barre(true, true);
    QLabel const & etiquette = *PiecesBarreDeFiltre(barre).etiquette;
    QSignalSpy const espion(&barre, &BarreDeFiltre::EtiquetteCardinalitayModifiay);
    barre.MetsTexteCardinalitay(UniChaine(u"12 mots"_s));
    QCOMPARE(etiquette.text(), u"12 mots"_s);
    QCOMPARE(etiquette.contentsMargins(), QMargins(7, 0, 7, 0));
    QCOMPARE(espion.count(), 1);
    barre.MetsTexteCardinalitay(UniChaine());
    QCOMPARE(etiquette.text(), QString());
    QCOMPARE(etiquette.contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(espion.count(), 2);
}

void tst_BarreDeFiltre::filtres()
{
    BarreDeFiltre barre(true, true);
    PiecesBarreDeFiltre const pieces(barre);
    QComboBox * const combo = CreeComboDeFiltre();
    barre.AjouterComboBox(4, u"Longueur"_s, combo);
    QCOMPARE(barre.PreteComboBox(4), combo);
    QVERIFY(pieces.popUp->isAncestorOf(combo));
    QCOMPARE(barre.PreteComboBox(5), nullptr);
    barre.MetsIndexCourantComboBox(4, 2);
    QCOMPARE(combo->currentIndex(), 2);
    barre.MetsIndexCourantComboBox(5, 2);
    QCOMPARE(barre.TrouveIndexAvecData(4, 101), 1);
    QCOMPARE(barre.TrouveIndexAvecData(4, 99), -1);
    QCOMPARE(barre.TrouveIndexAvecData(5, 101), -1);
}

void tst_BarreDeFiltre::transmetLesValeurs()
{
    BarreDeFiltre barre(true, true);
    barre.AjouterComboBox(4, u"Longueur"_s, CreeComboDeFiltre());
    barre.AjouterComboBox(2, u"Initiale"_s, CreeComboDeFiltre());
    QSignalSpy espion(&barre, &BarreDeFiltre::SignalValeurChanger);
    barre.MetsIndexCourantComboBox(4, 2);
    barre.MetsIndexCourantComboBox(2, 1);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(0), QVariantList({4, 2, QVariant(102)}));
    espion.clear();
    auto * const desactiver = PiecesBarreDeFiltre(barre).popUp->findChild<QPushButton *>();
    desactiver->click();
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(0), QVariantList({2, 0, QVariant(100)}));
    QCOMPARE(espion.at(1), QVariantList({4, 0, QVariant(100)}));
}

void tst_BarreDeFiltre::rienSansPopUp()
{
    BarreDeFiltre barre(true, false);
    std::unique_ptr<QComboBox> const combo(CreeComboDeFiltre());
    barre.AjouterComboBox(1, u"a"_s, combo.get());
    QCOMPARE(combo->parentWidget(), nullptr);
    barre.MetsIndexCourantComboBox(1, 1);
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(barre.PreteComboBox(1), nullptr);
    QCOMPARE(barre.TrouveIndexAvecData(1, 100), -1);
    QMetaObject::invokeMethod(&barre, "PriseAfficherToolTip");
}

void tst_BarreDeFiltre::destructionAvecPopUp()
{
    auto barre = std::make_unique<BarreDeFiltre>(true, true);
    QPointer<QComboBox> const combo = CreeComboDeFiltre();
    barre->AjouterComboBox(1, u"a"_s, combo);
    barre->MetsIndexCourantComboBox(1, 1);
    barre->AjouterMotPastille(u"mot"_s, 1);
    QPointer<QMenu> const menu = PiecesBarreDeFiltre(*barre).Menu();
    barre.reset();
    QVERIFY(!combo);
    QVERIFY(!menu);

    BarreDeFiltre sansMenu(true, true); // whose pop-up goes with its menu
    delete PiecesBarreDeFiltre(sansMenu).Menu();
    QCOMPARE(sansMenu.PreteComboBox(1), nullptr);
    QMetaObject::invokeMethod(&sansMenu, "PriseAfficherToolTip");
}

QTEST_MAIN(tst_BarreDeFiltre)
#include "tst_BarreDeFiltre.moc"
