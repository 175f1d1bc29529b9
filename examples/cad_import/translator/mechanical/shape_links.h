#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_common.h"

#include <TopAbs_ShapeEnum.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_TShape.hxx>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

struct CadModel;
class BlockBodies;
class ProductStructureBuilder;

/// Names the bodies of blocks, and their faces, edges and vertices, as entities: those that the records of a STEP file
/// tell of, and any others.
class ShapeLinks
{
public:
    ShapeLinks(const CadModel& model, const ProductStructureBuilder& blocks, const BlockBodies& bodies);

    /// The faces, edges and vertices of which shape aspects tell, each once, in the order of the file. A shape aspect
    /// stands for those of its parts too, a datum for those of its features.
    std::vector<std::shared_ptr<vrx::ExcEntity>> of(const std::vector<StepRecord>& aspects, std::uint64_t block);

    /// The ids of the bodies of a block, in the order of its solids.
    const std::vector<std::uint64_t>& bodyIds(std::uint64_t block) const;

    /// An entity of a block, and what the kernel has made of it.
    struct Link
    {
        std::uint64_t block = 0;
        std::shared_ptr<vrx::ExcEntity> entity;
        const TopoDS_TShape* shape = nullptr;
        std::size_t place = 0; // its number among those of the shape in the block
    };

    /// A shape wherever blocks show it; of one that is no entity, such as a group, its parts.
    std::vector<Link> everywhere(const TopoDS_Shape& shape);

    /// The position of a body among those of its block; nothing for another entity.
    std::optional<std::size_t> bodyNumber(const Link& link) const;

    /// The same faces, as the kernel has them.
    std::vector<TopoDS_Face> faces(const std::vector<StepRecord>& aspects) const;

    /// A solid, face, edge or vertex of a block, or a shell outside of its solids, wherever it is placed and however it
    /// is turned; null when the block has none such. What is outside of solids has its id in the scene.
    std::shared_ptr<vrx::ExcEntity> entity(const TopoDS_Shape& shape, std::uint64_t block);

    /// What the kernel has made of a geometric item of a STEP file, by the id of its record; null for nothing.
    TopoDS_Shape shapeOf(int item) const;

    /// What it has made of an entity of a STEP file, which may be a product as well.
    TopoDS_Shape shapeOf(const Handle(Standard_Transient) & entity) const;

private:
    struct Place
    {
        std::uint64_t bodyId = 0; // 0 outside of bodies
        vrx::ExcSubentId part;
    };
    struct Places
    {
        std::unordered_map<const TopoDS_TShape*, Place> first;
        std::unordered_map<const TopoDS_TShape*, std::vector<Place>> others; // of what a block shows repeatedly

        void add(const TopoDS_TShape* shape, const Place& place);
    };

    const Places& placesIn(std::uint64_t block);
    void addPlaces(std::uint64_t block, Places& places) const;
    void findHolders();
    std::vector<TopoDS_Shape> shapes(const std::vector<StepRecord>& aspects) const;

    const CadModel& m_model;
    const ProductStructureBuilder& m_blocks;
    const BlockBodies& m_bodies;
    std::map<std::uint64_t, Places> m_places;                                       // by block
    std::unordered_map<const TopoDS_TShape*, std::vector<std::uint64_t>> m_holders; // the blocks that show a shape
};
