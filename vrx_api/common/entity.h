#pragma once

#include "vrx_api/common/full_subent_path.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <memory>

namespace vrx
{

/// How a model object points at a body, a face, an edge or a vertex, or at an object by its identifier. The type
/// decides which of the fields are written; the others are lost in transit. Copies share the path.
class VRX_API ExcEntity : public IJsonObject
{
public:
    enum class EType : std::int32_t
    {
        Unknown = 0,
        Fsp = 1,
        Visu = 2,
        Mfg = 3,
        Original = 4,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }

    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    const std::shared_ptr<ExcFullSubentPath>& fsp() const { return m_fsp; }
    void setFsp(const std::shared_ptr<ExcFullSubentPath>& path) { m_fsp = path; }

    const wstring& description() const { return m_description; }
    void setDescription(const wstring& description) { m_description = description; }

private:
    friend struct Described<ExcEntity>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EType m_type = EType::Unknown;
    wstring m_id;
    std::shared_ptr<ExcFullSubentPath> m_fsp;
    wstring m_description;
};

} // namespace vrx
