#include "common/scene_conventions.h"
#include "host/scene_json.h"
#include "imported.h"
#include "mp/narrow.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace
{

rapidjson::Document parsed(const std::string& json)
{
    rapidjson::Document document;
    document.Parse(json.c_str());
    EXPECT_FALSE(document.HasParseError()) << json;
    return document;
}

std::shared_ptr<vrx::ExcVisuNode> meshNode(const std::vector<vrx::ExcVisuFace::Polygon>& polygons)
{
    const auto face = std::make_shared<vrx::ExcVisuFace>();
    face->setId(WIDE("f0"));
    face->setVertices(std::vector<float>{0, 0, 0, 1, 0, 0, 0, 1, 0});
    face->setPolygons(polygons);
    auto node = std::make_shared<vrx::ExcVisuNode>();
    node->setMesh(std::make_shared<vrx::ExcVisuMesh>());
    node->mesh()->addFace(face);
    return node;
}

vrx::ExcVisualizationData sceneOf(const std::shared_ptr<vrx::ExcVisuNode>& root)
{
    vrx::ExcVisualizationData scene;
    scene.addSceneRootNode(root);
    return scene;
}

TEST(Scene, LeavesOutWhatDoesNotFitTogether)
{
    const std::int32_t triangles = scene_conventions::kTriangles;
    const auto root = meshNode({{triangles, {0, 1, 3, 0, 1, 2, 0, -1, 2, 2, 1, 0, 0, 1}},
                                {triangles, {0, 1}},
                                {triangles + 1, {0, 1, 2}},
                                {triangles, {1, 2, 0}}});
    const auto edge = std::make_shared<vrx::ExcVisuEdge>();
    edge->setPoints(std::vector<float>{0, 0, 0, 1, 0, 0});
    edge->setLineIndices(std::vector<std::int32_t>{0, 7});
    edge->setLineType(vrx::ExcVisuEdge::ELineType::LineStrip);
    root->mesh()->addEdge(edge);

    const rapidjson::Document shape = parsed(scene_json::shape(sceneOf(root)));
    EXPECT_EQ(shape["faces"][0]["triangles"].GetInt(), 3);
    // (0, 1, 2), (2, 1, 0), (1, 2, 0)
    EXPECT_STREQ(shape["triangles"].GetString(), "AAAAAAEAAAACAAAAAgAAAAEAAAAAAAAAAQAAAAIAAAAAAAAA");
    EXPECT_STREQ(shape["segments"].GetString(), "");
}

TEST(Scene, PlacesAndColoursByTheNodesAbove)
{
    const auto root = std::make_shared<vrx::ExcVisuNode>();
    root->setTransformation(std::make_shared<vrx::ExcTransformation>());
    root->transformation()->translation().set(1, 0, 0);
    const auto group = std::make_shared<vrx::ExcVisuNode>();
    group->setTransformation(std::make_shared<vrx::ExcTransformation>());
    group->transformation()->affine()[0].set(0, -1, 0); // a quarter turn around z
    group->transformation()->affine()[1].set(1, 0, 0);
    group->setAttributes(std::make_shared<vrx::ExcVisuAttributes>());
    group->attributes()->setColor(
        std::make_shared<vrx::ExcColor>(std::uint16_t{1}, std::uint16_t{2}, std::uint16_t{3}));
    group->addChildNode(meshNode({}));
    root->addChildNode(group);
    const auto hidden = meshNode({});
    hidden->setAttributes(std::make_shared<vrx::ExcVisuAttributes>());
    hidden->attributes()->setHidden(true);
    root->addChildNode(hidden);

    const rapidjson::Document shape = parsed(scene_json::shape(sceneOf(root)));
    ASSERT_EQ(shape["meshes"].Size(), 1U);
    EXPECT_EQ(shape["meshes"][0]["color"][1].GetInt(), 2);
    // (1, 0, 0), (1, 1, 0), (0, 0, 0)
    EXPECT_STREQ(shape["positions"].GetString(), "AACAPwAAAAAAAAAAAACAPwAAgD8AAAAAAAAAAAAAAAAAAAAA");
}

TEST(Scene, FillsALetterWhereItsAnnotationIsPlaced)
{
    const auto note = meshNode({{scene_conventions::kTriangles, {0, 1, 2}}});
    note->setTransformation(std::make_shared<vrx::ExcTransformation>());
    note->transformation()->translation().set(1, 0, 0);
    note->mesh()->faces().front()->setColor({std::uint16_t{1}, std::uint16_t{2}, std::uint16_t{3}});
    note->setPMI(std::make_shared<vrx::ExcVisuPMI>());

    const rapidjson::Document annotations = parsed(scene_json::annotations(sceneOf(note)));
    ASSERT_EQ(annotations.Size(), 1U);
    EXPECT_STREQ(annotations[0]["triangles"].GetString(), "AAAAAAEAAAACAAAA"); // 0, 1, 2
    // (1, 0, 0), (2, 0, 0), (1, 1, 0)
    EXPECT_STREQ(annotations[0]["positions"].GetString(), "AACAPwAAAAAAAAAAAAAAQAAAAAAAAAAAAACAPwAAgD8AAAAA");
    EXPECT_EQ(annotations[0]["color"][1].GetInt(), 2);
}

TEST(Scene, ShowsACaptureInsteadOfItsView)
{
    vrx::ExcVisualizationData scene;
    const auto capture = std::make_shared<vrx::ExcVisuCapture>();
    capture->setDisplayName(WIDE("front"));
    scene.addCapture(capture);
    for (const mp::wchar* name : {WIDE("front"), WIDE("top")})
    {
        const auto view = std::make_shared<vrx::ExcVisuView>();
        view->setDisplayName(name);
        view->setDirectionU({1, 0, 0});
        view->setDirectionV({0, 1, 0});
        scene.addView(view);
    }
    const rapidjson::Document views = parsed(scene_json::views(scene));
    ASSERT_EQ(views.Size(), 2U);
    EXPECT_STREQ(views[1]["name"].GetString(), "top");
    EXPECT_EQ(views[1]["camera"]["eye"][2].GetDouble(), 1); // before the plane
}

using Triangle = std::array<std::size_t, 3>;

// Of a face with all its triangles in one polygon.
std::vector<Triangle> trianglesOf(const vrx::ExcVisuFace& face)
{
    EXPECT_EQ(face.polygons().size(), 1U);
    EXPECT_EQ(face.polygons().at(0).type, scene_conventions::kTriangles);
    const std::vector<std::int32_t>& corners = face.polygons().at(0).indices;
    EXPECT_EQ(corners.size() % 3, 0U);
    std::vector<Triangle> triangles(corners.size() / 3);
    for (std::size_t i = 0; i < triangles.size() * 3; ++i)
    {
        triangles[i / 3][i % 3] = static_cast<std::size_t>(corners[i]);
    }
    return triangles;
}

double triangleNormalDotVertexNormal(const vrx::ExcVisuFace& face, const Triangle& triangle)
{
    std::array<std::array<double, 3>, 3> points{};
    double product = 0;
    for (std::size_t corner = 0; corner < 3; ++corner)
    {
        for (std::size_t i = 0; i < 3; ++i)
        {
            points[corner][i] = static_cast<double>(face.vertices().at(triangle[corner] * 3 + i));
        }
    }
    for (std::size_t i = 0; i < 3; ++i)
    {
        const std::size_t j = (i + 1) % 3;
        const std::size_t k = (i + 2) % 3;
        const double normal = (points[1][j] - points[0][j]) * (points[2][k] - points[0][k]) -
                              (points[1][k] - points[0][k]) * (points[2][j] - points[0][j]);
        product += normal * static_cast<double>(face.normals()[triangle[0] * 3 + i]);
    }
    return product;
}

TEST(Scene, EachPartOfTheAssemblyHasFacesThatTheModelCanPointAt)
{
    const Imported imported = importFile(BENCH_VISE);
    ASSERT_EQ(imported.result.code(), vrx::Result::ECode::Ok);
    for (const auto& block : imported.structure->blocks())
    {
        ASSERT_EQ(imported.scenes.count(block->id()), block->isPart() ? 1U : 0U) << mp::toNarrow(block->name());
        if (!block->isPart())
        {
            continue;
        }
        const vrx::ExcVisualizationData& scene = *imported.scenes.at(block->id())->visualizationData();
        EXPECT_EQ(scene.units(), imported.structure->units());
        const auto meshes = scene.sceneRootNodes().at(0)->childNodes().at(0)->childNodes().at(0);
        ASSERT_EQ(meshes->type(), vrx::ExcVisuNode::EType::MESHES);
        const vrx::ExcVisuMesh& mesh = *meshes->childNodes().at(0)->mesh();
        EXPECT_FALSE(mesh.edges().empty());
        int position = 0;
        for (const auto& face : mesh.faces())
        {
            EXPECT_EQ(mp::toNarrow(face->id()), "f" + std::to_string(position++));
            ASSERT_EQ(face->normals().size(), face->vertices().size());
            const std::vector<Triangle> triangles = trianglesOf(*face);
            int turned = 0;
            for (const Triangle& triangle : triangles)
            {
                turned += triangleNormalDotVertexNormal(*face, triangle) < -1e-6 ? 1 : 0;
            }
            EXPECT_EQ(turned, 0) << "of " << triangles.size() << " triangles of "
                                 << mp::toNarrow(block->name() + WIDE(" ") + face->id());
        }
    }
}

std::vector<double> numbersOf(const vrx::ExcVector3d& vector)
{
    return {vector[0], vector[1], vector[2]};
}

// The annotations of the note's file, all of them notes.
std::vector<std::shared_ptr<vrx::ExcVisuNode>> notes(const vrx::ExcVisualizationData& scene)
{
    return scene.sceneRootNodes().at(0)->childNodes().at(0)->childNodes().at(0)->childNodes();
}

auto inches(const std::vector<float>& numbers)
{
    std::vector<testing::Matcher<float>> near;
    near.reserve(numbers.size());
    for (const float number : numbers)
    {
        near.push_back(testing::FloatNear(number * 25.4F, 1e-4F));
    }
    return testing::ElementsAreArray(near);
}

TEST(Scene, DrawsANoteOfSeveralSetsWhereItIsMovedTo)
{
    const Imported imported = importFile(MOVED_NOTE);
    ASSERT_EQ(imported.result.code(), vrx::Result::ECode::Ok);
    ASSERT_NE(imported.root, nullptr);
    const vrx::ExcVisualizationData& scene = *imported.root->visualizationData();
    ASSERT_EQ(notes(scene).size(), 3U);
    const vrx::ExcVisuNode& node = *notes(scene)[0];
    EXPECT_EQ(node.type(), vrx::ExcVisuNode::EType::NOTE);
    ASSERT_NE(node.pmi(), nullptr);
    EXPECT_EQ(node.pmi()->displayName(), WIDE("note"));
    EXPECT_EQ(node.pmi()->id(), WIDE("a30"));
    std::vector<std::vector<float>> lines;
    for (const auto& edge : node.pmi()->edges())
    {
        lines.push_back(edge->points());
        EXPECT_TRUE(edge->color().hasRGB());
    }
    // The leader and the letter, and the full stop as two triangles.
    EXPECT_THAT(lines, testing::ElementsAre(inches({1, 2, 3, 2, 2, 3, 2, 2, 4}), inches({1, 2, 4, 1, 2, 5})));
    ASSERT_NE(node.mesh(), nullptr);
    const vrx::ExcVisuFace& face = *node.mesh()->faces().at(0);
    EXPECT_THAT(face.vertices(), inches({4, 2, 3, 5, 2, 3, 4, 2, 4, 5, 2, 4}));
    EXPECT_THAT(trianglesOf(face), testing::ElementsAre(Triangle{0, 2, 1}, Triangle{2, 3, 1}));
    EXPECT_THAT(std::vector<float>(face.normals().begin(), face.normals().begin() + 3), testing::ElementsAre(0, 1, 0));

    // The file's side of the view is y < 0, that of the note is y > 0.
    EXPECT_THAT(scene.views().at(0)->annotationIds(), testing::ElementsAre(WIDE("a30")));
    EXPECT_THAT(numbersOf(scene.views().at(0)->directionU()), testing::ElementsAre(-1, 0, 0));
    EXPECT_THAT(numbersOf(scene.views().at(0)->directionV()), testing::ElementsAre(0, 0, 1));
}

TEST(Scene, DrawsCurvesAndFillsAreasButForTheirHoles)
{
    const Imported imported = importFile(MOVED_NOTE);
    const auto all = notes(*imported.root->visualizationData());
    ASSERT_EQ(all.size(), 3U);
    for (const auto& node : all)
    {
        if (node->pmi()->id() == WIDE("a70"))
        {
            const vrx::ExcVisuFace& face = *node->mesh()->faces().at(0);
            EXPECT_EQ(face.color()[vrx::ExcColor::ChannelRed], 255);
            double area = 0;
            for (const Triangle& triangle : trianglesOf(face))
            {
                area += std::abs(triangleNormalDotVertexNormal(face, triangle)) / 2;
            }
            EXPECT_NEAR(area, (16 - 4) * 25.4 * 25.4, 1e-2);
        }
        if (node->pmi()->id() == WIDE("a74"))
        {
            const std::vector<float> points = node->pmi()->edges().at(0)->points();
            EXPECT_GT(points.size(), 60U);
            for (std::size_t i = 0; i < points.size(); i += 3)
            {
                const float middle = 2 * 25.4F;
                EXPECT_NEAR(std::hypot(points[i] - middle, points[i + 1] - middle), 3 * 25.4F, 1e-3);
                EXPECT_FLOAT_EQ(points[i + 2], 25.4F);
            }
        }
    }
}

} // namespace
