// noyau/Exceptions.cpp
#include "noyau/Exceptions.h"

#include <string>

namespace sdd::exceptions {

IndexHorsBorne::IndexHorsBorne(quint64 index_, quint64 premier_, quint64 dernier_)
    : std::out_of_range("index " + std::to_string(index_) + " outside of " +
                        std::to_string(premier_) + ".." + std::to_string(dernier_))
    , index(index_)
    , premier(premier_)
    , dernier(dernier_)
{
}

IndexHorsBorne::~IndexHorsBorne() = default;

void LanceIndexHorsBorne(quint64 index, quint64 premier, quint64 dernier)
{
    throw IndexHorsBorne(index, premier, dernier);
}

} // namespace sdd::exceptions
