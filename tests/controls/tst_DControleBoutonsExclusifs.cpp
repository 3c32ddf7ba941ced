// tests/controls/tst_DControleBoutonsExclusifs.cpp
#include "controls/DControleBoutonsExclusifs.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Infos = std::vector<DControleBoutonsExclusifs::InfosBouton>;

Infos TroisBoutons()
{
    return {{u"Jour"_s, 1}, {u"Semaine"_s, 2, true}, {u"Mois"_s, 3}};
}

QList<QAbstractButton *> Boutons(DControleBoutonsExclusifs const & controle)
{
    return controle.findChild<QButtonGroup *>()->buttons();
}

} // namespace

class tst_DControleBoutonsExclusifs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ordreGarday();
    void proprietes();
    void premierCochayGagne_data();
    void premierCochayGagne();
    void identifiants();
    void identifiantEnDouble();
    void identifiantInvalide();
    void boutonEtranger();
    void metsCochay();
    void seulCochayReste();
    void ordreDesSignaux();
    void clics();
    void aucunSignalALaConstruction();
    void infobulle();
    void vide();
    void boutonDetruit();
    void disposition();
};

void tst_DControleBoutonsExclusifs::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DControleBoutonsExclusifs::ordreGarday()
{
    QWidget parent;
    DControleBoutonsExclusifs const controle(TroisBoutons(), &parent);
    QCOMPARE(controle.parentWidget(), &parent);
    QStringList textes;
    for (auto * const bouton : Boutons(controle))
        textes << bouton->text();
    QCOMPARE(textes, QStringList({u"Jour"_s, u"Semaine"_s, u"Mois"_s}));
    QVERIFY(controle.findChild<QButtonGroup *>()->exclusive());
    for (int i = 0; i < 3; ++i)
        QCOMPARE(controle.layout()->itemAt(2 * i)->widget(), Boutons(controle).at(i));
}

void tst_DControleBoutonsExclusifs::proprietes()
{
    DControleBoutonsExclusifs const controle(TroisBoutons());
    auto const * const bouton = controle.DonneBouton(2);
    QVERIFY(bouton);
    QCOMPARE(bouton->property("identifiant"), QVariant(2));
    QCOMPARE(bouton->property("etiquette").metaType(), QMetaType::fromType<QString>());
    QCOMPARE(bouton->property("etiquette").toString(), u"Semaine"_s);
}

void tst_DControleBoutonsExclusifs::premierCochayGagne_data()
{
    QTest::addColumn<QList<bool>>("coches");
    QTest::addColumn<QVariant>("cochay");
    QTest::newRow("none") << QList<bool>{false, false, false} << QVariant();
    QTest::newRow("one") << QList<bool>{false, true, false} << QVariant(1);
    QTest::newRow("first of two") << QList<bool>{false, true, true} << QVariant(1);
    QTest::newRow("all") << QList<bool>{true, true, true} << QVariant(0);
}

void tst_DControleBoutonsExclusifs::premierCochayGagne()
{
    QFETCH(QList<bool>, coches);
    QFETCH(QVariant, cochay);
    Infos infos;
    for (int i = 0; i < coches.size(); ++i)
        infos.push_back({QString::number(i), i, coches.at(i)});
    DControleBoutonsExclusifs const controle(infos);
    QCOMPARE(controle.DonneIdentifiantCochay(), cochay);
    for (auto * const bouton : Boutons(controle))
        QCOMPARE(bouton->isChecked(), cochay.isValid() && bouton == controle.DonneBouton(cochay));
}

void tst_DControleBoutonsExclusifs::identifiants()
{
    QVariant const paire = QVariant::fromValue(QPoint(1, 2));
    DControleBoutonsExclusifs const controle({{u"a"_s, 1}, {u"b"_s, u"deux"_s}, {u"c"_s, paire}});
    QCOMPARE(controle.DonneBouton(1)->text(), u"a"_s);
    QCOMPARE(controle.DonneBouton(u"deux"_s)->text(), u"b"_s);
    QCOMPARE(controle.DonneBouton(paire)->text(), u"c"_s);
    QVERIFY(!controle.DonneBouton(2));
    QVERIFY(!controle.DonneBouton(u"Deux"_s));
    QVERIFY(!controle.DonneBouton({}));
    for (auto * const bouton : Boutons(controle))
        QCOMPARE(controle.DonneBouton(controle.DonneIdentifiant(bouton)), bouton);
}

void tst_DControleBoutonsExclusifs::identifiantEnDouble()
{
    DControleBoutonsExclusifs controle({{u"a"_s, 1}, {u"b"_s, 1}, {u"c"_s, 2}});
    QCOMPARE(Boutons(controle).size(), 3);
    QCOMPARE(controle.DonneBouton(1)->text(), u"a"_s);
    controle.MetsCochay(1, true);
    QVERIFY(Boutons(controle).first()->isChecked());
    Boutons(controle).at(1)->click(); // the other one works all the same
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(1));
    QVERIFY(!Boutons(controle).first()->isChecked());
}

void tst_DControleBoutonsExclusifs::identifiantInvalide()
{
    DControleBoutonsExclusifs controle({{u"a"_s, 1}, {u"b"_s, QVariant()}});
    QCOMPARE(controle.DonneBouton({})->text(), u"b"_s);
    controle.MetsCochay({}, true);
    QVERIFY(Boutons(controle).last()->isChecked());
    QVERIFY(!controle.DonneIdentifiantCochay().isValid());
}

