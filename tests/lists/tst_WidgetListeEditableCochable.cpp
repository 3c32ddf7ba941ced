#include "lists/WidgetListeEditableCochable.h"

#include "lists/EssaisCochable.h"

#include <QStandardItemModel>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace EssaisCochable;
using namespace EssaisVariantes;
using namespace Qt::StringLiterals;

class tst_WidgetListeEditableCochable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void uneCaseParRangee();
    void etatDonnay();
    void rangeeSansPremierItem();
    void boutonAjouter();
    void metsCochay();
    void horsBornes();
    void clicSurLaCase();
    void clicACote();
    void listeInactive();
    void laFinDUneEditionReste();
    void autreRole();
    void caseDUneAutreColonne();
    void rangeeQuiBouge();
    void tri();
    void receveurQuiRetireLaRangee();
    void receveurQuiDetruitLaListe();

private:
    std::unique_ptr<Liste> maListe;
};

namespace {

QRect RectDeLaCase(Liste const & liste, int rangee)
{
    DTreeView const & vue = *liste.PreteVue();
    QStyleOptionViewItem option;
    option.initFrom(&vue);
    option.rect = vue.visualRect(vue.model()->index(rangee, 0));
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    return vue.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &vue);
}

} // namespace

void tst_WidgetListeEditableCochable::init()
{
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    maListe->Montre();
}

void tst_WidgetListeEditableCochable::cleanup()
{
    maListe.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableCochable::uneCaseParRangee()
{
    for (int rangee = 0; rangee < 4; ++rangee) {
        QVERIFY(maListe->DonneElement(rangee, 0)->isCheckable());
        QVERIFY(maListe->DonneElement(rangee, 0)->data(Qt::CheckStateRole).isValid());
        QVERIFY(!maListe->EstCochay(rangee));
        QVERIFY(!maListe->DonneElement(rangee, 1)->data(Qt::CheckStateRole).isValid());
    }
    QVERIFY(maListe->DonneRangeesCochay().empty());
}

void tst_WidgetListeEditableCochable::etatDonnay()
{
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    QSignalSpy const fins(maListe.get(), &Liste::SignalEditionTerminay);
    Liste::Valeurs ligne = Ligne({u"e"_s, u"e2"_s});
    ligne[1].AjouteFin({static_cast<int>(Qt::Checked), Qt::CheckStateRole});

    maListe->AjouteElement(ligne);

    QCOMPARE(Cochees(*maListe), QList<int>{4});
    QVERIFY(maListe->DonneElement(4, 0)->isCheckable());
    QCOMPARE(coches.count(), 0);
    QCOMPARE(fins.count(), 0);
}

void tst_WidgetListeEditableCochable::rangeeSansPremierItem()
{
    maListe->AjouteElement({nullptr, new QStandardItem(u"seul"_s)}, 1);
    QVERIFY(maListe->DonneElement(1, 0));
    QVERIFY(maListe->DonneElement(1, 0)->isCheckable());
    QVERIFY(maListe->DonneElement(1, 0)->isEditable());
    maListe->MetsCochay(1, true);
    QCOMPARE(Cochees(*maListe), QList<int>{1});
}

void tst_WidgetListeEditableCochable::boutonAjouter()
{
    QSignalSpy const fins(maListe.get(), &Liste::SignalEditionTerminay);
    maListe->DonneBoutonAjouter()->click();
    QCOMPARE(maListe->DonneNbRangee(), 5);
    QVERIFY(maListe->DonneElement(4, 0)->isCheckable());
    QCOMPARE(fins.count(), 0);
    QCOMPARE(maListe->Editeurs().size(), 1);

    QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Escape);
    QTest::keyRelease(maListe->PreteVue(), Qt::Key_Escape);

    QTRY_COMPARE(maListe->DonneNbRangee(), 4); // left empty
}

void tst_WidgetListeEditableCochable::metsCochay()
{
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);

    maListe->MetsCochay(2, true);

    QCOMPARE(coches.count(), 1);
    QCOMPARE(coches.at(0).at(0).toModelIndex(), maListe->PreteModele()->index(2, 0));
    QCOMPARE(coches.at(0).at(1).toBool(), true);
    QCOMPARE(modifications.count(), 1);
    maListe->MetsCochay(2, true);
    QCOMPARE(coches.count(), 1);
    QCOMPARE(modifications.count(), 1);
    maListe->MetsCochay(0, true);
    QCOMPARE(Cochees(*maListe), (QList<int>{0, 2}));
    maListe->MetsCochay(2, false);
    QCOMPARE(coches.last().at(1).toBool(), false);
    QCOMPARE(Cochees(*maListe), QList<int>{0});
}

