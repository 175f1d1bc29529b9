#pragma once

#include "vrx_api/json/binary_value.h"
#include "vrx_api/json/binary_writer.h"
#include "vrx_api/json/json_object.h"

#include <typeinfo>

namespace vrx
{

/// How the objects of one class cross in the binary form without a tree in between; an operation that is null has no
/// such way. Each does just what the class's virtual operation does with a tree, but for the trace lines.
struct DirectWay
{
    void (*read)(IJsonObject& object, BinaryValue value) = nullptr;
    void (*size)(const IJsonObject& object, SizeWriter& out) = nullptr;
    void (*write)(const IJsonObject& object, ByteWriter& out) = nullptr;
};

/// Enters a class's way while the library is loaded. True, so that a constant can be made of the call.
bool enterReader(const std::type_info& type, void (*read)(IJsonObject&, BinaryValue));
bool enterWriter(const std::type_info& type, void (*size)(const IJsonObject&, SizeWriter&),
                 void (*write)(const IJsonObject&, ByteWriter&));

/// The way of the objects of just this class. A class outside this library has none, even when it is derived from one
/// that has: it may override the virtual operations. Exported for the tests.
VRX_API const DirectWay& directWay(const std::type_info& type);

template <class T>
const DirectWay& directWay(const T& object)
{
    static const DirectWay& own = directWay(typeid(T));
    return typeid(object) == typeid(T) ? own : directWay(typeid(object));
}

/// Makes the tree of a value.
void decodeTree(BinaryValue value, JsonDocument& document);

/// Reads by the virtual operation, from a tree of the value.
void readByTree(IJsonObject& object, BinaryValue value);

template <class T>
void readDirectly(T& object, BinaryValue value)
{
    const DirectWay& way = directWay(object);
    way.read != nullptr ? way.read(object, value) : readByTree(object, value);
}

template <class T>
void writeDirectly(const T& object, SizeWriter& out)
{
    const DirectWay& way = directWay(object);
    way.size != nullptr ? way.size(object, out) : out.tree(object);
}

template <class T>
void writeDirectly(const T& object, ByteWriter& out)
{
    const DirectWay& way = directWay(object);
    way.write != nullptr ? way.write(object, out) : out.tree(object);
}

} // namespace vrx
