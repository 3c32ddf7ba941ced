// noyau/Paire.h
#pragma once

namespace sdd {

/// A plain pair.
template <typename A, typename B>
struct Paire
{
    A premier;
    B second;

    friend bool operator==(Paire const &, Paire const &) = default;
};

} // namespace sdd
