// galerie/EtatDessinay.h
#pragma once

#include <QStyle>
#include <QWidget>

struct DessinStyle;

/// A widget drawn in one state, without being it: the mouse, the focus and the keys are not needed.
class EtatDessinay : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kLargeur = 104; ///< logical pixels

    /// `dessin` and `modele`, which is made by it, must outlive this.
    EtatDessinay(DessinStyle const & dessin, QWidget const & modele, QStyle::State etat,
                 QWidget * parent = nullptr);

    /// Nothing is drawn before. The style must outlive the painting.
    void MetsStyleDessin(QStyle const & style);

    QWidget const & PreteModele() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent * evenement) override;

private:
    DessinStyle const & monDessin;
    QWidget const & monModele;
    QStyle::State monEtat;
    QStyle const * monStyle = nullptr;
};
