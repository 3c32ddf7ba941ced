// dialogs/TextesAlerte_p.h
#pragma once

class DAlerteInfo;
class QString;

/// What an alert says under its message: its explanation and, if it has one, a blank and its note.
QString DonneExplicationAvecNote(DAlerteInfo const & info);

/// What a screen reader says of a text that may hold mark-up, and does with `estRiche`.
QString DonneTexteLu(QString const & texte, bool estRiche = false);
