// tests/dialogs/tst_DMessageBoxBoutons.cpp
//
// The buttons of the box: which there are, in which order, and what the keyboard does with them.
#include "EssaisBoites.h"

#include "dialogs/StockageReponse.h"

#include "noyau/Traductions.h"

#include "outils/BureauSimulay.h"

#include <QDialogButtonBox>
#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

DAlerteInfo const & Question()
{
    static DAlerteInfo const info(DAlerteInfo::kQuestion, u"Continuer ?"_s, {}, u"Essai"_s);
    return info;
}

std::list<UniChaine> Labels()
{
    return {u"Un"_s, u"Deux"_s, u"Trois"_s, u"Quatre"_s, u"Cinq"_s};
}

constexpr int kTous = static_cast<int>(0xFFFFFFFFU);

// In the order in which a box makes them.
constexpr eBoutons kDansLOrdre[] = {
    kBoutonOk,      kBoutonAnnuler,       kBoutonAppliquer,
    kBoutonFermer,  kBoutonSauvegarder,   kBoutonSauvegarderTout,
    kBoutonAide,    kBoutonOui,           kBoutonOuiTout,
    kBoutonNon,     kBoutonNonTout,       kBoutonReessayer,
    kBoutonIgnorer, kBoutonContinuer,     kBoutonEssayer,
    kBoutonMaison1, kBoutonMaisonElevee1, kBoutonMaison2,
    kBoutonMaison3, kBoutonMaison4,       kBoutonMaison5,
};

QPushButton * DonneBouton(DMessageBox const & boite, QString const & texte)
{
    for (QAbstractButton * const bouton : boite.buttons()) {
        if (bouton->text() == texte)
            return qobject_cast<QPushButton *>(bouton);
    }
    return nullptr;
}

} // namespace

class tst_DMessageBoxBoutons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void boutonStandard_data();
    void boutonStandard();
    void boutonMaison_data();
    void boutonMaison();
    void labelVide_data();
    void labelVide();
    void tousLesBoutons();
    void chaqueBoutonRepond_data();
    void chaqueBoutonRepond();
    void bitsSansBouton_data();
    void bitsSansBouton();
    void libellesTraduits();
    void boutonElevay_data();
    void boutonElevay();
    void defautEtEchap_data();
    void defautEtEchap();
    void choixDeQtSansDefautNiEchap();
    void raccourcisDesLabels();
    void defautSurRetour();
    void echapSurEchap();
    void sansMasque();

private:
    DMessageBox * Montre(int boutons, eBoutons defaut = kBoutonAucun, eBoutons echap = kBoutonAucun,
                         std::list<UniChaine> const & labels = Labels());

    BureauSimulay * monBureau = nullptr;
    QList<eBoutons> mesReponses;
};

void tst_DMessageBoxBoutons::init()
{
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    PlateformeBureau::Installe(std::move(bureau));
    mesReponses.clear();
}

