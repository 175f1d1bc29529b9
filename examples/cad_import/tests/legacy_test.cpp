#include "common/import_conventions.h"
#include "host/find_property.h"
#include "host/tree_output.h"
#include "iges_sample.h"
#include "imported.h"
#include "kernel_standin/kernel_standin.h"
#include "mp/narrow.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

// The tree of the cart with nothing hidden.
std::string cartTree(const std::string& red, const std::string& painted, const std::string& lid,
                     const std::string& wheel)
{
    const std::string part = " [part: 1 solid, 1 face]\n";
    std::string tree = "cart (cart) [assembly: 6 components]\n";
    tree += "  left ball .. right ball (ball) x2 " + red + part;
    tree += "  painted ball (ball) " + painted + part;
    tree += "  lid (lid) " + lid + part;
    tree += "  wagon (wagon) [assembly: 2 components]\n";
    tree += "    front wheel (wheel) " + wheel + part;
    tree += "    load (ball) " + red + part;
    tree += "  spare wheel (wheel) " + wheel + part;
    return tree;
}

// The nodes of the bodies in a block's scene.
std::vector<std::shared_ptr<vrx::ExcVisuNode>> bodyNodes(const vrx::ExcBlockVisualization& scene)
{
    const auto root = scene.visualizationData()->sceneRootNodes().at(0);
    return root->childNodes().at(0)->childNodes().at(0)->childNodes();
}

// The names of the blocks that have scenes. An object with bodies comes for each block.
std::vector<std::string> shownBlocks(const Imported& imported)
{
    std::vector<std::string> names;
    for (const auto& [id, scene] : imported.scenes)
    {
        names.push_back(mp::toNarrow(imported.structure->getBlockById(id)->name()));
    }
    EXPECT_EQ(imported.bodies.size(), imported.structure->blocks().size());
    return names;
}

// The shapes of a product in one block: where each ball stands along x, which says which one it is, its red, and
// whether it is hidden. The first vertex of a ball is a pole.
std::vector<std::string> shapes(const Imported& imported)
{
    std::vector<std::string> texts;
    for (const auto& node : bodyNodes(*imported.scenes.begin()->second))
    {
        const vrx::ExcVisuAttributes& look = *node->attributes();
        texts.push_back(std::to_string(std::lround(node->mesh()->faces().at(0)->vertices().at(0))) + ' ' +
                        std::to_string((*look.color())[vrx::ExcColor::ChannelRed]) +
                        (look.isHidden() ? " hidden" : ""));
    }
    return texts;
}

// How many bodies they have.
std::size_t bodyCount(const Imported& imported)
{
    OwnedEntities bodies;
    std::vector<std::uint64_t> ids;
    EXPECT_TRUE(imported.bodies.begin()->second->getGeometry(bodies.list(), ids));
    return ids.size();
}

std::string jsonOf(const Imported& imported)
{
    std::ostringstream stream;
    printJson(stream, *imported.structure);
    return stream.str();
}

// How a list of free properties begins there, unless it is empty.
const char kProperties[] = "\"properties\": [{";

Imported importCart(vrx::EHiddenPartsMode hidden,
                    vrx::EProductStructureMode structure = vrx::EProductStructureMode::AsMechanicalComponents)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setHiddenPartsMode(hidden);
    options->setProductStructureMode(structure);
    return importFile(CART, options);
}

TEST(Legacy, NamesComponentsAndTheirMaterials)
{
    const Imported imported = importFile(BENCH_VISE, vrx::Command::newLegacyImportOptions());
    ASSERT_NE(imported.names, nullptr);
    ASSERT_NE(imported.materials, nullptr);

    const std::map<OdDbHandle, mp::wstring>& names = imported.names->map();
    ASSERT_EQ(names.size(), 35U);
    // The root, its ten components, and those of the next block that has any.
    EXPECT_THAT(*names.begin(), Pair(OdDbHandle(1), WIDE("bench vise")));
    EXPECT_EQ(names.at(OdDbHandle(2)), WIDE("base"));
    EXPECT_EQ(names.at(OdDbHandle(12)), WIDE("jaw"));

    const auto& materials = imported.materials->map();
    ASSERT_EQ(materials.size(), names.size());
    EXPECT_FALSE(materials.at(OdDbHandle(1)).hasMaterial);
    EXPECT_TRUE(materials.at(OdDbHandle(2)).hasMaterial);
}

