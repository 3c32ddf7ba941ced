// dialogs/DDialogue.cpp
#include "dialogs/DDialogue.h"

#include "dialogs/DDialogueNotification.h"

DDialogue::DAlerteReceveur::~DAlerteReceveur() = default;

int DDialogue::DAlerteReceveur::TraiteDAlerte(DAlerteInfo const &)
{
    return -1;
}

int DDialogue::DAlerteReceveur::TraiteDAlerteRappel(DAlerteInfo const &, UniChaine const &)
{
    return -1;
}

bool DDialogue::PeutAfficherNotificationPlateforme()
{
    return DDialogueNotification::PeutUtiliserAPIToastNotification();
}
