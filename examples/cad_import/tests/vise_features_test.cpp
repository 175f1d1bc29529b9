// All holes and threads of the vise, as its generator makes and states them: see data/vise_parts.cpp and
// data/vise_threads.h.

#include "imported.h"
#include "mp/narrow.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <utility>

namespace
{

using Lines = std::multiset<std::string>;
using Entities = std::vector<std::shared_ptr<vrx::ExcEntity>>;
using Faces = std::set<std::pair<std::uint64_t, std::uint64_t>>; // by body and number

double rounded(double value)
{
    return std::round(value * 1000) / 1000 + 0.0;
}

std::string textOf(const vrx::ExcVector3d& vector)
{
    std::ostringstream text;
    text << rounded(vector[0]) << ' ' << rounded(vector[1]) << ' ' << rounded(vector[2]);
    return text.str();
}

Faces facesOf(const Entities& entities)
{
    Faces faces;
    for (const auto& entity : entities)
    {
        faces.emplace(entity->fsp()->bodyId(), entity->fsp()->subentId().index());
    }
    return faces;
}

std::string textOf(const vrx::ExcMfgThread& thread)
{
    std::ostringstream text;
    text << mp::toNarrow(thread.designation()) << " (" << thread.diameter() << " p " << thread.pitch() << ") x "
         << thread.depth();
    const bool isPlain = thread.orientation() == vrx::ExcMfgThreading::EOrientation::RightHanded &&
                         thread.designationSystemType() == vrx::ExcMfgThreading::EDesignationSystemType::Metric;
    return text.str() + (isPlain ? "" : " of another kind");
}

// The threads of which this hole is the one that is tapped.
std::string threadsIn(const vrx::ExcMfgFeatureHole& hole, const vrx::ExcMfgHole& data, const vrx::ExcMfgData& all)
{
    std::string text;
    for (const auto& thread : all.internalThreads())
    {
        const auto walls = facesOf(hole.definingGeometry());
        const auto sides = facesOf(thread->sideFaces());
        const auto around = facesOf(hole.limitingGeometry());
        const auto top = facesOf(thread->topFaces());
        if (std::includes(walls.begin(), walls.end(), sides.begin(), sides.end()))
        {
            text += ", " + textOf(*thread->thread());
            EXPECT_TRUE(std::includes(around.begin(), around.end(), top.begin(), top.end()));
            EXPECT_EQ(thread->thread()->supportDiameter(), data.primaryDiameter());
            EXPECT_EQ(thread->thread()->supportDepth(), data.primaryDepth());
            EXPECT_FALSE(thread->bottomFaces().empty());
        }
    }
    return text;
}

template <class T>
void add(Lines& lines, const std::string& part, const vrx::ExcMfgData& all,
         const std::vector<std::shared_ptr<vrx::ExcMfgFeatureHoleType<T>>>& holes, const char* kind)
{
    for (const auto& hole : holes)
    {
        const T& data = *hole->holeData();
        std::ostringstream text;
        text << part << ": " << kind << ' ' << rounded(data.primaryDiameter()) << " x " << rounded(data.primaryDepth());
        switch (data.bottomLimitExtentType())
        {
        case vrx::ExcMfgHole::EBottomLimitExtentType::Blind:
            text << " blind";
            break;
        case vrx::ExcMfgHole::EBottomLimitExtentType::UpToLast:
            break;
        default:
            text << " to another end";
            break;
        }
        if constexpr (std::is_same_v<T, vrx::ExcMfgCounterBoreHole>)
        {
            text << ", " << rounded(data.diameter()) << " x " << rounded(data.depth());
        }
        if constexpr (std::is_same_v<T, vrx::ExcMfgCounterSinkHole>)
        {
            text << ", " << rounded(data.diameter()) << ", " << rounded(data.taperAngle()) << " deg";
        }
        text << ", at " << textOf(data.center()) << " to " << textOf(data.direction());
        lines.insert(text.str() + threadsIn(*hole, data, all));
    }
}

Lines featuresOf(const Imported& imported)
{
    Lines lines;
    for (const auto& object : imported.objects)
    {
        const auto data = std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(object);
        if (!data || !data->manufacturingData())
        {
            continue;
        }
        const vrx::ExcMfgData& all = *data->manufacturingData();
        std::string part;
        for (const auto& block : imported.structure->blocks())
        {
            part = block->id() == data->blockId() ? mp::toNarrow(block->name()) : part;
        }
        add(lines, part, all, all.simpleHoles(), "simple");
        add(lines, part, all, all.taperHoles(), "taper");
        add(lines, part, all, all.counterBoreHoles(), "counterbore");
        add(lines, part, all, all.counterSinkHoles(), "countersink");
        add(lines, part, all, all.counterDrillHoles(), "counterdrill");
        for (const auto& thread : all.externalThreads())
        {
            lines.insert(part + ": " + textOf(*thread->thread()) + " on " + std::to_string(thread->sideFaces().size()));
        }
        for (const auto& pattern : all.unclassifiedFeatures())
        {
            const auto grid = std::dynamic_pointer_cast<vrx::ExcMfgPatternRectangular>(pattern->pattern());
            std::ostringstream text;
            text << part << ": ";
            if (grid)
            {
                text << grid->primaryInstanceCount() << " x " << grid->secondaryInstanceCount() << " from "
                     << textOf(grid->anchorPoint()) << ", " << rounded(grid->primarySpacing()) << " x "
                     << rounded(grid->secondarySpacing());
            }
            lines.insert(text.str());
        }
    }
    return lines;
}

const char* const kM8 = ", M8x1.25 (8 p 1.25) x 16";
const char* const kM10 = ", M10x1.5 (10 p 1.5) x 20";

// The design, part by part.
Lines designOf(bool withThreads)
{
    const std::string m8 = withThreads ? kM8 : "";
    const std::string m10 = withThreads ? kM10 : "";
    Lines lines = {
        "base: simple 8.5 x 28 blind, at 52 -48 50 to 0 0 -1" + m10,
        "base: simple 8.5 x 28 blind, at 52 48 50 to 0 0 -1" + m10,
        "base: simple 8.5 x 28 blind, at 282 -34 50 to 0 0 -1" + m10,
        "base: simple 8.5 x 28 blind, at 282 34 50 to 0 0 -1" + m10,
        "base: simple 8.5 x 28 blind, at 318 -34 50 to 0 0 -1" + m10,
        "base: simple 8.5 x 28 blind, at 318 34 50 to 0 0 -1" + m10,
        "base: 2 x 1 from 52 -48 50, 96 x 0",
        "base: 2 x 2 from 282 -34 50, 36 x 68",
        "spindle bracket: simple 30 x 26, at 13 0 20 to -1 0 0",
        "spindle bracket: simple 11 x 14, at -18 -34 14 to 0 0 -1",
        "spindle bracket: simple 11 x 14, at -18 34 14 to 0 0 -1",
        "spindle bracket: simple 11 x 14, at 18 -34 14 to 0 0 -1",
        "spindle bracket: simple 11 x 14, at 18 34 14 to 0 0 -1",
        "spindle bracket: 2 x 2 from -18 -34 14, 36 x 68",
        std::string("spindle nut: countersink 20.4 x 32, 22.4, 90 deg, at 26 0 0 to -1 0 0") +
            (withThreads ? ", Tr20x4 (20 p 4) x 32" : ""),
        "fixed jaw: simple 6.8 x 22 blind, at 0 -28 38 to -1 0 0" + m8,
        "fixed jaw: simple 6.8 x 22 blind, at 0 28 38 to -1 0 0" + m8,
        "fixed jaw: 2 x 1 from 0 -28 38, 56 x 0",
        "fixed jaw: counterbore 11 x 56, 18 x 38, at -18 -48 56 to 0 0 -1",
        "fixed jaw: counterbore 11 x 56, 18 x 38, at -18 48 56 to 0 0 -1",
        "fixed jaw: 2 x 1 from -18 -48 56, 96 x 0",
        "sliding jaw: simple 6.8 x 22 blind, at 0 -28 38 to 1 0 0" + m8,
        "sliding jaw: simple 6.8 x 22 blind, at 0 28 38 to 1 0 0" + m8,
        "sliding jaw: 2 x 1 from 0 -28 38, 56 x 0",
        "sliding jaw: simple 6.8 x 20 blind, at 60 -22 20 to -1 0 0" + m8,
        "sliding jaw: simple 6.8 x 20 blind, at 60 22 20 to -1 0 0" + m8,
        "sliding jaw: 2 x 1 from 60 -22 20, 44 x 0",
        "sliding jaw: simple 6.8 x 20 blind, at 8 0 -18 to 0 0 1" + m8,
        "sliding jaw: simple 6.8 x 20 blind, at 38 0 -18 to 0 0 1" + m8,
        "sliding jaw: 2 x 1 from 8 0 -18, 30 x 0",
        "sliding jaw: simple 16.4 x 32 blind, at 60 0 20 to -1 0 0",
        "keeper strip: simple 9 x 8, at 8 0 0 to 0 0 -1",
        "keeper strip: simple 9 x 8, at 38 0 0 to 0 0 -1",
        "keeper strip: 2 x 1 from 8 0 0, 30 x 0",
        "retainer plate: simple 9 x 8, at 8 -22 0 to -1 0 0",
        "retainer plate: simple 9 x 8, at 8 22 0 to -1 0 0",
        "retainer plate: 2 x 1 from 8 -22 0, 44 x 0",
        "jaw plate: counterbore 9 x 14, 15 x 9, at 14 -28 18 to -1 0 0",
        "jaw plate: counterbore 9 x 14, 15 x 9, at 14 28 18 to -1 0 0",
        "jaw plate: 2 x 1 from 14 -28 18, 56 x 0",
        "spindle: simple 12.2 x 18, at 197 0 9 to 0 0 -1",
        "handle hub: simple 18 x 36, at 18 0 0 to -1 0 0",
        "handle hub: simple 12.2 x 32, at 0 0 16 to 0 0 -1",
        "ball knob: simple 8 x 14 blind, at 0 0 0 to 0 0 1",
    };
    if (withThreads)
    {
        lines.insert({"cap screw M8x20: M8x1.25 (8 p 1.25) x 20 on 1", "cap screw M10x30: M10x1.5 (10 p 1.5) x 30 on 1",
                      "spindle: Tr20x4 (20 p 4) x 122 on 1"});
    }
    return lines;
}

std::string generated(const char* name)
{
    std::string file = testing::TempDir() + name;
    const std::string command = std::string(MAKE_BENCH_VISE) + ' ' + file;
    EXPECT_EQ(std::system(command.c_str()), 0); // NOLINT(cert-env33-c): the build's own program
    return file;
}

TEST(Vise, hasTheHolesAndThreadsOfItsDesign)
{
    EXPECT_THAT(featuresOf(importFile(generated("vise_features.step"))), testing::ContainerEq(designOf(true)));
}

// Each place of a part is a body of its own then, with features on its own faces.
TEST(Vise, hasThemAtEachPlaceInOneBlock)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setProductStructureMode(vrx::EProductStructureMode::None);
    const Imported imported = importFile(generated("vise_one_block.step"), options);
    ASSERT_EQ(imported.mechanical.size(), 1U);
    ASSERT_TRUE(imported.mechanical.begin()->second->manufacturingData());
    const vrx::ExcMfgData& all = *imported.mechanical.begin()->second->manufacturingData();

