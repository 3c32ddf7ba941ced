// foundation/MemoireTexteRiche.cpp
#include "foundation/MemoireTexteRiche_p.h"

#include "foundation/PoliceTexteRiche_p.h"
#include "foundation/Polices.h"

#include <QCache>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>
#include <list>
#include <utility>

namespace {

constexpr std::size_t kNombreMaxDePolices = 32;

// The cost of a row is 1, and 1 more for so many characters. The memory is some kilobytes for each.
constexpr int kCoutMax = 1024;
constexpr int kCaracteresParCout = 64;

constexpr double kTailleDUnPouce = 72.0; // points, which are as many pixels as the resolution says

struct CleDeRang
{
    PoliceTexteRiche const * police;
    RangTexteRiche::Demande demande;

    friend bool operator==(CleDeRang const & a, CleDeRang const & b) = default;
    friend size_t qHash(CleDeRang const & cle, size_t graine)
    {
        return qHashMulti(graine, cle.police, cle.demande);
    }
};

// Holds the font too: no other one may come to stand at its address while the row is there.
struct RangGarday
{
    std::shared_ptr<PoliceTexteRiche const> police;
    std::shared_ptr<RangTexteRiche const> rang;
};

// Fonts in points, and what is made of them, depend on the resolution of the device that they were
// made for, which does not count in their comparison.
int DonneResolution(QFont const & font)
{
    QFont unPouce(font);
    unPouce.setPointSizeF(kTailleDUnPouce);
    return QFontInfo(unPouce).pixelSize();
}

struct PoliceGardee
{
    QFont font;
    int resolution;
    double modulateur;
    std::shared_ptr<PoliceTexteRiche const> police;
};

// Makes no instance: texts without sizes do not either.
double DonneModulateur()
{
    using RoutinesGeneralesQt::ModulateurFont;
    constexpr double kModulateurSansInstance = 1.0;
    return ModulateurFont::singletonModulateur
               ? ModulateurFont::Instance()->DonneModulateurEffectif()
               : kModulateurSansInstance;
}

int DonneCout(RangTexteRiche::Demande const & demande)
{
    return 1 + static_cast<int>((demande.texte.Longueur() + demande.source.Longueur()) /
                                kCaracteresParCout);
}

} // namespace

struct MemoireTexteRiche::Contenu
{
    std::list<PoliceGardee> polices; // the one used last is the first one
    QCache<CleDeRang, RangGarday> rangs{kCoutMax};
};

// Frees the rows when the library is unloaded, or when the process ends, before an application that
// is still there.
struct MemoireTexteRiche::FinDeLaBibliotheque
{
    ~FinDeLaBibliotheque()
    {
        qRemovePostRoutine(PriseFinApplication);
        PriseFinApplication();
    }
};

MemoireTexteRiche & MemoireTexteRiche::Instance()
{
    static MemoireTexteRiche memoire;
    return memoire;
}

std::shared_ptr<PoliceTexteRiche const> MemoireTexteRiche::DonnePolice(QFont const & font)
{
    if (!Prepare())
        return std::make_shared<PoliceTexteRiche>(font);

    std::list<PoliceGardee> & polices = monContenu->polices;
    double const modulateur = DonneModulateur();
    auto trouvee = std::find_if(polices.begin(), polices.end(), [&](PoliceGardee const & gardee) {
        return gardee.modulateur == modulateur && gardee.font.isCopyOf(font);
    });
    if (trouvee == polices.end()) {
        int const resolution = DonneResolution(font);
        trouvee = std::find_if(polices.begin(), polices.end(), [&](PoliceGardee const & gardee) {
            return gardee.modulateur == modulateur && gardee.resolution == resolution &&
                   gardee.font == font;
        });
        if (trouvee == polices.end())
            trouvee = polices.insert(polices.end(), {font, resolution, modulateur,
                                                     std::make_shared<PoliceTexteRiche>(font)});
        trouvee->font = font; // the copy that the next rows of the list come with
    }
    polices.splice(polices.begin(), polices, trouvee);
    if (polices.size() > kNombreMaxDePolices)
        polices.pop_back();
    return polices.front().police;
}

std::shared_ptr<RangTexteRiche const> MemoireTexteRiche::DonneRang(RangTexteRiche::Demande demande,
                                                                   QFont const & font)
{
    std::shared_ptr<PoliceTexteRiche const> const police = DonnePolice(font);
    if (!monContenu)
        return std::make_shared<RangTexteRiche>(demande, *police);

    CleDeRang const cle{police.get(), std::move(demande)};
    if (RangGarday const * const garday = monContenu->rangs.object(cle))
        return garday->rang;
    auto const rang = std::make_shared<RangTexteRiche>(cle.demande, *police);
    monContenu->rangs.insert(cle, new RangGarday{police, rang}, DonneCout(cle.demande));
    return rang;
}

void MemoireTexteRiche::PriseFinApplication()
{
    MemoireTexteRiche & memoire = Instance();
    QObject::disconnect(std::exchange(memoire.maConnexion, {}));
    delete std::exchange(memoire.monContenu, nullptr);
}

// False without an application.
bool MemoireTexteRiche::Prepare()
{
    if (monContenu)
        return true;
    auto * const application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application)
        return false;
    monContenu = new Contenu;
    // Rows hold fonts, which are to go while the application and its font database are there.
    qAddPostRoutine(PriseFinApplication);
    // A font that is added may be the better one for what is remembered.
    maConnexion = QObject::connect(application, &QGuiApplication::fontDatabaseChanged, application,
                                   [this] { Vide(); });
    // Statics are destroyed in the reverse order of their making. Where no application ends before
    // the process does, the rows go with the static below, and what Qt frees fonts with, which the
    // first look at a font makes, has to outlive it: so that comes first.
    DonneResolution(QFont());
    static FinDeLaBibliotheque const fin;
    return true;
}

void MemoireTexteRiche::Vide()
{
    monContenu->rangs.clear();
    monContenu->polices.clear();
}
