// search/AlerteIntrouvable_p.h
#pragma once

#include "noyau/ChaineLocalisable.h"

class QWidget;

/// Tells in a bubble over `parent` that a search found nothing; `options` is the option word of the
/// search. `dansLeTexte` are the words of the front end for a text that was searched all around,
/// the one text in which the front ends differ.
void AlerteIntrouvable(QWidget * parent, short options, bool pourListe,
                       ChaineLocalisable const & dansLeTexte);
