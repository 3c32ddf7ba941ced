// controls/DBoutonAbstrait.cpp
#include "controls/DBoutonAbstrait.h"

#include "controls/BoutonAccessible_p.h"

DBoutonAbstrait::DBoutonAbstrait(QWidget * parent)
    : QWidget(parent)
{
    // Before anything asks for the interface of the control: Qt keeps the first that it makes.
    BoutonAccessible::PrendsFabrique();
}

DBoutonAbstrait::~DBoutonAbstrait()
{
    BoutonAccessible::LibereFabrique();
}
