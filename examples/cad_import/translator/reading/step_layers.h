#pragma once

#include "reading/step_records.h"

#include <vector>

/// A layer of a STEP file. The file states it once for each item, or for all of them.
struct StepLayer
{
    struct Item
    {
        int id = 0; // of its entity; a styled item stands for what it styles
        bool isHidden = false;
    };

    mp::wstring name;
    mp::wstring description;
    std::vector<Item> items;
};

/// In the order of the file.
std::vector<StepLayer> stepLayers(const StepRecords& records);