void tst_WidgetListeEditableCochable::horsBornes()
{
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    for (int const rangee : {-1, 4, 1000}) {
        maListe->MetsCochay(rangee, true);
        QVERIFY(!maListe->EstCochay(rangee));
    }
    QCOMPARE(modifications.count(), 0);
}

void tst_WidgetListeEditableCochable::clicSurLaCase()
{
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    QPoint const milieu = RectDeLaCase(*maListe, 1).center();

    QTest::mouseClick(maListe->PreteVue()->viewport(), Qt::LeftButton, {}, milieu);

    QCOMPARE(Cochees(*maListe), QList<int>{1});
    QCOMPARE(coches.count(), 1);
    QCOMPARE(modifications.count(), 1);
    QTest::mouseClick(maListe->PreteVue()->viewport(), Qt::LeftButton, {}, milieu);
    QVERIFY(Cochees(*maListe).isEmpty());
    QCOMPARE(modifications.count(), 2);
}

void tst_WidgetListeEditableCochable::clicACote()
{
    QTest::mouseClick(maListe->PreteVue()->viewport(), Qt::LeftButton, {}, maListe->Milieu(1, 1));
    QVERIFY(Cochees(*maListe).isEmpty());
}

void tst_WidgetListeEditableCochable::listeInactive()
{
    maListe->Choisis({1});
    maListe->MetsUtilisateurPeutChangerValeur(false);
    QTest::mouseClick(maListe->PreteVue()->viewport(), Qt::LeftButton, {},
                      RectDeLaCase(*maListe, 1).center());
    QVERIFY(Cochees(*maListe).isEmpty());
    maListe->MetsCochay(1, true); // the host may
    QCOMPARE(Cochees(*maListe), QList<int>{1});
}

void tst_WidgetListeEditableCochable::laFinDUneEditionReste()
{
    QSignalSpy const fins(maListe.get(), &Liste::SignalEditionTerminay);
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);

    maListe->MetsElement(maListe->PreteModele()->index(0, 0), u"autre"_s);

    QCOMPARE(fins.count(), 1);
    QTRY_COMPARE(modifications.count(), 1);
    maListe->DonneElement(0, 0)->setText({});
    QTRY_COMPARE(maListe->DonneNbRangee(), 3);
}

void tst_WidgetListeEditableCochable::autreRole()
{
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    maListe->DonneElement(0, 0)->setToolTip(u"infobulle"_s);
    QCOMPARE(coches.count(), 0);
}

void tst_WidgetListeEditableCochable::caseDUneAutreColonne()
{
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    maListe->DonneElement(0, 1)->setCheckState(Qt::Checked);
    QCOMPARE(coches.count(), 0);
    QCOMPARE(modifications.count(), 0);
    QVERIFY(!maListe->EstCochay(0));
}

void tst_WidgetListeEditableCochable::rangeeQuiBouge()
{
    maListe->MetsCochay(1, true);
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    maListe->Choisis({1});
    maListe->PriseBougeElementSelectionner(false);
    QCOMPARE(maListe->Textes(), (QStringList{u"a"_s, u"c"_s, u"b"_s, u"d"_s}));
    QCOMPARE(Cochees(*maListe), QList<int>{2});
    QCOMPARE(coches.count(), 0);
}

void tst_WidgetListeEditableCochable::tri()
{
    maListe->ActualiseEntete({UniChaine("A"), UniChaine("B")}, {}, true);
    maListe->MetsCochay(1, true);
    maListe->Trier(0, Qt::DescendingOrder);
    QCOMPARE(maListe->Textes(), (QStringList{u"d"_s, u"c"_s, u"b"_s, u"a"_s}));
    QCOMPARE(Cochees(*maListe), QList<int>{2});
}

void tst_WidgetListeEditableCochable::receveurQuiRetireLaRangee()
{
    connect(maListe.get(), &Liste::SignalCocheModifiay, maListe.get(),
            [this](QModelIndex const & element) { maListe->RetireRangee(element.row(), true); });
    maListe->Choisis({0, 1, 3});
    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space);
    QCOMPARE(maListe->Textes(), QStringList{u"c"_s});
}

void tst_WidgetListeEditableCochable::receveurQuiDetruitLaListe()
{
    auto const detruis = [this] { maListe.reset(); };
    connect(maListe.get(), &Liste::SignalCocheModifiay, this, detruis);
    maListe->Choisis({0, 1, 3});
    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space);
    QVERIFY(!maListe);
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());

    init();
    connect(maListe.get(), &Liste::SignalCocheModifiay, this, detruis);
    QTest::mouseClick(maListe->PreteVue()->viewport(), Qt::LeftButton, {},
                      RectDeLaCase(*maListe, 1).center());
    QVERIFY(!maListe);
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(tst_WidgetListeEditableCochable)
#include "tst_WidgetListeEditableCochable.moc"
