// dialogs/TextesAlerte.cpp
#include "dialogs/TextesAlerte_p.h"

#include "noyau/DAlerteInfo.h"

#include <QTextDocumentFragment>

QString DonneExplicationAvecNote(DAlerteInfo const & info)
{
    QString texte = info.DonneExplication();
    // Deliberate: the blank stands there without an explanation, too.
    if (UniChaine const note = info.DonneNote(); !note.EstVide())
        texte += QChar(u' ') + QString(note);
    return texte;
}

QString DonneTexteLu(QString const & texte, bool estRiche)
{
    return estRiche || Qt::mightBeRichText(texte)
               ? QTextDocumentFragment::fromHtml(texte).toPlainText()
               : texte;
}
