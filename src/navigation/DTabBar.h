// navigation/DTabBar.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <QFrame>

class DTabBarInterne;
class DTabWidget;
class QHBoxLayout;
class QPushButton;

/// The row at the top of a `DTabWidget`: the tabs, then the button that asks for another one.
class FABRELGUI_EXPORT DTabBar : public QFrame
{
    Q_OBJECT

public:
    /// Tabs move only between rows with equal identifiers.
    DTabBar(DTabWidget * parent, UniChaine identifiantGroupe);

    DTabBarInterne * PreteBarreInterne() const { return maBarreInterne; }
    QPushButton * PreteBoutonAjout() const { return monBoutonAjout; }
    UniChaine DonneIdentifiantGroupe() const { return monIdentifiantGroupe; }

Q_SIGNALS:
    /// The button was clicked; the row adds nothing by itself.
    void SignalAjouteOnglet();

protected:
    void changeEvent(QEvent * evenement) override;

private:
    void CreeBarreInterne();
    void CreeBoutonAjout();
    void NommeBoutonAjout();

    DTabBarInterne * maBarreInterne = nullptr;
    QPushButton * monBoutonAjout = nullptr;
    UniChaine monIdentifiantGroupe;
    QHBoxLayout * monLayout = nullptr;
};
