// navigation/DAssistantEtape.cpp
#include "navigation/DAssistantEtape.h"

DAssistantEtape::DAssistantEtape(QWidget * parent)
    : QWidget(parent)
{
}

void DAssistantEtape::MetsTitre(QString const & titre)
{
    monTitre = titre;
}

QString DAssistantEtape::DonneTitre() const
{
    return monTitre;
}

UniChaine DAssistantEtape::DonneTitreEtape()
{
    return UniChaine(monTitre);
}

void DAssistantEtape::EntreDansEtape() {}

void DAssistantEtape::AnnuleEtape() {}

bool DAssistantEtape::PeutRevenir()
{
    return true;
}

bool DAssistantEtape::PeutAvancer()
{
    return true;
}

bool DAssistantEtape::PeutTerminer()
{
    return true;
}

bool DAssistantEtape::BloqueRetour()
{
    return false;
}

bool DAssistantEtape::GardePrecedentActif()
{
    return false;
}

bool DAssistantEtape::BloqueAvance()
{
    return false;
}

bool DAssistantEtape::PeutFermer(QCloseEvent *)
{
    return true;
}
