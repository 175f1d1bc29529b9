#pragma once

#include "vrx_api/json/json_fwd.h"
#include "vrx_api/vrx_api_export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <typeinfo>
#include <vector>

namespace vrx
{

// What the descriptions of the classes say of the wire, as data: for tools that check a message, or tell others of the
// format. Nothing here is needed to read or write.

/// The kinds of values on the wire. A field takes a value of just its kind: an integer where a double is read is passed
/// over, and a double where an integer is read.
enum class EShape
{
    Any,
    Boolean,
    Int32,
    Uint32,
    Uint64,
    Double,
    Text,
    Name,   ///< Text of an enumeration's table.
    Record, ///< An object with the fields told here.
    Map,    ///< An object whose values have one shape, under names that are not told by a class.
    List,   ///< An array whose elements have one shape.
    Tuple,  ///< An array of just these elements.
    Class,  ///< What the class tells.
    OneOf,  ///< One of several classes, which the value itself tells.
};

/// What an id names; none where nothing else on the wire speaks of it.
enum class EIdSpace
{
    None,
    Block,
    BlockReference,
    Body,
    Layer,
    Annotation,
    Datum,
};

/// What a field's value says of other objects. Ids of layers and datums hold in one exchange object, all others in a
/// whole import.
enum class ERole
{
    Plain,
    Identity,  ///< The id by which the object is named elsewhere.
    Reference, ///< The id of another object, or a list of them.
    Index,     ///< Positions in the list under another key, in this object or one around it.
};

struct FieldShape;
class ClassShape;

/// The class of an object, which may be behind a pointer: a compiler warns of `typeid` with a dereference in it.
template <class T>
const std::type_info& typeOf(const T& object)
{
    return typeid(object);
}

/// What may stand in one place of a message.
struct Shape
{
    /// What stands there. It decides which of the members below are used.
    EShape kind = EShape::Any;
    bool mayBeNull = false; ///< Null is written for nothing.

    std::vector<Shape> parts;        ///< Of a list or map the one shape of all elements; of a tuple each of them.
    std::size_t size = 0;            ///< Of a list that has one size; 0 for any.
    std::vector<FieldShape> fields;  ///< Of a record, in the order in which they are written.
    std::vector<wstring_view> names; ///< Of a name: the table. Of a map: that of its names, or none for any names.
    wstring_view otherNames;         ///< The name that a name outside the table is read as.

    /// The classes: one, or several.
    std::vector<const std::type_info*> classes;

    /// Which of several classes a value is, by itself or by the object that holds it: null for none.
    const std::type_info* (*choose)(const JsonValue& value, const JsonValue& holder) = nullptr;

    /// What the value says of other objects, and of which kind they are.
    ERole role = ERole::Plain;
    EIdSpace space = EIdSpace::None;
    wstring_view indexed;       ///< Of an index: the key of the list.
    std::size_t indexWidth = 1; ///< How many numbers of that list make one of what is counted.
};

/// One key of an object.
struct FieldShape
{
    /// Its name on the wire.
    wstring_view key;
    /// Its value.
    Shape shape;
    bool isRead = false;          ///< A reader looks at it.
    bool isWritten = false;       ///< A writer may write it.
    bool isAlwaysWritten = false; ///< A writer does in any case.
    bool isRequired = false;      ///< A reader refuses an object without it, or complains of it.
    wstring_view needs;           ///< The key of a boolean without which a reader passes over this one; or empty.
};

/// A class of the library that crosses. Shapes are never changed: any number of threads may look at them.
class VRX_API ClassShape
{
public:
    /// Entered by the library for each of its classes.
    ClassShape(std::string name, Shape shape);

    /// The name in C++ without the outer namespace, such as "ExcPMINote::Text".
    const std::string& name() const { return m_name; }

    /// What an object of the class looks like.
    const Shape& shape() const { return m_shape; }

    /// The class of an object, or null for one outside this library.
    static const ClassShape* find(const std::type_info& type);

    /// The class of this name, or null.
    static const ClassShape* find(const std::string& name);

    /// All of them, sorted by name.
    static std::vector<const ClassShape*> all();

private:
    std::string m_name;
    Shape m_shape;
};

} // namespace vrx
