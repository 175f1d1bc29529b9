// One side of an exchange between two versions of the library: a translator that sends all that the frozen files hold
// and gets it back, or its host. Both hold what they read of the files, and what comes, against the files.
//
//     exchange host FROZEN TRANSLATOR   TRANSLATOR is this program of the other version
//     exchange translator FROZEN

#include <mp/narrow.h>
#include <mp/shared_buffer.h>
#include <vrx_api/json/json_value.h>
#include <vrx_api/vrx_api.h>

#include <bridge/bridge.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace
{

using Object = std::shared_ptr<vrx::IExchangeObject>;
using Objects = std::vector<Object>;

const mp::wstring kBodies = WIDE("01234567-89ab-4cde-8f01-23456789abcd"); // their shared memory, in the files

void require(bool holds, const std::string& what)
{
    if (!holds)
    {
        throw std::runtime_error(what);
    }
}

std::string textOf(const mp::ISerializable& message)
{
    return mp::toNarrow(vrx::bridge::toText(message));
}

std::string textOf(const vrx::IExchangeObject& object)
{
    vrx::JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    mp::wostringstream stream;
    vrx::JsonTextIO::write(stream, document, true);
    return mp::toNarrow(stream.str());
}

class Frozen
{
public:
    explicit Frozen(std::filesystem::path folder)
        : m_folder(std::move(folder))
    {
        for (const mp::wstring& name : vrx::ExchangeObjectRegistry::instance().names())
        {
            const std::string stem = mp::toNarrow(name);
            m_stems.push_back(stem);
            if (std::filesystem::exists(m_folder / (stem + "_2.json")))
            {
                m_stems.push_back(stem + "_2");
            }
        }
    }

    std::string content(const std::string& name) const
    {
        std::ifstream file(m_folder / name, std::ios::binary);
        require(file.is_open(), name + " cannot be read");
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    template <class Message>
    Message message(const std::string& name) const
    {
        Message message;
        vrx::bridge::fromText(mp::toWide(content(name)), message);
        requireText(name, textOf(message));
        return message;
    }

    void requireText(const std::string& name, const std::string& text) const
    {
        require(text == content(name), name + " became:\n" + text);
    }

    Objects objects() const
    {
        leaveBodies();
        Objects objects;
        for (const std::string& stem : m_stems)
        {
            objects.push_back(read(stem, content(stem + ".json")));
            if (const auto bodies = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(objects.back()))
            {
                bodies->load();
                bodies->own(false); // the host's to remove
            }
            requireText(stem + (isWrittenOtherwise(stem) ? ".written.json" : ".json"), textOf(*objects.back()));
        }
        return objects;
    }

    // The objects of the files after so many times from one side to the other.
    void requireObjects(const Objects& objects, int crossings) const
    {
        require(objects.size() == m_stems.size(), std::to_string(objects.size()) + " objects came");
        auto object = objects.begin();
        for (const std::string& stem : m_stems)
        {
            std::string text = content(stem + ".json");
            for (int crossing = 0; crossing <= crossings && isWrittenOtherwise(stem); ++crossing)
            {
                text = textOf(*read(stem, text));
            }
            require(textOf(**object++) == text, stem + " came otherwise");
        }
        mp::SharedBuffer<char> buffer;
        std::vector<char> bodies;
        require(buffer.openExisting(kBodies), "no bodies came");
        buffer.read(bodies);
        require(std::string(bodies.begin(), bodies.end()) == content("exc_block_geometry.acis"), "other bodies came");
    }

private:
    bool isWrittenOtherwise(const std::string& stem) const
    {
        return std::filesystem::exists(m_folder / (stem + ".written.json"));
    }

    Object read(const std::string& stem, const std::string& text) const
    {
        const std::string name = stem.substr(0, stem.find("_2"));
        const Object object = vrx::ExchangeObjectRegistry::instance().get(mp::toWide(name));
        mp::wistringstream stream(mp::toWide(text));
        vrx::JsonDocument document;
        vrx::JsonTextIO::read(stream, document);
        object->readObject(document);
        return object;
    }

    void leaveBodies() const
    {
        const std::string bytes = content("exc_block_geometry.acis");
        mp::SharedBuffer<char> buffer;
        buffer.open(kBodies, false);
        buffer.write(bytes.data(), bytes.size());
    }

    std::filesystem::path m_folder;
    std::vector<std::string> m_stems;
};

void translate(const Frozen& frozen)
{
    constexpr vrx::ECompression kWays[] = {vrx::ECompression::AsTold, vrx::ECompression::Fast, vrx::ECompression::None};
    vrx::bridge::TranslatorChannel channel;
    while (const auto command = channel.receive())
    {
        if (command->type() == vrx::Command::EType::Info)
        {
            channel.send(frozen.message<vrx::FerrantInfo>("ferrant_info.json"));
            continue;
        }
        const bool isImport = command->type() == vrx::Command::EType::Import;
        const bool isLegacy = command->internalInterface() == vrx::EFerrantInterface::Legacy;
        frozen.requireText(std::string("command_") + (isLegacy ? "legacy_" : "") + (isImport ? "import" : "export") +
                               ".json",
                           textOf(*command));
        const Objects objects = isImport ? frozen.objects() : Objects();
        for (std::size_t i = 0; i < objects.size(); ++i)
        {
            channel.setCompression(kWays[i % std::size(kWays)]);
            channel.send(objects[i]);
        }
        if (!isImport)
        {
            Objects received;
            while (const Object object = channel.receiveObject())
            {
                received.push_back(object);
            }
            frozen.requireObjects(received, 2);
        }
        channel.send(frozen.message<vrx::Result>("result.json"));
    }
}

class Collector : public vrx::bridge::Listener
{
public:
    Objects objects;

private:
    void onProgress(const vrx::ExcProgress& progress) override { add(progress); }
    void onMessage(const mp::wstring& text) override { add(vrx::ExcMessage(text)); }
    void onLog(const mp::wstring& text) override { add(vrx::ExcLog(text)); }
    void onStage(vrx::ExcStageFinished::EStage stage) override { add(vrx::ExcStageFinished(stage)); }
    void onObject(const Object& object) override { objects.push_back(object); }

    template <class T>
    void add(const T& object)
    {
        objects.push_back(std::make_shared<T>(object));
    }
};

void importAndExport(const Frozen& frozen, vrx::bridge::HostSession& session,
                     const std::shared_ptr<vrx::ImportOptions>& importOptions,
                     const std::shared_ptr<vrx::ExportOptions>& exportOptions)
{
    Collector collector;
    frozen.requireText("result.json", textOf(session.importFile(importOptions, collector)));
    frozen.requireObjects(collector.objects, 1);

    std::size_t sent = 0;
    const auto next = [&] { return sent < collector.objects.size() ? collector.objects[sent++] : nullptr; };
    vrx::bridge::Listener silent;
    frozen.requireText("result.json", textOf(session.exportFile(exportOptions, next, silent)));
    std::cout << sent << " objects crossed there and back\n";
}

void host(const Frozen& frozen, const std::vector<std::string>& translator)
{
    vrx::bridge::HostSession session(translator);
    session.setTimeLimit(std::chrono::minutes(1));
    frozen.requireText("ferrant_info.json", textOf(session.info()));
    const auto command = [&](const std::string& kind) { return frozen.message<vrx::Command>("command_" + kind); };
    importAndExport(frozen, session, command("import.json").importOptions(), command("export.json").exportOptions());
    importAndExport(frozen, session, command("legacy_import.json").legacyImportOptions(),
                    command("legacy_export.json").legacyExportOptions());
}

} // namespace

int main(int count, char** arguments)
{
    try
    {
        const std::vector<std::string> words(arguments, arguments + count);
        const Frozen frozen(words.at(2));
        words.at(1) == "host" ? host(frozen, {words.at(3), "translator", words.at(2)}) : translate(frozen);
        return 0;
    }
    catch (const std::exception& failure)
    {
        std::cerr << arguments[0] << ": " << failure.what() << '\n';
        return 1;
    }
}
