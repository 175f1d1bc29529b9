#include "kolt/log.h"
#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/format_type_tables.h"
#include "vrx_api/format_options/neutral_options.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/kind.h"

namespace vrx
{

static std::shared_ptr<IFormatOptions> newImportOptions(EFormatType format)
{
    switch (format)
    {
    case EFormatType::Parasolid:
        return std::make_shared<imp::OptionsParasolid>();
    case EFormatType::IGES:
        return std::make_shared<imp::OptionsIGES>();
    case EFormatType::STEP:
        return std::make_shared<imp::OptionsSTEP>();
    case EFormatType::JT:
        return std::make_shared<imp::OptionsJT>();
    default:
        return nullptr;
    }
}

std::shared_ptr<IFormatOptions> IFormatOptions::readOptions(const JsonValue& value)
{
    if (!isObject(value, "FormatOptions"))
    {
        return nullptr;
    }
    const JsonValue* const operation = findString(value, kOperationKey);
    if (operation == nullptr)
    {
        kolt::log(kolt::kError, "FormatOptions object should contain operation type.");
        return nullptr;
    }
    const JsonValue* const format = findString(value, kFormatKey);
    if (format == nullptr)
    {
        kolt::log(kolt::kError, "FormatOptions object should contain format type.");
        return nullptr;
    }
    if (enumValue<EOperationType>(textOf(*operation)) != EOperationType::Import)
    {
        return nullptr;
    }
    std::shared_ptr<IFormatOptions> options = newImportOptions(enumValue<EFormatType>(textOf(*format)));
    if (options == nullptr)
    {
        kolt::log(kolt::kInfo, "FormatOptions: No options for given format.");
        return nullptr;
    }
    options->readObject(value);
    return options;
}

} // namespace vrx
