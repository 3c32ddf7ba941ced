// galerie/EchapBarreRecherche.h
#pragma once

#include <QObject>

class BarreRecherche;

/// Makes Escape close a search bar and nothing else: not the dialog that the bar is in.
///
/// The bar itself closes when the key is released in one of its fields. This object takes the press
/// that comes up from there, closes the bar from its buttons too, and keeps a field from a release
/// whose press it has not seen: that one has closed a menu or a list.
class EchapBarreRecherche : public QObject
{
    Q_OBJECT

public:
    explicit EchapBarreRecherche(BarreRecherche & barre, QObject * parent = nullptr);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    bool FiltreBarre(QEvent & evenement);
    bool FiltreChamp(QEvent const & evenement);

    BarreRecherche & maBarre; // alive whenever a filter is called
    bool monAppuiEstVu = false;
};
