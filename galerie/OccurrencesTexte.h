// galerie/OccurrencesTexte.h
#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>

#include <span>

/// The matches of an expression or of another text in a text, in their order. Numbers begin with 1;
/// 0 stands for none.
///
/// They are places, not cursors: every edit of a document moves each of its cursors.
class OccurrencesTexte
{
public:
    /// A place in the text; `fin` is behind the match.
    struct Plage
    {
        int debut = 0;
        int fin = 0;

        bool operator==(Plage const & autre) const = default;
    };

    OccurrencesTexte() = default;
    /// An invalid expression matches nothing, and so does a match of no length.
    OccurrencesTexte(QString const & texte, QRegularExpression const & expression);
    /// Of a text instead of an expression; an empty one matches nothing.
    OccurrencesTexte(QString const & texte, QString const & chaine, Qt::CaseSensitivity casse);

    /// The text with plain blanks for the no-break ones, each at its old position: pass the text
    /// and what is searched for through it, and the two match whatever was typed.
    static QString SansInsecables(QString texte);

    int DonneNombre() const { return static_cast<int>(mesPlages.size()); }
    /// The match of that number; an empty place at 0 out of range.
    Plage DonnePlage(int numero) const;
    /// The number of the match that is exactly this place.
    int DonneNumero(Plage const & plage) const;
    /// The first match that begins at `position` or behind; past the last one, the first of all
    /// when it wraps around.
    int DonneSuivante(int position, bool boucler) const;
    /// The last match that ends at `position` or before.
    int DonnePrecedente(int position, bool boucler) const;
    /// Those that share a character with `plage`; valid as long as this object is not changed.
    std::span<Plage const> DonneDans(Plage const & plage) const;

private:
    QList<Plage> mesPlages;
};
