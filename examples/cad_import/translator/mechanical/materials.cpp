#include "mechanical/materials.h"

#include "common/material_units.h"
#include "mechanical/mechanical_data.h"
#include "mechanical/shape_links.h"
#include "mechanical/step_unit.h"
#include "mp/narrow.h"
#include "reading/aspect_items.h"
#include "reading/cad_model.h"
#include "structure/product_blocks.h"
#include "structure/product_structure_builder.h"

#include <TopExp_Explorer.hxx>
#include <TopoDS_TShape.hxx>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace
{

using EProperty = vrx::ExcMiscMaterial::EProperty;

const mp::wchar* const kMaterialProperty = WIDE("material property");

// The letters of a name in lower case: writers spell it with spaces, underscores and apostrophes, or without.
std::string letters(const mp::wstring& name)
{
    std::string result;
    for (const char letter : mp::toNarrow(name))
    {
        const bool isUpper = letter >= 'A' && letter <= 'Z';
        if (isUpper || (letter >= 'a' && letter <= 'z'))
        {
            result += isUpper ? static_cast<char>(letter - 'A' + 'a') : letter;
        }
    }
    return result;
}

std::optional<EProperty> propertyNamed(const mp::wstring& name)
{
    static const std::map<std::string, EProperty> kNames = {
        {"density", EProperty::Density},
        {"densitymeasure", EProperty::Density},
        {"massdensity", EProperty::Density},
        {"youngsmodulus", EProperty::YoungsModulus},
        {"youngmodulus", EProperty::YoungsModulus},
        {"elasticmodulus", EProperty::YoungsModulus},
        {"modulusofelasticity", EProperty::YoungsModulus},
        {"poissonsratio", EProperty::PoissonsRatio},
        {"poissonratio", EProperty::PoissonsRatio},
        {"yieldstrength", EProperty::YieldStrength},
        {"yieldstress", EProperty::YieldStrength},
        {"tensilestrength", EProperty::TensileStrength},
        {"ultimatestrength", EProperty::TensileStrength},
        {"ultimatetensilestrength", EProperty::TensileStrength},
        {"thermalconductivity", EProperty::ThermalConductivity},
        {"heatconductivity", EProperty::ThermalConductivity},
        {"thermalexpansion", EProperty::ThermalExpansionCoefficient},
        {"thermalexpansioncoefficient", EProperty::ThermalExpansionCoefficient},
        {"coefficientofthermalexpansion", EProperty::ThermalExpansionCoefficient},
        {"specificheat", EProperty::SpecificHeat},
        {"specificheatcapacity", EProperty::SpecificHeat},
        {"heatcapacity", EProperty::SpecificHeat},
        {"shearmodulus", EProperty::ShearModulus},
        {"modulusofrigidity", EProperty::ShearModulus},
    };
    const auto found = kNames.find(letters(name));
    return found != kNames.end() ? std::optional(found->second) : std::nullopt;
}

// The kernel's own writer states g/cm3 as the product of the cube of the gram and the square of the centimetre.
void correct(vrx::ExcMiscMaterialProperty& density)
{
    vrx::ExcMiscMaterialProperty::Unit& unit = density.unit();
    if (unit.mass && unit.mass->dimension() == 3 && unit.length && unit.length->dimension() == 2)
    {
        unit.setMass(unit.mass->units(), 1).setLength(unit.length->units(), -3);
    }
}

bool isSameDensity(const vrx::ExcMiscMaterialProperty& one, const vrx::ExcMiscMaterialProperty& other)
{
    const auto length = vrx::ELengthUnitType::Unknown;
    const double first = units::density(one, length).value_or(one.value());
    const double second = units::density(other, length).value_or(other.value());
    return std::abs(first - second) <= 1e-6 * first;
}

class Reader
{
public:
    Reader(const CadModel& model, const ProductStructureBuilder& blocks)
        : m_records(*model.records)
        , m_products(model, blocks)
    {
    }

    std::vector<StatedMaterial> all()
    {
        for (const char* const type : {"PROPERTY_DEFINITION", "MATERIAL_PROPERTY"})
        {
            for (const StepRecord& definition : m_records.all(type))
            {
                const StepRecord property = definition.as(type);
                if (definition.is("MATERIAL_PROPERTY") || property.text(0) == kMaterialProperty)
                {
                    add(definition, property);
                }
            }
        }
        return m_all;
    }

private:
    void add(const StepRecord& definition, const StepRecord& property)
    {
        std::size_t* const place = placeOf(property.next(2));
        if (place == nullptr)
        {
            return;
        }
        for (const char* const type : {"PROPERTY_DEFINITION_REPRESENTATION", "MATERIAL_PROPERTY_REPRESENTATION"})
        {
            for (const StepRecord& representation : definition.users(type))
            {
                const StepRecord values = representation.next(1).as("REPRESENTATION");
                bool isNamed = false;
                for (const StepRecord& item : values.nexts(1))
                {
                    addItem(*place, item, {values.text(0), property.text(1)}, isNamed);
                }
            }
        }
    }

    // The place of the material that was begun last for a product, or for the solids that a shape aspect names; null
    // for anything else.
    std::size_t* placeOf(const StepRecord& target)
    {
        const int product = ProductBlocks::productOf(target).id();
        std::vector<int> solids = target.is("SHAPE_ASPECT") ? aspect_items::solids(target) : std::vector<int>();
        if (product == 0 || (target.is("SHAPE_ASPECT") && solids.empty()))
        {
            return nullptr;
        }
        // The shape of a product stands for the product.
        const auto [known, isNew] = m_places.insert({{product, solids}, m_all.size()});
        if (isNew)
        {
            m_all.push_back(
                {m_products.of(target), product, std::move(solids), std::make_shared<vrx::ExcMiscMaterial>()});
        }
        return &known->second;
    }

    // Another material of the same.
    vrx::ExcMiscMaterial& another(std::size_t& place)
    {
        StatedMaterial stated = m_all[place];
        stated.material = std::make_shared<vrx::ExcMiscMaterial>();
        place = m_all.size();
        m_all.push_back(std::move(stated));
        return *m_all.back().material;
    }

    // A second name begins another material, unless it stands with the first one, and so does a second density.
    void addItem(std::size_t& place, const StepRecord& item, const std::vector<mp::wstring>& otherNames, bool& isNamed)
    {
        vrx::ExcMiscMaterial& material = *m_all[place].material;
        if (item.is("DESCRIPTIVE_REPRESENTATION_ITEM"))
        {
            const bool isLabelled = letters(item.text(0)) == "materialname" || letters(item.text(0)) == "name";
            const mp::wstring name = item.text(isLabelled ? 1 : 0);
            const bool isOther = !material.name().empty() && material.name() != name;
            const bool isNoName = isOther && std::count(otherNames.begin(), otherNames.end(), name) != 0;
            if (!isNamed && !isNoName && !name.empty())
            {
                (isOther ? another(place) : material).setName(name);
                isNamed = true;
            }
            return;
        }
        const bool hasParts = item.is("REPRESENTATION_ITEM");
        std::optional<EProperty> id = propertyNamed((hasParts ? item.as("REPRESENTATION_ITEM") : item).text(0));
        for (const mp::wstring& name : otherNames)
        {
            id = id ? id : propertyNamed(name);
        }
        std::optional<vrx::ExcMiscMaterialProperty> property = propertyOf(item);
        if (!id || !property || (*id == EProperty::Density && property->value() <= 0))
        {
            return;
        }
        if (*id == EProperty::Density)
        {
            correct(*property);
        }
        const auto known = material.get(*id);
        const bool isOther = *id == EProperty::Density && known && !isSameDensity(*known, *property);
        (isOther ? another(place) : material).set(*id, std::make_shared<vrx::ExcMiscMaterialProperty>(*property));
    }

    const StepRecords& m_records;
    ProductBlocks m_products;
    std::map<std::pair<int, std::vector<int>>, std::size_t> m_places; // in the list below
    std::vector<StatedMaterial> m_all;
};

bool isEmpty(const vrx::ExcMiscMaterial& material)
{
    for (int id = static_cast<int>(EProperty::Density); id <= static_cast<int>(EProperty::ShearModulus); ++id)
    {
        if (material.get(static_cast<EProperty>(id)))
        {
            return false;
        }
    }
    return material.name().empty();
}

// Adds a material to the blocks that show its bodies.
void addToBodies(MechanicalData& data, const StatedMaterial& stated, ShapeLinks& links)
{
    std::map<std::uint64_t, std::shared_ptr<vrx::ExcMiscMaterial>> ofBlocks;
    for (const int item : stated.solids.empty() ? std::vector<int>{stated.product} : stated.solids)
    {
        const TopoDS_Shape shape = links.shapeOf(item);
        for (const ShapeLinks::Link& link : shape.IsNull() ? std::vector<ShapeLinks::Link>() : links.everywhere(shape))
        {
            if (!links.bodyNumber(link) || (stated.block != 0 && link.block != stated.block))
            {
                continue;
            }
            std::shared_ptr<vrx::ExcMiscMaterial>& material = ofBlocks[link.block];
            if (!material)
            {
                material = std::make_shared<vrx::ExcMiscMaterial>(*stated.material);
                data.misc(link.block).addMaterial(material);
            }
            material->addLinkedElement(link.entity);
        }
    }
}

bool nameAllSolids(const StatedMaterial& stated, const ProductStructureBuilder& blocks)
{
    std::set<const TopoDS_TShape*> solids;
    const TopoDS_Shape shape = stated.block != 0 ? blocks.shapeOf(stated.block) : TopoDS_Shape();
    for (TopExp_Explorer explorer(shape, TopAbs_SOLID); explorer.More(); explorer.Next())
    {
        solids.insert(explorer.Current().TShape().get());
    }
    return stated.solids.size() >= solids.size();
}

} // namespace

std::vector<StatedMaterial> statedMaterials(const CadModel& model, const ProductStructureBuilder& blocks)
{
    std::vector<StatedMaterial> all = model.records ? Reader(model, blocks).all() : std::vector<StatedMaterial>();
    all.erase(std::remove_if(all.begin(), all.end(), [](const StatedMaterial& one) { return isEmpty(*one.material); }),
              all.end());
    for (StatedMaterial& stated : all)
    {
        stated.ofAllSolids = stated.solids.empty() || nameAllSolids(stated, blocks);
    }
    return all;
}

void addMaterials(MechanicalData& data, const std::vector<StatedMaterial>& materials, ShapeLinks& links)
{
    for (const StatedMaterial& stated : materials)
    {
        if (stated.block != 0 && stated.solids.empty())
        {
            stated.material->setPartLevelMaterial(true);
            data.misc(stated.block).addMaterial(stated.material);
        }
        else
        {
            addToBodies(data, stated, links);
        }
    }
}
