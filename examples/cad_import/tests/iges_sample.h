#pragma once

#include <string>

/// Writes an IGES file in inches, of boxes with edges of one inch, groups and lines, some of them hidden:
///
///   box                         red, on level 4
///   hidden box                  hidden
///   pair                        a group
///     left
///     right                     hidden
///   hidden pair                 a group, hidden
///     inside
///     hidden inside             hidden
///   instance of the subfigure "cube"; moved by two inches along X, then turned by 90 degrees about Z
///     cube solid
///   a line, and a hidden one
///
/// The members of the groups depend on them logically, that of the subfigure physically.
void writeIgesSample(const std::string& path);
