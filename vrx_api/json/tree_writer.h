#pragma once

#include "vrx_api/json/json_object.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/json/key.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vrx
{

/// Makes a JSON tree of the values that it is given one after the other. Its counterparts are SizeWriter and
/// ByteWriter, and what is said of an `Out` in a template is said of these three.
class TreeWriter
{
public:
    /// What `begin...` gives and the matching `end...` takes.
    using Mark = std::size_t;

    explicit TreeWriter(JsonAllocator& allocator);

    void null() { m_values.emplace_back(); }

    /// A boolean, a double, or an integer of 32 or 64 bits.
    template <class T>
    void scalar(T value)
    {
        m_values.emplace_back(value);
    }

    /// A text is copied; a name lives as long as the library.
    void text(wstring_view text);
    void name(wstring_view name);
    void key(Key key) { name({key.text, key.size}); }

    /// An object asks for its members: a key and a value each.
    Mark beginObject() const { return m_values.size(); }
    void endObject(Mark begin);

    Mark beginArray() const { return m_values.size(); }
    void endArray(Mark begin);

    /// The object writes itself by its virtual operation.
    void object(const IJsonObject& object);

    /// The value that was written.
    JsonValue take();

    /// Adds the members that were written to an object.
    void addTo(JsonValue& object);

private:
    void addFrom(Mark begin, JsonValue& object);

    std::vector<JsonValue> m_values;
    JsonAllocator& m_allocator;
};

} // namespace vrx
