#pragma once

#include "vrx_api/command/import_data.h"
#include "vrx_api/command/import_options.h"

namespace vrx
{

class ImportOptionsImpl : public ImportData<ImportOptions>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    friend struct Described<ImportOptionsImpl>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);
};

} // namespace vrx
