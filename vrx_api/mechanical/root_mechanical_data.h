#pragma once

#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/mechanical/pmi_data.h"

#include <memory>

namespace vrx
{

/// The mechanical data of the model as a whole: the PMI that belongs to the root of the product. Crosses as compressed
/// binary JSON. Copies share the PMI.
class VRX_API ExcRootMechanicalData : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
    bool binary() const override;
    bool compress() const override;

    /// Null when there is none. Reading makes a new object, so that one that was taken from here before stays as it is.
    const std::shared_ptr<ExcPMIData>& pmiData() const { return m_pmiData; }
    void setPMIData(const std::shared_ptr<ExcPMIData>& data) { m_pmiData = data; }

    /// The name of a log file, about which the translator and the host agree. The library only carries the text.
    const wstring& logFile() const { return m_logFile; }
    void setLogFile(const wstring& file) { m_logFile = file; }

private:
    friend struct Described<ExcRootMechanicalData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::shared_ptr<ExcPMIData> m_pmiData;
    wstring m_logFile;
};

} // namespace vrx
