// bench/bench_DDefileurTactile.cpp
//
// A tree of 100,000 rows that is scrolled with the touch scroller installed, beside one without: by
// its scroll bar, by the wheel, and with a mouse that moves over its rows, one painted frame each
// time. Exits with 1 when a frame takes more than 1.05 times as long.
#include "touch/DDefileurTactile.h"

#include "Comparaison.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTreeView>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLignes = 100'000;
constexpr int kColonnes = 3;
constexpr int kImagesParMesure = 40;
constexpr int kPasDeDefilement = 37; // pixels: no multiple of the height of a row
constexpr double kRatioMax = 1.05;
constexpr QSize kTaille(500, 400);

class Lignes : public QAbstractItemModel
{
public:
    QModelIndex index(int ligne, int colonne, QModelIndex const & parent) const override
    {
        return parent.isValid() ? QModelIndex() : createIndex(ligne, colonne);
    }
    QModelIndex parent(QModelIndex const &) const override { return {}; }
    int rowCount(QModelIndex const & parent) const override
    {
        return parent.isValid() ? 0 : kLignes;
    }
    int columnCount(QModelIndex const &) const override { return kColonnes; }
    QVariant data(QModelIndex const & index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return u"Ligne %1, colonne %2"_s.arg(index.row()).arg(index.column());
    }
};

// One event that the user made and the painting that follows.
using Geste = void (*)(QTreeView & vue, int image);

void Defile(QTreeView & vue, int image)
{
    QScrollBar & barre = *vue.verticalScrollBar();
    barre.setValue((image * kPasDeDefilement) % barre.maximum());
}

void TourneLaRoulette(QTreeView & vue, int image)
{
    QPointF const position(100, 100);
    // Down and up again, so that it never comes to an end.
    QPoint const angle(0, image % kImagesParMesure < kImagesParMesure / 2 ? -120 : 120);
    QWheelEvent roulette(position, vue.viewport()->mapToGlobal(position), QPoint(), angle,
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(vue.viewport(), &roulette);
}

// The row under the mouse is painted again as the scroll bar moves.
void BougeLaSouris(QTreeView & vue, int image)
{
    QPointF const position(100, 50 + image % 200);
    QMouseEvent souris(QEvent::MouseMove, position, vue.viewport()->mapToGlobal(position),
                       Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(vue.viewport(), &souris);
    Defile(vue, image);
}

void Prepare(QTreeView & vue, QAbstractItemModel & modele)
{
    vue.setModel(&modele);
    vue.setUniformRowHeights(true);
    vue.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    vue.setMouseTracking(true);
    vue.resize(kTaille);
    vue.show();
    QCoreApplication::processEvents();
}

Comparaison::Boucle FaisBoucle(QTreeView & vue, Geste geste)
{
    return [&vue, geste, image = 0](int repetitions) mutable {
        for (int i = 0; i < repetitions; ++i) {
            geste(vue, image++);
            QCoreApplication::processEvents();
        }
    };
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombre, arguments);
    Lignes modele;
    QTreeView avec;
    QTreeView sans;
    new DDefileurTactile(&avec);
    Prepare(avec, modele);
    Prepare(sans, modele);
    Comparaison comparaison(kImagesParMesure);
    for (auto const & [nom, geste] :
         {std::pair<char const *, Geste>("scroll bar, frame", Defile),
          std::pair<char const *, Geste>("wheel, frame", TourneLaRoulette),
          std::pair<char const *, Geste>("mouse and scroll bar, frame", BougeLaSouris)})
        comparaison.Mesure(nom, FaisBoucle(avec, geste), FaisBoucle(sans, geste), kRatioMax);
    return comparaison.Resultat();
}
