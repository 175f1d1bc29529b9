#pragma once

#include "common/body_figures.h"
#include "restored_bodies.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

/// What an entity names: a face, an edge or a vertex of a body, or a whole body.
struct BodyLink
{
    bool resolved = false;    // false: no part of a body that came, and only the id below is known
    mp::wstring mechanicalId; // as in the scene
    vrx::ExcSubentId::EType type = vrx::ExcSubentId::EType::Null;
    std::uint64_t block = 0; // the block of the body
    std::size_t body = 0;    // the position of the body in it
    std::uint64_t index = 0; // of the part in the body
};

using Entities = std::vector<std::shared_ptr<vrx::ExcEntity>>;

/// The bodies that a translator sends, restored once, and what their ids mean. The blocks may come in any order.
class ReceivedBodies
{
public:
    /// Measures a restored body; throws ModelFailure for one that is not what it should be.
    using Measurer = BodyFigures (*)(ENTITY& body, EBox box);

    struct Body
    {
        std::uint64_t id = 0;
        std::map<vrx::ExcSubentId::EType, std::uint64_t> counts; // of its parts
        BodyFigures figures;
    };

    /// Without a measurer all figures are 0.
    explicit ReceivedBodies(Measurer measurer = nullptr)
        : m_measurer(measurer)
    {
    }

    /// Throws ModelFailure when the bodies can't be restored.
    void add(const vrx::ExcBlockGeometry& geometry);

    /// Fills in the figures of the bodies of a block, the first time that it is asked to. Throws ModelFailure.
    void measure(std::uint64_t block, EBox box = EBox::Without);

    /// The bodies of a block in their order; none for a block of which none came.
    const std::vector<Body>& of(std::uint64_t block) const;

    /// The ids of all blocks that have bodies.
    std::vector<std::uint64_t> blocks() const;

    BodyLink link(const vrx::ExcEntity& entity) const;
    std::vector<BodyLink> links(const Entities& entities) const;

private:
    struct Block
    {
        std::vector<Body> bodies;
        std::shared_ptr<const RestoredBodies> restored; // until they are measured
    };

    struct Place
    {
        std::uint64_t block = 0;
        std::size_t position = 0;
    };

    Measurer m_measurer;
    std::map<std::uint64_t, Block> m_blocks;
    std::map<std::uint64_t, Place> m_places; // by the ids of bodies
};
