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
/// The callback outlives this object for as long as it runs: an event loop inside it may deliver
/// the dismissal. Once no application object is left, it dies on the thread that drops the last
/// copy. Made before there is one, this object stays on its own thread.
class Relais : public QObject
{
public:
    explicit Relais(RappelAlerte rappel)
        : monRappel(std::make_shared<RappelAlerte const>(std::move(rappel)))
    {
        if (QCoreApplication const * const application = QCoreApplication::instance())
            moveToThread(application->thread());
    }

    void Appelle(DDialogue::eBoutons reponse) const
    {
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a share of its own
        auto const rappel = monRappel;
        (*rappel)(reponse);
    }

private:
    std::shared_ptr<RappelAlerte const> monRappel;
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
