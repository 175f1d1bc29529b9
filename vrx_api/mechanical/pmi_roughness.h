#pragma once

#include "vrx_api/mechanical/pmi_annotation.h"

#include <cstdint>
#include <vector>

namespace vrx
{

/// A surface texture symbol: how rough a surface may be and how it is made.
class VRX_API ExcPMIRoughness : public ExcPMIAnnotation
{
public:
    /// Whether the surface is machined. The names are spelt as on the wire.
    enum class EObtentionType : std::int32_t
    {
        Unsupported = 0,
        NotDefined = 1,
        MatchingMandatory = 2, // machining is required
        MatchingForbidden = 3, // machining is forbidden
    };

    /// Which surfaces the symbol is about.
    enum class EApplicabilityType : std::int32_t
    {
        Unsupported = 0,
        SpecifiedSurfaceOnly = 1,
        AllPartSurfaces = 2,
        BasicSurface = 3,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EPMIAnnotationType type() const override;

    EObtentionType obtentionType() const { return m_obtentionType; }
    void setObtentionType(EObtentionType type) { m_obtentionType = type; }

    EApplicabilityType applicabilityType() const { return m_applicabilityType; }
    void setApplicabilityType(EApplicabilityType type) { m_applicabilityType = type; }

    /// The texts at the places of the symbol, such as "Ra 3.2". The order is the translator's.
    const std::vector<wstring>& fields() const { return m_fields; }
    void addField(const wstring& field) { m_fields.push_back(field); }
    void setFields(const std::vector<wstring>& fields) { m_fields = fields; }

private:
    friend struct Described<ExcPMIRoughness>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EObtentionType m_obtentionType = EObtentionType::Unsupported;
    EApplicabilityType m_applicabilityType = EApplicabilityType::Unsupported;
    std::vector<wstring> m_fields;
};

} // namespace vrx
