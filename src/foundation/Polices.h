// foundation/Polices.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFont>
#include <QPixmap>
#include <QString>

class QWidget;

// Font sizes in points on widgets whose fonts are sized in pixels, and pictures for dense screens.
namespace RoutinesGeneralesQt {

/// The factor between point sizes and pixel sizes, the modulator, and the sizes made with it.
///
/// A pixel size is divided by the modulator, so that a point size looks the same at every logical
/// resolution. The modulator is 1.0 until it is set; it must not be 0. GUI thread only.
class FABRELGUI_EXPORT ModulateurFont
{
public:
    ModulateurFont(ModulateurFont const &) = delete;
    ModulateurFont & operator=(ModulateurFont const &) = default;

    /// The only instance, made by the first call. Computes the modulator when it is to be computed.
    static ModulateurFont * Instance();
    static void LibereInstance();

    /// The logical resolution of the primary screen in units of 96 dots per inch. There must be a
    /// screen.
    static double DonneModulateurCalculee();

    /// -1.0 asks the next `Instance()` for `DonneModulateurCalculee()`.
    void PrendsModulateur(double modulateur);
    /// -1.0 while the modulator is to be computed.
    double DonneModulateurEffectif() const;
    /// `valeur` divided by the modulator.
    double DonneValeurDeZoom(double valeur) const;

    /// `font` with the pixel size that stands for `points`, rounded up. The result has no point
    /// size any more.
    QFont DonneFontPointVersPixels(double points, QFont const & font) const;
    QFont DonneFontPointVersPixels(double points, QString famille) const;
    /// `font` made `difference` points larger.
    QFont DonneFontPointVersPixelsAvecDiff(QFont const & font, double difference) const;

    /// The pixel size of `font` as it stands. Where it is sized in points, the one that these come
    /// to, rounded up, multiplied by the modulator with `avecModulateur`.
    int DonnePixelSizeDeFont(QFont const & font, bool avecModulateur) const;
    /// The pixel size of `font` multiplied by the modulator, however the font is sized.
    int DonnePixelSizeDeFontSansMod(QFont const & font) const;
    /// The whole point size of `font`. Where it is sized in pixels, the points that these come to,
    /// the pixels being first multiplied by the modulator with `avecModulateur`.
    double DonnePointSizeFDeFont(QFont const & font, bool avecModulateur) const;

    static ModulateurFont * singletonModulateur; ///< null until `Instance` is first called

private:
    explicit ModulateurFont(double modulateur);
    ~ModulateurFont() = default;

    double DonneFacteur(bool avecModulateur) const;

    double monModulateur;
};

FABRELGUI_EXPORT double ptToPx(double points, double pixelsParPoint);
FABRELGUI_EXPORT double pxToPt(double pixels, double pixelsParPoint);

/// Makes the font of `widget`, not null, `difference` points larger, to 1 point at the least.
FABRELGUI_EXPORT void AjusteTaillePoliceWidget(QWidget * widget, int difference);
/// Gives the font of `widget`, not null, a size in points.
FABRELGUI_EXPORT void MetsTaillePoliceWidget(QWidget * widget, unsigned int points);
/// Sets the font on all the widgets below `widget`, not null, then on itself.
FABRELGUI_EXPORT void AjusterFontRecursivement(QFont const & font, QWidget * widget);

/// The picture at `chemin`, or on a screen of more than one pixel per unit its "@2x" variant, where
/// there is one, drawn at ratio 2. Null when there is no such file. The variable
/// QT_HIGHDPI_DISABLE_2X_IMAGE_LOADING turns the variants off.
FABRELGUI_EXPORT QPixmap DonnePixmapAvecDPI(QString const & chemin);

} // namespace RoutinesGeneralesQt
