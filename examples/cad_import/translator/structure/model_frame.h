#pragma once

#include "vrx_api/vrx_api_exchange_structure.h"

#include <TopoDS_Shape.hxx>

struct CadModel;
struct ImportSettings;

/// In which unit and which way up the whole model is sent. The kernel reads all files into millimetres, and works worse
/// the smaller its numbers are; so what it has made is scaled.
class ModelFrame
{
public:
    ModelFrame(const CadModel& model, const ImportSettings& settings);

    vrx::ELengthUnitType unit() const { return m_unit; }

    bool isTurned() const { return m_turned; }

    /// By what each length of the document is multiplied.
    double scale() const { return m_scale; }

    vrx::ExcVector3d placed(const vrx::ExcVector3d& point) const;
    vrx::ExcVector3d turned(const vrx::ExcVector3d& direction) const;

    /// The same for what stands in the product as a whole.
    vrx::ExcTransformation placed(const vrx::ExcTransformation& transformation) const;

    /// The same for what stands in a block.
    vrx::ExcTransformation scaled(const vrx::ExcTransformation& transformation) const;

    TopoDS_Shape scaled(const TopoDS_Shape& shape) const;

private:
    vrx::ELengthUnitType m_unit = vrx::ELengthUnitType::Unknown;
    double m_scale = 1;
    bool m_turned = false; // Y to Z
};
