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

// A tree may be deeper than the thread's stack allows: the description only makes places for the children that are
// read, and walks that keep a stack of their own fill them and write them.
template <class Nodes>
struct ChildPlaces
{
    Nodes& nodes;
};
template <class Nodes>
ChildPlaces(Nodes&) -> ChildPlaces<Nodes>;

template <class Value, class Nodes>
bool decode(const Value& value, const ChildPlaces<Nodes>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    const std::size_t count = field.nodes.size() + value.elements().count();
    field.nodes.reserve(count);
    while (field.nodes.size() < count)
    {
        field.nodes.push_back(std::make_shared<ExcVisuNode>());
    }
    return true;
}

template <class Nodes>
void outline(Shape& shape, const ChildPlaces<Nodes>& field)
{
    outline(shape, field.nodes);
}

} // namespace

template <class Self, class Fields>
void ExcVisuNode::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("is_leaf"), self.m_leaf);
    fields.filled(WIDE("attributes"), self.m_attributes);
    fields.filled(WIDE("transformation"), self.m_transformation);
    fields.filled(WIDE("mesh"), self.m_mesh);
    fields.filled(WIDE("wire"), self.m_wire);
    fields.filled(WIDE("pmi"), self.m_pmi);
    fields.filled(WIDE("point_set"), self.m_pointSet);
    fields.always(WIDE("type"), self.m_type);
    fields.always(WIDE("group_name"), self.m_groupName);
    fields.readOnly(kChildNodes, ChildPlaces{self.m_childNodes});
    fields.apart(kChildNodes, ChildPlaces{self.m_childNodes});
}
template struct Described<ExcVisuNode>;
template struct Listed<ExcVisuNode>;

// The walks over a node and all below it, in the order of the document.
struct VisuTree
{
    template <class Value>
    static void read(ExcVisuNode& root, const Value& rootValue)
    {
        using Place = decltype(rootValue.elements().begin());
        struct Level
        {
            std::shared_ptr<ExcVisuNode>* child;
            Place value;
            Place end;
        };
        std::vector<Level> open;
        const auto visit = [&open](ExcVisuNode& node, const Value& value) {
            kolt::trace();
            const std::size_t firstRead = node.m_childNodes.size();
            if (isObject(value, "ExcVisuNode"))
            {
                readDescribed(node, value);
            }
            if (node.m_childNodes.size() != firstRead)
            {
                const auto children = findMember(value, kChildNodes).elements();
                open.push_back({&node.m_childNodes[firstRead], children.begin(), children.end()});
            }
        };
        visit(root, rootValue);
        while (!open.empty())
        {
            Level& level = open.back();
            if (level.value == level.end)
            {
                open.pop_back();
                continue;
            }
            ExcVisuNode& child = **level.child++;
            const Value value = *level.value;
            ++level.value;
            visit(child, value);
        }
    }

    template <class Out>
    static void write(const ExcVisuNode& root, Out& out)
    {
        struct Level
        {
            const ExcVisuNode& node;
            typename Out::Mark object;
            typename Out::Mark children;
            std::size_t written;
        };
        std::vector<Level> open;
        const auto visit = [&](const ExcVisuNode& node) {
            kolt::trace();
            Level level{node, out.beginObject(), {}, 0};
            FieldWriter<Out> fields(out);
            Described<ExcVisuNode>::walk(node, fields);
            if (!node.m_childNodes.empty())
            {
                out.key(kChildNodes);
                level.children = out.beginArray();
            }
            open.push_back(level);
        };
        visit(root);
        while (!open.empty())
        {
            Level& level = open.back();
            const auto& children = level.node.m_childNodes;
            if (level.written != children.size())
            {
                visit(*children[level.written++]);
                continue;
            }
            if (!children.empty())
            {
                out.endArray(level.children);
            }
            out.endObject(level.object);
            open.pop_back();
        }
    }

    static void readDirectly(IJsonObject& object, BinaryValue value) { read(static_cast<ExcVisuNode&>(object), value); }

    template <class Out>
    static void writeDirectly(const IJsonObject& object, Out& out)
    {
        write(static_cast<const ExcVisuNode&>(object), out);
    }
};

static const bool s_reads = enterReader(typeid(ExcVisuNode), &VisuTree::readDirectly);
static const bool s_writes =
    enterWriter(typeid(ExcVisuNode), &VisuTree::writeDirectly<SizeWriter>, &VisuTree::writeDirectly<ByteWriter>);

void ExcVisuNode::readObject(const JsonValue& value)
{
    VisuTree::read(*this, TreeValue(&value));
}

void ExcVisuNode::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    TreeWriter out(allocator);
    VisuTree::write(*this, out);
    value = out.take();
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
