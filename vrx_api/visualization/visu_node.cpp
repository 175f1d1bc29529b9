#include "vrx_api/visualization/visu_node.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/visualization/visu_node_type_table.h"

#include <iterator>
#include <new>

namespace vrx
{

static constexpr Key kChildNodes = WIDE("child_nodes");

namespace
{

// The description only makes the places of the children, in the node or in its JSON. They are filled by a walk over the
// tree that keeps a stack of its own, since a tree may be deeper than the thread's stack allows.
template <class Nodes>
struct ChildPlaces
{
    Nodes& nodes;
};
template <class Nodes>
ChildPlaces(Nodes&) -> ChildPlaces<Nodes>;

template <class Nodes>
bool isEmpty(const ChildPlaces<Nodes>& field)
{
    return field.nodes.empty();
}

template <class Nodes>
bool decode(const JsonValue& value, const ChildPlaces<Nodes>& field)
{
    if (!value.IsArray())
    {
        return false;
    }
    field.nodes.reserve(field.nodes.size() + value.Size());
    for (rapidjson::SizeType i = 0; i < value.Size(); ++i)
    {
        field.nodes.push_back(std::make_shared<ExcVisuNode>());
    }
    return true;
}

template <class Nodes>
JsonValue encode(const ChildPlaces<Nodes>& field, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(field.nodes.size()), allocator);
    for (std::size_t i = 0; i < field.nodes.size(); ++i)
    {
        array.PushBack(JsonValue(), allocator);
    }
    return array;
}

} // namespace

template <class Self, class Fields>
void ExcVisuNode::describe(Self& self, Fields& fields)
{
    const ChildPlaces childPlaces{self.m_childNodes};

    fields.always(WIDE("is_leaf"), self.m_leaf);
    fields.filled(WIDE("attributes"), self.m_attributes);
    fields.filled(WIDE("transformation"), self.m_transformation);
    fields.filled(WIDE("mesh"), self.m_mesh);
    fields.filled(WIDE("wire"), self.m_wire);
    fields.filled(WIDE("pmi"), self.m_pmi);
    fields.filled(WIDE("point_set"), self.m_pointSet);
    fields.always(WIDE("type"), self.m_type);
    fields.always(WIDE("group_name"), self.m_groupName);
    fields.filled(kChildNodes, childPlaces);
}
template struct Described<ExcVisuNode>;

namespace
{

// The children of one node that are still to come, each beside its place in the JSON.
template <class Child, class Json>
struct Level
{
    Child* child;
    Json* json;
    Json* end;
};

// Visits a node and all below it, in the order of the document. `visit` takes a node and its JSON, and returns the
// level of its children.
template <class Child, class Json, class Node, class Visit>
void walk(Node& root, Json& json, const Visit& visit)
{
    std::vector<Level<Child, Json>> open{visit(root, json)};
    while (!open.empty())
    {
        Level<Child, Json>& level = open.back();
        if (level.json == level.end)
        {
            open.pop_back();
            continue;
        }
        Node& child = **level.child++;
        open.push_back(visit(child, *level.json++));
    }
}

} // namespace

void ExcVisuNode::readObject(const JsonValue& value)
{
    using Child = std::shared_ptr<ExcVisuNode>;
    const auto visit = [](ExcVisuNode& node, const JsonValue& json) -> Level<Child, const JsonValue> {
        const std::size_t firstRead = node.m_childNodes.size();
        readFields(node, json, "ExcVisuNode");
        if (node.m_childNodes.size() == firstRead)
        {
            return {nullptr, nullptr, nullptr};
        }
        const JsonValue& children = *find(json, kChildNodes);
        return {&node.m_childNodes[firstRead], children.Begin(), children.End()};
    };
    walk<Child, const JsonValue>(*this, value, visit);
}

void ExcVisuNode::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    using Child = const std::shared_ptr<ExcVisuNode>;
    const auto visit = [&allocator](const ExcVisuNode& node, JsonValue& json) -> Level<Child, JsonValue> {
        writeFields(node, json, allocator);
        if (node.m_childNodes.empty())
        {
            return {nullptr, nullptr, nullptr};
        }
        JsonValue& children = (json.MemberEnd() - 1)->value;
        return {node.m_childNodes.data(), children.Begin(), children.End()};
    };
    walk<Child, JsonValue>(*this, value, visit);
}

// Nodes that only this tree holds lose their children before they end, so that no end waits for another.
ExcVisuNode::~ExcVisuNode()
{
    std::vector<std::shared_ptr<ExcVisuNode>> ending = std::move(m_childNodes);
    while (!ending.empty())
    {
        const std::shared_ptr<ExcVisuNode> node = std::move(ending.back());
        ending.pop_back();
        if (node.use_count() > 1)
        {
            continue;
        }
        try
        {
            std::vector<std::shared_ptr<ExcVisuNode>>& children = node->m_childNodes;
            ending.insert(ending.end(), std::make_move_iterator(children.begin()),
                          std::make_move_iterator(children.end()));
            children.clear();
        }
        catch (const std::bad_alloc&)
        {
            // The node keeps its children and ends them itself.
        }
    }
}

static constexpr const char* kNullChild = "ExcVisuNode: attempt to add null child Visu Node object.";

void ExcVisuNode::addChildNode(const std::shared_ptr<ExcVisuNode>& node)
{
    add(m_childNodes, node, kNullChild);
}

void ExcVisuNode::addChildNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes)
{
    addAll(m_childNodes, nodes, kNullChild);
}

void ExcVisuNode::setChildNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes)
{
    setAll(m_childNodes, nodes, kNullChild);
}

} // namespace vrx
