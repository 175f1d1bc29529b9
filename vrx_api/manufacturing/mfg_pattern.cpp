#include "vrx_api/manufacturing/mfg_pattern.h"

#include "vrx_api/json/add.h"
#include "vrx_api/manufacturing/mfg_pattern_circular.h"
#include "vrx_api/manufacturing/mfg_pattern_fields.h"
#include "vrx_api/manufacturing/mfg_pattern_rectangular.h"
#include "vrx_api/manufacturing/mfg_pattern_user_defined.h"

namespace vrx
{

using EType = ExcMfgPattern::EType;

static constexpr EnumName<EType> kPatternTypes[] = {
    {EType::Unknown, WIDE("unknown")},          {EType::None, WIDE("none")},
    {EType::Rectangular, WIDE("rectangular")},  {EType::Circular, WIDE("circular")},
    {EType::UserDefined, WIDE("user_defined")},
};
static constexpr const auto& enumTable(EType)
{
    return kPatternTypes;
}

static constexpr Key kType = WIDE("type");

// The type tells the class, which readPattern chooses.
template <class Self, class Fields>
void ExcMfgPattern::describe(Self& self, Fields& fields)
{
    fields.classKey(kType, self.type());
}
template struct Described<ExcMfgPattern>;

void ExcMfgPattern::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgPattern");
}

void ExcMfgPattern::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    addFields(*this, value, allocator);
}

template <class T, class Value>
static std::shared_ptr<ExcMfgPattern> readNew(const Value& value)
{
    const auto pattern = std::make_shared<T>();
    decode(value, *pattern);
    return pattern;
}

template <class Value>
static std::shared_ptr<ExcMfgPattern> readByType(const Value& value)
{
    if (!isObject(value, "ExcMfgPattern"))
    {
        return nullptr;
    }
    const Value type = findMember(value, kType);
    if (!type.isThere() || !type.isString())
    {
        kolt::log(kolt::kError, "ExcMfgPattern should have a type.");
        return nullptr;
    }
    switch (enumValue<EType>(textOf(type)))
    {
    case EType::Rectangular:
        return readNew<ExcMfgPatternRectangular>(value);
    case EType::Circular:
        return readNew<ExcMfgPatternCircular>(value);
    case EType::UserDefined:
        return readNew<ExcMfgPatternUserDefined>(value);
    case EType::None:
        return nullptr;
    case EType::Unknown:
        break;
    }
    kolt::log(kolt::kError, "ExcMfgPattern: unknown type.");
    return nullptr;
}

std::shared_ptr<ExcMfgPattern> readPattern(const TreeValue& value)
{
    return readByType(value);
}

std::shared_ptr<ExcMfgPattern> readPattern(const BinaryValue& value)
{
    return readByType(value);
}

static const std::type_info* patternClass(const JsonValue& value, const JsonValue&)
{
    const std::shared_ptr<ExcMfgPattern> pattern = readPattern(TreeValue(&value));
    return pattern == nullptr ? nullptr : &typeOf(*pattern);
}

void outlinePattern(Shape& shape)
{
    shape.kind = EShape::OneOf;
    shape.classes = {&typeid(ExcMfgPatternRectangular), &typeid(ExcMfgPatternCircular),
                     &typeid(ExcMfgPatternUserDefined)};
    shape.choose = &patternClass;
}

std::shared_ptr<ExcMfgPattern> ExcMfgPattern::readPattern(const JsonValue& value)
{
    return readByType(TreeValue(&value));
}

template <class Self, class Fields>
void ExcMfgPattern::Instance::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("is_base"), self.m_baseInstance);
    fields.filled(WIDE("limiting"), self.m_limiting);
    fields.filled(WIDE("defining"), self.m_defining);
}
template struct Described<ExcMfgPattern::Instance>;

void ExcMfgPattern::Instance::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgPattern::Instance");
}

void ExcMfgPattern::Instance::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMfgPattern::Instance::addLimiting(const std::shared_ptr<ExcEntity>& entity)
{
    add(m_limiting, entity, "ExcMfgPattern::Instance: attempt to add null Limiting Entity object.");
}

void ExcMfgPattern::Instance::addDefining(const std::shared_ptr<ExcEntity>& entity)
{
    add(m_defining, entity, "ExcMfgPattern::Instance: attempt to add null Defining Entity object.");
}

} // namespace vrx
