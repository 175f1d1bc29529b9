#include "measured_body.h"

#include "model_failure.h"

#include <BinTools.hxx>
#include <OSD.hxx>
#include <Standard_ErrorHandler.hxx>
#include <Standard_Failure.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <csignal>
#include <cstddef>
#include <iterator>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>

namespace
{

using ListParts = outcome (*)(ENTITY*, ENTITY_LIST&, PAT_NEXT_TYPE, AcisOptions*);

/// The parts of one kind in a body, beside those in its B-rep: a reference to a face by its number must mean the same
/// in both.
class Numbering
{
public:
    Numbering(ENTITY& body, const TopoDS_Shape& shape, ListParts list, TopAbs_ShapeEnum type)
        : m_list(list)
        , m_type(type)
    {
        list(&body, m_entities, PAT_CAN_CREATE, nullptr);
        TopExp::MapShapes(shape, type, m_shapes);
    }

    int count() const { return m_shapes.Extent(); }
    bool hasSameCount() const { return m_entities.count() == count(); }
    ENTITY& entity(int index) const { return *m_entities[index]; }
    const TopoDS_Shape& shape(int index) const { return m_shapes(index + 1); }

    // True when an entity holds the same of these parts as a shape does.
    bool isSameBelow(ENTITY& entity, const TopoDS_Shape& shape) const
    {
        const Numbering below(entity, shape, m_list, m_type);
        bool same = below.hasSameCount();
        for (int i = 0; same && i < below.count(); ++i)
        {
            same = m_entities.lookup(&below.entity(i)) + 1 == m_shapes.FindIndex(below.shape(i));
        }
        return same;
    }

private:
    ListParts m_list;
    TopAbs_ShapeEnum m_type;
    ENTITY_LIST m_entities;
    TopTools_IndexedMapOfShape m_shapes;
};

bool areSameBelow(const Numbering& holders, const Numbering& parts)
{
    bool same = holders.hasSameCount() && parts.hasSameCount();
    for (int i = 0; same && i < holders.count(); ++i)
    {
        same = parts.isSameBelow(holders.entity(i), holders.shape(i));
    }
    return same;
}

void checkNumbering(ENTITY& body, const TopoDS_Shape& shape)
{
    const Numbering faces(body, shape, api_get_faces, TopAbs_FACE);
    const Numbering edges(body, shape, api_get_edges, TopAbs_EDGE);
    const Numbering vertices(body, shape, api_get_vertices, TopAbs_VERTEX);
    if (!areSameBelow(faces, edges) || !areSameBelow(edges, vertices))
    {
        throw ModelFailure("The faces, edges and vertices of a body are not those of its B-rep.");
    }
}

TopoDS_Shape shapeOf(const ENTITY& entity)
{
    const auto* const body = dynamic_cast<const BODY*>(&entity);
    if (body == nullptr)
    {
        throw ModelFailure("The translator sent something that is no body.");
    }
    std::istringstream stream(std::string(body->payload().begin(), body->payload().end()), std::ios::binary);
    TopoDS_Shape shape;
    BinTools::Read(shape, stream);
    if (shape.IsNull())
    {
        throw Standard_Failure("there is none");
    }
    return shape;
}

[[noreturn]] void fail(const std::string& reason)
{
    throw ModelFailure("The B-rep of a body can not be used: " + reason);
}

// Lets the kernel turn its crashes into failures. It takes signals of the user too: those stay with the host.
bool takeCrashes()
{
    const int numbers[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};
    struct sigaction actions[std::size(numbers)];
    sigset_t ofUser;
    sigset_t blocked;
    sigemptyset(&ofUser);
    for (const int number : numbers)
    {
        sigaddset(&ofUser, number);
    }
    sigprocmask(SIG_BLOCK, &ofUser, &blocked);
    for (std::size_t i = 0; i < std::size(numbers); ++i)
    {
        sigaction(numbers[i], nullptr, &actions[i]);
    }
    OSD::SetSignal(false);
    for (std::size_t i = 0; i < std::size(numbers); ++i)
    {
        sigaction(numbers[i], &actions[i], nullptr);
    }
    sigprocmask(SIG_SETMASK, &blocked, nullptr);
    return true;
}

} // namespace

BodyFigures measuredBody(ENTITY& body, EBox box)
{
    static const bool kTakesCrashes = takeCrashes();
    static_cast<void>(kTakesCrashes);
    try
    {
        OCC_CATCH_SIGNALS
        const TopoDS_Shape shape = shapeOf(body);
        checkNumbering(body, shape);
        return figuresOf(shape, box);
    }
    catch (const Standard_Failure& failure)
    {
        fail(failure.GetMessageString());
    }
    catch (const std::bad_alloc&)
    {
        fail("there is not enough memory for it");
    }
    catch (const std::length_error&)
    {
        fail("it is longer than memory");
    }
}
