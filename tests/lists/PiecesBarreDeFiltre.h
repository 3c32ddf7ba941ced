// tests/lists/PiecesBarreDeFiltre.h
#pragma once

#include "lists/BarreDeFiltre.h"
#include "lists/ListePastille.h"
#include "lists/Pastille.h"
#include "lists/ToolTipComboBox.h"

#include "controls/DBoutonSansFleche.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

/// The parts of a filter bar, found where the user sees them. Null where there is none.
struct PiecesBarreDeFiltre
{
    explicit PiecesBarreDeFiltre(BarreDeFiltre const & barre)
        : liste(barre.findChild<ListePastille *>())
        , chevron(liste->findChild<DBoutonSansFleche *>())
        , champ(barre.PreteComboDeRecherche())
        , etiquette(barre.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
        , bouton(barre.findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly))
        , popUp(barre.findChild<ToolTipComboBox *>())
    {
    }

    QMenu * Menu() const { return qobject_cast<QMenu *>(popUp->window()); }

    /// Those of the row, in its order.
    QList<Pastille *> Pastilles() const
    {
        QList<Pastille *> pastilles;
        for (QWidget * const widget : liste->PreteListeWidgets())
            pastilles << qobject_cast<Pastille *>(widget);
        return pastilles;
    }

    QVariantList Cles() const
    {
        QVariantList cles;
        for (Pastille const * const pastille : Pastilles())
            cles << pastille->DonneData();
        return cles;
    }

    QStringList TextesDuChevron() const
    {
        QStringList textes;
        for (QAction const * const action : chevron->menu()->actions())
            textes << action->text();
        return textes;
    }

    /// As wide as the list wants to be.
    int LargeurVoulue() const
    {
        return liste->sizeHint().width() + liste->layout()->spacing() * liste->layout()->count();
    }

    int CompteVisibles() const
    {
        int visibles = 0;
        for (int i = 0; i < liste->layout()->count(); ++i)
            visibles += liste->WidgetEstVisible(i);
        return visibles;
    }

    ListePastille * liste;
    DBoutonSansFleche * chevron;
    DChampRecherche * champ;
    QLabel * etiquette;
    QToolButton * bouton;
    ToolTipComboBox * popUp;
};

/// A bar with everything, in a window with room around it, and a widget below it.
struct FenetreDeBarreDeFiltre
{
    explicit FenetreDeBarreDeFiltre(int largeur = 600)
        : barre(new BarreDeFiltre(true, true, &fenetre))
        , suite(new QPushButton(QStringLiteral("suite"), &fenetre))
        , pieces(*barre)
    {
        fenetre.setGeometry(100, 400, 640, 200);
        barre->setGeometry(0, 100, largeur, 40);
        suite->setGeometry(0, 150, 100, 30);
    }

    bool Montre()
    {
        barre->AfficherListePastille(true);
        fenetre.show();
        fenetre.activateWindow();
        return QTest::qWaitForWindowActive(&fenetre);
    }

    /// Pills with the keys 0, 1, ...
    void Ajoute(int nombre)
    {
        for (int i = 0; i < nombre; ++i)
            barre->AjouterMotPastille(QStringLiteral("mot %1").arg(i), i);
        Place();
    }

    /// Lets the layouts do their work.
    void Place() const
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }

    QWidget fenetre;
    BarreDeFiltre * barre;
    QPushButton * suite;
    PiecesBarreDeFiltre pieces;
};

/// A combo box with `nombre` choices, whose data are 100 and up.
inline QComboBox * CreeComboDeFiltre(int nombre = 3)
{
    auto * const combo = new QComboBox;
    for (int i = 0; i < nombre; ++i)
        combo->addItem(QStringLiteral("choix %1").arg(i), 100 + i);
    return combo;
}

inline void EnvoieSuppressions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
