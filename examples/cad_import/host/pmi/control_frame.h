#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <array>
#include <vector>

/// One line of a feature control frame: the first one, or the second one of a composite frame.
struct ControlFrameLine
{
    vrx::ExcPMIGDT::EToleranceValueType zone;
    double value;
    std::array<double, 2> rateUnit;
    std::vector<vrx::ExcPMIGDT::EToleranceModifier> modifiers;
    std::vector<vrx::ExcPMIGDT::DatumRef> datums;
};

inline std::vector<ControlFrameLine> controlFrameLines(const vrx::ExcPMIGDT& gdt)
{
    using EModifier = vrx::ExcPMIGDT::EToleranceModifier;
    const auto datums = [](const std::shared_ptr<vrx::ExcPMIGDT::Frame>& frame) {
        return frame ? frame->datumRefs() : std::vector<vrx::ExcPMIGDT::DatumRef>();
    };
    std::array<double, 2> rate{};
    gdt.rateUnits(rate[0], rate[1]);
    EModifier first = EModifier::NoModifier;
    EModifier second = EModifier::NoModifier;
    gdt.zoneModifiers(first, second);
    std::vector<ControlFrameLine> lines{
        {gdt.toleranceValueType(), gdt.toleranceValue(), rate, {first, second}, datums(gdt.referenceFrame())}};
    if (gdt.isComposite())
    {
        gdt.compositeRateUnits(rate[0], rate[1]);
        lines.push_back({gdt.compositeToleranceValueType(),
                         gdt.compositeToleranceValue(),
                         rate,
                         {gdt.compositeZoneModifier()},
                         datums(gdt.compositeReferenceFrame())});
    }
    return lines;
}
