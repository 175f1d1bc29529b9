#pragma once

#include "vrx_api/command/format_options_map.h"
#include "vrx_api/command/import_options.h"

namespace vrx
{

class ImportOptionsImpl : public ImportOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& file() const override;
    void setFile(const wstring& file) override;

    std::shared_ptr<IFormatOptions> formatOptions(EFormatType format) const override;
    void setFormatOptions(std::shared_ptr<IFormatOptions> options) override;

private:
    wstring m_file;
    FormatOptionsMap m_formatOptions;
};

} // namespace vrx