void tst_DControleBoutonsExclusifs::boutonEtranger()
{
    DControleBoutonsExclusifs const controle(TroisBoutons());
    DControleBoutonsExclusifs const autre(TroisBoutons());
    QPushButton etranger;
    etranger.setProperty("identifiant", 1);
    QVERIFY(!controle.DonneIdentifiant(nullptr).isValid());
    QVERIFY(!controle.DonneIdentifiant(&etranger).isValid());
    QVERIFY(!controle.DonneIdentifiant(autre.DonneBouton(1)).isValid());
}

void tst_DControleBoutonsExclusifs::metsCochay()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    QSignalSpy espion(&controle, &DControleBoutonsExclusifs::toggled);
    controle.MetsCochay(3, true);
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(3));
    QCOMPARE(espion.count(), 2);
    controle.MetsCochay(3, true);
    controle.MetsCochay(1, false);
    controle.MetsCochay(99, true);
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(3));
    QCOMPARE(espion.count(), 2);
}

// Deliberate: nothing but another button takes the check away.
void tst_DControleBoutonsExclusifs::seulCochayReste()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    QSignalSpy espion(&controle, &DControleBoutonsExclusifs::toggled);
    controle.MetsCochay(2, false);
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(2));
    QTest::mouseClick(controle.DonneBouton(2), Qt::LeftButton);
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(2));
    QCOMPARE(espion.count(), 0);
}

void tst_DControleBoutonsExclusifs::ordreDesSignaux()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    QSignalSpy espion(&controle, &DControleBoutonsExclusifs::toggled);
    QList<QVariant> coches;
    connect(&controle, &DControleBoutonsExclusifs::toggled, this,
            [&] { coches << controle.DonneIdentifiantCochay(); });
    controle.MetsCochay(1, true);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(0).at(0).toBool(), false);
    QCOMPARE(espion.at(1).at(0).toBool(), true);
    QCOMPARE(coches, QList<QVariant>({1, 1})); // the group has changed before either

    DControleBoutonsExclusifs sansCochay({{u"a"_s, 1}, {u"b"_s, 2}});
    QSignalSpy autre(&sansCochay, &DControleBoutonsExclusifs::toggled);
    sansCochay.MetsCochay(2, true);
    QCOMPARE(autre.count(), 1);
    QCOMPARE(autre.at(0).at(0).toBool(), true);
}

void tst_DControleBoutonsExclusifs::clics()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    QSignalSpy bascules(&controle, &DControleBoutonsExclusifs::toggled);
    QSignalSpy menus(&controle, &DControleBoutonsExclusifs::menuCliquay);
    QTest::mouseClick(controle.DonneBouton(3), Qt::LeftButton);
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(3));
    QCOMPARE(bascules.count(), 2);
    QCOMPARE(menus.count(), 0);
}

void tst_DControleBoutonsExclusifs::aucunSignalALaConstruction()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    QSignalSpy espion(&controle, &DControleBoutonsExclusifs::toggled);
    QCoreApplication::processEvents();
    QCOMPARE(espion.count(), 0);
}

void tst_DControleBoutonsExclusifs::infobulle()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    controle.MetsTooltipSurBouton(2, u"Sept jours"_s);
    controle.MetsTooltipSurBouton(99, u"Rien"_s);
    QCOMPARE(controle.DonneBouton(2)->toolTip(), u"Sept jours"_s);
    QCOMPARE(controle.DonneBouton(1)->toolTip(), QString());
    controle.MetsTooltipSurBouton(2, {});
    QCOMPARE(controle.DonneBouton(2)->toolTip(), QString());
}

void tst_DControleBoutonsExclusifs::vide()
{
    DControleBoutonsExclusifs controle({});
    QVERIFY(!controle.DonneBouton(1));
    QVERIFY(!controle.DonneBouton({}));
    QVERIFY(!controle.DonneIdentifiantCochay().isValid());
    controle.MetsCochay({}, true);
    controle.AppliqueProprieteStyleBoutons();
    controle.AjusterAffichageMenuBoutons({}, true);
    QCOMPARE(controle.layout()->count(), 0);
}

void tst_DControleBoutonsExclusifs::boutonDetruit()
{
    DControleBoutonsExclusifs controle(TroisBoutons());
    delete controle.DonneBouton(2);
    QVERIFY(!controle.DonneBouton(2));
    QVERIFY(!controle.DonneIdentifiantCochay().isValid());
    controle.MetsCochay(3, true);
    QCOMPARE(controle.DonneIdentifiantCochay(), QVariant(3));
}

void tst_DControleBoutonsExclusifs::disposition()
{
    DControleBoutonsExclusifs const controle(TroisBoutons());
    auto const * const rangee = qobject_cast<QHBoxLayout const *>(controle.layout());
    QVERIFY(rangee);
    QCOMPARE(rangee->contentsMargins(), QMargins());
    QCOMPARE(rangee->spacing(), 0);
    QCOMPARE(rangee->count(), 5); // with a separator between neighbours
    for (auto * const bouton : Boutons(controle))
        QVERIFY(!qobject_cast<QPushButton *>(bouton)->autoDefault());
    QCOMPARE(controle.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

QTEST_MAIN(tst_DControleBoutonsExclusifs)
#include "tst_DControleBoutonsExclusifs.moc"
