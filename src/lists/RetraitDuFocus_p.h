// lists/RetraitDuFocus_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QWidget>

/// Keeps the keyboard focus out of widgets that are there but have no room.
///
/// A withdrawn widget and all within it have the policy `Qt::NoFocus`; each gets its own back with
/// `Rends`. A policy that its owner has set meanwhile is respected: it is the one that comes back.
/// A widget with a focus proxy is left alone, since its policy would become that of the proxy.
class FABRELGUI_EXPORT RetraitDuFocus
{
public:
    RetraitDuFocus() = default;
    ~RetraitDuFocus();
    Q_DISABLE_COPY_MOVE(RetraitDuFocus)

    /// May be repeated: widgets that have come into `widget` since follow, those that have left it
    /// have their policy back. The focus stays where it is until `CedeFocus`.
    void Retire(QWidget & widget);
    /// Only the address of `widget` is used, which may be in its destruction.
    void Rends(QWidget const * widget);
    /// If a withdrawn widget of the window, or one within it, has the focus: gives it to
    /// `prefere` if that can take it, else to the next in the order of the Tab key, else to none.
    void CedeFocus(QWidget & fenetre, QWidget * prefere);

private:
    struct Politique
    {
        QPointer<QWidget> widget;
        Qt::FocusPolicy valeur;
    };
    using Politiques = QList<Politique>;

    static void RendsPolitique(Politique const & politique);
    static void OublieCeuxQuiSontPartis(QWidget const & widget, Politiques & politiques);
    static void RetireAvecEnfants(QWidget & widget, Politiques & politiques);
    QWidget * TrouveRetire(QWidget * widget) const;

    QHash<QWidget const *, Politiques> mesRetraits; // by withdrawn widget
};
