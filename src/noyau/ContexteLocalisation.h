// noyau/ContexteLocalisation.h
#pragma once

#include "noyau/ChaineLocalisable.h"
#include "noyau/DLocale.h"

#include "FabrelNoyauExport.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class Catalogue;

/// The registry of the translation domains.
///
/// Filled once, at the start, on one thread; read from any thread afterwards. A catalogue is loaded
/// by the first look-up in its language.
class FABRELNOYAU_EXPORT ContexteLocalisation
{
public:
    ContexteLocalisation();
    ContexteLocalisation(ContexteLocalisation const &) = delete;
    ContexteLocalisation & operator=(ContexteLocalisation const &) = delete;
    ~ContexteLocalisation();

    /// Registers a gettext domain. `chemin` is the file system or resource path of its catalogues
    /// without language and extension: ":/fichiers/GUI" stands for ":/fichiers/GUIFr.mo",
    /// ":/fichiers/GUIEn.mo" and ":/fichiers/GUIEn_CA.mo". A domain of that name is replaced.
    void AjouteDomaine(std::string nom, std::string chemin);

    /// The catalogue of a domain in a language; null for an unknown domain or language.
    Catalogue const * PreteCatalogue(VueTexte domaine, DLocale locale) const;

private:
    struct Domaine;
    struct Registre;

    std::unique_ptr<Registre> monRegistre;
};

/// Adds the core library's own domains to the registry.
FABRELNOYAU_EXPORT void InitLocaleLibNoyau(ContexteLocalisation & contexte);
