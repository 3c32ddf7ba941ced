// galerie/TexteReplie.h
#pragma once

#include <QString>

/// Appends what `caractere` is compared as when neither case nor accents count: nothing for what is
/// no letter and no digit, two letters for a ligature. From any thread.
void AjouteReplie(QString & cle, QChar caractere);
