#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>

/// The objects that a translator has sent in shared memory and that are not loaded yet. Those that never get loaded are
/// removed from the system at the end, whatever ended the work.
class ReceivedObjects
{
public:
    ReceivedObjects() = default;
    ReceivedObjects(const ReceivedObjects&) = delete;
    ReceivedObjects& operator=(const ReceivedObjects&) = delete;
    ~ReceivedObjects();

    void add(const std::shared_ptr<vrx::IExchangeObject>& object, const mp::wstring& buffer);

    std::size_t count() const { return m_waiting.size(); }

    /// The object that came first, loaded, which is then no longer here. There must be one.
    std::shared_ptr<vrx::IExchangeObject> loadFirst();

    /// Removes from the system all those for which the test says no. Asks from the last to the first.
    void keep(const std::function<bool(const vrx::IExchangeObject&)>& test);

private:
    struct Entry
    {
        std::shared_ptr<vrx::IExchangeObject> object;
        mp::wstring buffer;
    };

    std::deque<Entry> m_waiting;
};
