#include "arguments.h"

#include <algorithm>
#include <utility>

namespace tool
{

namespace
{

bool isOption(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

bool isOperand(const std::string& word)
{
    return !isOption(word);
}

} // namespace

Arguments::Arguments(std::vector<std::string> words)
    : m_words(std::move(words))
{
    const auto rest = std::find(m_words.begin(), m_words.end(), "--");
    if (rest != m_words.end())
    {
        m_rest.assign(rest + 1, m_words.end());
        m_words.erase(rest, m_words.end());
    }
}

bool Arguments::takeFlag(const std::string& name)
{
    const auto found = std::find(m_words.begin(), m_words.end(), name);
    const bool isThere = found != m_words.end();
    if (isThere)
    {
        m_words.erase(found);
    }
    return isThere;
}

std::string Arguments::takeOption(const std::string& name, const std::string& otherwise)
{
    return takeValue(name).value_or(otherwise);
}

std::vector<std::string> Arguments::takeAll(const std::string& name)
{
    std::vector<std::string> values;
    while (std::optional<std::string> value = takeValue(name))
    {
        values.push_back(*std::move(value));
    }
    return values;
}

std::optional<std::string> Arguments::takeValue(const std::string& name)
{
    const auto found = std::find_if(m_words.begin(), m_words.end(), [&name](const std::string& word) {
        return word == name || word.compare(0, name.size() + 1, name + '=') == 0;
    });
    if (found == m_words.end())
    {
        return {};
    }
    if (*found != name)
    {
        std::string value = found->substr(name.size() + 1);
        m_words.erase(found);
        return value;
    }
    if (found + 1 == m_words.end())
    {
        throw UsageError(name + " needs a value");
    }
    std::string value = *(found + 1);
    m_words.erase(found, found + 2);
    return value;
}

std::string Arguments::takeOperand(const std::string& what)
{
    const auto found = std::find_if(m_words.begin(), m_words.end(), isOperand);
    const bool isBehindOptions = found == m_words.end();
    if (isBehindOptions && m_rest.empty())
    {
        end();
        throw UsageError(what + " is missing");
    }
    std::vector<std::string>& words = isBehindOptions ? m_rest : m_words;
    const auto taken = isBehindOptions ? m_rest.begin() : found;
    std::string word = *taken;
    words.erase(taken);
    return word;
}

bool Arguments::hasOperand() const
{
    return !m_rest.empty() || std::any_of(m_words.begin(), m_words.end(), isOperand);
}

std::vector<std::string> Arguments::takeRest()
{
    return std::exchange(m_rest, {});
}

void Arguments::end() const
{
    if (!m_words.empty())
    {
        throw UsageError("unknown argument: " + m_words.front());
    }
    if (!m_rest.empty())
    {
        throw UsageError("unknown argument: " + m_rest.front());
    }
}

} // namespace tool
