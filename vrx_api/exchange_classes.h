#pragma once

namespace vrx
{

/// Does nothing, but whoever calls it has the sources of all exchange classes, which enter themselves into the
/// registry: from a static library a linker takes only the sources that are asked for.
void linkExchangeClasses();

} // namespace vrx
