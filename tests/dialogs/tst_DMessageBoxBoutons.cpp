// dialogs/tst_DMessageBoxBoutons.cpp
//
// The buttons of a message box.
#include "dialogs/EssaisBoites.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

std::array<UniChaine, 5> const & CinqLabels()
{
    static std::array<UniChaine, 5> const labels{u"un"_s, u"deux"_s, u"trois"_s, u"quatre"_s,
                                                 u"cinq"_s};
    return labels;
}

int EnMasque(std::initializer_list<quint32> boutons)
{
    quint32 masque = 0;
    for (quint32 const bouton : boutons)
        masque |= bouton;
    return static_cast<int>(masque);
}

// A box with these buttons and the five labels.
std::unique_ptr<BoiteMontree> Montre(int boutons, quint32 defaut = kBoutonAucun,
                                     quint32 echap = kBoutonAucun)
{
    return std::make_unique<BoiteMontree>(Alerte(), boutons, defaut, echap, nullptr,
                                          StockeurParDefaut, CinqLabels());
}

QStringList Textes(QMessageBox const & boite)
{
    QStringList textes;
    for (QPushButton const * const bouton : BoutonsDansLOrdre(boite))
        textes << bouton->text();
    return textes;
}

} // namespace

class tst_DMessageBoxBoutons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void boutonStandard_data();
    void boutonStandard();
    void boutonMaison_data();
    void boutonMaison();
    void labelsTraduits();
    void ordreDuMasque();
    void bitsSansBouton_data();
    void bitsSansBouton();
    void memeLabelPourLesDeux();
    void boutonElevay_data();
    void boutonElevay();
    void labelVide_data();
    void labelVide();
    void defautEtEchap_data();
    void defautEtEchap();
    void designesHorsDuMasque();
    void sansBouton();
    void chaqueBoutonRepondSonIdentifiant();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DMessageBoxBoutons::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

void tst_DMessageBoxBoutons::boutonStandard_data()
{
    QTest::addColumn<quint32>("bouton");
    QTest::addColumn<QMessageBox::StandardButton>("standard");
    QTest::newRow("Ok") << quint32(1) << QMessageBox::Ok;
    QTest::newRow("Cancel") << quint32(2) << QMessageBox::Cancel;
    QTest::newRow("Apply") << quint32(4) << QMessageBox::Apply;
    QTest::newRow("Close") << quint32(8) << QMessageBox::Close;
    QTest::newRow("Save") << quint32(16) << QMessageBox::Save;
    QTest::newRow("SaveAll") << quint32(32) << QMessageBox::SaveAll;
    QTest::newRow("Help") << quint32(64) << QMessageBox::Help;
    QTest::newRow("Yes") << quint32(128) << QMessageBox::Yes;
    QTest::newRow("YesToAll") << quint32(256) << QMessageBox::YesToAll;
    QTest::newRow("No") << quint32(512) << QMessageBox::No;
    QTest::newRow("NoToAll") << quint32(1024) << QMessageBox::NoToAll;
    QTest::newRow("Retry") << quint32(2048) << QMessageBox::Retry;
    QTest::newRow("Ignore") << quint32(4096) << QMessageBox::Ignore;
}

void tst_DMessageBoxBoutons::boutonStandard()
{
    QFETCH(quint32, bouton);
    QFETCH(QMessageBox::StandardButton, standard);
    auto const boite = Montre(static_cast<int>(bouton));
    QCOMPARE((*boite)->buttons().size(), 1);
    QCOMPARE((*boite)->standardButtons(), QMessageBox::StandardButtons(standard));
    Clique((*boite)->button(standard));
    QCOMPARE(boite->receveur.reponses, QList<int>{static_cast<int>(bouton)});
}

void tst_DMessageBoxBoutons::boutonMaison_data()
{
    QTest::addColumn<quint32>("bouton");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QMessageBox::ButtonRole>("role");
    auto const action = QMessageBox::ActionRole;
    QTest::newRow("Continuer") << quint32(16384) << u"Continuer"_s << QMessageBox::AcceptRole;
    QTest::newRow("Essayer") << quint32(32768) << u"Essayer"_s << action;
    QTest::newRow("first label") << quint32(65536) << u"un"_s << action;
    QTest::newRow("first label, elevated") << quint32(0x80000000) << u"un"_s << action;
    QTest::newRow("second label") << quint32(262144) << u"deux"_s << action;
    QTest::newRow("third label") << quint32(524288) << u"trois"_s << action;
    QTest::newRow("fourth label") << quint32(1048576) << u"quatre"_s << action;
    QTest::newRow("fifth label") << quint32(2097152) << u"cinq"_s << action;
}

