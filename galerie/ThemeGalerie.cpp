// galerie/ThemeGalerie.cpp
#include "ThemeGalerie.h"

#include "foundation/ThemesQt.h"
#include "navigation/DTabBarInterne.h"
#include "noyau/RoutinesTexte.h"
#include "style/DStyleProxy.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QStyleOption>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QColor Couleur(QString const & nom)
{
    return ThemesQt::Instance()->DonneCouleur(nom);
}

bool EstSombre(QColor const & fond)
{
    constexpr int kMilieu = 128; // of the lightness, 0 to 255
    return fond.lightness() < kMilieu;
}

// Qt makes a disabled icon of the lightness of the drawing alone: on a dark window a drawing in
// grey, which suits both themes, would come out no dimmer than it is.
class StyleGalerie : public DStyleProxy
{
public:
    using DStyleProxy::DStyleProxy;

    QPixmap generatedIconPixmap(QIcon::Mode mode, QPixmap const & image,
                                QStyleOption const * option) const override
    {
        if (mode != QIcon::Disabled)
            return DStyleProxy::generatedIconPixmap(mode, image, option);
        constexpr double kOpacite = 0.4;
        QPixmap pale(image.size());
        pale.setDevicePixelRatio(image.devicePixelRatio());
        pale.fill(Qt::transparent);
        QPainter peintre(&pale);
        peintre.setOpacity(kOpacite);
        peintre.drawPixmap(0, 0, image);
        return pale;
    }

    // The line under travelling tabs goes on behind their add button, at the bottom of the row.
    int pixelMetric(PixelMetric mesure, QStyleOption const * option,
                    QWidget const * widget) const override
    {
        return mesure == PM_TabBarBaseOverlap && qobject_cast<DTabBarInterne const *>(widget)
                   ? 1
                   : DStyleProxy::pixelMetric(mesure, option, widget);
    }

    // The style's selected tab is white in every palette, and the titles of travelling tabs have
    // the theme's colour, which is light on dark windows.
    void drawControl(ControlElement element, QStyleOption const * option, QPainter * peintre,
                     QWidget const * widget) const override
    {
        if (element == CE_TabBarTabShape && option->state.testFlag(State_Selected) &&
            EstSombre(option->palette.color(QPalette::Window)) &&
            qobject_cast<DTabBarInterne const *>(widget))
            DessineOngletSombre(*option, *peintre);
        else
            DStyleProxy::drawControl(element, option, peintre, widget);
    }

private:
    static void DessineOngletSombre(QStyleOption const & option, QPainter & peintre)
    {
        constexpr int kAccent = 3; // logical pixels, as of the white tab
        QRect const & rect = option.rect;
        peintre.fillRect(rect, Couleur(u"couleurSeparateur"_s));
        peintre.fillRect(rect.adjusted(1, 0, -1, 0), option.palette.base());
        peintre.fillRect(QRect(rect.topLeft(), QSize(rect.width(), kAccent)),
                         option.palette.highlight());
    }
};

// A text that is no colour leaves the role as it was.
void MetsCouleur(QPalette & palette, QPalette::ColorGroup groupe, QPalette::ColorRole role,
                 QString const & nom)
{
    if (QColor const couleur = Couleur(nom); couleur.isValid())
        palette.setColor(groupe, role, couleur);
}

QPalette DonnePalette()
{
    QColor const bouton = Couleur(u"couleurFondBoutonHover"_s);
    QColor const fenetre = Couleur(u"couleurFondGris"_s);
    // From these two the palette derives the light and dark edges that the style draws with.
    QPalette palette =
        bouton.isValid() && fenetre.isValid() ? QPalette(bouton, fenetre) : QApplication::palette();
    std::pair<QPalette::ColorRole, QString> const roles[] = {
        {QPalette::AlternateBase, u"couleurFondMoinsBlanc"_s},
        {QPalette::Base, u"couleurFondBlanc"_s},
        {QPalette::ButtonText, u"couleurTexteDeBase"_s},
        {QPalette::Highlight, u"couleurSelectionSysteme"_s},
        {QPalette::HighlightedText, u"couleurTexteSelectionnerSysteme"_s},
        {QPalette::Link, u"couleurTexteLien"_s},
        {QPalette::PlaceholderText, u"couleurTexteGris"_s},
        {QPalette::Text, u"couleurTexteDeBase"_s},
        {QPalette::ToolTipBase, u"couleurFondBlanc"_s},
        {QPalette::ToolTipText, u"couleurTexteDeBase"_s},
        {QPalette::WindowText, u"couleurTexteDeBase"_s},
    };
    for (auto const & [role, nom] : roles)
        MetsCouleur(palette, QPalette::All, role, nom);
    for (auto const role : {QPalette::ButtonText, QPalette::Text, QPalette::WindowText})
        MetsCouleur(palette, QPalette::Disabled, role, u"couleurTexteGris"_s);
    // The thumb of a disabled switch, on a track in the colour of shadows.
    MetsCouleur(palette, QPalette::Disabled, QPalette::Mid, u"couleurTexteGris"_s);
    // The style paints a default button in this colour, also one that is disabled.
    MetsCouleur(palette, QPalette::Disabled, QPalette::Highlight, u"couleurFondBoutonHover"_s);
    return palette;
}

// The general sheet, the gallery's own, and what a dark theme needs besides.
QString LisFeuilles()
{
    QString feuilles = RoutinesGeneralesQt::ContenuFichier(u":/Style/StyleGeneralGui.qss"_s) +
                       RoutinesGeneralesQt::ContenuFichier(u":/Style/StyleGalerie.qss"_s);
    if (QColor const fond = Couleur(u"couleurFondGris"_s); fond.isValid() && EstSombre(fond))
        feuilles += RoutinesGeneralesQt::ContenuFichier(u":/Style/StyleGalerieSombre.qss"_s);
    return feuilles;
}

