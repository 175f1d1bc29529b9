#pragma once

#include "bridge/bridge_export.h"

#include <stdexcept>
#include <string>

namespace vrx::bridge
{

/// A translator's work came to nothing, and the translator has been ended. No shared memory of which it told is left.
class VRX_BRIDGE TranslatorFailure : public std::runtime_error
{
public:
    /// Why the work came to nothing.
    enum class EKind
    {
        Died,       ///< It ended by itself.
        TimedOut,   ///< It was silent for longer than the session's time limit.
        Cancelled,  ///< The host cancelled.
        Protocol,   ///< It sent what it should not.
        Unloadable, ///< An object that it sent cannot be loaded.
    };

    /// The text for `what()`, and how the process ended in words.
    TranslatorFailure(EKind kind, const std::string& text, const std::string& end)
        : std::runtime_error(text)
        , m_kind(kind)
        , m_end(end)
    {
    }

    /// Why the work came to nothing.
    EKind kind() const { return m_kind; }

    /// How the process ended, in words.
    const std::string& end() const { return m_end; }

private:
    EKind m_kind;
    std::string m_end;
};

} // namespace vrx::bridge
