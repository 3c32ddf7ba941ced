// tests/style/EssaisPeinture.h
#pragma once

#include "style/DStyleProxy.h"
#include "style/StyleEspion.h"

#include <QImage>
#include <QTest>
#include <QVariant>

// What the tests of painting share: the style over the recording one, properties with their
// values, and readings of pictures.

/// A style whose base notes what reaches it.
struct BancStyle
{
    explicit BancStyle(StyleEspion::eConduite conduite = StyleEspion::kMuet)
        : espion(new StyleEspion(conduite))
        , style(espion)
    {
    }

    StyleEspion * const espion; // belongs to the style
    DStyleProxy style;
};

/// Which values of a property count.
enum eLecture
{
    kBooleenSeul,
    kToutVrai ///< all that QVariant::toBool takes for true
};

/// One row per kind of value: the columns `valeur`, and `compte` for whether it asks for the
/// behaviour.
inline void AjouteValeurs(eLecture lecture)
{
    bool const souple = lecture == kToutVrai;
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<bool>("compte");
    QTest::newRow("no property") << QVariant() << false;
    QTest::newRow("boolean true") << QVariant(true) << true;
    QTest::newRow("boolean false") << QVariant(false) << false;
    QTest::newRow("integer 1") << QVariant(1) << souple;
    QTest::newRow("integer 0") << QVariant(0) << false;
    QTest::newRow("text true") << QVariant(QStringLiteral("true")) << souple;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
}

inline void MetsAccent(QPalette & palette, QPalette::ColorGroup groupe, QColor const & couleur)
{
    palette.setColor(groupe, QPalette::Highlight, couleur);
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    palette.setColor(groupe, QPalette::Accent, couleur);
#endif
}

inline QColor const kAccentActif(200, 40, 40);
inline QColor const kAccentInactif(40, 40, 200);
inline QColor const kAccentInerte(40, 160, 40);

/// Another accent in each group; the group that is current is the active one.
inline QPalette DonnePaletteEssai(QPalette::ColorGroup courant = QPalette::Active)
{
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Window, QColor(239, 239, 239));
    palette.setColor(QPalette::All, QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::All, QPalette::Button, QColor(220, 224, 228));
    palette.setColor(QPalette::All, QPalette::ButtonText, QColor(10, 20, 30));
    MetsAccent(palette, QPalette::Active, kAccentActif);
    MetsAccent(palette, QPalette::Inactive, kAccentInactif);
    MetsAccent(palette, QPalette::Disabled, kAccentInerte);
    palette.setCurrentColorGroup(courant);
    return palette;
}

/// The same with light texts on dark backgrounds.
inline QPalette DonnePaletteSombre()
{
    QPalette palette = DonnePaletteEssai();
    palette.setColor(QPalette::All, QPalette::Window, QColor(40, 40, 40));
    palette.setColor(QPalette::All, QPalette::Button, QColor(53, 53, 53));
    for (auto const role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(QPalette::All, role, Qt::white);
    return palette;
}

/// A transparent picture of that size in logical pixels on which `dessine` has painted.
template <typename Dessin>
QImage Peins(QSize const & taille, Dessin const & dessine, qreal ratio = 1.0)
{
    QImage image((QSizeF(taille) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    dessine(peintre);
    peintre.end();
    return image;
}

inline int Alpha(QImage const & image, int x, int y)
{
    return qAlpha(image.pixel(x, y));
}

inline bool EstVide(QImage const & image)
{
    QImage vide(image.size(), image.format());
    vide.setDevicePixelRatio(image.devicePixelRatio());
    vide.fill(Qt::transparent);
    return image == vide;
}

/// The smallest rectangle around all pixels that are not transparent.
inline QRect Encre(QImage const & image)
{
    QRect encre;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (Alpha(image, x, y) > 0)
                encre |= QRect(x, y, 1, 1);
        }
    }
    return encre;
}

/// Where pixels of that colour lie.
inline QRect Etendue(QImage const & image, QColor const & couleur)
{
    QRect etendue;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == couleur)
                etendue |= QRect(x, y, 1, 1);
        }
    }
    return etendue;
}

/// How many opaque pixels the ink of the rectangle would make.
inline double Couverture(QImage const & image, QRect const & rect, int alphaPlein = 255)
{
    double somme = 0.0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            somme += Alpha(image, x, y);
    }
    return somme / alphaPlein;
}

inline double CouvertureColonne(QImage const & image, int x, int alphaPlein = 255)
{
    return Couverture(image, QRect(x, 0, 1, image.height()), alphaPlein);
}

inline double CouvertureLigne(QImage const & image, int y, int alphaPlein = 255)
{
    return Couverture(image, QRect(0, y, image.width(), 1), alphaPlein);
}

/// The same but for rounding.
inline bool SontProches(QColor const & a, QColor const & b, int tolerance = 2)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
           qAbs(a.blue() - b.blue()) <= tolerance && qAbs(a.alpha() - b.alpha()) <= tolerance;
}

/// What the style paints of a complex control.
inline QImage PeinsComplexe(BancStyle const & banc, QSize const & taille,
                            QStyle::ComplexControl controle, QStyleOptionComplex const * option,
                            QWidget const * widget)
{
    return Peins(taille, [&](QPainter & peintre) {
        banc.style.drawComplexControl(controle, option, &peintre, widget);
    });
}

/// The only call of the base for a complex control, which is then forgotten.
inline AppelStyle PrendsAppel(BancStyle const & banc, QStyle::ComplexControl controle)
{
    auto const appels = banc.espion->Donne(AppelStyle::kComplexe, controle);
    banc.espion->appels.clear();
    if (appels.size() == 1)
        return appels.first();
    QTest::qFail("The base is not called once", __FILE__, __LINE__);
    return {AppelStyle::kComplexe};
}
