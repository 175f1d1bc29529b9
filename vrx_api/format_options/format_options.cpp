#include "vrx_api/format_options/format_options.h"

#include "kolt/log.h"
#include "vrx_api/format_options/format_type_tables.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

namespace
{

void checkIdentity(const IFormatOptions& options, const JsonValue& value)
{
    if (!isObject(value, "FormatOptions"))
    {
        return;
    }
    FieldReader fields{TreeValue(&value)};
    EOperationType operation = options.operationType();
    fields.always(kOperationKey, operation);
    if (operation != options.operationType())
    {
        kolt::log(kolt::kError, "FormatOptions operation type doesn't match.");
        return;
    }
    // Unlike a missing operation, a missing format is a mismatch.
    EFormatType format = EFormatType::Unknown;
    fields.always(kFormatKey, format);
    if (format != options.formatType())
    {
        kolt::log(kolt::kError, "FormatOptions format type doesn't match.");
    }
}

} // namespace

// The class of an object stands for both keys: reading only compares them.
template <class Self, class Fields>
void IFormatOptions::describe(Self& self, Fields& fields)
{
    fields.classKey(kOperationKey, self.operationType());
    fields.classKey(kFormatKey, self.formatType());
}
template struct Described<IFormatOptions>;

namespace imp
{

void FormatOptions::readObject(const JsonValue& value)
{
    checkIdentity(*this, value);
}

void FormatOptions::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    addMembers<IFormatOptions>(*this, value, allocator);
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
    addMembers<IFormatOptions>(*this, value, allocator);
}

EOperationType FormatOptions::operationType() const
{
    return EOperationType::Export;
}

} // namespace exp

} // namespace vrx
