#include "tests/faults/roads.h"

#include "bridge/bridge.h"
#include "tests/full_rows/full_rows.h"
#include "tests/support/bodies.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/vrx_api.h"

#include <stdexcept>

using namespace vrx;

namespace faults
{

namespace
{

std::string contentOf(const mp::ISerializable& message)
{
    return test::written(message);
}

std::string contentOf(const ExchangeObjectWrapper& envelope)
{
    return test::written(*envelope.get());
}

// A message that is written to a stream and read from it again, of which one meets the faults.
class OneWay : public Road
{
public:
    explicit OneWay(EManner manner)
        : m_reads(manner == EManner::Reads)
    {
    }

    void prepare() override
    {
        m_stream = std::make_unique<mp::wstringstream>();
        if (m_reads)
        {
            write(*m_stream);
        }
    }
    void run() override { m_reads ? read() : write(*m_stream); }
    std::string result() override
    {
        if (!m_reads)
        {
            read();
        }
        return content();
    }
    void forget() override
    {
        m_stream.reset();
        forgetRead();
    }

protected:
    virtual void write(mp::wostream& stream) = 0;
    virtual void read(mp::wistream& stream) = 0;
    virtual std::string content() const = 0;
    virtual void forgetRead() = 0;

private:
    void read()
    {
        m_stream->seekg(0);
        read(*m_stream);
    }

    bool m_reads;
    std::unique_ptr<mp::wstringstream> m_stream;
};

template <class T>
class Message : public OneWay
{
public:
    Message(EManner manner, std::shared_ptr<T> filled)
        : OneWay(manner)
        , m_filled(std::move(filled))
    {
    }

protected:
    void write(mp::wostream& stream) override { m_filled->writeObject(stream); }
    void read(mp::wistream& stream) override
    {
        m_read = std::make_unique<T>();
        m_read->readObject(stream);
    }
    std::string content() const override { return contentOf(*m_read); }
    void forgetRead() override { m_read.reset(); }

private:
    std::shared_ptr<T> m_filled;
    std::unique_ptr<T> m_read;
};

// A failure of bodies is told by false.
void require(bool isDone)
{
    if (!isDone)
    {
        throw std::runtime_error("there are no bodies");
    }
}

std::shared_ptr<ExcBlockGeometry> blockOf(const test::Bodies& bodies, bool compresses)
{
    auto block = std::make_shared<ExcBlockGeometry>();
    require(block->setGeometry(bodies.list(), compresses));
    return block;
}

class Bodies : public OneWay
{
public:
    Bodies(EManner manner, bool compresses)
        : OneWay(manner)
        , m_compresses(compresses)
    {
        m_saved.addBrick("one");
        m_saved.addBrick("two");
    }

protected:
    void write(mp::wostream& stream) override
    {
        const auto geometry = blockOf(m_saved, m_compresses);
        try
        {
            ExchangeObjectWrapper envelope;
            envelope.set(geometry);
            envelope.writeObject(stream);
        }
        catch (const std::exception&)
        {
            geometry->own(true); // Nobody is told of the buffer, so that it is this program's to remove.
            throw;
        }
    }
    void read(mp::wistream& stream) override
    {
        ExchangeObjectWrapper envelope;
        envelope.readObject(stream);
        const auto geometry = std::dynamic_pointer_cast<ExcBlockGeometry>(envelope.get());
        geometry->load();
        m_restored = std::make_unique<test::Bodies>();
        std::vector<std::uint64_t> ids;
        require(geometry->getGeometry(m_restored->list(), ids));
    }
    std::string content() const override { return m_restored->describe(); }
    void forgetRead() override { m_restored.reset(); }

private:
    bool m_compresses;
    test::Bodies m_saved;
    std::unique_ptr<test::Bodies> m_restored;
};

// A tree of the text or the binary form, read by rules.
class Tree : public Road
{
public:
    Tree(std::string text, bool isBinary, const ReadRules& rules)
        : m_text(std::move(text))
        , m_isBinary(isBinary)
        , m_rules(rules)
    {
        JsonBinaryIO::write(m_bytes, test::parsed(m_text));
    }

    void prepare() override
    {
        m_stream = std::make_unique<mp::wistringstream>(test::wide(m_text));
        m_read = std::make_unique<JsonDocument>();
    }
    void run() override
    {
        m_isBinary ? JsonBinaryIO::read(m_bytes.data(), m_bytes.size(), *m_read, m_read->GetAllocator(), m_rules)
                   : static_cast<void>(JsonTextIO::read(*m_stream, *m_read, m_rules));
    }
    std::string result() override { return test::textOf(*m_read); }
    void forget() override
    {
        m_stream.reset();
        m_read.reset();
    }

private:
    std::string m_text;
    bool m_isBinary;
    ReadRules m_rules;
    Bytes m_bytes;
    std::unique_ptr<mp::wistringstream> m_stream;
    std::unique_ptr<JsonDocument> m_read;
};

// Another road, with all lines of the log.
class Logged : public Road
{
public:
    explicit Logged(std::shared_ptr<Road> road)
        : m_road(std::move(road))
    {
    }

