#pragma once

#include "vrx_api/json/direct.h"
#include "vrx_api/json/json_value.h"

#include <cstddef>

namespace vrx
{

/// The binary form of an object, made straight from its fields. Its size is known before the first byte is written.
/// While the log holds trace lines, the object is asked through its virtual operations, which make them.
class BinaryForm
{
public:
    /// Throws what the object's `writeObject` throws. The object must outlive the form and must not change meanwhile.
    explicit BinaryForm(const IJsonObject& object);
    BinaryForm(const BinaryForm&) = delete;
    BinaryForm& operator=(const BinaryForm&) = delete;
    ~BinaryForm();

    std::size_t size() const { return m_size; }

    void write(char* bytes) const;

private:
    template <class Out>
    Out walk(Out out) const;

    const IJsonObject& m_object;
    ObjectTrees m_trees;
    std::size_t m_size = 0;
    bool m_byTree;
};

} // namespace vrx
