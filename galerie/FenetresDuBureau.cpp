// galerie/FenetresDuBureau.cpp
#include "FenetresDuBureau.h"

#include "desktop/RoutinesFenetre.h"

#include "noyau/RoutinesFenetreNatives.h"
#include "noyau/plateforme/PlateformeFenetres.h"

#include <QCoreApplication>
#include <QSet>

namespace {
FenetreDuBureau Decris(HWND poignee)
{
    PlateformeFenetres & plateforme = PlateformeFenetres::Courante();
    FenetreDuBureau fenetre;
    fenetre.poignee = poignee;
    fenetre.titre = plateforme.GetWindowTextW(poignee);
    fenetre.classe = DonneNomClasse(poignee);
    UniChaine programme;
    DonneNomEXEAPartirHWND(poignee, programme, true);
    fenetre.programme = programme;
    plateforme.GetWindowThreadProcessId(poignee, &fenetre.processus);
    fenetre.estNotre = fenetre.processus == QCoreApplication::applicationPid();
    fenetre.visible = plateforme.IsWindowVisible(poignee);
    fenetre.iconique = plateforme.IsIconic(poignee);
    auto const style = static_cast<DWORD>(plateforme.GetWindowLongPtrW(poignee, GWL_EXSTYLE));
    fenetre.translucide = style & WS_EX_LAYERED;
    fenetre.outil = style & WS_EX_TOOLWINDOW;
    fenetre.toujoursDevant = style & WS_EX_TOPMOST;
    fenetre.gelee = fenetre.visible && RoutinesFenetre::FenetreEstGelee(poignee);
    return fenetre;
}
} // namespace

bool BureauEstVisible()
{
    return PlateformeFenetres::Courante().GetDesktopWindow() != nullptr;
}

QList<FenetreDuBureau> ListeFenetresDuBureau(bool cachees)
{
    PlateformeFenetres & plateforme = PlateformeFenetres::Courante();
    HWND const avantPlan = plateforme.GetForegroundWindow();
    HWND texteur = nullptr;
    RoutinesFenetre::DonneTexteurCourant(texteur, {});

    QList<FenetreDuBureau> fenetres;
    QSet<HWND> vues; // the order may change during the walk
    for (HWND poignee = plateforme.GetTopWindow(nullptr); poignee && !vues.contains(poignee);
         poignee = plateforme.GetWindow(poignee, GW_HWNDNEXT)) {
        vues.insert(poignee);
        if (!cachees && !plateforme.IsWindowVisible(poignee))
            continue;
        FenetreDuBureau fenetre = Decris(poignee);
        fenetre.estAvantPlan = poignee == avantPlan;
        fenetre.estTexteur = poignee == texteur;
        fenetres.append(fenetre);
    }
    return fenetres;
}
