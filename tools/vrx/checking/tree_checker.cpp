#include "checking/tree_checker.h"

#include "checking/sentences.h"
#include "json/member.h"
#include "json/pointer.h"
#include "json/utf.h"
#include "mp/narrow.h"
#include "printing/escaped.h"
#include "printing/scalar_text.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace checking
{

namespace
{

using vrx::EIdSpace;
using vrx::ERole;
using vrx::EShape;
using vrx::FieldShape;
using vrx::JsonValue;
using vrx::Shape;

bool isScalar(const Shape& shape)
{
    return shape.kind >= EShape::Boolean && shape.kind <= EShape::Name;
}

bool isObjectShape(const Shape& shape)
{
    return shape.kind == EShape::Record || shape.kind == EShape::Map;
}

// No class has more keys than there are bits; of further ones nothing would be known.
std::uint64_t bitOf(std::size_t field)
{
    return field < 64 ? std::uint64_t{1} << field : 0;
}

// Of a deeper place only the first and the last parts are told.
constexpr std::size_t kDeepest = 200;
constexpr std::size_t kShown = 20;

// As a rule the members come in the order of the fields.
std::size_t findField(const Shape& record, mp::wstring_view name, std::size_t expected)
{
    const std::size_t count = record.fields.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::size_t at = (expected + i) % count;
        if (record.fields[at].key == name)
        {
            return at;
        }
    }
    return count;
}

// A text is read up to its first NUL.
mp::wstring_view readText(const JsonValue& value)
{
    const mp::wstring_view text = json::textOf(value);
    return text.substr(0, text.find(mp::wchar{}));
}

bool isTrue(const JsonValue& object, mp::wstring_view key)
{
    const JsonValue* const value = json::member(object, key);
    return value != nullptr && value->IsTrue();
}

// A pattern of the type "none" is none.
mp::wstring_view typeIn(const JsonValue& value)
{
    const JsonValue* const type = json::member(value, WIDE("type"));
    return type != nullptr && type->IsString() ? readText(*type) : mp::wstring_view();
}

} // namespace

TreeChecker::TreeChecker(const KnownKeys& known, Findings& findings, Ids& ids)
    : m_known(known)
    , m_findings(findings)
    , m_ids(ids)
{
}

void TreeChecker::check(const JsonValue& value, const vrx::ClassShape& shape, std::size_t message)
{
    m_message = message;
    m_levels.clear();
    m_owners.clear();
    enter(value, shape.shape(), {nullptr, &shape, true, false}, value);
    while (!m_levels.empty())
    {
        step();
    }
}

TreeChecker::Told TreeChecker::look(const Shape& shape, const Told& around, const JsonValue& value,
                                    const JsonValue& holder)
{
    Told told{&shape, around.owner, around.shape == nullptr, shape.mayBeNull};
    while (told.shape->kind == EShape::Class || told.shape->kind == EShape::OneOf)
    {
        const bool isOne = told.shape->kind == EShape::Class;
        const std::type_info* const type = isOne ? told.shape->classes.front() : told.shape->choose(value, holder);
        if (type == nullptr)
        {
            return {};
        }
        told.owner = vrx::ClassShape::find(*type);
        if (told.owner == nullptr)
        {
            static const Shape any;
            return {&any, nullptr, true, true};
        }
        told.shape = &told.owner->shape();
        told.isClass = true;
        told.mayBeNull = told.mayBeNull || told.shape->mayBeNull;
    }
    return told;
}

void TreeChecker::enter(const JsonValue& value, const Shape& shape, const Told& around, const JsonValue& holder)
{
    Told told;
    try
    {
        told = look(shape, around, value, holder);
    }
    catch (const std::invalid_argument& refusal)
    {
        add(ECode::WrongKind, [&] { return std::string("a reader refuses this: ") + refusal.what(); });
        return;
    }
    if (value.IsNull() && (told.shape == nullptr ? shape.mayBeNull : told.mayBeNull))
    {
        return;
    }
    if (told.shape == nullptr)
    {
        if (typeIn(value) != WIDE("none"))
        {
            add(ECode::UnknownObject, [&] { return unknownObject(value); });
        }
        return;
    }
    if (told.shape->kind == EShape::Any)
    {
        return;
    }
    if (isScalar(*told.shape))
    {
        checkScalar(value, *told.shape, shape);
    }
    else if (isObjectShape(*told.shape) ? value.IsObject() : value.IsArray())
    {
        open(value, shape, told);
    }
    else
    {
        add(ECode::WrongKind, [&] { return wrongKind(value, *told.shape); });
    }
}

