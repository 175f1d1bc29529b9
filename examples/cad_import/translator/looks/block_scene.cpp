#include "looks/block_scene.h"

#include "kernel/loose_shells.h"
#include "looks/scene_nodes.h"
#include "looks/shape_looks.h"
#include "looks/tessellation.h"
#include "mp/narrow.h"

#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Builder.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <string>

namespace
{

using Node = vrx::ExcVisuNode;

mp::wstring id(char kind, int position)
{
    return mp::toWide(kind + std::to_string(position));
}

// The numbers that the faces and edges have in one body, which is known to the mechanical data.
class BodyIds
{
public:
    // The body's number in the block, from 1; 0 for what is no body.
    BodyIds(const TopoDS_Shape& shape, int body)
        : m_body(body)
    {
        if (body > 0)
        {
            TopExp::MapShapes(shape, TopAbs_FACE, m_faces);
            TopExp::MapShapes(shape, TopAbs_EDGE, m_edges);
        }
    }

    mp::wstring ofFace(const TopoDS_Shape& face, const mp::wstring& sceneId) const
    {
        return of('f', m_faces, face, sceneId);
    }
    mp::wstring ofEdge(const TopoDS_Shape& edge, const mp::wstring& sceneId) const
    {
        return of('e', m_edges, edge, sceneId);
    }

private:
    mp::wstring of(char kind, const TopTools_IndexedMapOfShape& parts, const TopoDS_Shape& part,
                   const mp::wstring& sceneId) const
    {
        return m_body > 0
                   ? mp::toWide(std::to_string(m_body - 1) + '/' + kind + std::to_string(parts.FindIndex(part) - 1))
                   : sceneId;
    }

    int m_body;
    TopTools_IndexedMapOfShape m_faces;
    TopTools_IndexedMapOfShape m_edges;
};

class BlockScene
{
public:
    BlockScene(const TDF_Label& part, const TopoDS_Shape& shape, bool showHidden, const HiddenShapes& hidden)
        : m_shape(shape)
        , m_looks(part, showHidden, hidden)
        , m_look(m_looks.of(XCAFDoc_ShapeTool::GetShape(part)))
        , m_shells(looseShells(shape))
        , m_root(scene_nodes::make(Node::EType::ROOT))
        , m_geometry(scene_nodes::addTo(*m_root, Node::EType::GEOMETRY))
    {
        TopExp::MapShapes(m_shape, TopAbs_FACE, m_faces);
        TopExp::MapShapes(m_shape, TopAbs_EDGE, m_edges);
        TopExp::MapShapes(m_shape, TopAbs_SOLID, m_solids);
    }

    std::shared_ptr<Node> build()
    {
        tessellation::mesh(m_shape);
        setLook(*m_root, m_look);
        addBodies(m_shape, nullptr);
        return m_meshes || m_wires ? m_root : nullptr;
    }

private:
    // A body looks like the innermost of the groups that hold it and have a look.
    void addBodies(const TopoDS_Shape& shape, const ShapeLooks::Look* above)
    {
        const TopoDS_Shape group = shape.ShapeType() < TopAbs_SOLID ? shape : wrapped(shape);
        TopoDS_Compound loose;
        TopoDS_Builder().MakeCompound(loose);
        for (TopoDS_Iterator it(group); it.More(); it.Next())
        {
            const TopoDS_Shape& part = it.Value();
            const ShapeLooks::Look* own = m_looks.of(part);
            const ShapeLooks::Look* look = own ? own : above;
            if (part.ShapeType() < TopAbs_SOLID)
            {
                addBodies(part, look);
            }
            else if (part.ShapeType() <= TopAbs_SHELL)
            {
                addMesh(part, look);
            }
            else if (!own || !own->hidden) // a hidden one would have no node of its own to say so
            {
                TopoDS_Builder().Add(loose, part);
            }
        }
        if (TopExp_Explorer(loose, TopAbs_FACE).More())
        {
            addMesh(loose, above);
        }
        if (TopExp_Explorer(loose, TopAbs_EDGE, TopAbs_FACE).More())
        {
            addWire(loose, above);
        }
    }

    static TopoDS_Shape wrapped(const TopoDS_Shape& shape)
    {
        TopoDS_Compound compound;
        TopoDS_Builder().MakeCompound(compound);
        TopoDS_Builder().Add(compound, shape);
        return compound;
    }

