// dialogs/RappelSurThreadGraphique.cpp
#include "dialogs/DAlerte.h"

#include "foundation/Demarrage.h"

#include <QCoreApplication>
#include <QObject>
#include <QThread>

#include <memory>
#include <utility>

namespace {
/// Lives on the GUI thread with the callback, and dies there: what the callback holds is as little
/// made for other threads as the call.
///
/// Calls are posted to this object and not to the application, which may be going at that moment.
class Relais : public QObject
{
public:
    explicit Relais(RappelAlerte rappel)
        : monRappel(std::move(rappel))
    {
        if (QCoreApplication const * const application = QCoreApplication::instance())
            moveToThread(application->thread());
    }

    void Appelle(DDialogue::eBoutons reponse) const { monRappel(reponse); }

private:
    RappelAlerte monRappel;
};

void Congedie(Relais * relais)
{
    if (QCoreApplication::instance())
        relais->deleteLater(); // behind the calls that are still waiting
    else
        delete relais; // no event loop is left to do it
}
} // namespace

RappelAlerte RappelSurThreadGraphique(RappelAlerte rappel)
{
    if (!rappel)
        return rappel;
    std::shared_ptr<Relais> const partagay(new Relais(std::move(rappel)), Congedie);
    return [partagay](DDialogue::eBoutons const & reponse) {
        // A copy of its own: the call may well destroy the function that it came through.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        std::shared_ptr<Relais> const relais = partagay;
        if (!QCoreApplication::instance())
            return;
        if (RoutinesGeneralesQt::EstThreadGraphique())
            relais->Appelle(reponse);
        else
            QMetaObject::invokeMethod(
                relais.get(), [cible = relais.get(), reponse] { cible->Appelle(reponse); },
                Qt::QueuedConnection);
    };
}
