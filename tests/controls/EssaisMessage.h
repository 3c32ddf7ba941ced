// tests/controls/EssaisMessage.h
#pragma once

#include "controls/DTreeView.h"

#include "controls/Encre.h"

#include <QFont>
#include <QFontMetrics>
#include <QHeaderView>
#include <QPaintEvent>
#include <QRegion>
#include <QStandardItemModel>

#include <memory>

// What the tests of the message of an empty tree share.
namespace EssaisMessage {

constexpr QSize kTaille(300, 200);
constexpr int kPixelsFont = 20;

inline QFont DonneFont()
{
    QFont font;
    font.setPixelSize(kPixelsFont);
    font.setBold(true); // strokes wider than a pixel
    return font;
}

inline int DonneHauteurLigne()
{
    return QFontMetrics(DonneFont()).height();
}

/// Counts the paint events of a widget, and the pixels that they covered.
class Temoin : public QObject
{
public:
    explicit Temoin(QWidget * widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::Paint)
            maRegion |= static_cast<QPaintEvent *>(evenement)->region();
        return false;
    }

    QRegion maRegion;
};

/// A shown tree on white, without a model; its header is hidden.
struct Banc
{
    Banc()
    {
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::white);
        vue.setPalette(palette);
        vue.setFrameShape(QFrame::NoFrame);
        vue.setHeaderHidden(true);
        vue.header()->setFont(DonneFont());
        vue.resize(kTaille);
        vue.show();
    }

    QImage Peins()
    {
        QImage image = Encre::ImageBlanche(vue.viewport()->size());
        vue.viewport()->render(&image);
        return image;
    }
    QRect Encre() { return Encre::BornesEncre(Peins()); }
    /// By its color: a style may draw branches, the focus or the row under the mouse.
    bool MontreMessage() { return Encre::BornesDe(Peins(), Qt::gray).isValid(); }

    DTreeView vue;
};

inline std::unique_ptr<QStandardItemModel> DonneModele(int rangees)
{
    // Items without a text leave no ink.
    return std::make_unique<QStandardItemModel>(rangees, 1);
}

} // namespace EssaisMessage
