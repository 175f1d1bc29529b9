#include "tests/frozen/frozen_files.h"
#include "tests/support/helpers.h"
#include "tests/support/message_text.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <gmock/gmock.h>

using namespace vrx;

namespace
{

const std::filesystem::path kFolder = VRX_API_FROZEN_DATA;

std::string frozen(const std::string& name)
{
    return test::contentOf(kFolder / name);
}

void expectFrozen(const std::string& name, const std::string& written)
{
    const std::string expected = frozen(name);
    EXPECT_TRUE(written == expected)
        << "tests/data/frozen/" << name << " has " << expected.size() << " bytes, " << written.size()
        << " are written, and they differ from byte "
        << std::mismatch(expected.begin(), expected.end(), written.begin(), written.end()).first - expected.begin()
        << " on. These files are the format: a change of one is a change of the format, and other versions will not "
           "understand it.";
}

// Of an exchange object: NAME.json is its text, NAME.bin its binary form, NAME.envelope.json its envelope, NAME.gz the
// compressed buffer of that. A class that writes other keys than it reads has NAME.written.json and NAME.written.bin,
// too. A second text of a class is NAME_2.
class FrozenObject : public testing::TestWithParam<std::string>
{
protected:
    static std::string stem() { return GetParam(); }

    static std::string writtenStem()
    {
        return stem() + (std::filesystem::exists(kFolder / (stem() + ".written.json")) ? ".written" : "");
    }

    static std::shared_ptr<IExchangeObject> made()
    {
        const std::string envelope = frozen(stem() + ".envelope.json");
        return ExchangeObjectRegistry::instance().get(peekEnvelope(test::fromUtf8(envelope)).objectName);
    }

    static std::string form(const IExchangeObject& object)
    {
        Bytes bytes;
        JsonBinaryIO::write(bytes, object);
        return {bytes.begin(), bytes.end()};
    }

    static std::string text(const IExchangeObject& object)
    {
        JsonDocument document;
        object.writeObject(document, document.GetAllocator());
        return test::prettyText(document);
    }
};

TEST_P(FrozenObject, TextStays)
{
    const auto object = made();
    object->readObject(test::treeOfUtf8(frozen(stem() + ".json")));
    object->load(); // which opens the bodies of a block
    expectFrozen(writtenStem() + ".json", text(*object));
    expectFrozen(writtenStem() + ".bin", form(*object));
}

TEST_P(FrozenObject, BinaryFormStays)
{
    const std::string bytes = frozen(stem() + ".bin");
    const auto object = made();
    JsonBinaryIO::read(bytes.data(), bytes.size(), *object);
    object->load();
    expectFrozen(writtenStem() + ".bin", form(*object));

    JsonDocument tree;
    JsonBinaryIO::read(bytes.data(), bytes.size(), tree, tree.GetAllocator());
    expectFrozen(stem() + ".json", test::prettyText(tree));
    std::vector<char> again;
    JsonBinaryIO::write(again, tree);
    expectFrozen(stem() + ".bin", {again.begin(), again.end()});
}

class FrozenEnvelope : public FrozenObject
{
protected:
    // The object of the envelope, whose shared memory, if it has one, holds these bytes.
    static std::shared_ptr<IExchangeObject> opened(const std::string& buffer)
    {
        std::string text = frozen(stem() + ".envelope.json");
        const std::size_t place = text.find(test::kFrozenBuffer);
        if (place != std::string::npos)
        {
            text.replace(place, test::kFrozenBuffer.size(), mp::toNarrow(test::leaveBuffer(buffer)));
        }
        mp::wistringstream stream(test::fromUtf8(text));
        ExchangeObjectWrapper envelope;
        envelope.readObject(stream);
        envelope.get()->load();
        return envelope.get();
    }

    // Compares the envelope and returns the bytes of its buffer.
    static std::string writtenBuffer(const std::shared_ptr<IExchangeObject>& object, ECompression compression)
    {
        ExchangeObjectWrapper envelope;
        envelope.set(object);
        envelope.setCompression(compression);
        mp::wostringstream stream;
        envelope.writeObject(stream);
        std::string text = test::toUtf8(stream.str());
        const mp::wstring buffer = peekEnvelope(stream.str()).bufferName;
        if (!buffer.empty())
        {
            text.replace(text.find(mp::toNarrow(buffer)), buffer.size(), test::kFrozenBuffer);
        }
        expectFrozen(stem() + ".envelope.json", text);
        return buffer.empty() ? std::string() : test::takeBuffer(buffer);
    }
};

TEST_P(FrozenEnvelope, Stays)
{
    if (!made()->binary())
    {
        const std::string buffer = writtenBuffer(opened("bodies"), ECompression::AsTold);
        EXPECT_EQ(buffer, stem() == "exc_block_geometry" ? "bodies" : "");
        return;
    }
    for (const char* const suffix : {".bin", ".gz", ".fast.gz", ".zlib"})
    {
        if (!std::filesystem::exists(kFolder / (stem() + suffix)))
        {
            ASSERT_THAT(suffix, testing::AnyOf(testing::StrEq(".fast.gz"), testing::StrEq(".zlib")));
            continue;
        }
        const auto object = opened(frozen(stem() + suffix));
        expectFrozen(writtenStem() + ".bin", writtenBuffer(object, ECompression::None));
        for (const ECompression compression : {ECompression::AsTold, ECompression::Fast})
        {
            const std::string bytes = writtenBuffer(object, compression);
            std::string plain;
            ASSERT_TRUE(Compressor::isCompressed(bytes.data(), bytes.size()));
            Compressor::decompress(plain, bytes.data(), bytes.size());
            expectFrozen(writtenStem() + ".bin", plain);
        }
    }
}

template <class Message>
void expectMessageStays(const std::string& file)
{
    Message message;
    mp::wistringstream in(test::fromUtf8(frozen(file)));
    message.readObject(in);
    mp::wostringstream out;
    message.writeObject(out);
    expectFrozen(file, test::toUtf8(out.str()));
}

TEST(FrozenMessages, Stay)
{
    for (const char* const kind : {"ping", "import", "export", "legacy_import", "legacy_export"})
    {
        expectMessageStays<Command>(std::string("command_") + kind + ".json");
    }
    expectMessageStays<Result>("result.json");
    expectMessageStays<FerrantInfo>("ferrant_info.json");
}

// All classes, and the second texts that there are.
std::vector<std::string> frozenObjects()
{
    std::vector<std::string> stems;
    for (const wstring& name : ExchangeObjectRegistry::instance().names())
    {
        std::string stem = mp::toNarrow(name);
        stems.push_back(stem);
        stem += "_2";
        if (std::filesystem::exists(kFolder / (stem + ".json")))
        {
            stems.push_back(stem);
        }
    }
    return stems;
}

std::string nameOf(const testing::TestParamInfo<std::string>& info)
{
    return info.param;
}
INSTANTIATE_TEST_SUITE_P(Objects, FrozenObject, testing::ValuesIn(frozenObjects()), nameOf);
INSTANTIATE_TEST_SUITE_P(Objects, FrozenEnvelope, testing::ValuesIn(frozenObjects()), nameOf);

} // namespace
