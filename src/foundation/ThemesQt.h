// foundation/ThemesQt.h
#pragma once

#include "FabrelGuiExport.h"

#include <QColor>
#include <QHash>
#include <QString>
#include <QStringList>

#include <map>

/// The table of the theme's named values: colours as "rgba(red,green,blue,alpha)" with all four
/// from 0 to 255, font and length values, and four colours of the system.
///
/// Code asks for colours by name; style sheets name variables as "@name" and are expanded before
/// they are applied. An application overwrites variables before it builds widgets. Names are
/// case-sensitive. GUI thread only.
class FABRELGUI_EXPORT ThemesQt
{
public:
    /// The default table. The colours of the system are those of this moment, so an application
    /// object must exist.
    ThemesQt();
    ThemesQt(ThemesQt const & themes);
    ThemesQt(ThemesQt && themes) noexcept;
    ~ThemesQt();

    /// The table that the library's widgets use; made with the default values by the first call.
    static ThemesQt * Instance();
    /// Destroys that table, if there is one. The next `Instance()` makes another, without what was
    /// added to this one.
    static void DetruisToi();

    /// Adds a variable or replaces its value. A value may use other variables.
    void AjouterVariable(QString nom, QString valeur);
    void AjouterVariable(QString nom, QColor couleur);

    /// The text with every "@name" replaced by its value, in which variables are replaced in turn.
    ///
    /// A name ends before white space, one of ; , ) [ ] { } or at the end of the text; a colon, a
    /// quote or a point belongs to it. The call does not return when the text leads to a name that
    /// the table lacks (see `VariablesInconnues`) or to a variable that leads to itself.
    QString AppliquerVariable(QString const & texte) const;

    /// The colour of that name; invalid when the table lacks it or its value, trimmed and expanded,
    /// is not "rgba(" with four integers. Each integer is cut to its low 8 bits.
    QColor DonneCouleur(QString const & nom) const;

    /// The names of all variables, in the order of `QString`.
    QStringList DonneNoms() const;
    /// The names that the table lacks among those that the text leads to, directly or by values of
    /// other variables: each once, in order of appearance. Always returns, whatever the text.
    QStringList VariablesInconnues(QString const & texte) const;

    static ThemesQt * instanceUnique; ///< what `Instance` returns; null until it is first called

private:
    QString monPrefixe;
    std::map<QString, QString> mesVariables;
    // What `DonneCouleur` has found for names of the table, invalid colours too. Emptied by each
    // change, since a colour may use other variables.
    mutable QHash<QString, QColor> mesCouleurs;
};
