#pragma once

#include "input/input.h"

#include <cstdint>
#include <string>
#include <vector>

// What an item is filled with. All of these throw tool::InputError for what is damaged or above the limit.
namespace input
{

/// Takes the text of a message, and looks for its buffer nowhere.
void setMessage(Item& item, mp::wstring text);

/// Takes the bytes of the buffer that the item names, and the form in them.
void setBuffer(Item& item, std::vector<char> bytes, std::uint64_t limit);

/// The bytes of a buffer in shared memory, where they are left. False when there is none of this name.
bool readSharedBuffer(const mp::wstring& name, std::vector<char>& bytes, std::uint64_t limit);

/// What stands in a file: an object's binary form, compressed or not, or a text of a message or of an object. The
/// buffer that a message names is looked for in shared memory.
void setFile(Item& item, std::vector<char> bytes, std::uint64_t limit);

} // namespace input
