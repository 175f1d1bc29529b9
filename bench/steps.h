#pragma once

#include "bench/road.h"

namespace bench
{

/// What is measured of each road, each step beside the bare work that it can't do without.
namespace step
{
constexpr const char* kTree = "model to tree";
constexpr const char* kEncode = "tree to binary form";
constexpr const char* kCompress = "compress";
constexpr const char* kShare = "to shared memory";
constexpr const char* kWrite = "whole write";
constexpr const char* kTake = "from shared memory";
constexpr const char* kDecompress = "decompress";
constexpr const char* kDecode = "binary form to tree";
constexpr const char* kModel = "tree to model";
constexpr const char* kRead = "whole read";

constexpr const char* kDeflate = "bare deflate";
constexpr const char* kInflate = "bare inflate";
constexpr const char* kCopy = "memcpy of the binary form";
constexpr const char* kCopyCompressed = "memcpy of the compressed form";
} // namespace step

/// Registers all of it as benchmarks "road/step", in processor time.
void registerSteps(const Road& road, int iterations);

} // namespace bench
