#pragma once

#include "vrx_api/format_options/format_type.h"
#include "vrx_api/json/json_object.h"

#include <memory>

namespace vrx
{

/// The settings of a translator for one CAD format. The class of an object says which format and which operation. A
/// mode that is "unknown", as it is in a default object, leaves the decision to the translator.
class VRX_API IFormatOptions : public IJsonObject
{
public:
    virtual EFormatType formatType() const = 0;
    virtual EOperationType operationType() const = 0;

    /// Makes and reads the object whose class the two identifying keys name. Null when one of them is missing or names
    /// no class, which is logged, and for an export, which is not.
    static std::shared_ptr<IFormatOptions> readOptions(const JsonValue& value);

private:
    friend struct Described<IFormatOptions>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);
};

extern template struct Described<IFormatOptions>;

namespace imp
{

/// The base of all settings for an import.
class VRX_API FormatOptions : public IFormatOptions
{
public:
    /// Stores nothing, and logs when the value is for another operation or another format.
    void readObject(const JsonValue& value) override;

    /// Adds the keys of operation and format to the value, which is made an object if it is none.
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    EOperationType operationType() const override;
};

} // namespace imp

namespace exp
{

/// The base of all settings for an export; reads and writes as the base for an import does.
class VRX_API FormatOptions : public IFormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EOperationType operationType() const override;
};

} // namespace exp

} // namespace vrx
