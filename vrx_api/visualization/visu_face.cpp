#include "vrx_api/visualization/visu_face.h"

#include "kolt/log.h"
#include "vrx_api/json/shapes.h"

#include <utility>

namespace vrx
{

using Polygon = ExcVisuFace::Polygon;

static constexpr auto describePolygon = [](auto& polygon, auto& fields) {
    fields.always(WIDE("type"), polygon.type);
    fields.filled(WIDE("indices"), indices(WIDE("vertices"), 3, places(polygon.indices)));
};

// An element that is no object adds no polygon.
template <class Value>
static bool decode(const Value& value, std::vector<Polygon>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    field.reserve(field.size() + value.template expectedCount<Polygon>());
    for (const Value element : value.elements())
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

template <class Out>
static void encode(Out& out, const Polygon& polygon)
{
    encode(out, record(polygon, describePolygon));
}

static void outline(Shape& shape, const Polygon& polygon)
{
    outline(shape, record(polygon, describePolygon));
}

template <class Self, class Fields>
void ExcVisuFace::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("vertices"), places(self.m_vertices));
    fields.filled(WIDE("normals"), places(self.m_normals));
    fields.filled(WIDE("polygons"), self.m_polygons);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
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
