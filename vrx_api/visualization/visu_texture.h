#pragma once

#include "vrx_api/json/json_object.h"

#include <array>
#include <cstdint>

namespace vrx
{

/// One texture layer of a material. The library opens no file.
/// Where an operation takes a direction, U is 0, V is 1 and W is 2; any other index throws `std::invalid_argument`.
class VRX_API ExcVisuTexture : public IJsonObject
{
public:
    enum class EMethod : std::int32_t
    {
        Undefined = 0,
        Decal = 1,
        Modulate = 2,
        Add = 3,
        Replace = 4,
    };

    /// What is shown beyond the edge of the image.
    enum class EWrapMode : std::int32_t
    {
        Undefined = 0,
        Repeat = 1,
        Clamp = 2,
        Border = 3,
        Edge = 4,
        Mirror = 5,
    };

    enum class EMappingMode : std::int32_t
    {
        Undefined = 0,
        Uv = 1,
        Planar = 2,
        Spherical = 3,
        Cylindrical = 4,
        Environment = 5,
    };

    enum class EFilter : std::int32_t
    {
        Undefined = 0,
        Nearest = 1,
        Linear = 2,
        NearestMipmapNearest = 3,
        NearestMipmapLinear = 4,
        LinearMipmapLinear = 5,
        LinearMipmapNearest = 6,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    EMethod method() const { return m_method; }
    void setMethod(EMethod method) { m_method = method; }

    /// Of U and V.
    EWrapMode wrapMode(int direction) const;
    void setWrapMode(int direction, EWrapMode mode);

    EMappingMode mappingMode() const { return m_mappingMode; }
    void setMappingMode(EMappingMode mode) { m_mappingMode = mode; }

    EFilter filter() const { return m_filter; }
    void setFilter(EFilter filter) { m_filter = filter; }

    double alpha() const { return m_alpha; }
    void setAlpha(double alpha) { m_alpha = alpha; }

    const wstring& filePath() const { return m_filePath; }
    void setFilPath(const wstring& path) { m_filePath = path; }

    wstring nameUV() const { return m_nameUV; }
    void setNameUV(const wstring& name) { m_nameUV = name; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    /// Of U and V.
    double translation(int direction) const;
    void setTranslation(int direction, double translation);

    /// Of U and V.
    double scale(int direction) const;
    void setScale(int direction, double scale);

    /// Of U, V and W. The second argument is not looked at.
    double rotation(int direction, double) const;
    void setRotation(int direction, double rotation);

    bool swapUV() const { return m_swapUV; }
    void setSwapUV(bool swap) { m_swapUV = swap; }

    bool useMaterial() const { return m_useMaterial; }
    void setUseMaterial(bool use) { m_useMaterial = use; }

private:
    friend struct Described<ExcVisuTexture>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EMethod m_method = EMethod::Undefined;
    std::array<EWrapMode, 2> m_wrapModes{};
    EMappingMode m_mappingMode = EMappingMode::Undefined;
    EFilter m_filter = EFilter::Undefined;
    double m_alpha = 1.0;
    wstring m_filePath;
    wstring m_nameUV;
    wstring m_name;
    std::array<double, 2> m_translation{};
    std::array<double, 2> m_scale{1.0, 1.0};
    std::array<double, 3> m_rotation{};
    bool m_swapUV = false;
    bool m_useMaterial = false;
};

} // namespace vrx
