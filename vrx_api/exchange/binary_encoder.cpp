#include "kolt/log.h"
#include "vrx_api/exchange/binary_form.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_children.h"

#include <stdexcept>

namespace vrx
{

namespace
{

template <class Out>
void encodeNumber(Out& out, const JsonValue& value)
{
    if (value.IsDouble())
    {
        out.scalar(value.GetDouble());
    }
    else if (value.IsInt64())
    {
        out.scalar(std::int64_t{value.GetInt64()});
    }
    else if (value.IsUint64())
    {
        out.scalar(std::uint64_t{value.GetUint64()});
    }
    else
    {
        throw std::invalid_argument("Unknown number type");
    }
}

template <class Out>
void encodeScalar(Out& out, const JsonValue& value)
{
    switch (value.GetType())
    {
    case rapidjson::kNullType:
        return out.null();
    case rapidjson::kFalseType:
    case rapidjson::kTrueType:
        return out.scalar(value.GetBool());
    case rapidjson::kStringType:
        return out.text({value.GetString(), value.GetStringLength()});
    default:
        return encodeNumber(out, value);
    }
}

bool isContainer(const JsonValue& value)
{
    return value.IsObject() || value.IsArray();
}

// Keeps a stack of its own, since a tree may be deeper than the thread's stack allows.
template <class Out>
void encodeTree(Out& out, const JsonValue& root)
{
    struct Container
    {
        JsonChildren children;
        typename Out::Mark begin;
    };
    const auto open = [&out](const JsonValue& value) {
        return Container{JsonChildren(value), value.IsObject() ? out.beginObject() : out.beginArray()};
    };

    if (!isContainer(root))
    {
        encodeScalar(out, root);
        return;
    }
    std::vector<Container> outer;
    Container innermost = open(root);
    while (true)
    {
        if (!innermost.children.atEnd())
        {
            const JsonValue& value = innermost.children.next();
            if (isContainer(value))
            {
                outer.push_back(innermost);
                innermost = open(value);
            }
            else
            {
                encodeScalar(out, value);
            }
            continue;
        }
        innermost.children.isObject() ? out.endObject(innermost.begin) : out.endArray(innermost.begin);
        if (outer.empty())
        {
            return;
        }
        innermost = outer.back();
        outer.pop_back();
    }
}

std::size_t sizeOf(const JsonValue& value)
{
    ObjectTrees none;
    SizeWriter out(none);
    encodeTree(out, value);
    return out.size();
}

template <class Buffer>
void encodeInto(Buffer& bytes, const JsonValue& value)
{
    bytes.clear();
    bytes.resize(sizeOf(value));
    ByteWriter out(bytes.data(), {});
    encodeTree(out, value);
}

} // namespace

void SizeWriter::tree(const IJsonObject& object)
{
    if (m_nextTree == m_trees.size())
    {
        auto tree = std::make_unique<JsonDocument>();
        object.writeObject(*tree, tree->GetAllocator());
        m_trees.push_back(std::move(tree));
    }
    encodeTree(*this, *m_trees[m_nextTree++]);
}

void ByteWriter::tree(const IJsonObject&)
{
    encodeTree(*this, **m_nextTree++);
}

BinaryForm::BinaryForm(const IJsonObject& object)
    : m_object(object)
    , m_byTree(kolt::LoggerHolder::levelEnabled(kolt::kTrace))
{
    // An object that is asked for its tree may change others that were counted before: until nobody was asked.
    std::size_t asked = 0;
    do
    {
        asked = m_trees.size();
        m_size = walk(SizeWriter(m_trees)).size();
    } while (m_trees.size() != asked);
}

BinaryForm::~BinaryForm() = default;

void BinaryForm::write(char* bytes) const
{
    walk(ByteWriter(bytes, m_trees));
}

template <class Out>
Out BinaryForm::walk(Out out) const
{
    m_byTree ? out.tree(m_object) : writeDirectly(m_object, out);
    return out;
}

void JsonBinaryIO::write(Bytes& bytes, const JsonValue& value)
{
    encodeInto(bytes, value);
}

void JsonBinaryIO::write(std::vector<char>& bytes, const JsonValue& value)
{
    encodeInto(bytes, value);
}

std::ostream& JsonBinaryIO::write(std::ostream& stream, const JsonValue& value)
{
    Bytes bytes;
    write(bytes, value);
    return stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void JsonBinaryIO::write(Bytes& bytes, const IJsonObject& object)
{
    const BinaryForm form(object);
    bytes.clear();
    bytes.resize(form.size());
    form.write(bytes.data());
}

} // namespace vrx
