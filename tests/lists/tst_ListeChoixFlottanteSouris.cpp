#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QDialog>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QWindow>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// The mouse over the rows, and the connections that live only while the list is shown.

class tst_ListeChoixFlottanteSouris : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void survol();
    void clic_data();
    void clic();
    void styleQuiActiveAuClic();
    void clicHorsDesRangees();
    void clicDeDroite();
    void listeCachee();
    void afficheeDeuxFois();
    void cacheeDeuxFois();
    void doubleClic();
    void choixQuiCache();
    void clicDansLaFenetre();
    void dialogueModal();
    void focusDuChamp();
    void survolSansDerive();
};

namespace {

// In the window of the list: the mouse comes through the window system's queue, as a real one.
QPoint Place(Hote const & hote, int rangee)
{
    return hote.Vue()->viewport()->mapTo(hote.liste.data(), hote.Milieu(rangee));
}

// That of desktops where one click opens a file.
class StyleAuClic : public QProxyStyle
{
public:
    int styleHint(StyleHint indice, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override
    {
        return indice == SH_ItemView_ActivateItemOnSingleClick
                   ? 1
                   : QProxyStyle::styleHint(indice, option, widget, retour);
    }
};

} // namespace

void tst_ListeChoixFlottanteSouris::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteSouris::survol()
{
    Hote const hote(true);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3), 2));
    QVERIFY(QTest::qWaitForWindowExposed(hote.liste));
    for (int const rangee : {2, 1, 0}) {
        QTest::mouseMove(hote.liste->windowHandle(), Place(hote, rangee));
        QTRY_COMPARE(hote.Rangee(), rangee);
        QCOMPARE(hote.liste->DonneItemsSelectionnay().value(0)->text(), u"mot %1"_s.arg(rangee));
    }
    // The keys go on from where the mouse is.
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.Rangee(), 1);
    QCOMPARE(choix.count(), 0);
}

void tst_ListeChoixFlottanteSouris::clic_data()
{
    QTest::addColumn<int>("rangee");
    QTest::newRow("a row") << 2;
    QTest::newRow("a row that the automatic choice passes over") << 1;
}

void tst_ListeChoixFlottanteSouris::clic()
{
    QFETCH(int, rangee);
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(1).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(rangee));
    QCOMPARE(choix.count(), 1);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot %1"_s.arg(rangee)));
    QVERIFY(hote.liste->isVisible());
}

void tst_ListeChoixFlottanteSouris::styleQuiActiveAuClic()
{
    StyleAuClic style;
    Hote const hote;
    hote.Vue()->setStyle(&style);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QSignalSpy const clics(hote.Vue(), &QTreeView::clicked);
    QSignalSpy const activations(hote.Vue(), &QTreeView::activated);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(2));
    QCOMPARE(clics.count(), 1);
    QCOMPARE(activations.count(), 1);
    QCOMPARE(choix.count(), 1);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 2"_s));
    QTest::keyClick(hote.champ, Qt::Key_Return);
    QCOMPARE(choix.count(), 2);
}

void tst_ListeChoixFlottanteSouris::clicHorsDesRangees()
{
    // Two columns leave as much room below the rows.
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3), 2));
    QRect const derniere = hote.Vue()->visualRect(hote.Vue()->model()->index(2, 0));
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {},
                      derniere.bottomLeft() + QPoint(2, derniere.height()));
    QCOMPARE(choix.count(), 0);
}

void tst_ListeChoixFlottanteSouris::clicDeDroite()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::mouseClick(hote.Vue()->viewport(), Qt::RightButton, {}, hote.Milieu(1));
    QCOMPARE(choix.count(), 0);
}

void tst_ListeChoixFlottanteSouris::listeCachee()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    auto & modele = *qobject_cast<QStandardItemModel *>(hote.Vue()->model());
    modele.appendRow(new QStandardItem(u"jamais montré"_s));
    Q_EMIT hote.Vue()->clicked(modele.index(0, 0));
    QCOMPARE(choix.count(), 0);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.liste->CacheToi();
    QModelIndex const index = hote.Vue()->model()->index(1, 0);
    Q_EMIT hote.Vue()->clicked(index);
    Q_EMIT hote.Vue()->activated(index);
    QCOMPARE(choix.count(), 0);
    hote.liste->AfficheToi();
    Q_EMIT hote.Vue()->clicked(index);
    QCOMPARE(choix.count(), 1);
    Q_EMIT hote.Vue()->activated(index);
    QCOMPARE(choix.count(), 2);
}

