#include "structure/iges_head.h"

#include "common/property_names.h"
#include "kernel/occt_text.h"
#include "mp/narrow.h"
#include "structure/misc_properties.h"

#include <string>

namespace
{

using vrx::ExcMiscProperty;

mp::wstring versionText(int number)
{
    static const char* const kVersions[] = {"1.0", "ANSI Y14.26M-1981", "2.0", "3.0", "ASME/ANSI Y14.26M-1987",
                                            "4.0", "ASME Y14.26M-1989", "5.0", "5.1", "5.2",
                                            "5.3"};
    const bool isKnown = number >= 1 && number <= static_cast<int>(std::size(kVersions));
    return mp::toWide(std::string("IGES") + (isKnown ? std::string(" ") + kVersions[number - 1] : ""));
}

mp::wstring unitText(const IGESData_GlobalSection& section)
{
    static const char* const kUnits[] = {"inch",      "millimetre", "",           "foot",       "mile",     "metre",
                                         "kilometre", "mil",        "micrometre", "centimetre", "microinch"};
    const int flag = section.UnitFlag();
    const bool isKnown = flag >= 1 && flag <= static_cast<int>(std::size(kUnits)) && *kUnits[flag - 1] != '\0';
    return isKnown ? mp::toWide(kUnits[flag - 1]) : occt_text::wide(section.UnitName());
}

// "20240131.235959", or with two digits of the year, of which the earliest is 1980.
mp::wstring timeText(const Handle(TCollection_HAsciiString) & date)
{
    std::string digits = date.IsNull() ? "" : date->ToCString();
    if (digits.find('.') == 6)
    {
        digits.insert(0, digits < "80" ? "20" : "19");
    }
    if (digits.size() != 15 || digits[8] != '.')
    {
        return mp::toWide(digits);
    }
    return mp::toWide(digits.substr(0, 4) + '-' + digits.substr(4, 2) + '-' + digits.substr(6, 2) + 'T' +
                      digits.substr(9, 2) + ':' + digits.substr(11, 2) + ':' + digits.substr(13, 2));
}

} // namespace

vrx::ExcMiscData igesHead(const IGESData_IGESModel& entities, bool namesUnit)
{
    const IGESData_GlobalSection& section = entities.GlobalSection();
    const auto string = ExcMiscProperty::EType::String;
    vrx::ExcMiscData head;
    addText(head, WIDE("schema"), string, versionText(section.IGESVersion()));
    addText(head, WIDE("file name"), string, occt_text::wide(section.FileName()));
    addText(head, WIDE("time stamp"), ExcMiscProperty::EType::DateTime, timeText(section.Date()));
    addText(head, WIDE("author"), string, occt_text::wide(section.AuthorName()));
    addText(head, WIDE("organization"), string, occt_text::wide(section.CompanyName()));
    addText(head, WIDE("originating system"), string, occt_text::wide(section.SystemId()));
    addText(head, WIDE("preprocessor version"), string, occt_text::wide(section.InterfaceVersion()));
    if (namesUnit)
    {
        addText(head, property_names::kFileLengthUnit, string, unitText(section));
    }
    if (section.Scale() != 1)
    {
        add(head, WIDE("model space scale"), section.Scale());
    }
    return head;
}