void tst_DMessageBoxBoutons::cleanup()
{
    if (DMessageBox * const boite = DonneBoiteVisible())
        boite->PriseResultat(QVariant::fromValue(kBoutonAucun));
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
    PlateformeBureau::Installe(nullptr);
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

DMessageBox * tst_DMessageBoxBoutons::Montre(int boutons, eBoutons defaut, eBoutons echap,
                                             std::list<UniChaine> const & labels)
{
    DAlerte(nullptr, Question(), boutons, defaut, echap, labels,
            [this](eBoutons const & reponse) { mesReponses.append(reponse); });
    return DonneBoiteVisible();
}

void tst_DMessageBoxBoutons::boutonStandard_data()
{
    QTest::addColumn<eBoutons>("identifiant");
    QTest::addColumn<QMessageBox::StandardButton>("bouton");
    QTest::newRow("OK") << kBoutonOk << QMessageBox::Ok;
    QTest::newRow("Cancel") << kBoutonAnnuler << QMessageBox::Cancel;
    QTest::newRow("Apply") << kBoutonAppliquer << QMessageBox::Apply;
    QTest::newRow("Close") << kBoutonFermer << QMessageBox::Close;
    QTest::newRow("Save") << kBoutonSauvegarder << QMessageBox::Save;
    QTest::newRow("Save all") << kBoutonSauvegarderTout << QMessageBox::SaveAll;
    QTest::newRow("Help") << kBoutonAide << QMessageBox::Help;
    QTest::newRow("Yes") << kBoutonOui << QMessageBox::Yes;
    QTest::newRow("Yes to all") << kBoutonOuiTout << QMessageBox::YesToAll;
    QTest::newRow("No") << kBoutonNon << QMessageBox::No;
    QTest::newRow("No to all") << kBoutonNonTout << QMessageBox::NoToAll;
    QTest::newRow("Retry") << kBoutonReessayer << QMessageBox::Retry;
    QTest::newRow("Ignore") << kBoutonIgnorer << QMessageBox::Ignore;
}

void tst_DMessageBoxBoutons::boutonStandard()
{
    QFETCH(eBoutons, identifiant);
    QFETCH(QMessageBox::StandardButton, bouton);
    DMessageBox * const boite = Montre(int(identifiant));
    QCOMPARE(boite->buttons().size(), 1);
    QCOMPARE(boite->standardButton(boite->buttons().constFirst()), bouton);
    QTest::mouseClick(boite->buttons().constFirst(), Qt::LeftButton);
    QCOMPARE(mesReponses, QList{identifiant});
}

void tst_DMessageBoxBoutons::boutonMaison_data()
{
    QTest::addColumn<eBoutons>("identifiant");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QMessageBox::ButtonRole>("role");
    QTest::newRow("continue") << kBoutonContinuer << u"Continuer"_s << QMessageBox::AcceptRole;
    QTest::newRow("try") << kBoutonEssayer << u"Essayer"_s << QMessageBox::ActionRole;
    QTest::newRow("first") << kBoutonMaison1 << u"Un"_s << QMessageBox::ActionRole;
    QTest::newRow("second") << kBoutonMaison2 << u"Deux"_s << QMessageBox::ActionRole;
    QTest::newRow("third") << kBoutonMaison3 << u"Trois"_s << QMessageBox::ActionRole;
    QTest::newRow("fourth") << kBoutonMaison4 << u"Quatre"_s << QMessageBox::ActionRole;
    QTest::newRow("fifth") << kBoutonMaison5 << u"Cinq"_s << QMessageBox::ActionRole;
    QTest::newRow("first, elevated") << kBoutonMaisonElevee1 << u"Un"_s << QMessageBox::ActionRole;
}

void tst_DMessageBoxBoutons::boutonMaison()
{
    QFETCH(eBoutons, identifiant);
    QFETCH(QString, texte);
    QFETCH(QMessageBox::ButtonRole, role);
    monBureau->peutExecuterElevay = true;
    DMessageBox * const boite = Montre(int(identifiant));
    QCOMPARE(boite->buttons().size(), 1);
    QAbstractButton * const bouton = boite->buttons().constFirst();
    QCOMPARE(bouton->text(), texte);
    QCOMPARE(boite->buttonRole(bouton), role);
    bouton->click();
    QCOMPARE(mesReponses, QList{identifiant});
}

void tst_DMessageBoxBoutons::labelVide_data()
{
    QTest::addColumn<eBoutons>("identifiant");
    QTest::newRow("first") << kBoutonMaison1;
    QTest::newRow("first, elevated") << kBoutonMaisonElevee1;
    QTest::newRow("second") << kBoutonMaison2;
    QTest::newRow("third") << kBoutonMaison3;
    QTest::newRow("fourth") << kBoutonMaison4;
    QTest::newRow("fifth") << kBoutonMaison5;
}

void tst_DMessageBoxBoutons::labelVide()
{
    QFETCH(eBoutons, identifiant);
    DMessageBox * const boite = Montre(int(kBoutonOui | identifiant), identifiant, identifiant, {});
    QCOMPARE(boite->buttons().size(), 1);
    // A default and an escape button that are not there are ignored.
    QVERIFY(boite->escapeButton() != boite->button(QMessageBox::Yes));
    QVERIFY(!boite->defaultButton());
}

void tst_DMessageBoxBoutons::tousLesBoutons()
{
    DMessageBox * const boite = Montre(kTous);
    QCOMPARE(boite->buttons().size(), 21); // all but the link
    // Buttons of one role stand in the order in which they were added.
    QStringList actions;
    for (QAbstractButton const * const bouton : boite->findChild<QDialogButtonBox *>()->buttons()) {
        if (boite->buttonRole(const_cast<QAbstractButton *>(bouton)) == QMessageBox::ActionRole)
            actions << bouton->text();
    }
    QCOMPARE(actions, (QStringList{u"Essayer"_s, u"Un"_s, u"Un"_s, u"Deux"_s, u"Trois"_s,
                                   u"Quatre"_s, u"Cinq"_s}));
}

void tst_DMessageBoxBoutons::chaqueBoutonRepond_data()
{
    QTest::addColumn<int>("rang");
    QTest::addColumn<eBoutons>("identifiant");
    for (qsizetype rang = 0; rang < qsizetype(std::size(kDansLOrdre)); ++rang)
        QTest::addRow("0x%x", kDansLOrdre[rang]) << int(rang) << kDansLOrdre[rang];
}

// In a box with all of them, two with one label among them.
void tst_DMessageBoxBoutons::chaqueBoutonRepond()
{
    QFETCH(int, rang);
    QFETCH(eBoutons, identifiant);
    monBureau->peutExecuterElevay = true;
    QPushButton * const bouton = BoutonsDansLOrdre(*Montre(kTous)).value(rang);
    QVERIFY(bouton);
    QTest::mouseClick(bouton, Qt::LeftButton);
    QCOMPARE(mesReponses, QList{identifiant});
}

void tst_DMessageBoxBoutons::bitsSansBouton_data()
{
    QTest::addColumn<int>("bits");
    QTest::newRow("the link") << int(kBoutonLien);
    QTest::newRow("not assigned, 8192") << 8192;
    QTest::newRow("not assigned, 131072") << 131072;
    QTest::newRow("above the link") << 0x7F800000;
}

void tst_DMessageBoxBoutons::bitsSansBouton()
{
    QFETCH(int, bits);
    QCOMPARE(Montre(bits | kBoutonOui)->buttons().size(), 1);
}

void tst_DMessageBoxBoutons::libellesTraduits()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    DMessageBox const * const boite = Montre(kBoutonContinuer | kBoutonEssayer);
    QVERIFY(DonneBouton(*boite, u"Continue"_s));
    QVERIFY(DonneBouton(*boite, u"Try"_s));
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
    monBureau->peutExecuterElevay = peut;
    DMessageBox * const boite = Montre(int(kBoutonMaison1 | kBoutonMaisonElevee1));
    QList<QPushButton *> const boutons = BoutonsDansLOrdre(*boite);
    QCOMPARE(boutons.size(), 2); // both, with the same label
    QCOMPARE(boutons.at(0)->text(), u"Un"_s);
    QCOMPARE(boutons.at(1)->text(), u"Un"_s);
    QVERIFY(boutons.at(0)->isEnabled());
    QCOMPARE(boutons.at(1)->isEnabled(), peut);
    QIcon const bouclier = QApplication::style()->standardIcon(QStyle::SP_VistaShield);
    QVERIFY(boutons.at(0)->icon().isNull());
    QCOMPARE(boutons.at(1)->icon().isNull(), bouclier.isNull());
}

