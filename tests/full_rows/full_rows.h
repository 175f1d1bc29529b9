#pragma once

#include "tests/support/full_row.h"

#include <vector>

namespace test
{

// One function a family of classes.
std::vector<FullRow> commonRows();
std::vector<FullRow> statusRows();
std::vector<FullRow> structureRows();
std::vector<FullRow> geometryRows();
std::vector<FullRow> pmiRows();
std::vector<FullRow> mechanicalRows();
std::vector<FullRow> manufacturingRows();
std::vector<FullRow> blockMechanicalRows();
std::vector<FullRow> visualizationRows();
std::vector<FullRow> formatOptionsRows();
std::vector<FullRow> messageRows();

std::vector<FullRow> allFullRows();

} // namespace test
