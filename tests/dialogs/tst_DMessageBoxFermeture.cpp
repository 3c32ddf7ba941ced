// dialogs/tst_DMessageBoxFermeture.cpp
//
// The ways out of a message box other than its buttons, with and without an escape button.
#include "dialogs/EssaisAlertes.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

enum class eSortie
{
    kTouche,
    kFermeture,
    kRejet,
    kLien
};

constexpr int kReste = -1; // no answer, the box stays

DAlerteInfo Question()
{
    return {DAlerteInfo::kQuestion, UniChaine("Message")};
}

void Sors(DMessageBox & boite, eSortie sortie)
{
    switch (sortie) {
    case eSortie::kTouche:
        Tape(boite, Qt::Key_Escape);
        break;
    case eSortie::kFermeture:
        boite.close();
        break;
    case eSortie::kRejet:
        boite.reject();
        break;
    case eSortie::kLien:
        boite.PriseHyperlien(u"5"_s);
        break;
    }
}

void AjouteSorties()
{
    QTest::addColumn<int>("boutons");
    QTest::addColumn<quint32>("echap");
    QTest::addColumn<eSortie>("sortie");
    QTest::addColumn<int>("reponse");

    int const ouiNon = kBoutonOui | kBoutonNon;
    QTest::newRow("escape button, Escape")
        << ouiNon << quint32(kBoutonOui) << eSortie::kTouche << int(kBoutonOui);
    QTest::newRow("escape button, window closed")
        << ouiNon << quint32(kBoutonOui) << eSortie::kFermeture << int(kBoutonOui);
    QTest::newRow("escape button, rejected")
        << ouiNon << quint32(kBoutonOui) << eSortie::kRejet << int(kBoutonOui);
    QTest::newRow("escape button, link")
        << ouiNon << quint32(kBoutonOui) << eSortie::kLien << int(kBoutonOui);

    // Qt takes the only button with the role of a No for Escape. Whoever closes the window has
    // pressed no button, and without one of the caller's that is Cancel.
    QTest::newRow("Qt's choice, Escape")
        << ouiNon << quint32(kBoutonAucun) << eSortie::kTouche << int(kBoutonNon);
    QTest::newRow("Qt's choice, window closed")
        << ouiNon << quint32(kBoutonAucun) << eSortie::kFermeture << int(kBoutonAnnuler);
    QTest::newRow("Qt's choice, rejected")
        << ouiNon << quint32(kBoutonAucun) << eSortie::kRejet << int(kBoutonAnnuler);
    QTest::newRow("Qt's choice, link")
        << ouiNon << quint32(kBoutonAucun) << eSortie::kLien << int(kBoutonAnnuler);

    int const sansChoix = kBoutonOui | kBoutonReessayer;
    QTest::newRow("none, Escape") << sansChoix << quint32(kBoutonAucun) << eSortie::kTouche
                                  << kReste;
    QTest::newRow("none, window closed")
        << sansChoix << quint32(kBoutonAucun) << eSortie::kFermeture << kReste;
    QTest::newRow("none, rejected")
        << sansChoix << quint32(kBoutonAucun) << eSortie::kRejet << int(kBoutonAnnuler);
    QTest::newRow("none, link") << sansChoix << quint32(kBoutonAucun) << eSortie::kLien << kReste;
    QTest::newRow("escape button that the box lacks, window closed")
        << sansChoix << quint32(kBoutonAide) << eSortie::kFermeture << kReste;
}

} // namespace

class tst_DMessageBoxFermeture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void sortie_data() { AjouteSorties(); }
    void sortie();
    void sortieBloquante_data() { AjouteSorties(); }
    void sortieBloquante();
    void resteUtilisable_data();
    void resteUtilisable();
    void sortieRetenue_data();
    void sortieRetenue();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DMessageBoxFermeture::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

