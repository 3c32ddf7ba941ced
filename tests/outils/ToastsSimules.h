// tests/outils/ToastsSimules.h
#pragma once

#include "noyau/plateforme/PlateformeToasts.h"

#include <QDomDocument>
#include <QStringList>

#include <functional>
#include <memory>

/// The toasts of a platform in memory, with a real XML document behind each.
///
/// Install it with `PlateformeToasts::Installe`. Every call is noted in `DonneAppels()`, as
/// "Name(arguments)", and does what it says unless it was told to answer something else. Toasts
/// that were shown are kept, with the handlers of their events, until `Oublie`.
class ToastsSimules : public PlateformeToasts
{
public:
    struct Etat;

    ToastsSimules();
    ~ToastsSimules() override;

    /// What the notifiers made from here on say of the user's setting; enabled without it.
    void MetsReglage(Toasts::NotificationSetting reglage);
    /// The document that a toast begins with, in place of the platform's.
    void MetsModele(QString const & modele);

    /// Every call of that name gives that result; with a failure it does nothing else.
    void Reponds(QString const & operation, HRESULT resultat);
    /// The same for one call, the number `rang` from 0 of all of them.
    void RepondsAppel(int rang, HRESULT resultat);
    /// Calls of that name succeed without the object that they return.
    void RendsRien(QString const & operation);
    /// The same for one call, the number `rang` from 0 of all of them.
    void RendsRienAppel(int rang);

    QStringList DonneAppels() const;
    /// Puts a line of the test's own among the calls.
    void Note(QString const & ligne);
    /// The objects that somebody holds a reference on; those of shown toasts are among them.
    int DonneNombreObjets() const;

    int DonneNombreToasts() const;
    QString DonneIdentifiant(int toast) const;
    QDomDocument DonneDocument(int toast) const;
    bool ExpireAuRedemarrage(int toast) const;
    bool EstRetiray(int toast) const;
    void Oublie();

    // The events of a toast, each on a thread of its own, as on the platform. The result is that of
    // the handler.
    HRESULT Active(int toast, QString const & arguments);
    /// The arguments are of another class than those of an activation.
    HRESULT ActiveAutrement(int toast);
    HRESULT ActiveSansArguments(int toast);
    HRESULT Ecarte(int toast, Toasts::ToastDismissalReason raison);
    HRESULT EcarteSansArguments(int toast);
    HRESULT Echoue(int toast);

    HRESULT RoGetActivationFactory(QString const & classe,
                                   Toasts::IToastNotificationManagerStatics ** fabrique) override;
    HRESULT RoGetActivationFactory(QString const & classe,
                                   Toasts::IToastNotificationFactory ** fabrique) override;

private:
    std::shared_ptr<Etat> monEtat;
};
