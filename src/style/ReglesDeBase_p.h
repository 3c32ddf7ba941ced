// style/ReglesDeBase_p.h
#pragma once

#include "style/RegleTexteRiche.h"

#include "FabrelGuiExport.h"

// The rules that a text without a widget is read by. Empty until they are first asked for.
extern FABRELGUI_EXPORT EnsembleRegles reglesDeBase;
