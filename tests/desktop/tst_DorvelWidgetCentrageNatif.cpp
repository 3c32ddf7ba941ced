// tests/desktop/tst_DorvelWidgetCentrageNatif.cpp
#include "desktop/DorvelWidgetCentrageNatif.h"
#include "desktop/QWinWidget.h"
#include "dialogs/DDialogueProgressionInfinie.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class tst_DorvelWidgetCentrageNatif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void preteLaFenetreDeCentrage();
    void signaleLaFinDeLaFenetre();
    void sansFenetre_data();
    void sansFenetre();
    void signaleSaFermeture();
    void signaleSaDestruction();
    void fermeUnDialogue_data();
    void fermeUnDialogue();
    void detruitParCeQuIlSignale_data();
    void detruitParCeQuIlSignale();

private:
    HWND AjouteFenetre();
    static QTimer * PreteMinuteur(DorvelWidgetCentrageNatif const & hote);

    FenetresSimulees * mesFenetres = nullptr; // owned by the library while it is in place
    std::unique_ptr<PlateformeFenetres> mesFenetresAvant;
};

void tst_DorvelWidgetCentrageNatif::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    mesFenetresAvant = PlateformeFenetres::Installe(std::move(fenetres));
}

void tst_DorvelWidgetCentrageNatif::cleanup()
{
    PlateformeFenetres::Installe(std::move(mesFenetresAvant));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

HWND tst_DorvelWidgetCentrageNatif::AjouteFenetre()
{
    FenetresSimulees::Fenetre fenetre;
    fenetre.classe = u"Editeur"_s;
    fenetre.client = QRect(120, 130, 400, 300);
    return mesFenetres->Ajoute(fenetre);
}

QTimer * tst_DorvelWidgetCentrageNatif::PreteMinuteur(DorvelWidgetCentrageNatif const & hote)
{
    return hote.findChild<QTimer *>();
}

void tst_DorvelWidgetCentrageNatif::preteLaFenetreDeCentrage()
{
    HWND const fenetre = AjouteFenetre();
    auto hote = std::make_unique<DorvelWidgetCentrageNatif>(fenetre);
    QPointer<QWidget> const centrage = hote->PreteFenetreCentrage();
    QCOMPARE(hote->PreteFenetreCentrage(), centrage);
    auto const * const natif = qobject_cast<QWinWidget *>(centrage.data());
    QVERIFY(natif);
    QCOMPARE(natif->DonneFenetreNative(), fenetre);
    QCOMPARE(natif->geometry(), QRect(120, 130, 400, 300));
    QVERIFY(!hote->isVisible());
    hote.reset();
    QVERIFY(centrage.isNull());
}

void tst_DorvelWidgetCentrageNatif::signaleLaFinDeLaFenetre()
{
    HWND const fenetre = AjouteFenetre();
    DorvelWidgetCentrageNatif const hote(fenetre);
    QSignalSpy espion(&hote, &DorvelWidgetCentrageNatif::SignalFermerDialogue);
    QVERIFY(PreteMinuteur(hote)->isActive());
    PreteMinuteur(hote)->setInterval(1); // so that the test need not wait
    QSignalSpy verifications(PreteMinuteur(hote), &QTimer::timeout);
    QVERIFY(verifications.wait());
    QCOMPARE(espion.count(), 0);

    mesFenetres->Retire(fenetre);

    QVERIFY(espion.wait());
    QCOMPARE(espion.count(), 1);
    QVERIFY(!PreteMinuteur(hote)->isActive()); // said once
}

void tst_DorvelWidgetCentrageNatif::sansFenetre_data()
{
    QTest::addColumn<bool>("nulle");
    QTest::newRow("null") << true;
    QTest::newRow("the window has gone") << false;
}

void tst_DorvelWidgetCentrageNatif::sansFenetre()
{
    QFETCH(bool, nulle);
    HWND const fenetre = nulle ? nullptr : AjouteFenetre();
    if (fenetre)
        mesFenetres->Retire(fenetre);
    DorvelWidgetCentrageNatif const hote(fenetre);
    QVERIFY(hote.PreteFenetreCentrage());
    QVERIFY(!PreteMinuteur(hote)->isActive());
}

void tst_DorvelWidgetCentrageNatif::signaleSaFermeture()
{
    DorvelWidgetCentrageNatif hote(AjouteFenetre());
    QSignalSpy espion(&hote, &DorvelWidgetCentrageNatif::SignalFermerDialogue);
    hote.close();
    QCOMPARE(espion.count(), 1);
}

void tst_DorvelWidgetCentrageNatif::signaleSaDestruction()
{
    auto hote = std::make_unique<DorvelWidgetCentrageNatif>(nullptr);
    QSignalSpy espion(hote.get(), &DorvelWidgetCentrageNatif::SignalFermerDialogue);
    hote.reset();
    QCOMPARE(espion.count(), 1);
}

void tst_DorvelWidgetCentrageNatif::fermeUnDialogue_data()
{
    QTest::addColumn<bool>("parLaFenetre");
    QTest::newRow("the window goes") << true;
    QTest::newRow("the host goes") << false;
}

void tst_DorvelWidgetCentrageNatif::fermeUnDialogue()
{
    QFETCH(bool, parLaFenetre);
    HWND const fenetre = AjouteFenetre();
    auto hote = std::make_unique<DorvelWidgetCentrageNatif>(fenetre);
    QPointer<QDialog> const attente =
        new DDialogueProgressionInfinie(hote.get(), u"Un moment"_s, QString(), Qt::Dialog);
    attente->show();
    QVERIFY(attente->isVisible());
    PreteMinuteur(*hote)->setInterval(1);

    if (parLaFenetre)
        mesFenetres->Retire(fenetre);
    else
        hote.reset();

    QTRY_VERIFY(attente.isNull());
}

void tst_DorvelWidgetCentrageNatif::detruitParCeQuIlSignale_data()
{
    QTest::addColumn<bool>("parLaFenetre");
    QTest::newRow("the window goes") << true;
    QTest::newRow("the host is closed") << false;
}

void tst_DorvelWidgetCentrageNatif::detruitParCeQuIlSignale()
{
    QFETCH(bool, parLaFenetre);
    HWND const fenetre = AjouteFenetre();
    QPointer<DorvelWidgetCentrageNatif> const hote = new DorvelWidgetCentrageNatif(fenetre);
    int signaux = 0;
    connect(hote, &DorvelWidgetCentrageNatif::SignalFermerDialogue, this, [&] {
        if (signaux++ == 0) // its end is signalled too
            delete hote;
    });
    PreteMinuteur(*hote)->setInterval(1);

    if (parLaFenetre)
        mesFenetres->Retire(fenetre);
    else
        hote->close();

    QTRY_VERIFY(hote.isNull());
    QCOMPARE(signaux, 2);
}

QTEST_MAIN(tst_DorvelWidgetCentrageNatif)
#include "tst_DorvelWidgetCentrageNatif.moc"
