#include "fuzz/support.h"
#include "fuzz/tree_mutator.h"
#include "tests/support/two_roads.h"
#include "vrx_api/exchange/exchange_object_registry.h"

#include <optional>

const fuzz::InputForm fuzz::kInputForm{false, true};

namespace
{

using Account = std::vector<std::string>;

Account accountOf(const test::BinaryRoad& road, const vrx::IExchangeObject& prototype, const std::string& form)
{
    return test::accountOf(road, *prototype.clone(), form);
}

// What an object writes that has read the tree.
std::string writtenAfter(const vrx::IExchangeObject& prototype, const vrx::JsonValue& tree)
{
    const auto object = prototype.clone();
    const std::string failure = test::failureOf([&] { object->readObject(tree); });
    return failure + test::writtenBy(test::kTreeRoad, *object);
}

// The tree of a text and that of its binary form make the same object.
void compareTextRoad(const vrx::IExchangeObject& prototype, const std::string& form)
{
    vrx::JsonDocument tree;
    const std::optional<mp::wstring> text =
        fuzz::decodes(form.data(), form.size(), tree) ? fuzz::textOf(tree) : std::nullopt;
    vrx::JsonDocument byText;
    if (!text || !fuzz::parses(*text, byText))
    {
        return;
    }
    const vrx::Bytes same = fuzz::encoded(byText);
    vrx::JsonDocument byForm;
    fuzz::require(fuzz::decodes(same.data(), same.size(), byForm));
    fuzz::require(writtenAfter(prototype, byText) == writtenAfter(prototype, byForm));
}

// A form that a strict reader takes makes the same object by default.
void compareStrictReader(const vrx::IExchangeObject& prototype, const std::string& form)
{
    const auto strictly = prototype.clone();
    try
    {
        vrx::JsonBinaryIO::read(form.data(), form.size(), *strictly, vrx::ReadRules::strict());
    }
    catch (const std::exception&)
    {
        return;
    }
    const auto byDefault = prototype.clone();
    vrx::JsonBinaryIO::read(form.data(), form.size(), *byDefault);
    fuzz::require(test::writeDirectly(*strictly) == test::writeDirectly(*byDefault));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Trace lines are made by trees alone.
    test::LogFile::instance().open(kolt::kDebug);
    return 0;
}

// The name of an exchange class and a line feed, then a binary form. An object must say and become the same by all
// roads.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    const std::size_t nameEnd = input.find('\n');
    if (nameEnd == std::string::npos)
    {
        return -1;
    }
    const auto prototype = vrx::ExchangeObjectRegistry::instance().get(mp::toWide(input.substr(0, nameEnd)));
    if (prototype == nullptr)
    {
        return -1;
    }
    test::LogFile::instance().clear();
    const std::string form = input.substr(nameEnd + 1);
    fuzz::require(accountOf(test::kDirectRoad, *prototype, form) == accountOf(test::kTreeRoad, *prototype, form));
    compareTextRoad(*prototype, form);
    compareStrictReader(*prototype, form);
    return 0;
}
