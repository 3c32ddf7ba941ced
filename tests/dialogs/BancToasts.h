// tests/dialogs/BancToasts.h
#pragma once

#include "dialogs/DAlerteNotification.h"
#include "dialogs/DDialogueNotification.h"
#include "outils/BureauSimulay.h"
#include "outils/ToastsSimules.h"

#include <QTemporaryDir>

/// A Windows in memory on which the application may show toasts, for as long as it lives.
class BancToasts
{
public:
    BancToasts()
    {
        auto leBureau = std::make_unique<BureauSimulay>();
        bureau = leBureau.get();
        bureau->versionWindows = {10, 0, 19045};
        bureau->raccourcis = QStringList{kIdentifiant};
        PlateformeBureau::Installe(std::move(leBureau));
        InstalleToasts();
        DAlerteNotification::MetsRaccourci({UniChaine(kIdentifiant), {}, {}, {}, {}});
        DAlerteNotification::MetsNomFichierSurDisque(UniChemin(DonneImage()));
    }
    BancToasts(BancToasts const &) = delete;
    BancToasts & operator=(BancToasts const &) = delete;
    ~BancToasts()
    {
        PlateformeToasts::Installe(nullptr);
        PlateformeBureau::Installe(nullptr);
        DAlerteNotification::MetsIconeGenerale({});
        DAlerteNotification::MetsNomFichierSurDisque({});
        DAlerteNotification::MetsRaccourci({});
    }

    /// New toasts in the place of those before.
    void InstalleToasts()
    {
        auto lesToasts = std::make_unique<ToastsSimules>();
        toasts = lesToasts.get();
        PlateformeToasts::Installe(std::move(lesToasts));
    }

    QString DonneImage() const { return dossier.filePath(QStringLiteral("image.png")); }

    /// Shows an alert of one word, "message"; the answers come to `reponses`.
    bool Affiche(int boutons, std::list<UniChaine> const & labels = {})
    {
        return DDialogueNotification::Affiche(
            DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")), boutons,
            DDialogue::kBoutonOk, DDialogue::kBoutonAnnuler, labels,
            [this](DDialogue::eBoutons const & reponse) { reponses << reponse; });
    }

    /// Shows `info`, whose answer nobody waits for.
    static bool AfficheAlerte(DAlerteInfo const & info, int boutons)
    {
        return DDialogueNotification::Affiche(info, boutons, DDialogue::kBoutonOk,
                                              DDialogue::kBoutonOk, {}, {});
    }

    static inline QString const kIdentifiant = QStringLiteral("org.essai");

    BureauSimulay * bureau = nullptr;
    ToastsSimules * toasts = nullptr;
    QTemporaryDir dossier;
    QList<DDialogue::eBoutons> reponses;
};
