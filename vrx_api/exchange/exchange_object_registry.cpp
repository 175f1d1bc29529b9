#include "vrx_api/exchange/exchange_object_registry.h"

#include "vrx_api/exchange_classes.h"

namespace vrx
{

ExchangeObjectRegistry::ExchangeObjectRegistry()
{
    linkExchangeClasses();
}

ExchangeObjectRegistry::~ExchangeObjectRegistry() = default;

ExchangeObjectRegistry& ExchangeObjectRegistry::instance()
{
    static ExchangeObjectRegistry registry;
    return registry;
}

void ExchangeObjectRegistry::add(IExchangeObject* object)
{
    if (object != nullptr)
    {
        m_prototypes[object->objectName()] = object;
    }
}

void ExchangeObjectRegistry::remove(IExchangeObject* object)
{
    if (object != nullptr)
    {
        m_prototypes.erase(object->objectName());
    }
}

std::shared_ptr<IExchangeObject> ExchangeObjectRegistry::get(const wstring& name) const
{
    const auto found = m_prototypes.find(name);
    return found == m_prototypes.end() ? nullptr : found->second->clone();
}

std::vector<wstring> ExchangeObjectRegistry::names() const
{
    std::vector<wstring> names;
    names.reserve(m_prototypes.size());
    for (const auto& [name, unused] : m_prototypes)
    {
        names.push_back(name);
    }
    return names;
}

} // namespace vrx
