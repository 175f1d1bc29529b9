#pragma once

#include "common/body_figures.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <vector>

/// Restores the bodies that a translator sends, and measures them.
class BodyReport
{
public:
    /// Throws TranslatorFailure when the bodies can't be restored or are not what they should be.
    void add(const vrx::ExcBlockGeometry& geometry);

    /// A line for each body, with the name of its block.
    void print(std::ostream& stream, const vrx::ExcProductStructure& structure) const;

private:
    struct Line
    {
        std::uint64_t block = 0;
        std::size_t number = 0; // within its block
        std::uint64_t id = 0;
        BodyFigures figures;
    };

    std::vector<Line> m_lines;
};
