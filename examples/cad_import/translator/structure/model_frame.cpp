#include "structure/model_frame.h"

#include "reading/cad_model.h"
#include "reading/import_settings.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

namespace
{

struct Unit
{
    double meters;
    vrx::ELengthUnitType ofModel;
    vrx::EInsUnits ofDrawing;
};

const Unit kUnits[] = {
    {0.0254, vrx::ELengthUnitType::Inch, vrx::EInsUnits::Inches},
    {0.3048, vrx::ELengthUnitType::Foot, vrx::EInsUnits::Feet},
    {1609.344, vrx::ELengthUnitType::Mile, vrx::EInsUnits::Miles},
    {1e-3, vrx::ELengthUnitType::Millimeter, vrx::EInsUnits::Millimeters},
    {1e-2, vrx::ELengthUnitType::Centimeter, vrx::EInsUnits::Centimeters},
    {1, vrx::ELengthUnitType::Meter, vrx::EInsUnits::Meters},
    {1e3, vrx::ELengthUnitType::Kilometer, vrx::EInsUnits::Kilometers},
    {2.54e-8, vrx::ELengthUnitType::Microinch, vrx::EInsUnits::Microinches},
    {1e-9, vrx::ELengthUnitType::Nanometer, vrx::EInsUnits::Nanometers},
    {1e-6, vrx::ELengthUnitType::Micrometer, vrx::EInsUnits::Microns},
    {1e-1, vrx::ELengthUnitType::Decimeter, vrx::EInsUnits::Decimeters},
};

const Unit* unitOf(const Handle(TDocStd_Document) & document)
{
    double meters = 0;
    if (XCAFDoc_DocumentTool::GetLengthUnit(document, meters))
    {
        for (const Unit& unit : kUnits)
        {
            if (std::abs(meters - unit.meters) < unit.meters * 1e-9)
            {
                return &unit;
            }
        }
    }
    return nullptr;
}

const Unit* unitOf(vrx::EInsUnits units)
{
    for (const Unit& unit : kUnits)
    {
        if (unit.ofDrawing == units)
        {
            return &unit;
        }
    }
    return nullptr;
}

} // namespace

ModelFrame::ModelFrame(const CadModel& model, const ImportSettings& settings)
    : m_turned(settings.turnStep && model.step)
{
    const Unit* const own = unitOf(model.document);
    const Unit* const wanted = unitOf(settings.units);
    if (own != nullptr)
    {
        m_unit = own->ofModel;
    }
    if (wanted != nullptr && (settings.scaled || !model.namesUnit))
    {
        m_unit = wanted->ofModel;
    }
    if (wanted != nullptr && own != nullptr && settings.scaled)
    {
        m_scale = own->meters / wanted->meters;
    }
}

vrx::ExcVector3d ModelFrame::turned(const vrx::ExcVector3d& direction) const
{
    return m_turned ? vrx::ExcVector3d(direction[0], -direction[2], direction[1]) : direction;
}

vrx::ExcVector3d ModelFrame::placed(const vrx::ExcVector3d& point) const
{
    const vrx::ExcVector3d result = turned(point);
    return {result[0] * m_scale, result[1] * m_scale, result[2] * m_scale};
}

vrx::ExcTransformation ModelFrame::placed(const vrx::ExcTransformation& transformation) const
{
    vrx::ExcTransformation result;
    for (std::size_t column = 0; column < 3; ++column)
    {
        const vrx::ExcMatrix3d& affine = transformation.affine();
        const vrx::ExcVector3d axis = turned({affine[0][column], affine[1][column], affine[2][column]});
        for (std::size_t row = 0; row < 3; ++row)
        {
            result.affine()[row][column] = axis[row];
        }
    }
    result.translation() = placed(transformation.translation());
    return result;
}

vrx::ExcTransformation ModelFrame::scaled(const vrx::ExcTransformation& transformation) const
{
    vrx::ExcTransformation result = transformation;
    for (std::size_t row = 0; row < 3; ++row)
    {
        result.translation()[row] *= m_scale;
    }
    return result;
}

TopoDS_Shape ModelFrame::scaled(const TopoDS_Shape& shape) const
{
    if (shape.IsNull() || m_scale == 1)
    {
        return shape;
    }
    gp_Trsf scaling;
    scaling.SetScaleFactor(m_scale);
    return BRepBuilderAPI_Transform(shape, scaling, true).Shape();
}
