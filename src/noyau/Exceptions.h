// noyau/Exceptions.h
#pragma once

#include "FabrelNoyauExport.h"

#include <QtGlobal>

#include <stdexcept>

namespace sdd::exceptions {

/// What an index outside its range throws.
class FABRELNOYAU_EXPORT IndexHorsBorne : public std::out_of_range
{
public:
    IndexHorsBorne(quint64 index, quint64 premier, quint64 dernier);
    ~IndexHorsBorne() override;

    quint64 const index;
    quint64 const premier; ///< the first index allowed
    quint64 const dernier; ///< the last index allowed
};

/// Throws `IndexHorsBorne`.
[[noreturn]] FABRELNOYAU_EXPORT void LanceIndexHorsBorne(quint64 index, quint64 premier,
                                                         quint64 dernier);

} // namespace sdd::exceptions
