#pragma once

#include "checking/findings.h"
#include "checking/ids.h"
#include "checking/known_keys.h"
#include "checking/tree_checker.h"
#include "input/input.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace checking
{

/// Checks what crossed, one message after the other: each by itself, and whether what they say of each other is so.
class ImportChecker
{
public:
    ImportChecker(const KnownKeys& known, Findings& findings);

    /// `alone` is the class of an object without a message around it.
    void take(const input::Item& item, const vrx::ClassShape* alone = nullptr);

    void end(const input::Recording& recording);

private:
    void takeMessage(const input::Item& item);
    void takeCommand(const input::Item& item);
    void takeResult(const input::Item& item);
    void takeEnvelope(const input::Item& item);
    void takeOther(const input::Item& item);
    void checkBufferName(const input::Item& item);
    void checkBuffer(const input::Item& item);

    template <class Message>
    void checkMessage(const input::Item& item);

    void add(ECode code, std::size_t message, const std::string& sentence);

    const KnownKeys& m_known;
    Findings& m_findings;
    Ids m_ids;
    TreeChecker m_trees;
    std::vector<std::size_t> m_unanswered; // The commands since the last answer.
    bool m_isTranslating = true;           // The last answers are those to an import or an export.
    bool m_failed = false;                 // One of them says so.
};

} // namespace checking
