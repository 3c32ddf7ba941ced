// navigation/DFilAriane.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>

#include <map>

class ElementFilAriane;
class QHBoxLayout;

/// A breadcrumb: a strip of markers that shows where a long task stands. It takes no input.
class FABRELGUI_EXPORT DFilAriane : public QFrame
{
    Q_OBJECT

public:
    explicit DFilAriane(QWidget * parent = nullptr);

    /// Adds a marker at the end. One made before under the same identifier stays in the strip,
    /// which still owns it, but is no longer lent.
    void CreeUnElement(int identifiant);

    /// Null for an unknown identifier.
    ElementFilAriane * PreteUnElement(int identifiant);

private:
    std::map<int, ElementFilAriane *> mesElements;
    QHBoxLayout * maDisposition = nullptr;
};