void tst_DMessageBoxBoutons::boutonMaison()
{
    QFETCH(quint32, bouton);
    QFETCH(QString, texte);
    QFETCH(QMessageBox::ButtonRole, role);
    monBanc->bureau->peutExecuterElevay = true;
    auto const boite = Montre(static_cast<int>(bouton));
    QCOMPARE(Textes(**boite), QStringList{texte});
    QCOMPARE((*boite)->buttonRole((*boite)->buttons().constFirst()), role);
    Clique((*boite)->buttons().constFirst());
    QCOMPARE(boite->receveur.reponses, QList<int>{static_cast<int>(bouton)});
}

void tst_DMessageBoxBoutons::labelsTraduits()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    auto const boite = Montre(kBoutonContinuer | kBoutonEssayer);
    QCOMPARE(Textes(**boite), (QStringList{u"Continue"_s, u"Try"_s}));
}

void tst_DMessageBoxBoutons::ordreDuMasque()
{
    auto const boite =
        Montre(EnMasque({kBoutonMaison2, kBoutonMaison1, kBoutonMaisonElevee1, kBoutonEssayer,
                         kBoutonContinuer, kBoutonNon, kBoutonOui, kBoutonOk}));
    QList<QPushButton *> const boutons = BoutonsDansLOrdre(**boite);
    QCOMPARE(boutons.size(), 8);
    QCOMPARE((*boite)->standardButton(boutons.at(0)), QMessageBox::Ok);
    QCOMPARE((*boite)->standardButton(boutons.at(1)), QMessageBox::Yes);
    QCOMPARE((*boite)->standardButton(boutons.at(2)), QMessageBox::No);
    QCOMPARE(Textes(**boite).mid(3),
             (QStringList{u"Continuer"_s, u"Essayer"_s, u"un"_s, u"un"_s, u"deux"_s}));
}

void tst_DMessageBoxBoutons::bitsSansBouton_data()
{
    QTest::addColumn<quint32>("bit");
    QTest::newRow("link") << quint32(kBoutonLien);
    QTest::newRow("8192") << quint32(8192);
    QTest::newRow("131072") << quint32(131072);
    for (int rang = 23; rang < 31; ++rang)
        QTest::addRow("bit %d", rang) << (1U << rang);
}

void tst_DMessageBoxBoutons::bitsSansBouton()
{
    QFETCH(quint32, bit);
    auto const boite = Montre(static_cast<int>(bit | kBoutonFermer), bit, bit);
    QCOMPARE((*boite)->buttons().size(), 1);
    QVERIFY(!(*boite)->defaultButton());
    QVERIFY(!(*boite)->escapeButton());
}

void tst_DMessageBoxBoutons::memeLabelPourLesDeux()
{
    monBanc->bureau->peutExecuterElevay = true;
    for (qsizetype const rang : {0, 1}) {
        auto const boite = Montre(EnMasque({kBoutonMaison1, kBoutonMaisonElevee1}));
        QCOMPARE(Textes(**boite), (QStringList{u"un"_s, u"un"_s}));
        Clique(BoutonsDansLOrdre(**boite).at(rang));
        quint32 const attendue = rang == 0 ? kBoutonMaison1 : kBoutonMaisonElevee1;
        QCOMPARE(boite->receveur.reponses, QList<int>{static_cast<int>(attendue)});
    }
}

void tst_DMessageBoxBoutons::boutonElevay_data()
{
    QTest::addColumn<bool>("peut");
    QTest::newRow("the user may") << true;
    QTest::newRow("the user may not") << false;
}

