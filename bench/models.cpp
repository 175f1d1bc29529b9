#include "bench/models.h"

#include "bench/noise.h"
#include "vrx_api/structure/product_structure.h"
#include "vrx_api/visualization/block_visualization.h"

#include <cmath>

namespace bench
{

namespace
{

using vrx::wstring;

constexpr double kTurn = 6.283185307179586;

std::shared_ptr<vrx::ExcBlock> makeBlock(std::uint64_t id, bool part)
{
    auto block = std::make_shared<vrx::ExcBlock>();
    block->setId(id);
    block->setName(numbered(part ? "Hex bolt M8x" : "Clamp assembly ", id));
    block->setStorageName(numbered(part ? "hex_bolt_m8_" : "clamp_assembly_", id) + WIDE(".prt"));
    block->setWorldOrientation(vrx::EWorldOrientation::UpZ);
    block->setPart(part);
    return block;
}

// Turned about the Z axis and moved.
void place(vrx::ExcTransformation& transformation, Noise& noise)
{
    const double angle = noise.next() * kTurn;
    transformation.affine()[0].set(std::cos(angle), -std::sin(angle), 0.0);
    transformation.affine()[1].set(std::sin(angle), std::cos(angle), 0.0);
    transformation.translation().set(noise.next() * 1000.0, noise.below(2000) * 0.5, noise.below(200));
}

std::shared_ptr<vrx::ExcBlockReference> makeReference(std::uint64_t blockId, std::size_t number, Noise& noise)
{
    auto reference = std::make_shared<vrx::ExcBlockReference>();
    reference->setGuid(noise.guid());
    reference->setPersistentId(numbered("", 100000 + number));
    reference->setPersistentName(numbered("Hex bolt M8x:", number));
    reference->setBlockId(blockId);
    reference->setName(numbered("Hex bolt M8x", blockId) + numbered(":", number % 50 + 1));
    vrx::ExcTransformation transformation;
    place(transformation, noise);
    reference->setTransformation(transformation);
    if (number % 5 == 0)
    {
        const auto channel = [&noise] { return static_cast<std::uint16_t>(noise.below(256)); };
        reference->setColor({channel(), channel(), channel()});
    }
    return reference;
}

// A patch that closes on itself both ways, like a torus, of this many points around and along.
constexpr std::size_t kAround = 50;
constexpr std::size_t kAlong = 100;

using Polygon = vrx::ExcVisuFace::Polygon;

std::vector<Polygon> makeTriangles()
{
    constexpr std::int32_t kTriangle = 4;
    std::vector<Polygon> triangles;
    triangles.reserve(2 * kAround * kAlong);
    const auto point = [](std::size_t around, std::size_t along) {
        return static_cast<std::int32_t>((along % kAlong) * kAround + around % kAround);
    };
    for (std::size_t along = 0; along < kAlong; ++along)
    {
        for (std::size_t around = 0; around < kAround; ++around)
        {
            const std::int32_t near = point(around, along);
            const std::int32_t far = point(around + 1, along + 1);
            triangles.push_back({kTriangle, {near, point(around + 1, along), far}});
            triangles.push_back({kTriangle, {near, far, point(around, along + 1)}});
        }
    }
    return triangles;
}

Polygon joined(const std::vector<Polygon>& triangles)
{
    Polygon polygon{triangles.front().type, {}};
    polygon.indices.reserve(3 * triangles.size());
    for (const Polygon& triangle : triangles)
    {
        polygon.indices.insert(polygon.indices.end(), triangle.indices.begin(), triangle.indices.end());
    }
    return polygon;
}

std::vector<Polygon> makePolygons(EPolygon polygon)
{
    std::vector<Polygon> triangles = makeTriangles();
    return polygon == EPolygon::Triangle ? triangles : std::vector<Polygon>{joined(triangles)};
}

std::shared_ptr<vrx::ExcVisuFace> makeFace(EPolygon polygon, std::size_t number, Noise& noise)
{
    std::vector<float> vertices;
    std::vector<float> normals;
    vertices.reserve(3 * kAround * kAlong);
    normals.reserve(3 * kAround * kAlong);
    const double centre[] = {noise.next() * 500.0, noise.next() * 500.0, noise.next() * 200.0};
    const double ring = 20.0 + 30.0 * noise.next();
    const double tube = 2.0 + 8.0 * noise.next();
    for (std::size_t along = 0; along < kAlong; ++along)
    {
        const double u = kTurn * static_cast<double>(along) / kAlong;
        for (std::size_t around = 0; around < kAround; ++around)
        {
            const double v = kTurn * static_cast<double>(around) / kAround;
            const double normal[] = {std::cos(u) * std::cos(v), std::sin(u) * std::cos(v), std::sin(v)};
            const double radius = tube + 0.01 * noise.next();
            const double spine[] = {ring * std::cos(u), ring * std::sin(u), 0.0};
            for (std::size_t axis = 0; axis < 3; ++axis)
            {
                vertices.push_back(static_cast<float>(centre[axis] + spine[axis] + radius * normal[axis]));
                normals.push_back(static_cast<float>(normal[axis] + 0.001 * noise.next()));
            }
        }
    }
    auto face = std::make_shared<vrx::ExcVisuFace>();
    face->setVertices(std::move(vertices));
    face->setNormals(std::move(normals));
    face->setPolygons(makePolygons(polygon));
    face->setColor({128, 128, 140});
    face->setId(numbered("face_", number));
    face->setMechanicalId(numbered("", number));
    return face;
}

} // namespace

std::shared_ptr<vrx::IExchangeObject> makeStructure()
{
    constexpr std::size_t kAssemblies = 400;
    constexpr std::size_t kParts = 1600;
    constexpr std::size_t kReferencesEach = 50;
    Noise noise;
    const auto structure = std::make_shared<vrx::ExcProductStructure>();
    structure->setProductName(WIDE("Assembly line"));
    structure->setUnits(vrx::ELengthUnitType::Millimeter);
    structure->setWorldOrientation(vrx::EWorldOrientation::UpZ);
    for (std::size_t part = 0; part < kParts; ++part)
    {
        structure->addBlock(makeBlock(kAssemblies + part, true));
    }
    for (std::size_t assembly = 0; assembly < kAssemblies; ++assembly)
    {
        const auto block = makeBlock(assembly, false);
        for (std::size_t i = 0; i < kReferencesEach; ++i)
        {
            const auto target = kAssemblies + noise.below(static_cast<std::uint32_t>(kParts));
            block->addBlockReference(makeReference(target, assembly * kReferencesEach + i, noise));
        }
        structure->addBlock(block);
    }
    return structure;
}

std::shared_ptr<vrx::IExchangeObject> makeScene(EPolygon polygon, std::size_t faces)
{
    Noise noise;
    const auto mesh = std::make_shared<vrx::ExcVisuMesh>();
    mesh->setGeometryType(vrx::EVisuGeometryType::Part);
    for (std::size_t i = 0; i < faces; ++i)
    {
        mesh->addFace(makeFace(polygon, i, noise));
    }
    const auto node = std::make_shared<vrx::ExcVisuNode>();
    node->setType(vrx::ExcVisuNode::EType::MESH);
    node->setLeaf(true);
    node->setMesh(mesh);
    const auto data = std::make_shared<vrx::ExcVisualizationData>();
    data->setUnits(vrx::ELengthUnitType::Millimeter);
    data->addSceneRootNode(node);
    const auto scene = std::make_shared<vrx::ExcBlockVisualization>();
    scene->setBlockId(1);
    scene->setVisualizationData(data);
    return scene;
}

std::shared_ptr<vrx::IExchangeObject> makeTiny()
{
    Noise noise;
    const auto structure = std::make_shared<vrx::ExcProductStructure>();
    structure->setProductName(WIDE("Bolt"));
    structure->addBlock(makeBlock(1, true));
    structure->addRootBlockReference(makeReference(1, 0, noise));
    return structure;
}

} // namespace bench
