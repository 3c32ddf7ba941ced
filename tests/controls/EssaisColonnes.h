// tests/controls/EssaisColonnes.h
#pragma once

#include "controls/DTreeView.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QtTest>

#include <numeric>

// A tree without a header whose columns share what its width gains or loses.
namespace EssaisColonnes {

inline constexpr int kMinimum = 20; // pixels; not the one that the font gives
inline constexpr int kHauteur = 200;

using Largeurs = QList<int>;

inline Largeurs DonneLargeurs(DTreeView const & vue)
{
    Largeurs largeurs;
    for (int colonne = 0; colonne < vue.header()->count(); ++colonne)
        largeurs.append(vue.header()->sectionSize(colonne));
    return largeurs;
}

inline int Somme(DTreeView const & vue)
{
    Largeurs const largeurs = DonneLargeurs(vue);
    return std::accumulate(largeurs.begin(), largeurs.end(), 0);
}

/// A shown tree without a header, whose viewport is as wide as its columns.
///
/// It is no window, to which the window system could give another size.
struct Banc
{
    explicit Banc(Largeurs const & largeurs, bool etireLaDerniere = false)
        : modele(1, static_cast<int>(largeurs.size()))
    {
        vue.setFrameShape(QFrame::NoFrame);
        vue.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        vue.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        vue.setHeaderHidden(true);
        vue.setModel(&modele);
        vue.header()->setMinimumSectionSize(kMinimum);
        vue.header()->setStretchLastSection(etireLaDerniere);
        vue.resize(std::accumulate(largeurs.begin(), largeurs.end(), 0), kHauteur);
        fenetre.show();
        for (int colonne = 0; colonne < largeurs.size(); ++colonne)
            vue.header()->resizeSection(colonne, largeurs[colonne]);
        vue.MetsRedimensionnementAvecResizeEvent(true);
    }

    void Change(int delta) { vue.resize(vue.width() + delta, kHauteur); }

    QStandardItemModel modele;
    QWidget fenetre;
    DTreeView vue{&fenetre};
};

/// What each column of 100 pixels becomes when the width of three changes.
inline void AjoutePartages()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<Largeurs>("attendues");
    QTest::newRow("one pixel goes to the first column") << 1 << Largeurs{101, 100, 100};
    QTest::newRow("two pixels go to the first two") << 2 << Largeurs{101, 101, 100};
    QTest::newRow("a whole round") << 3 << Largeurs{101, 101, 101};
    QTest::newRow("the round begins again") << 4 << Largeurs{102, 101, 101};
    QTest::newRow("several rounds") << 32 << Largeurs{111, 111, 110};
    QTest::newRow("one pixel less") << -1 << Largeurs{99, 100, 100};
    QTest::newRow("several rounds less") << -31 << Largeurs{89, 90, 90};
}

} // namespace EssaisColonnes