void TreeChecker::open(const JsonValue& value, const Shape& shape, const Told& told)
{
    if (value.IsArray())
    {
        checkSize(value, *told.shape);
        addList(shape, *told.shape);
    }
    if (shape.role == ERole::Index)
    {
        checkIndices(value, shape);
    }
    m_levels.push_back({&value, &shape, told, 0, 0, m_owners.size()});
    for (const FieldShape& field : told.shape->fields)
    {
        if (field.shape.role == ERole::Identity && field.shape.space != EIdSpace::None)
        {
            const JsonValue* const id = json::member(value, field.key);
            if (id != nullptr && (id->IsString() || id->IsUint64() || id->IsInt64()))
            {
                m_owners.push_back({field.shape.space, keyOf(*id)});
            }
        }
    }
}

// A list of ids, or of objects that have one.
void TreeChecker::addList(const Shape& tied, const Shape& list)
{
    if (tied.role == ERole::Identity)
    {
        m_ids.addList(tied.space);
    }
    const bool isOfClass = list.kind == EShape::List && list.parts.front().kind == EShape::Class;
    const vrx::ClassShape* const element =
        isOfClass ? vrx::ClassShape::find(*list.parts.front().classes.front()) : nullptr;
    if (element == nullptr)
    {
        return;
    }
    for (const FieldShape& field : element->shape().fields)
    {
        if (field.shape.role == ERole::Identity)
        {
            m_ids.addList(field.shape.space);
        }
    }
}

void TreeChecker::step()
{
    Level& level = m_levels.back();
    const rapidjson::SizeType count = level.value->IsArray() ? level.value->Size() : level.value->MemberCount();
    if (level.next == count)
    {
        close();
        return;
    }
    ++level.next;
    level.value->IsArray() ? stepArray() : stepObject();
}

void TreeChecker::stepArray()
{
    Level& level = m_levels.back();
    const Shape& array = *level.told.shape;
    const JsonValue& list = *level.value;
    if (array.kind == EShape::Tuple)
    {
        if (level.next <= array.parts.size())
        {
            const Told around = level.told;
            enter(list[level.next - 1], array.parts[level.next - 1], around, list);
        }
        return;
    }
    const Shape& element = array.parts.front();
    if (!isScalar(element) || element.mayBeNull)
    {
        const Told around = level.told;
        enter(list[level.next - 1], element, around, list);
        return;
    }
    // Bulk data: all in one go.
    for (checkScalar(list[level.next - 1], element, *level.tied); level.next < list.Size();)
    {
        checkScalar(list[level.next++], element, *level.tied);
    }
}

void TreeChecker::stepObject()
{
    Level& level = m_levels.back();
    const JsonValue& object = *level.value;
    const auto member = object.MemberBegin() + (level.next - 1);
    const Told around = level.told;
    if (!member->name.IsString())
    {
        m_findings.add(ECode::UnknownKey, [&] {
            return std::pair(placeAt(m_levels.size() - 1),
                             std::string(kindOf(member->name)) + " stands in the place of a key, and is passed over");
        });
        return;
    }
    if (around.shape->kind == EShape::Map)
    {
        if (!around.shape->names.empty())
        {
            checkName(member->name, *around.shape);
        }
        enter(member->value, around.shape->parts.front(), around, object);
        return;
    }
    const std::size_t at = findField(*around.shape, json::textOf(member->name), level.next - 1);
    if (at == around.shape->fields.size())
    {
        addUnknownKey(member->name, *around.owner);
        return;
    }
    if ((level.seen & bitOf(at)) != 0)
    {
        add(ECode::DuplicateKey, [] { return std::string("the key stands here before; only the first is read"); });
        return;
    }
    level.seen |= bitOf(at);
    const FieldShape& field = around.shape->fields[at];
    if (!field.needs.empty() && !isTrue(object, field.needs))
    {
        addNotRead(member->value, field);
        return;
    }
    enter(member->value, field.shape, around, object);
}

void TreeChecker::close()
{
    const Level& level = m_levels.back();
    for (std::size_t i = 0; i < level.told.shape->fields.size(); ++i)
    {
        const FieldShape& field = level.told.shape->fields[i];
        if (field.isRequired && (level.seen & bitOf(i)) == 0)
        {
            m_findings.add(ECode::MissingKey, [&] {
                return std::pair(placeAt(m_levels.size() - 1),
                                 "the key " + printing::quoted(field.key) + " is missing, which a reader wants");
            });
        }
    }
    m_owners.resize(level.owners);
    m_levels.pop_back();
}

void TreeChecker::checkSize(const JsonValue& array, const Shape& shape)
{
    const std::size_t size = shape.kind == EShape::Tuple ? shape.parts.size() : shape.size;
    if (size != 0 && array.Size() != size)
    {
        add(ECode::WrongSize, [&] {
            return "an array of " + std::to_string(array.Size()) + " stands where one of " + std::to_string(size) +
                   " is read";
        });
    }
}