template <class Object>
std::ptrdiff_t countOf(const Imported& imported)
{
    return std::count_if(imported.objects.begin(), imported.objects.end(),
                         [](const auto& object) { return std::dynamic_pointer_cast<Object>(object) != nullptr; });
}

TEST(Legacy, BringsPmiAsTheModeSays)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    const Imported graphical = importFile(MOVED_NOTE, options);
    ASSERT_NE(graphical.root, nullptr);
    EXPECT_EQ(graphical.root->visualizationData()->views().size(), 1U);
    EXPECT_EQ(graphical.root->visualizationData()->sceneRootNodes().size(), 1U);
    EXPECT_THAT(graphical.messages, ElementsAre(mp::toWide("The file holds PMI: dimensions 0, tolerances 0, datums "
                                                           "0, datum targets 0, drawn annotations 1.")));

    options->setPmiMode(vrx::EPmiMode::Semantic);
    const Imported semantic = importFile(MOVED_NOTE, options);
    EXPECT_EQ(semantic.root, nullptr);
    EXPECT_EQ(countOf<vrx::ExcBlockMechanicalData>(semantic), 1);
    EXPECT_EQ(countOf<vrx::ExcBlockMechanicalData>(graphical), 0);
    EXPECT_EQ(semantic.messages, graphical.messages);

    options->setPmiMode(vrx::EPmiMode::None);
    const Imported none = importFile(MOVED_NOTE, options);
    EXPECT_EQ(none.root, nullptr);
    EXPECT_THAT(none.messages, IsEmpty());
    EXPECT_EQ(none.scenes.size(), 1U);

    // The setting of the format can leave it out as well.
    options->setPmiMode(vrx::EPmiMode::Graphical);
    const auto step = std::make_shared<vrx::imp::OptionsSTEP>();
    step->setVisuPMIProcessingMode(vrx::EVisuPMIProcessingMode::None);
    options->setFormatOptions(step);
    EXPECT_THAT(importFile(MOVED_NOTE, options).messages, IsEmpty());
}

TEST(Legacy, BringsBlocksWithoutPropertiesAndMaps)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setColorsMode(vrx::EColorsMode::Rgb);
    EXPECT_THAT(jsonOf(importFile(CART, options)), AllOf(HasSubstr(kProperties), HasSubstr("\"hinge\"")));

    options->setProductStructureMode(vrx::EProductStructureMode::AsBlocks);
    const Imported blocks = importFile(CART, options);
    EXPECT_THAT(jsonOf(blocks), Not(HasSubstr(kProperties)));
    const std::string components = cartTree("#ff0000", "#ffff7f", "#fa0505", "#005ac8");
    EXPECT_EQ(treeText(blocks), std::regex_replace(components, std::regex(": 1 solid, 1 face"), ""));
    EXPECT_THAT(shownBlocks(blocks), ElementsAre("ball", "lid", "wheel"));
    EXPECT_EQ(blocks.names, nullptr);
    EXPECT_EQ(blocks.materials, nullptr);

    // The colour index belongs to the colours.
    options->setColorsMode(vrx::EColorsMode::MatchingIndex);
    EXPECT_THAT(treeText(importFile(CART, options)), HasSubstr(" color 51 "));
}

TEST(Legacy, BringsOneBlockWithAllShapesInPlace)
{
    const Imported imported = importCart(vrx::EHiddenPartsMode::ImportHide, vrx::EProductStructureMode::None);
    EXPECT_EQ(treeText(imported), "cart (cart) [part]\n");
    EXPECT_THAT(shownBlocks(imported), ElementsAre("cart"));
    EXPECT_THAT(jsonOf(imported), Not(HasSubstr(kProperties)));
    EXPECT_EQ(imported.names, nullptr);
    EXPECT_EQ(bodyCount(imported), 7U);
    EXPECT_THAT(shapes(imported), ElementsAre("10 255", "20 255 hidden", "40 255", "60 250 hidden", "80 0 hidden",
                                              "90 255", "100 0 hidden"));
}

