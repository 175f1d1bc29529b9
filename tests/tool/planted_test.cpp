#include "capture/capture_reader.h"
#include "capture/capture_writer.h"
#include "checking/import_checker.h"
#include "files.h"
#include "input/input.h"
#include "json/member.h"
#include "mp/narrow.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <gmock/gmock.h>
#include <rapidjson/pointer.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

using capture::EFrame;
using capture::Frame;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

using Frames = std::vector<Frame>;
using Pointer = rapidjson::GenericPointer<vrx::JsonValue>;

// A capture of the bench vise, which planted_test.sh has recorded.
Frames recorded()
{
    const char* const name = std::getenv("VRX_CAPTURE"); // NOLINT(concurrency-mt-unsafe): there is one thread
    std::ifstream file(name == nullptr ? "" : name, std::ios::binary);
    capture::CaptureReader reader(file);
    Frames frames;
    for (Frame frame; reader.next(frame);)
    {
        frames.push_back(frame);
    }
    return frames;
}

void write(const Frames& frames, const std::string& file)
{
    capture::CaptureWriter writer(file, true);
    for (const Frame& frame : frames)
    {
        switch (frame.kind)
        {
        case EFrame::FromHost:
            writer.fromHost(frame.message);
            break;
        case EFrame::FromTranslator:
            writer.fromTranslator(frame.message);
            break;
        case EFrame::Buffer:
            writer.buffer(frame.name, frame.content.data(), frame.content.size());
            break;
        case EFrame::UnloadedBuffers:
            writer.unloadedBuffers(frame.names);
            break;
        case EFrame::End:
            writer.end(frame.json);
            break;
        default:
            break;
        }
    }
}

std::vector<std::string> findingsIn(const Frames& frames)
{
    const test::TemporaryFile file("");
    write(frames, file.name());
    std::vector<std::string> lines;
    checking::Findings findings([&lines](const checking::Finding& finding) {
        lines.push_back(std::string(nameOf(finding.code)) + ' ' + mp::toNarrow(finding.place.pointer));
    });
    const checking::KnownKeys known;
    checking::ImportChecker checker(known, findings);
    const input::Recording recording =
        input::readItems(file.name(), [&checker](const input::Item& item) { checker.take(item); });
    checker.end(recording);
    return lines;
}

// The first message of an exchange class, or of a kind.
Frame& messageOf(Frames& frames, const std::string& what)
{
    const auto isIt = [&what](const Frame& frame) {
        const vrx::MessageHead head = vrx::peekEnvelope(frame.message);
        return mp::toNarrow(head.objectName) == what || (what == "command" && frame.kind == EFrame::FromHost) ||
               (what == "import" && frame.message.find(WIDE("\"import\"")) != mp::wstring::npos) ||
               (what == "result" && head.kind == vrx::EMessageKind::Result);
    };
    return *std::find_if(frames.begin(), frames.end(), isIt);
}

Frame& bufferOf(Frames& frames, const Frame& message)
{
    const mp::wstring name = vrx::peekEnvelope(message.message).bufferName;
    return *std::find_if(frames.begin(), frames.end(),
                         [&name](const Frame& frame) { return frame.kind == EFrame::Buffer && frame.name == name; });
}

vrx::JsonDocument formIn(const std::vector<char>& content)
{
    std::vector<char> plain = content;
    if (vrx::Compressor::isCompressed(content.data(), content.size()))
    {
        vrx::Compressor::decompress(plain, content.data(), content.size());
    }
    vrx::JsonDocument form;
    vrx::JsonBinaryIO::read(plain.data(), plain.size(), form, form.GetAllocator());
    return form;
}

// Changes the tree of a message, or that in its buffer.
void change(Frames& frames, const std::string& what, const std::function<void(vrx::JsonDocument&)>& edit)
{
    Frame& message = messageOf(frames, what);
    vrx::JsonDocument tree = test::parsed(mp::toNarrow(message.message));
    const vrx::JsonValue* const binary = json::member(tree, WIDE("binary"));
    if (binary != nullptr && binary->IsTrue())
    {
        Frame& buffer = bufferOf(frames, message);
        vrx::JsonDocument form = formIn(buffer.content);
        edit(form);
        buffer.content.clear();
        vrx::JsonBinaryIO::write(buffer.content, form);
        return;
    }
    edit(tree);
    message.message = test::wide(test::textOf(tree));
}

