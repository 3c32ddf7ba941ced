#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QStandardItemModel>
#include <QWindow>
#include <QtTest>

#include <functional>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// Who hides, dies or is replaced while the list is shown, or in the middle of a choice.

namespace {

using Action = std::function<void(Hote &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_ListeChoixFlottanteVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void disparition_data();
    void disparition();
    void retourDeLaFenetre();
    void fenetreDetruite();
    void ancienWidget();
    void interfaceDetruite();
    void pendantUnChoix_data();
    void pendantUnChoix();
    void choixDansUnChoix();
    void destructionApresUnChoixInterne();
    void destructionALaFermeture();
    void champDetruitAuChoix_data();
    void champDetruitAuChoix();
    void destructionVisible();
    void sansHote();
};

void tst_ListeChoixFlottanteVies::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteVies::disparition_data()
{
    QTest::addColumn<Action>("action");
    auto const ajoute = [](char const * nom, Action const & action) {
        QTest::newRow(nom) << action;
    };
    ajoute("field hidden", [](Hote & hote) { hote.champ->hide(); });
    ajoute("field destroyed", [](Hote & hote) { delete hote.champ; });
    ajoute("window hidden", [](Hote & hote) { hote.fenetre.hide(); });
    ajoute("window closed", [](Hote & hote) { hote.fenetre.close(); });
    ajoute("field goes to a hidden parent", [](Hote & hote) {
        hote.champ->setParent(nullptr);
        hote.champ->setParent(&hote.fenetre);
    });
}

void tst_ListeChoixFlottanteVies::disparition()
{
    QFETCH(Action, action);
    Hote hote;
    QSignalSpy const fermetures(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(hote.liste->isVisible());
    action(hote);
    QVERIFY(hote.liste->isHidden());
    QCOMPARE(fermetures.count(), 0); // which is the user's Escape
    // What a host does that has not noticed.
    hote.liste->ActualisePosListeChoix();
    Q_EMIT hote.interfaceHote.SignalParentDeplacay();
    QVERIFY(hote.liste->isHidden());
}

void tst_ListeChoixFlottanteVies::retourDeLaFenetre()
{
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.fenetre.hide();
    hote.fenetre.show();
    QCoreApplication::processEvents();
    QVERIFY(hote.liste->isHidden());
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.champ->touches, QList<int>{Qt::Key_Down});
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(hote.liste->isVisible());
}

void tst_ListeChoixFlottanteVies::fenetreDetruite()
{
    auto fenetre = std::make_unique<QWidget>();
    auto * const champ = new QLineEdit(fenetre.get());
    fenetre->show();
    ListeChoixFlottante liste(nullptr, true, champ);
    liste.ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(QTest::qWaitForWindowExposed(&liste));
    fenetre.reset();
    QVERIFY(liste.isHidden());
    QVERIFY(!liste.PossedeWidgetLiay());
    // The reference died with it.
    liste.ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QVERIFY(liste.isHidden());
    liste.AfficheToi();
    QTest::keyClick(&liste, Qt::Key_A);
    QTest::mouseClick(liste.PreteListeChoix()->viewport(), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void tst_ListeChoixFlottanteVies::ancienWidget()
{
    Hote hote;
    ChampTemoin autre(&hote.fenetre);
    autre.show();
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.liste->MetsWidgetLiay(&autre);
    hote.champ->hide();
    QVERIFY(hote.liste->isVisible()); // the field is nothing to the list any more
    delete hote.champ;
    QVERIFY(hote.liste->isVisible());
    auto ephemere = std::make_unique<QWidget>(&hote.fenetre);
    hote.liste->MetsWidgetLiay(ephemere.get());
    hote.liste->MetsWidgetLiay(ephemere.get());
    ephemere.reset();
    QVERIFY(hote.liste->isHidden());
    QVERIFY(!hote.liste->PossedeWidgetLiay());
}

void tst_ListeChoixFlottanteVies::interfaceDetruite()
{
    QWidget lie;
    auto interfaceHote = std::make_unique<InterfaceUtilisantListeChoixFlottante>();
    ListeChoixFlottante liste(interfaceHote.get(), true, &lie);
    liste.ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    interfaceHote.reset();
    liste.ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QVERIFY(liste.isVisible());
    QTest::mouseClick(liste.PreteListeChoix()->viewport(), Qt::LeftButton, {}, QPoint(3, 3));
}

void tst_ListeChoixFlottanteVies::pendantUnChoix_data()
{
    QTest::addColumn<Action>("geste");
    QTest::addColumn<Action>("reponse");
    struct Ligne
    {
        char const * nom;
        Action action;
    };
    Ligne const gestes[] = {
        {"click",
         [](Hote & hote) {
             QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
         }},
        {"click in the window",
         [](Hote & hote) {
             QVERIFY(QTest::qWaitForWindowExposed(hote.liste));
             QTest::mouseClick(hote.liste->windowHandle(), Qt::LeftButton, {},
                               hote.Vue()->viewport()->mapTo(hote.liste.data(), hote.Milieu(1)));
         }},
        {"double click",
         [](Hote & hote) {
             QTest::mousePress(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
             QTest::mouseDClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
         }},
        {"return", [](Hote & hote) { QTest::keyClick(hote.champ, Qt::Key_Return); }},
        {"enter",
         [](Hote & hote) {
             QTest::keyClick(hote.champ, Qt::Key_Down);
             QTest::keyClick(hote.champ, Qt::Key_Enter);
         }},
        {"return in the view", [](Hote & hote) { QTest::keyClick(hote.Vue(), Qt::Key_Return); }},
        {"return in the list", [](Hote & hote) { QTest::keyPress(hote.liste, Qt::Key_Return); }},
        {"closing", [](Hote & hote) { hote.liste->PriseEnFermeture(); }},
        {"search", [](Hote & hote) { hote.liste->SelectionneItem(u"mot 1"_s, Qt::DisplayRole); }},
        {"automatic choice", [](Hote & hote) { hote.liste->SelectionneItemActivay(); }},
    };
    Ligne const reponses[] = {
        {"hidden", [](Hote & hote) { hote.liste->CacheToi(); }},
        {"replaced",
         [](Hote & hote) { hote.liste->ActualiseListeChoix(CreeRangees({u"neuf"_s}, 2)); }},
        {"emptied", [](Hote & hote) { hote.liste->ActualiseListeChoix({}); }},
        {"destroyed later", [](Hote & hote) { hote.liste->deleteLater(); }},
        {"destroyed", [](Hote & hote) { delete hote.liste; }},
    };
    for (Ligne const & geste : gestes) {
        for (Ligne const & reponse : reponses)
            QTest::addRow("%s, %s", geste.nom, reponse.nom) << geste.action << reponse.action;
    }
}

void tst_ListeChoixFlottanteVies::pendantUnChoix()
{
    QFETCH(Action, geste);
    QFETCH(Action, reponse);
    Hote hote(true);
    int choix = 0;
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, this,
            [&](Choix const & items) {
                ++choix;
                QCOMPARE(items.size(), 1);
                reponse(hote);
            });
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    geste(hote);
    QTRY_COMPARE(choix, 1);
    QVERIFY(hote.champ->touches.isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(choix, 1);
}

void tst_ListeChoixFlottanteVies::choixDansUnChoix()
{
    Hote hote;
    int choix = 0;
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, this, [&] {
        if (++choix < 3)
            hote.liste->SelectionneItemActivay();
        else
            delete hote.liste;
    });
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
    QCOMPARE(choix, 3);
    QVERIFY(!hote.liste);
}

void tst_ListeChoixFlottanteVies::destructionApresUnChoixInterne()
{
    Hote hote;
    QPointer<QTreeView> const vue = hote.Vue();
    int choix = 0;
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, this, [&] {
        if (++choix > 1)
            return;
        hote.liste->SelectionneItemActivay();
        delete hote.liste;
        QVERIFY(vue); // which is still handling the click
    });
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
    QCOMPARE(choix, 2);
    QTRY_VERIFY(!vue);
}

void tst_ListeChoixFlottanteVies::destructionALaFermeture()
{
    Hote hote;
    connect(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix, this,
            [&] { delete hote.liste; });
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::keyClick(hote.champ, Qt::Key_Escape);
    QVERIFY(!hote.liste);
    QCOMPARE(hote.champ->touches, QList<int>{Qt::Key_Escape});
}

void tst_ListeChoixFlottanteVies::champDetruitAuChoix_data()
{
    QTest::addColumn<Action>("geste");
    QTest::newRow("click") << Action([](Hote & hote) {
        QTest::mouseClick(hote.Vue()->viewport(), Qt::LeftButton, {}, hote.Milieu(1));
    });
    QTest::newRow("return") << Action([](Hote & hote) {
        QKeyEvent retour(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(hote.champ, &retour);
    });
    QTest::newRow("return in the list") << Action([](Hote & hote) {
        QKeyEvent retour(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(hote.liste, &retour);
    });
}

void tst_ListeChoixFlottanteVies::champDetruitAuChoix()
{
    QFETCH(Action, geste);
    Hote hote;
    connect(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix, this,
            [&] { delete hote.champ; });
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    geste(hote);
    QVERIFY(hote.liste->isHidden());
    QVERIFY(!hote.liste->PossedeWidgetLiay());
}

void tst_ListeChoixFlottanteVies::destructionVisible()
{
    Hote hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QPointer<QTreeView> const vue = hote.Vue();
    delete hote.liste;
    QVERIFY(!vue); // outside a choice at once
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QCOMPARE(hote.champ->touches, QList<int>{Qt::Key_Down});
    Q_EMIT hote.interfaceHote.SignalParentDeplacay();
}

void tst_ListeChoixFlottanteVies::sansHote()
{
    QWidget lie;
    ListeChoixFlottante liste(nullptr, false, &lie);
    QSignalSpy const choix(&liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    liste.ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QVERIFY(liste.isVisible());
    QTest::keyClick(&lie, Qt::Key_Return);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 0"_s));
}

QTEST_MAIN(tst_ListeChoixFlottanteVies)
#include "tst_ListeChoixFlottanteVies.moc"