void TreeChecker::checkScalar(const JsonValue& value, const Shape& shape, const Shape& tied)
{
    bool isRight = false;
    switch (shape.kind)
    {
    case EShape::Boolean:
        isRight = value.IsBool();
        break;
    case EShape::Int32:
        isRight = value.IsInt();
        break;
    case EShape::Uint32:
        isRight = value.IsUint();
        break;
    case EShape::Uint64:
        isRight = value.IsUint64();
        break;
    case EShape::Double:
        isRight = value.IsDouble();
        break;
    default:
        isRight = value.IsString();
        break;
    }
    if (!isRight)
    {
        addWrongScalar(value, shape);
        return;
    }
    if (shape.kind == EShape::Name)
    {
        checkName(value, shape);
    }
    if (tied.role == ERole::Identity || tied.role == ERole::Reference)
    {
        follow(value, tied);
    }
}

void TreeChecker::addWrongScalar(const JsonValue& value, const Shape& shape)
{
    const bool isOtherNumber = value.IsNumber() && shape.kind >= EShape::Int32 && shape.kind <= EShape::Double;
    if (!isOtherNumber)
    {
        add(ECode::WrongKind, [&] { return wrongKind(value, shape); });
        return;
    }
    add(ECode::WrongNumber, [&] { return wrongNumber(value, shape); });
}

void TreeChecker::checkName(const JsonValue& value, const Shape& shape)
{
    const mp::wstring_view name = readText(value);
    if (std::find(shape.names.begin(), shape.names.end(), name) == shape.names.end())
    {
        add(ECode::UnknownName, [&] {
            return printing::briefText(value) + " is none of the names that may stand here; it is read as " +
                   printing::quoted(shape.otherNames);
        });
    }
}

void TreeChecker::checkIndices(const JsonValue& list, const Shape& shape)
{
    const JsonValue* const indexed = listAround(shape.indexed);
    const std::size_t size = indexed == nullptr ? 0 : indexed->Size() / shape.indexWidth;
    const auto isOutside = [size](const JsonValue& index) {
        return index.IsInt() && (index.GetInt() < 0 || static_cast<std::size_t>(index.GetInt()) >= size);
    };
    const auto* const first = std::find_if(list.Begin(), list.End(), isOutside);
    if (first == list.End())
    {
        return;
    }
    m_findings.add(ECode::IndexOutside, [&] {
        Place place = here();
        json::appendPart(place.pointer, mp::toWide(std::to_string(first - list.Begin())));
        const auto count = std::count_if(first, list.End(), isOutside);
        std::string sentence = "the index " + printing::briefText(*first);
        sentence += count == 1 ? " leads" : " and " + std::to_string(count - 1) + " more here lead";
        sentence += " outside of " + printing::quoted(shape.indexed) + ", which has " + std::to_string(size);
        return std::pair(place, sentence);
    });
}

void TreeChecker::follow(const JsonValue& id, const Shape& tied)
{
    if (tied.role == ERole::Identity)
    {
        m_ids.addIdentity(tied.space, id, [this] { return here(); });
        return;
    }
    m_ids.addReference(tied.space, id, [this] { return here(); });
    const auto owner = std::find_if(m_owners.rbegin(), m_owners.rend(),
                                    [&tied](const Owner& each) { return each.space == tied.space; });
    if (owner != m_owners.rend())
    {
        m_ids.addEdge(tied.space, owner->id, id, here());
    }
}

void TreeChecker::addNotRead(const JsonValue& value, const FieldShape& field)
{
    const bool isNothing =
        value.IsNull() || (value.IsArray() && value.Empty()) || (value.IsObject() && value.ObjectEmpty());
    if (!isNothing)
    {
        add(ECode::NotRead,
            [&] { return "it is passed over, since " + printing::quoted(field.needs) + " is not true here"; });
    }
}

void TreeChecker::addUnknownKey(const JsonValue& name, const vrx::ClassShape& owner)
{
    if (!m_known.hasKey(owner.name(), json::toUtf8(json::textOf(name))))
    {
        add(ECode::UnknownKey,
            [&] { return owner.name() + " has no key " + printing::briefText(name) + "; it is passed over"; });
    }
}

const JsonValue* TreeChecker::listAround(mp::wstring_view key) const
{
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level)
    {
        const JsonValue* const list = json::member(*level->value, key);
        if (list != nullptr && list->IsArray())
        {
            return list;
        }
        if (level->told.isClass)
        {
            break;
        }
    }
    return nullptr;
}

Place TreeChecker::placeAt(std::size_t depth) const
{
    Place place{m_message, {}};
    for (std::size_t i = 0; i < depth; ++i)
    {
        if (depth > kDeepest && i == kShown)
        {
            place.pointer += WIDE("/...");
            i = depth - kShown;
        }
        const Level& level = m_levels[i];
        const rapidjson::SizeType at = level.next - 1;
        if (level.value->IsArray())
        {
            json::appendPart(place.pointer, mp::toWide(std::to_string(at)));
        }
        else
        {
            json::appendPart(place.pointer, json::textOf((level.value->MemberBegin() + at)->name));
        }
    }
    return place;
}

} // namespace checking
