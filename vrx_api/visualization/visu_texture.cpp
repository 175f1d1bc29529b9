#include "vrx_api/visualization/visu_texture.h"

#include "vrx_api/json/shapes.h"

#include <stdexcept>

namespace vrx
{

using EMethod = ExcVisuTexture::EMethod;
using EWrapMode = ExcVisuTexture::EWrapMode;
using EMappingMode = ExcVisuTexture::EMappingMode;
using EFilter = ExcVisuTexture::EFilter;

static constexpr EnumName<EMethod> kMethods[] = {
    {EMethod::Undefined, WIDE("undefined")}, {EMethod::Decal, WIDE("decal")},
    {EMethod::Modulate, WIDE("modulate")},   {EMethod::Add, WIDE("add")},
    {EMethod::Replace, WIDE("replace")},
};
static constexpr const auto& enumTable(EMethod)
{
    return kMethods;
}

static constexpr EnumName<EWrapMode> kWrapModes[] = {
    {EWrapMode::Undefined, WIDE("undefined")}, {EWrapMode::Repeat, WIDE("repeat")}, {EWrapMode::Clamp, WIDE("clamp")},
    {EWrapMode::Border, WIDE("border")},       {EWrapMode::Edge, WIDE("edge")},     {EWrapMode::Mirror, WIDE("mirror")},
};
static constexpr const auto& enumTable(EWrapMode)
{
    return kWrapModes;
}

static constexpr EnumName<EMappingMode> kMappingModes[] = {
    {EMappingMode::Undefined, WIDE("undefined")},     {EMappingMode::Uv, WIDE("uv")},
    {EMappingMode::Planar, WIDE("planar")},           {EMappingMode::Spherical, WIDE("spherical")},
    {EMappingMode::Cylindrical, WIDE("cylindrical")}, {EMappingMode::Environment, WIDE("environment")},
};
static constexpr const auto& enumTable(EMappingMode)
{
    return kMappingModes;
}

static constexpr EnumName<EFilter> kFilters[] = {
    {EFilter::Undefined, WIDE("undefined")},
    {EFilter::Nearest, WIDE("nearest")},
    {EFilter::Linear, WIDE("linear")},
    {EFilter::NearestMipmapNearest, WIDE("nearest_mipmap_nearest")},
    {EFilter::NearestMipmapLinear, WIDE("nearest_mipmap_linear")},
    {EFilter::LinearMipmapLinear, WIDE("linear_mipmap_linear")},
    {EFilter::LinearMipmapNearest, WIDE("linear_mipmap_nearest")},
};
static constexpr const auto& enumTable(EFilter)
{
    return kFilters;
}

static constexpr Key kDirections[] = {WIDE("u"), WIDE("v"), WIDE("w")};

// One value per direction, as the members of an object.
static constexpr auto describeDirections = [](auto& values, auto& fields) {
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        fields.always(kDirections[i], values[i]);
    }
};

template <class Self, class Fields>
void ExcVisuTexture::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("method"), self.m_method);
    fields.always(WIDE("wrap_mode"), record(self.m_wrapModes, describeDirections));
    fields.always(WIDE("mapping_mode"), self.m_mappingMode);
    fields.always(WIDE("filter"), self.m_filter);
    fields.always(WIDE("alpha"), self.m_alpha);
    fields.always(WIDE("file"), self.m_filePath);
    fields.always(WIDE("name_uv"), self.m_nameUV);
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("uv_translation"), record(self.m_translation, describeDirections));
    fields.always(WIDE("uv_scale"), record(self.m_scale, describeDirections));
    fields.always(WIDE("uv_rotation"), record(self.m_rotation, describeDirections));
    fields.always(WIDE("swap_uv"), self.m_swapUV);
    fields.always(WIDE("use_material"), self.m_useMaterial);
}
template struct Described<ExcVisuTexture>;

void ExcVisuTexture::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuTexture");
}

void ExcVisuTexture::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Values>
static auto& valueOf(Values& values, int direction, const char* refusal)
{
    const auto index = static_cast<unsigned>(direction);
    if (index >= values.size())
    {
        throw std::invalid_argument(refusal);
    }
    return values[index];
}

static constexpr const char* kNoWrapMode = "Texture wrap mode has only 0 (U) and 1 (V) directions.";
static constexpr const char* kNoTranslation = "Texture translation has only 0 (U) and 1 (V) directions.";
static constexpr const char* kNoScale = "Texture scale has only 0 (U) and 1 (V) directions.";
static constexpr const char* kNoRotation = "Texture rotation has only 0 (U), 1 (V) and 2 (W) directions.";

ExcVisuTexture::EWrapMode ExcVisuTexture::wrapMode(int direction) const
{
    return valueOf(m_wrapModes, direction, kNoWrapMode);
}

void ExcVisuTexture::setWrapMode(int direction, EWrapMode mode)
{
    valueOf(m_wrapModes, direction, kNoWrapMode) = mode;
}

double ExcVisuTexture::translation(int direction) const
{
    return valueOf(m_translation, direction, kNoTranslation);
}

void ExcVisuTexture::setTranslation(int direction, double translation)
{
    valueOf(m_translation, direction, kNoTranslation) = translation;
}

double ExcVisuTexture::scale(int direction) const
{
    return valueOf(m_scale, direction, kNoScale);
}

void ExcVisuTexture::setScale(int direction, double scale)
{
    valueOf(m_scale, direction, kNoScale) = scale;
}

double ExcVisuTexture::rotation(int direction, double) const
{
    return valueOf(m_rotation, direction, kNoRotation);
}

void ExcVisuTexture::setRotation(int direction, double rotation)
{
    valueOf(m_rotation, direction, kNoRotation) = rotation;
}

} // namespace vrx
