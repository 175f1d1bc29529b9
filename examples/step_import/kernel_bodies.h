#pragma once

#include "acis_kernel/acis_kernel.h"

/// Bodies of the kernel that end with this object.
class KernelBodies
{
public:
    KernelBodies() = default;
    KernelBodies(const KernelBodies&) = delete;
    KernelBodies& operator=(const KernelBodies&) = delete;

    ~KernelBodies()
    {
        for (int i = 0; i < m_list.count(); ++i)
        {
            api_del_entity(m_list[i]);
        }
    }

    ENTITY_LIST& list() { return m_list; }
    const ENTITY_LIST& list() const { return m_list; }

private:
    ENTITY_LIST m_list;
};
