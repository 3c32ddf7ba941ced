// galerie/CtrlPriseEnMain.cpp
#include "CtrlPriseEnMain.h"

#include "navigation/ReglageBooleen.h"

#include <QSet>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr char const * kGroupe = "priseEnMain";
constexpr char const * kSujets[] = {"demarrer",  "theme", "traduction", "alertes", "style",
                                    "recherche", "liste", "filtres",    "jetons",  "tactile"};

struct Memoire
{
    QString fichier;
    // Keys, where there is no file. At first, what shows the window at its work.
    QSet<QString> vus = {u"priseEnMain/demarrer"_s, u"priseEnMain/theme"_s};
};

Memoire & PreteMemoire()
{
    static Memoire memoire;
    return memoire;
}

// Whether a topic was seen.
class Marque : public ReglageBooleen
{
public:
    explicit Marque(char const * sujet)
        : monSujet(sujet)
    {
    }
    UniChaine DonneCle(UniChaine const & separateur) const override
    {
        return kGroupe + separateur + monSujet;
    }
    bool DonneValeur() const override
    {
        QString const cle = DonneCle("/");
        Memoire const & memoire = PreteMemoire();
        return memoire.fichier.isEmpty()
                   ? memoire.vus.contains(cle)
                   : QSettings(memoire.fichier, QSettings::IniFormat).value(cle).toBool();
    }

private:
    char const * monSujet;
};

} // namespace

CtrlPriseEnMain::CtrlPriseEnMain(QObject * parent)
    : QObject(parent)
{
    for (char const * const sujet : kSujets) {
        mesMarques.push_back(std::make_unique<Marque>(sujet));
        AjouteReglage(mesMarques.back().get());
    }
}

CtrlPriseEnMain::~CtrlPriseEnMain() = default;

void CtrlPriseEnMain::MetsFichier(QString const & fichier)
{
    PreteMemoire() = {fichier, {}};
}

QStringList CtrlPriseEnMain::DonneCles()
{
    QStringList cles;
    for (char const * const sujet : kSujets)
        cles << Marque(sujet).DonneCle("/");
    return cles;
}

int CtrlPriseEnMain::CompteVus() const
{
    return static_cast<int>(
        std::count_if(mesMarques.begin(), mesMarques.end(),
                      [](auto const & marque) { return marque->DonneValeur(); }));
}

void CtrlPriseEnMain::MetsReglage(UniChaine cle, bool coche)
{
    Memoire & memoire = PreteMemoire();
    if (!memoire.fichier.isEmpty())
        QSettings(memoire.fichier, QSettings::IniFormat).setValue(QString(cle), coche);
    else if (coche)
        memoire.vus.insert(cle);
    else
        memoire.vus.remove(cle);
    Q_EMIT SignalReglageChangay();
}

UniChaine CtrlPriseEnMain::DonneNomProduit()
{
    return "libFabrelGui";
}

UniChaine CtrlPriseEnMain::DonneVersionNumerique()
{
    return "1.0";
}

UniChaine CtrlPriseEnMain::DonneModulesLangue(bool premier, bool second)
{
    QStringList modules;
    if (premier)
        modules << u"fr"_s;
    if (second)
        modules << u"en"_s;
    return modules.join(u',');
}
