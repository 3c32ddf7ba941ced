// noyau/plateforme/EnveloppeWinRT_p.h
#pragma once

#include "noyau/plateforme/ReferenceComptay.h"

#include <QString>

#include <winstring.h>

#include <atomic>

/// A string for the length of a call. The platform reads the text where it stands.
class ChaineWinRT
{
public:
    explicit ChaineWinRT(QString const & texte)
        : monTexte(texte)
        , monResultat(::WindowsCreateStringReference(
              reinterpret_cast<wchar_t const *>(monTexte.utf16()),
              static_cast<UINT32>(monTexte.size()), &monEntete, &maChaine))
    {
    }
    ChaineWinRT(ChaineWinRT const &) = delete;
    ChaineWinRT & operator=(ChaineWinRT const &) = delete;

    HRESULT DonneResultat() const { return monResultat; }
    HSTRING Prete() const { return maChaine; } // null stands for the empty text

private:
    QString const monTexte;
    HSTRING_HEADER monEntete{};
    HSTRING maChaine = nullptr;
    HRESULT const monResultat;
};

template <typename Com>
HRESULT Interroge(::IUnknown * objet, Com ** interface_)
{
    return objet->QueryInterface(Com::kIid, reinterpret_cast<void **>(interface_));
}

/// One of our objects around one of the platform's.
template <typename Interface, typename Com>
class Enveloppe : public Interface
{
public:
    /// Takes a reference on `objet`.
    explicit Enveloppe(Com * objet)
        : monObjet(ReferenceComptay<Com>::Partage(objet))
    {
    }

    ULONG AddRef() override { return ++monCompte; }
    ULONG Release() override
    {
        ULONG const compte = --monCompte;
        if (compte == 0)
            delete this;
        return compte;
    }

    Com * Prete() const { return monObjet.Prete(); }

protected:
    ~Enveloppe() override = default;

private:
    ReferenceComptay<Com> monObjet;
    std::atomic<ULONG> monCompte = 1;
};

// What a call of the platform returned, in our terms.
template <typename Adaptateur, typename Interface, typename Com>
HRESULT Rends(HRESULT resultat, ReferenceComptay<Com> const & objet, Interface ** sortie)
{
    *sortie = SUCCEEDED(resultat) && objet ? new Adaptateur(objet.Prete()) : nullptr;
    return resultat;
}
