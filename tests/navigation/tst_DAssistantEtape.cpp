// tests/navigation/tst_DAssistantEtape.cpp
#include "navigation/DAssistantEtape.h"

#include <QCloseEvent>
#include <QtTest>

using namespace Qt::StringLiterals;

class tst_DAssistantEtape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void titre();
    void reponses();
};

void tst_DAssistantEtape::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantEtape::construction()
{
    QWidget parent;
    DAssistantEtape etape(&parent);
    QCOMPARE(etape.parentWidget(), &parent);
    QCOMPARE(etape.DonneTitre(), QString());
    QVERIFY(!DAssistantEtape().parentWidget());
}

void tst_DAssistantEtape::titre()
{
    DAssistantEtape etape;
    QCOMPARE(QString(etape.DonneTitreEtape()), QString());
    etape.MetsTitre(u"Choix du fichier"_s);
    QCOMPARE(etape.DonneTitre(), u"Choix du fichier"_s);
    QCOMPARE(QString(etape.DonneTitreEtape()), u"Choix du fichier"_s);
}

void tst_DAssistantEtape::reponses()
{
    DAssistantEtape etape;
    etape.EntreDansEtape();
    etape.AnnuleEtape();
    QVERIFY(etape.PeutRevenir());
    QVERIFY(etape.PeutAvancer());
    QVERIFY(etape.PeutTerminer());
    QVERIFY(!etape.BloqueRetour());
    QVERIFY(!etape.GardePrecedentActif());
    QVERIFY(!etape.BloqueAvance());
    QCloseEvent fermeture;
    QVERIFY(etape.PeutFermer(&fermeture));
    QVERIFY(fermeture.isAccepted());
    QVERIFY(etape.PeutFermer(nullptr));
}

QTEST_MAIN(tst_DAssistantEtape)
#include "tst_DAssistantEtape.moc"
