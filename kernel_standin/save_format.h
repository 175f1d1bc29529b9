#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// The saved form of a list of entities; all numbers are unsigned, the lowest byte first:
//
//     8 bytes     kMagic
//     u32         kVersion
//     u64         size of the records in bytes
//     records:
//         u32     count of entities; each of them:
//             u8      EntityType
//             u32     index of the owner plus one, or 0
//             u32     count of parts; each of them: u32 index
//             of a body: u64 size of the payload, and its bytes
//         u32     count of the list; each of it: u32 index
//     u32         CRC-32 of the records
//
// Entities are numbered from 0 in the order in which they stand: an entity before its parts. An owner holds the entity
// among its parts; an entity is without an owner exactly when nothing holds it, and stands in the list then.
// Behind the end more may follow, which is not looked at.

inline constexpr std::array<char, 8> kMagic = {'E', 'N', 'T', 'L', 'I', 'S', 'T', '\x1A'};
inline constexpr std::uint32_t kVersion = 1;

inline constexpr std::size_t kTypeSize = 1;
inline constexpr std::size_t kIndexSize = 4;
inline constexpr std::size_t kLengthSize = 8;
inline constexpr std::size_t kVersionSize = 4;
inline constexpr std::size_t kChecksumSize = 4;