    std::map<std::string, int> counts; // of the holes with a thread
    for (const std::string& line : featuresOf(imported))
    {
        const std::size_t thread = line.find(", M") != std::string::npos ? line.find(", M") : line.find(", Tr");
        ++counts[thread != std::string::npos ? line.substr(thread + 2) : ""];
    }
    counts.erase("");
    EXPECT_THAT(counts, testing::UnorderedElementsAre(testing::Pair(std::string(kM8).substr(2), 8),
                                                      testing::Pair(std::string(kM10).substr(2), 6),
                                                      testing::Pair("Tr20x4 (20 p 4) x 32", 1)));
    EXPECT_EQ(all.internalThreads().size(), 15U);
    EXPECT_EQ(all.externalThreads().size(), 15U); // a screw in each but the nut, and the spindle

    Faces faces;
    std::size_t count = 0;
    const auto note = [&](const Entities& entities) {
        const Faces more = facesOf(entities);
        EXPECT_FALSE(more.empty());
        count += more.size();
        faces.insert(more.begin(), more.end());
    };
    for (const auto& hole : all.simpleHoles())
    {
        note(hole->definingGeometry());
    }
    for (const auto& hole : all.counterBoreHoles())
    {
        note(hole->definingGeometry());
    }
    for (const auto& thread : all.externalThreads())
    {
        note(thread->sideFaces());
    }
    EXPECT_EQ(faces.size(), count);
    EXPECT_EQ(all.counterBoreHoles().size(), 6U); // two of the fixed jaw, and two of each jaw plate
}

