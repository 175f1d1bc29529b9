#pragma once

#include <stdexcept>
#include <string>

/// What ends a translation with a message for the user, in UTF-8.
class TranslationError : public std::runtime_error
{
public:
    explicit TranslationError(const std::string& message)
        : std::runtime_error(message)
    {
    }
};
