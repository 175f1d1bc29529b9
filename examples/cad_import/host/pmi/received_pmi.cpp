#include "pmi/received_pmi.h"

void ReceivedPmi::add(const vrx::ExcBlockMechanicalData& data)
{
    add(data.pmiData());
}

void ReceivedPmi::add(const vrx::ExcRootMechanicalData& data)
{
    add(data.pmiData());
}

void ReceivedPmi::add(const std::shared_ptr<vrx::ExcPMIData>& data)
{
    if (!data)
    {
        return;
    }
    for (const std::shared_ptr<vrx::ExcPMIAnnotationSet>& set : data->annotationSets())
    {
        m_sets.push_back(set);
        for (const std::shared_ptr<vrx::ExcPMIAnnotationView>& view : set->views())
        {
            for (const auto& datum : view->datums())
            {
                m_labels[datum->id()] = datum->label();
            }
            for (const auto& target : view->datumTargets())
            {
                m_labels[target->id()] = target->label();
            }
        }
        for (const std::shared_ptr<vrx::ExcPMICapture>& capture : set->captures())
        {
            for (const mp::wstring& id : capture->annotationIds())
            {
                m_shownIn[id].push_back(capture->name());
            }
        }
    }
}

std::vector<mp::wstring> ReceivedPmi::shownIn(const mp::wstring& id) const
{
    const auto found = m_shownIn.find(id);
    return found != m_shownIn.end() ? found->second : std::vector<mp::wstring>();
}

mp::wstring ReceivedPmi::label(const mp::wstring& id) const
{
    const auto found = m_labels.find(id);
    return found != m_labels.end() ? found->second : mp::wstring();
}
