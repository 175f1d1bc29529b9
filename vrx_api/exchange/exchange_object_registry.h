#pragma once

#include "vrx_api/exchange/exchange_object.h"

#include <map>
#include <memory>
#include <vector>

namespace vrx
{

/// Maps the name of an exchange class to its prototype. It is filled while the library is loaded and owns nothing.
/// `get` and `names` are for any thread; `add` and `remove` only while no other thread uses the registry.
class VRX_API ExchangeObjectRegistry
{
public:
    /// The one registry of the process.
    static ExchangeObjectRegistry& instance();

    /// Enters a prototype under its name. It must live until `remove`.
    void add(IExchangeObject* object);

    /// Removes the entry of the object's name, whichever object it holds.
    void remove(IExchangeObject* object);

    /// A new default object of the class of this name, or null.
    std::shared_ptr<IExchangeObject> get(const wstring& name) const;

    /// The names of all classes, sorted by code unit.
    std::vector<wstring> names() const;

private:
    ExchangeObjectRegistry();
    ~ExchangeObjectRegistry();

    std::map<wstring, IExchangeObject*> m_prototypes;
};

} // namespace vrx