// Without a value the place is taken away.
void set(vrx::JsonDocument& tree, const std::string& place, const char* value)
{
    const mp::wstring wide = test::wide(place);
    const Pointer pointer(wide.data(), wide.size());
    if (value == nullptr)
    {
        EXPECT_TRUE(pointer.Erase(tree)) << place;
        return;
    }
    const vrx::JsonDocument parsed = test::parsed(value);
    pointer.Set(tree, vrx::JsonValue(parsed, tree.GetAllocator()));
}

const char* const kFace =
    "/visualization_data/scene_root_nodes/0/child_nodes/0/child_nodes/0/child_nodes/0/mesh/faces/0";

struct Row
{
    const char* message;
    std::string place;
    const char* value;
    std::string finding;
};

const std::vector<Row>& rows()
{
    static const std::string face = kFace;
    static const std::vector<Row> rows = {
        {"exc_product_structure", "/colour", "1", "unknown-key /colour"},
        {"exc_product_structure", "/units", R"("parsec")", "unknown-name /units"},
        {"exc_product_structure", "/blocks", "{}", "wrong-kind /blocks"},
        {"exc_product_structure", "/blocks/-", R"({"id":2})", "duplicate-id /blocks/21/id"},
        {"exc_product_structure", "/blocks/1/is_part", R"("true")", "wrong-kind /blocks/1/is_part"},
        {"exc_product_structure", "/blocks/2/block_references/2/block_id", "1",
         "structure-cycle /blocks/2/block_references/2/block_id"},
        {"exc_product_structure", "/root_block_references/0/block_id", "99",
         "dangling-id /root_block_references/0/block_id"},
        {"exc_product_structure", "/root_block_references/0/name", "null", "wrong-kind /root_block_references/0/name"},
        {"exc_product_structure", "/root_block_references/0/transformation/translation", "[0.0,0.0]",
         "wrong-size /root_block_references/0/transformation/translation"},
        {"exc_product_structure", "/root_block_references/0/transformation/affine/1/1", "1",
         "wrong-number /root_block_references/0/transformation/affine/1/1"},
        {"exc_product_structure", "/root_block_references/0/color", R"({"rgb":[1,2,3.5]})",
         "wrong-number /root_block_references/0/color/rgb/2"},
        {"exc_block_geometry", "/exchange_object_data/block_id", nullptr, "missing-key "},
        {"exc_block_geometry", "/exchange_object_data/block_id", "77", "dangling-id /block_id"},
        {"exc_block_geometry", "/exchange_object_data/acis_body_ids", "[1.5]", "wrong-number /acis_body_ids/0"},
        {"exc_block_geometry", "/exchange_object_name", R"("exc_bloc_geometry")", "unknown-object "},
        {"exc_block_geometry", "/version", "1", "unknown-key /version"},
        {"exc_block_mechanical_data", "/misc_data/layers/0/entities/0/fsp/body_id", "1",
         "dangling-id /misc_data/layers/0/entities/0/fsp/body_id"},
        {"exc_block_mechanical_data", "/misc_data/layers/0/entities/0/fsp/block_references", R"(["x"])",
         "dangling-id /misc_data/layers/0/entities/0/fsp/block_references/0"},
        {"exc_block_mechanical_data", "/misc_data/layers/0/entities/0/type", R"("fps")",
         "unknown-name /misc_data/layers/0/entities/0/type"},
        {"exc_block_mechanical_data", "/misc_data/layer_filters", R"([{"layer_id":[4]}])",
         "dangling-id /misc_data/layer_filters/0/layer_id/0"},
        {"exc_block_mechanical_data", "/misc_data/materials/0/density/value", "7",
         "wrong-number /misc_data/materials/0/density/value"},
        {"exc_block_mechanical_data", "/mfg_data/simple_holes/0/hole_data/center/1", R"("48")",
         "wrong-kind /mfg_data/simple_holes/0/hole_data/center/1"},
        {"exc_block_mechanical_data", "/mfg_data/unclassified_features", R"([{"pattern":{"kind":"circular"}}])",
         "unknown-object /mfg_data/unclassified_features/0/pattern"},
        {"exc_block_visualization", face + "/polygons/0/indices/3", "9999",
         "index-outside " + face + "/polygons/0/indices/3"},
        {"exc_block_visualization", face + "/polygons/0/indices/0", "-1",
         "index-outside " + face + "/polygons/0/indices/0"},
        {"exc_block_visualization", face + "/vertices/4", "58", "wrong-number " + face + "/vertices/4"},
        {"exc_block_visualization", "/visualization_data/scene_root_nodes/0/type", R"("TOP")",
         "unknown-name /visualization_data/scene_root_nodes/0/type"},
        {"exc_block_visualization", "/block_id", "-2", "wrong-number /block_id"},
        {"exc_progress", "/exchange_object_data/progress", "1.0", "wrong-number /progress"},
        {"command", "/ferrant_interface", "7", "wrong-kind /ferrant_interface"},
        {"import", "/options", nullptr, "missing-key "},
        {"exc_progress", "/binary", "true", "wrong-kind /exchange_object_data"},
        {"result", "/code", R"("fine")", "unknown-name /code"},
    };
    return rows;
}

