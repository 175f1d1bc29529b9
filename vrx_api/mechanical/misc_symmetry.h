#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/common/transformation.h"

#include <cstdint>
#include <memory>

namespace vrx
{

/// A symmetry of a model: the transformation, and the entity that it is about. Copies share the entity.
class VRX_API ExcMiscSymmetry : public IJsonObject
{
public:
    enum class ETransformMode : std::int32_t
    {
        None = 0,
        Opposite = 1,
        Both = 2,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    ETransformMode transformMode() const { return m_transformMode; }
    void setTransformMode(ETransformMode mode) { m_transformMode = mode; }

    const ExcTransformation& transformation() const { return m_transformation; }
    void setTransformation(const ExcTransformation& transformation) { m_transformation = transformation; }

    const std::shared_ptr<ExcEntity>& linkedEntity() const { return m_linkedEntity; }
    void setLinkedEntity(const std::shared_ptr<ExcEntity>& entity) { m_linkedEntity = entity; }

private:
    friend struct Described<ExcMiscSymmetry>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ETransformMode m_transformMode = ETransformMode::None;
    ExcTransformation m_transformation;
    std::shared_ptr<ExcEntity> m_linkedEntity;
};

} // namespace vrx
