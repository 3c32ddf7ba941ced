// foundation/ThemesQt.cpp
#include "foundation/ThemesQt.h"

#include "foundation/ExpansionVariables_p.h"
#include "foundation/VariablesParDefaut_p.h"
#include "foundation/VersionsQt_p.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QPalette>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kDebutCouleur = u"rgba(";
constexpr qsizetype kNombreComposantes = 4;

QColor DonneCouleurSysteme(int indice)
{
    DWORD const couleur = PlateformeFenetres::Courante().GetSysColor(indice);
    return {static_cast<int>(couleur & 0xff), static_cast<int>(couleur >> 8 & 0xff),
            static_cast<int>(couleur >> 16 & 0xff)};
}

QColor LisCouleur(QString const & texte)
{
    if (!texte.startsWith(kDebutCouleur))
        return {};

    // The last character is taken for the closing bracket, whatever it is.
    qsizetype const longueur = texte.size() - kDebutCouleur.size() - 1;
    auto const parties = QStringView(texte).mid(kDebutCouleur.size(), longueur).split(u',');
    if (parties.size() != kNombreComposantes)
        return {};
    quint32 composantes[kNombreComposantes] = {};
    for (qsizetype i = 0; i < kNombreComposantes; ++i) {
        bool estNombre = false;
        composantes[i] = static_cast<quint32>(parties[i].trimmed().toInt(&estNombre));
        if (!estNombre)
            return {};
    }
    auto const [rouge, vert, bleu, alpha] = composantes;
    return QColor::fromRgba(alpha << 24 | (rouge & 0xff) << 16 | (vert & 0xff) << 8 |
                            (bleu & 0xff));
}

} // namespace

ThemesQt * ThemesQt::instanceUnique = nullptr;

ThemesQt::ThemesQt()
    : monPrefixe(u"@"_s)
{
    for (VariableParDefaut const & variable : kVariablesParDefaut)
        AjouterVariable(variable.nom.toString(), variable.valeur.toString());
    AjouterVariable(u"couleurTexteSysteme"_s, DonneCouleurSysteme(COLOR_WINDOWTEXT));
    AjouterVariable(u"couleurTexteSelectionnerSysteme"_s, DonneCouleurSysteme(COLOR_HIGHLIGHTTEXT));
    AjouterVariable(u"couleurSelectionSysteme"_s, DonneCouleurSysteme(COLOR_HIGHLIGHT));
    AjouterVariable(u"couleurAccentSysteme"_s, DonneCouleurAccent(QPalette()));
}

ThemesQt::ThemesQt(ThemesQt const & themes) = default;

ThemesQt::ThemesQt(ThemesQt && themes) noexcept = default;

ThemesQt::~ThemesQt() = default;

ThemesQt * ThemesQt::Instance()
{
    if (!instanceUnique)
        instanceUnique = new ThemesQt;
    return instanceUnique;
}

void ThemesQt::DetruisToi()
{
    delete std::exchange(instanceUnique, nullptr);
}

void ThemesQt::AjouterVariable(QString nom, QString valeur)
{
    mesCouleurs.clear();
    mesVariables.insert_or_assign(std::move(nom), std::move(valeur));
}

void ThemesQt::AjouterVariable(QString nom, QColor couleur)
{
    AjouterVariable(std::move(nom), u"rgba(%1,%2,%3,%4)"_s.arg(couleur.red())
                                        .arg(couleur.green())
                                        .arg(couleur.blue())
                                        .arg(couleur.alpha()));
}

QString ThemesQt::AppliquerVariable(QString const & texte) const
{
    return RoutinesVariables::Applique(texte, monPrefixe, mesVariables);
}

QColor ThemesQt::DonneCouleur(QString const & nom) const
{
    if (auto const couleur = mesCouleurs.constFind(nom); couleur != mesCouleurs.cend())
        return *couleur;
    auto const variable = mesVariables.find(nom);
    if (variable == mesVariables.end())
        return {}; // and not kept: there is no end of such names
    QColor const couleur = LisCouleur(AppliquerVariable(variable->second.trimmed()));
    // The table's name, since the caller's may stand in memory that is not kept.
    mesCouleurs.insert(variable->first, couleur);
    return couleur;
}

QStringList ThemesQt::DonneNoms() const
{
    QStringList noms;
    for (auto const & [nom, valeur] : mesVariables)
        noms.append(nom);
    return noms;
}

QStringList ThemesQt::VariablesInconnues(QString const & texte) const
{
    return RoutinesVariables::DonneInconnues(texte, monPrefixe, mesVariables);
}
