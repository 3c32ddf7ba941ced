// lists/WidgetListeEditable_p.h
#pragma once

#include "lists/WidgetListeEditable.h"

/// Stands around the emission of a signal. A receiver may delete the list, whose children are still
/// handling the click, the key or the edit that it comes from: they then outlive it until the event
/// loop.
class WidgetListeEditable::Emission
{
public:
    explicit Emission(WidgetListeEditable & liste)
        : maListe(&liste)
    {
        ++liste.mesEmissions;
    }
    ~Emission()
    {
        if (maListe)
            --maListe->mesEmissions;
    }
    Q_DISABLE_COPY_MOVE(Emission)

    bool ListeEstMorte() const { return !maListe; }

private:
    QPointer<WidgetListeEditable> maListe;
};
