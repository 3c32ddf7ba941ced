// noyau/plateforme/PlateformeToasts.h
#pragma once

#include "noyau/plateforme/InterfacesToasts.h"

#include <memory>

/// The toasts of the platform: where its interfaces begin, one call each, no policy.
///
/// Backends: the Windows Runtime, and null for every other system. GUI thread only; the events of a
/// toast come on threads of the platform.
class FABRELNOYAU_EXPORT PlateformeToasts
{
public:
    PlateformeToasts() = default;
    PlateformeToasts(PlateformeToasts const &) = delete;
    PlateformeToasts & operator=(PlateformeToasts const &) = delete;
    virtual ~PlateformeToasts();

    /// The toasts of the running system, or what `Installe` put in their place.
    static PlateformeToasts & Courante();

    /// Puts other toasts in place and returns those replaced, never null. A null argument puts
    /// those of the running system back. The objects that a layer gave out may outlive it.
    static std::unique_ptr<PlateformeToasts> Installe(std::unique_ptr<PlateformeToasts> plateforme);

    /// The factory of the class of that name; fails where there is none.
    virtual HRESULT
    RoGetActivationFactory(QString const & classe,
                           Toasts::IToastNotificationManagerStatics ** fabrique) = 0;
    virtual HRESULT RoGetActivationFactory(QString const & classe,
                                           Toasts::IToastNotificationFactory ** fabrique) = 0;
};
