#pragma once

#include "bench/road.h"

namespace bench
{

/// What is measured of each road, each step beside the bare work that it can't do without.
namespace step
{
constexpr const char* kTree = "model to tree";
constexpr const char* kEncodeTree = "tree to binary form";
constexpr const char* kEncode = "model to binary form";
constexpr const char* kCompress = "compress";
constexpr const char* kShare = "compressed form to shared memory";
constexpr const char* kSharePlain = "binary form to shared memory";
constexpr const char* kWrite = "whole write, default";
constexpr const char* kWriteFast = "whole write, fast";
constexpr const char* kWriteNone = "whole write, none";

constexpr const char* kTake = "compressed form from shared memory";
constexpr const char* kTakePlain = "binary form from shared memory";
constexpr const char* kDecompress = "decompress";
constexpr const char* kDecodeTree = "binary form to tree";
constexpr const char* kModel = "tree to model";
constexpr const char* kDecode = "binary form to model";
constexpr const char* kDecodeStrictly = "binary form to model, strict";
constexpr const char* kRead = "whole read, default";
constexpr const char* kReadFast = "whole read, fast";
constexpr const char* kReadNone = "whole read, none";

constexpr const char* kCopy = "memcpy of the binary form";
constexpr const char* kCopyCompressed = "memcpy of the compressed form";
constexpr const char* kDeflate = "bare deflate";
constexpr const char* kDeflateFast = "bare deflate, level 1";
constexpr const char* kInflate = "bare inflate";
constexpr const char* kLibdeflate = "bare libdeflate";
constexpr const char* kLibdeflateFast = "bare libdeflate, level 1";
constexpr const char* kLibdeflateInflate = "bare libdeflate's inflate";
} // namespace step

/// Registers the whole writes and reads as benchmarks "road/step", in processor time.
void registerWhole(const Road& road, int iterations);

/// Registers all steps and floors.
void registerSteps(const Road& road, int iterations);

} // namespace bench
