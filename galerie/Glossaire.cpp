// galerie/Glossaire.cpp
#include "Glossaire.h"

#include "TraductionGalerie.h"

#include "controls/DTreeView.h"

#include <QLineEdit>
#include <QValidator>

namespace {

class ValidateurInitiale : public QValidator
{
public:
    State validate(QString & texte, int &) const override
    {
        return texte.isEmpty() || !texte.front().isLower() ? Acceptable : Intermediate;
    }
    void fixup(QString & texte) const override { texte = texte.left(1).toUpper() + texte.mid(1); }
};

} // namespace

Glossaire::Glossaire(QStringList const & colonnes, QWidget * parent)
    : WidgetListeEditable(parent, static_cast<int>(colonnes.size()), true, true,
                          {new ValidateurInitiale}, false)
    , mesColonnes(colonnes)
{
    PreteVue()->AfficheMessageSiVide(
        TraductionGalerie(TexteGalerie("Le glossaire est vide. Le bouton + ajoute une ligne.")));
}

void Glossaire::MetsEditeur(QLineEdit * editeur)
{
    WidgetListeEditable::MetsEditeur(editeur);
    if (editeur)
        maColonne = PreteVue()->indexAt(editeur->geometry().center()).column();
}

// The argument is the column of the current cell, which is still the one before when the edit has
// moved on by itself: where the editor stands is surer.
UniChaine Glossaire::DonnePlaceHolder(int colonne)
{
    return {mesColonnes.value(maColonne < 0 ? colonne : maColonne)};
}
