// lists/EssaisAvecListeChoix.h
#pragma once

#include "lists/EssaisVariantes.h"
#include "lists/ListeChoixFlottante.h"
#include "lists/WidgetListeEditableAvecListeChoix.h"

#include <QTreeView>

/// What the tests of the editable list with proposals share.
namespace EssaisAvecListeChoix {

/// The words that begin as the text does.
inline WidgetListeEditableAvecListeChoix::Propositions Propose(QString const & texte)
{
    WidgetListeEditableAvecListeChoix::Propositions rangees;
    for (char const * const mot : {"arbre", "arc", "argent", "bateau"})
        if (QString::fromLatin1(mot).startsWith(texte))
            rangees.append({new QStandardItem(QString::fromLatin1(mot))});
    return rangees;
}

class Liste : public EssaisVariantes::Ouverte<WidgetListeEditableAvecListeChoix>
{
public:
    using Ouverte::Ouverte;

    QTreeView * Choix() const { return PreteListeChoix()->PreteListeChoix(); }
    bool ChoixVisibles() const { return PreteListeChoix()->isVisible(); }

    QStringList Proposes() const
    {
        QStringList textes;
        for (int rangee = 0; rangee < Choix()->model()->rowCount(); ++rangee)
            textes.append(Choix()->model()->index(rangee, 0).data().toString());
        return textes;
    }

    /// Opens the editor of a cell as a user does.
    QLineEdit * Ouvre(int rangee, int colonne)
    {
        DTreeView & vue = *PreteVue();
        vue.setFocus();
        QPoint const milieu = Milieu(rangee, colonne);
        QTest::mouseClick(vue.viewport(), Qt::LeftButton, {}, milieu);
        QTest::mouseDClick(vue.viewport(), Qt::LeftButton, {}, milieu);
        return Editeurs().isEmpty() ? nullptr : Editeurs().last();
    }
};

} // namespace EssaisAvecListeChoix
