#pragma once

#include "kolt/log.h"
#include "vrx_api/json/kind.h"

#include <memory>
#include <vector>

namespace vrx
{

/// True for a null pointer, which is logged with the class's text.
template <class T>
bool refuseNull(const std::shared_ptr<T>& object, const char* refusal)
{
    if (object == nullptr && refusal != kSilently)
    {
        kolt::log(kolt::kWarning, refusal);
    }
    return object == nullptr;
}

/// Appends an object; a null pointer is refused.
template <class T>
void add(std::vector<std::shared_ptr<T>>& objects, const std::shared_ptr<T>& object, const char* refusal)
{
    if (!refuseNull(object, refusal))
    {
        objects.push_back(object);
    }
}

/// Appends objects in their order, which may be those of the vector itself; each null pointer is refused by itself.
template <class T>
void addAll(std::vector<std::shared_ptr<T>>& objects, const std::vector<std::shared_ptr<T>>& added, const char* refusal)
{
    const std::size_t count = added.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        add(objects, added[i], refusal);
    }
}

/// Replaces the objects; each null pointer is refused by itself.
template <class T>
void setAll(std::vector<std::shared_ptr<T>>& objects, const std::vector<std::shared_ptr<T>>& wanted,
            const char* refusal)
{
    std::vector<std::shared_ptr<T>> kept;
    addAll(kept, wanted, refusal);
    objects.swap(kept);
}

} // namespace vrx
