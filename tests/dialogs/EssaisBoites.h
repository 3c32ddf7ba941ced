// tests/dialogs/EssaisBoites.h
#pragma once

#include "dialogs/DAlerte.h"
#include "dialogs/DMessageBox.h"

#include "noyau/DAlerteInfo.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

// Driving the boxes that alerts bring up.

/// The box that is on the screen, or null.
inline DMessageBox * DonneBoiteVisible()
{
    for (QWidget * const widget : QApplication::topLevelWidgets()) {
        auto * const boite = qobject_cast<DMessageBox *>(widget);
        if (boite && boite->isVisible())
            return boite;
    }
    return nullptr;
}

/// The buttons in the order in which they were made.
inline QList<QPushButton *> BoutonsDansLOrdre(QMessageBox const & boite)
{
    QList<QPushButton *> boutons;
    for (QDialogButtonBox const * const barre : boite.findChildren<QDialogButtonBox *>())
        boutons += barre->findChildren<QPushButton *>(Qt::FindDirectChildrenOnly);
    return boutons;
}

/// Does `action` with the next box, once it is on the screen, from inside the event loop: before a
/// blocking call.
inline void QuandLaBoiteEstLa(std::function<void(DMessageBox &)> action)
{
    auto * const minuterie = new QTimer(qApp);
    minuterie->setInterval(0);
    QObject::connect(minuterie, &QTimer::timeout, minuterie, [minuterie, action] {
        DMessageBox * const boite = DonneBoiteVisible();
        if (!boite)
            return;
        minuterie->stop();
        minuterie->deleteLater();
        action(*boite);
    });
    minuterie->start();
}

/// Clicks the standard button of the next box.
inline void ClicQuandLaBoiteEstLa(QMessageBox::StandardButton bouton)
{
    QuandLaBoiteEstLa([bouton](DMessageBox & boite) { boite.button(bouton)->click(); });
}

/// A receiver that notes its answers and then does something.
class ReceveurNotant : public DDialogue::DAlerteReceveur
{
public:
    void TraiteReponse(int const & idMessage, int reponse) override
    {
        reponses.append({idMessage, reponse});
        if (action)
            action();
    }

    QList<QPair<int, int>> reponses;
    std::function<void()> action;
};
