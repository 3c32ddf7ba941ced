// tests/lists/EssaisBarreDeFiltrePopUp.h
#pragma once

#include "lists/PiecesBarreDeFiltre.h"

#include <functional>

// What the tests of the pop-up of a filter bar have in common.
namespace EssaisBarreDeFiltrePopUp {

using namespace Qt::StringLiterals;

// Something to do each time that the menu is open, in its event loop.
class PendantQuIlEstOuvert : public QObject
{
public:
    PendantQuIlEstOuvert(QMenu & menu, std::function<void()> travail)
        : monTravail(std::move(travail))
    {
        connect(&menu, &QMenu::aboutToShow, this, [this] {
            ++ouvertures;
            QTimer::singleShot(0, this, monTravail);
        });
    }

    int ouvertures = 0;

private:
    std::function<void()> monTravail;
};

struct Essai : FenetreDeBarreDeFiltre
{
    Essai()
    {
        barre->AjouterComboBox(1, u"Longueur"_s, CreeComboDeFiltre());
        barre->AjouterComboBox(2, u"Initiale"_s, CreeComboDeFiltre());
    }

    QPoint Centre() const { return pieces.bouton->rect().center(); }

    // As the mouse does: what has a pop-up open gets it from the window.
    void Clique() const
    {
        QTest::mouseClick(fenetre.windowHandle(), Qt::LeftButton, {},
                          pieces.bouton->mapTo(&fenetre, Centre()));
    }
};

} // namespace EssaisBarreDeFiltrePopUp
