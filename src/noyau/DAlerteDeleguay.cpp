// noyau/DAlerteDeleguay.cpp
#include "noyau/DAlerteDeleguay.h"

#include <atomic>

namespace {
std::atomic<DAlerteDeleguay *> deleguayCourant = nullptr;
} // namespace

DAlerteDeleguay::~DAlerteDeleguay() = default;

int DAlerteDeleguay::TraiteDAlerte(DAlerteInfo const &)
{
    return -1;
}

int DAlerteDeleguay::TraiteDAlerteRappel(DAlerteInfo const &, UniChaine const &)
{
    return -1;
}

DAlerteDeleguay * DAlerteDeleguay::Courant()
{
    return deleguayCourant;
}

void DAlerteDeleguay::Installe(DAlerteDeleguay * deleguay)
{
    deleguayCourant = deleguay;
}
