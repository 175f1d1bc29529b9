#pragma once

#include "vrx_api/exchange/exchange_object_registry.h"

namespace vrx
{

/// The prototype of an exchange class: the one object that stands in the registry for it, from the load of the library
/// to its unload. The name of the class must be initialised before it, in the same source.
template <class T>
class StaticExchangeObject : public T
{
public:
    StaticExchangeObject() { ExchangeObjectRegistry::instance().add(this); }

    /// A copy is not registered, but its end takes the prototype's entry away: make none.
    StaticExchangeObject(const StaticExchangeObject& other) = default;
    StaticExchangeObject& operator=(const StaticExchangeObject& other) = default;

    ~StaticExchangeObject() override { ExchangeObjectRegistry::instance().remove(this); }
};

} // namespace vrx
