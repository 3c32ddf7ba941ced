// tests/style/EssaisTransparence.h
#pragma once

#include "style/StyleEspion.h"

#include <QtWidgets>

#include <functional>
#include <memory>
#include <vector>

// Widgets that have no property of the style and ask for none of its special cases: drawn by it,
// they look exactly as drawn by its base.

struct WidgetOrdinaire
{
    char const * nom;
    std::function<std::unique_ptr<QWidget>()> fabrique;
};

template <typename Widget, typename... Arguments>
std::unique_ptr<Widget> FabriqueAvec(std::function<void(Widget &)> const & regle,
                                     Arguments &&... arguments)
{
    auto widget = std::make_unique<Widget>(std::forward<Arguments>(arguments)...);
    regle(*widget);
    return widget;
}

/// `base` is the name of the base style.
inline std::vector<WidgetOrdinaire> DonneWidgetsOrdinaires(QString const & base)
{
    // This one draws the arrow of a combo box as a primitive, for which the style has a picture.
    bool const avecFleches = base == QStringLiteral("Windows");
    QString const texte = QStringLiteral("Texte");
    auto const plage = [](auto & widget) {
        widget.setRange(0, 10);
        widget.setValue(4);
    };
    std::vector<WidgetOrdinaire> widgets{
        {"check box", [=] { return FabriqueAvec<QCheckBox>([](auto &) {}, texte); }},
        {"checked box",
         [=] { return FabriqueAvec<QCheckBox>([](auto & w) { w.setChecked(true); }, texte); }},
        {"radio button",
         [=] { return FabriqueAvec<QRadioButton>([](auto & w) { w.setChecked(true); }, texte); }},
        {"label", [=] { return FabriqueAvec<QLabel>([](auto &) {}, texte); }},
        {"progress bar", [=] { return FabriqueAvec<QProgressBar>(plage); }},
        {"slider", [=] { return FabriqueAvec<QSlider>(plage, Qt::Horizontal); }},
        {"slider with ticks",
         [=] {
             return FabriqueAvec<QSlider>(
                 [&](QSlider & w) {
                     plage(w);
                     w.setTickPosition(QSlider::TicksBothSides);
                 },
                 Qt::Vertical);
         }},
        {"scroll bar", [=] { return FabriqueAvec<QScrollBar>(plage, Qt::Horizontal); }},
        {"dial", [=] { return FabriqueAvec<QDial>(plage); }},
        {"group box", [=] { return FabriqueAvec<QGroupBox>([](auto &) {}, texte); }},
        {"checkable group box",
         [=] { return FabriqueAvec<QGroupBox>([](auto & w) { w.setCheckable(true); }, texte); }},
        {"box frame",
         [] { return FabriqueAvec<QFrame>([](auto & w) { w.setFrameStyle(QFrame::Box); }); }},
        {"line",
         [] { return FabriqueAvec<QFrame>([](auto & w) { w.setFrameStyle(QFrame::HLine); }); }},
        {"size grip", [] { return std::make_unique<QSizeGrip>(nullptr); }},
        {"rubber band", [] { return std::make_unique<QRubberBand>(QRubberBand::Rectangle); }},
        {"number display",
         [] { return FabriqueAvec<QLCDNumber>([](auto & w) { w.display(42); }); }},
    };
    if (!avecFleches)
        widgets.push_back({"combo box", [=] {
                               return FabriqueAvec<QComboBox>([&](auto & w) { w.addItem(texte); });
                           }});
    return widgets;
}

/// The picture of the widget in that style, enabled or not.
inline QImage PeinsWidget(WidgetOrdinaire const & ordinaire, QStyle & style, bool actif,
                          qreal ratio)
{
    auto const widget = ordinaire.fabrique();
    widget->setStyle(&style);
    widget->setEnabled(actif);
    widget->resize(120, 60);
    widget->ensurePolished();
    QImage image((QSizeF(widget->size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    // Fusion keeps pictures of its parts, and what it draws beside a new one has other pens.
    widget->render(&image);
    image.fill(Qt::white);
    widget->render(&image);
    return image;
}