// The names of the annotations that the product's scene draws.
std::vector<std::string> annotations(const Imported& imported)
{
    std::vector<std::string> names;
    const auto root = imported.root->visualizationData()->sceneRootNodes().at(0);
    for (const auto& node : root->childNodes().at(0)->childNodes().at(0)->childNodes())
    {
        names.push_back(mp::toNarrow(node->pmi()->displayName()));
    }
    return names;
}

TEST(Legacy, SendsHiddenPartsAsTheModeSays)
{
    const Imported hide = importCart(vrx::EHiddenPartsMode::ImportHide);
    EXPECT_EQ(treeText(hide), R"(cart (cart) [assembly: 6 components]
  left ball (ball) color 1 [part: 1 solid, 1 face]
  right ball (ball) color 1 hidden [part: 1 solid, 1 face]
  painted ball (ball) color 51 [part: 1 solid, 1 face]
  lid (lid) #fa0505 hidden [part: 1 solid, 1 face]
  wagon (wagon) [assembly: 2 components]
    front wheel (wheel) #005ac8 hidden [part: 1 solid, 1 face]
    load (ball) color 1 [part: 1 solid, 1 face]
  spare wheel (wheel) #005ac8 hidden [part: 1 solid, 1 face]
)");
    EXPECT_THAT(annotations(hide), ElementsAre("ball diameter", "lid diameter"));

    const Imported show = importCart(vrx::EHiddenPartsMode::ImportShow);
    EXPECT_EQ(treeText(show), cartTree("color 1", "color 51", "#fa0505", "#005ac8"));
    EXPECT_THAT(shownBlocks(show), ElementsAre("ball", "lid", "wheel"));

    const Imported leave = importCart(vrx::EHiddenPartsMode::DoNotImport);
    EXPECT_EQ(treeText(leave), R"(cart (cart) [assembly: 3 components]
  left ball (ball) color 1 [part: 1 solid, 1 face]
  painted ball (ball) color 51 [part: 1 solid, 1 face]
  wagon (wagon) [assembly: 1 component]
    load (ball) color 1 [part: 1 solid, 1 face]
)");
    EXPECT_THAT(shownBlocks(leave), ElementsAre("ball"));
    EXPECT_THAT(annotations(leave), ElementsAre("ball diameter"));
    EXPECT_EQ(leave.structure->blocks().size(), 3U);
    EXPECT_EQ(leave.names->map().size(), 5U);
}

TEST(Legacy, SendsHiddenShapesOfOneBlockAsTheModeSays)
{
    const auto none = vrx::EProductStructureMode::None;
    EXPECT_THAT(shapes(importCart(vrx::EHiddenPartsMode::ImportShow, none)),
                ElementsAre("10 255", "20 255", "40 255", "60 250", "80 0", "90 255", "100 0"));
    const Imported leave = importCart(vrx::EHiddenPartsMode::DoNotImport, none);
    EXPECT_THAT(shapes(leave), ElementsAre("10 255", "40 255", "90 255"));
    EXPECT_EQ(bodyCount(leave), 3U);
}

// The green of the wheel: of a reference and of the scene.
std::vector<int> wheelGreens(const Imported& imported)
{
    const vrx::ExcBlockReference& reference = *imported.structure->blocks().at(0)->blockReferences().at(5);
    const vrx::ExcVisualizationData& scene = *imported.scenes.at(reference.blockId())->visualizationData();
    const vrx::ExcColor& ofScene = *scene.sceneRootNodes().at(0)->attributes()->color();
    return {reference.color()[vrx::ExcColor::ChannelGreen], ofScene[vrx::ExcColor::ChannelGreen]};
}

TEST(Legacy, SendsColorsAsTheModeSays)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setColorsMode(vrx::EColorsMode::Rgb);
    EXPECT_EQ(treeText(importFile(CART, options)), cartTree("#ff0000", "#ffff7f", "#fa0505", "#005ac8"));

    options->setColorsMode(vrx::EColorsMode::MatchingIndex);
    const Imported matching = importFile(CART, options);
    EXPECT_EQ(treeText(matching), cartTree("color 1", "color 51", "#fa0505", "#005ac8"));
    EXPECT_THAT(wheelGreens(matching), ElementsAre(90, 90));

    options->setColorsMode(vrx::EColorsMode::NearestIndex);
    const Imported nearest = importFile(CART, options);
    EXPECT_EQ(treeText(nearest), cartTree("color 1", "color 51", "color 1", "color 152"));
    EXPECT_THAT(wheelGreens(nearest), ElementsAre(82, 82));
}

