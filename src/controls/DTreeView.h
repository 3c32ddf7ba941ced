// controls/DTreeView.h
#pragma once

#include "FabrelGuiExport.h"

#include <QStyle>
#include <QTreeView>

/// A `QTreeView` whose subclasses may draw single elements of it in the style's place.
class FABRELGUI_EXPORT DTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit DTreeView(QWidget * parent = nullptr);

    /// Asked by the style before it draws one of the elements that it leaves to the view. True
    /// means that the view has drawn it, and the style draws nothing; always false here.
    virtual bool GereDrawPrimitive(QStyle::PrimitiveElement element, QStyleOption const * option,
                                   QPainter * peintre, QWidget const * widget) const;
};
