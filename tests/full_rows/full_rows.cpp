#include "tests/full_rows/full_rows.h"

#include <iterator>

namespace test
{

std::vector<FullRow> allFullRows()
{
    std::vector<FullRow> all;
    for (const auto family :
         {commonRows, statusRows, structureRows, geometryRows, pmiRows, mechanicalRows, manufacturingRows,
          blockMechanicalRows, visualizationRows, formatOptionsRows, messageRows})
    {
        std::vector<FullRow> rows = family();
        std::move(rows.begin(), rows.end(), std::back_inserter(all));
    }
    return all;
}

} // namespace test