    void prepare() override
    {
        test::LogFile::instance().open();
        m_road->prepare();
    }
    void run() override { m_road->run(); }
    std::string result() override { return m_road->result(); }
    void forget() override
    {
        m_road->forget();
        test::LogFile::close();
    }

private:
    std::shared_ptr<Road> m_road;
};

std::shared_ptr<ExcProductStructure> structure(const mp::wstring& name)
{
    auto structure = std::make_shared<ExcProductStructure>();
    structure->setProductName(name);
    return structure;
}

// Hears all that a translator sends, as one text.
class Ear : public bridge::Listener
{
public:
    void onMessage(const mp::wstring& text) override { m_told += "message " + mp::toNarrow(text) + '\n'; }
    void onObject(const std::shared_ptr<IExchangeObject>& object) override { m_told += test::written(*object) + '\n'; }

    const std::string& told() const { return m_told; }

private:
    std::string m_told;
};

/// A host with its translator.
class Session : public Road
{
public:
    Session() { m_bodies.addBrick("exported"); }

    void run() override
    {
        bridge::HostSession session({VRX_FAULTS_PEER});
        session.setTimeLimit(std::chrono::seconds(10));
        Ear ear;
        session.info();
        const auto importOptions = Command::newImportOptions();
        session.importFile(importOptions, ear);
        const auto exportOptions = Command::newExportOptions();
        int place = 0;
        session.exportFile(
            exportOptions, [&] { return exported(place++); }, ear);
        m_told = ear.told();
    }
    std::string result() override { return m_told; }
    void forget() override
    {
        m_told = std::string();
        set_global_error_info(nullptr); // The kernel keeps its last error.
    }
    bool startsProcess() const override { return true; }

private:
    std::shared_ptr<IExchangeObject> exported(int place) const
    {
        switch (place)
        {
        case 0:
            return structure(WIDE("exported"));
        case 1:
            return blockOf(m_bodies, false);
        default:
            return nullptr;
        }
    }

    test::Bodies m_bodies;
    std::string m_told;
};

class Roads
{
public:
    template <class T>
    void add(const std::string& title, const std::shared_ptr<T>& filled)
    {
        all.push_back({title + " written", std::make_shared<Message<T>>(EManner::Writes, filled), EManner::Writes});
        all.push_back({title + " read", std::make_shared<Message<T>>(EManner::Reads, filled), EManner::Reads});
    }

    template <class T>
    void addMessage(const std::string& title, const std::string& text)
    {
        const auto filled = std::make_shared<T>();
        test::readText(*filled, text);
        add(title, filled);
    }

    void addObject(const std::string& title, const std::shared_ptr<IExchangeObject>& object,
                   ECompression compression = ECompression::AsTold)
    {
        const auto filled = std::make_shared<ExchangeObjectWrapper>();
        filled->set(object);
        filled->setCompression(compression);
        add(title, filled);
    }

    void addTree(const std::string& title, bool isBinary, const ReadRules& rules)
    {
        const std::string text =
            R"({"text":"longer than what fits in a value","array":[1,2.5,true,null,{"":[]}],"o":{}})";
        all.push_back({title, std::make_shared<Tree>(text, isBinary, rules), EManner::Reads});
    }

    void addBodies(const std::string& title, bool compresses)
    {
        all.push_back({title + " written", std::make_shared<Bodies>(EManner::Writes, compresses), EManner::Writes});
        all.push_back({title + " read", std::make_shared<Bodies>(EManner::Reads, compresses), EManner::Reads});
    }

    std::vector<NamedRoad> all;
};

} // namespace

std::vector<NamedRoad> allRoads()
{
    Roads roads;
    for (const test::FullRow& row : test::allFullRows())
    {
        if (const auto object = std::dynamic_pointer_cast<IExchangeObject>(row.make()))
        {
            test::readText(*object, row.in);
            roads.addObject(row.title, object);
        }
    }
    // Small objects are compressed in another way.
    const auto large = structure(mp::wstring(10000, 'a'));
    roads.addObject("large object", large);
    roads.addObject("large object fast", large, ECompression::Fast);
    roads.addObject("large object plain", large, ECompression::None);
    roads.all.push_back(
        {"large object read and logged", std::make_shared<Logged>(roads.all.back().road), EManner::Reads});
    roads.addTree("binary form as a tree", true, {});
    roads.addTree("binary form as a tree strictly", true, ReadRules::forUntrusted());
    roads.addTree("text as a tree strictly", false, ReadRules::forUntrusted());
    roads.addBodies("bodies", false);
    roads.addBodies("bodies compressed", true);
    roads.addMessage<Command>("command", R"({"ferrant_interface":"connect","command":"import","options":{"file":"f",)"
                                         R"("format_options":[{"operation_type":"import","format_type":"JT",)"
                                         R"("edges_mode":"all","user_prop_mode":"unknown"}]}})");
    roads.addMessage<Result>("result", R"({"code":"warning","message":"m","is_finished":true})");
    roads.addMessage<FerrantInfo>("translator description",
                                  R"({"name":"n","version":"v","thirdparty_cores":[{"name":"k","version":"1"}],)"
                                  R"("import_formats":[{"description":"d","extensions":["e"],"filters":["f;g"]}]})");
    roads.all.push_back({"host", std::make_shared<Session>(), EManner::Writes});
    roads.all.push_back({"translator", std::make_shared<Session>(), EManner::HasOtherWrite});
    return roads.all;
}

} // namespace faults
