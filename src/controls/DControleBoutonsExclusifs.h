// controls/DControleBoutonsExclusifs.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <QFrame>
#include <QVariant>

#include <vector>

class QAbstractButton;
class QButtonGroup;

/// A row of buttons of which one at most is checked.
///
/// A button that is checked is unchecked by checking another one only. The row has as many buttons
/// as entries, in their order; an identifier that occurs twice stands for the first button that has
/// it. Each button carries its entry in the dynamic properties "identifiant" and "etiquette" (a
/// `QString`), and its place in the row in a property for style sheets: "AGauche" for the first,
/// also when it is the only one, "ADroite" for the last, and an empty text for the others. Where
/// the layout goes from right to left the first button is the rightmost one and keeps its value.
///
/// The row owns the Tab focus of its buttons: Tab enters at the checked one, the arrow keys move
/// on, and a focus policy that a host gives a button does not last. A slot of `toggled` that gets
/// rid of the row or of a button does so with `deleteLater`. The separator of a button that is
/// deleted stays.
class FABRELGUI_EXPORT DControleBoutonsExclusifs : public QFrame
{
    Q_OBJECT

public:
    struct InfosBouton
    {
        UniChaine texte;
        QVariant identifiant;
        bool cochay = false;   ///< of several, the first one wins
        bool avecMenu = false; ///< the button has a part that asks for a menu
    };

    /// The buttons carry their place in the property "ControleBascule".
    explicit DControleBoutonsExclusifs(std::vector<InfosBouton> boutons,
                                       QWidget * parent = nullptr);

    /// Writes the place of each button in the named property too, and has the style look at it.
    void AppliqueProprieteStyleBoutons(char const * nom = "ControleBascule");

    /// Null when no button has that identifier.
    QAbstractButton * DonneBouton(QVariant const & identifiant) const;
    /// Invalid for null and for a button of somebody else.
    QVariant DonneIdentifiant(QAbstractButton const * bouton) const;
    /// Invalid when no button is checked.
    QVariant DonneIdentifiantCochay() const;

    /// Without effect for an unknown identifier, and when it would leave no button checked.
    void MetsCochay(QVariant const & identifiant, bool cochay);
    /// Without effect for an unknown identifier.
    void MetsTooltipSurBouton(QVariant const & identifiant, UniChaine const & texte);
    /// Shows or hides the part for the menu of a button that was made with one; without effect for
    /// any other.
    void AjusterAffichageMenuBoutons(QVariant const & identifiant, bool visible);

Q_SIGNALS:
    /// What each button emits: false from the one that gives way, then true from the other one.
    void toggled(bool cochay);
    /// The part for the menu was pressed, or Alt+Down or F4 on its button. No state changes.
    void menuCliquay(QVariant id);

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void childEvent(QChildEvent * evenement) override;

private Q_SLOTS:
    void AjusteTabulation();

private:
    QAbstractButton * CreeControle(UniChaine const & texte, QVariant const & identifiant,
                                   bool cochay, bool avecMenu);
    QWidget * CreeSeparateur();

    QButtonGroup * monGroupe = nullptr;
    QString monStyleGauche;
    QString monStyleDroite;
    std::vector<InfosBouton> mesBoutons;
};
