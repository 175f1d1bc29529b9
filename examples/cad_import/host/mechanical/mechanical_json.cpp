#include "mechanical/mechanical_json.h"

#include "mechanical/hole_callout.h"
#include "mp/narrow.h"
#include "page_json.h"
#include "wire_name.h"

#include <optional>

namespace
{

using Json = PageJson;

void optionalNumber(Json& json, const char* key, std::optional<double> value)
{
    value ? json.number(key, *value) : json.null(key);
}

void optionalIndex(Json& json, const char* key, std::optional<std::size_t> value)
{
    json.Key(key);
    value ? json.Uint64(*value) : json.Null();
}

void indices(Json& json, const char* key, const std::vector<std::size_t>& values)
{
    json.Key(key);
    json.StartArray();
    for (const std::size_t value : values)
    {
        json.Uint64(value);
    }
    json.EndArray();
}

mp::wstring bodyId(std::size_t position)
{
    return mp::toWide('b' + std::to_string(position));
}

void members(Json& json, const PartMaterial& material)
{
    json.field("name", material.name);
    optionalNumber(json, "density", material.density);
    json.Key("properties");
    json.StartArray();
    for (const PartMaterial::Property& property : material.properties)
    {
        json.StartObject();
        json.field("name", property.name);
        json.number("value", property.value);
        json.field("unit", property.unit);
        json.EndObject();
    }
    json.EndArray();
    std::vector<mp::wstring> bodies;
    for (const std::size_t body : material.bodies)
    {
        bodies.push_back(bodyId(body));
    }
    json.texts("bodies", bodies);
}

void members(Json& json, const PartLayer& layer)
{
    json.Key("id");
    json.Int(layer.id);
    json.field("name", layer.name);
    json.flag("hidden", layer.isHidden);
    json.texts("entities", layer.entities);
}

void members(Json& json, const PartEntity& entity)
{
    json.field("entity", entity.entity);
    json.texts("names", entity.names);
    json.field("name", entity.name);
    json.flag("hidden", entity.isHidden);
    json.field("line_type", entity.lineType);
    json.number("line_thickness", entity.lineThickness);
}

const char* kindOf(PartHole::EKind kind)
{
    switch (kind)
    {
    case PartHole::EKind::Simple:
        return "simple";
    case PartHole::EKind::Taper:
        return "taper";
    case PartHole::EKind::CounterBore:
        return "counterbore";
    case PartHole::EKind::CounterSink:
        return "countersink";
    case PartHole::EKind::CounterDrill:
        break;
    }
    return "counterdrill";
}

mp::wstring endOf(PartHole::EEnd end)
{
    vrx::ExcMfgSimpleHole hole;
    hole.setBottomLimitExtentType(end);
    return wireName(hole, WIDE("bottom_limit_extent_type"));
}

void opening(Json& json, const PartHole& hole)
{
    using EKind = PartHole::EKind;
    const bool isBored = hole.kind == EKind::CounterBore || hole.kind == EKind::CounterDrill;
    const bool isSunk = hole.kind == EKind::CounterSink || hole.kind == EKind::CounterDrill;
    if (isBored || isSunk)
    {
        json.number("counter_diameter", hole.counterDiameter);
    }
    if (isBored)
    {
        json.number("counter_depth", hole.counterDepth);
    }
    if (isSunk)
    {
        json.number("counter_angle", hole.counterAngle);
    }
    if (hole.kind == EKind::CounterDrill)
    {
        json.number("sink_diameter", hole.sinkDiameter);
    }
    if (hole.kind == EKind::Taper)
    {
        json.number("taper_angle", hole.taperAngle);
    }
}

void members(Json& json, const PartHole& hole, const std::vector<PartThread>& threads)
{
    json.field("kind", std::string(kindOf(hole.kind)));
    json.number("diameter", hole.diameter);
    json.number("depth", hole.depth);
    json.flag("through", hole.isThrough());
    json.field("end", endOf(hole.end));
    json.number("tip_angle", hole.tipAngle);
    json.Key("axis");
    json.StartObject();
    json.vector("origin", hole.center);
    json.vector("direction", hole.direction);
    json.EndObject();
    opening(json, hole);
    hole.thread ? json.field("thread", threads[*hole.thread].designation) : json.null("thread");
    optionalIndex(json, "pattern", hole.pattern);
    optionalIndex(json, "body", hole.body);
    json.texts("faces", hole.faces);
    json.texts("limiting", hole.limiting);
    json.field("text", hole_callout::text(hole, threads));
}

void members(Json& json, const PartPattern& pattern)
{
    json.field("type", std::string(pattern.isCircular ? "circular" : "rectangular"));
    indices(json, "holes", pattern.holes);
    if (pattern.isCircular)
    {
        json.Key("count");
        json.Int(pattern.count);
        json.number("angle", pattern.angle);
        json.vector("center", pattern.center);
        json.vector("axis", pattern.axis);
        json.number("diameter", pattern.diameter);
        json.field("text", hole_callout::text(pattern));
        return;
    }
    json.Key("counts");
    json.StartArray();
    json.Int(pattern.counts[0]);
    json.Int(pattern.counts[1]);
    json.EndArray();
    json.numbers("spacing", pattern.spacing);
    json.Key("directions");
    json.StartArray();
    json.vector(pattern.directions[0]);
    json.vector(pattern.directions[1]);
    json.EndArray();
    json.field("text", hole_callout::text(pattern));
}

const char* handOf(PartThread::EHand hand)
{
    switch (hand)
    {
    case PartThread::EHand::RightHanded:
        return "right";
    case PartThread::EHand::LeftHanded:
        return "left";
    case PartThread::EHand::Unknown:
        break;
    }
    return "unknown";
}

void members(Json& json, const PartThread& thread)
{
    json.field("kind", std::string(thread.isInternal ? "internal" : "external"));
    json.field("designation", thread.designation);
    json.number("diameter", thread.diameter);
    json.number("pitch", thread.pitch);
    json.number("depth", thread.depth);
    json.field("hand", std::string(handOf(thread.hand)));
    json.texts("faces", thread.faces);
    optionalIndex(json, "hole", thread.hole);
    json.field("text", hole_callout::text(thread));
}

const char* nameOf(StatedFigure::EWhat what)
{
    switch (what)
    {
    case StatedFigure::EWhat::Volume:
        return "volume";
    case StatedFigure::EWhat::Area:
        return "area";
    case StatedFigure::EWhat::Centroid:
        break;
    }
    return "centroid";
}

void oneOrThree(Json& json, const char* key, const std::vector<double>& numbers)
{
    numbers.size() == 1 ? json.number(key, numbers.front()) : json.numbers(key, numbers);
}

void members(Json& json, const StatedFigure& figure)
{
    json.field("what", std::string(nameOf(figure.what)));
    figure.body ? json.field("body", bodyId(*figure.body)) : json.null("body");
    oneOrThree(json, "stated", figure.stated);
    oneOrThree(json, "found", figure.found);
    json.number("deviation", figure.deviation);
    json.flag("agrees", figure.agrees());
}

template <class Rows, class... Context>
std::string array(const Rows& rows, const Context&... context)
{
    Json json;
    json.StartArray();
    for (const auto& row : rows)
    {
        json.StartObject();
        members(json, row, context...);
        json.EndObject();
    }
    json.EndArray();
    return json.text();
}

std::string massText(const MechanicalPart& part)
{
    Json json;
    part.mass ? json.number(*part.mass) : static_cast<void>(json.Null());
    return json.text();
}

std::vector<std::pair<std::string, std::string>> membersOf(const MechanicalPart& part)
{
    const PartHoles& features = part.features;
    return {{"mass", massText(part)},
            {"materials", array(part.materials)},
            {"layers", array(part.layers)},
            {"holes", array(features.holes, features.threads)},
            {"patterns", array(features.patterns)},
            {"threads", array(features.threads)},
            {"entities", array(part.entities)},
            {"stated", array(part.stated)}};
}

} // namespace

std::vector<std::pair<std::string, std::string>> mechanicalMembers(const MechanicalModel& model, std::uint64_t block)
{
    const auto part = model.parts.find(block);
    if (part != model.parts.end())
    {
        return membersOf(part->second);
    }
    const auto stated = model.assemblies.find(block);
    if (stated != model.assemblies.end())
    {
        return {{"stated", array(stated->second)}};
    }
    return {};
}

std::string mechanicalJson(const MechanicalModel& model, std::uint64_t block)
{
    const auto members = mechanicalMembers(model, block);
    if (members.empty())
    {
        return {};
    }
    Json json;
    json.StartObject();
    for (const auto& [key, value] : members)
    {
        json.Key(key.c_str());
        json.raw(value);
    }
    json.EndObject();
    return json.text();
}
