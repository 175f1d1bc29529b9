#include "bridge/buffer_name.h"

#include <algorithm>

namespace vrx::bridge
{

namespace
{

// Where the form has an x there is any digit, where it has a v the variant.
template <class Unit>
bool fits(Unit unit, char form)
{
    switch (form)
    {
    case 'x':
        return (unit >= Unit('0') && unit <= Unit('9')) || (unit >= Unit('a') && unit <= Unit('f'));
    case 'v':
        return unit == Unit('8') || unit == Unit('9') || unit == Unit('a') || unit == Unit('b');
    default:
        return unit == Unit(form);
    }
}

template <class Text>
bool hasForm(const Text& name)
{
    constexpr std::string_view kForm = "xxxxxxxx-xxxx-4xxx-vxxx-xxxxxxxxxxxx";
    return std::equal(name.begin(), name.end(), kForm.begin(), kForm.end(), fits<typename Text::value_type>);
}

} // namespace

bool isBufferName(mp::wstring_view name)
{
    return hasForm(name);
}

bool isBufferName(std::string_view narrowName)
{
    return hasForm(narrowName);
}

} // namespace vrx::bridge