void tst_DMessageBoxFermeture::sortie()
{
    QFETCH(int, boutons);
    QFETCH(quint32, echap);
    QFETCH(eSortie, sortie);
    QFETCH(int, reponse);
    ReceveurNotant receveur;
    DAlerte(nullptr, &receveur, Question(), boutons, kBoutonAucun, static_cast<eBoutons>(echap));
    QPointer<DMessageBox> const boite = BoiteDevant();
    QVERIFY(boite);

    Sors(*boite, sortie);

    if (reponse == kReste) {
        QVERIFY(boite && boite->isVisible());
        QCOMPARE(receveur.reponses.size(), 0);
        boite->QDialog::done(0);
        return;
    }
    QCOMPARE(DonneReponses(receveur), QList<int>{reponse});
    QVERIFY(!boite || !boite->isVisible());
    QTRY_VERIFY(!boite);
    QCOMPARE(DonneReponses(receveur), QList<int>{reponse}); // and not once more at the end
}

void tst_DMessageBoxFermeture::sortieBloquante()
{
    QFETCH(int, boutons);
    QFETCH(quint32, echap);
    QFETCH(eSortie, sortie);
    QFETCH(int, reponse);
    bool estRestee = false;
    Repondant const utilisateur([&estRestee, sortie](DMessageBox & boite) {
        Sors(boite, sortie);
        estRestee = boite.isVisible();
        if (estRestee)
            Clique(boite.button(QMessageBox::Yes));
    });
    QCOMPARE(int(DAlerte(nullptr, Question(), boutons, kBoutonAucun, static_cast<eBoutons>(echap))),
             reponse == kReste ? int(kBoutonOui) : reponse);
    QCOMPARE(estRestee, reponse == kReste);
}

void tst_DMessageBoxFermeture::resteUtilisable_data()
{
    QTest::addColumn<eSortie>("sortie");
    QTest::newRow("Escape") << eSortie::kTouche;
    QTest::newRow("window closed") << eSortie::kFermeture;
    QTest::newRow("link") << eSortie::kLien;
}

// What could not close the box leaves nothing behind that a later answer would trip over.
void tst_DMessageBoxFermeture::resteUtilisable()
{
    QFETCH(eSortie, sortie);
    ReceveurNotant receveur;
    DAlerte(nullptr, &receveur, Question(), kBoutonOui | kBoutonReessayer, kBoutonAucun,
            kBoutonAucun);
    QPointer<DMessageBox> const boite = BoiteDevant();
    QVERIFY(boite);
    for (int fois = 0; fois < 3; ++fois)
        Sors(*boite, sortie);
    QVERIFY(boite->isVisible());
    Clique(boite->button(QMessageBox::Retry));
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonReessayer});
    QCOMPARE(boite->result(), int(kBoutonReessayer));
    QVERIFY(!boite->isVisible());
}

void tst_DMessageBoxFermeture::sortieRetenue_data()
{
    QTest::addColumn<quint32>("echap");
    QTest::addColumn<bool>("retenue");
    QTest::newRow("OK is remembered") << quint32(kBoutonOk) << true;
    QTest::newRow("any other escape button is not") << quint32(kBoutonOui) << false;
    QTest::newRow("Cancel for want of one is not") << quint32(kBoutonAucun) << false;
}

void tst_DMessageBoxFermeture::sortieRetenue()
{
    QFETCH(quint32, echap);
    QFETCH(bool, retenue);
    for (eSortie const sortie : {eSortie::kFermeture, eSortie::kRejet, eSortie::kLien}) {
        Repondant const utilisateur([sortie](DMessageBox & boite) {
            Coche(boite);
            Sors(boite, sortie);
        });
        QString const guid = u"guid%1"_s.arg(int(sortie));
        DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, guid,
                      kBoutonOk | kBoutonOui | kBoutonAnnuler, kBoutonOk,
                      static_cast<eBoutons>(echap));
        QCOMPARE(monBanc->stockage.DonneContenu().contains(guid), retenue);
    }
}

QTEST_MAIN(tst_DMessageBoxFermeture)
#include "tst_DMessageBoxFermeture.moc"
