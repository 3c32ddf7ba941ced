// noyau/Objet.h
#pragma once

#include "FabrelNoyauExport.h"

namespace sdd {

/// The base of the values of the family.
class FABRELNOYAU_EXPORT Objet
{
public:
    Objet() = default;
    Objet(Objet const &) = default;
    Objet(Objet &&) noexcept = default;
    Objet & operator=(Objet const &) = default;
    Objet & operator=(Objet &&) noexcept = default;
    virtual ~Objet() = default; // inline: every string that goes out of scope runs it

    /// Empties a container that owns its objects and destroys them; does nothing for other values.
    virtual void VideEtTueObjets();
};

} // namespace sdd
