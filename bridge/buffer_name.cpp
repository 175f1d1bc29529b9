#include "bridge/buffer_name.h"

#include <algorithm>

namespace vrx::bridge
{

namespace
{

// Where the form has an x there is any digit, where it has a v the variant.
bool fits(mp::wchar unit, mp::wchar form)
{
    switch (form)
    {
    case WIDE('x'):
        return (unit >= WIDE('0') && unit <= WIDE('9')) || (unit >= WIDE('a') && unit <= WIDE('f'));
    case WIDE('v'):
        return unit == WIDE('8') || unit == WIDE('9') || unit == WIDE('a') || unit == WIDE('b');
    default:
        return unit == form;
    }
}

} // namespace

bool isBufferName(const mp::wstring& name)
{
    const mp::wstring form = WIDE("xxxxxxxx-xxxx-4xxx-vxxx-xxxxxxxxxxxx");
    return std::equal(name.begin(), name.end(), form.begin(), form.end(), fits);
}

} // namespace vrx::bridge
