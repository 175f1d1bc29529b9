#include "vrx_api/json/read_rules.h"

namespace vrx
{

ReadRules ReadRules::upToPlainBytes(std::uint64_t count)
{
    ReadRules rules;
    rules.plainBytes = count;
    return rules;
}

ReadRules ReadRules::strict()
{
    ReadRules rules;
    rules.isStrict = true;
    return rules;
}

ReadRules ReadRules::forUntrusted()
{
    ReadRules rules = strict();
    rules.plainBytes = std::uint64_t{2} << 30U;
    rules.values = 200'000'000;
    rules.depth = 100;
    return rules;
}

} // namespace vrx
