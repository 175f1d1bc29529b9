#pragma once

#include "vrx_api/command/export_data.h"
#include "vrx_api/command/export_options.h"
#include "vrx_api/json/described.h"

namespace vrx
{

class ExportOptionsImpl : public ExportData<ExportOptions>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    friend struct Described<ExportOptionsImpl>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    void logFields() const;
};

} // namespace vrx
