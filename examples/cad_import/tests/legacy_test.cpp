#include "acis_kernel/acis_kernel.h"
#include "common/import_conventions.h"
#include "common/property_names.h"
#include "host/product_tree.h"
#include "imported.h"
#include "mp/narrow.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::shared_ptr<vrx::LegacyImportOptions> defaults()
{
    return vrx::Command::newLegacyImportOptions();
}

// The names in the product tree, each behind a space for each level.
std::vector<std::string> treeOf(const vrx::ExcProductStructure& structure)
{
    std::vector<std::string> lines;
    for (const ProductTreeNode& node : productTree(structure, ESiblings::Separate))
    {
        const vrx::ExcBlockReference& reference = *node.references.front();
        lines.push_back(std::string(node.depth, ' ') + mp::toNarrow(reference.name()) +
                        (reference.isHidden() ? ", hidden" : ""));
    }
    return lines;
}

// The nodes of the bodies in a block's scene.
std::vector<std::shared_ptr<vrx::ExcVisuNode>> bodyNodes(const vrx::ExcBlockVisualization& scene)
{
    const auto root = scene.visualizationData()->sceneRootNodes().at(0);
    return root->childNodes().at(0)->childNodes().at(0)->childNodes();
}

bool isHidden(const vrx::ExcVisuNode& node)
{
    return node.attributes() && node.attributes()->isHidden();
}

// The names of the blocks that have bodies, and of those that have scenes, are the same.
std::vector<std::string> shownBlocks(const Imported& imported)
{
    std::vector<std::string> names;
    for (const auto& block : imported.structure->blocks())
    {
        const bool shown = imported.scenes.count(block->id()) > 0;
        EXPECT_EQ(shown, block->isPart());
        if (shown)
        {
            names.push_back(mp::toNarrow(block->name()));
        }
    }
    EXPECT_EQ(imported.scenes.size(), names.size());
    EXPECT_EQ(imported.bodies.size(), imported.structure->blocks().size());
    return names;
}

Imported importCart(vrx::EHiddenPartsMode hidden,
                    vrx::EProductStructureMode structure = vrx::EProductStructureMode::AsMechanicalComponents)
{
    const auto options = defaults();
    options->setHiddenPartsMode(hidden);
    options->setProductStructureMode(structure);
    return importFile(CART, options);
}

TEST(Legacy, NamesComponentsAndTheirMaterials)
{
    const Imported imported = importFile(BENCH_VISE, defaults());
    ASSERT_EQ(imported.result.code(), vrx::Result::ECode::Ok);
    ASSERT_NE(imported.names, nullptr);
    ASSERT_NE(imported.materials, nullptr);

    const std::map<OdDbHandle, mp::wstring>& names = imported.names->map();
    std::size_t references = imported.structure->rootBlockReferences().size();
    for (const auto& block : imported.structure->blocks())
    {
        references += block->blockReferences().size();
    }
    ASSERT_EQ(names.size(), references);
    // The root, its ten components, and those of the next block that has any.
    EXPECT_THAT(*names.begin(), Pair(OdDbHandle(1), WIDE("bench vise")));
    EXPECT_EQ(names.at(OdDbHandle(2)), WIDE("base"));
    EXPECT_EQ(names.at(OdDbHandle(3)), WIDE("fixed jaw"));
    EXPECT_EQ(names.at(OdDbHandle(12)), WIDE("jaw"));

    const auto& materials = imported.materials->map();
    ASSERT_EQ(materials.size(), references);
    EXPECT_FALSE(materials.at(OdDbHandle(1)).hasMaterial);
    const vrx::LegacyMaterialMap::Material& base = materials.at(OdDbHandle(2));
    EXPECT_TRUE(base.hasMaterial);
    EXPECT_EQ(base.name, WIDE("EN-GJL-250"));
    EXPECT_DOUBLE_EQ(base.density, 7.2);
    EXPECT_EQ(base.thermalConductivity, 0);
}

