#pragma once

#include "bridge/handle.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What the system does for the journals. The environment of a child tells which of its open files are journals, by
// their handles and by what the system calls the files: a program in between may have closed a file and opened another.
namespace vrx::bridge
{

constexpr const char* kJournalsVariable = "VRX_BUFFER_JOURNALS";

/// A new file without a name, or with one that goes with the file; `inherited` is another handle of it, to which
/// writing only appends.
OwnedHandle makeJournalFile(OwnedHandle& inherited);

/// More than any healthy child writes; what stands behind that is not read.
constexpr std::size_t kLongestJournal = std::size_t{64} << 20U;

/// Reads up to so many bytes that stand behind the first `offset`; none at the end.
std::size_t readAt(const OwnedHandle& file, std::size_t offset, char* bytes, std::size_t size);

/// In one piece, whoever else writes.
void append(NativeHandle file, std::string_view bytes);

/// What the system calls an open file, in words without spaces; empty if there is no such.
std::string identityOf(NativeHandle file);

/// The environment's value for a child that gets these journals.
std::string journalsText(const std::vector<NativeHandle>& journals);

/// Those that this process was started with and that are still open.
std::vector<NativeHandle> inheritedJournals();

} // namespace vrx::bridge
