// tests/noyau/tst_DAlerteInfo.cpp
#include "noyau/DAlerteInfo.h"

#include <QGuiApplication>
#include <QtTest>

#include <memory>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class AlerteExpliquee : public DAlerteInfo
{
public:
    explicit AlerteExpliquee(bool & detruite)
        : DAlerteInfo(kAvertissement, UniChaine("message"))
        , maDestruction(detruite)
    {
    }
    ~AlerteExpliquee() override { maDestruction = true; }

    UniChaine DonneExplication() const override { return UniChaine("explication"); }

private:
    bool & maDestruction;
};

} // namespace

class tst_DAlerteInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void valeursDesTypes_data();
    void valeursDesTypes();
    void champs();
    void champsPublics();
    void titreParDefaut();
    void titreParDefautSuitLApplication();
    void copieEtAffectation();
    void classesDerivees();
    void passeAUnAutreFil();
};

void tst_DAlerteInfo::cleanup()
{
    QGuiApplication::setApplicationDisplayName(QString());
}

void tst_DAlerteInfo::valeursDesTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("valeur");
    QTest::newRow("question") << int(DAlerteInfo::kQuestion) << 1;
    QTest::newRow("information") << int(DAlerteInfo::kInformation) << 2;
    QTest::newRow("warning") << int(DAlerteInfo::kAvertissement) << 3;
    QTest::newRow("error") << int(DAlerteInfo::kErreur) << 4;
    QTest::newRow("ephemeral bubble") << int(DAlerteInfo::kEphemere) << 5;
    QTest::newRow("notification") << int(DAlerteInfo::kNotification) << 6;
    QTest::newRow("progress without end") << int(DAlerteInfo::kProgressionInfinie) << 7;
    QTest::newRow("custom icon") << int(DAlerteInfo::kMaison) << 8;
    QTest::newRow("no icon") << int(DAlerteInfo::kSansIcone) << 9;
}

void tst_DAlerteInfo::valeursDesTypes()
{
    QFETCH(int, type);
    QFETCH(int, valeur);
    QCOMPARE(type, valeur);
    DAlerteInfo const info(static_cast<DAlerteInfo::eTypeDialogue>(valeur), UniChaine("m"));
    QCOMPARE(int(info.DonneTypeDialogue()), valeur);
}

void tst_DAlerteInfo::champs()
{
    DAlerteInfo const info(DAlerteInfo::kErreur, UniChaine("message"), UniChaine("note"),
                           UniChaine("titre"));
    QCOMPARE(QString(info.DonneMessage()), u"message"_s);
    QCOMPARE(QString(info.DonneNote()), u"note"_s);
    QCOMPARE(QString(info.DonneTitreFenetre()), u"titre"_s);
    QVERIFY(!info.EstTitreParDefaut());
    QCOMPARE(QString(info.DonneMessagePourJournalisation()), u"message"_s);
    QVERIFY(info.DonneExplication().EstVide());
}

void tst_DAlerteInfo::champsPublics()
{
    DAlerteInfo info(DAlerteInfo::kQuestion, UniChaine("message"));
    QCOMPARE(info.texteRiche, false);
    QVERIFY(info.libelleCaseACocher.EstVide());
    QCOMPARE(info.dureeAffichage, -1.0F);
    QVERIFY(info.DonneNote().EstVide());
    info.texteRiche = true;
    info.libelleCaseACocher = UniChaine("Ne plus demander");
    info.dureeAffichage = 2.5F;
    DAlerteInfo const copie(info);
    QVERIFY(copie.texteRiche);
    QCOMPARE(QString(copie.libelleCaseACocher), u"Ne plus demander"_s);
    QCOMPARE(copie.dureeAffichage, 2.5F);
}

void tst_DAlerteInfo::titreParDefaut()
{
    QGuiApplication::setApplicationDisplayName(u"Application"_s);
    DAlerteInfo const info(DAlerteInfo::kQuestion, UniChaine("message"), kUniChaineNulle,
                           kUniChaineNulle);
    QVERIFY(info.EstTitreParDefaut());
    QCOMPARE(QString(info.DonneTitreFenetre()), u"Application"_s);
}

void tst_DAlerteInfo::titreParDefautSuitLApplication()
{
    DAlerteInfo const info(DAlerteInfo::kQuestion, UniChaine("message"));
    QGuiApplication::setApplicationDisplayName(u"Nom donné après coup"_s);
    QCOMPARE(QString(info.DonneTitreFenetre()), u"Nom donné après coup"_s);
}

void tst_DAlerteInfo::copieEtAffectation()
{
    DAlerteInfo const original(DAlerteInfo::kErreur, UniChaine("m"), UniChaine("n"),
                               UniChaine("t"));
    DAlerteInfo affectee(DAlerteInfo::kQuestion, UniChaine("autre"));
    affectee = original;
    QCOMPARE(affectee.DonneTypeDialogue(), DAlerteInfo::kErreur);
    QCOMPARE(QString(affectee.DonneMessage()), u"m"_s);
    QCOMPARE(QString(affectee.DonneNote()), u"n"_s);
    QCOMPARE(QString(affectee.DonneTitreFenetre()), u"t"_s);
    QVERIFY(!affectee.EstTitreParDefaut());
}

void tst_DAlerteInfo::classesDerivees()
{
    bool detruite = false;
    std::unique_ptr<DAlerteInfo> info = std::make_unique<AlerteExpliquee>(detruite);
    QCOMPARE(QString(info->DonneExplication()), u"explication"_s);
    info.reset();
    QVERIFY(detruite);
}

void tst_DAlerteInfo::passeAUnAutreFil()
{
    DAlerteInfo info(DAlerteInfo::kErreur, UniChaine("message"));
    QString lu;
    std::thread fil([copie = info, &lu] { lu = copie.DonneMessage(); });
    info = DAlerteInfo(DAlerteInfo::kQuestion, UniChaine("autre"));
    fil.join();
    QCOMPARE(lu, u"message"_s);
}

QTEST_MAIN(tst_DAlerteInfo)
#include "tst_DAlerteInfo.moc"
