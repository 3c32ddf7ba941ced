// outils/EntreeX11.h
#pragma once

#include <QPoint>

#include <memory>

struct xcb_connection_t;

/// A mouse and a keyboard of the X server, so that the window manager sees what they do. Events of
/// `QTest` would pass it by.
class EntreeX11
{
public:
    enum eTouche : unsigned // keysyms
    {
        kBas = 0xff54,
        kRetour = 0xff0d,
        kEchappement = 0xff1b,
    };

    EntreeX11();
    ~EntreeX11();
    EntreeX11(EntreeX11 const &) = delete;
    EntreeX11 & operator=(EntreeX11 const &) = delete;

    /// False without an X server that simulates input.
    bool EstPrete() const { return monPret; }
    /// In pixels of the screen.
    void Deplace(QPoint const & point);
    void Clique(QPoint const & point);
    /// Of the left button, where the mouse is.
    void Presse();
    void Relache();
    /// A character of Latin 1, or one of `eTouche`.
    void Frappe(unsigned touche);

private:
    void Envoie(unsigned char type, unsigned char detail, QPoint const & point = {});
    unsigned char TrouveCode(unsigned touche) const;

    xcb_connection_t * maConnexion;
    bool monPret = false;
    unsigned maRacine = 0;
};
