#include "tests/support/corpus.h"
#include "tests/support/envelope.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"
#include "tests/support/shared_memory.h"
#include "tests/support/structures.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <gtest/gtest.h>

#include <iterator>
#include <regex>
#include <set>
#include <typeinfo>

using namespace vrx;
using test::envelopeOf;
using test::nameOf;
using test::opened;
using test::structureEnvelope;
using test::structureNamed;
using test::wide;

namespace
{

const char* const kDefaultProgress = R"({"progress":0,"progress_max":100,"stage":""})";

const ExchangeObjectRegistry& registry()
{
    return ExchangeObjectRegistry::instance();
}

struct ExchangeClass
{
    const char* name;
    const std::type_info& type;
    bool binary;
};

TEST(Registry, MakesNewObjectsOfTwelveClasses)
{
    const ExchangeClass classes[] = {
        {"exc_block_geometry", typeid(ExcBlockGeometry), false},
        {"exc_block_mechanical_data", typeid(ExcBlockMechanicalData), true},
        {"exc_block_visualization", typeid(ExcBlockVisualization), true},
        {"exc_log", typeid(ExcLog), false},
        {"exc_message", typeid(ExcMessage), false},
        {"exc_product_structure", typeid(ExcProductStructure), true},
        {"exc_progress", typeid(ExcProgress), false},
        {"exc_root_assembly_visualization", typeid(ExcRootAssemblyVisualization), true},
        {"exc_root_mechanical_data", typeid(ExcRootMechanicalData), true},
        {"exc_stage_finished", typeid(ExcStageFinished), false},
        {"legacy_component_instance_names", typeid(LegacyComponentInstanceNames), false},
        {"legacy_component_material_map", typeid(LegacyMaterialMap), false},
    };
    EXPECT_EQ(registry().names().size(), std::size(classes));
    for (const ExchangeClass& row : classes)
    {
        const auto object = registry().get(wide(row.name));
        ASSERT_NE(object, nullptr) << row.name;
        const IExchangeObject& made = *object;
        EXPECT_EQ(typeid(made), row.type) << row.name;
        EXPECT_EQ(made.objectName(), wide(row.name));
        EXPECT_EQ(made.binary(), row.binary) << row.name;
        EXPECT_EQ(made.compress(), row.binary) << row.name;
        EXPECT_FALSE(made.isLoaded());
        EXPECT_NE(object, registry().get(wide(row.name)));
    }
    EXPECT_EQ(registry().get(WIDE("EXC_PROGRESS")), nullptr);
    EXPECT_EQ(registry().get(wstring()), nullptr);
    EXPECT_EQ(ExcLog::objName(), WIDE("exc_log"));
}

class Probe : public ExcProgress
{
public:
    const wstring& objectName() const override
    {
        static const wstring name = WIDE("probe");
        return name;
    }
    std::shared_ptr<IExchangeObject> clone() const override { return std::make_shared<Probe>(); }
};

TEST(Registry, HoldsAPrototypeAsLongAsItLives)
{
    ExchangeObjectRegistry::instance().add(nullptr);
    ExchangeObjectRegistry::instance().remove(nullptr);
    {
        StaticExchangeObject<Probe> prototype;
        prototype.setProgress(9);
        const auto object = registry().get(WIDE("probe"));
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(test::written(*object), kDefaultProgress);
    }
    EXPECT_EQ(registry().get(WIDE("probe")), nullptr);
}

TEST(Uuid, IsRandomAndOfVersionFour)
{
    std::set<wstring> all;
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    for (int i = 0; i < 100; ++i)
    {
        const wstring uuid = IExchangeObject::generateUUID();
        EXPECT_TRUE(std::regex_match(mp::toNarrow(uuid), form)) << mp::toNarrow(uuid);
        all.insert(uuid);
    }
    EXPECT_EQ(all.size(), 100U);
}

std::string asciiOf(const std::string& envelope)
{
    return mp::toNarrow(test::unitsOf(envelope));
}

std::string envelopeOfText(const std::string& ascii)
{
    return test::bytesOf(wide(ascii));
}

TEST(Envelope, OfATextObjectIsItsJson)
{
    auto progress = std::make_shared<ExcProgress>();
    progress->setProgress(3);
    EXPECT_EQ(asciiOf(envelopeOf(progress)), "{\n"
                                             "  \"exchange_object_name\": \"exc_progress\",\n"
                                             "  \"exchange_object_data\": {\n"
                                             "    \"progress\": 3,\n"
                                             "    \"progress_max\": 100,\n"
                                             "    \"stage\": \"\"\n"
                                             "  }\n"
                                             "}");
    const auto stage = std::make_shared<ExcStageFinished>(ExcStageFinished::EStage::Mechanical);
    EXPECT_EQ(asciiOf(envelopeOf(stage)), "{\n"
                                          "  \"exchange_object_name\": \"exc_stage_finished\",\n"
                                          "  \"exchange_object_data\": \"mechanical\"\n"
                                          "}");
    const auto back = opened(envelopeOf(progress));
    EXPECT_TRUE(dynamic_cast<const ExcProgress&>(*back) == *progress);
    EXPECT_FALSE(back->isLoaded());
}

TEST(Envelope, OfABinaryObjectNamesABuffer)
{
    const auto structure = structureNamed(WIDE("vise"));
    const std::string envelope = envelopeOf(structure);
    const std::string text = asciiOf(envelope);
    std::smatch match;
    const std::regex form("\\{\n  \"exchange_object_name\": \"exc_product_structure\",\n  \"binary\": true,\n"
                          "  \"exchange_object_data\": \"([0-9a-f-]{36})\"\n\\}");
    ASSERT_TRUE(std::regex_match(text, match, form)) << text;
    const std::string second = envelopeOf(structure);
    EXPECT_NE(second, envelope) << "each envelope has a buffer of its own";
    opened(second);

    const std::string content = test::takeBuffer(wide(match[1].str()));
    std::string plain;
    Compressor::decompress(plain, content.data(), content.size());
    JsonDocument document;
    JsonBinaryIO::read(plain.data(), plain.size(), document, document.GetAllocator());
    EXPECT_EQ(test::textOf(document), test::written(*structure));
}

// What the envelope of an object leaves in shared memory.
std::string contentOf(const ExchangeObjectWrapper& wrapper)
{
    mp::wostringstream stream;
    wrapper.writeObject(stream);
    const JsonDocument envelope = test::parsed(mp::toNarrow(stream.str()));
    return test::takeBuffer(envelope[WIDE("exchange_object_data")].GetString());
}

class PlainStructure : public ExcProductStructure
{
public:
    bool compress() const override { return false; }
};

TEST(Envelope, IsCompressedAsTheSenderChooses)
{
    wstring name;
    for (wchar c = 0x100; c < 0x1000; ++c)
    {
        name += {c, 'a', static_cast<wchar>(c / 3), 'b', c};
    }
    const auto structure = structureNamed(name);
    JsonDocument document;
    structure->writeObject(document, document.GetAllocator());
    std::vector<char> form;
    JsonBinaryIO::write(form, document);
    const auto compressed = [&form](int level) {
        std::string bytes;
        Compressor::compress(bytes, form.data(), form.size(), level);
        return bytes;
    };
    ASSERT_NE(compressed(1), compressed(-1));
    const std::string plain(form.begin(), form.end());
    const std::pair<ECompression, std::string> choices[] = {
        {ECompression::AsTold, compressed(-1)}, {ECompression::Fast, compressed(1)}, {ECompression::None, plain}};

    ExchangeObjectWrapper wrapper;
    wrapper.set(structure);
    EXPECT_TRUE(contentOf(wrapper) == compressed(-1));
    for (const auto& [choice, expected] : choices)
    {
        wrapper.setCompression(choice);
        const std::string content = contentOf(ExchangeObjectWrapper(wrapper));
        EXPECT_TRUE(content == expected) << static_cast<int>(choice);
        EXPECT_TRUE(nameOf(opened(structureEnvelope(test::leaveBuffer(content)))) == name);
    }

    const auto plainStructure = std::make_shared<PlainStructure>();
    plainStructure->setProductName(name);
    wrapper.set(plainStructure);
    for (const auto& [choice, expected] : choices)
    {
        wrapper.setCompression(choice);
        EXPECT_TRUE(contentOf(wrapper) == plain) << static_cast<int>(choice);
    }
}

TEST(Envelope, WithoutAnObjectWritesNothing)
{
    mp::wostringstream stream;
    EXPECT_EQ(test::thrownBy<std::invalid_argument>([&] { ExchangeObjectWrapper().writeObject(stream); }),
              "ExchangeObjectWrapper::writeObject > m_pObject == nullptr");
    EXPECT_TRUE(stream.str().empty());
}

TEST(Envelope, ThatIsNoObjectThrows)
{
    for (const char* const text : {"", "{} {}", "[]", "{"})
    {
        EXPECT_EQ(test::thrownBy<std::invalid_argument>([&] { opened(envelopeOfText(text)); }),
                  "Invalid json document");
    }
}

struct EnvelopeRow
{
    const char* in;
    const char* object; // what the object writes, or "none"
    std::vector<std::string> log;
};

TEST(Envelope, ThatNamesNothingUsableIsPassedOver)
{
    const EnvelopeRow rows[] = {
        {R"({"exchange_object_data":{}})", "none", {}},
        {R"({"exchange_object_name":5,"exchange_object_data":{}})", "none", {}},
        {R"({"exchange_object_name":"exc_unheard_of","exchange_object_data":{}})", "none", {}},
        {R"({"exchange_object_name":"exc_progress"})",
         kDefaultProgress,
         {"[ERROR] ExchangeObjectWrapper JSON object has no Exchange Object data."}},
        {R"({"exchange_object_name":"exc_product_structure","binary":true,"exchange_object_data":5})",
         R"({"product_name":"","product_configuration_name":"","units":"unknown","world_orientation":"unknown"})",
         {"[ERROR] ExchangeObjectWrapper JSON object should have UUID in Exchange Object Data field (if binary)."}},
        {R"({"exchange_object_name":"exc_product_structure","binary":false,"exchange_object_data":{"units":"meter"}})",
         R"({"product_name":"","product_configuration_name":"","units":"meter","world_orientation":"unknown"})",
         {}},
        {R"({"exchange_object_name":"exc_progress","binary":1,"exchange_object_data":{"progress":2}})",
         R"({"progress":2,"progress_max":100,"stage":""})",
         {}},
        {R"({"exchange_object_name":"exc_progress","binary":true,"exchange_object_data":"x"})", kDefaultProgress, {}},
        {R"({"exchange_object_name":"exc_progress\u0000z","exchange_object_data":null})", kDefaultProgress, {}},
        {R"({"exchange_object_name":"exc_stage_finished","exchange_object_data":"product_structure"})",
         R"("product_structure")",
         {}},
    };
    for (const EnvelopeRow& one : rows)
    {
        const test::LogCapture log;
        const auto object = opened(envelopeOfText(one.in));
        EXPECT_EQ(object == nullptr ? "none" : test::written(*object), one.object) << one.in;
        EXPECT_EQ(log.complaints(), one.log) << one.in;
    }
}

struct PeekRow
{
    const char* text = "";
    EMessageKind kind = EMessageKind::Unknown;
    const char* object = "";
    const char* buffer = "";
};

TEST(Peek, TellsKindsAndNamesOfAnyText)
{
    const PeekRow rows[] = {
        {"", EMessageKind::Unknown},
        {"a stray line", EMessageKind::Unknown},
        {R"(["command"])", EMessageKind::Unknown},
        {"{}", EMessageKind::Unknown},
        {R"({"name":"translator"})", EMessageKind::Unknown},
        {R"({"command":"ping"})", EMessageKind::Command},
        {R"({"code":"ok","is_finished":true})", EMessageKind::Result},
        {R"({"name":"translator","version":"1"})", EMessageKind::Info},
        {R"({"exchange_object_data":"b","binary":true})", EMessageKind::Unknown},
        {R"({"exchange_object_name":"o"})", EMessageKind::Envelope, "o"},
        {R"({"exchange_object_name":5,"code":"ok"})", EMessageKind::Envelope},
        {R"({"exchange_object_name":"o","binary":true,"exchange_object_data":"b"})", EMessageKind::Envelope, "o", "b"},
        {R"({"exchange_object_name":"o","binary":false,"exchange_object_data":"b"})", EMessageKind::Envelope, "o"},
        {R"({"exchange_object_name":"o","binary":true,"exchange_object_data":5})", EMessageKind::Envelope, "o"},
        {R"({"exchange_object_name":"o","exchange_object_data":{"shared_acis_buffer_name":"b"}})",
         EMessageKind::Envelope, "o", "b"},
        {R"({"exchange_object_name":"o","exchange_object_data":{"shared_acis_buffer_name":null}})",
         EMessageKind::Envelope, "o"},
        // Where the readers end a text, too.
        {R"({"exchange_object_name":"o","binary":true,"exchange_object_data":"b\u0000c"})", EMessageKind::Envelope, "o",
         "b"},
    };
    for (const PeekRow& row : rows)
    {
        const MessageHead head = peekEnvelope(wide(row.text));
        EXPECT_EQ(head.kind, row.kind) << row.text;
        EXPECT_TRUE(head.objectName == wide(row.object)) << row.text;
        EXPECT_TRUE(head.bufferName == wide(row.buffer)) << row.text;
    }
}

TEST(Peek, LeavesTheBufferInPlace)
{
    const std::string envelope = envelopeOf(std::make_shared<ExcProductStructure>());
    const MessageHead head = peekEnvelope(test::unitsOf(envelope));
    EXPECT_TRUE(head.objectName == ExcProductStructure::objName());
    EXPECT_FALSE(test::takeBuffer(head.bufferName).empty());
}

TEST(Corpus, ArrivesByTextBinaryCompressionAndSharedMemory)
{
    for (const wstring& text : test::corpus())
    {
        JsonDocument document(rapidjson::kObjectType);
        JsonValue value(text.data(), static_cast<rapidjson::SizeType>(text.size()), document.GetAllocator());
        document.AddMember(WIDE("text"), value, document.GetAllocator());
        const auto expectText = [&](const JsonDocument& arrived) {
            const JsonValue& found = arrived[WIDE("text")];
            EXPECT_TRUE(wstring(found.GetString(), found.GetStringLength()) == text) << mp::toNarrow(text.substr(0, 9));
        };

        for (const bool pretty : {false, true})
        {
            mp::wstringstream stream;
            JsonTextIO::write(stream, document, pretty);
            JsonDocument read;
            JsonTextIO::read(stream, read);
            expectText(read);
        }

        std::vector<char> form;
        JsonBinaryIO::write(form, document);
        std::string packed;
        Compressor::compress(packed, form.data(), form.size(), -1);
        std::vector<char> unpacked;
        Compressor::decompress(unpacked, packed.data(), packed.size());
        EXPECT_TRUE(unpacked == form);
        JsonDocument read;
        JsonBinaryIO::read(unpacked.data(), unpacked.size(), read, read.GetAllocator());
        expectText(read);

        // In a model object a text ends at its first NUL.
        const wstring cut = text.substr(0, text.find(wchar()));
        EXPECT_TRUE(nameOf(opened(envelopeOf(structureNamed(text)))) == cut);
        const auto message = opened(envelopeOf(std::make_shared<ExcMessage>(text)));
        EXPECT_TRUE(std::dynamic_pointer_cast<ExcMessage>(message)->get() == cut);
    }
}

} // namespace
