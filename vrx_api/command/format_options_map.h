#pragma once

#include "vrx_api/format_options/option_fields.h"
#include "vrx_api/json/fields.h"

#include <map>
#include <memory>
#include <vector>

namespace vrx
{

/// The settings of an import, by format. None of the objects is null.
class FormatOptionsMap
{
public:
    bool isEmpty() const { return m_options.empty(); }

    std::shared_ptr<IFormatOptions> get(EFormatType format) const;

    /// A null pointer is ignored.
    void set(std::shared_ptr<IFormatOptions> options);

    /// Adds the settings of an array, later ones replacing earlier ones of their format. Settings that can't be read
    /// cost only a line in the log, which names the file of the import.
    void read(const JsonValue& array, const wstring& file);

    /// In the order of the formats' numbers.
    std::vector<std::shared_ptr<IFormatOptions>> all() const;

private:
    std::map<EFormatType, std::shared_ptr<IFormatOptions>> m_options;
};

/// The settings of an import of a file, an array on the wire.
template <class Map>
struct SettingsForFile
{
    const wstring& file;
    Map& options;
};

template <class Map>
SettingsForFile<Map> forFile(const wstring& file, Map& options)
{
    return {file, options};
}

template <class Value>
bool decode(const Value& value, const SettingsForFile<FormatOptionsMap>& settings)
{
    if (!value.isArray())
    {
        return false;
    }
    withTree(value, [&settings](const JsonValue& array) { settings.options.read(array, settings.file); });
    return true;
}

template <class Out>
void encode(Out& out, const SettingsForFile<const FormatOptionsMap>& settings)
{
    encode(out, settings.options.all());
}

inline const std::type_info* classOfSettings(const JsonValue& value, const JsonValue&)
{
    const std::shared_ptr<IFormatOptions> options = IFormatOptions::readOptions(value);
    return options == nullptr ? nullptr : &typeOf(*options);
}

template <class Map>
void outline(Shape& shape, const SettingsForFile<Map>&)
{
    shape.kind = EShape::List;
    Shape& settings = shape.parts.emplace_back();
    settings.kind = EShape::OneOf;
    settings.classes = importOptionClasses();
    settings.choose = &classOfSettings;
}

template <class Map>
bool isEmpty(const SettingsForFile<Map>& settings)
{
    return settings.options.isEmpty();
}

} // namespace vrx
