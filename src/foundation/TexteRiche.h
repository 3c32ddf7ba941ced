// foundation/TexteRiche.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <QFont>
#include <QList>
#include <QTextLayout>

class QPainter;
class QRect;
class QTextCharFormat;
class UniChaineFormatee; // of the core library

// Short texts with a small mark-up, measured and drawn without a document: fast enough for every
// row of a list. Broken mark-up is text or nothing, never an error. GUI thread only.
namespace RoutinesGeneralesQt {

/// A text with its tags, and what they come to.
struct TexteAvecFormat
{
    UniChaine source; ///< with its tags
    UniChaine texte;  ///< without them: what is laid out
    QList<QTextLayout::FormatRange>
        formats{}; ///< in units of `texte`, in the order of the end tags
};

/// Reads the tags <i> <b> <s> <em> <m> <sub> <sup> <br/> <pn> <font color ="#rrggbb"> and
/// <span class="surlignement">; every other tag goes away. The sizes are built on `font`.
///
/// A tag that is never closed formats nothing. A range that lies in another one comes before it;
/// for the tags to add up in a layout, the outer range has to be applied first. The line feed of a
/// <br/>, and the letters that capitals add ("ß" becomes "SS"), belong to the ranges around them.
FABRELGUI_EXPORT TexteAvecFormat DonneTexteAvecFormat(UniChaine texte, QFont font);

/// Draws one line at the top left of `rectangle`, with "…" where it is cut.
///
/// In the colour of the pen, where the text has none of its own. A highlighted text is black
/// under a light pen, which could not be read on yellow.
FABRELGUI_EXPORT void DessineTexteRiche(QPainter & peintre, QRect const & rectangle, QFont font,
                                        UniChaine texte);
/// Draws up to two lines, of which the second one ends in "…" where it is cut. A word that is
/// longer than the first line is broken. Where `rectangle` has room for one line only, in height or
/// beside a source, it is that of `DessineTexteRiche`, cut with "…".
FABRELGUI_EXPORT void DessineTexteRicheSurDeuxLignes(QPainter & peintre, QRect const & rectangle,
                                                     QFont font, UniChaine texte);
/// Draws `texte`, and at the right edge of its first line `source`, in italics behind a dash. With
/// `deuxLignes` the text may go on in a second line. A source that leaves no room for "…" beside it
/// hides the text. The painter is left as it was.
FABRELGUI_EXPORT void DessineTexteRicheAvecSource(QPainter & peintre, QRect const & rectangle,
                                                  QFont font, UniChaine texte, UniChaine source,
                                                  bool deuxLignes);
/// Draws nothing: what draws such a string is the core library's.
FABRELGUI_EXPORT void DessineUniChaineFormatee(UniChaineFormatee const & chaine, QPainter & peintre,
                                               QRect const & rectangle,
                                               Qt::AlignmentFlag alignement,
                                               Qt::TextElideMode elision);

/// The width in pixels that the text takes on one line, up to its first <br/>.
FABRELGUI_EXPORT double DonneLongueurTexteRiche(UniChaine const & texte, QFont const & font);

/// `texte` as a tool tip in the font of the application, whose size must be in pixels. An empty
/// text stays empty with `vide`.
FABRELGUI_EXPORT UniChaine DonneTexteRichePourInfobulle(UniChaine const & texte, bool vide);
/// True when `DonneTexteRichePourInfobulle` made the text, with the present font of the
/// application.
FABRELGUI_EXPORT bool InfobulleContientTexteRiche(UniChaine const & texte);

/// 1 for italic, 2 for the weight 700, 4 for superscript or else 8 for subscript, added up.
FABRELGUI_EXPORT int ConvertisQTextCharFormatEnTypBitStyle(QTextCharFormat const & format);

} // namespace RoutinesGeneralesQt
