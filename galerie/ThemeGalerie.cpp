// galerie/ThemeGalerie.cpp
#include "ThemeGalerie.h"

#include "foundation/ThemesQt.h"
#include "foundation/VariablesParDefaut_p.h"
#include "noyau/RoutinesTexte.h"

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QColor Couleur(QString const & nom)
{
    return ThemesQt::Instance()->DonneCouleur(nom);
}

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
    return palette;
}

} // namespace

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
        {u"couleurBordureGeneral"_s, QColor(96, 100, 108)},
        {u"couleurBordureGui"_s, QColor(84, 88, 96)},
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

QStringList ThemeGalerie::DonneNoms() const
{
    QStringList noms = {u"couleurAccentSysteme"_s, u"couleurSelectionSysteme"_s,
                        u"couleurTexteSelectionnerSysteme"_s, u"couleurTexteSysteme"_s,
                        u"widgetListeEditableFontSize"_s};
    // The table doesn't tell its names: an application knows those that it uses. This page shows
    // them all, from the library's own list.
    for (VariableParDefaut const & variable : kVariablesParDefaut)
        noms.append(variable.nom.toString());
    return noms;
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

void ThemeGalerie::Applique() const
{
    QApplication::setPalette(DonnePalette());
    QString const feuilles = RoutinesGeneralesQt::ContenuFichier(u":/Style/StyleGeneralGui.qss"_s) +
                             RoutinesGeneralesQt::ContenuFichier(u":/Style/StyleGalerie.qss"_s);
    // A name that the table lacks would keep AppliquerVariable from returning.
    Q_ASSERT(ThemesQt::Instance()->VariablesInconnues(feuilles).isEmpty());
    qApp->setStyleSheet(ThemesQt::Instance()->AppliquerVariable(feuilles));
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
