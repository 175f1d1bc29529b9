#include "pmi/length_unit.h"

#include "common/property_names.h"
#include "find_property.h"

#include <algorithm>

namespace
{

struct UnitName
{
    mp::wstring_view inFile;
    const mp::wchar* unit;
};

const UnitName kUnits[] = {
    {WIDE("millimetre"), WIDE("mm")}, {WIDE("centimetre"), WIDE("cm")}, {WIDE("metre"), WIDE("meter")},
    {WIDE("kilometre"), WIDE("km")},  {WIDE("inch"), WIDE("inch")},     {WIDE("foot"), WIDE("foot")},
};

mp::wstring lowerCase(mp::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](mp::wchar c) { return c >= 'A' && c <= 'Z' ? static_cast<mp::wchar>(c + ('a' - 'A')) : c; });
    return text;
}

} // namespace

mp::wstring fileLengthUnit(const vrx::ExcProductStructure& structure)
{
    const vrx::ExcMiscProperty* const property = findProperty(structure.miscData(), property_names::kFileLengthUnit);
    if (property == nullptr)
    {
        return {};
    }
    const mp::wstring name = lowerCase(property->value());
    const auto* const found =
        std::find_if(std::begin(kUnits), std::end(kUnits), [&name](const UnitName& one) { return one.inFile == name; });
    return found != std::end(kUnits) ? found->unit : property->value();
}
