#include "mp/exception.h"

#include "mp/narrow.h"

namespace mp
{

SharedMemoryException::SharedMemoryException(const wstring& text)
    : m_text(toNarrow(text))
{
}

const char* SharedMemoryException::what() const noexcept
{
    return m_text.what();
}

} // namespace mp
