// tests/lists/EssaisPastille.h
#pragma once

#include "lists/Pastille.h"

#include <QCoreApplication>
#include <QEvent>
#include <QImage>

// What the tests of pills and of their bar have in common.
namespace EssaisPastille {

/// A pill of a size that no font changes, in a window.
struct Hote
{
    explicit Hote(QString const & titre = QStringLiteral("mot"))
        : pastille(new Pastille(titre, 7, &fenetre))
    {
        fenetre.resize(300, 100);
        pastille->setGeometry(0, 0, 100, 30);
    }

    void Montre()
    {
        fenetre.show();
        fenetre.activateWindow();
    }

    QPoint Croix() const { return pastille->DonneRectBoutonSupprimer().center(); }
    static QPoint Corps() { return {20, 15}; }

    QWidget fenetre;
    Pastille * pastille;
};

inline QImage Peins(QWidget & widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

inline void EnvoieSuppressions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace EssaisPastille
