#include "pmi/annotation_scene.h"

#include "kernel/occt_text.h"
#include "looks/scene_nodes.h"
#include "looks/tessellation.h"
#include "mp/narrow.h"

#include <TCollection_AsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <XCAFDimTolObjects_DatumObject.hxx>
#include <XCAFDimTolObjects_DimensionObject.hxx>
#include <XCAFDimTolObjects_GeomToleranceObject.hxx>
#include <XCAFDoc_Datum.hxx>
#include <XCAFDoc_DimTolTool.hxx>
#include <XCAFDoc_Dimension.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_GeomTolerance.hxx>

#include <map>

namespace
{

using EType = vrx::ExcVisuNode::EType;

EType typeOf(const XCAFDimTolObjects_DimensionObject& dimension)
{
    switch (dimension.GetType())
    {
    case XCAFDimTolObjects_DimensionType_Location_Angular:
    case XCAFDimTolObjects_DimensionType_Size_Angular:
        return EType::DIMENSION_ANGLE;
    case XCAFDimTolObjects_DimensionType_Location_Oriented:
        return EType::DIMENSION_ORIENTED_LINEAR;
    case XCAFDimTolObjects_DimensionType_Size_Diameter:
    case XCAFDimTolObjects_DimensionType_Size_SphericalDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMinorDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMajorDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalHighMajorDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalLowMajorDiameter:
        return EType::DIMENSION_DIAMETER;
    case XCAFDimTolObjects_DimensionType_Size_Radius:
    case XCAFDimTolObjects_DimensionType_Size_SphericalRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMinorRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMajorRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalHighMajorRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalLowMajorRadius:
        return EType::DIMENSION_RADIUS;
    case XCAFDimTolObjects_DimensionType_Size_CurveLength:
    case XCAFDimTolObjects_DimensionType_Size_Thickness:
    case XCAFDimTolObjects_DimensionType_Size_WithPath:
        return EType::DIMENSION_LENGTH;
    case XCAFDimTolObjects_DimensionType_Location_None:
        return EType::DIMENSION_UNKNOWN;
    case XCAFDimTolObjects_DimensionType_CommonLabel:
    case XCAFDimTolObjects_DimensionType_DimensionPresentation:
        return EType::NOTE; // the file draws it without saying what it is
    default:
        return EType::DIMENSION_DISTANCE;
    }
}

EType typeOf(const XCAFDimTolObjects_GeomToleranceObject& tolerance)
{
    static const std::map<XCAFDimTolObjects_GeomToleranceType, EType> kTypes = {
        {XCAFDimTolObjects_GeomToleranceType_Angularity, EType::GEOMTOL_ANGULARITY},
        {XCAFDimTolObjects_GeomToleranceType_CircularRunout, EType::GEOMTOL_RUNOUT_CIRCULAR},
        {XCAFDimTolObjects_GeomToleranceType_CircularityOrRoundness, EType::GEOMTOL_CIRCULARITY},
        {XCAFDimTolObjects_GeomToleranceType_Coaxiality, EType::GEOMTOL_CONCENTRICITY},
        {XCAFDimTolObjects_GeomToleranceType_Concentricity, EType::GEOMTOL_CONCENTRICITY},
        {XCAFDimTolObjects_GeomToleranceType_Cylindricity, EType::GEOMTOL_CYLINDRICITY},
        {XCAFDimTolObjects_GeomToleranceType_Flatness, EType::GEOMTOL_FLATNESS},
        {XCAFDimTolObjects_GeomToleranceType_Parallelism, EType::GEOMTOL_PARALLELISM},
        {XCAFDimTolObjects_GeomToleranceType_Perpendicularity, EType::GEOMTOL_PERPENDICULARITY},
        {XCAFDimTolObjects_GeomToleranceType_Position, EType::GEOMTOL_POSITION},
        {XCAFDimTolObjects_GeomToleranceType_ProfileOfLine, EType::GEOMTOL_PROFILE_LINE},
        {XCAFDimTolObjects_GeomToleranceType_ProfileOfSurface, EType::GEOMTOL_PROFILE_SURFACE},
        {XCAFDimTolObjects_GeomToleranceType_Straightness, EType::GEOMTOL_STRAIGHTNESS},
        {XCAFDimTolObjects_GeomToleranceType_Symmetry, EType::GEOMTOL_SYMMETRY},
        {XCAFDimTolObjects_GeomToleranceType_TotalRunout, EType::GEOMTOL_RUNOUT_TOTAL},
    };
    const auto found = kTypes.find(tolerance.GetType());
    return found != kTypes.end() ? found->second : EType::GEOMTOL_UNKNOWN;
}

EType typeOf(const XCAFDimTolObjects_DatumObject& datum)
{
    return datum.IsDatumTarget() ? EType::DATUM_TARGET : EType::DATUM_SIMPLE;
}

EType groupOf(EType type)
{
    if (type >= EType::GEOMTOLS && type <= EType::GEOMTOL_UNKNOWN)
    {
        return EType::GEOMTOLS;
    }
    if (type >= EType::DIMENSIONS && type <= EType::DIMENSION_UNKNOWN)
    {
        return EType::DIMENSIONS;
    }
    return type >= EType::DATUMS && type <= EType::DATUM_UNKNOWN ? EType::DATUMS : EType::NOTES;
}

template <class Attribute>
std::optional<gp_Ax2> planeOf(const TDF_Label& label)
{
    Handle(Attribute) attribute;
    if (!label.FindAttribute(Attribute::GetID(), attribute))
    {
        return std::nullopt;
    }
    const auto object = attribute->GetObject();
    return object->HasPlane() ? std::optional<gp_Ax2>(object->GetPlane()) : std::nullopt;
}

class AnnotationScene
{
public:
    AnnotationScene(const Handle(TDocStd_Document) & document, const ProductPlaces& places)
        : m_tool(XCAFDoc_DocumentTool::DimTolTool(document->Main()))
        , m_places(places)
    {
    }

