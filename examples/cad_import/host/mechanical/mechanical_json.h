#pragma once

#include "mechanical/mechanical_model.h"

#include <string>
#include <utility>
#include <vector>

/// The members of a part's JSON object, each as JSON in UTF-8, in their order: "mass", "materials", "layers", "holes",
/// "patterns", "threads", "entities" and "stated".
std::vector<std::pair<std::string, std::string>> mechanicalMembers(const MechanicalPart& part);

/// The same as an object.
std::string mechanicalJson(const MechanicalPart& part);
