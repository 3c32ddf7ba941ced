// dialogs/ExplicationAlerte.cpp
#include "dialogs/ExplicationAlerte_p.h"

#include "noyau/DAlerteInfo.h"

QString DonneExplicationAvecNote(DAlerteInfo const & info)
{
    QString texte = info.DonneExplication();
    // Deliberate: the blank stands there without an explanation, too.
    if (UniChaine const note = info.DonneNote(); !note.EstVide())
        texte += QChar(u' ') + QString(note);
    return texte;
}