std::vector<double> numbersOf(const vrx::ExcVector3d& vector)
{
    return {vector[0], vector[1], vector[2]};
}

// Of the first view its origin and directions, of the first capture the camera's places and its direction.
std::vector<std::vector<double>> viewVectors(const vrx::ExcVisualizationData& scene)
{
    const vrx::ExcVisuView& view = *scene.views().at(0);
    const vrx::ExcCamera& camera = scene.captures().at(0)->camera();
    return {numbersOf(view.origin()), numbersOf(view.directionU()), numbersOf(view.directionV()),
            numbersOf(camera.eye()),  numbersOf(camera.target()),   numbersOf(camera.up())};
}

testing::Matcher<std::vector<double>> near(const std::vector<double>& numbers, double scale = 1)
{
    std::vector<testing::Matcher<double>> all;
    all.reserve(numbers.size());
    for (const double number : numbers)
    {
        all.push_back(testing::DoubleNear(number * scale, 1e-9 + std::abs(number * scale) * 1e-6));
    }
    return testing::ElementsAreArray(all);
}

TEST(Legacy, TurnsTheWholeModelFromYToZ)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    const Imported plain = importFile(MOVED_NOTE, options);
    options->setStepRotateYZ(true);
    const Imported turn = importFile(MOVED_NOTE, options);

    const vrx::ExcTransformation& place = turn.structure->rootBlockReferences().at(0)->transformation();
    EXPECT_THAT(numbersOf(place.affine()[0]), near({1, 0, 0}));
    EXPECT_THAT(numbersOf(place.affine()[1]), near({0, 0, -1}));
    EXPECT_THAT(numbersOf(place.affine()[2]), near({0, 1, 0}));

    // The part and its annotation lie in their own coordinates as before, the product's scene is turned.
    const vrx::ExcVisualizationData& before = *plain.root->visualizationData();
    const vrx::ExcVisualizationData& after = *turn.root->visualizationData();
    EXPECT_EQ(before.sceneRootNodes().at(0)->transformation(), nullptr);
    ASSERT_NE(after.sceneRootNodes().at(0)->transformation(), nullptr);
    EXPECT_THAT(numbersOf(after.sceneRootNodes().at(0)->transformation()->affine()[1]), near({0, 0, -1}));
    const auto turned = viewVectors(after);
    for (std::size_t i = 0; i < turned.size(); ++i)
    {
        const std::vector<double> vector = viewVectors(before).at(i);
        EXPECT_THAT(turned[i], near({vector[0], -vector[2], vector[1]})) << i;
    }
    // The plane y = 2 inches is now z = 2 inches.
    const auto& plane = after.captures().at(0)->clippingPlane().coefficients();
    EXPECT_NEAR(std::abs(plane[2]), 1, 1e-9);
    EXPECT_THAT(std::vector<double>(plane.begin(), plane.end()), near({0, 0, 1, -50.8}, plane[2]));

    // Nothing below the top is turned.
    const Imported cart = importFile(CART, options);
    const vrx::ExcTransformation& ball = cart.structure->blocks().at(0)->blockReferences().at(0)->transformation();
    EXPECT_THAT(numbersOf(ball.translation()), near({10, 1, 2}));
    EXPECT_THAT(numbersOf(ball.affine()[1]), near({0, 1, 0}));
}

// The number of a property; a file has it as text.
double number(const vrx::ExcMiscData& data, const mp::wchar* name)
{
    const vrx::ExcMiscProperty* const property = findProperty(data, name);
    EXPECT_NE(property, nullptr) << mp::toNarrow(name);
    return property != nullptr ? std::stod(mp::toNarrow(property->value())) : 0;
}

