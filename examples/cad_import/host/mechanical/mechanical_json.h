#pragma once

#include "mechanical/mechanical_model.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// The members of a block's JSON object, each as JSON in UTF-8, in their order: of a part "mass", "materials",
/// "layers", "holes", "patterns", "threads", "entities" and "stated", of an assembly "stated", where it states figures.
std::vector<std::pair<std::string, std::string>> mechanicalMembers(const MechanicalModel& model, std::uint64_t block);

/// The same as an object; without members an empty text.
std::string mechanicalJson(const MechanicalModel& model, std::uint64_t block);
