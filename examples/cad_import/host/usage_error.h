#pragma once

#include <stdexcept>
#include <string>

/// What is wrong with the command line.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const std::string& message)
        : std::runtime_error(message)
    {
    }
};
