#include "iges_form.h"

#include <IGESBasic_Name.hxx>
#include <IGESBasic_SingularSubfigure.hxx>
#include <IGESBasic_SubfigureDef.hxx>
#include <IGESControl_Controller.hxx>
#include <IGESControl_Writer.hxx>
#include <IGESData_HArray1OfIGESEntity.hxx>
#include <IGESData_IGESModel.hxx>
#include <IGESGeom_TransformationMatrix.hxx>
#include <IGESGraph_Color.hxx>
#include <IGESSolid_ManifoldSolid.hxx>
#include <NCollection_DataMap.hxx>
#include <Quantity_Color.hxx>
#include <TColStd_HArray2OfReal.hxx>
#include <TColStd_HSequenceOfExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TopLoc_Location.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using Entity = Handle(IGESData_IGESEntity);

Handle(TCollection_HAsciiString) text(const char* value)
{
    return new TCollection_HAsciiString(value);
}

Handle(TCollection_HAsciiString) nameOf(const TDF_Label& label)
{
    Handle(TDataStd_Name) name;
    return label.FindAttribute(TDataStd_Name::GetID(), name)
               ? new TCollection_HAsciiString(TCollection_AsciiString(name->Get()))
               : text("");
}

Handle(IGESGeom_TransformationMatrix) matrixOf(const gp_Trsf& place)
{
    const Handle(TColStd_HArray2OfReal) values = new TColStd_HArray2OfReal(1, 3, 1, 4);
    for (int row = 1; row <= 3; ++row)
    {
        for (int column = 1; column <= 4; ++column)
        {
            values->SetValue(row, column, place.Value(row, column));
        }
    }
    Handle(IGESGeom_TransformationMatrix) matrix = new IGESGeom_TransformationMatrix;
    matrix->Init(values);
    return matrix;
}

class IgesForm
{
public:
    explicit IgesForm(const Handle(TDocStd_Document) & document)
        : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main()))
        , m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main()))
        , m_layers(XCAFDoc_DocumentTool::LayerTool(document->Main()))
        , m_writer("MM", 1) // 1: solids
    {
        TDF_LabelSequence roots;
        m_shapes->GetFreeShapes(roots);
        for (const TDF_Label& root : roots)
        {
            m_writer.AddEntity(instance(root, root));
        }
        m_writer.ComputeModel();
        setHeader(m_writer.Model()->ChangeGlobalSection());
    }

    bool write(const char* path) { return m_writer.Write(path); }

private:
    // Fixed, so that the same model gives the same file.
    static void setHeader(IGESData_GlobalSection& header)
    {
        header.SetSendName(text("bench vise"));
        header.SetFileName(text("bench_vise.igs"));
        header.SetSystemId(text("make_bench_vise"));
        header.SetReceiveName(text("bench vise"));
        header.SetDate(text("20240101.000000"));
        header.SetLastChangeDate(text("20240101.000000"));
        header.SetAuthorName(text("make_bench_vise"));
        header.SetCompanyName(text("vrx_api"));
    }

    Handle(IGESBasic_SingularSubfigure) instance(const TDF_Label& label, const TDF_Label& product)
    {
        Handle(IGESBasic_SingularSubfigure) result = new IGESBasic_SingularSubfigure;
        result->Init(subfigure(product), gp_XYZ(), false, 1);
        const TopLoc_Location place = XCAFDoc_ShapeTool::GetLocation(label);
        if (!place.IsIdentity())
        {
            result->InitTransf(matrixOf(place.Transformation()));
        }
        setName(result, label);
        setColor(result, label);
        return result;
    }

    Handle(IGESBasic_SubfigureDef) subfigure(const TDF_Label& product)
    {
        if (const auto* const known = m_subfigures.Seek(product))
        {
            return *known;
        }
        std::vector<Entity> members;
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(product, components, false);
        int depth = 0;
        for (const TDF_Label& component : components)
        {
            TDF_Label below;
            XCAFDoc_ShapeTool::GetReferredShape(component, below);
            members.push_back(instance(component, below));
            depth = std::max(depth, subfigure(below)->Depth() + 1);
        }
        if (components.IsEmpty())
        {
            members.push_back(solid(product));
        }
        const Handle(IGESData_HArray1OfIGESEntity) list =
            new IGESData_HArray1OfIGESEntity(1, static_cast<int>(members.size()));
        for (std::size_t i = 0; i < members.size(); ++i)
        {
            const int dependent = 1; // physically
            members[i]->InitStatus(0, dependent, 0, 0);
            list->SetValue(static_cast<int>(i) + 1, members[i]);
        }
        Handle(IGESBasic_SubfigureDef) result = new IGESBasic_SubfigureDef;
        result->Init(depth, nameOf(product), list);
        const int definition = 2;
        result->InitStatus(0, 0, definition, 0);
        m_subfigures.Bind(product, result);
        return result;
    }

    Entity solid(const TDF_Label& part)
    {
        const int before = m_writer.Model()->NbEntities();
        m_writer.AddShape(XCAFDoc_ShapeTool::GetShape(part));
        for (int i = before + 1; i <= m_writer.Model()->NbEntities(); ++i)
        {
            Entity entity = m_writer.Model()->Entity(i);
            if (entity->IsKind(STANDARD_TYPE(IGESSolid_ManifoldSolid)))
            {
                setName(entity, part);
                setColor(entity, part);
                entity->InitLevel({}, levelOf(part));
                return entity;
            }
        }
        throw std::runtime_error("the kernel makes no IGES solid of a part");
    }

    void setName(const Entity& entity, const TDF_Label& label)
    {
        const Handle(IGESBasic_Name) name = new IGESBasic_Name;
        name->Init(1, nameOf(label));
        entity->AddProperty(name);
        m_writer.AddEntity(name);
    }

    void setColor(const Entity& entity, const TDF_Label& label)
    {
        Quantity_Color color;
        if (!m_colors->GetColor(label, XCAFDoc_ColorGen, color))
        {
            return;
        }
        double red = 0;
        double green = 0;
        double blue = 0;
        color.Values(red, green, blue, Quantity_TOC_sRGB);
        const Handle(IGESGraph_Color) definition = new IGESGraph_Color;
        definition->Init(100 * red, 100 * green, 100 * blue, {});
        entity->InitColor(definition);
        m_writer.AddEntity(definition);
    }

    // The number of the part's layer, from 1 on.
    int levelOf(const TDF_Label& part) const
    {
        const Handle(TColStd_HSequenceOfExtendedString) names = m_layers->GetLayers(part);
        TDF_LabelSequence layers;
        m_layers->GetLayerLabels(layers);
        for (int i = 1; !names.IsNull() && !names->IsEmpty() && i <= layers.Length(); ++i)
        {
            TCollection_ExtendedString name;
            if (m_layers->GetLayer(layers(i), name) && name == names->First())
            {
                return i;
            }
        }
        return 0;
    }

    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_LayerTool) m_layers;
    IGESControl_Writer m_writer;
    NCollection_DataMap<TDF_Label, Handle(IGESBasic_SubfigureDef), TDF_LabelMapHasher> m_subfigures;
};

} // namespace

bool writeIges(const Handle(TDocStd_Document) & document, const char* path)
{
    IGESControl_Controller::Init();
    return IgesForm(document).write(path);
}
