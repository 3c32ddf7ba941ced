// dialogs/tst_DAlerteFormes.cpp
//
// What the forms of an alert have to themselves: labels, escape button, identifier.
#include "dialogs/FormesAlertes.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

constexpr int kToutesMaison =
    kBoutonMaison1 | kBoutonMaison2 | kBoutonMaison3 | kBoutonMaison4 | kBoutonMaison5;

DAlerteInfo Question()
{
    return {DAlerteInfo::kQuestion, UniChaine("Message")};
}

Appel AppelAvecLabels(int boutons)
{
    Appel appel{Question()};
    appel.boutons = boutons;
    appel.labels = {u"un"_s, u"deux"_s, u"trois"_s, u"quatre"_s, u"cinq"_s};
    return appel;
}

QStringList Textes(QMessageBox const & boite)
{
    QStringList textes;
    for (QAbstractButton const * const bouton : BoutonsDansLOrdre(boite))
        textes << bouton->text();
    return textes;
}

// Raises the alert, lets `regarde` see its box and takes the box away; true when there was just
// one.
bool Montre(Forme const & forme, Appel const & appel,
            std::function<void(DMessageBox &)> const & regarde)
{
    Repondant const utilisateur([&regarde](DMessageBox & boite) {
        regarde(boite);
        boite.QDialog::done(0);
    });
    forme.lance(appel);
    return AttendsFinDesBoites() && utilisateur.DonneNombre() == 1;
}

// These two read no labels at all.
bool EstSansLabels(Forme const & forme)
{
    return forme.destination == eDestination::kRappel &&
           !QString::fromLatin1(forme.nom).endsWith("list"_L1);
}

} // namespace

class tst_DAlerteFormes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void cinqLabels_data() { AjouteFormes(); }
    void cinqLabels();
    void listeDeLabels_data();
    void listeDeLabels();
    void labelIgnoraySansBouton();
    void labelVideSansBouton();

    void okSeulSansMasque_data() { AjouteFormes(SansBoutons); }
    void okSeulSansMasque();
    void echap_data() { AjouteFormes(AvecBoutons); }
    void echap();
    void defaut_data() { AjouteFormes(AvecBoutons); }
    void defaut();

    void identifiantDuReceveur_data() { AjouteFormes(AvecReceveur); }
    void identifiantDuReceveur();
    void booleensDuReceveurSansEffet();

    void receveurCentrayNAPasDEchap();
    void notificationBloquanteRetientSansRendre();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DAlerteFormes::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

void tst_DAlerteFormes::cinqLabels()
{
    QFETCH(QString, forme);
    Forme const & laForme = PreteForme(forme);
    QStringList textes;
    ReceveurNotant receveur;
    Appel appel = AppelAvecLabels(kToutesMaison);
    appel.receveur = &receveur;
    appel.boutons |= kBoutonFermer; // no form is without buttons
    QVERIFY(Montre(laForme, appel, [&textes](DMessageBox & boite) { textes = Textes(boite); }));
    if (!laForme.aBoutons || EstSansLabels(laForme))
        QCOMPARE(textes.size(), 1);
    else
        QCOMPARE(textes.mid(1),
                 (QStringList{u"un"_s, u"deux"_s, u"trois"_s, u"quatre"_s, u"cinq"_s}));
}

void tst_DAlerteFormes::listeDeLabels_data()
{
    QTest::addColumn<bool>("rappelle");
    QTest::addColumn<int>("taille");
    for (bool const rappelle : {false, true})
        for (int taille = 0; taille <= 7; ++taille)
            QTest::addRow("%s, %d labels", rappelle ? "DAlerteRappel" : "DAlerte", taille)
                << rappelle << taille;
}

// Deliberate: what comes after the fifth is not read.
void tst_DAlerteFormes::listeDeLabels()
{
    QFETCH(bool, rappelle);
    QFETCH(int, taille);
    std::list<UniChaine> labels;
    QStringList attendus;
    for (int i = 1; i <= taille; ++i) {
        labels.push_back(u"label %1"_s.arg(i));
        if (i <= 5)
            attendus << u"label %1"_s.arg(i);
    }
    int const boutons = kBoutonFermer | kToutesMaison;
    if (rappelle)
        DAlerteRappel(nullptr, Question(), StockeurParDefaut, u"guid"_s, boutons, kBoutonFermer,
                      kBoutonFermer, labels, RappelAlerte());
    else
        DAlerte(nullptr, Question(), boutons, kBoutonFermer, kBoutonFermer, labels, RappelAlerte());
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    QCOMPARE(Textes(*boite).mid(1), attendus);
    boite->QDialog::done(0);
}

void tst_DAlerteFormes::labelIgnoraySansBouton()
{
    QStringList textes;
    QVERIFY(Montre(PreteForme(u"DAlerte, buttons"_s),
                   AppelAvecLabels(kBoutonMaison2 | kBoutonMaison5),
                   [&textes](DMessageBox & boite) { textes = Textes(boite); }));
    QCOMPARE(textes, (QStringList{u"deux"_s, u"cinq"_s}));
}

void tst_DAlerteFormes::labelVideSansBouton()
{
    Appel appel = AppelAvecLabels(kToutesMaison);
    appel.labels[1] = UniChaine();
    appel.defaut = kBoutonMaison2; // the one without a button: ignored
    QStringList textes;
    bool aDefaut = true;
    QVERIFY(Montre(PreteForme(u"DAlerte, buttons"_s), appel, [&](DMessageBox & boite) {
        textes = Textes(boite);
        aDefaut = boite.defaultButton();
    }));
    QCOMPARE(textes, (QStringList{u"un"_s, u"trois"_s, u"quatre"_s, u"cinq"_s}));
    QVERIFY(!aDefaut);
}

