// noyau/Traductions.cpp
#include "noyau/Traductions.h"

#include <atomic>

namespace {
std::atomic<eLangue> langueCourante = kLangueFrancais;
} // namespace

DLocale Traductions::DonneLocalePourApplicationCourante()
{
    return DLocale(langueCourante);
}

eLangue Traductions::DonneLanguePourApplicationCourante()
{
    return langueCourante;
}

void Traductions::MetsLanguePourApplicationCourante(eLangue langue)
{
    langueCourante = langue;
}
