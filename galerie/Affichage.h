// galerie/Affichage.h
#pragma once

#include <QStringList>

/// True when the platform that Qt would choose for these arguments of the program can show windows.
///
/// Asks the servers themselves, since Qt ends the program when it reaches none. False for the
/// platforms that draw into memory only.
bool PeutAfficher(QStringList const & arguments);