TEST(Legacy, BringsPmiAsTheModeSays)
{
    const auto options = defaults();
    const Imported graphical = importFile(MOVED_NOTE, options);
    ASSERT_NE(graphical.root, nullptr);
    EXPECT_EQ(graphical.root->visualizationData()->views().size(), 1U);
    EXPECT_EQ(graphical.root->visualizationData()->sceneRootNodes().size(), 1U);
    EXPECT_THAT(graphical.messages, ElementsAre(mp::toWide("The file holds PMI: dimensions 1, tolerances 0, datum "
                                                           "uses 0, saved views 1.")));

    options->setPmiMode(vrx::EPmiMode::Semantic);
    const Imported semantic = importFile(MOVED_NOTE, options);
    EXPECT_EQ(semantic.root, nullptr);
    EXPECT_EQ(semantic.messages, graphical.messages);

    options->setPmiMode(vrx::EPmiMode::None);
    const Imported none = importFile(MOVED_NOTE, options);
    EXPECT_EQ(none.root, nullptr);
    EXPECT_THAT(none.messages, IsEmpty());
    EXPECT_EQ(none.scenes.size(), 1U);
}

TEST(Legacy, LeavesPmiOutWhenTheSettingsOfTheFormatSaySo)
{
    const auto options = defaults();
    const auto step = std::make_shared<vrx::imp::OptionsSTEP>();
    step->setVisuPMIProcessingMode(vrx::EVisuPMIProcessingMode::None);
    options->setFormatOptions(step);
    EXPECT_THAT(importFile(MOVED_NOTE, options).messages, IsEmpty());
}

TEST(Legacy, BringsBlocksWithoutPropertiesAndMaps)
{
    const auto options = defaults();
    const Imported components = importFile(BENCH_VISE, options);
    options->setProductStructureMode(vrx::EProductStructureMode::AsBlocks);
    const Imported blocks = importFile(BENCH_VISE, options);
    EXPECT_EQ(treeOf(*blocks.structure), treeOf(*components.structure));
    EXPECT_EQ(blocks.scenes.size(), components.scenes.size());
    EXPECT_FALSE(components.structure->miscData().isEmpty());
    EXPECT_TRUE(blocks.structure->miscData().isEmpty());
    EXPECT_FALSE(components.structure->blocks().at(0)->miscData().isEmpty());
    for (const auto& block : blocks.structure->blocks())
    {
        EXPECT_TRUE(block->miscData().isEmpty()) << mp::toNarrow(block->name());
    }
    EXPECT_EQ(blocks.names, nullptr);
    EXPECT_EQ(blocks.materials, nullptr);
}

TEST(Legacy, BringsOneBlockWithAllShapesInPlace)
{
    const Imported imported = importCart(vrx::EHiddenPartsMode::ImportHide, vrx::EProductStructureMode::None);
    EXPECT_THAT(treeOf(*imported.structure), ElementsAre("cart"));
    EXPECT_THAT(shownBlocks(imported), ElementsAre("cart"));
    EXPECT_TRUE(imported.structure->blocks().at(0)->miscData().isEmpty());
    EXPECT_EQ(imported.names, nullptr);

    ENTITY_LIST bodies;
    std::vector<std::uint64_t> ids;
    ASSERT_TRUE(imported.bodies.begin()->second->getGeometry(bodies, ids));
    EXPECT_EQ(ids.size(), 7U);

    // Where each ball stands along x, which says which one it is, and what it looks like.
    std::map<int, std::string> looks;
    for (const auto& node : bodyNodes(*imported.scenes.begin()->second))
    {
        float low = 1000;
        float high = -1000;
        for (const auto& face : node->mesh()->faces())
        {
            for (std::size_t i = 0; i < face->vertices().size(); i += 3)
            {
                low = std::min(low, face->vertices()[i]);
                high = std::max(high, face->vertices()[i]);
            }
        }
        ASSERT_NE(node->attributes(), nullptr);
        const vrx::ExcColor& color = *node->attributes()->color();
        looks[static_cast<int>(std::lround((low + high) / 2))] =
            std::to_string(color[vrx::ExcColor::ChannelRed]) + (isHidden(*node) ? " hidden" : "");
    }
    EXPECT_THAT(looks, ElementsAre(Pair(10, "255"), Pair(20, "255 hidden"), Pair(40, "255"), Pair(60, "250 hidden"),
                                   Pair(80, "0 hidden"), Pair(90, "255"), Pair(100, "0 hidden")));
}

