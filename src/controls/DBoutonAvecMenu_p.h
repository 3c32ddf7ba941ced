// controls/DBoutonAvecMenu_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QPushButton>
#include <QVariant>

/// The dynamic property of a button that holds its identifier, which is contract with hosts.
constexpr char const * kProprieteIdentifiant = "identifiant";

/// A button of a `DControleBoutonsExclusifs`: with a line of the accent colour along the bottom
/// while it is checked and enabled, and where it is made so with a part at its end, in the
/// direction of the layout, that asks for a menu.
///
/// A press on that part, Alt+Down or F4 emits `menuCliquay` and presses nothing else.
class FABRELGUI_EXPORT DBoutonAvecMenu : public QPushButton
{
    Q_OBJECT

public:
    DBoutonAvecMenu(QString const & texte, bool avecMenu, QWidget * parent = nullptr);

    /// Without effect on a button that was made without the part.
    void AfficheMenu(bool visible);
    bool MenuEstAffichay() const;
    /// Where the part is; null while it is hidden.
    QRect DonneRectMenu() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// With the button's dynamic property "identifiant".
    void menuCliquay(QVariant id);

protected:
    bool hitButton(QPoint const & position) const override;
    void mousePressEvent(QMouseEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    void DessineAvecMenu();
    void DessineMenu(QPainter & peintre) const;
    void DessineMarque();

    bool const monAvecMenu;
    bool monMenuAffichay;
};
