#include "input/class_guess.h"

#include "json/member.h"

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

} // namespace

mp::wstring_view guessedClass(const vrx::JsonValue& object)
{
    const bool isInBlock = json::member(object, WIDE("block_id")) != nullptr;
    for (const Guess& guess : kGuesses)
    {
        if (json::member(object, guess.key) != nullptr)
        {
            return isInBlock ? guess.inBlock : guess.alone;
        }
    }
    return {};
}

} // namespace input