TEST(Legacy, SendsHiddenPartsAsTheModeSays)
{
    const Imported hide = importCart(vrx::EHiddenPartsMode::ImportHide);
    EXPECT_THAT(treeOf(*hide.structure),
                ElementsAre("cart", " left ball", " right ball, hidden", " painted ball", " lid, hidden", " wagon",
                            "  front wheel, hidden", "  load", " spare wheel, hidden"));

    const Imported show = importCart(vrx::EHiddenPartsMode::ImportShow);
    EXPECT_THAT(treeOf(*show.structure), ElementsAre("cart", " left ball", " right ball", " painted ball", " lid",
                                                     " wagon", "  front wheel", "  load", " spare wheel"));
    EXPECT_THAT(shownBlocks(show), ElementsAre("ball", "lid", "wheel"));

    const Imported leave = importCart(vrx::EHiddenPartsMode::DoNotImport);
    EXPECT_THAT(treeOf(*leave.structure), ElementsAre("cart", " left ball", " painted ball", " wagon", "  load"));
    EXPECT_THAT(shownBlocks(leave), ElementsAre("ball"));
    EXPECT_EQ(leave.structure->blocks().size(), 3U);
    EXPECT_EQ(leave.names->map().size(), 5U);
}

TEST(Legacy, DrawsNoAnnotationsOfWhatIsNotSent)
{
    const auto drawn = [](const Imported& imported) {
        std::vector<std::string> names;
        const auto root = imported.root->visualizationData()->sceneRootNodes().at(0);
        for (const auto& node : root->childNodes().at(0)->childNodes().at(0)->childNodes())
        {
            names.push_back(mp::toNarrow(node->pmi()->displayName()));
        }
        return names;
    };
    EXPECT_THAT(drawn(importCart(vrx::EHiddenPartsMode::ImportHide)), ElementsAre("ball diameter", "lid diameter"));
    EXPECT_THAT(drawn(importCart(vrx::EHiddenPartsMode::DoNotImport)), ElementsAre("ball diameter"));
}

TEST(Legacy, SendsHiddenShapesOfOneBlockAsTheModeSays)
{
    const auto none = vrx::EProductStructureMode::None;
    const Imported show = importCart(vrx::EHiddenPartsMode::ImportShow, none);
    const auto shown = bodyNodes(*show.scenes.begin()->second);
    EXPECT_EQ(shown.size(), 7U);
    EXPECT_TRUE(std::none_of(shown.begin(), shown.end(), [](const auto& node) { return isHidden(*node); }));

    const Imported leave = importCart(vrx::EHiddenPartsMode::DoNotImport, none);
    EXPECT_EQ(bodyNodes(*leave.scenes.begin()->second).size(), 3U);
    ENTITY_LIST bodies;
    std::vector<std::uint64_t> ids;
    ASSERT_TRUE(leave.bodies.begin()->second->getGeometry(bodies, ids));
    EXPECT_EQ(ids.size(), 3U);
}

// The colours of the references and of the block scenes.
std::set<std::vector<int>> colorsOf(const Imported& imported)
{
    std::set<std::vector<int>> colors;
    const auto insert = [&colors](const vrx::ExcColor& color) {
        colors.insert(
            {color[vrx::ExcColor::ChannelRed], color[vrx::ExcColor::ChannelGreen], color[vrx::ExcColor::ChannelBlue]});
    };
    for (const auto& block : imported.structure->blocks())
    {
        for (const auto& reference : block->blockReferences())
        {
            if (reference->color().hasRGB())
            {
                insert(reference->color());
            }
        }
    }
    for (const auto& [id, scene] : imported.scenes)
    {
        insert(*scene->visualizationData()->sceneRootNodes().at(0)->attributes()->color());
    }
    return colors;
}

// The indices that references state.
std::set<std::string> colorIndices(const vrx::ExcProductStructure& structure)
{
    std::set<std::string> indices;
    for (const ProductTreeNode& node : productTree(structure, ESiblings::Separate))
    {
        for (const vrx::ExcMiscProperty& property : node.references.front()->miscData().properties())
        {
            if (property.name() == property_names::kColorIndex)
            {
                indices.insert(mp::toNarrow(property.value()));
            }
        }
    }
    return indices;
}

