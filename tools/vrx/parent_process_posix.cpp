#include "parent_process.h"

#include <unistd.h>

namespace tool
{

ParentProcess::ParentProcess()
    : m_process(getppid())
{
}

ParentProcess::~ParentProcess() = default;

// An orphan gets another parent.
bool ParentProcess::hasEnded() const
{
    return getppid() != m_process;
}

} // namespace tool
