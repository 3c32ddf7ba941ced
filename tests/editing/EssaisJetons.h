// tests/editing/EssaisJetons.h
#pragma once

#include "editing/DComboJetonable.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>

// What the tests of the combo box with tokens share.
namespace EssaisJetons {

using namespace Qt::StringLiterals;

inline const QColor kNormale(10, 160, 20);
inline const QColor kNormaleHover(20, 30, 200);
inline const QColor kSupprime(200, 20, 30);
inline const QColor kSupprimeHover(180, 20, 190);

// Files of plain squares, each in its colour.
class Icones
{
public:
    QString Cree(QColor const & couleur) const
    {
        QString const chemin = monDossier.filePath(couleur.name().mid(1) + u".png"_s);
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(couleur);
        return image.save(chemin) ? chemin : QString();
    }
    QString DonneCheminAbsent() const { return monDossier.filePath(u"absente.png"_s); }

private:
    QTemporaryDir monDossier;
};

inline QLineEdit & PreteChamp(DComboJetonable & combo)
{
    return *combo.lineEdit();
}

inline DComboJetonable * CreeSansIcones(QWidget * parent = nullptr)
{
    return new DComboJetonable(parent, false, {}, {}, {}, {});
}

inline DComboJetonable * CreeAvecIcones(Icones const & icones, QWidget * parent = nullptr)
{
    return new DComboJetonable(parent, true, icones.Cree(kNormale), icones.Cree(kNormaleHover),
                               icones.Cree(kSupprime), icones.Cree(kSupprimeHover));
}

// The middle of the icon as it is drawn, which is 5 pixels beside where it is clicked.
inline QPoint DonneMilieuDessin(DComboJetonable & combo)
{
    return combo.DonneRectIcone().center() - QPoint(5, 0);
}

inline QColor DonneCouleurIcone(DComboJetonable & combo)
{
    return combo.grab().toImage().pixelColor(DonneMilieuDessin(combo) * combo.devicePixelRatioF());
}

// What has exactly this colour. The edge of a token's block has, where no letter touches it.
inline QRect CherchePixels(QImage const & image, QColor const & couleur)
{
    QRect trouvays;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == couleur)
                trouvays |= QRect(x, y, 1, 1);
    return trouvays;
}

// The mouse comes to `point`, wherever the cursor is.
inline void Deplace(QWidget & widget, QPoint const & point)
{
    QMouseEvent mouvement(QEvent::MouseMove, point, QPointF(), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&widget, &mouvement);
}

} // namespace EssaisJetons
