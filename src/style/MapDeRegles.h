// style/MapDeRegles.h
#pragma once

#include "style/RegleTexteRiche.h"

#include <QMap>
#include <QMetaType>

/// What an item is drawn as. The values are keys of stored maps and never change; 2 is not used.
enum eContextePourStyle : int
{
    kContexteNormal = 0,
    kContexteSelectionnay = 1, ///< selected, in anything but a menu item
    kContexteSurvolay = 3,     ///< under the mouse, in anything but a menu item
    kContexteMenuSelectionnay = 4
};

/// The rules of a widget's texts for each context; a context without an entry has none. What the
/// property `DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche()` holds.
using MapDeRegles = QMap<eContextePourStyle, EnsembleRegles>;

Q_DECLARE_METATYPE(MapDeRegles)