TEST(Legacy, SendsColorsAsTheModeSays)
{
    using Colors = std::set<std::vector<int>>;
    const auto options = defaults();
    const Colors own = {{0, 90, 200}, {250, 5, 5}, {255, 0, 0}, {255, 255, 127}};
    options->setColorsMode(vrx::EColorsMode::Rgb);
    const Imported rgb = importFile(CART, options);
    EXPECT_EQ(colorsOf(rgb), own);
    EXPECT_THAT(colorIndices(*rgb.structure), IsEmpty());

    options->setColorsMode(vrx::EColorsMode::MatchingIndex);
    const Imported matching = importFile(CART, options);
    EXPECT_EQ(colorsOf(matching), own);
    EXPECT_THAT(colorIndices(*matching.structure), ElementsAre("1", "51"));

    options->setColorsMode(vrx::EColorsMode::NearestIndex);
    const Imported nearest = importFile(CART, options);
    EXPECT_EQ(colorsOf(nearest), (Colors{{0, 82, 165}, {255, 0, 0}, {255, 255, 127}}));
    EXPECT_THAT(colorIndices(*nearest.structure), ElementsAre("1", "152", "51"));
}

std::vector<double> numbersOf(const vrx::ExcVector3d& vector)
{
    return {vector[0], vector[1], vector[2]};
}

// By a quarter around X.
std::vector<double> turned(const vrx::ExcVector3d& vector)
{
    return {vector[0], -vector[2], vector[1]};
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
    const auto options = defaults();
    const Imported plain = importFile(MOVED_NOTE, options);
    options->setStepRotateYZ(true);
    const Imported turn = importFile(MOVED_NOTE, options);

    const vrx::ExcTransformation& place = turn.structure->rootBlockReferences().at(0)->transformation();
    EXPECT_THAT(numbersOf(place.affine()[0]), near({1, 0, 0}));
    EXPECT_THAT(numbersOf(place.affine()[1]), near({0, 0, -1}));
    EXPECT_THAT(numbersOf(place.affine()[2]), near({0, 1, 0}));

    // The part and its annotation lie in their own coordinates as before, the product's scene is turned.
    const auto scene = turn.root->visualizationData();
    ASSERT_NE(scene->sceneRootNodes().at(0)->transformation(), nullptr);
    EXPECT_THAT(numbersOf(scene->sceneRootNodes().at(0)->transformation()->affine()[1]), near({0, 0, -1}));
    EXPECT_EQ(plain.root->visualizationData()->sceneRootNodes().at(0)->transformation(), nullptr);
    const vrx::ExcVisuView& before = *plain.root->visualizationData()->views().at(0);
    const vrx::ExcVisuView& view = *scene->views().at(0);
    EXPECT_THAT(numbersOf(view.origin()), near(turned(before.origin())));
    EXPECT_THAT(numbersOf(view.directionU()), near(turned(before.directionU())));
    EXPECT_THAT(numbersOf(view.directionV()), near(turned(before.directionV())));
    const vrx::ExcCamera& cameraBefore = plain.root->visualizationData()->captures().at(0)->camera();
    const vrx::ExcCamera& camera = scene->captures().at(0)->camera();
    EXPECT_THAT(numbersOf(camera.eye()), near(turned(cameraBefore.eye())));
    EXPECT_THAT(numbersOf(camera.target()), near(turned(cameraBefore.target())));
    EXPECT_THAT(numbersOf(camera.up()), near(turned(cameraBefore.up())));
    // The plane y = 2 inches is now z = 2 inches.
    const auto clipping = [](const vrx::ExcVisualizationData& data) {
        const auto& numbers = data.captures().at(0)->clippingPlane().coefficients();
        return std::vector<double>(numbers.begin(), numbers.end());
    };
    const double side = clipping(*plain.root->visualizationData()).at(1);
    EXPECT_THAT(clipping(*plain.root->visualizationData()), near({0, side, 0, side * -50.8}));
    EXPECT_THAT(clipping(*scene), near({0, 0, side, side * -50.8}));
}

