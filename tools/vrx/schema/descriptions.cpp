#include "schema/descriptions.h"

#include "mp/narrow.h"

#include <algorithm>

namespace schema
{

using mp::wstring;
using vrx::ClassShape;
using vrx::EIdSpace;
using vrx::ERole;
using vrx::FieldShape;
using vrx::Shape;

std::string definitionName(const ClassShape& shape)
{
    std::string name = shape.name();
    name.erase(std::remove(name.begin(), name.end(), '>'), name.end());
    std::replace(name.begin(), name.end(), '<', '.');
    return name;
}

static const char* nameOf(EIdSpace space)
{
    switch (space)
    {
    case EIdSpace::Block:
        return "a block";
    case EIdSpace::BlockReference:
        return "a reference to a block";
    case EIdSpace::Body:
        return "a body";
    case EIdSpace::Layer:
        return "a layer";
    case EIdSpace::Annotation:
        return "an annotation";
    case EIdSpace::Datum:
        return "a datum, or several as in A-B";
    default:
        return "the object";
    }
}

std::string describe(const FieldShape& field)
{
    const Shape& shape = field.shape;
    std::string text;
    if (shape.role == ERole::Identity)
    {
        text = std::string("The id of ") + nameOf(shape.space) + ". ";
    }
    else if (shape.role == ERole::Reference)
    {
        text = std::string("Names ") + nameOf(shape.space) + " by its id. ";
    }
    else if (shape.role == ERole::Index)
    {
        text = "Positions in \"" + mp::toNarrow(wstring(shape.indexed)) + "\", where " +
               std::to_string(shape.indexWidth) + " numbers make one. ";
    }
    if (!field.needs.empty())
    {
        text += "Read only where \"" + mp::toNarrow(wstring(field.needs)) + "\" is true. ";
    }
    text += field.isRead ? "" : "Written, and not read. ";
    text += field.isWritten ? "" : "Read, and not written. ";
    return text.substr(0, text.size() - (text.empty() ? 0 : 1));
}

} // namespace schema
