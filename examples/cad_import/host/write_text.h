#pragma once

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>

/// Writes a whole file. Throws std::runtime_error when it cannot.
inline void writeText(const std::string& path, const std::string& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
    {
        throw std::runtime_error("cannot write " + path + ": " + std::strerror(errno));
    }
}
