#include "vise_parts.h"

#include "modelling.h"

#include <gp.hxx>

namespace vise
{

using namespace modelling;

namespace
{

const double kSpindleHeight = 20; // above the bed's top, which is z = 0 of both jaws and of the bracket
const double kPlateScrewY = 28;   // the two screws of a jaw plate, at +-y
const double kPlateScrewZ = 18;   // above the lower edge of the plate
const double kLedge = 20;         // the ledge that carries a jaw plate

gp_Ax1 axis(double x, double y, double z, const gp_Dir& direction)
{
    return gp_Ax1(gp_Pnt(x, y, z), direction);
}

gp_Dir alongX()
{
    return gp::DX();
}

gp_Dir alongZ()
{
    return gp::DZ();
}

TopoDS_Shape withTappedPlateHoles(TopoDS_Shape jaw, const gp_Dir& intoJaw)
{
    for (const double y : {-kPlateScrewY, kPlateScrewY})
    {
        jaw = cut(jaw, cylinder(axis(0, y, kLedge + kPlateScrewZ, intoJaw), 3.4, 22));
    }
    return jaw;
}

} // namespace

TopoDS_Shape base()
{
    TopoDS_Shape body = box(gp_Pnt(0, -60, 0), gp_Pnt(340, 60, 50));
    body = fillet(body, 12, straightAlong(alongZ(), gp_Pnt(0, -60, 0), gp_Pnt(340, 60, 50)));

    for (const double x : {60.0, 250.0})
    {
        TopoDS_Shape lugs = box(gp_Pnt(x - 25, -95, 0), gp_Pnt(x + 25, 95, 18));
        lugs = fillet(lugs, 8, straightAlong(alongZ(), gp_Pnt(0, -95, 0), gp_Pnt(340, 95, 18)));
        body = join(body, lugs);
        for (const double side : {-1.0, 1.0})
        {
            const TopoDS_Shape slot = join(cylinder(axis(x, side * 78, 0, alongZ()), 7, 18),
                                           side > 0 ? box(gp_Pnt(x - 7, 78, 0), gp_Pnt(x + 7, 96, 18))
                                                    : box(gp_Pnt(x - 7, -96, 0), gp_Pnt(x + 7, -78, 18)));
            body = cut(body, slot);
        }
    }
    // The lugs run into the bed's sides with a casting radius.
    body = fillet(body, 5, straightAlong(alongX(), gp_Pnt(0, -60, 18), gp_Pnt(340, 60, 18)));

    TopoDS_Shape guide = box(gp_Pnt(100, -21, 30), gp_Pnt(270, 21, 50));
    guide = fillet(guide, 6, straightAlong(alongZ(), gp_Pnt(100, -21, 30), gp_Pnt(270, 21, 50)));
    TopoDS_Shape relief = box(gp_Pnt(90, -34, 0), gp_Pnt(280, 34, 32));
    relief = fillet(relief, 10, straightAlong(alongZ(), gp_Pnt(90, -34, 0), gp_Pnt(280, 34, 32)));
    body = cut(cut(body, guide), relief);

    for (const double y : {-48.0, 48.0})
    {
        body = cut(body, cylinder(axis(52, y, 50, alongZ().Reversed()), 4.25, 28));
    }
    for (const double x : {282.0, 318.0})
    {
        for (const double y : {-34.0, 34.0})
        {
            body = cut(body, cylinder(axis(x, y, 50, alongZ().Reversed()), 4.25, 28));
        }
    }
    // Runs on along the rounded corners, all around the bed.
    body = chamfer(body, 1.5, straightAlong(alongX(), gp_Pnt(0, -60, 50), gp_Pnt(340, -60, 50)));
    return singleSolid(body, "base");
}

TopoDS_Shape fixedJaw()
{
    TopoDS_Shape body =
        prismAlongY({{-44, 0}, {14, 0}, {14, kLedge}, {0, kLedge}, {0, 56}, {-28, 56}, {-44, 38}}, -60, 60);
    body = fillet(body, 6, straightAlong(gp::DY(), gp_Pnt(-44, -60, 38), gp_Pnt(-28, 60, 56)));
    body = fillet(body, 4, straightAlong(alongZ(), gp_Pnt(-44, -60, 0), gp_Pnt(-44, 60, 38)));
    for (const double y : {-48.0, 48.0})
    {
        body = cut(body, counterboredHole(axis(-18, y, 56, alongZ().Reversed()), 5.5, 56, 9, 38));
    }
    body = withTappedPlateHoles(body, alongX().Reversed());
    return singleSolid(chamfer(body, 1, within(gp_Pnt(14, -60, kLedge), gp_Pnt(14, 60, kLedge))), "fixed jaw");
}

TopoDS_Shape slidingJaw()
{
    TopoDS_Shape body =
        prismAlongY({{0, kLedge}, {-14, kLedge}, {-14, 0}, {60, 0}, {60, 42}, {42, 56}, {0, 56}}, -60, 60);
    body = fillet(body, 6, straightAlong(gp::DY(), gp_Pnt(42, -60, 42), gp_Pnt(60, 60, 56)));
    body = fillet(body, 4, straightAlong(alongZ(), gp_Pnt(60, -60, 0), gp_Pnt(60, 60, 42)));

    const TopoDS_Shape tongue = box(gp_Pnt(-6, -20.5, -18), gp_Pnt(52, 20.5, 0));
    body = join(body, chamfer(tongue, 1, straightAlong(alongX(), gp_Pnt(-6, -21, -18), gp_Pnt(52, 21, -18))));
    for (const double x : {8.0, 38.0})
    {
        body = cut(body, cylinder(axis(x, 0, -18, alongZ()), 3.4, 20));
    }

    body = cut(body, cylinder(axis(60, 0, kSpindleHeight, alongX().Reversed()), 8.2, 32));
    for (const double y : {-22.0, 22.0})
    {
        body = cut(body, cylinder(axis(60, y, kSpindleHeight, alongX().Reversed()), 3.4, 20));
    }
    return singleSolid(withTappedPlateHoles(body, alongX()), "sliding jaw");
}

TopoDS_Shape jawPlate()
{
    TopoDS_Shape plate = box(gp_Pnt(0, -60, 0), gp_Pnt(14, 60, 36));
    plate = chamfer(plate, 1, within(gp_Pnt(14, -60, 0), gp_Pnt(14, 60, 36)));
    for (const double y : {-kPlateScrewY, kPlateScrewY})
    {
        plate = cut(plate, counterboredHole(axis(14, y, kPlateScrewZ, alongX().Reversed()), 4.5, 14, 7.5, 9));
    }
    // Grooves for round work, lying and upright.
    plate = cut(plate, prismAlongY({{14.1, 26}, {11, 29}, {14.1, 32}}, -61, 61));
    plate = cut(plate, prism({gp_Pnt(14.1, -5, -1), gp_Pnt(9, 0, -1), gp_Pnt(14.1, 5, -1)}, gp_Vec(0, 0, 38)));
    return singleSolid(plate, "jaw plate");
}

TopoDS_Shape keeperStrip()
{
    TopoDS_Shape strip = box(gp_Pnt(-6, -31, -8), gp_Pnt(52, 31, 0));
    strip = fillet(strip, 6, straightAlong(alongZ(), gp_Pnt(-6, -31, -8), gp_Pnt(52, 31, 0)));
    for (const double x : {8.0, 38.0})
    {
        strip = cut(strip, cylinder(axis(x, 0, -8, alongZ()), 4.5, 8));
    }
    return singleSolid(strip, "keeper strip");
}

TopoDS_Shape retainerPlate()
{
    TopoDS_Shape plate = box(gp_Pnt(0, -34, -14), gp_Pnt(8, 34, 14));
    plate = fillet(plate, 10, straightAlong(alongX(), gp_Pnt(0, -34, -14), gp_Pnt(8, 34, 14)));
    plate = cut(plate, cylinder(axis(0, 0, 0, alongX()), 7.2, 8));
    // Open downwards, so that it can be slipped over the spindle's groove.
    plate = cut(plate, box(gp_Pnt(0, -7.2, -15), gp_Pnt(8, 7.2, 0)));
    for (const double y : {-22.0, 22.0})
    {
        plate = cut(plate, cylinder(axis(0, y, 0, alongX()), 4.5, 8));
    }
    return singleSolid(plate, "retainer plate");
}

TopoDS_Shape spindleBracket()
{
    TopoDS_Shape foot = box(gp_Pnt(-30, -46, 0), gp_Pnt(30, 46, 14));
    foot = fillet(foot, 8, straightAlong(alongZ(), gp_Pnt(-30, -46, 0), gp_Pnt(30, 46, 14)));
    TopoDS_Shape body = join(foot, box(gp_Pnt(-13, -24, 0), gp_Pnt(13, 24, kSpindleHeight)));
    body = join(body, cylinder(axis(-13, 0, kSpindleHeight, alongX()), 24, 26));
    body = cut(body, box(gp_Pnt(-14, -25, -10), gp_Pnt(14, 25, 0)));
    body = fillet(body, 4, straightAlong(gp::DY(), gp_Pnt(-13, -24, 14), gp_Pnt(13, 24, 14)));
    body = cut(body, cylinder(axis(-13, 0, kSpindleHeight, alongX()), 15, 26));
    for (const double x : {-18.0, 18.0})
    {
        for (const double y : {-34.0, 34.0})
        {
            body = cut(body, cylinder(axis(x, y, 0, alongZ()), 5.5, 14));
        }
    }
    return singleSolid(body, "spindle bracket");
}

TopoDS_Shape spindleNut()
{
    TopoDS_Shape nut = revolveAboutX({{0, 10.2}, {0, 15}, {25, 15}, {26, 14}, {26, 10.2}});
    nut = join(nut, revolveAboutX({{-6, 10.2}, {-6, 19}, {-5, 20}, {0, 20}, {0, 10.2}}));
    return singleSolid(chamfer(nut, 1, circlesWithin(gp_Pnt(26, -10.2, -10.2), gp_Pnt(26, 10.2, 10.2))), "spindle nut");
}

TopoDS_Shape spindle()
{
    TopoDS_Shape body = revolveAboutX({{0, 0},
                                       {0, 7},
                                       {1, 8},
                                       {31, 8},
                                       {31, 7},
                                       {40, 7},
                                       {40, 9},
                                       {42, 10},
                                       {164, 10},
                                       {166, 8},
                                       {170, 8},
                                       {170, 14},
                                       {178, 14},
                                       {179, 13},
                                       {179, 9},
                                       {215, 9},
                                       {217, 7},
                                       {217, 0}});
    return singleSolid(cut(body, cylinder(axis(197, 0, -10, alongZ()), 6.1, 20)), "spindle");
}

TopoDS_Shape handleHub()
{
    TopoDS_Shape hub = revolveAboutX({{-18, 9}, {-18, 15}, {-17, 16}, {17, 16}, {18, 15}, {18, 9}});
    hub = cut(hub, cylinder(axis(0, 0, -17, alongZ()), 6.1, 34));
    return singleSolid(hub, "handle hub");
}

TopoDS_Shape handleBar()
{
    return singleSolid(revolveAboutZ({{-92, 0},
                                      {-92, 3},
                                      {-91, 4},
                                      {-78, 4},
                                      {-78, 5},
                                      {-77, 6},
                                      {77, 6},
                                      {78, 5},
                                      {78, 4},
                                      {91, 4},
                                      {92, 3},
                                      {92, 0}}),
                       "handle bar");
}

TopoDS_Shape handleKnob()
{
    const TopoDS_Shape neck = revolveAboutZ({{0, 0}, {0, 7}, {1, 8}, {8, 8}, {8, 0}});
    const TopoDS_Shape knob = join(neck, ball(gp_Pnt(0, 0, 15), 13));
    return singleSolid(cut(knob, cylinder(axis(0, 0, 0, alongZ()), 4, 14)), "handle knob");
}

TopoDS_Shape capScrew(double diameter, double length)
{
    const double radius = diameter / 2;
    const double headRadius = diameter * 0.8125; // 13 mm for M8
    const double edge = diameter / 10;
    TopoDS_Shape screw = revolveAboutZ({{-length, 0},
                                        {-length, radius - edge},
                                        {-length + edge, radius},
                                        {0, radius},
                                        {0, headRadius},
                                        {diameter - edge, headRadius},
                                        {diameter, headRadius - edge},
                                        {diameter, 0}});
    screw = cut(screw, hexagonAlongZ(diameter / 2, diameter + 1, diameter * 0.75));
    return singleSolid(screw, "cap screw");
}

} // namespace vise
