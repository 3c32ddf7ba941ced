// tests/noyau/tst_PlateformeToasts.cpp
#include "noyau/plateforme/PlateformeToasts.h"
#include "noyau/plateforme/ReferenceComptay.h"
#include "outils/ToastsSimules.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
// An object that counts without dying.
struct Objet
{
    ULONG AddRef() { return ++compte; }
    ULONG Release() { return --compte; }

    ULONG compte = 1;
};
} // namespace

class tst_PlateformeToasts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void installeEtRemet();
    void sansToastsDuSysteme();
    void objetsSurviventALaPlateforme();
    void reglagesSurviventAuDouble();
    void cacherRien();
    void resultats();
    void referencePrendEtLibere();
    void referencePartage();
    void referenceDeplacay();
    void referenceRecoit();
    void exigeObjet();
};

void tst_PlateformeToasts::cleanup()
{
    PlateformeToasts::Installe(nullptr);
}

void tst_PlateformeToasts::installeEtRemet()
{
    PlateformeToasts * const systeme = &PlateformeToasts::Courante();
    auto simulee = std::make_unique<ToastsSimules>();
    PlateformeToasts * const adresse = simulee.get();
    auto const premiere = PlateformeToasts::Installe(std::move(simulee));
    QCOMPARE(premiere.get(), systeme);
    QCOMPARE(&PlateformeToasts::Courante(), adresse);
    auto const seconde = PlateformeToasts::Installe(nullptr);
    QCOMPARE(seconde.get(), adresse);
    QVERIFY(&PlateformeToasts::Courante() != adresse);
}

void tst_PlateformeToasts::sansToastsDuSysteme()
{
#ifdef Q_OS_WIN
    QSKIP("This system has toasts.");
#endif
    // Not null to begin with, so that the null is the call's.
    ToastsSimules simules;
    ReferenceComptay<IToastNotificationManagerStatics> reste;
    simules.RoGetActivationFactory({}, reste.Recois());
    IToastNotificationManagerStatics * gestionnaire = reste.Prete();
    QVERIFY(gestionnaire);
    QCOMPARE(PlateformeToasts::Courante().RoGetActivationFactory(
                 u"Windows.UI.Notifications.ToastNotificationManager"_s, &gestionnaire),
             E_NOTIMPL);
    QVERIFY(!gestionnaire);

    IToastNotificationFactory * fabrique = nullptr;
    QCOMPARE(PlateformeToasts::Courante().RoGetActivationFactory(
                 u"Windows.UI.Notifications.ToastNotification"_s, &fabrique),
             E_NOTIMPL);
    QVERIFY(!fabrique);
}

void tst_PlateformeToasts::objetsSurviventALaPlateforme()
{
    PlateformeToasts::Installe(std::make_unique<ToastsSimules>());
    ReferenceComptay<IToastNotificationFactory> fabrique;
    QCOMPARE(PlateformeToasts::Courante().RoGetActivationFactory({}, fabrique.Recois()), S_OK);
    PlateformeToasts::Installe(nullptr);
    QCOMPARE(fabrique->AddRef(), ULONG(2));
    QCOMPARE(fabrique->Release(), ULONG(1));
}

// What a test set on the double outlives it too.
void tst_PlateformeToasts::reglagesSurviventAuDouble()
{
    auto simules = std::make_unique<ToastsSimules>();
    simules->MetsReglage(NotificationSetting_DisabledForUser);
    simules->MetsModele(u"<toast/>"_s);
    ReferenceComptay<IToastNotificationManagerStatics> gestionnaire;
    simules->RoGetActivationFactory({}, gestionnaire.Recois());
    simules.reset();

    ReferenceComptay<IXmlDocument> document;
    QCOMPARE(gestionnaire->GetTemplateContent(ToastImageAndText04, document.Recois()), S_OK);
    ReferenceComptay<IXmlNodeList> elements;
    QCOMPARE(document->GetElementsByTagName(u"toast"_s, elements.Recois()), S_OK);
    UINT longueur = 0;
    QCOMPARE(elements->get_Length(&longueur), S_OK);
    QCOMPARE(longueur, UINT(1));

    ReferenceComptay<IToastNotifier> notificateur;
    QCOMPARE(gestionnaire->CreateToastNotifierWithId({}, notificateur.Recois()), S_OK);
    NotificationSetting reglage = NotificationSetting_Enabled;
    QCOMPARE(notificateur->get_Setting(&reglage), S_OK);
    QCOMPARE(reglage, NotificationSetting_DisabledForUser);
}

