// galerie/TouchesBarreRecherche.h
#pragma once

#include <QObject>

class BarreRecherche;
class QKeyEvent;

/// Keeps the keys of a search bar from the dialog that the bar is in: Escape closes the bar alone,
/// Return and Enter press no default button.
///
/// The bar itself closes when Escape is released in one of its fields. This object has it close
/// from its buttons too, in the same way: a replacement that is under way goes on. The bar
/// stays when the press was not in it: that one has closed a menu, a list or another window. Nor
/// does a key that is held down close the bar before it is released: its next press would be in the
/// dialog.
class TouchesBarreRecherche : public QObject
{
    Q_OBJECT

public:
    explicit TouchesBarreRecherche(BarreRecherche & barre, QObject * parent = nullptr);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    bool FiltreAppui(QObject const * objet, QKeyEvent & evenement);
    bool FiltreRelachement(QObject const * objet, QKeyEvent const & evenement);

    BarreRecherche & maBarre; // alive whenever the filter is called
    bool monAppuiEstVu = false;
};
