// navigation/DFilAriane.cpp
#include "navigation/DFilAriane.h"

#include "navigation/ElementFilAriane.h"

#include "foundation/Layouts.h"

#include <QHBoxLayout>

DFilAriane::DFilAriane(QWidget * parent)
    : QFrame(parent)
    , maDisposition(new QHBoxLayout)
{
    RoutinesGeneralesQt::EnleveMargesDuLayout(maDisposition);
    maDisposition->setSpacing(0);
    // The two ends of the strip: the markers come between them.
    maDisposition->addStretch(0);
    maDisposition->addStretch(0);
    setLayout(maDisposition);
}

void DFilAriane::CreeUnElement(int identifiant)
{
    auto * const element = new ElementFilAriane(this);
    // Deliberate: a marker that is replaced stays in the strip.
    mesElements[identifiant] = element;
    element->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    maDisposition->insertWidget(maDisposition->count() - 1, element);
}

ElementFilAriane * DFilAriane::PreteUnElement(int identifiant)
{
    // Deliberate: an unknown identifier leaves an empty entry behind.
    return mesElements[identifiant];
}