    void addMesh(const TopoDS_Shape& body, const ShapeLooks::Look* look)
    {
        const auto mesh = std::make_shared<vrx::ExcVisuMesh>();
        identify(*mesh, numberOf(body), look);
        const BodyIds ids(body, m_solids.FindIndex(body));
        for (TopExp_Explorer explorer(body, TopAbs_FACE); explorer.More(); explorer.Next())
        {
            if (const auto face = tessellation::face(TopoDS::Face(explorer.Current())))
            {
                face->setId(id('f', m_faces.FindIndex(explorer.Current()) - 1));
                face->setMechanicalId(ids.ofFace(explorer.Current(), face->id()));
                face->setColor(colorOf(explorer.Current()));
                mesh->addFace(face);
            }
        }
        addEdges(*mesh, body, TopAbs_SHAPE, ids);
        if (!m_meshes)
        {
            m_meshes = scene_nodes::addTo(*m_geometry, Node::EType::MESHES);
        }
        const std::shared_ptr<Node> node = scene_nodes::addTo(*m_meshes, Node::EType::MESH);
        node->setLeaf(true);
        node->setMesh(mesh);
        setLook(*node, look != m_look ? look : nullptr);
    }

    void addWire(const TopoDS_Shape& edges, const ShapeLooks::Look* look)
    {
        const auto wire = std::make_shared<vrx::ExcVisuWire>();
        identify(*wire, numberOf(edges), look);
        addEdges(*wire, edges, TopAbs_FACE, BodyIds(edges, 0));
        if (!m_wires)
        {
            m_wires = scene_nodes::addTo(*m_geometry, Node::EType::WIRES);
        }
        const std::shared_ptr<Node> node = scene_nodes::addTo(*m_wires, Node::EType::WIRE);
        node->setLeaf(true);
        node->setWire(wire);
        setLook(*node, look != m_look ? look : nullptr);
    }

    // Solids come first, as their bodies do in the mechanical data, then shells, then the groups of what is left.
    int numberOf(const TopoDS_Shape& body)
    {
        const int solid = m_solids.FindIndex(body);
        const int shell = m_shells.FindIndex(body);
        return solid > 0 ? solid - 1 : m_solids.Extent() + (shell > 0 ? shell - 1 : m_shells.Extent() + m_others++);
    }

    template <class Item>
    void identify(Item& item, int number, const ShapeLooks::Look* look)
    {
        item.setId(id('b', number));
        item.setMechanicalId(item.id());
        item.setGeometryType(vrx::EVisuGeometryType::Part);
        item.setDisplayName(look ? look->name : mp::wstring());
    }

    template <class Item>
    void addEdges(Item& item, const TopoDS_Shape& shape, TopAbs_ShapeEnum notWithin, const BodyIds& ids)
    {
        TopTools_IndexedMapOfShape edges; // each of them once, though two faces share it
        for (TopExp_Explorer explorer(shape, TopAbs_EDGE, notWithin); explorer.More(); explorer.Next())
        {
            edges.Add(explorer.Current());
        }
        for (int i = 1; i <= edges.Extent(); ++i)
        {
            if (const auto edge = tessellation::edge(TopoDS::Edge(edges(i))))
            {
                edge->setMechanicalId(ids.ofEdge(edges(i), id('e', m_edges.FindIndex(edges(i)) - 1)));
                edge->setColor(colorOf(edges(i)));
                item.addEdge(edge);
            }
        }
    }

    vrx::ExcColor colorOf(const TopoDS_Shape& shape) const
    {
        const ShapeLooks::Look* look = m_looks.of(shape);
        return look ? look->color : vrx::ExcColor();
    }

    static void setLook(Node& node, const ShapeLooks::Look* look)
    {
        if (!look || (!look->color.hasRGB() && !look->hidden))
        {
            return;
        }
        const auto attributes = std::make_shared<vrx::ExcVisuAttributes>();
        attributes->setHidden(look->hidden);
        if (look->color.hasRGB())
        {
            attributes->setColor(std::make_shared<vrx::ExcColor>(look->color));
        }
        node.setAttributes(attributes);
    }

    TopoDS_Shape m_shape;
    ShapeLooks m_looks;
    const ShapeLooks::Look* m_look; // the part's own, which stands on the root and gives way to that of a reference
    TopTools_IndexedMapOfShape m_faces;
    TopTools_IndexedMapOfShape m_edges;
    TopTools_IndexedMapOfShape m_solids;
    TopTools_IndexedMapOfShape m_shells; // outside of solids
    std::shared_ptr<Node> m_root;
    std::shared_ptr<Node> m_geometry;
    std::shared_ptr<Node> m_meshes;
    std::shared_ptr<Node> m_wires;
    int m_others = 0; // the groups of faces, or of edges, so far
};

} // namespace

std::shared_ptr<vrx::ExcVisuNode> blockScene(const TDF_Label& part, const TopoDS_Shape& shape, bool showHidden,
                                             const HiddenShapes& hidden)
{
    return shape.IsNull() ? nullptr : BlockScene(part, shape, showHidden, hidden).build();
}
