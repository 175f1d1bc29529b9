#include "input/class_guess.h"

#include "json/member.h"

#include <algorithm>
#include <array>

namespace input
{

namespace
{

struct Guess
{
    mp::wstring_view key;
    mp::wstring_view inBlock; // With a block's id beside it.
    mp::wstring_view alone;
};

constexpr mp::wstring_view kStructure = WIDE("exc_product_structure");
constexpr mp::wstring_view kMechanical = WIDE("exc_block_mechanical_data");
constexpr mp::wstring_view kRootMechanical = WIDE("exc_root_mechanical_data");

// The first key that an object has decides. Only the classes that cross in the binary form are here.
constexpr std::array<Guess, 8> kGuesses = {{
    {WIDE("product_configuration_name"), kStructure, kStructure},
    {WIDE("visualization_data"), WIDE("exc_block_visualization"), WIDE("exc_root_assembly_visualization")},
    {WIDE("pmi_data"), kMechanical, kRootMechanical},
    {WIDE("log_file"), kMechanical, kRootMechanical},
    {WIDE("misc_data"), kMechanical, {}},
    {WIDE("mapping_data"), kMechanical, {}},
    {WIDE("mfg_data"), kMechanical, {}},
    {WIDE("entity_data"), kMechanical, {}},
}};

template <class HasKey>
mp::wstring_view guessed(const HasKey& hasKey)
{
    const auto found =
        std::find_if(kGuesses.begin(), kGuesses.end(), [&hasKey](const Guess& guess) { return hasKey(guess.key); });
    if (found == kGuesses.end())
    {
        return {};
    }
    return hasKey(WIDE("block_id")) ? found->inBlock : found->alone;
}

} // namespace

mp::wstring_view guessedClass(const vrx::JsonValue& object)
{
    return guessed([&object](mp::wstring_view key) { return json::member(object, key) != nullptr; });
}

mp::wstring_view guessedClass(const std::vector<mp::wstring>& keys)
{
    return guessed([&keys](mp::wstring_view key) { return std::find(keys.begin(), keys.end(), key) != keys.end(); });
}

} // namespace input
