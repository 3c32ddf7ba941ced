// lists/InterfaceUtilisantListeChoixFlottante.cpp
#include "lists/InterfaceUtilisantListeChoixFlottante.h"

InterfaceUtilisantListeChoixFlottante::InterfaceUtilisantListeChoixFlottante(QObject * parent)
    : QObject(parent)
{
}
