#include "pmi/drawn_annotations.h"

#include "pmi/annotation_type.h"
#include "pmi/item_drawer.h"
#include "pmi/item_parameters.h"
#include "pmi/step_dimensions.h"
#include "reading/cad_model.h"
#include "reading/step_axes.h"
#include "structure/product_blocks.h"

#include <StepGeom_Plane.hxx>
#include <StepRepr_RepresentationContext.hxx>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace
{

using EType = vrx::ExcVisuNode::EType;

const int kMostSteps = 6; // from a tolerance of a size of a part to the product

const char* const kCallouts[] = {
    "DRAUGHTING_CALLOUT",          "DRAUGHTING_ELEMENTS",           "LEADER_DIRECTED_CALLOUT",
    "PROJECTION_DIRECTED_CALLOUT", "STRUCTURED_DIMENSION_CALLOUT",  "DATUM_FEATURE_CALLOUT",
    "DATUM_TARGET_CALLOUT",        "GEOMETRICAL_TOLERANCE_CALLOUT", "SURFACE_CONDITION_CALLOUT"};

const char* const kOccurrences[] = {"TESSELLATED_ANNOTATION_OCCURRENCE",
                                    "ANNOTATION_OCCURRENCE",
                                    "ANNOTATION_CURVE_OCCURRENCE",
                                    "ANNOTATION_FILL_AREA_OCCURRENCE",
                                    "ANNOTATION_SYMBOL_OCCURRENCE",
                                    "DIMENSION_CURVE",
                                    "DIMENSION_CURVE_TERMINATOR",
                                    "LEADER_CURVE",
                                    "LEADER_TERMINATOR",
                                    "PROJECTION_CURVE",
                                    "TERMINATOR_SYMBOL"};

const char* const kAssociations[] = {"DRAUGHTING_MODEL_ITEM_ASSOCIATION",
                                     "DRAUGHTING_MODEL_ITEM_ASSOCIATION_WITH_PLACEHOLDER"};

template <class Types>
bool isAny(const StepRecord& record, const Types& types)
{
    return std::any_of(std::begin(types), std::end(types), [&record](const char* type) { return record.is(type); });
}

template <class Types>
bool hasUser(const StepRecord& record, const Types& types)
{
    return std::any_of(std::begin(types), std::end(types),
                       [&record](const char* type) { return !record.users(type).empty(); });
}

// What the file links as presented comes first, then what is dimensioned, toleranced or a datum.
int rank(const StepRecord& association, const StepRecord& definition)
{
    if (association.text(0) == WIDE("PMI representation to presentation link"))
    {
        return 0;
    }
    const EType group = annotationGroup(annotationType(definition));
    return group == EType::NOTES ? 3 : group == EType::DATUMS ? 2 : 1;
}

bool isProduct(const StepRecord& record)
{
    return record.is("PRODUCT_DEFINITION") || record.is("PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS");
}

// The product definition of which a dimension, a tolerance, a property or a shape aspect tells in the end. None for a
// dimension between two products.
StepRecord productOf(StepRecord record)
{
    for (int step = 0; step < kMostSteps && record && !isProduct(record); ++step)
    {
        if (annotationGroup(annotationType(record)) == EType::GEOMTOLS)
        {
            record = record.as("GEOMETRIC_TOLERANCE").next(3);
        }
        else if (step_dimensions::isDimension(record))
        {
            const std::vector<StepRecord> aspects = step_dimensions::aspects(record);
            const auto shape = [](const StepRecord& aspect) { return aspect.as("SHAPE_ASPECT").next(2); };
            record = shape(aspects.front()) == shape(aspects.back()) ? aspects.front() : StepRecord();
        }
        else
        {
            const StepRecord part = record.as("SHAPE_ASPECT");
            record = (part ? part : record.as("SHAPE_ASPECT_RELATIONSHIP")).next(2);
        }
    }
    return isProduct(record) ? record : StepRecord();
}

std::uint16_t channel(double share)
{
    return static_cast<std::uint16_t>(std::lround(std::clamp(share, 0.0, 1.0) * 255));
}

vrx::ExcColor colorOf(const StepRecord& record)
{
    static const std::map<mp::wstring, vrx::ExcColor> kNames = {
        {WIDE("red"), {255, 0, 0}},      {WIDE("green"), {0, 255, 0}},    {WIDE("blue"), {0, 0, 255}},
        {WIDE("yellow"), {255, 255, 0}}, {WIDE("cyan"), {0, 255, 255}},   {WIDE("magenta"), {255, 0, 255}},
        {WIDE("black"), {0, 0, 0}},      {WIDE("white"), {255, 255, 255}}};
    if (record.is("COLOUR_RGB"))
    {
        return {channel(record[1].number), channel(record[2].number), channel(record[3].number)};
    }
    const auto found = record.is("DRAUGHTING_PRE_DEFINED_COLOUR") ? kNames.find(record.text(0)) : kNames.end();
    return found != kNames.end() ? found->second : vrx::ExcColor();
}

// The first colour that the styles of an occurrence lead to.
vrx::ExcColor colorOfStyles(const StepRecord& assignment)
{
    for (const StepRecord& style : assignment.nexts(0))
    {
        std::vector<StepRecord> colors = {style.next(3)}; // of a curve
        for (const StepRecord& fill : style.nexts(1))     // of an area
        {
            colors.push_back(fill.next(1));
        }
        for (const StepRecord& record : colors)
        {
            vrx::ExcColor color = colorOf(record);
            if (color.hasRGB())
            {
                return color;
            }
        }
    }
    return {};
}

class Annotations
{
public:
    Annotations(const CadModel& model, const ProductBlocks& blocks)
        : m_records(*model.records)
        , m_blocks(blocks)
    {
    }

    std::vector<DrawnAnnotation> all()
    {
        for (const char* const type : kCallouts)
        {
            for (const StepRecord& callout : m_records.all(type))
            {
                add(callout);
            }
        }
        static const char* const kModels[] = {"DRAUGHTING_MODEL", "ANNOTATION_PLANE"};
        for (const char* const type : kOccurrences)
        {
            for (const StepRecord& occurrence : m_records.all(type))
            {
                if (!hasUser(occurrence, kCallouts) && hasUser(occurrence, kModels))
                {
                    add(occurrence);
                }
            }
        }
        return std::move(m_all);
    }

private:
    void add(const StepRecord& record)
    {
        if (!m_known.insert(record.id()).second)
        {
            return; // of several types
        }
        DrawnAnnotation annotation;
        annotation.record = record;
        annotation.name = record.as("REPRESENTATION_ITEM").text(0);
        const std::vector<StepRecord> parts = annotationParts(record);
        const UnitFactors units = unitsOf(parts);
        annotation.plane = planeOf(parts, units);
        addAbout(annotation, parts);

        ItemDrawer drawer(m_records, units, annotation.drawing);
        for (const StepRecord& part : parts)
        {
            if (!isAny(part, kOccurrences))
            {
                continue;
            }
            drawer.add(item_parameters::parameter(part, "STYLED_ITEM", 1).reference);
            for (const StepRecord& assignment : item_parameters::records(part, "STYLED_ITEM", 0))
            {
                annotation.color = annotation.color.hasRGB() ? annotation.color : colorOfStyles(assignment);
            }
        }
        m_all.push_back(std::move(annotation));
    }

    void addAbout(DrawnAnnotation& annotation, const std::vector<StepRecord>& parts) const
    {
        std::vector<std::pair<int, StepRecord>> definitions;
        for (const StepRecord& part : parts)
        {
            for (const char* const type : kAssociations)
            {
                for (const StepRecord& association : part.users(type))
                {
                    const StepRecord definition = association.next(2);
                    if (definition)
                    {
                        definitions.emplace_back(rank(association, definition), definition);
                    }
                }
            }
        }
        std::stable_sort(definitions.begin(), definitions.end(),
                         [](const auto& left, const auto& right) { return left.first < right.first; });
        for (const auto& [rank, definition] : definitions)
        {
            if (std::find(annotation.about.begin(), annotation.about.end(), definition) == annotation.about.end())
            {
                annotation.about.push_back(definition);
            }
            annotation.product = annotation.product ? annotation.product : productOf(definition);
        }
        annotation.block = annotation.product ? m_blocks.of(annotation.product) : m_blocks.top();
    }

    std::optional<gp_Ax3> planeOf(const std::vector<StepRecord>& parts, const UnitFactors& units) const
    {
        for (const StepRecord& part : parts)
        {
            for (const StepRecord& plane : part.users("ANNOTATION_PLANE"))
            {
                const int id = item_parameters::parameter(plane, "STYLED_ITEM", 1).reference;
                const auto surface = m_records.entity<StepGeom_Plane>(id);
                const auto axes =
                    stepAxes(surface.IsNull() ? m_records.entity<StepGeom_Axis2Placement3d>(id) : surface->Position(),
                             units.length);
                if (axes)
                {
                    return axes;
                }
            }
        }
        return std::nullopt;
    }

    // Of the draughting model that holds an annotation, or its plane; of any when none does.
    UnitFactors unitsOf(const std::vector<StepRecord>& parts) const
    {
        std::vector<StepRecord> holders;
        const auto add = [&holders](const std::vector<StepRecord>& records) {
            holders.insert(holders.end(), records.begin(), records.end());
        };
        for (const StepRecord& part : parts)
        {
            add(part.users("DRAUGHTING_MODEL"));
            for (const StepRecord& plane : part.users("ANNOTATION_PLANE"))
            {
                add(plane.users("DRAUGHTING_MODEL"));
            }
        }
        if (holders.empty())
        {
            add(m_records.all("DRAUGHTING_MODEL"));
        }
        return holders.empty() ? UnitFactors() : unitFactors(m_records, holders.front());
    }

    const StepRecords& m_records;
    const ProductBlocks& m_blocks;
    std::set<int> m_known;
    std::vector<DrawnAnnotation> m_all;
};

} // namespace

std::vector<DrawnAnnotation> drawnAnnotations(const CadModel& model, const ProductBlocks& blocks)
{
    return model.records ? Annotations(model, blocks).all() : std::vector<DrawnAnnotation>();
}

std::vector<StepRecord> annotationParts(const StepRecord& record)
{
    std::vector<StepRecord> parts = {record};
    if (isAny(record, kCallouts))
    {
        const std::vector<StepRecord> contents = item_parameters::records(record, "DRAUGHTING_CALLOUT", 0);
        parts.insert(parts.end(), contents.begin(), contents.end());
    }
    return parts;
}