void tst_ListeChoixFlottanteSouris::afficheeDeuxFois()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    for (int i = 0; i < 3; ++i)
        hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.liste->AfficheToi();
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(0));
    QCOMPARE(choix.count(), 1);
    hote.liste->CacheToi();
    Q_EMIT hote.Vue()->clicked(hote.Vue()->model()->index(0, 0));
    QCOMPARE(choix.count(), 1);
}

void tst_ListeChoixFlottanteSouris::cacheeDeuxFois()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.liste->CacheToi();
    hote.liste->CacheToi();
    hote.liste->AfficheToi();
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(0));
    QCOMPARE(choix.count(), 1);
}

void tst_ListeChoixFlottanteSouris::doubleClic()
{
    // Deliberate: the view tells the first click, then an activation; one who hides the list at
    // the first hears of no second.
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QPoint const milieu = hote.Milieu(1);
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, milieu);
    QTest::mouseDClick(hote.Vue()->viewport(), Qt::LeftButton, {}, milieu);
    QCOMPARE(choix.count(), 2);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 1"_s));
}

void tst_ListeChoixFlottanteSouris::choixQuiCache()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, hote.liste,
            &ListeChoixFlottante::CacheToi);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QPoint const milieu = hote.Milieu(1);
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, milieu);
    QTest::mouseDClick(hote.Vue()->viewport(), Qt::LeftButton, {}, milieu);
    QTest::mouseRelease(hote.Vue()->viewport(), Qt::LeftButton, {}, milieu);
    QCOMPARE(choix.count(), 1);
    QVERIFY(hote.liste->isHidden());
}

void tst_ListeChoixFlottanteSouris::clicDansLaFenetre()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(QTest::qWaitForWindowExposed(hote.liste));
    QTest::mouseClick(hote.liste->windowHandle(), Qt::LeftButton, {}, Place(hote, 1));
    QTRY_COMPARE(DernierChoix(choix), QStringList(u"mot 1"_s));
}

void tst_ListeChoixFlottanteSouris::dialogueModal()
{
    // The dialog blocks all windows but those that belong to it, as the list of its field does.
    Hote hote;
    QDialog dialogue;
    QLineEdit champ(&dialogue);
    dialogue.open();
    dialogue.setWindowModality(Qt::ApplicationModal);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue));
    delete hote.liste;
    hote.liste = new ListeChoixFlottante(nullptr, false, &champ);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(QTest::qWaitForWindowExposed(hote.liste));
    QTest::mouseClick(hote.liste->windowHandle(), Qt::LeftButton, {}, Place(hote, 2));
    QTRY_COMPARE(DernierChoix(choix), QStringList(u"mot 2"_s));
}

void tst_ListeChoixFlottanteSouris::focusDuChamp()
{
    Hote hote;
    hote.champ->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&hote.fenetre));
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTRY_COMPARE(QApplication::focusWidget(), hote.champ);
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
    QCOMPARE(QApplication::focusWidget(), hote.champ);
    QVERIFY(!hote.liste->focusWidget());
}

void tst_ListeChoixFlottanteSouris::survolSansDerive()
{
    // Columns that the reference cuts: no bar would bring back what slid away under the mouse.
    Hote const hote;
    QString const texte(20, u'w');
    auto const propose = [&] { hote.liste->ActualiseListeChoix(CreeRangees({texte, texte}, 3)); };
    hote.champ->resize(3000, 28);
    propose();
    int const colonne = hote.Vue()->sizeHintForIndex(hote.Vue()->model()->index(0, 0)).width();
    hote.champ->resize(3 * colonne / 2, 28);
    propose();
    QVERIFY(QTest::qWaitForWindowExposed(hote.liste));
    QModelIndex const premiere = hote.Vue()->model()->index(1, 0);
    QRect const avant = hote.Vue()->visualRect(premiere);
    QPoint const bord(hote.Vue()->viewport()->width() - 2, avant.center().y());
    QCOMPARE(hote.Vue()->indexAt(bord).column(), 1);
    QTest::mouseMove(hote.liste->windowHandle(),
                     hote.Vue()->viewport()->mapTo(hote.liste.data(), bord));
    QTRY_COMPARE(hote.Rangee(), 1);
    QCOMPARE(hote.Vue()->visualRect(premiere), avant);
}

QTEST_MAIN(tst_ListeChoixFlottanteSouris)
#include "tst_ListeChoixFlottanteSouris.moc"
