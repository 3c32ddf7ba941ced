// tests/fuzz/TexteDeFuzz.h
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The bytes of one run as text: UTF-8, so that the dictionary of tags reads as it is written.
/// Broken sequences become U+FFFD.
inline QString DonneTexte(std::uint8_t const * octets, std::size_t nombre)
{
    return QString::fromUtf8(reinterpret_cast<char const *>(octets),
                             static_cast<qsizetype>(nombre));
}

/// Ends the run as a crash where `vrai` is not.
inline void Exige(bool vrai, char const * quoi)
{
    if (vrai)
        return;
    std::fprintf(stderr, "violated: %s\n", quoi);
    std::abort();
}
