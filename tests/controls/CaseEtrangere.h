#pragma once

#include <QCheckBox>

#include <memory>

/// A check box of a host, whose class happens to have the name of one of the library's own.
namespace CaseEtrangere {

std::unique_ptr<QCheckBox> Cree(QString const & texte);

} // namespace CaseEtrangere
