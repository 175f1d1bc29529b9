#include "fuzz/support.h"
#include "tests/support/form_changes.h"
#include "tests/support/two_roads.h"
#include "vrx_api/exchange/exchange_object_registry.h"

#include <optional>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace
{

// The name of an exchange class and a line feed, then a binary form.
struct Input
{
    Input(const std::uint8_t* data, std::size_t size)
        : all(data, data + size)
        , nameEnd(all.find('\n'))
    {
    }

    bool hasForm() const { return nameEnd != std::string::npos; }
    std::string form() const { return all.substr(nameEnd + 1); }

    std::string all;
    std::size_t nameEnd;
};

// The input with one value of its form changed, or nothing when the form is none.
std::optional<std::string> changed(const Input& input, std::minstd_rand& random)
{
    static const std::vector<test::FormChange> changes = test::formChanges();
    vrx::JsonDocument document;
    const std::string form = input.hasForm() ? input.form() : std::string();
    if (!fuzz::decodes(form.data(), form.size(), document))
    {
        return std::nullopt;
    }
    const char* at = form.data();
    test::FormValue root{vrx::BinaryTag::Array, {}, {test::takeValue(at)}};
    std::vector<test::FormPlace> places;
    addPlaces(root, places);
    const auto any = [&](const auto& list) -> const auto&
    {
        return list[random() % list.size()];
    };
    const test::FormPlace place = any(places);
    if (random() % 8 == 0)
    {
        const test::FormPlace other = any(places);
        const test::FormValue value = other.parent->children[other.index];
        place.parent->children[place.index] = value;
    }
    else
    {
        any(changes)(*place.parent, place.index);
    }
    std::string output = input.all.substr(0, input.nameEnd + 1);
    for (const test::FormValue& value : root.children)
    {
        append(output, value);
    }
    return output;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Trace lines are made by trees alone.
    test::LogFile::instance().open(kolt::kDebug);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    std::minstd_rand random(seed);
    if (random() % 2 == 0)
    {
        const std::optional<std::string> output = changed(Input(data, size), random);
        if (output && output->size() <= maxSize)
        {
            std::copy(output->begin(), output->end(), data);
            return output->size();
        }
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}

// An object must say and become the same by both roads.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Input input(data, size);
    if (!input.hasForm())
    {
        return -1;
    }
    const std::string name = input.all.substr(0, input.nameEnd);
    const auto prototype = vrx::ExchangeObjectRegistry::instance().get(mp::toWide(name));
    if (prototype == nullptr)
    {
        return -1;
    }
    test::LogFile::instance().clear();
    const std::string form = input.form();
    const auto byTree = test::accountOf(test::kTreeRoad, *prototype->clone(), form);
    fuzz::require(test::accountOf(test::kDirectRoad, *prototype->clone(), form) == byTree);
    return 0;
}
