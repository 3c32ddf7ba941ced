// dialogs/ExplicationAlerte_p.h
#pragma once

class DAlerteInfo;
class QString;

/// What an alert says under its message: its explanation and, if it has one, a blank and its note.
QString DonneExplicationAvecNote(DAlerteInfo const & info);
