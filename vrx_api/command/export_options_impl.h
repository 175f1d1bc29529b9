#pragma once

#include "vrx_api/command/export_options.h"

#include <cstdint>

namespace vrx
{

class ExportOptionsImpl : public ExportOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& file() const override;
    void setFile(const wstring& file) override;

    const wstring& formatVersion() const override;
    void setFormatVersion(const wstring& version) override;
    int geometryFlags() const override;
    void setGeometryFlags(int flags) override;

private:
    friend struct Described<ExportOptionsImpl>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    void logFields() const;

    wstring m_file;
    wstring m_formatVersion;
    std::int32_t m_geometryFlags = 0;
};

} // namespace vrx
