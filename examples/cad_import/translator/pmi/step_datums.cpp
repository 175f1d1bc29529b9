#include "pmi/step_datums.h"

#include "mp/narrow.h"
#include "pmi/step_dimensions.h"
#include "pmi/step_quantity.h"
#include "reading/step_axes.h"
#include "reading/step_measures.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace
{

using Target = vrx::ExcPMIDatumTarget;

// What describes a target: its placement in millimetres, and its sizes.
struct Shape
{
    std::optional<gp_Ax3> axes;
    std::map<std::string, StepQuantity> sizes;
};

Shape shapeOf(const StepRecord& target, const StepRecords& records)
{
    Shape shape;
    for (const StepRecord& property : target.users("PROPERTY_DEFINITION"))
    {
        for (const StepRecord& definition : property.users("SHAPE_DEFINITION_REPRESENTATION"))
        {
            const StepRecord representation = definition.next(1);
            const double unit = unitFactors(records, representation).length;
            for (const StepParameter& item : representation[1].list)
            {
                const StepQuantity quantity = quantityOf(records.find(item.reference));
                if (!quantity.name.empty())
                {
                    shape.sizes[mp::toNarrow(quantity.name)] = quantity;
                }
                const auto placement = records.entity<StepGeom_Axis2Placement3d>(item.reference);
                if (!placement.IsNull())
                {
                    shape.axes = stepAxes(placement, unit);
                }
            }
        }
    }
    return shape;
}

double millimetres(const StepQuantity& size)
{
    return size.in(StepQuantity::EUnit::Mm).value;
}

mp::wstring sizeText(const StepQuantity& size)
{
    return size ? numberText(size.value, size.decimals) : WIDE("?");
}

void setZone(Target& target, const Shape& shape, const ModelFrame& frame)
{
    if (!shape.axes)
    {
        return;
    }
    const auto corner = [&](double x, double y) {
        const gp_XYZ point =
            shape.axes->Location().XYZ() + shape.axes->XDirection().XYZ() * x + shape.axes->YDirection().XYZ() * y;
        return vrx::ExcVector3d(point.X() * frame.scale(), point.Y() * frame.scale(), point.Z() * frame.scale());
    };
    const auto size = [&shape](const char* name) {
        const auto found = shape.sizes.find(name);
        return found != shape.sizes.end() ? found->second : StepQuantity();
    };
    const StepQuantity length = size("target length");
    const StepQuantity width = size("target width");
    const StepQuantity diameter = size("target diameter");
    const double right = millimetres(length) / 2;
    const double top = millimetres(width) / 2;
    switch (target.targetType())
    {
    case Target::EType::Line:
        target.setZonePoint1(corner(0, 0));
        target.setZonePoint2(corner(millimetres(length), 0));
        target.setUpperText(sizeText(length));
        break;
    case Target::EType::AreaCircular:
        target.setZonePoint1(corner(0, 0));
        target.setZonePoint2(corner(millimetres(diameter) / 2, 0));
        target.setHasDiameter(true);
        target.setUpperText(sizeText(diameter));
        break;
    case Target::EType::AreaRectangular:
        target.setZonePoint1(corner(-right, -top));
        target.setZonePoint2(corner(right, top));
        target.setUpperText(sizeText(length) + WIDE("\u00D7") + sizeText(width));
        break;
    default:
        target.setZonePoint1(corner(0, 0));
        target.setZonePoint2(corner(0, 0));
        break;
    }
}

const std::pair<const char*, Target::EType> kTargetTypes[] = {
    {"point", Target::EType::Point},         {"line", Target::EType::Line},
    {"circle", Target::EType::AreaCircular}, {"rectangle", Target::EType::AreaRectangular},
    {"area", Target::EType::AreaFace},       {"circular curve", Target::EType::UserDefined},
};

// Of the relationships to its datum: (name, description, feature or target, datum).
StepRecord datumOf(const StepRecord& target)
{
    for (const StepRecord& relationship : target.users("SHAPE_ASPECT_RELATIONSHIP"))
    {
        const StepRecord datum = relationship.as("SHAPE_ASPECT_RELATIONSHIP").next(3);
        if (datum.is("DATUM"))
        {
            return datum;
        }
    }
    return {};
}

} // namespace

namespace step_datums
{

std::vector<StepRecord> datums(const StepRecords& records)
{
    return records.all("DATUM");
}

std::vector<StepRecord> targets(const StepRecords& records)
{
    std::vector<StepRecord> targets = records.all("PLACED_DATUM_TARGET_FEATURE");
    for (const StepRecord& target : records.all("DATUM_TARGET"))
    {
        if (!target.is("PLACED_DATUM_TARGET_FEATURE"))
        {
            targets.push_back(target);
        }
    }
    return targets;
}

std::vector<StepRecord> features(const StepRecord& datum)
{
    std::vector<StepRecord> features;
    for (const StepRecord& relationship : datum.users("SHAPE_ASPECT_RELATIONSHIP"))
    {
        const StepRecord feature = relationship.as("SHAPE_ASPECT_RELATIONSHIP").next(2);
        if (feature && !(feature == datum) && !step_dimensions::isDimension(relationship))
        {
            features.push_back(feature);
        }
    }
    return features;
}

mp::wstring labelOf(const StepRecord& datum)
{
    return datum.is("SHAPE_ASPECT") ? datum.as("DATUM").text(0) : datum.text(4);
}

std::shared_ptr<vrx::ExcPMIDatumTarget> makeTarget(const StepRecord& record, const StepRecords& records,
                                                   const ModelFrame& frame)
{
    auto target = std::make_shared<Target>();
    const bool isComplex = record.is("SHAPE_ASPECT");
    const mp::wstring number = isComplex ? record.as("DATUM_TARGET").text(0) : record.text(4);
    const StepRecord datum = datumOf(record);
    target->setLabel((datum ? labelOf(datum) : WIDE("?")) + number);
    const std::string kind = mp::toNarrow(record.as("SHAPE_ASPECT").text(1));
    for (const auto& [name, type] : kTargetTypes)
    {
        if (kind == name)
        {
            target->setTargetType(type);
        }
    }
    setZone(*target, shapeOf(record, records), frame);
    return target;
}

} // namespace step_datums
