#pragma once

#include "vrx_api/mechanical/pmi_annotation.h"

#include <vector>

namespace vrx
{

/// A datum: the labelled reference feature of a drawing, which tolerances refer to. It names the datum targets on which
/// it rests by their ids, which the library does not resolve. A reader takes only the label and the target ids; where
/// the datum stands and what it is about is written and not read.
class VRX_API ExcPMIDatum : public ExcPMIAnnotation
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EPMIAnnotationType type() const override;

    /// The letters in the datum's box.
    const wstring& label() const { return m_label; }
    void setLabel(const wstring& label) { m_label = label; }

    const std::vector<wstring>& targetIds() const { return m_targetIds; }
    void setTargetIds(const std::vector<wstring>& ids) { m_targetIds = ids; }
    void addTargetId(const wstring& id) { m_targetIds.push_back(id); }

private:
    friend struct Described<ExcPMIDatum>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_label;
    std::vector<wstring> m_targetIds;
};

} // namespace vrx
