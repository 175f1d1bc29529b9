#include "vrx_api/visualization/visu_face.h"

#include "kolt/log.h"
#include "vrx_api/json/shapes.h"

#include <utility>

namespace vrx
{

using Polygon = ExcVisuFace::Polygon;

static constexpr Key kType = WIDE("type");
static constexpr Key kIndices = WIDE("indices");

static constexpr auto describePolygon = [](auto& polygon, auto& fields) {
    fields.always(kType, polygon.type);
    fields.filled(kIndices, places(polygon.indices));
};

// An element that is no object adds no polygon.
static bool decode(const JsonValue& value, std::vector<Polygon>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    field.reserve(field.size() + value.Size());
    for (const JsonValue& element : value.GetArray())
    {
        Polygon polygon;
        if (decode(element, record(polygon, describePolygon)))
        {
            field.push_back(std::move(polygon));
        }
        else
        {
            kolt::log(kolt::kWarning, "ExcVisuFace: polygons array item should be an object.");
        }
    }
    return true;
}

static void putKey(JsonDocument& document, Key key)
{
    document.Key(key.text, static_cast<rapidjson::SizeType>(key.size), false);
}

static void put(JsonDocument& document, const Polygon& polygon)
{
    document.StartObject();
    putKey(document, kType);
    document.Int(polygon.type);
    if (!polygon.indices.empty())
    {
        putKey(document, kIndices);
        document.StartArray();
        for (const std::int32_t index : polygon.indices)
        {
            document.Int(index);
        }
        document.EndArray(static_cast<rapidjson::SizeType>(polygon.indices.size()));
    }
    document.EndObject(polygon.indices.empty() ? 1 : 2);
}

// Polygons come by the million. A document that is populated by events allocates each of these small objects exactly,
// at a fraction of the cost of adding the members one by one.
static JsonValue encode(const std::vector<Polygon>& field, JsonAllocator& allocator)
{
    auto putAll = [&field](JsonDocument& document) {
        document.StartArray();
        for (const Polygon& polygon : field)
        {
            put(document, polygon);
        }
        return document.EndArray(static_cast<rapidjson::SizeType>(field.size()));
    };
    JsonDocument document(&allocator);
    document.Populate(putAll);
    JsonValue array;
    array.Swap(static_cast<JsonValue&>(document));
    return array;
}

template <class Self, class Fields>
void ExcVisuFace::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("vertices"), places(self.m_vertices));
    fields.filled(WIDE("normals"), places(self.m_normals));
    fields.filled(WIDE("polygons"), self.m_polygons);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("id"), self.m_id);
}
template struct Described<ExcVisuFace>;

void ExcVisuFace::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuFace");
}

void ExcVisuFace::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