// With all threads of the base as those of one shape aspect, their pitch in inches, and depths without a unit.
void stateOtherwise(const std::string& file)
{
    std::ostringstream stream;
    stream << std::ifstream(file).rdbuf();
    const std::string text = stream.str();
    const std::regex usage(R"((GEOMETRIC_ITEM_SPECIFIC_USAGE\('','',)#(\d+),(#\d+,#\d+\);\s*#\d+ = SHAPE_ASPECT\()"
                           R"('thread','M10x1.5',(#\d+)))");
    std::map<std::string, std::string> first; // aspect by product
    std::string changed;
    std::sregex_iterator match(text.begin(), text.end(), usage);
    auto end = text.cbegin();
    for (; match != std::sregex_iterator(); ++match)
    {
        const std::string& aspect = first.insert({(*match)[4], (*match)[2]}).first->second;
        changed.append(end, (*match)[0].first).append((*match)[1].str() + '#' + aspect + ',' + (*match)[3].str());
        end = (*match)[0].second;
    }
    ASSERT_EQ(first.size(), 2U); // the screw and the base
    changed.append(end, text.cend());
    changed = std::regex_replace(changed, std::regex(R"('pitch',LENGTH_MEASURE\(1\.5\),\s*#\d+)"),
                                 "'pitch',LENGTH_MEASURE(0.0590551181),#9000000");
    changed = std::regex_replace(changed, std::regex(R"('depth',LENGTH_MEASURE\(16\.\),\s*#\d+)"),
                                 "'depth',LENGTH_MEASURE(16.),$$");
    changed.insert(changed.rfind("ENDSEC;"),
                   "#9000000=(CONVERSION_BASED_UNIT('INCH',#9000001)LENGTH_UNIT()NAMED_UNIT(#9000003));\n"
                   "#9000001=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(25.4),#9000002);\n"
                   "#9000002=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.));\n"
                   "#9000003=DIMENSIONAL_EXPONENTS(1.,0.,0.,0.,0.,0.,0.);\n");
    EXPECT_THAT(changed, testing::AllOf(testing::HasSubstr("(0.0590551181)"), testing::HasSubstr("(16.),$")));
    std::ofstream(file) << changed;
}

TEST(Vise, hasTheSameThreadsWhenTheyAreStatedOtherwise)
{
    const std::string file = generated("vise_otherwise.step");
    stateOtherwise(file);
    EXPECT_THAT(featuresOf(importFile(file)), testing::ContainerEq(designOf(true)));
}

TEST(Vise, hasTheSameHolesInIges)
{
    EXPECT_THAT(featuresOf(importFile(generated("vise_features.igs"))), testing::ContainerEq(designOf(false)));
}

} // namespace
