#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tool
{

/// The program was called in a way that it does not know.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What is asked for cannot be read.
class InputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The words behind a command's name. Each of these takes its words away; `end` refuses what nobody took. Options are
/// taken before operands.
class Arguments
{
public:
    explicit Arguments(std::vector<std::string> words);

    /// True when the flag was given.
    bool takeFlag(const std::string& name);

    /// The value of `--name VALUE` or `--name=VALUE`, or the other text when it was not given. Throws UsageError for an
    /// option without a value.
    std::string takeOption(const std::string& name, const std::string& otherwise);

    /// The values of an option that may be given again, in their order.
    std::vector<std::string> takeAll(const std::string& name);

    /// The next word that is no option, or that stands behind `--`. When there is none, throws UsageError with the
    /// option that nobody took, or else with what is missing.
    std::string takeOperand(const std::string& what);
    bool hasOperand() const;

    /// All words behind `--`, which ends the options.
    std::vector<std::string> takeRest();

    /// Throws UsageError for words that are left.
    void end() const;

private:
    std::optional<std::string> takeValue(const std::string& name);

    std::vector<std::string> m_words;
    std::vector<std::string> m_rest;
};

} // namespace tool
