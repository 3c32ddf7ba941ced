// dialogs/FormesAlertes.h
#pragma once

#include "dialogs/EssaisAlertes.h"

#include <array>

// The forms of an alert, one row for each entry function.
namespace EssaisAlertes {

/// The arguments of all forms; each takes its own from among them.
struct Appel
{
    DAlerteInfo info;
    QWidget * parent = nullptr;
    HWND fenetre = nullptr;
    int boutons = DDialogue::kBoutonOk;
    DDialogue::eBoutons defaut = DDialogue::kBoutonOk;
    DDialogue::eBoutons echap = DDialogue::kBoutonOk;
    std::array<UniChaine, 5> labels{};
    DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser;
    UniChaine guid{};
    DDialogue::DAlerteReceveur const * receveur = nullptr;
    RappelAlerte rappel{};
};

enum class eDestination
{
    kRetour,
    kRappel,
    kReceveur
};

struct Forme
{
    char const * nom;
    eDestination destination;
    bool aBoutons; ///< takes the mask of the buttons, the default and the escape button
    bool aStockage;
    bool aParent; ///< takes a `QWidget` as parent
    bool estStricte;
    DDialogue::eBoutons (*lance)(Appel const & a);

    bool Bloque() const { return destination == eDestination::kRetour; }
};

inline std::list<UniChaine> EnListe(std::array<UniChaine, 5> const & labels)
{
    return {labels.begin(), labels.end()};
}

#define LABELS a.labels[0], a.labels[1], a.labels[2], a.labels[3], a.labels[4]
#define BOUTONS a.boutons, a.defaut, a.echap
#define SANS_RETOUR(appel) ((appel), DDialogue::kBoutonAucun)
#define LANCE(expression) [](Appel const & a) -> DDialogue::eBoutons { return expression; }

inline constexpr auto kRetour = eDestination::kRetour;
inline constexpr auto kRappel = eDestination::kRappel;
inline constexpr auto kReceveur = eDestination::kReceveur;

// clang-format off
inline constexpr Forme kFormes[] = {
    // name, destination, mask, store, parent, strict
    {"DAlerte", kRetour, false, false, true, false,
     LANCE(DAlerte(a.parent, a.info))},
    {"DAlerte, buttons", kRetour, true, false, true, false,
     LANCE(DAlerte(a.parent, a.info, BOUTONS, LABELS))},
    {"DAlerteSynchroneEtModalFenetre", kRetour, false, false, true, false,
     LANCE(DAlerteSynchroneEtModalFenetre(a.parent, a.info))},
    {"DAlerteSynchroneEtModalFenetre, buttons", kRetour, true, false, true, false,
     LANCE(DAlerteSynchroneEtModalFenetre(a.parent, a.info, BOUTONS, LABELS))},
    {"DAlerte, callback", kRappel, true, false, true, false,
     LANCE(SANS_RETOUR(DAlerte(a.parent, a.info, BOUTONS, a.rappel)))},
    {"DAlerte, callback, list", kRappel, true, false, true, false,
     LANCE(SANS_RETOUR(DAlerte(a.parent, a.info, BOUTONS, EnListe(a.labels), a.rappel)))},
    {"DAlerte, receiver", kReceveur, false, false, true, true,
     LANCE(SANS_RETOUR(DAlerte(a.parent, a.receveur, a.info)))},
    {"DAlerte, receiver, buttons", kReceveur, true, false, true, true,
     LANCE(SANS_RETOUR(DAlerte(a.parent, a.receveur, a.info, BOUTONS, LABELS)))},
    {"DAlerteCentrageNatif", kRetour, false, false, false, true,
     LANCE(DAlerteCentrageNatif(a.info))},
    {"DAlerteCentrageNatif, buttons", kRetour, true, false, false, true,
     LANCE(DAlerteCentrageNatif(a.info, BOUTONS, LABELS))},
    {"DAlerteCentrageNatif, window", kRetour, false, false, false, true,
     LANCE(DAlerteCentrageNatif(a.fenetre, a.info))},
    {"DAlerteCentrageNatif, window, buttons", kRetour, true, false, false, true,
     LANCE(DAlerteCentrageNatif(a.fenetre, a.info, BOUTONS, LABELS))},
    {"DAlerteCentrageNatif, receiver", kReceveur, false, false, false, true,
     LANCE(SANS_RETOUR(DAlerteCentrageNatif(a.receveur, a.info)))},
    {"DAlerteCentrageNatif, window, receiver", kReceveur, false, false, false, true,
     LANCE(SANS_RETOUR(DAlerteCentrageNatif(a.fenetre, a.receveur, a.info)))},
    {"DAlerteRappel", kRetour, true, true, true, true,
     LANCE(DAlerteRappel(a.parent, a.info, a.type, a.guid, BOUTONS, LABELS))},
    {"DAlerteRappel, callback", kRappel, true, true, true, false,
     LANCE(SANS_RETOUR(DAlerteRappel(a.parent, a.info, a.type, a.guid, BOUTONS, a.rappel)))},
    {"DAlerteRappel, callback, list", kRappel, true, true, true, false,
     LANCE(SANS_RETOUR(DAlerteRappel(a.parent, a.info, a.type, a.guid, BOUTONS,
                                     EnListe(a.labels), a.rappel)))},
    {"DAlerteRappel, receiver", kReceveur, true, true, true, true,
     LANCE(SANS_RETOUR(DAlerteRappel(a.parent, a.receveur, a.info, a.type, a.guid, BOUTONS,
                                     LABELS)))},
    {"DAlerteRappelSynchroneEtModalAFenetre", kRetour, true, true, true, false,
     LANCE(DAlerteRappelSynchroneEtModalAFenetre(a.parent, a.info, a.type, a.guid, BOUTONS,
                                                 LABELS))},
};
// clang-format on

#undef LABELS
#undef BOUTONS
#undef SANS_RETOUR
#undef LANCE

inline Forme const & PreteForme(QString const & nom)
{
    for (Forme const & forme : kFormes)
        if (nom == QLatin1String(forme.nom))
            return forme;
    qFatal("unknown form: %s", qPrintable(nom));
}

/// One row for each form that is wanted, with its name in the column "forme".
inline void AjouteFormes(bool (*estVoulue)(Forme const &) = [](Forme const &) { return true; })
{
    QTest::addColumn<QString>("forme");
    for (Forme const & forme : kFormes)
        if (estVoulue(forme))
            QTest::newRow(forme.nom) << QString::fromLatin1(forme.nom);
}

inline bool AvecBoutons(Forme const & forme)
{
    return forme.aBoutons;
}

inline bool SansBoutons(Forme const & forme)
{
    return !forme.aBoutons;
}

inline bool AvecReceveur(Forme const & forme)
{
    return forme.destination == eDestination::kReceveur;
}

} // namespace EssaisAlertes
