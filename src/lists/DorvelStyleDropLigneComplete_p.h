// lists/DorvelStyleDropLigneComplete_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QProxyStyle>

/// The style of views whose rows are dragged: a drop between rows shows across the whole line. All
/// else is left to the style that the application has at that moment.
///
/// After another style of the application, a view has to be given this one again: Qt polishes anew
/// only what has no style of its own. Not to be made the application's own style.
class FABRELGUI_EXPORT DorvelStyleDropLigneComplete : public QProxyStyle
{
    Q_OBJECT

public:
    DorvelStyleDropLigneComplete();

    /// The one that all views share, since it has no state. It belongs to the application object: a
    /// style must outlive its widgets.
    static DorvelStyleDropLigneComplete * Prete();

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget = nullptr) const override;
};
