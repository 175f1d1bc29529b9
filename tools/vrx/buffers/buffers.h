#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

/// The shared buffers of this library that are left in the system, found by the form of their names.
namespace buffers
{

struct Buffer
{
    std::string name;
    std::uint64_t size = 0;
    std::chrono::seconds age{0}; ///< Since it was last written.
    std::string owner;           ///< The user who made it.
    bool isOpen = false;
    std::vector<std::uint64_t> processes; ///< Those that have it open, as far as this user may see; none on Windows.
};

/// True for a UUID of version 4, as this library makes them (RFC 9562).
bool isBufferName(const std::string& name);

/// The folder in which the system keeps them.
std::string folder();

/// Those of this user, or of all, by their names. Links and all that is no plain file are passed over. Throws
/// tool::InputError when the folder can't be read.
std::vector<Buffer> all(bool ofAllUsers);

/// Removes the buffer unless a living process has it open, it was written since `all`, or it is none of this user's;
/// the text tells which, and is empty when it is removed.
std::string removeUnused(const Buffer& buffer);

/// Its first bytes, no more than these; none when it may not be read.
std::vector<char> beginning(const std::string& name, std::size_t most);

/// The class of which it most likely is, "bodies?", or "?". Nothing but its beginning is looked at.
std::string guessedClass(const std::string& name);

} // namespace buffers
