#pragma once

#include "pmi/received_pmi.h"

#include <vector>

/// Annotations as one line of text each, with the symbols of drawings, such as "4X ⌀ 12.5 ±0.05" or "⌖ ⌀0.3 Ⓜ A B Ⓜ".
/// Lengths have no unit.
namespace pmi_notation
{

mp::wstring text(const vrx::ExcPMIDimension& dimension);

/// A text for each line of the frame. The received PMI tells the labels of datums.
std::vector<mp::wstring> lines(const vrx::ExcPMIGDT& gdt, const ReceivedPmi& pmi);

/// The label of a compartment of a frame, such as "A" or "A-B", without modifiers.
mp::wstring label(const vrx::ExcPMIGDT::DatumRef& datums, const ReceivedPmi& pmi);

mp::wstring text(const vrx::ExcPMIDatum& datum, const ReceivedPmi& pmi);
mp::wstring text(const vrx::ExcPMIDatumTarget& target);
mp::wstring text(const vrx::ExcPMINote& note);

/// The classes of a fit, such as "H7", "g6" or "H7/g6".
mp::wstring fit(const vrx::ExcPMIDimension& dimension);

/// Whether a dimension allows deviations from its value, in numbers.
bool hasDeviations(const vrx::ExcPMIDimension& dimension);

/// Whether a value is stated. What states none has a "–" in its text.
bool hasValue(const vrx::ExcPMIDimension& dimension);
bool hasValue(const vrx::ExcPMIGDT& gdt);

/// Whether a dimension's value is an angle.
bool isAngle(const vrx::ExcPMIDimension& dimension);

} // namespace pmi_notation
