#pragma once

#include "vrx_api/common/matrix.h"
#include "vrx_api/common/vector.h"

namespace vrx
{

/// Where something is placed: an affine part and a translation in model units. The library only carries the numbers.
class VRX_API ExcTransformation : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    ExcMatrix3d& affine() { return m_affine; }
    const ExcMatrix3d& affine() const { return m_affine; }

    ExcVector3d& translation() { return m_translation; }
    const ExcVector3d& translation() const { return m_translation; }

private:
    friend struct Described<ExcTransformation>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcMatrix3d m_affine;
    ExcVector3d m_translation;
};

} // namespace vrx
