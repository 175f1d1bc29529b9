#pragma once

#include <TopoDS_Shape.hxx>

/// The parts of the bench vise, each in a frame of its own: X along the spindle, Z up, in millimetres.
namespace vise
{

/// Bed with its guide slot, lugs with U-slots for the bolts of a machine table; stands on z = 0, its top is z = 50.
TopoDS_Shape base();

/// The jaw that is screwed to the bed; the jaw plate rests on its ledge and against x = 0.
TopoDS_Shape fixedJaw();

/// The jaw that the spindle moves; its plate rests against x = 0 and looks towards -X.
TopoDS_Shape slidingJaw();

/// Hardened plate with grooves for round work; its back is x = 0, its front x = 14.
TopoDS_Shape jawPlate();

/// The strip below the bed that keeps the sliding jaw in its guide; its upper side is z = 0.
TopoDS_Shape keeperStrip();

/// Holds the spindle's end in the sliding jaw; its back is x = 0.
TopoDS_Shape retainerPlate();

/// The bearing of the spindle on the bed's end; stands on z = 0.
TopoDS_Shape spindleBracket();

/// Bronze nut, pressed into the bracket; its flange's inner side is x = 0.
TopoDS_Shape spindleNut();

/// Spindle with a trapezoidal thread; starts at x = 0 with the end that turns in the jaw.
TopoDS_Shape spindle();

/// Hub on the spindle's end, with a cross hole for the bar along Z; centred on the origin.
TopoDS_Shape handleHub();

/// The sliding bar, along Z, centred on the origin.
TopoDS_Shape handleBar();

/// Ball knob; its seat is z = 0, the ball lies above it.
TopoDS_Shape handleKnob();

/// Hexagon socket head cap screw along Z; the head stands on z = 0, the shank goes down.
TopoDS_Shape capScrew(double diameter, double length);

} // namespace vise
