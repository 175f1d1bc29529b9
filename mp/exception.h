#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_export.h"

#include <exception>
#include <stdexcept>

namespace mp
{

/// The base of what this library throws of its own.
class VRX_API Exception : public std::exception
{
};

/// A shared memory object could not be opened, sized, mapped or used.
class VRX_API SharedMemoryException : public Exception
{
public:
    /// The text is converted to the system's narrow code page, in which `what()` gives it.
    explicit SharedMemoryException(const wstring& text);

    /// The text, in the system's narrow code page.
    const char* what() const noexcept override;

private:
    // The standard exceptions share their text, so that copying one never throws.
    std::runtime_error m_text;
};

} // namespace mp
