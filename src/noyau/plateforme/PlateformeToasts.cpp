// noyau/plateforme/PlateformeToasts.cpp
#include "noyau/plateforme/PlateformeToasts.h"

#include "noyau/plateforme/PlateformeToastsSysteme_p.h"

#include <utility>

namespace {
std::unique_ptr<PlateformeToasts> & PreteCourante()
{
    static auto courante = CreePlateformeToastsDuSysteme();
    return courante;
}
} // namespace

Toasts::IUnknown::~IUnknown() = default;

PlateformeToasts::~PlateformeToasts() = default;

PlateformeToasts & PlateformeToasts::Courante()
{
    return *PreteCourante();
}

std::unique_ptr<PlateformeToasts>
PlateformeToasts::Installe(std::unique_ptr<PlateformeToasts> plateforme)
{
    if (!plateforme)
        plateforme = CreePlateformeToastsDuSysteme();
    return std::exchange(PreteCourante(), std::move(plateforme));
}
