#include "classes/class_named.h"

#include "mp/narrow.h"
#include "vrx_api/exchange/exchange_object_registry.h"

namespace classes
{

const vrx::ClassShape* ofObject(const mp::wstring& wireName)
{
    const auto object = vrx::ExchangeObjectRegistry::instance().get(wireName);
    return object == nullptr ? nullptr : vrx::ClassShape::find(vrx::typeOf(*object));
}

const vrx::ClassShape* named(const std::string& name)
{
    const vrx::ClassShape* const found = vrx::ClassShape::find(name);
    return found != nullptr ? found : ofObject(mp::toWide(name));
}

} // namespace classes
