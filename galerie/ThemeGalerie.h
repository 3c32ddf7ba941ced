// galerie/ThemeGalerie.h
#pragma once

#include <QColor>
#include <QString>

#include <map>

/// What an application does with the theme: defines variables, overwrites others, and applies its
/// sheets and a palette made from them.
///
/// Built after the `QApplication`, whose palette gives the system's colours.
class ThemeGalerie
{
public:
    /// With the name of a style, each theme gets the library's style over it; without one the
    /// application keeps the style that it has.
    explicit ThemeGalerie(QString styleDeBase = {});

    QString DonneStyleDeBase() const;

    /// Back to the variables of the start-up, whatever was overwritten.
    void Reinitialise();
    /// Overwrites the colours of surfaces, borders and texts by those of a dark theme.
    void Assombris();

    /// The value as it was given, so that a reference to another variable stays one.
    QString DonneValeur(QString const & nom) const;
    /// False, and nothing changes, for a value whose expansion would not end: one that names an
    /// unknown variable, or leads back to `nom`.
    bool Remplace(QString const & nom, QString const & valeur);
    void Remplace(QString const & nom, QColor const & couleur);

    /// Gives the application its palette and its style sheets, expanded. False, with a warning,
    /// when the sheets name a variable that the theme lacks: then nothing changes.
    bool Applique() const;

private:
    bool MeneA(QString const & nom, QString const & valeur) const;

    QString monStyleDeBase;
    std::map<QString, QString> mesReferences; // values that name variables, as given
};
