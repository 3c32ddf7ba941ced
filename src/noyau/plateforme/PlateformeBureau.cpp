// noyau/plateforme/PlateformeBureau.cpp
#include "noyau/plateforme/PlateformeBureau.h"

#include "noyau/plateforme/PlateformeBureauSysteme_p.h"

#include <utility>

namespace {
std::unique_ptr<PlateformeBureau> & PreteCourante()
{
    static auto courante = CreePlateformeBureauDuSysteme();
    return courante;
}
} // namespace

PlateformeBureau::~PlateformeBureau() = default;

PlateformeBureau & PlateformeBureau::Courante()
{
    return *PreteCourante();
}

std::unique_ptr<PlateformeBureau>
PlateformeBureau::Installe(std::unique_ptr<PlateformeBureau> plateforme)
{
    if (!plateforme)
        plateforme = CreePlateformeBureauDuSysteme();
    return std::exchange(PreteCourante(), std::move(plateforme));
}