TEST(Legacy, ScalesToTheUnitOfTheDrawing)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    const Imported plain = importFile(BENCH_VISE, options);
    options->setInsUnitsDefSource(vrx::EInsUnits::Kilometers);
    options->setInsUnitsScaling(true);
    const Imported scaled = importFile(BENCH_VISE, options);
    EXPECT_EQ(scaled.structure->units(), vrx::ELengthUnitType::Kilometer);

    const auto& before = plain.structure->blocks().at(0)->blockReferences();
    const auto& after = scaled.structure->blocks().at(0)->blockReferences();
    for (std::size_t i = 0; i < before.size(); ++i)
    {
        EXPECT_THAT(numbersOf(after.at(i)->transformation().translation()),
                    near(numbersOf(before.at(i)->transformation().translation()), 1e-6));
        EXPECT_THAT(numbersOf(after.at(i)->transformation().affine()[0]),
                    near(numbersOf(before.at(i)->transformation().affine()[0])));
    }
    const vrx::ExcBlock& base = *plain.structure->blocks().at(1);
    const vrx::ExcMiscData& measures = scaled.structure->blocks().at(1)->miscData();
    EXPECT_NEAR(number(measures, WIDE("volume measure")) * 1e18, number(base.miscData(), WIDE("volume measure")), 1);
    EXPECT_NEAR(number(measures, WIDE("surface area measure")) * 1e12,
                number(base.miscData(), WIDE("surface area measure")), 1);

    EXPECT_EQ(scaled.scenes.at(base.id())->visualizationData()->units(), vrx::ELengthUnitType::Kilometer);
    const vrx::ExcVisuMesh& mesh = *bodyNodes(*plain.scenes.at(base.id())).at(0)->mesh();
    const vrx::ExcVisuMesh& small = *bodyNodes(*scaled.scenes.at(base.id())).at(0)->mesh();
    ASSERT_EQ(small.faces().size(), mesh.faces().size());
    EXPECT_FLOAT_EQ(small.faces().at(0)->vertices().at(0), mesh.faces().at(0)->vertices().at(0) * 1e-6F);
    EXPECT_FLOAT_EQ(small.edges().at(0)->points().at(0), mesh.edges().at(0)->points().at(0) * 1e-6F);
    EXPECT_EQ(small.faces().at(0)->normals(), mesh.faces().at(0)->normals());
}

TEST(Legacy, ScalesAnnotationsAndViews)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    const Imported plain = importFile(MOVED_NOTE, options);
    options->setInsUnitsDefSource(vrx::EInsUnits::Inches);
    options->setInsUnitsScaling(true);
    const Imported inches = importFile(MOVED_NOTE, options);
    const vrx::ExcVisualizationData& scene = *inches.root->visualizationData();
    const auto note = scene.sceneRootNodes().at(0)->childNodes().at(0)->childNodes().at(0)->childNodes().at(0);
    const std::vector<float>& leader = note->pmi()->edges().at(0)->points();
    EXPECT_THAT(std::vector<double>(leader.begin(), leader.begin() + 3), near({1, 2, 3}));
    const auto before = viewVectors(*plain.root->visualizationData());
    const auto after = viewVectors(scene);
    EXPECT_THAT(after[0], near(before[0], 1 / 25.4));
    EXPECT_THAT(after[3], near(before[3], 1 / 25.4));
    EXPECT_NEAR(std::abs(scene.captures().at(0)->clippingPlane().coefficient(vrx::ExcClippingPlane::CoefficientD)), 2,
                1e-9);
    const std::vector<float>& wire = bodyNodes(*inches.scenes.begin()->second).at(0)->wire()->edges().at(0)->points();
    EXPECT_THAT(std::vector<double>(wire.end() - 3, wire.end()), near({5, 0, 0}));
}

