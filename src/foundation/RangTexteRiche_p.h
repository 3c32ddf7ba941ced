// foundation/RangTexteRiche_p.h
#pragma once

#include "noyau/UniChaine.h"

#include <QHashFunctions>
#include <QPointF>

#include <memory>
#include <vector>

class PoliceTexteRiche;
class QPainter;
class QTextLine;
class TexteMisEnPage;

/// A row of a list with its source and its "…", laid out for one rectangle and drawn anywhere.
class RangTexteRiche
{
public:
    /// All that the row depends on, beside its font.
    struct Demande
    {
        UniChaine texte;
        UniChaine source;
        int largeur = 0; ///< pixels
        int hauteur = 0; ///< pixels; plays no part on one line
        bool deuxLignes = false;
        bool surlignementEnNoir = false; ///< whatever the pen

        friend bool operator==(Demande const & a, Demande const & b) = default;
        friend size_t qHash(Demande const & demande, size_t graine = 0)
        {
            return qHashMulti(graine, demande.texte, demande.source, demande.largeur,
                              demande.hauteur, demande.deuxLignes, demande.surlignementEnNoir);
        }
    };

    RangTexteRiche(Demande const & demande, PoliceTexteRiche const & police);
    ~RangTexteRiche();
    Q_DISABLE_COPY_MOVE(RangTexteRiche)

    /// Leaves the pen of the painter as it was.
    void Dessine(QPainter & peintre, QPointF const & coin) const;

private:
    struct Piece
    {
        std::shared_ptr<TexteMisEnPage const> texte;
        QPointF place; // from the corner of the row
    };

    double AjouteSource(Demande const & demande, PoliceTexteRiche const & police);
    void AjouteTexte(Demande const & demande, PoliceTexteRiche const & police,
                     double largeurSource);
    QPointF AjoutePoints(QTextLine const & ligne, QPointF const & coin, bool deDroiteAGauche,
                         PoliceTexteRiche const & police);

    std::vector<Piece> mesPieces;
};
