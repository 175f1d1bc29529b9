#pragma once

#include <string_view>
#include <vector>

/// The page without a scene, in pieces that belong one behind the other. Built from the sources in `viewer/`.
extern const std::vector<std::string_view> kViewerPage;
