#include "classes/class_guess.h"

#include "classes/class_named.h"
#include "json/member.h"
#include "vrx_api/exchange/exchange_object_registry.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace classes
{

namespace
{

// How many of the keys the class has, and how many of those that it always writes are among them.
std::pair<std::size_t, std::ptrdiff_t> likeness(const vrx::Shape& shape, const std::vector<mp::wstring>& keys)
{
    std::size_t known = 0;
    std::ptrdiff_t missing = 0;
    for (const vrx::FieldShape& field : shape.fields)
    {
        const bool isThere = std::find(keys.begin(), keys.end(), field.key) != keys.end();
        known += isThere ? 1U : 0U;
        missing += !isThere && field.isAlwaysWritten ? 1 : 0;
    }
    return {known, -missing};
}

} // namespace

mp::wstring guessed(const std::vector<mp::wstring>& keys)
{
    const auto& registry = vrx::ExchangeObjectRegistry::instance();
    std::pair<std::size_t, std::ptrdiff_t> best;
    mp::wstring likeliest;
    for (const mp::wstring& name : registry.names())
    {
        const vrx::ClassShape* const shape = ofObject(name);
        if (shape == nullptr || !registry.get(name)->binary())
        {
            continue;
        }
        const auto found = likeness(shape->shape(), keys);
        if (found.first != 0 && (best.first == 0 || found >= best))
        {
            likeliest = found == best ? mp::wstring() : name;
            best = found;
        }
    }
    return likeliest;
}

mp::wstring guessed(const vrx::JsonValue& object)
{
    std::vector<mp::wstring> keys;
    if (object.IsObject())
    {
        for (const auto& member : object.GetObject())
        {
            if (member.name.IsString())
            {
                keys.emplace_back(json::textOf(member.name));
            }
        }
    }
    return guessed(keys);
}

} // namespace classes
