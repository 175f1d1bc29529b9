#pragma once

#include "mechanical/part_holes.h"
#include "mechanical/part_layers.h"
#include "mechanical/part_materials.h"
#include "mechanical/stated_figures.h"
#include "received_bodies.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

/// What is known of a part beside its shape, its PMI and its look.
struct MechanicalPart
{
    std::size_t bodies = 0;     // how many it has
    double instances = 0;       // how often it stands in the product, but for what is suppressed
    std::optional<double> mass; // kilograms; nothing when it is not known
    std::vector<PartMaterial> materials;
    std::vector<PartLayer> layers;
    std::vector<PartEntity> entities;
    PartHoles features;
    std::vector<StatedFigure> stated;
};

/// The mechanical data that a translator sends, by block.
using SentMechanicalData = std::vector<std::shared_ptr<const vrx::ExcBlockMechanicalData>>;

/// Whether the bodies of a part are to be measured: it states figures, or has a density. The data is null as long as
/// it has not come.
bool needsFigures(const vrx::ExcBlock& block, const vrx::ExcMechanicalMiscData* data, const ReceivedBodies& bodies,
                  vrx::ELengthUnitType unit);

/// The mechanical data of a product, by the rules of `mechanical_conventions`. What does not fit together is left out.
struct MechanicalModel
{
    MechanicalModel() = default;

    /// Measures the bodies of the parts that have a density or stated figures, or of all when an assembly has stated
    /// figures. Throws ModelFailure.
    MechanicalModel(const vrx::ExcProductStructure& structure, const SentMechanicalData& sent, ReceivedBodies& bodies);

    std::map<std::uint64_t, MechanicalPart> parts;                 // all of the structure, by block
    std::map<std::uint64_t, std::vector<StatedFigure>> assemblies; // what is stated of them, by block
    std::optional<double> mass; // of the product; nothing when that of a part with bodies is not known

    // What is known of the mass where not all is: of how many parts of the product that have bodies, and how much.
    std::size_t partsWithMass = 0;
    std::size_t partsWithBodies = 0;
    double knownMass = 0;
};
