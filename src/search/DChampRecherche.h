// search/DChampRecherche.h
#pragma once

#include "FabrelGuiExport.h"

#include "controls/DComboBox.h"

#include "noyau/UniChaine.h"

#include <QList>

class QAction;
class QActionGroup;
class QMenu;

/// A search field that can offer modes of searching, such as "contains" and "starts with".
///
/// An editable combo box with a button that clears it, without completion, that adds nothing to its
/// list by itself. As long as there are modes, what opens the list (the arrow, F4, Alt+Down) opens
/// a menu of the modes instead, and the label of the current one stands in the empty field. Without
/// modes, as at first, it is a combo box with its own list and the placeholder that the host gives
/// its line edit. The wheel changes nothing.
class FABRELGUI_EXPORT DChampRecherche : public DComboBox
{
    Q_OBJECT

public:
    /// What `DonneModeCourant` answers without a current mode.
    static constexpr int kAucunMode = -1;

    explicit DChampRecherche(QWidget * parent = nullptr);

    /// Adds a mode at the end of the menu; an id that is there gets the new label and keeps its
    /// place. No mode becomes the current one by this. The id -1 is ignored.
    void AjouteMode(int id, UniChaine const & libelle);
    int DonneNombreDeModes() const;
    /// -1 when there is none: until `MetsModeCourant` or the user's first choice.
    int DonneModeCourant() const;
    /// -1 for none; an unknown id is ignored.
    void MetsModeCourant(int id);
    /// Removes all modes; there is no current one then.
    void VideToutMode();

    void showPopup() override;
    void hidePopup() override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// Another mode is the current one, by the host or by the user; -1 for none.
    void SignalModeChangay(int id);

protected:
    void wheelEvent(QWheelEvent * evenement) override;

private:
    struct Mode
    {
        int id;
        QString libelle;
    };

    void PriseMenuFermay();
    void PriseModeChoisi(QAction * action);
    void CreeMenu();
    Mode const * TrouveMode(int id) const;
    void MontreMode();
    void RemplisMenu();

    QList<Mode> mesModes;
    int monModeCourant = kAucunMode;
    QString monInvite; // the host's, while the label of a mode is in its place
    bool monInvitePrise = false;
    QMenu * monMenu = nullptr; // made on first use
    QActionGroup * monGroupe = nullptr;
};
