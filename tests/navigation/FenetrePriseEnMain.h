// tests/navigation/FenetrePriseEnMain.h
#pragma once

#include "navigation/CtrlPriseEnMainEspion.h"
#include "navigation/FenPriseEnMain.h"
#include "navigation/RessourcesEnMemoire.h"
#include "noyau/Traductions.h"
#include "outils/BureauSimulay.h"

#include <QtTest>

#include <memory>

/// The onboarding window of an application whose resources are given, before a desktop that opens
/// no browser.
class FenetrePriseEnMain
{
public:
    FenetrePriseEnMain()
    {
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        auto bureau = std::make_unique<BureauSimulay>();
        monBureau = bureau.get();
        PlateformeBureau::Installe(std::move(bureau));
        FenPriseEnMain::monCtrl = &monCtrl;
    }
    ~FenetrePriseEnMain()
    {
        FenPriseEnMain::LibereSingleton();
        FenPriseEnMain::monCtrl = nullptr;
        PlateformeBureau::Installe(nullptr);
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    }
    FenetrePriseEnMain(FenetrePriseEnMain const &) = delete;
    FenetrePriseEnMain & operator=(FenetrePriseEnMain const &) = delete;

    void MetsRessources(QByteArray const & document, QByteArray const & feuille = {})
    {
        mesRessources.reset(); // two files of one name would both be there
        mesRessources = std::make_unique<RessourcesEnMemoire>(RessourcesEnMemoire::Dossiers{
            {QStringLiteral("fichiers"), {{QStringLiteral("DonneesPriseEnMain.json"), document}}},
            {QStringLiteral("Style"), {{QStringLiteral("FenPriseEnMain.qss"), feuille}}},
            {QStringLiteral("Images"), {{QStringLiteral("fenetre-decouvrir-panacel.svg"), kImage}}},
        });
    }

    /// Makes the window from a document of that many rows.
    FenPriseEnMain & Alloue(int rangees)
    {
        MetsRessources(EcrisDocument(CreeDocument(rangees)));
        FenPriseEnMain::LibereSingleton();
        FenPriseEnMain::AlloueInstance(true, false);
        return *FenPriseEnMain::Instance();
    }

    template <typename Widget>
    static QList<Widget *> Prete(char const * nom)
    {
        return FenPriseEnMain::Instance()->findChildren<Widget *>(QString::fromUtf8(nom));
    }
    /// By the 0-based row.
    static QCheckBox & Case(int rangee)
    {
        return *Prete<QCheckBox>("CheckBoxListeLien").at(rangee);
    }
    static QPushButton & Lien(int rangee)
    {
        return *Prete<QPushButton>("BoutonListeLien").at(rangee);
    }

    QStringList Ouverts() const
    {
        QStringList adresses;
        for (auto const & [url, fureteur] : monBureau->urlsOuvertes)
            adresses << url.toString(QUrl::RemoveQuery);
        return adresses;
    }

    CtrlPriseEnMainEspion monCtrl;
    BureauSimulay * monBureau = nullptr; // owned by the platform layer

private:
    static constexpr char const * kImage =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 10' width='40' height='10'>"
        "<rect width='40' height='10' fill='#ff0000'/></svg>";

    std::unique_ptr<RessourcesEnMemoire> mesRessources;
};
