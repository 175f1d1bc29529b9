#pragma once

#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#endif

/// A host that tells on standard output what it hears from the translator that is this program with the other words.
int playHost(const std::string& manner, const std::vector<std::string>& translator);

/// A translator that does these steps as its import.
int playTranslator(const std::vector<std::string>& steps);

/// As if from outside: nothing is cleared up.
inline void killSelf()
{
#ifdef _WIN32
    TerminateProcess(GetCurrentProcess(), 9);
#else
    std::raise(SIGKILL);
#endif
}