TEST(Legacy, TurnsNothingBelowTheTop)
{
    const auto options = defaults();
    options->setStepRotateYZ(true);
    const Imported imported = importFile(CART, options);
    const auto& components = imported.structure->blocks().at(0)->blockReferences();
    EXPECT_THAT(numbersOf(components.at(0)->transformation().translation()), near({10, 1, 2}));
    EXPECT_THAT(numbersOf(components.at(0)->transformation().affine()[1]), near({0, 1, 0}));
}

// The number of a property; a file has it as text.
double number(const vrx::ExcMiscData& data, const mp::wstring& name)
{
    for (const vrx::ExcMiscProperty& property : data.properties())
    {
        if (property.name() == name)
        {
            return std::stod(mp::toNarrow(property.value()));
        }
    }
    ADD_FAILURE() << "no property " << mp::toNarrow(name);
    return 0;
}

TEST(Legacy, ScalesToTheUnitOfTheDrawing)
{
    const auto options = defaults();
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
    EXPECT_NEAR(number(scaled.structure->blocks().at(1)->miscData(), WIDE("volume measure")) * 1e18,
                number(base.miscData(), WIDE("volume measure")), 1);
    EXPECT_NEAR(number(scaled.structure->blocks().at(1)->miscData(), WIDE("surface area measure")) * 1e12,
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
    const auto options = defaults();
    const Imported plain = importFile(MOVED_NOTE, options);
    options->setInsUnitsDefSource(vrx::EInsUnits::Inches);
    options->setInsUnitsScaling(true);
    const Imported inches = importFile(MOVED_NOTE, options);
    const vrx::ExcVisualizationData& scene = *inches.root->visualizationData();
    const auto note = scene.sceneRootNodes().at(0)->childNodes().at(0)->childNodes().at(0)->childNodes().at(0);
    const std::vector<float>& leader = note->pmi()->edges().at(0)->points();
    EXPECT_THAT(std::vector<double>(leader.begin(), leader.begin() + 3), near({1, 2, 3}));
    EXPECT_THAT(numbersOf(scene.captures().at(0)->camera().eye()),
                near(numbersOf(plain.root->visualizationData()->captures().at(0)->camera().eye()), 1 / 25.4));
    EXPECT_THAT(numbersOf(scene.views().at(0)->origin()),
                near(numbersOf(plain.root->visualizationData()->views().at(0)->origin()), 1 / 25.4));
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

    const auto options = defaults();
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
    EXPECT_EQ(importFile(missing, defaults()).result.code(), vrx::Result::ECode::Error);
    const auto options = defaults();
    options->setAlternateSearchPath(import_conventions::kFiles, mp::toWide(folder.string()));
    EXPECT_EQ(importFile(missing, options).result.code(), vrx::Result::ECode::Ok);

    // The file of the balls is in the folder "elsewhere" beside that of the cart.
    const auto ballFaces = [](const Imported& imported) {
        return number(imported.structure->blocks().at(1)->miscData(), property_names::kFaces);
    };
    const Imported incomplete = importFile(TWO_FILES, options);
    EXPECT_EQ(ballFaces(incomplete), 0);
    EXPECT_EQ(incomplete.result.code(), vrx::Result::ECode::Warning);
    EXPECT_EQ(incomplete.result.message(), WIDE("Files to which the file refers could not be read: ball.step. The ")
                                               WIDE("model may be incomplete."));
    options->setAlternateSearchPath(import_conventions::kFiles, mp::toWide((folder / "elsewhere").string()));
    const Imported complete = importFile(TWO_FILES, options);
    EXPECT_EQ(ballFaces(complete), 1);
    EXPECT_EQ(complete.result.code(), vrx::Result::ECode::Ok);
}

TEST(Legacy, LogsTheKernelsDebugLines)
{
    const auto options = defaults();
    EXPECT_THAT(importFile(CART, options).logs, IsEmpty());
    options->setPrintDebugLog(true);
    const Imported imported = importFile(CART, options);
    EXPECT_TRUE(std::any_of(imported.logs.begin(), imported.logs.end(),
                            [](const mp::wstring& line) { return line.find(WIDE("STEP File")) != mp::wstring::npos; }));
}

} // namespace
