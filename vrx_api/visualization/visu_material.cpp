#include "vrx_api/visualization/visu_material.h"

#include "kolt/log.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

#include <cmath>
#include <utility>

namespace vrx
{

using Color = ExcVisuMaterial::Color;
using EColorType = ExcVisuMaterial::EColorType;
using ETextureType = ExcVisuMaterial::ETextureType;

static_assert(sizeof(Color) == 16, "three channels and the alpha");

static constexpr EnumName<EColorType> kColorTypes[] = {
    {EColorType::Unknown, WIDE("unknown")},       {EColorType::Ambient, WIDE("ambient")},
    {EColorType::Diffuse, WIDE("diffuse")},       {EColorType::Specular, WIDE("specular")},
    {EColorType::Emissive, WIDE("emissive")},     {EColorType::Transparency, WIDE("transparency")},
    {EColorType::Reflection, WIDE("reflection")},
};
static constexpr const auto& enumTable(EColorType)
{
    return kColorTypes;
}

static constexpr EnumName<ETextureType> kTextureTypes[] = {
    {ETextureType::Unknown, WIDE("unknown")},   {ETextureType::Ambient, WIDE("ambient")},
    {ETextureType::Diffuse, WIDE("diffuse")},   {ETextureType::Specular, WIDE("specular")},
    {ETextureType::Emissive, WIDE("emissive")}, {ETextureType::Blending, WIDE("blending")},
};
static constexpr const auto& enumTable(ETextureType)
{
    return kTextureTypes;
}

// Red, green, blue and alpha, all of them doubles on the wire: an integer leaves its channel at zero.
constexpr std::size_t kColorNumbers = 4;

// Truncated toward zero and cut to 16 bits as an integer is; a number that is not finite gives zero.
static std::uint16_t toChannel(double number)
{
    constexpr double kRange = 65536.0;
    return std::isfinite(number) ? static_cast<std::uint16_t>(static_cast<std::int32_t>(std::fmod(number, kRange))) : 0;
}

template <class Value>
static Color toColor(const Value& array)
{
    std::array<double, kColorNumbers> numbers{};
    auto element = array.elements().begin();
    for (double& number : numbers)
    {
        decode(*element, number);
        ++element;
    }
    return {toChannel(numbers[0]), toChannel(numbers[1]), toChannel(numbers[2]), numbers[3]};
}

// An entry is replaced as a whole.
template <class Value>
static bool decode(const Value& value, ExcVisuMaterial::Colors& field)
{
    if (!value.isObject())
    {
        return false;
    }
    for (const auto member : value.members())
    {
        if (!member.name.isString() || !member.value.isArray() || member.value.elements().count() < kColorNumbers)
        {
            kolt::log(kolt::kWarning, "ExcVisuMaterial: !colorType.IsString() || !colorValue.IsArray() || "
                                      "colorValue.GetArray().Size() < 4");
            continue;
        }
        field[enumValue<EColorType>(textOf(member.name))] = toColor(member.value);
    }
    return true;
}

template <class Out>
static void encode(Out& out, const Color& color)
{
    const auto number = [](std::uint16_t channel) -> double { return channel; };
    encode(out, std::array{number(color.red), number(color.green), number(color.blue), color.alpha});
}

// The textures of a kind are appended to. An empty array makes no entry, and a member that is no array is an error,
// where among the colours it is a warning.
template <class Value>
static bool decode(const Value& value, ExcVisuMaterial::Textures& field)
{
    if (!value.isObject())
    {
        return false;
    }
    for (const auto member : value.members())
    {
        if (!member.name.isString() || !member.value.isArray())
        {
            kolt::log(kolt::kError, "ExcVisuMaterial: !textureType.IsString() || !textureArray.IsArray()");
            continue;
        }
        if (member.value.elements().count() != 0)
        {
            decode(member.value, field[enumValue<ETextureType>(textOf(member.name))]);
        }
    }
    return true;
}

// One member an entry, under the name of its kind.
template <class Out, class Entries>
static void encodeByType(Out& out, const Entries& entries)
{
    const auto begin = out.beginObject();
    for (const auto& [type, entry] : entries)
    {
        out.key(Key(enumName(type)));
        encode(out, entry);
    }
    out.endObject(begin);
}

template <class Out>
static void encode(Out& out, const ExcVisuMaterial::Colors& field)
{
    encodeByType(out, field);
}

template <class Out>
static void encode(Out& out, const ExcVisuMaterial::Textures& field)
{
    encodeByType(out, field);
}

static void outline(Shape& shape, const Color&)
{
    outline(shape, std::array<double, kColorNumbers>());
}

// The names of the entries are those of their kinds.
template <class Type, class Entry>
static void outlineByType(Shape& shape)
{
    outline(shape, Type());
    shape.kind = EShape::Map;
    outline(shape.parts.emplace_back(), Entry());
}

static void outline(Shape& shape, const ExcVisuMaterial::Colors&)
{
    outlineByType<EColorType, Color>(shape);
}

static void outline(Shape& shape, const ExcVisuMaterial::Textures&)
{
    outlineByType<ETextureType, ExcVisuMaterial::Textures::mapped_type>(shape);
}

template <class Self, class Fields>
void ExcVisuMaterial::describe(Self& self, Fields& fields)
{
    auto& [x, y, z] = self.m_bump;

    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("colors"), self.m_colors);
    fields.always(WIDE("shininess"), self.m_shininess);
    fields.always(WIDE("bump"), exactly(kSilently, x, y, z));
    fields.always(WIDE("bump_factor"), self.m_bumpFactor);
    fields.always(WIDE("normal_map"), self.m_normalMap);
    fields.always(WIDE("textures"), self.m_textures);
}
template struct Described<ExcVisuMaterial>;

void ExcVisuMaterial::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuMaterial");
}

void ExcVisuMaterial::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullTexture = "ExcVisuMaterial: attempt to add null Texture object.";

void ExcVisuMaterial::addTexture(ETextureType type, const std::shared_ptr<ExcVisuTexture>& texture)
{
    addTextures(type, {texture});
}

// A kind has no entry before its first texture is added.
void ExcVisuMaterial::addTextures(ETextureType type, const std::vector<std::shared_ptr<ExcVisuTexture>>& textures)
{
    std::vector<std::shared_ptr<ExcVisuTexture>> added;
    addAll(added, textures, kNullTexture);
    if (!added.empty())
    {
        std::vector<std::shared_ptr<ExcVisuTexture>>& stack = m_textures[type];
        stack.insert(stack.end(), added.begin(), added.end());
    }
}

void ExcVisuMaterial::setTextures(ETextureType type, const std::vector<std::shared_ptr<ExcVisuTexture>>& textures)
{
    std::vector<std::shared_ptr<ExcVisuTexture>> wanted;
    addAll(wanted, textures, kNullTexture);
    m_textures[type] = std::move(wanted);
}

} // namespace vrx
