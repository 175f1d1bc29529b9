#include "checking/known_keys.h"

#include "classes/class_named.h"

namespace checking
{

void KnownKeys::add(const std::string& known)
{
    const std::size_t slash = known.find('/');
    const vrx::ClassShape* const named = classes::named(known.substr(0, slash));
    const bool isKey = slash != std::string::npos;
    m_known.insert(isKey && named != nullptr ? named->name() + known.substr(slash) : known);
}

bool KnownKeys::hasKey(const std::string& className, std::string_view key) const
{
    return !m_known.empty() && m_known.count(className + '/' + std::string(key)) != 0;
}

bool KnownKeys::hasObject(const std::string& wireName) const
{
    return m_known.count(wireName) != 0;
}

} // namespace checking
