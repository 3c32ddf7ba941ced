// controls/DListView.h
#pragma once

#include "FabrelGuiExport.h"

#include <QListView>
#include <QStyle>

/// A `QListView` whose subclasses may draw single elements of it in the style's place.
class FABRELGUI_EXPORT DListView : public QListView
{
    Q_OBJECT

public:
    explicit DListView(QWidget * parent = nullptr);

    /// Asked by the style before it draws one of the elements that it leaves to the view. True
    /// means that the view has drawn it, and the style draws nothing; always false here.
    virtual bool GereDrawPrimitive(QStyle::PrimitiveElement element, QStyleOption const * option,
                                   QPainter * peintre, QWidget const * widget) const;
};
