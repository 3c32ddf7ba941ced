// galerie/Glossaire.h
#pragma once

#include "lists/WidgetListeEditable.h"

#include <QStringList>

/// A list of terms in columns that name themselves in their empty editors. Those of the first
/// column begin with a capital, as in a dictionary, whatever is typed.
class Glossaire : public WidgetListeEditable
{
    Q_OBJECT

public:
    explicit Glossaire(QStringList const & colonnes, QWidget * parent = nullptr);

protected:
    void MetsEditeur(QLineEdit * editeur) override;
    UniChaine DonnePlaceHolder(int colonne) override;

private:
    QStringList mesColonnes;
    int maColonne = -1; // of the editor
};
