#pragma once

#include "vrx_api/manufacturing/mfg_object.h"
#include "vrx_api/manufacturing/mfg_pattern.h"

#include <memory>

namespace vrx
{

/// A machined feature of a part: a hole, a thread or another one. It occurs many times when it has a pattern, which
/// copies share.
class VRX_API ExcMfgFeature : public ExcMfgObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    /// Null for a feature that occurs once.
    const std::shared_ptr<ExcMfgPattern>& pattern() const { return m_pattern; }
    void setPattern(const std::shared_ptr<ExcMfgPattern>& pattern) { m_pattern = pattern; }

protected:
    ExcMfgFeature() = default;

private:
    friend struct Described<ExcMfgFeature>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    std::shared_ptr<ExcMfgPattern> m_pattern;
};

extern template struct Described<ExcMfgFeature>;

} // namespace vrx
