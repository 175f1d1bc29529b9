#pragma once

#include "mp/wide.h"
#include "reading/step_records.h"

#include <optional>
#include <vector>

/// What a STEP file says in words of a drawn annotation.
struct AnnotationText
{
    /// That stands before a dimension, such as "4X"; empty when the words of a dimension have none.
    std::optional<mp::wstring> count;
    std::vector<mp::wstring> lines; // of text alone
};

/// By the validation property "equivalent unicode string" of a drawn annotation, or by a semantic text that it
/// presents.
AnnotationText annotationText(const StepRecord& annotation, const std::vector<StepRecord>& about);
