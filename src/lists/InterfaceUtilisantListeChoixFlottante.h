// lists/InterfaceUtilisantListeChoixFlottante.h
#pragma once

#include "FabrelGuiExport.h"

#include <QObject>

/// The host's side of a `ListeChoixFlottante`: what it has to tell the list. A host usually owns
/// one as a member, and hands it to the list's constructor.
class FABRELGUI_EXPORT InterfaceUtilisantListeChoixFlottante : public QObject
{
    Q_OBJECT

public:
    explicit InterfaceUtilisantListeChoixFlottante(QObject * parent = nullptr);

Q_SIGNALS:
    /// To be emitted whenever the window that carries the linked widget moves.
    void SignalParentDeplacay();
};
