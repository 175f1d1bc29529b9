#include "kolt/log.h"
#include "vrx_api/format_options/catia_options.h"
#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/format_type_tables.h"
#include "vrx_api/format_options/native_options.h"
#include "vrx_api/format_options/neutral_options.h"
#include "vrx_api/format_options/option_fields.h"
#include "vrx_api/format_options/solidworks_options.h"
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
    case EFormatType::CatiaV5:
        return std::make_shared<imp::OptionsCatiaV5>();
    case EFormatType::CatiaV5Drawing:
        return std::make_shared<imp::OptionsCatiaV5Drawing>();
    case EFormatType::CatiaV4:
        return std::make_shared<imp::OptionsCatiaV4>();
    case EFormatType::IGES:
        return std::make_shared<imp::OptionsIGES>();
    case EFormatType::STEP:
        return std::make_shared<imp::OptionsSTEP>();
    case EFormatType::Creo:
        return std::make_shared<imp::OptionsCreo>();
    case EFormatType::NX:
        return std::make_shared<imp::OptionsNX>();
    case EFormatType::SolidWorks:
        return std::make_shared<imp::OptionsSolidWorks>();
    case EFormatType::SolidWorksDrawing:
        return std::make_shared<imp::OptionsSolidWorksDrawing>();
    case EFormatType::SolidEdge:
        return std::make_shared<imp::OptionsSolidEdge>();
    case EFormatType::JT:
        return std::make_shared<imp::OptionsJT>();
    case EFormatType::Inventor:
        return std::make_shared<imp::OptionsInventor>();
    case EFormatType::XML3D:
        return std::make_shared<imp::Options3DXML>();
    case EFormatType::XCGM:
        return std::make_shared<imp::OptionsXCGM>();
    default:
        return nullptr;
    }
}

std::vector<const std::type_info*> importOptionClasses()
{
    std::vector<const std::type_info*> classes;
    for (const EnumName<EFormatType>& format : tableOf<EFormatType>())
    {
        if (const std::shared_ptr<IFormatOptions> options = newImportOptions(format.value))
        {
            classes.push_back(&typeOf(*options));
        }
    }
    return classes;
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
