#pragma once

#include "reading/step_records.h"

#include <cstdint>
#include <unordered_map>

struct CadModel;
class ProductStructureBuilder;

/// Which block of the product structure a STEP file's records tell of.
class ProductBlocks
{
public:
    ProductBlocks(const CadModel& model, const ProductStructureBuilder& blocks);

    /// The block of the product that a shape aspect, a product definition shape or a product definition tells of; 0
    /// when there is none, or when it was not sent. Of several blocks of an assembly the first.
    std::uint64_t of(const StepRecord& record) const;

    /// The product definition that one of these tells of, if there is one.
    static StepRecord productOf(const StepRecord& record);

    /// The block of the only product at the top, or 0.
    std::uint64_t top() const { return m_top; }

private:
    std::unordered_map<int, std::uint64_t> m_blocks; // by the id of the product definition
    std::uint64_t m_top = 0;
};
