#pragma once

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>

/// The extension of a file's name in small letters, without the dot.
inline std::string fileExtension(const std::string& path)
{
    std::string extension = std::filesystem::path(path).extension().string();
    extension.erase(0, 1);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return extension;
}
