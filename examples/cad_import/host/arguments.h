#pragma once

#include "vrx_api/vrx_api_format_options.h"

#include <stdexcept>
#include <string>

struct Arguments
{
    std::string file;
    std::string translator; // empty: the one beside this program
    std::string view;       // the page to write, or empty
    std::string picture;    // the picture to make, or empty
    bool bodies = false;
    bool help = false;
    bool json = false;
    bool properties = false;
    bool quiet = false;
    bool verbose = false;
    vrx::imp::OptionsSTEP step;
    vrx::imp::OptionsIGES iges;
};

/// What is wrong with the command line.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const std::string& message)
        : std::runtime_error(message)
    {
    }
};

extern const char* const kUsage;

Arguments parseArguments(int argc, char** argv);
