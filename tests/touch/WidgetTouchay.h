// tests/touch/WidgetTouchay.h
#pragma once

#include "touch/DGestionnaireTapGesture.h"

#include "touch/EssaisTactiles.h"

/// A window with a tap manager, and what reaches it of the mouse.
struct WidgetTouchay
{
    WidgetTouchay()
    {
        widget.resize(200, 200);
        new DGestionnaireTapGesture(&widget); // behind the witness, which hears what it lets pass
    }

    bool Montre()
    {
        widget.show();
        return QTest::qWaitForWindowExposed(&widget);
    }

    QWidget widget;
    EssaisTactiles::Temoin const temoin{&widget, EssaisTactiles::Temoin::Souris()};
};
