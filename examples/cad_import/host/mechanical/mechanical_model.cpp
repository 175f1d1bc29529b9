#include "mechanical/mechanical_model.h"

#include "mechanical/assembly_figures.h"
#include "product_tree.h"

#include <algorithm>
#include <set>

namespace
{

// How often each part stands in the product, but for what is suppressed.
std::map<std::uint64_t, double> instancesOfParts(const vrx::ExcProductStructure& structure)
{
    std::map<std::uint64_t, double> instances;
    std::vector<double> times; // of the line being looked at and of those above it
    for (const ProductTreeNode& node : productTree(structure, ESiblings::Collapsed))
    {
        times.resize(node.depth);
        const bool counts = !node.references.front()->isSuppressed();
        const double count = counts ? static_cast<double>(node.references.size()) : 0;
        times.push_back(count * (times.empty() ? 1 : times.back()));
        if (node.block != nullptr && node.block->isPart())
        {
            instances[node.block->id()] += times.back();
        }
    }
    return instances;
}

bool hasDensity(const std::vector<PartMaterial>& materials)
{
    return std::any_of(materials.begin(), materials.end(),
                       [](const PartMaterial& material) { return material.density.has_value(); });
}

MechanicalPart makePart(const vrx::ExcBlock& block, const vrx::ExcBlockMechanicalData* data, ReceivedBodies& bodies,
                        vrx::ELengthUnitType unit)
{
    MechanicalPart part;
    const vrx::ExcMechanicalMiscData* const misc = data != nullptr ? data->miscData().get() : nullptr;
    if (misc != nullptr)
    {
        part.materials = partMaterials(*misc, block.id(), bodies, unit);
    }
    if (data != nullptr && data->entityData())
    {
        part.entities = partEntities(*data->entityData(), block.id(), bodies);
    }
    if (misc != nullptr)
    {
        part.layers = partLayers(*misc, block.id(), bodies, part.entities);
    }
    if (data != nullptr && data->manufacturingData())
    {
        part.features = partHoles(*data->manufacturingData(), block.id(), bodies);
    }
    part.bodies = bodies.of(block.id()).size();
    const bool states = statesFigures(block.miscData(), misc);
    if (states || hasDensity(part.materials))
    {
        bodies.measure(block.id());
        part.mass = massOf(bodies.of(block.id()), part.materials, unit);
    }
    if (states)
    {
        part.stated = statedFigures(block.miscData(), misc, bodies.of(block.id()));
    }
    return part;
}

std::map<std::uint64_t, std::vector<StatedFigure>> statedOfAssemblies(const vrx::ExcProductStructure& structure,
                                                                      ReceivedBodies& bodies)
{
    std::map<std::uint64_t, std::vector<StatedFigure>> stated;
    std::map<std::uint64_t, BodyFigures> figures;
    for (const std::shared_ptr<vrx::ExcBlock>& block : structure.blocks())
    {
        if (block->isPart() || !statesFigures(block->miscData()))
        {
            continue;
        }
        if (figures.empty())
        {
            for (const std::uint64_t id : bodies.blocks())
            {
                bodies.measure(id);
            }
            figures = assemblyFigures(structure, bodies);
        }
        const auto found = figures.find(block->id());
        if (found != figures.end())
        {
            stated[block->id()] = statedFigures(block->miscData(), found->second);
        }
    }
    return stated;
}

} // namespace

bool needsFigures(const vrx::ExcBlock& block, const vrx::ExcMechanicalMiscData* data, const ReceivedBodies& bodies,
                  vrx::ELengthUnitType unit)
{
    return statesFigures(block.miscData(), data) ||
           (data != nullptr && hasDensity(partMaterials(*data, block.id(), bodies, unit)));
}

MechanicalModel::MechanicalModel(const vrx::ExcProductStructure& structure, const SentMechanicalData& sent,
                                 ReceivedBodies& bodies)
{
    std::map<std::uint64_t, const vrx::ExcBlockMechanicalData*> byBlock;
    for (const auto& data : sent)
    {
        byBlock[data->blockId()] = data.get();
    }
    for (const std::shared_ptr<vrx::ExcBlock>& block : structure.blocks())
    {
        if (block->isPart())
        {
            const auto data = byBlock.find(block->id());
            parts[block->id()] =
                makePart(*block, data != byBlock.end() ? data->second : nullptr, bodies, structure.units());
        }
    }
    assemblies = statedOfAssemblies(structure, bodies);
    for (const auto& [id, count] : instancesOfParts(structure))
    {
        MechanicalPart& part = parts.at(id);
        part.instances = count;
        if (count > 0 && part.bodies > 0)
        {
            ++partsWithBodies;
            partsWithMass += part.mass ? 1U : 0U;
            knownMass += part.mass ? count * *part.mass : 0;
        }
    }
    if (partsWithBodies > 0 && partsWithMass == partsWithBodies)
    {
        mass = knownMass;
    }
}
