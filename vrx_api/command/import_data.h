#pragma once

#include "vrx_api/command/format_options_map.h"

#include <memory>
#include <utility>

namespace vrx
{

/// What every implementation of import options holds. The interface is `ImportOptions` or one that derives from it.
template <class Interface>
class ImportData : public Interface
{
public:
    const wstring& file() const override { return m_file; }
    void setFile(const wstring& file) override { m_file = file; }

    std::shared_ptr<IFormatOptions> formatOptions(EFormatType format) const override
    {
        return m_formatOptions.get(format);
    }
    void setFormatOptions(std::shared_ptr<IFormatOptions> options) override { m_formatOptions.set(std::move(options)); }

protected:
    wstring m_file;
    FormatOptionsMap m_formatOptions;
};

} // namespace vrx
