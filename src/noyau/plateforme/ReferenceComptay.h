// noyau/plateforme/ReferenceComptay.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include <utility>

/// Holds one reference on an object that counts its own, and releases it.
template <typename Objet>
class ReferenceComptay
{
public:
    ReferenceComptay() = default;
    /// Takes over a reference that is the caller's; see `Partage` for one that is not.
    explicit ReferenceComptay(Objet * objet)
        : monObjet(objet)
    {
    }
    ReferenceComptay(ReferenceComptay && autre) noexcept
        : monObjet(std::exchange(autre.monObjet, nullptr))
    {
    }
    ReferenceComptay & operator=(ReferenceComptay && autre) noexcept
    {
        std::swap(monObjet, autre.monObjet);
        return *this;
    }
    ~ReferenceComptay() { Libere(); }

    /// A reference of its own on `objet`, which may be null.
    static ReferenceComptay Partage(Objet * objet)
    {
        if (objet)
            objet->AddRef();
        return ReferenceComptay(objet);
    }

    /// Where a call puts the object that it returns. Releases what was held.
    Objet ** Recois()
    {
        Libere();
        return &monObjet;
    }
    Objet * Prete() const { return monObjet; }
    /// Gives the reference away.
    Objet * Cede() { return std::exchange(monObjet, nullptr); }

    Objet * operator->() const { return monObjet; }
    explicit operator bool() const { return monObjet != nullptr; }

private:
    void Libere()
    {
        if (Objet * const objet = std::exchange(monObjet, nullptr))
            objet->Release();
    }

    Objet * monObjet = nullptr;
};

/// The result of a call, with `E_POINTER` for a success that left `objet` empty: so the platform's
/// lists answer for what is not there.
template <typename Objet>
HRESULT ExigeObjet(HRESULT resultat, ReferenceComptay<Objet> const & objet)
{
    return SUCCEEDED(resultat) && !objet ? E_POINTER : resultat;
}