void tst_DAlerteFormes::okSeulSansMasque()
{
    QFETCH(QString, forme);
    Forme const & laForme = PreteForme(forme);
    ReceveurNotant receveur;
    Appel appel = AppelAvecLabels(kBoutonOui | kBoutonNon);
    appel.receveur = &receveur;
    QList<QMessageBox::StandardButton> boutons;
    QAbstractButton * ok = nullptr;
    QAbstractButton * leDefaut = nullptr;
    QAbstractButton * lEchap = nullptr;
    QVERIFY(Montre(laForme, appel, [&](DMessageBox & boite) {
        for (QAbstractButton * const bouton : boite.buttons())
            boutons << boite.standardButton(bouton);
        ok = boite.button(QMessageBox::Ok);
        leDefaut = boite.defaultButton();
        lEchap = boite.escapeButton();
    }));
    QCOMPARE(boutons, QList<QMessageBox::StandardButton>{QMessageBox::Ok});
    QCOMPARE(leDefaut, ok);
    bool const sansEchap = forme.startsWith("DAlerteCentrageNatif"_L1) && !laForme.Bloque();
    QCOMPARE(lEchap, sansEchap ? nullptr : ok);
}

void tst_DAlerteFormes::echap()
{
    QFETCH(QString, forme);
    Forme const & laForme = PreteForme(forme);
    ReceveurNotant receveur;
    Appel appel{Question()};
    appel.receveur = &receveur;
    appel.boutons = kBoutonOui | kBoutonNon | kBoutonAnnuler;
    appel.echap = kBoutonNon;
    QMessageBox::StandardButton lEchap = QMessageBox::NoButton;
    QVERIFY(Montre(laForme, appel, [&lEchap](DMessageBox & boite) {
        lEchap = boite.standardButton(boite.escapeButton());
    }));
    // Deliberate: this one form puts Cancel in the place of the caller's escape button.
    QCOMPARE(lEchap, forme == "DAlerte, callback"_L1 ? QMessageBox::Cancel : QMessageBox::No);
}

void tst_DAlerteFormes::defaut()
{
    QFETCH(QString, forme);
    Forme const & laForme = PreteForme(forme);
    ReceveurNotant receveur;
    Appel appel{Question()};
    appel.receveur = &receveur;
    appel.boutons = kBoutonOui | kBoutonNon | kBoutonAnnuler;
    appel.defaut = kBoutonNon;
    QMessageBox::StandardButton leDefaut = QMessageBox::NoButton;
    QVERIFY(Montre(laForme, appel, [&leDefaut](DMessageBox & boite) {
        leDefaut = boite.standardButton(boite.defaultButton());
    }));
    QCOMPARE(leDefaut, QMessageBox::No);
}

// The alert takes the identifier when it is raised.
void tst_DAlerteFormes::identifiantDuReceveur()
{
    QFETCH(QString, forme);
    ReceveurNotant receveur;
    QCOMPARE(receveur.DonneIdMessage(), -1);
    receveur.MetsIdMessage(42);
    Appel appel{Question()};
    appel.receveur = &receveur;
    PreteForme(forme).lance(appel);
    receveur.MetsIdMessage(43);
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    Clique(boite->button(QMessageBox::Ok));
    QCOMPARE(receveur.reponses, (QList<QPair<int, int>>{{42, kBoutonOk}}));
}

void tst_DAlerteFormes::booleensDuReceveurSansEffet()
{
    ReceveurNotant receveur;
    QVERIFY(!receveur.DonneModalAFenetre());
    QVERIFY(!receveur.DonneModalAApplication());
    ReceveurNotant copie(receveur);
    receveur.MetsIdMessage(7);
    copie = receveur;
    QCOMPARE(copie.DonneIdMessage(), 7);
    QCOMPARE(copie.TraiteDAlerte(Question()), -1);
    QCOMPARE(copie.TraiteDAlerteRappel(Question(), u"guid"_s), -1);
}

// Deliberate: closed, the box answers Cancel, which it does not have.
void tst_DAlerteFormes::receveurCentrayNAPasDEchap()
{
    ReceveurNotant receveur;
    DAlerteCentrageNatif(&receveur, Question());
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    boite->reject();
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonAnnuler});
}

void tst_DAlerteFormes::notificationBloquanteRetientSansRendre()
{
    DAlerteInfo const info(DAlerteInfo::kNotification, UniChaine("Message"));
    for (Forme const & forme : kFormes) {
        if (!forme.aStockage || !forme.Bloque())
            continue;
        Appel appel{info};
        appel.boutons = kBoutonOui | kBoutonNon;
        appel.guid = UniChaine(QString::fromLatin1(forme.nom));
        QCOMPARE(forme.lance(appel), kBoutonAucun);
        DMessageBox * const boite = BoiteDevant();
        QVERIFY(boite);
        Coche(*boite);
        Clique(boite->button(QMessageBox::No));
        QTRY_VERIFY(Fenetres<DMessageBox>().isEmpty());
        QVERIFY(DAlerteRappelDejaCochay(appel.type, appel.guid));
    }
    QCOMPARE(monBanc->stockage.DonneContenu().size(), 2);
}

QTEST_MAIN(tst_DAlerteFormes)
#include "tst_DAlerteFormes.moc"
