#pragma once

#include "reading/step_records.h"

#include <cstddef>
#include <vector>

/// A thread as a STEP file states it, in the words of common/mechanical_conventions.h, with its lengths in millimetres.
struct StepThread
{
    StepRecord aspect;
    bool isInternal = true;
    mp::wstring designation;
    mp::wstring hand;
    double diameter = 0;
    double pitch = 0;
    double depth = 0;
};

/// In the order of the file, without those of which it does not say whether they are internal or external.
std::vector<StepThread> threadsOf(const StepRecords& records);
