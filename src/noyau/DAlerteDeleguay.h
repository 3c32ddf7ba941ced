// noyau/DAlerteDeleguay.h
#pragma once

#include "FabrelNoyauExport.h"

class DAlerteInfo;
class UniChaine;

/// Takes alerts on behalf of a layer that has no windows.
///
/// The core library shows nothing itself. It hands the alerts it raises to the delegate that the
/// application installed, and only journals them where there is none.
class FABRELNOYAU_EXPORT DAlerteDeleguay
{
public:
    DAlerteDeleguay() = default;
    DAlerteDeleguay(DAlerteDeleguay const &) = default;
    DAlerteDeleguay & operator=(DAlerteDeleguay const &) = default;
    virtual ~DAlerteDeleguay();

    /// Answers an alert; -1 when it was not treated, as here.
    virtual int TraiteDAlerte(DAlerteInfo const & info);
    /// Answers an alert whose answer may be remembered under `guid`; -1 when it was not treated.
    virtual int TraiteDAlerteRappel(DAlerteInfo const & info, UniChaine const & guid);

    /// The delegate that takes the core library's alerts, or null.
    static DAlerteDeleguay * Courant();
    /// Installs the delegate, which is not owned; null for none.
    static void Installe(DAlerteDeleguay * deleguay);
};
