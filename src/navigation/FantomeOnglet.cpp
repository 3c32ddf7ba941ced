// navigation/FantomeOnglet.cpp
#include "navigation/FantomeOnglet_p.h"

#include <QApplication>
#include <QPainter>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

// The window manager would place the picture, give it the focus and raise its family with it, and
// the server would find it under the mouse: `Qt::WA_TransparentForMouseEvents` only tells Qt.
constexpr Qt::WindowFlags kFanions = Qt::Tool | Qt::FramelessWindowHint |
                                     Qt::BypassWindowManagerHint | Qt::WindowTransparentForInput |
                                     Qt::WindowDoesNotAcceptFocus;
constexpr double kOpacite = 0.75;
constexpr int kBordure = 1; // logical pixels, as in the sheet below

QWidget * TrouveWidgetDe(QWindow const * fenetre)
{
    QWidgetList const widgets = QApplication::topLevelWidgets();
    for (QWidget * const widget : widgets)
        if (widget->windowHandle() == fenetre)
            return widget;
    return nullptr;
}

} // namespace

FantomeOnglet::FantomeOnglet()
    : QWidget(nullptr, kFanions)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_StyledBackground); // a derived widget has no border of a sheet without it
    setStyleSheet(u"border: 1px solid #D0D0D0"_s);
    setWindowOpacity(kOpacite);
}

void FantomeOnglet::Montre(QWidget * modele, QPoint const & positionGlobale)
{
    if (monPixmap.isNull() && modele)
        Photographie(*modele);
    if (monPixmap.isNull())
        return;
    move(positionGlobale);
    show();
    raise();
}

void FantomeOnglet::Cache()
{
    hide();
    monPixmap = QPixmap();
}

void FantomeOnglet::Photographie(QWidget & modele)
{
    monPixmap = modele.grab();
    QPalette palette = this->palette();
    palette.setBrush(backgroundRole(), QBrush(monPixmap));
    setPalette(palette);
    setFixedSize(modele.size());
}

// Some platforms look for the window under a point by their geometries only, without asking
// whether it takes the mouse. They stack windows in the order of creation.
QWidget * FantomeOnglet::TrouveWidgetDessous(QPoint const & positionGlobale) const
{
    if (!isVisible() || QApplication::topLevelAt(positionGlobale) != this)
        return QApplication::widgetAt(positionGlobale);
    QWindowList const fenetres = QGuiApplication::topLevelWindows();
    for (auto fenetre = fenetres.crbegin(); fenetre != fenetres.crend(); ++fenetre) {
        if (!(*fenetre)->isVisible() || (*fenetre)->flags() & Qt::WindowTransparentForInput ||
            !(*fenetre)->geometry().contains(positionGlobale))
            continue;
        QWidget * const widget = TrouveWidgetDe(*fenetre);
        QWidget * const enfant =
            widget ? widget->childAt(widget->mapFromGlobal(positionGlobale)) : nullptr;
        return enfant ? enfant : widget;
    }
    return nullptr;
}

// The background is the picture too, but for a sheet of the application that has one for every
// widget.
void FantomeOnglet::paintEvent(QPaintEvent * evenement)
{
    QWidget::paintEvent(evenement);
    QPainter peintre(this);
    peintre.setClipRect(rect().adjusted(kBordure, kBordure, -kBordure, -kBordure));
    peintre.drawPixmap(0, 0, monPixmap);
}
