// tests/dialogs/tst_BoutonsDialogue.cpp
#include "dialogs/BoutonsDialogue_p.h"

#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

class tst_BoutonsDialogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nomEtBouton_data();
    void nomEtBouton();
    void valeurSansNom_data();
    void valeurSansNom();
    void nomInconnu_data();
    void nomInconnu();
};

void tst_BoutonsDialogue::nomEtBouton_data()
{
    QTest::addColumn<quint32>("valeur");
    QTest::addColumn<QMessageBox::StandardButton>("standard");
    auto const sans = QMessageBox::NoButton;
    QTest::newRow("kBoutonAucun") << quint32(0) << sans;
    QTest::newRow("kBoutonOk") << quint32(1) << QMessageBox::Ok;
    QTest::newRow("kBoutonAnnuler") << quint32(2) << QMessageBox::Cancel;
    QTest::newRow("kBoutonAppliquer") << quint32(4) << QMessageBox::Apply;
    QTest::newRow("kBoutonFermer") << quint32(8) << QMessageBox::Close;
    QTest::newRow("kBoutonSauvegarder") << quint32(16) << QMessageBox::Save;
    QTest::newRow("kBoutonSauvegarderTout") << quint32(32) << QMessageBox::SaveAll;
    QTest::newRow("kBoutonAide") << quint32(64) << QMessageBox::Help;
    QTest::newRow("kBoutonOui") << quint32(128) << QMessageBox::Yes;
    QTest::newRow("kBoutonOuiTout") << quint32(256) << QMessageBox::YesToAll;
    QTest::newRow("kBoutonNon") << quint32(512) << QMessageBox::No;
    QTest::newRow("kBoutonNonTout") << quint32(1024) << QMessageBox::NoToAll;
    QTest::newRow("kBoutonReessayer") << quint32(2048) << QMessageBox::Retry;
    QTest::newRow("kBoutonIgnorer") << quint32(4096) << QMessageBox::Ignore;
    QTest::newRow("kBoutonContinuer") << quint32(16384) << sans;
    QTest::newRow("kBoutonEssayer") << quint32(32768) << sans;
    QTest::newRow("kBoutonMaison1") << quint32(65536) << sans;
    QTest::newRow("kBoutonMaison2") << quint32(262144) << sans;
    QTest::newRow("kBoutonMaison3") << quint32(524288) << sans;
    QTest::newRow("kBoutonMaison4") << quint32(1048576) << sans;
    QTest::newRow("kBoutonMaison5") << quint32(2097152) << sans;
    QTest::newRow("kBoutonLien") << quint32(4194304) << sans;
    QTest::newRow("kBoutonMaisonElevee1") << quint32(0x80000000) << sans;
}

// The row's name is the name of the button.
void tst_BoutonsDialogue::nomEtBouton()
{
    QFETCH(quint32, valeur);
    QFETCH(QMessageBox::StandardButton, standard);
    QString const nom = QString::fromLatin1(QTest::currentDataTag());
    auto const bouton = static_cast<eBoutons>(valeur);
    QCOMPARE(BoutonsDialogue::DonneNom(bouton), nom);
    QCOMPARE(BoutonsDialogue::DonneBouton(nom), bouton);
    QCOMPARE(BoutonsDialogue::DonneBoutonStandard(bouton), standard);
}

void tst_BoutonsDialogue::valeurSansNom_data()
{
    QTest::addColumn<quint32>("valeur");
    QTest::newRow("first bit that is not assigned") << quint32(8192);
    QTest::newRow("second bit that is not assigned") << quint32(131072);
    QTest::newRow("bit above the link") << quint32(8388608);
    QTest::newRow("two buttons") << quint32(kBoutonOk | kBoutonAnnuler);
}

void tst_BoutonsDialogue::valeurSansNom()
{
    QFETCH(quint32, valeur);
    auto const bouton = static_cast<eBoutons>(valeur);
    QCOMPARE(BoutonsDialogue::DonneNom(bouton), QString());
    QCOMPARE(BoutonsDialogue::DonneBoutonStandard(bouton), QMessageBox::NoButton);
}

void tst_BoutonsDialogue::nomInconnu_data()
{
    QTest::addColumn<QString>("nom");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("unknown") << u"kBoutonInconnu"_s;
    QTest::newRow("other case") << u"kboutonok"_s;
    QTest::newRow("space around") << u" kBoutonOk"_s;
    QTest::newRow("number") << u"1"_s;
}

void tst_BoutonsDialogue::nomInconnu()
{
    QFETCH(QString, nom);
    QCOMPARE(BoutonsDialogue::DonneBouton(nom), kBoutonAucun);
}

QTEST_GUILESS_MAIN(tst_BoutonsDialogue)
#include "tst_BoutonsDialogue.moc"
