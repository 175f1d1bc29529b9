#pragma once

#include "pmi/drawing.h"
#include "reading/step_measures.h"
#include "reading/step_records.h"

#include <StepGeom_Curve.hxx>
#include <gp_Ax3.hxx>
#include <gp_Trsf.hxx>

#include <optional>
#include <vector>

/// Draws items of a STEP file's representations, in millimetres: tessellated ones, curves and filled areas, and sets of
/// them. What is damaged or of another kind is left out.
class ItemDrawer
{
public:
    ItemDrawer(const StepRecords& records, const UnitFactors& units, Drawing& drawing);

    /// Adds the item with an id to the drawing.
    void add(int id) { add(id, gp_Trsf()); }

private:
    class Points;

    void add(int id, const gp_Trsf& above);
    void addAll(const StepParameter& ids, const gp_Trsf& place);
    void addMapped(const StepRecord& item, const gp_Trsf& place);
    void addLine(const std::vector<double>& indices, const Points& points);
    void addTriangles(const StepRecord& set, const gp_Trsf& place);
    void addFilled(const StepParameter& boundaries, const gp_Trsf& place);
    std::optional<gp_Ax3> axesOf(int placement) const;
    std::vector<gp_Pnt> line(const Handle(StepGeom_Curve) & curve, const gp_Trsf& place) const;

    const StepRecords& m_records;
    UnitFactors m_units;
    Drawing& m_drawing;
    std::vector<int> m_open; // the items within which the present one stands
};