void tst_DMessageBoxBoutons::defautEtEchap_data()
{
    boutonMaison_data();
}

void tst_DMessageBoxBoutons::defautEtEchap()
{
    QFETCH(eBoutons, identifiant);
    QFETCH(QString, texte);
    monBureau->peutExecuterElevay = true;
    DMessageBox * const boite =
        Montre(int(kBoutonOui | kBoutonNon | identifiant), identifiant, kBoutonNon);
    QCOMPARE(boite->defaultButton(), DonneBouton(*boite, texte));
    QCOMPARE(boite->escapeButton(), boite->button(QMessageBox::No));
    QTest::keyClick(boite, Qt::Key_Return);
    QCOMPARE(mesReponses, QList{identifiant});
}

void tst_DMessageBoxBoutons::choixDeQtSansDefautNiEchap()
{
    DMessageBox * const boite = Montre(kBoutonOui | kBoutonAnnuler, kBoutonAide, kBoutonAide);
    QVERIFY(!boite->defaultButton());
    QVERIFY(!boite->escapeButton());
    QTest::keyClick(boite, Qt::Key_Escape); // Qt has found the Cancel button by itself
    QCOMPARE(mesReponses, QList{kBoutonAnnuler});
}

void tst_DMessageBoxBoutons::raccourcisDesLabels()
{
    DMessageBox * const boite = Montre(kBoutonMaison1 | kBoutonMaison2, kBoutonMaison1,
                                       kBoutonMaison1, {u"&Garder"_s, u"&Remplacer"_s});
    boite->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(boite));
    QTest::keyClick(boite, Qt::Key_R, Qt::AltModifier);
    QTRY_COMPARE(mesReponses, QList{kBoutonMaison2});
}

void tst_DMessageBoxBoutons::defautSurRetour()
{
    DMessageBox * const boite = Montre(kBoutonOui | kBoutonNon | kBoutonAnnuler, kBoutonNon);
    QVERIFY(boite->button(QMessageBox::No)->hasFocus() ||
            boite->focusWidget() == boite->button(QMessageBox::No));
    QTest::keyClick(boite, Qt::Key_Return);
    QCOMPARE(mesReponses, QList{kBoutonNon});
}

void tst_DMessageBoxBoutons::echapSurEchap()
{
    DMessageBox * const boite = Montre(kBoutonOui | kBoutonIgnorer, kBoutonOui, kBoutonIgnorer);
    QTest::keyClick(boite, Qt::Key_Escape);
    QCOMPARE(mesReponses, QList{kBoutonIgnorer});
}

void tst_DMessageBoxBoutons::sansMasque()
{
    DMessageBox * const boite = Montre(0, kBoutonOk, kBoutonOk);
    QCOMPARE(boite->buttons().size(), 1); // Qt gives a box without buttons an OK of its own,
    boite->buttons().constFirst()->click();
    QCOMPARE(mesReponses, QList{kBoutonAucun}); // which is no answer of ours
}

QTEST_MAIN(tst_DMessageBoxBoutons)
#include "tst_DMessageBoxBoutons.moc"
