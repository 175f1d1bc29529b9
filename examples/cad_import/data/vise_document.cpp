#include "vise_document.h"

#include "vise_parts.h"

#include <BRepGProp.hxx>
#include <BRep_Builder.hxx>
#include <GProp_GProps.hxx>
#include <Quantity_Color.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_Area.hxx>
#include <XCAFDoc_Centroid.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_GraphNode.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_MaterialTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_Volume.hxx>
#include <gp_Trsf.hxx>

namespace vise
{

namespace
{

struct Look
{
    double red;
    double green;
    double blue;
};

struct Material
{
    const char* name;
    double density; // g/cm3
};

const Look kCastingBlue{0.16, 0.30, 0.44};
const Look kGroundSteel{0.72, 0.74, 0.76};
const Look kBlackOxide{0.13, 0.13, 0.14};
const Look kBronze{0.72, 0.52, 0.22};
const Look kBrightSteel{0.82, 0.83, 0.86};
const Look kZincPlated{0.80, 0.76, 0.50};
const Look kKnobRed{0.70, 0.08, 0.08};

const Material kCastIron{"EN-GJL-250", 7.2};
const Material kToolSteel{"90MnCrV8", 7.85};
const Material kSteel{"C45", 7.85};
const Material kTinBronze{"CuSn12", 8.8};
const Material kPlastic{"PF31", 1.4};

const char* const kCastings = "castings";
const char* const kMachined = "machined parts";
const char* const kStandard = "standard parts";

gp_Trsf at(double x, double y, double z)
{
    gp_Trsf result;
    result.SetTranslation(gp_Vec(x, y, z));
    return result;
}

gp_Trsf turned(const gp_Ax1& axis, double degrees)
{
    gp_Trsf result;
    result.SetRotation(axis, degrees * 3.14159265358979323846 / 180);
    return result;
}

class Assembler
{
public:
    Assembler()
    {
        XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", m_document);
        m_shapes = XCAFDoc_DocumentTool::ShapeTool(m_document->Main());
        m_colors = XCAFDoc_DocumentTool::ColorTool(m_document->Main());
        m_layers = XCAFDoc_DocumentTool::LayerTool(m_document->Main());
        m_materials = XCAFDoc_DocumentTool::MaterialTool(m_document->Main());
    }

    const Handle(TDocStd_Document) & document() const { return m_document; }

    TDF_Label part(const char* name, const TopoDS_Shape& shape, const Look& look, const Material& material,
                   const char* layer)
    {
        const TDF_Label label = m_shapes->AddShape(shape, false);
        TDataStd_Name::Set(label, name);
        setColor(label, look);
        m_layers->SetLayer(label, layer);
        m_materials->SetMaterial(label, new TCollection_HAsciiString(material.name), new TCollection_HAsciiString(""),
                                 material.density, new TCollection_HAsciiString("density measure"),
                                 new TCollection_HAsciiString("POSITIVE_RATIO_MEASURE"));

        GProp_GProps surface;
        GProp_GProps volume;
        BRepGProp::SurfaceProperties(shape, surface);
        BRepGProp::VolumeProperties(shape, volume);
        XCAFDoc_Area::Set(label, surface.Mass());
        XCAFDoc_Volume::Set(label, volume.Mass());
        XCAFDoc_Centroid::Set(label, volume.CentreOfMass());
        return label;
    }

    TDF_Label assembly(const char* name)
    {
        TopoDS_Compound empty;
        BRep_Builder().MakeCompound(empty);
        const TDF_Label label = m_shapes->AddShape(empty, true);
        TDataStd_Name::Set(label, name);
        return label;
    }

    /// The writer drops the name of an instance that is not moved at all, so `where` is never the identity: the
    /// frames of the assemblies lie beside those of their parts.
    TDF_Label place(const TDF_Label& assembly, const TDF_Label& component, const char* name, const gp_Trsf& where)
    {
        const TDF_Label label = m_shapes->AddComponent(assembly, component, TopLoc_Location(where));
        TDataStd_Name::Set(label, name);
        return label;
    }

