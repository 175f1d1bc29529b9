#pragma once

#include "format_settings.h"

#include <string>
#include <vector>

struct Arguments
{
    std::string file;
    std::string translator; // empty: the one beside this program
    std::string view;       // the page to write, or empty
    std::string picture;    // the picture to make, or empty
    std::string viewName;   // the saved view with which the page opens, or empty
    bool bodies = false;
    bool help = false;
    bool holes = false;
    bool json = false;
    bool legacy = false;
    bool pmiTable = false;
    bool properties = false;
    bool quiet = false;
    bool verbose = false;
    std::vector<GivenSetting> settings;

    bool makesPage() const { return !view.empty() || !picture.empty(); }
};

extern const char* const kUsage;

/// Throws UsageError.
Arguments parseArguments(int argc, char** argv);