// The Fusion style draws the edges of these in a darker shade of the window's colour, which none of
// them fills with it. Nobody sees that shade on a dark window: there it is to be the borders'
// colour.
void MetsBords(QPalette palette)
{
    constexpr int kFacteurDesBords = 140; // percent: QColor::darker, as the style calls it
    QColor const bordure = Couleur(u"couleurBordureGeneral"_s);
    bool const sombre = EstSombre(palette.color(QPalette::Window)) && bordure.isValid();
    // A little darker than the others: views have grids too.
    if (sombre)
        palette.setColor(QPalette::Window, bordure);
    QApplication::setPalette(palette, "QAbstractItemView");
    if (sombre)
        palette.setColor(QPalette::Window, bordure.lighter(kFacteurDesBords));
    for (char const * const classe : {"QAbstractSpinBox", "QCheckBox", "QComboBox", "QLineEdit",
                                      "QPlainTextEdit", "QRadioButton"})
        QApplication::setPalette(palette, classe);
}

} // namespace

ThemeGalerie::ThemeGalerie(QString styleDeBase)
    : monStyleDeBase(std::move(styleDeBase))
{
}

QString ThemeGalerie::DonneStyleDeBase() const
{
    return monStyleDeBase;
}

void ThemeGalerie::Reinitialise()
{
    mesReferences.clear();
    // The table reads the palette when it is built: that of the system, not the one made from it.
    QApplication::setPalette(QPalette());
    ThemesQt::DetruisToi();
    // The general sheet names this one, which has no default.
    ThemesQt::Instance()->AjouterVariable(u"widgetListeEditableFontSize"_s, u"12px"_s);
}

void ThemeGalerie::Assombris()
{
    std::pair<QString, QColor> const couleurs[] = {
        {u"couleurBordureGeneral"_s, QColor(130, 135, 145)},
        {u"couleurBordureGui"_s, QColor(84, 88, 96)},
        {u"couleurErreurLineEdit"_s, QColor(255, 120, 110)},
        {u"couleurFondBlanc"_s, QColor(30, 32, 36)},
        {u"couleurFondBoutonHover"_s, QColor(60, 64, 72)},
        {u"couleurFondGris"_s, QColor(40, 43, 48)},
        {u"couleurFondMoinsBlanc"_s, QColor(35, 37, 42)},
        {u"couleurFondQTreeView"_s, QColor(62, 110, 160, 178)},
        {u"couleurSelectionSysteme"_s, QColor(52, 105, 170)},
        {u"couleurSeparateur"_s, QColor(70, 74, 82)},
        {u"couleurTexteDeBase"_s, QColor(232, 234, 238)},
        {u"couleurTexteFoncee"_s, QColor(184, 188, 196)},
        {u"couleurTexteGris"_s, QColor(140, 145, 154)},
        {u"couleurTexteLien"_s, QColor(110, 180, 240)},
        {u"couleurTexteSelectionnerSysteme"_s, QColor(255, 255, 255)},
    };
    for (auto const & [nom, couleur] : couleurs)
        Remplace(nom, couleur);
}

QString ThemeGalerie::DonneValeur(QString const & nom) const
{
    auto const reference = mesReferences.find(nom);
    return reference != mesReferences.end() ? reference->second
                                            : ThemesQt::Instance()->AppliquerVariable(u'@' + nom);
}

bool ThemeGalerie::Remplace(QString const & nom, QString const & valeur)
{
    if (!ThemesQt::Instance()->VariablesInconnues(valeur).isEmpty() || MeneA(nom, valeur))
        return false;
    if (valeur.contains(u'@'))
        mesReferences.insert_or_assign(nom, valeur);
    else
        mesReferences.erase(nom);
    ThemesQt::Instance()->AjouterVariable(nom, valeur);
    return true;
}

void ThemeGalerie::Remplace(QString const & nom, QColor const & couleur)
{
    mesReferences.erase(nom);
    ThemesQt::Instance()->AjouterVariable(nom, couleur);
}

bool ThemeGalerie::Applique() const
{
    QString const feuilles = LisFeuilles();
    // A name that the table lacks would keep AppliquerVariable from returning.
    QStringList const inconnues = ThemesQt::Instance()->VariablesInconnues(feuilles);
    if (!inconnues.isEmpty()) {
        qWarning("The style sheets name unknown variables: %s",
                 qPrintable(inconnues.join(u", "_s)));
        return false;
    }
    QPalette const palette = DonnePalette();
    QApplication::setPalette(palette);
    // The style keeps the window's colour from when it was made, and its variable is gone with the
    // table that it added it to: another theme, another style.
    if (!monStyleDeBase.isEmpty())
        QApplication::setStyle(new StyleGalerie(QStyleFactory::create(monStyleDeBase)));
    MetsBords(palette);
    qApp->setStyleSheet(ThemesQt::Instance()->AppliquerVariable(feuilles));
    return true;
}

bool ThemeGalerie::MeneA(QString const & nom, QString const & valeur) const
{
    static QRegularExpression const expression(uR"(@([^\s;,)\[\]{}]*))"_s);
    for (QRegularExpressionMatch const & trouvay : expression.globalMatch(valeur)) {
        auto const suite = mesReferences.find(trouvay.captured(1));
        if (trouvay.captured(1) == nom ||
            (suite != mesReferences.end() && MeneA(nom, suite->second)))
            return true;
    }
    return false;
}
