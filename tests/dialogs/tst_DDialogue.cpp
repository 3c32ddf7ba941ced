// dialogs/tst_DDialogue.cpp
//
// The vocabulary of the alerts: the meta-type, the receiver, the question about toasts.
#include "dialogs/BancToasts.h"

#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

class Receveur : public DAlerteReceveur
{
public:
    void TraiteReponse(int const &, int) override {}
};

} // namespace

class tst_DDialogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tailleDUnEnsemble();
    void typeConnuParSonNom_data();
    void typeConnuParSonNom();
    void stockeurs();
    void identifiantDuReceveur();
    void copieDuReceveur();
    void contratDuDeleguay();
    void notificationsDeLaPlateforme();
};

void tst_DDialogue::tailleDUnEnsemble()
{
    QCOMPARE(sizeof(eBoutons), std::size_t(4));
    QCOMPARE(quint32(kBoutonMaisonElevee1), 0x80000000U);
}

void tst_DDialogue::typeConnuParSonNom_data()
{
    QTest::addColumn<quint32>("valeur");
    QTest::newRow("none") << quint32(kBoutonAucun);
    QTest::newRow("a button") << quint32(kBoutonOui);
    QTest::newRow("a link") << quint32(kBoutonLien | 5);
    QTest::newRow("the highest bit") << quint32(kBoutonMaisonElevee1);
}

// An answer travels in a variant, there and back.
void tst_DDialogue::typeConnuParSonNom()
{
    QFETCH(quint32, valeur);
    QVariant const variante = QVariant::fromValue(static_cast<eBoutons>(valeur));
    QCOMPARE(variante.metaType(), QMetaType::fromName("DDialogue::eBoutons"));
    QCOMPARE(quint32(variante.value<eBoutons>()), valeur);
}

void tst_DDialogue::stockeurs()
{
    QCOMPARE(int(StockeurParDefaut), 0);
    QCOMPARE(int(StockeurNePlusMAviser), 1);
}

void tst_DDialogue::identifiantDuReceveur()
{
    Receveur receveur;
    QCOMPARE(receveur.DonneIdMessage(), -1);
    QVERIFY(!receveur.DonneModalAFenetre());
    QVERIFY(!receveur.DonneModalAApplication());
    receveur.MetsIdMessage(0);
    QCOMPARE(receveur.DonneIdMessage(), 0);
}

void tst_DDialogue::copieDuReceveur()
{
    Receveur receveur;
    receveur.MetsIdMessage(42);
    Receveur const copie(receveur);
    Receveur affecte;
    affecte = receveur;
    receveur.MetsIdMessage(43);
    QCOMPARE(copie.DonneIdMessage(), 42);
    QCOMPARE(affecte.DonneIdMessage(), 42);
}

// A receiver can stand where the core library asks for a delegate, and treats nothing there.
void tst_DDialogue::contratDuDeleguay()
{
    std::unique_ptr<DAlerteDeleguay> const deleguay = std::make_unique<Receveur>();
    DAlerteInfo const info(DAlerteInfo::kQuestion, u"Message"_s);
    QCOMPARE(deleguay->TraiteDAlerte(info), -1);
    QCOMPARE(deleguay->TraiteDAlerteRappel(info, u"guid"_s), -1);
}

void tst_DDialogue::notificationsDeLaPlateforme()
{
    BancToasts const banc;
    QVERIFY(PeutAfficherNotificationPlateforme());
    banc.bureau->versionWindows = {0, 0, 0};
    QVERIFY(!PeutAfficherNotificationPlateforme());
    QCOMPARE(PeutAfficherNotificationPlateforme(),
             DDialogueNotification::PeutUtiliserAPIToastNotification());
}

QTEST_GUILESS_MAIN(tst_DDialogue)
#include "tst_DDialogue.moc"
