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
    const auto found = std::find_if(m_words.begin(), m_words.end(), [&name](const std::string& word) {
        return word == name || word.compare(0, name.size() + 1, name + '=') == 0;
    });
    if (found == m_words.end())
    {
        return otherwise;
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
    if (found == m_words.end())
    {
        throw UsageError(what + " is missing");
    }
    std::string word = *found;
    m_words.erase(found);
    return word;
}

bool Arguments::hasOperand() const
{
    return std::any_of(m_words.begin(), m_words.end(), isOperand);
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
