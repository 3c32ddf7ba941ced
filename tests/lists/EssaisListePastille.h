// tests/lists/EssaisListePastille.h
#pragma once

#include "lists/ListePastille.h"

#include "controls/DBoutonSansFleche.h"
#include "lists/Pastille.h"

#include <QLineEdit>
#include <QMenu>
#include <QtTest>

#include <memory>

namespace EssaisListePastille {

using namespace Qt::StringLiterals;

inline DBoutonSansFleche * Chevron(ListePastille const & liste)
{
    return liste.findChild<DBoutonSansFleche *>();
}

inline Pastille * Ajoute(ListePastille & liste, QVariant const & cle,
                         QString const & titre = u"mot"_s)
{
    auto * const pastille = new Pastille(titre, cle);
    liste.AjoutePastille(pastille);
    return pastille;
}

// A list with pills of the keys 0, 1, ... in a window with the focus.
struct Hote
{
    explicit Hote(int nombre, int largeur = 700)
        : liste(new ListePastille(&fenetre))
        , suite(new QLineEdit(&fenetre))
    {
        fenetre.resize(760, 200);
        liste->setGeometry(0, 0, largeur, 40);
        suite->setGeometry(0, 100, 100, 30);
        for (int i = 0; i < nombre; ++i)
            pastilles << Ajoute(*liste, i);
    }

    bool Montre()
    {
        fenetre.show();
        fenetre.activateWindow();
        bool const active = QTest::qWaitForWindowActive(&fenetre);
        QCoreApplication::processEvents();
        return active;
    }

    // So that `visibles` pills have room, and the chevron.
    void Retrecis(int visibles)
    {
        int const largeur = pastilles.first()->sizeHint().width() + liste->layout()->spacing();
        liste->resize(visibles * largeur + liste->height() + 2, liste->height());
        QCoreApplication::processEvents();
    }

    QWidget fenetre;
    ListePastille * liste;
    QLineEdit * suite;
    QList<Pastille *> pastilles;
};

} // namespace EssaisListePastille