TEST(Planted, TheCaptureItselfIsSound)
{
    EXPECT_THAT(findingsIn(recorded()), IsEmpty());
}

TEST(Planted, EachDefectInATreeIsFoundAndNothingElse)
{
    const Frames sound = recorded();
    for (const Row& row : rows())
    {
        Frames frames = sound;
        change(frames, row.message, [&row](vrx::JsonDocument& tree) { set(tree, row.place, row.value); });
        EXPECT_THAT(findingsIn(frames), ElementsAre(row.finding)) << row.message << ' ' << row.place;
    }
}

TEST(Planted, EachDefectOfAMessageOrABufferIsFoundAndNothingElse)
{
    const Frames sound = recorded();
    const auto found = [&sound](const std::function<void(Frames&)>& plant) {
        Frames frames = sound;
        plant(frames);
        return findingsIn(frames);
    };
    const auto sceneBuffer = [](Frames& frames) -> Frame& {
        return bufferOf(frames, messageOf(frames, "exc_block_visualization"));
    };
    EXPECT_THAT(found([](Frames& frames) {
                    change(frames, "exc_product_structure", [](vrx::JsonDocument& tree) {
                        tree.AddMember(vrx::JsonValue(WIDE("units")), vrx::JsonValue(1), tree.GetAllocator());
                    });
                }),
                ElementsAre("duplicate-key /units"));
    EXPECT_THAT(found([](Frames& frames) { messageOf(frames, "exc_progress").message += '}'; }),
                ElementsAre("not-a-message "));
    EXPECT_THAT(found([](Frames& frames) { messageOf(frames, "result").kind = EFrame::MissingBuffer; }),
                ElementsAre("no-answer "));
    // The recorder was killed between two frames.
    EXPECT_THAT(found([](Frames& frames) {
                    messageOf(frames, "result").kind = EFrame::MissingBuffer;
                    frames.pop_back();
                }),
                IsEmpty());
    // A ping that failed later says nothing of the import.
    EXPECT_THAT(found([](Frames& frames) {
                    change(frames, "exc_product_structure",
                           [](vrx::JsonDocument& tree) { set(tree, "/root_block_references/0/block_id", "99"); });
                    Frame ping;
                    ping.kind = EFrame::FromHost;
                    ping.message = WIDE("{\"command\":\"ping\"}");
                    Frame result;
                    result.kind = EFrame::FromTranslator;
                    result.message = WIDE("{\"code\":\"error\"}");
                    frames.insert(frames.end() - 2, {ping, result});
                }),
                ElementsAre("dangling-id /root_block_references/0/block_id"));
    EXPECT_THAT(found([&](Frames& frames) { sceneBuffer(frames).kind = EFrame::MissingBuffer; }),
                ElementsAre("missing-buffer "));
    EXPECT_THAT(found([&](Frames& frames) { sceneBuffer(frames).content.resize(999); }),
                ElementsAre("damaged-buffer "));
    EXPECT_THAT(found([&](Frames& frames) {
                    Frame unloaded;
                    unloaded.kind = EFrame::UnloadedBuffers;
                    unloaded.names = {sceneBuffer(frames).name};
                    frames.push_back(unloaded);
                }),
                ElementsAre("unloaded-buffer "));
}

} // namespace
