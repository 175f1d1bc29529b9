#pragma once

#include "reading/step_records.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// Parameters of an item of a representation, by their positions in what one of its types adds. A record of several
/// types has a part for each of them. A record of one type has the inherited parameters first: the name, unless another
/// number of them is given.
namespace item_parameters
{

inline bool hasParts(const StepRecord& item)
{
    return item.is("REPRESENTATION_ITEM");
}

inline const StepParameter& parameter(const StepRecord& item, std::string_view type, std::size_t position,
                                      std::size_t inherited = 1)
{
    return hasParts(item) ? item.as(type)[position] : item[position + inherited];
}

/// The records to which the parameter refers.
inline std::vector<StepRecord> records(const StepRecord& item, std::string_view type, std::size_t position,
                                       std::size_t inherited = 1)
{
    return hasParts(item) ? item.as(type).nexts(position) : item.nexts(position + inherited);
}

} // namespace item_parameters
