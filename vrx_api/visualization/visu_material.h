#pragma once

#include "vrx_api/common/vector.h"
#include "vrx_api/visualization/visu_texture.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace vrx
{

/// A named set of colours and of texture stacks. Copies share the textures.
/// To ask for a colour or for the textures of a kind that is not here makes an entry of that kind, which is written
/// from then on; the const operations do so too, so that two threads must not read one material.
class VRX_API ExcVisuMaterial : public IJsonObject
{
public:
    enum class EColorType : std::int32_t
    {
        Unknown = 0,
        Ambient = 1,
        Diffuse = 2,
        Specular = 3,
        Emissive = 4,
        Transparency = 5,
        Reflection = 6,
    };

    enum class ETextureType : std::int32_t
    {
        Unknown = 0,
        Ambient = 1,
        Diffuse = 2,
        Specular = 3,
        Emissive = 4,
        Blending = 5,
    };

    /// A colour of one kind. Its JSON is an array of the four numbers.
    struct Color
    {
        /// The library does not scale it.
        std::uint16_t red = 0;
        std::uint16_t green = 0;
        std::uint16_t blue = 0;
        /// A double on the wire, as the other three are.
        double alpha = 0.0;
    };

    /// The colours, at most one of a kind.
    using Colors = std::map<EColorType, Color>;
    /// The stacks of textures, one for each kind.
    using Textures = std::map<ETextureType, std::vector<std::shared_ptr<ExcVisuTexture>>>;

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    const Color& color(EColorType type) const { return m_colors[type]; }
    Color& color(EColorType type) { return m_colors[type]; }
    void setColor(EColorType type, Color color) { m_colors[type] = color; }

    double shininess() const { return m_shininess; }
    void setShininess(double shininess) { m_shininess = shininess; }

    const std::array<double, 3>& bump() const { return m_bump; }
    void setBump(const std::array<double, 3>& bump) { m_bump = bump; }

    double bumpFactor() const { return m_bumpFactor; }
    void setBumpFactor(double factor) { m_bumpFactor = factor; }

    const ExcVector3d& normalMap() const { return m_normalMap; }
    void setNormalMap(const ExcVector3d& map) { m_normalMap = map; }

    const std::vector<std::shared_ptr<ExcVisuTexture>>& textures(ETextureType type) const { return m_textures[type]; }

    /// Append to, or replace, the textures of a kind; a null pointer is logged and adds nothing.
    void addTexture(ETextureType type, const std::shared_ptr<ExcVisuTexture>& texture);
    void addTextures(ETextureType type, const std::vector<std::shared_ptr<ExcVisuTexture>>& textures);
    void setTextures(ETextureType type, const std::vector<std::shared_ptr<ExcVisuTexture>>& textures);

private:
    friend struct Described<ExcVisuMaterial>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    wstring m_id;
    mutable Colors m_colors;
    double m_shininess = 0.0;
    std::array<double, 3> m_bump{};
    double m_bumpFactor = 0.0;
    ExcVector3d m_normalMap;
    mutable Textures m_textures;
};

} // namespace vrx
