#include "features/step_threads.h"

#include "common/mechanical_conventions.h"
#include "pmi/step_quantity.h"
#include "reading/step_measures.h"

#include <cmath>
#include <string>
#include <utility>

namespace
{

namespace names = mechanical_conventions;

/// What the property of a thread says.
struct Items
{
    std::vector<std::pair<mp::wstring, mp::wstring>> texts;
    std::vector<std::pair<mp::wstring, double>> lengths; // in millimetres

    template <class Value>
    static Value find(const std::vector<std::pair<mp::wstring, Value>>& items, const mp::wchar* name)
    {
        for (const auto& [itsName, value] : items)
        {
            if (itsName == name)
            {
                return value;
            }
        }
        return {};
    }

    mp::wstring text(const mp::wchar* name) const { return find(texts, name); }

    double length(const mp::wchar* name) const
    {
        const double value = find(lengths, name);
        return std::isfinite(value) && value > 0 ? value : 0;
    }
};

// In millimetres, and 0 for what is no length. What has no unit of its own has that of its representation.
double lengthOf(const StepRecord& item, double factor)
{
    if (const StepQuantity quantity = quantityOf(item))
    {
        return quantity.in(StepQuantity::EUnit::Mm).value;
    }
    const bool isMeasure = item.is("MEASURE_WITH_UNIT");
    const StepRecord measure = item.as(isMeasure                                ? "MEASURE_WITH_UNIT"
                                       : item.is("MEASURE_REPRESENTATION_ITEM") ? "MEASURE_REPRESENTATION_ITEM"
                                                                                : "VALUE_REPRESENTATION_ITEM");
    const StepParameter& value = measure[isMeasure ? 0 : 1];
    const bool hasUnit = measure[isMeasure ? 1 : 2].reference != 0;
    const bool isLength = value.type.find("LENGTH") != std::string::npos;
    return isLength && !hasUnit ? value.number * factor : 0;
}

Items itemsOf(const StepRecord& aspect, const StepRecords& records)
{
    Items items;
    for (const StepRecord& property : aspect.users("PROPERTY_DEFINITION"))
    {
        if (property.text(0) != names::kThread)
        {
            continue;
        }
        for (const StepRecord& link : property.users("PROPERTY_DEFINITION_REPRESENTATION"))
        {
            const StepRecord representation = link.next(1);
            const double factor = unitFactors(records, representation).length;
            for (const StepRecord& item : representation.as("REPRESENTATION").nexts(1))
            {
                if (item.is("DESCRIPTIVE_REPRESENTATION_ITEM"))
                {
                    items.texts.emplace_back(item.text(0), item.text(1));
                }
                else
                {
                    const StepRecord named = item.is("REPRESENTATION_ITEM") ? item.as("REPRESENTATION_ITEM") : item;
                    items.lengths.emplace_back(named.text(0), lengthOf(item, factor));
                }
            }
        }
    }
    return items;
}

} // namespace

std::vector<StepThread> threadsOf(const StepRecords& records)
{
    std::vector<StepThread> threads;
    for (const StepRecord& aspect : records.all("SHAPE_ASPECT"))
    {
        if (aspect.as("SHAPE_ASPECT").text(0) != names::kThread)
        {
            continue;
        }
        const Items items = itemsOf(aspect, records);
        const mp::wstring kind = items.text(names::kThreadKind);
        if (kind != WIDE("internal") && kind != WIDE("external"))
        {
            continue;
        }
        StepThread thread;
        thread.aspect = aspect;
        thread.isInternal = kind == WIDE("internal");
        thread.designation = items.text(names::kThreadDesignation);
        thread.hand = items.text(names::kThreadHand);
        thread.diameter = items.length(names::kThreadDiameter);
        thread.pitch = items.length(names::kThreadPitch);
        thread.depth = items.length(names::kThreadDepth);
        threads.push_back(std::move(thread));
    }
    return threads;
}
