#pragma once

#include <string>

/// Makes a PNG file of a page with a browser that needs no display: the program in the environment variable BROWSER, or
/// Chromium. Throws std::runtime_error when there is none or it makes no picture.
void takePicture(const std::string& html, const std::string& picture);
