#include "vrx_api/format_options/format_options.h"

#include "vrx_api/format_options/neutral_options.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<EOperationType> kOperations[] = {
    {EOperationType::Import, WIDE("import")},
    {EOperationType::Export, WIDE("export")},
};
static constexpr const auto& enumTable(EOperationType)
{
    return kOperations;
}

static constexpr EnumName<EFormatType> kFormats[] = {
    {EFormatType::Unknown, WIDE("unknown")},
    {EFormatType::General, WIDE("general")},
    {EFormatType::CGM, WIDE("CGM")},
    {EFormatType::ACIS, WIDE("ACIS")},
    {EFormatType::Parasolid, WIDE("parasolid")},
    {EFormatType::CatiaV5, WIDE("CatiaV5")},
    {EFormatType::CatiaV5Drawing, WIDE("CatiaV5Drawing")},
    {EFormatType::CatiaV4, WIDE("CatiaV4")},
    {EFormatType::IGES, WIDE("IGES")},
    {EFormatType::STEP, WIDE("STEP")},
    {EFormatType::STL, WIDE("STL")},
    {EFormatType::Creo, WIDE("Creo")},
    {EFormatType::NX, WIDE("NX")},
    {EFormatType::SolidWorks, WIDE("SolidWorks")},
    {EFormatType::SolidWorksDrawing, WIDE("SolidWorksDrawing")},
    {EFormatType::SolidEdge, WIDE("SolidEdge")},
    {EFormatType::JT, WIDE("JT")},
    {EFormatType::Inventor, WIDE("Inventor")},
    {EFormatType::PDF3D, WIDE("3D_PDF")},
    {EFormatType::XML3D, WIDE("3D_XML")},
    {EFormatType::Autocad, WIDE("autocad")},
    {EFormatType::U3D, WIDE("U3D")},
    {EFormatType::VDA_FS, WIDE("VDA_FS")},
    {EFormatType::XML_EBOM, WIDE("XML_EBOM")},
    {EFormatType::XCGM, WIDE("XCGM")},
    {EFormatType::Graphical, WIDE("graphical")},
    {EFormatType::Mechanical, WIDE("mechanical")},
    {EFormatType::Picture, WIDE("picture")},
    {EFormatType::IFC, WIDE("IFC")},
    {EFormatType::EDrawings, WIDE("EDrawings")},
    {EFormatType::UDL, WIDE("UDL")},
};
static constexpr const auto& enumTable(EFormatType)
{
    return kFormats;
}

namespace
{

constexpr Key kOperationKey = WIDE("operation_type");
constexpr Key kFormatKey = WIDE("format_type");
constexpr const char* kClassName = "FormatOptions";

void checkIdentity(const IFormatOptions& options, const JsonValue& value)
{
    if (!isObject(value, kClassName))
    {
        return;
    }
    FieldReader fields(value);
    EOperationType operation = options.operationType();
    fields.always(kOperationKey, operation);
    if (operation != options.operationType())
    {
        kolt::log(kolt::kError, "FormatOptions operation type doesn't match.");
        return;
    }
    // Other than for the operation, a missing format is a mismatch.
    EFormatType format = EFormatType::Unknown;
    fields.always(kFormatKey, format);
    if (format != options.formatType())
    {
        kolt::log(kolt::kError, "FormatOptions format type doesn't match.");
    }
}

void writeIdentity(const IFormatOptions& options, JsonValue& value, JsonAllocator& allocator)
{
    if (!value.IsObject())
    {
        value.SetObject();
    }
    FieldWriter fields(value, allocator);
    Described<IFormatOptions>::walk(options, fields);
}

std::shared_ptr<IFormatOptions> newImportOptions(EFormatType format)
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

} // namespace

// What is read decides about the class, and is there before the object.
template <class Self, class Fields>
void IFormatOptions::describe(Self& self, Fields& fields)
{
    fields.writeOnly(true, kOperationKey, self.operationType());
    fields.writeOnly(true, kFormatKey, self.formatType());
}
template struct Described<IFormatOptions>;

std::shared_ptr<IFormatOptions> IFormatOptions::readOptions(const JsonValue& value)
{
    if (!isObject(value, kClassName))
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

namespace imp
{

void FormatOptions::readObject(const JsonValue& value)
{
    checkIdentity(*this, value);
}

void FormatOptions::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeIdentity(*this, value, allocator);
}

EOperationType FormatOptions::operationType() const
{
    return EOperationType::Import;
}

} // namespace imp

namespace exp
{

void FormatOptions::readObject(const JsonValue& value)
{
    checkIdentity(*this, value);
}

void FormatOptions::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeIdentity(*this, value, allocator);
}

EOperationType FormatOptions::operationType() const
{
    return EOperationType::Export;
}

} // namespace exp

} // namespace vrx
