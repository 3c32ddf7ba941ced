// tests/search/PiecesBarre.h
#pragma once

#include "search/BarreRecherche.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QToolButton>

/// The parts of a bar, found where the user sees them. Null where there is none.
struct PiecesBarre
{
    explicit PiecesBarre(BarreRecherche const & barre)
        : grille(qobject_cast<QGridLayout *>(barre.layout()))
        , compteur(Piece<QLabel>(0, 3))
        , colonne(compteur == nullptr ? 3 : 4)
        , options(Piece<QToolButton>(0, 0))
        , recherche(Piece<QLineEdit>(0, 1))
        , precedent(Piece<QToolButton>(0, colonne))
        , suivant(Piece<QToolButton>(0, colonne + 1))
        , fermer(Piece<QToolButton>(0, colonne + 2))
        , remplacement(Piece<QLineEdit>(1, 1))
        , cadre(Piece<QFrame>(1, colonne))
        , remplacer(Bouton(0))
        , tout(Bouton(1))
        , annuler(Bouton(2))
    {
    }

    QMenu * Menu() const { return options->menu(); }

    /// The item of the menu with this text, or null.
    QAction * Action(QString const & texte) const
    {
        for (QAction * const action : Menu()->actions())
            if (action->text() == texte)
                return action;
        return nullptr;
    }

    template <typename T>
    T * Piece(int ligne, int position) const
    {
        QLayoutItem const * const article = grille->itemAtPosition(ligne, position);
        return article == nullptr ? nullptr : qobject_cast<T *>(article->widget());
    }

    QToolButton * Bouton(int rang) const
    {
        QLayoutItem const * const article = cadre->layout()->itemAt(rang);
        return article == nullptr ? nullptr : qobject_cast<QToolButton *>(article->widget());
    }

    QGridLayout * grille;
    QLabel * compteur;
    int colonne; // of the arrow that leads back
    QToolButton * options;
    QLineEdit * recherche;
    QToolButton * precedent;
    QToolButton * suivant;
    QToolButton * fermer;
    QLineEdit * remplacement;
    QFrame * cadre;
    QToolButton * remplacer;
    QToolButton * tout;
    QToolButton * annuler;
};

/// A bar with everything, in a window that shows it and has the focus.
struct FenetreDeBarre
{
    FenetreDeBarre()
        : barre(new BarreRecherche(&fenetre, true, true, true, true))
        , pieces(*barre)
    {
        barre->resize(600, barre->height());
        fenetre.resize(600, 200);
    }

    bool Montre()
    {
        fenetre.show();
        fenetre.activateWindow();
        return QTest::qWaitForWindowActive(&fenetre);
    }

    QWidget fenetre;
    BarreRecherche * barre;
    PiecesBarre pieces;
};

/// The items of a menu as the user reads them, "-" for a separator.
inline QStringList Textes(QMenu const & menu)
{
    QStringList textes;
    for (QAction const * const action : menu.actions())
        textes.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return textes;
}

/// Menus of bars go through the event loop.
inline void EnvoieSuppressions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