    std::shared_ptr<vrx::ExcVisuNode> build()
    {
        TDF_LabelSequence labels;
        m_tool->GetDatumLabels(labels);
        addAll<XCAFDoc_Datum>(labels);
        labels.Clear();
        m_tool->GetDimensionLabels(labels);
        addAll<XCAFDoc_Dimension>(labels);
        labels.Clear();
        m_tool->GetGeomToleranceLabels(labels);
        addAll<XCAFDoc_GeomTolerance>(labels);
        return m_root;
    }

private:
    template <class Attribute>
    void addAll(const TDF_LabelSequence& labels)
    {
        for (const TDF_Label& label : labels)
        {
            Handle(Attribute) attribute;
            if (label.FindAttribute(Attribute::GetID(), attribute))
            {
                const auto object = attribute->GetObject();
                add(label, typeOf(*object), object->GetPresentation(), occt_text::wide(object->GetPresentationName()));
            }
        }
    }

    void add(const TDF_Label& label, EType type, const TopoDS_Shape& drawing, const mp::wstring& name)
    {
        if (drawing.IsNull())
        {
            return;
        }
        const TDF_Label shape = shapeOf(label);
        if (!shape.IsNull() && !m_places.hold(shape))
        {
            return;
        }
        const auto pmi = std::make_shared<vrx::ExcVisuPMI>();
        pmi->setEdges(tessellation::polylines(drawing));
        if (pmi->edges().empty())
        {
            return;
        }
        pmi->setDisplayName(name);
        pmi->setId(annotationId(label));
        pmi->setMechanicalId(pmi->id());

        const std::shared_ptr<vrx::ExcVisuNode> node = scene_nodes::addTo(*group(groupOf(type)), type);
        node->setLeaf(true);
        node->setPMI(pmi);
        node->setTransformation(m_places.firstPlaceOf(shape));
    }

    std::shared_ptr<vrx::ExcVisuNode> group(EType type)
    {
        if (!m_root)
        {
            m_root = scene_nodes::make(EType::PMI);
        }
        std::shared_ptr<vrx::ExcVisuNode>& group = m_groups[type];
        if (!group)
        {
            group = scene_nodes::addTo(*m_root, type);
        }
        return group;
    }

    // Of what an annotation tells; null when it does not say.
    TDF_Label shapeOf(const TDF_Label& annotation) const
    {
        TDF_LabelSequence first;
        TDF_LabelSequence second;
        m_tool->GetRefShapeLabel(annotation, first, second);
        return first.IsEmpty() ? TDF_Label() : first.First();
    }

    Handle(XCAFDoc_DimTolTool) m_tool;
    const ProductPlaces& m_places;
    std::shared_ptr<vrx::ExcVisuNode> m_root;
    std::map<EType, std::shared_ptr<vrx::ExcVisuNode>> m_groups;
};

} // namespace

mp::wstring annotationId(const TDF_Label& annotation)
{
    TCollection_AsciiString entry;
    TDF_Tool::Entry(annotation, entry);
    return mp::toWide(entry.ToCString());
}

std::optional<gp_Ax2> annotationPlane(const TDF_Label& annotation)
{
    for (const auto& plane : {planeOf<XCAFDoc_Dimension>(annotation), planeOf<XCAFDoc_GeomTolerance>(annotation),
                              planeOf<XCAFDoc_Datum>(annotation)})
    {
        if (plane)
        {
            return plane;
        }
    }
    return std::nullopt;
}

std::shared_ptr<vrx::ExcVisuNode> annotationScene(const Handle(TDocStd_Document) & document,
                                                  const ProductPlaces& places)
{
    return AnnotationScene(document, places).build();
}
