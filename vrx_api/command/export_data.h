#pragma once

#include "vrx_api/json/json_fwd.h"

#include <cstdint>

namespace vrx
{

/// What every implementation of export options holds. The interface is `ExportOptions` or one that derives from it.
template <class Interface>
class ExportData : public Interface
{
public:
    const wstring& file() const override { return m_file; }
    void setFile(const wstring& file) override { m_file = file; }

    const wstring& formatVersion() const override { return m_formatVersion; }
    void setFormatVersion(const wstring& version) override { m_formatVersion = version; }
    int geometryFlags() const override { return m_geometryFlags; }
    void setGeometryFlags(int flags) override { m_geometryFlags = flags; }

protected:
    wstring m_file;
    wstring m_formatVersion;
    std::int32_t m_geometryFlags = 0;
};

} // namespace vrx
