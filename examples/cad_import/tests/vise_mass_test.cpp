// The volumes and masses of the vise in the host are those of the generator's own shapes and densities.

#include "data/vise_document.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDataStd_TreeNode.hxx>
#include <XCAFDoc.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_Material.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace
{

const double kExact = 1e-9; // the kernel refines its integral until it changes by no more
const double kLimit = 2e-6; // the host's integral is not refined

struct Part
{
    double volume = 0; // mm3
    double mass = 0;   // kg
};

std::string nameOf(const TDF_Label& label)
{
    Handle(TDataStd_Name) name;
    EXPECT_TRUE(label.FindAttribute(TDataStd_Name::GetID(), name));
    return TCollection_AsciiString(name->Get()).ToCString();
}

// In g/cm3, as the generator writes it into its file.
double densityOf(const TDF_Label& label)
{
    Handle(TDataStd_TreeNode) node;
    EXPECT_TRUE(label.FindAttribute(XCAFDoc::MaterialRefGUID(), node) && node->HasFather());
    Handle(XCAFDoc_Material) material;
    EXPECT_TRUE(node->Father()->Label().FindAttribute(XCAFDoc_Material::GetID(), material));
    return material->GetDensity();
}

// The parts of the generator, and the mass of all their instances.
struct Design
{
    double add(const TDF_Label& label)
    {
        double mass = 0;
        TDF_LabelSequence components;
        if (XCAFDoc_ShapeTool::GetComponents(label, components))
        {
            for (const TDF_Label& component : components)
            {
                TDF_Label referred;
                EXPECT_TRUE(XCAFDoc_ShapeTool::GetReferredShape(component, referred));
                mass += add(referred);
            }
            return mass;
        }
        const auto [known, isNew] = parts.try_emplace(nameOf(label));
        Part& part = known->second;
        if (!isNew)
        {
            return part.mass;
        }
        GProp_GProps properties;
        BRepGProp::VolumeProperties(XCAFDoc_ShapeTool::GetShape(label), properties, kExact);
        part.volume = properties.Mass();
        part.mass = part.volume * densityOf(label) * 1e-6;
        return part.mass;
    }

    std::map<std::string, Part> parts;
};

rapidjson::Document imported()
{
    const std::string file = testing::TempDir() + "vise_mass.step";
    const std::string json = testing::TempDir() + "vise_mass.json";
    const std::string make = std::string(MAKE_BENCH_VISE) + ' ' + file;
    const std::string import = std::string(CAD_HOST) + " --quiet --json " + file + " >" + json;
    EXPECT_EQ(std::system(make.c_str()), 0);   // NOLINT(cert-env33-c): the build's own program
    EXPECT_EQ(std::system(import.c_str()), 0); // NOLINT(cert-env33-c): the same
    std::stringstream text;
    text << std::ifstream(json).rdbuf();
    rapidjson::Document document;
    document.Parse(text.str().c_str());
    EXPECT_TRUE(document.IsObject());
    return document;
}

void expectSame(double found, double expected, const std::string& what)
{
    EXPECT_NEAR(found, expected, kLimit * expected) << what;
}

TEST(Vise, hasTheVolumesAndMassesOfItsGenerator)
{
    const Handle(TDocStd_Document) document = vise::document();
    TDF_LabelSequence roots;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(roots);
    ASSERT_EQ(roots.Length(), 1);
    Design design;
    const double mass = design.add(roots.First());

    const rapidjson::Document json = imported();
    expectSame(json["mass"].GetDouble(), mass, "all");
    std::size_t parts = 0;
    for (const auto& block : json["blocks"].GetArray())
    {
        if (!block["is_part"].GetBool())
        {
            continue;
        }
        ++parts;
        const std::string name = block["name"].GetString();
        ASSERT_EQ(design.parts.count(name), 1U) << name;
        expectSame(block["mass"].GetDouble(), design.parts[name].mass, name);
        ASSERT_GT(block["stated"].Size(), 0U) << name;
        for (const auto& figure : block["stated"].GetArray())
        {
            if (std::string(figure["what"].GetString()) == "volume")
            {
                expectSame(figure["found"].GetDouble(), design.parts[name].volume, name);
            }
        }
    }
    EXPECT_EQ(parts, design.parts.size());
}

} // namespace
