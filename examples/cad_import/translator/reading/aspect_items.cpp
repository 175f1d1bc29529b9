#include "reading/aspect_items.h"

#include <algorithm>
#include <iterator>

namespace aspect_items
{

namespace
{

void gatherReferences(const StepParameter& parameter, std::vector<int>& all)
{
    if (parameter.reference != 0)
    {
        all.push_back(parameter.reference);
    }
    for (const StepParameter& element : parameter.list)
    {
        gatherReferences(element, all);
    }
}

bool isSolid(const StepRecord& item)
{
    static const char* const kTypes[] = {"MANIFOLD_SOLID_BREP", "BREP_WITH_VOIDS", "FACETED_BREP"};
    return std::any_of(std::begin(kTypes), std::end(kTypes), [&item](const char* type) { return item.is(type); });
}

void addSolids(const std::vector<StepRecord>& items, std::vector<int>& solids)
{
    for (const StepRecord& item : items)
    {
        if (isSolid(item) && std::find(solids.begin(), solids.end(), item.id()) == solids.end())
        {
            solids.push_back(item.id());
        }
    }
}

} // namespace

std::vector<int> of(const StepRecord& aspect)
{
    std::vector<int> items;
    for (const char* type : {"GEOMETRIC_ITEM_SPECIFIC_USAGE", "ITEM_IDENTIFIED_REPRESENTATION_USAGE"})
    {
        for (const StepRecord& usage : aspect.users(type))
        {
            gatherReferences(usage[4], items);
        }
    }
    return items;
}

std::vector<int> solids(const StepRecord& aspect)
{
    std::vector<int> solids;
    for (const char* type : {"GEOMETRIC_ITEM_SPECIFIC_USAGE", "ITEM_IDENTIFIED_REPRESENTATION_USAGE"})
    {
        for (const StepRecord& usage : aspect.users(type))
        {
            addSolids(usage.nexts(4), solids);
        }
    }
    for (const StepRecord& property : aspect.users("PROPERTY_DEFINITION"))
    {
        for (const StepRecord& shape : property.users("SHAPE_DEFINITION_REPRESENTATION"))
        {
            addSolids(shape.next(1).as("REPRESENTATION").nexts(1), solids);
        }
    }
    return solids;
}

} // namespace aspect_items