void tst_DMessageBoxBoutons::boutonElevay()
{
    QFETCH(bool, peut);
    monBanc->bureau->peutExecuterElevay = peut;
    auto const boite = Montre(EnMasque({kBoutonMaison1, kBoutonMaisonElevee1}));
    QList<QPushButton *> const boutons = BoutonsDansLOrdre(**boite);
    QVERIFY(boutons.at(0)->isEnabled());
    QCOMPARE(boutons.at(1)->isEnabled(), peut);
    QVERIFY(boutons.at(0)->icon().isNull());
    QIcon const bouclier = QApplication::style()->standardIcon(QStyle::SP_VistaShield);
    QCOMPARE(boutons.at(1)->icon().isNull(), bouclier.isNull());
    Clique(boutons.at(1));
    QCOMPARE(boite->receveur.reponses.size(), peut ? 1 : 0);
}

void tst_DMessageBoxBoutons::labelVide_data()
{
    QTest::addColumn<quint32>("bouton");
    for (quint32 const bouton :
         {quint32(kBoutonMaison1), quint32(kBoutonMaisonElevee1), quint32(kBoutonMaison2),
          quint32(kBoutonMaison3), quint32(kBoutonMaison4), quint32(kBoutonMaison5)})
        QTest::addRow("0x%x", bouton) << bouton;
}

// A button without a label is not made, and a default or escape button that names it is ignored.
void tst_DMessageBoxBoutons::labelVide()
{
    QFETCH(quint32, bouton);
    BoiteMontree const boite(Alerte(), static_cast<int>(bouton | kBoutonOk), bouton, bouton);
    QCOMPARE(boite->buttons().size(), 1);
    QVERIFY(!boite->defaultButton());
    QVERIFY(!boite->escapeButton());
}

void tst_DMessageBoxBoutons::defautEtEchap_data()
{
    QTest::addColumn<quint32>("defaut");
    QTest::addColumn<quint32>("echap");
    QTest::newRow("two standard buttons") << quint32(kBoutonNon) << quint32(kBoutonAnnuler);
    QTest::newRow("the same button twice") << quint32(kBoutonOui) << quint32(kBoutonOui);
    QTest::newRow("own buttons") << quint32(kBoutonContinuer) << quint32(kBoutonMaison1);
    QTest::newRow("elevated") << quint32(kBoutonMaisonElevee1) << quint32(kBoutonEssayer);
}

void tst_DMessageBoxBoutons::defautEtEchap()
{
    QFETCH(quint32, defaut);
    QFETCH(quint32, echap);
    monBanc->bureau->peutExecuterElevay = true;
    int const boutons = EnMasque({kBoutonAnnuler, kBoutonOui, kBoutonNon, kBoutonContinuer,
                                  kBoutonEssayer, kBoutonMaison1, kBoutonMaisonElevee1});
    for (bool const aLEchap : {false, true}) {
        auto const boite = Montre(boutons, defaut, echap);
        Clique(aLEchap ? (*boite)->escapeButton() : (*boite)->defaultButton());
        QCOMPARE(boite->receveur.reponses, QList<int>{static_cast<int>(aLEchap ? echap : defaut)});
    }
}

void tst_DMessageBoxBoutons::designesHorsDuMasque()
{
    auto const boite = Montre(kBoutonOui | kBoutonNon, kBoutonOk, kBoutonAnnuler);
    QVERIFY(!(*boite)->defaultButton());
    QVERIFY(!(*boite)->escapeButton());
}

// Qt gives a box without buttons one of its own, which is not ours: its answer is none.
void tst_DMessageBoxBoutons::sansBouton()
{
    auto const boite = Montre(0);
    QCOMPARE((*boite)->buttons().size(), 1);
    Clique((*boite)->buttons().constFirst());
    QCOMPARE(boite->receveur.reponses, QList<int>{kBoutonAucun});
    QTRY_VERIFY(!boite->boite);
}

void tst_DMessageBoxBoutons::chaqueBoutonRepondSonIdentifiant()
{
    int const boutons = EnMasque({kBoutonOui, kBoutonNon, kBoutonMaison3, kBoutonMaison5});
    QList<int> const attendues{kBoutonOui, kBoutonNon, kBoutonMaison3, kBoutonMaison5};
    for (qsizetype rang = 0; rang < attendues.size(); ++rang) {
        auto const boite = Montre(boutons);
        Clique(BoutonsDansLOrdre(**boite).at(rang));
        QCOMPARE(boite->receveur.reponses, attendues.mid(rang, 1));
        QTRY_VERIFY(!boite->boite);
    }
}

QTEST_MAIN(tst_DMessageBoxBoutons)
#include "tst_DMessageBoxBoutons.moc"
