// foundation/Demarrage.cpp
//
// All that the library does when it is loaded, in the order in which it is done; undone at process
// exit in the reverse order. No other file of the library has a static object with a constructor,
// so the order is this file's and not the linker's. That is why this one file of the foundation
// names classes of the folders above it.
//
// Loading must be legal without a QApplication: nothing here touches a widget, a font or a palette.
// clazy:excludeall=non-pod-global-static
#include "foundation/Demarrage.h"

#include "desktop/DFrameProxy.h"
#include "dialogs/DAlerteNotification.h"
#include "dialogs/StockageReponse.h"
#include "foundation/AccessibiliteQt.h"
#include "foundation/TraductionGui.h"
#include "style/ReglesDeBase_p.h"
#include "touch/DDefileurTactile.h"

#include "noyau/UniChemin.h"

#include <QApplication>

#include <thread>

QImage DAlerteNotification::iconeGenerale;
UniChemin DAlerteNotification::nomFichierSurDisque;
Raccourci::InfosPourRaccourci DAlerteNotification::raccourciGeneral;

namespace {

struct DomainesDeTraduction
{
    DomainesDeTraduction()
    {
        UniChemin const chemin(":/fichiers/GUI", UniChaine::kUTF8, -1);
        InitLocaleLibNoyau(ContexteLocalisationGui()); // the core library's own domains come first
        ContexteLocalisationGui().AjouteDomaine("GUI", to_string(chemin));
    }
} const domainesDeTraduction;

} // namespace

std::map<DDialogue::eTypStockeur, std::pair<UniChaine, QSettings::Format>>
    StockageReponse::assocTypQSettings;
std::map<DDialogue::eTypStockeur, StockageReponse *> StockageReponse::laListeStockeurDefaut;

UniChaine DFrameProxy::monIdProxy;

QSet<QWidget *> DDefileurTactile::mesWidgetsAvecDefileursTactile;

EnsembleRegles reglesDeBase;

namespace {
std::thread::id const threadGraphique = std::this_thread::get_id();
} // namespace

namespace AccessibiliteQt {

UniChaine const kBaliseContenu("<contenu>");
UniChaine const kEspace(" ");
UniChaine const kPoint(". ");
UniChaine const kRaccourciClavier("raccourci clavier");
UniChaine const kVirgule(", ");

} // namespace AccessibiliteQt

// The compiled resource tree registers itself by a static object: the last one of this file.
#include "qrc_FabrelGui.cpp" // NOLINT(bugprone-suspicious-include): its place is the point

void InitQApplication()
{
    if (QCoreApplication::instance())
        return;
    // QApplication keeps references to both.
    static int nombreArguments = 0;
    static char ** arguments = nullptr;
    new QApplication(nombreArguments, arguments);
}

bool RoutinesGeneralesQt::EstThreadGraphique()
{
    return std::this_thread::get_id() == threadGraphique;
}