    void setColor(const TDF_Label& label, const Look& look)
    {
        m_colors->SetColor(label, Quantity_Color(look.red, look.green, look.blue, Quantity_TOC_sRGB), XCAFDoc_ColorGen);
    }

    /// Of an instance below another one, for this one alone.
    void setColor(const TDF_Label& upper, const TDF_Label& lower, const Look& look)
    {
        TDF_LabelSequence path;
        path.Append(upper);
        path.Append(lower);
        Handle(XCAFDoc_GraphNode) node;
        if (m_shapes->SetSHUO(path, node))
        {
            setColor(node->Label(), look);
        }
    }

    void finish() { m_shapes->UpdateAssemblies(); }

private:
    Handle(TDocStd_Document) m_document;
    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_LayerTool) m_layers;
    Handle(XCAFDoc_MaterialTool) m_materials;
};

struct Screws
{
    TDF_Label m8;
    TDF_Label m10;
};

struct PlateSet
{
    TDF_Label assembly;
    TDF_Label rightScrew; // of its two
};

PlateSet jawPlateSet(Assembler& assembler, const Screws& screws)
{
    const TDF_Label plate = assembler.part("jaw plate", jawPlate(), kGroundSteel, kToolSteel, kMachined);
    const TDF_Label set = assembler.assembly("jaw plate set");
    assembler.place(set, plate, "plate", at(0, 0, -18));
    // The head of a cap screw looks along +X out of the plate, its bearing plane is the counterbore's floor.
    const gp_Trsf lying = turned(gp::OY(), 90);
    assembler.place(set, screws.m8, "left screw", at(5, -28, 0) * lying);
    const TDF_Label right = assembler.place(set, screws.m8, "right screw", at(5, 28, 0) * lying);
    return {set, right};
}

TDF_Label fixedJawAssembly(Assembler& assembler, const Screws& screws, const PlateSet& plateSet)
{
    const TDF_Label jaw = assembler.part("fixed jaw", fixedJaw(), kCastingBlue, kCastIron, kCastings);
    const TDF_Label assembly = assembler.assembly("fixed jaw assembly");
    assembler.place(assembly, jaw, "jaw", at(22, 0, 0));
    assembler.place(assembly, plateSet.assembly, "front plate", at(22, 0, 38));
    assembler.place(assembly, screws.m10, "bed screw left", at(4, -48, 18));
    assembler.place(assembly, screws.m10, "bed screw right", at(4, 48, 18));
    return assembly;
}

TDF_Label slidingJawAssembly(Assembler& assembler, const Screws& screws, const PlateSet& plateSet)
{
    const TDF_Label jaw = assembler.part("sliding jaw", slidingJaw(), kCastingBlue, kCastIron, kCastings);
    const TDF_Label keeper = assembler.part("keeper strip", keeperStrip(), kGroundSteel, kSteel, kMachined);
    const TDF_Label retainer = assembler.part("retainer plate", retainerPlate(), kGroundSteel, kSteel, kMachined);
    const TDF_Label assembly = assembler.assembly("sliding jaw assembly");
    assembler.place(assembly, jaw, "jaw", at(-30, 0, 0));
    // One of the four screws of the two plates has been replaced.
    const TDF_Label plate =
        assembler.place(assembly, plateSet.assembly, "front plate", at(-30, 0, 38) * turned(gp::OZ(), 180));
    assembler.setColor(plate, plateSet.rightScrew, kZincPlated);
    assembler.place(assembly, keeper, "keeper", at(-30, 0, -18));
    const gp_Trsf headDown = turned(gp::OX(), 180);
    assembler.place(assembly, screws.m8, "keeper screw 1", at(-22, 0, -26) * headDown);
    assembler.place(assembly, screws.m8, "keeper screw 2", at(8, 0, -26) * headDown);
    assembler.place(assembly, retainer, "retainer", at(30, 0, 20));
    const gp_Trsf lying = turned(gp::OY(), 90);
    assembler.place(assembly, screws.m8, "retainer screw 1", at(38, -22, 20) * lying);
    assembler.place(assembly, screws.m8, "retainer screw 2", at(38, 22, 20) * lying);
    return assembly;
}

TDF_Label handleAssembly(Assembler& assembler)
{
    const TDF_Label hub = assembler.part("handle hub", handleHub(), kBlackOxide, kSteel, kMachined);
    const TDF_Label bar = assembler.part("handle bar", handleBar(), kBrightSteel, kSteel, kMachined);
    const TDF_Label knob = assembler.part("ball knob", handleKnob(), kBlackOxide, kPlastic, kStandard);
    const TDF_Label assembly = assembler.assembly("handle assembly");
    assembler.place(assembly, hub, "hub", turned(gp::OZ(), 180));
    // The bar has slid down to its lower knob. The upper knob is red: a colour of the instance, not of the part.
    assembler.place(assembly, bar, "bar", at(0, 0, -50));
    assembler.setColor(assembler.place(assembly, knob, "upper knob", at(0, 0, 28)), kKnobRed);
    assembler.place(assembly, knob, "lower knob", at(0, 0, -128) * turned(gp::OX(), 180));
    return assembly;
}

TDF_Label spindleAssembly(Assembler& assembler)
{
    const TDF_Label screw = assembler.part("spindle", spindle(), kBrightSteel, kSteel, kMachined);
    const TDF_Label assembly = assembler.assembly("spindle assembly");
    assembler.place(assembly, screw, "spindle", at(-170, 0, 0));
    assembler.place(assembly, handleAssembly(assembler), "handle", at(27, 0, 0));
    return assembly;
}

} // namespace