TEST(Legacy, TakesTheUnitForAFileThatNamesNone)
{
    std::stringstream text;
    text << std::ifstream(CART).rdbuf();
    const std::string file = testing::TempDir() + "no_unit.step";
    const std::regex context("=\\( GEOMETRIC_REPRESENTATION_CONTEXT.*");
    std::ofstream(file) << std::regex_replace(text.str(), context, "=GEOMETRIC_REPRESENTATION_CONTEXT('','',3);");

    const auto options = vrx::Command::newLegacyImportOptions();
    options->setInsUnitsDefSource(vrx::EInsUnits::Feet);
    const Imported unknown = importFile(file, options);
    std::filesystem::remove(file);
    EXPECT_EQ(unknown.structure->units(), vrx::ELengthUnitType::Foot);
    const Imported known = importFile(CART, options);
    EXPECT_EQ(known.structure->units(), vrx::ELengthUnitType::Millimeter);
    for (const Imported* imported : {&unknown, &known})
    {
        const auto& components = imported->structure->blocks().at(0)->blockReferences();
        EXPECT_THAT(numbersOf(components.at(0)->transformation().translation()), near({10, 1, 2}));
    }
}

TEST(Legacy, LooksForFilesInTheSearchFolder)
{
    const auto folder = std::filesystem::path(TWO_FILES).parent_path();
    const std::string missing = (folder / "missing" / "cart.step").string();
    EXPECT_EQ(importFile(missing, vrx::Command::newLegacyImportOptions()).result.code(), vrx::Result::ECode::Error);
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setAlternateSearchPath(import_conventions::kFiles, mp::toWide(folder.string()));
    EXPECT_EQ(importFile(missing, options).result.code(), vrx::Result::ECode::Ok);

    // The file of the balls is in the folder "elsewhere" beside that of the cart.
    const Imported incomplete = importFile(TWO_FILES, options);
    EXPECT_THAT(treeText(incomplete), HasSubstr("(ball) x2 [part: 0 faces]"));
    EXPECT_EQ(incomplete.result.code(), vrx::Result::ECode::Warning);
    EXPECT_EQ(incomplete.result.message(), WIDE("Files to which the file refers could not be read: ball.step. The ")
                                               WIDE("model may be incomplete."));
    options->setAlternateSearchPath(import_conventions::kFiles, mp::toWide((folder / "elsewhere").string()));
    const Imported complete = importFile(TWO_FILES, options);
    EXPECT_THAT(treeText(complete), HasSubstr("(ball) x2 [part: 1 solid, 1 face]"));
    EXPECT_EQ(complete.result.code(), vrx::Result::ECode::Ok);
}

TEST(Legacy, ChangesAnIgesFileButForItsAxes)
{
    const std::string file = testing::TempDir() + "legacy.igs";
    writeIgesSample(file);
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setStepRotateYZ(true);
    options->setInsUnitsDefSource(vrx::EInsUnits::Inches);
    options->setInsUnitsScaling(true);
    options->setHiddenPartsMode(vrx::EHiddenPartsMode::DoNotImport);
    const Imported visible = importFile(file, options);
    options->setProductStructureMode(vrx::EProductStructureMode::None);
    const Imported none = importFile(file, options);
    std::filesystem::remove(file);

    EXPECT_EQ(treeText(visible), R"(legacy (legacy) [assembly: 4 components]
  box (box) color 1 [part: 1 solid, 6 faces]
  pair (pair) [assembly: 1 component]
    left (left) [part: 1 solid, 6 faces]
  cube (cube) [part: 1 solid, 6 faces]
  legacy (legacy) [part: 0 faces]
)");
    EXPECT_EQ(visible.structure->units(), vrx::ELengthUnitType::Inch);
    const vrx::ExcBlockReference& root = *visible.structure->rootBlockReferences().at(0);
    EXPECT_THAT(numbersOf(root.transformation().affine()[1]), near({0, 1, 0}));
    const auto& components = visible.structure->getBlockById(root.blockId())->blockReferences();
    EXPECT_THAT(numbersOf(components.at(2)->transformation().translation()), near({0, 2, 0}));

    EXPECT_EQ(treeText(none), "legacy (legacy) [part]\n");
    EXPECT_EQ(bodyCount(none), 3U);
}

TEST(Legacy, LogsTheKernelsDebugLines)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    EXPECT_THAT(importFile(CART, options).logs, IsEmpty());
    options->setPrintDebugLog(true);
    const Imported imported = importFile(CART, options);
    EXPECT_TRUE(std::any_of(imported.logs.begin(), imported.logs.end(),
                            [](const mp::wstring& line) { return line.find(WIDE("STEP File")) != mp::wstring::npos; }));
}

} // namespace
