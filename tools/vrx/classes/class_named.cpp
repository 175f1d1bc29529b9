#include "classes/class_named.h"

#include "mp/narrow.h"
#include "vrx_api/exchange/exchange_object_registry.h"

#include <typeinfo>

namespace classes
{

const vrx::ClassShape* ofObject(const mp::wstring& wireName)
{
    const auto object = vrx::ExchangeObjectRegistry::instance().get(wireName);
    if (object == nullptr)
    {
        return nullptr;
    }
    const vrx::IExchangeObject& known = *object;
    return vrx::ClassShape::find(typeid(known));
}

const vrx::ClassShape* named(const std::string& name)
{
    const vrx::ClassShape* const found = vrx::ClassShape::find(name);
    return found != nullptr ? found : ofObject(mp::toWide(name));
}

} // namespace classes
