// noyau/DAlerteInfo.cpp
#include "noyau/DAlerteInfo.h"

#include <QGuiApplication>

DAlerteInfo::DAlerteInfo(eTypeDialogue type, UniChaine const & message, UniChaine const & note,
                         UniChaine const & titre)
    : monType(type)
    , monMessage(message)
    , maNote(note)
    , monTitre(titre)
    , monTitreEstParDefaut(titre.EstVide())
{
}

DAlerteInfo::~DAlerteInfo() = default;

UniChaine DAlerteInfo::DonneTitreFenetre() const
{
    // Asked late: an alert may be described before the application has its name.
    return monTitreEstParDefaut ? UniChaine(QGuiApplication::applicationDisplayName()) : monTitre;
}

UniChaine DAlerteInfo::DonneExplication() const
{
    return {};
}
