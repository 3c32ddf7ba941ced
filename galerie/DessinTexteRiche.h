// galerie/DessinTexteRiche.h
#pragma once

#include "noyau/UniChaine.h"

#include <QWidget>

/// A tagged text, drawn within an outline that shows its room.
class DessinTexteRiche : public QWidget
{
    Q_OBJECT

public:
    enum eForme
    {
        kUneLigne,
        kDeuxLignes,
        kAvecSource,
        kDeuxLignesAvecSource
    };

    explicit DessinTexteRiche(eForme forme, QWidget * parent = nullptr);

    /// Only the forms with a source show one.
    void MetsTexte(QString const & texte, QString const & source);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent * evenement) override;

private:
    bool AvecSource() const;
    bool AvecDeuxLignes() const;

    eForme maForme;
    UniChaine monTexte;
    UniChaine maSource;
};