Handle(TDocStd_Document) document()
{
    Assembler assembler;
    const TDF_Label root = assembler.assembly("bench vise");
    const Screws screws{
        assembler.part("cap screw M8x20", capScrew(8, 20), kBlackOxide, kSteel, kStandard),
        assembler.part("cap screw M10x30", capScrew(10, 30), kBlackOxide, kSteel, kStandard),
    };
    const PlateSet plateSet = jawPlateSet(assembler, screws);
    const TDF_Label bed = assembler.part("base", base(), kCastingBlue, kCastIron, kCastings);
    const TDF_Label bracket = assembler.part("spindle bracket", spindleBracket(), kCastingBlue, kCastIron, kCastings);
    const TDF_Label nut = assembler.part("spindle nut", spindleNut(), kBronze, kTinBronze, kMachined);

    assembler.place(root, bed, "base", at(-170, 0, 0));
    assembler.place(root, fixedJawAssembly(assembler, screws, plateSet), "fixed jaw", at(-122, 0, 50));
    assembler.place(root, slidingJawAssembly(assembler, screws, plateSet), "sliding jaw", at(10, 0, 50));
    assembler.place(root, bracket, "bracket", at(130, 0, 50));
    const char* const bracketScrews[] = {"bracket screw 1", "bracket screw 2", "bracket screw 3", "bracket screw 4"};
    int next = 0;
    for (const double x : {112.0, 148.0})
    {
        for (const double y : {-34.0, 34.0})
        {
            assembler.place(root, screws.m10, bracketScrews[next++], at(x, y, 64));
        }
    }
    assembler.place(root, nut, "nut", at(143, 0, 70) * turned(gp::OZ(), 180));
    // The handle has come to rest at a slant; the spindle turns with it.
    assembler.place(root, spindleAssembly(assembler), "spindle", at(179, 0, 70) * turned(gp::OX(), 25));
    assembler.finish();
    return assembler.document();
}

} // namespace vise
