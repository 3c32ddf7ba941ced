// style/ProprietesStyle_p.h
#pragma once

// The dynamic properties by which a widget asks the style for a behaviour. Widgets know the style
// by these names alone.
namespace ProprietesStyle {

/// The widget is drawn by the proxy's rules for check indicators, label spacing and pixmaps.
constexpr char const * kPourStyle = "DStyleProxy";

} // namespace ProprietesStyle
