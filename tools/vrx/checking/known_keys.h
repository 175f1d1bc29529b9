#pragma once

#include <set>
#include <string>
#include <string_view>

namespace checking
{

/// The keys and the exchange objects that a program adds to those of the library.
class KnownKeys
{
public:
    /// "CLASS/KEY" for a key of a class, which may have its name in C++ or its wire name; "CLASS" for an exchange
    /// object of the program's own. UTF-8.
    void add(const std::string& known);

    bool hasKey(const std::string& className, std::string_view key) const;
    bool hasObject(const std::string& wireName) const;

private:
    std::set<std::string> m_known;
};

} // namespace checking
