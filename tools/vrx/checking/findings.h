#pragma once

#include "mp/wide.h"

#include <array>
#include <cstddef>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace checking
{

/// What may be wrong. docs/checks.md tells of each; their names are stable.
enum class ECode
{
    NotAMessage,
    UnknownObject,
    NoAnswer,
    MissingBuffer,
    DamagedBuffer,
    UnloadedBuffer,
    UnknownKey,
    DuplicateKey,
    MissingKey,
    NotRead,
    WrongKind,
    WrongNumber,
    WrongSize,
    UnknownName,
    IndexOutside,
    DuplicateId,
    DanglingId,
    StructureCycle,
};

/// The names of the codes, in their order.
inline constexpr std::string_view kCodeNames[] = {
    "not-a-message", "unknown-object", "no-answer",     "missing-buffer", "damaged-buffer", "unloaded-buffer",
    "unknown-key",   "duplicate-key",  "missing-key",   "not-read",       "wrong-kind",     "wrong-number",
    "wrong-size",    "unknown-name",   "index-outside", "duplicate-id",   "dangling-id",    "structure-cycle"};

constexpr std::string_view nameOf(ECode code)
{
    return kCodeNames[static_cast<std::size_t>(code)];
}

/// Where something is: a JSON pointer (RFC 6901) into the exchange object of a message, or into the message.
struct Place
{
    std::size_t message = 0;
    mp::wstring pointer;
};

struct Finding
{
    ECode code;
    Place place;
    std::string sentence; ///< In UTF-8, safe to be printed.
};

/// Passes findings on: of each message only some of a code, and how many more there are.
class Findings
{
public:
    using Give = std::function<void(const Finding&)>;

    static constexpr std::size_t kAll = static_cast<std::size_t>(-1);

    explicit Findings(Give give, std::set<ECode> ignored = {}, std::size_t mostOfACode = kAll);

    /// `make` returns the place and the sentence, and is called only for what is passed on.
    template <class Make>
    void add(ECode code, const Make& make)
    {
        if (m_ignored.count(code) == 0 && ++m_counts[static_cast<std::size_t>(code)] <= m_mostOfACode)
        {
            std::pair<Place, std::string> made = make();
            give({code, std::move(made.first), std::move(made.second)});
        }
    }

    /// Tells of those that were not passed on, and counts anew.
    void endMessage(std::size_t message);

    /// How many there were, passed on or not.
    std::size_t count() const { return m_count; }

private:
    void give(Finding&& finding) const { m_give(finding); }

    Give m_give;
    std::set<ECode> m_ignored;
    std::size_t m_mostOfACode;
    std::array<std::size_t, std::size(kCodeNames)> m_counts{};
    std::size_t m_count = 0;
};

} // namespace checking
