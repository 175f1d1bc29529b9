#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// Sizes and times as people write and read them.
namespace tool
{

/// The bytes of "1000", "64K", "1.5G": K, M, G and T are powers of 1024. Throws UsageError.
std::uint64_t sizeOf(const std::string& text);

/// The time of "90s", "15m", "1.5h", "2d". Throws UsageError.
std::chrono::seconds durationOf(const std::string& text);

/// "3,120"
std::string counted(std::uint64_t number);

/// "45 s", "12 min", "3 h", "2 d"
std::string roughly(std::chrono::seconds time);

} // namespace tool
