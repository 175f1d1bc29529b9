#pragma once

#include "bench/models.h"

#include <cstddef>

namespace bench
{

/// The most memory that a whole write and a whole read have in use, as resident pages of a process that does nothing
/// else; pages of shared memory count while they are mapped. What the process has in use before does not count, which
/// is for a write its model; the model that a read makes does.
struct Peaks
{
    std::size_t write = 0;
    std::size_t read = 0;
};

/// Measures them in child processes, which should begin small: to be called before the process has grown.
Peaks peaksOf(const Model& model);

} // namespace bench
