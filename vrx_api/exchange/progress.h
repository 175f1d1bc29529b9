#pragma once

#include "vrx_api/exchange/exchange_object.h"

#include <cstdint>

namespace vrx
{

/// How far the translator has come. The library sets no bounds and does not interpret the stage.
class VRX_API ExcProgress : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;

    int progress() const { return m_progress; }
    void setProgress(int progress) { m_progress = progress; }

    int progressMax() const { return m_progressMax; }
    void setProgressMax(int max) { m_progressMax = max; }

    const wstring& stage() const { return m_stage; }
    void setStage(const wstring& stage) { m_stage = stage; }

    /// Whether all members are equal.
    bool operator==(const ExcProgress& other) const;

private:
    friend struct Described<ExcProgress>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::int32_t m_progress = 0;
    std::int32_t m_progressMax = 100;
    wstring m_stage;
};

} // namespace vrx