void tst_PlateformeToasts::cacherRien()
{
    ToastsSimules simules;
    ReferenceComptay<IToastNotificationManagerStatics> gestionnaire;
    simules.RoGetActivationFactory({}, gestionnaire.Recois());
    ReferenceComptay<IToastNotifier> notificateur;
    gestionnaire->CreateToastNotifierWithId({}, notificateur.Recois());
    QCOMPARE(notificateur->Hide(nullptr), E_POINTER);
}

void tst_PlateformeToasts::resultats()
{
    QVERIFY(SUCCEEDED(S_OK) && !FAILED(S_OK));
    QVERIFY(SUCCEEDED(S_FALSE) && !FAILED(S_FALSE));
    for (HRESULT const echec : {E_NOTIMPL, E_NOINTERFACE, E_POINTER, E_FAIL})
        QVERIFY(FAILED(echec) && !SUCCEEDED(echec));
    QCOMPARE(static_cast<quint32>(E_FAIL), 0x80004005U);
}

void tst_PlateformeToasts::referencePrendEtLibere()
{
    Objet objet;
    {
        ReferenceComptay<Objet> const reference(&objet);
        QCOMPARE(objet.compte, ULONG(1));
        QCOMPARE(reference.Prete(), &objet);
        QVERIFY(reference);
    }
    QCOMPARE(objet.compte, ULONG(0));
    QVERIFY(!ReferenceComptay<Objet>());
}

void tst_PlateformeToasts::referencePartage()
{
    Objet objet;
    {
        auto const reference = ReferenceComptay<Objet>::Partage(&objet);
        QCOMPARE(objet.compte, ULONG(2));
    }
    QCOMPARE(objet.compte, ULONG(1));
    QVERIFY(!ReferenceComptay<Objet>::Partage(nullptr));
}

void tst_PlateformeToasts::referenceDeplacay()
{
    Objet premier;
    Objet second;
    {
        ReferenceComptay<Objet> reference(&premier);
        ReferenceComptay<Objet> autre(std::move(reference));
        QCOMPARE(autre.Prete(), &premier);
        autre = ReferenceComptay<Objet>(&second);
        QCOMPARE(premier.compte, ULONG(0));
        QCOMPARE(autre.Prete(), &second);
        QCOMPARE(autre.Cede(), &second);
        QVERIFY(!autre);
    }
    QCOMPARE(second.compte, ULONG(1));
}

void tst_PlateformeToasts::referenceRecoit()
{
    Objet premier;
    Objet second;
    ReferenceComptay<Objet> reference(&premier);
    *reference.Recois() = &second;
    QCOMPARE(premier.compte, ULONG(0));
    QCOMPARE(reference.Prete(), &second);
    QCOMPARE(reference->compte, ULONG(1));
}

void tst_PlateformeToasts::exigeObjet()
{
    Objet objet;
    ReferenceComptay<Objet> const reference(&objet);
    ReferenceComptay<Objet> const vide;
    QCOMPARE(ExigeObjet(S_OK, reference), S_OK);
    QCOMPARE(ExigeObjet(S_FALSE, reference), S_FALSE);
    QCOMPARE(ExigeObjet(E_FAIL, vide), E_FAIL);
    QCOMPARE(ExigeObjet(S_OK, vide), E_POINTER);
    QCOMPARE(ExigeObjet(S_FALSE, vide), E_POINTER);
}

QTEST_GUILESS_MAIN(tst_PlateformeToasts)
#include "tst_PlateformeToasts.moc"
