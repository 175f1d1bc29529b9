#pragma once

#include "received_bodies.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// The holes of a part as its features tell of them, in the terms of `mechanical_conventions`, with their patterns and
/// threads.

struct PartHole
{
    enum class EKind
    {
        Simple,
        Taper,
        CounterBore,
        CounterSink,
        CounterDrill,
    };

    using EEnd = vrx::ExcMfgHole::EBottomLimitExtentType;

    bool isThrough() const { return end == EEnd::UpToLast || end == EEnd::UpToNext; }

    EKind kind = EKind::Simple;
    double diameter = 0;
    double depth = 0;
    double tipAngle = 0;
    EEnd end = EEnd::Unknown;
    vrx::ExcVector3d center;
    vrx::ExcVector3d direction;
    // 0 where the kind has it not
    double counterDiameter = 0;
    double counterDepth = 0;
    double counterAngle = 0;
    double sinkDiameter = 0;
    double taperAngle = 0;
    std::optional<std::size_t> body; // its position in the block
    std::vector<mp::wstring> faces;  // the defining geometry
    std::vector<mp::wstring> limiting;
    std::optional<std::size_t> thread;  // among the threads of the part
    std::optional<std::size_t> pattern; // among its patterns
};

struct PartPattern
{
    bool isCircular = false;
    std::vector<std::size_t> holes;
    // of a grid, along both directions
    std::array<std::int32_t, 2> counts{};
    std::array<double, 2> spacing{};
    std::array<vrx::ExcVector3d, 2> directions;
    // of a circle
    std::int32_t count = 0;
    double angle = 0;    // between two
    double diameter = 0; // of the circle of the centers
    vrx::ExcVector3d center;
    vrx::ExcVector3d axis;
};

struct PartThread
{
    using EHand = vrx::ExcMfgThreading::EOrientation;

    bool isInternal = false;
    mp::wstring designation;
    double diameter = 0;
    double pitch = 0;
    double depth = 0;
    EHand hand = EHand::Unknown;
    std::vector<mp::wstring> faces;
    std::optional<std::size_t> hole; // that it is cut into
};

struct PartHoles
{
    std::vector<PartHole> holes;
    std::vector<PartPattern> patterns;
    std::vector<PartThread> threads;
};

PartHoles partHoles(const vrx::ExcMfgData& data, std::uint64_t block, const ReceivedBodies& bodies);
