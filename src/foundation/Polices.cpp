// foundation/Polices.cpp
#include "foundation/Polices.h"

#include "foundation/FichierPixmap_p.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace RoutinesGeneralesQt {

namespace {

constexpr double kModulateurInitial = 1.0;
constexpr double kModulateurACalculer = -1.0;
constexpr double kResolutionDeReference = 96.0; // dots per inch
constexpr double kTailleMinimale = 1.0;         // points
constexpr int kAucuneTaille = -1;               // of a font that is sized in the other unit

int ArrondisVersLeHaut(double taille)
{
    return static_cast<int>(std::ceil(taille));
}

} // namespace

ModulateurFont * ModulateurFont::singletonModulateur = nullptr;

ModulateurFont::ModulateurFont(double modulateur)
    : monModulateur(modulateur)
{
}

ModulateurFont * ModulateurFont::Instance()
{
    if (!singletonModulateur)
        singletonModulateur = new ModulateurFont(kModulateurInitial);
    if (singletonModulateur->monModulateur == kModulateurACalculer)
        singletonModulateur->monModulateur = DonneModulateurCalculee();
    return singletonModulateur;
}

void ModulateurFont::LibereInstance()
{
    delete std::exchange(singletonModulateur, nullptr);
}

double ModulateurFont::DonneModulateurCalculee()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInchX() / kResolutionDeReference;
}

void ModulateurFont::PrendsModulateur(double modulateur)
{
    monModulateur = modulateur;
}

double ModulateurFont::DonneModulateurEffectif() const
{
    return monModulateur;
}

double ModulateurFont::DonneValeurDeZoom(double valeur) const
{
    return valeur / monModulateur;
}

QFont ModulateurFont::DonneFontPointVersPixels(double points, QFont const & font) const
{
    QFont enPoints(font);
    enPoints.setPointSizeF(points);
    QFont enPixels(font);
    enPixels.setPixelSize(ArrondisVersLeHaut(QFontInfo(enPoints).pixelSize() / monModulateur));
    return enPixels;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
QFont ModulateurFont::DonneFontPointVersPixels(double points, QString famille) const
{
    return DonneFontPointVersPixels(points, QFont(famille, -1, -1, false));
}

QFont ModulateurFont::DonneFontPointVersPixelsAvecDiff(QFont const & font, double difference) const
{
    return DonneFontPointVersPixels(DonnePointSizeFDeFont(font, true) + difference, font);
}

int ModulateurFont::DonnePixelSizeDeFont(QFont const & font, bool avecModulateur) const
{
    // Deliberate: a stored pixel size is answered without the modulator, whatever is asked.
    if (font.pixelSize() != kAucuneTaille)
        return font.pixelSize();
    return ArrondisVersLeHaut(QFontInfo(font).pixelSize() * DonneFacteur(avecModulateur));
}

int ModulateurFont::DonnePixelSizeDeFontSansMod(QFont const & font) const
{
    int const taille =
        font.pixelSize() != kAucuneTaille ? font.pixelSize() : QFontInfo(font).pixelSize();
    return ArrondisVersLeHaut(taille * monModulateur);
}

double ModulateurFont::DonnePointSizeFDeFont(QFont const & font, bool avecModulateur) const
{
    // Deliberate: the whole number, not the fraction that the font may have.
    if (font.pointSize() != kAucuneTaille)
        return font.pointSize();
    QFont copie(font);
    copie.setPixelSize(ArrondisVersLeHaut(font.pixelSize() * DonneFacteur(avecModulateur)));
    return QFontInfo(copie).pointSizeF();
}

double ModulateurFont::DonneFacteur(bool avecModulateur) const
{
    return avecModulateur ? monModulateur : 1.0;
}

double ptToPx(double points, double pixelsParPoint)
{
    return points * pixelsParPoint;
}

double pxToPt(double pixels, double pixelsParPoint)
{
    return pixels / pixelsParPoint;
}

void AjusteTaillePoliceWidget(QWidget * widget, int difference)
{
    ModulateurFont const & modulateur = *ModulateurFont::Instance();
    QFont const font = widget->font();
    double const points = modulateur.DonnePointSizeFDeFont(font, true) + difference;
    widget->setFont(modulateur.DonneFontPointVersPixels(std::max(points, kTailleMinimale), font));
}

void MetsTaillePoliceWidget(QWidget * widget, unsigned int points)
{
    widget->setFont(ModulateurFont::Instance()->DonneFontPointVersPixels(points, widget->font()));
}

void AjusterFontRecursivement(QFont const & font, QWidget * widget)
{
    // The list is read anew at each step: a child may go away when it or a sibling gets its font.
    for (qsizetype i = 0; i < widget->children().size(); ++i) {
        QObject * const enfant = widget->children().at(i);
        if (enfant->isWidgetType())
            AjusterFontRecursivement(font, static_cast<QWidget *>(enfant));
    }
    widget->setFont(font);
}

QPixmap DonnePixmapAvecDPI(QString const & chemin)
{
    FichierPixmap const fichier = ChoisisFichierPixmap(chemin, qGuiApp->devicePixelRatio());
    QPixmap pixmap(fichier.nom);
    pixmap.setDevicePixelRatio(fichier.ratio);
    return pixmap;
}

} // namespace RoutinesGeneralesQt
