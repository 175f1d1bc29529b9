#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <map>
#include <memory>
#include <vector>

/// The product manufacturing information that a translator sends, by the rules of `pmi_conventions`, with what the ids
/// of its annotations mean.
class ReceivedPmi
{
public:
    void add(const vrx::ExcBlockMechanicalData& data);
    void add(const vrx::ExcRootMechanicalData& data);

    const std::vector<std::shared_ptr<vrx::ExcPMIAnnotationSet>>& sets() const { return m_sets; }

    /// The names of the saved views that show an annotation, by its id.
    std::vector<mp::wstring> shownIn(const mp::wstring& id) const;

    /// The label of a datum or a datum target, by its id; empty when there is none.
    mp::wstring label(const mp::wstring& id) const;

private:
    void add(const std::shared_ptr<vrx::ExcPMIData>& data);

    std::vector<std::shared_ptr<vrx::ExcPMIAnnotationSet>> m_sets;
    std::map<mp::wstring, std::vector<mp::wstring>> m_shownIn;
    std::map<mp::wstring, mp::wstring> m_labels;
};
