#include "bench/peaks.h"

#include "bench/child.h"
#include "bench/envelope.h"
#include "bench/road.h"
#include "mp/narrow.h"

#include <malloc.h>

#include <fstream>
#include <stdexcept>
#include <string>

namespace bench
{

namespace
{

// A figure that Linux keeps of this process, in bytes.
std::size_t statusBytes(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
    {
        std::size_t kilobytes = 0;
        if (word == name && status >> kilobytes)
        {
            return kilobytes * 1024;
        }
    }
    throw std::runtime_error("/proc/self/status lacks " + name);
}

// The most memory in use since the object was made, beyond what was in use then.
class ResidentPeak
{
public:
    ResidentPeak()
    {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << 5; // the peak begins anew
        m_before = statusBytes("VmRSS:");
    }

    std::size_t bytes() const { return statusBytes("VmHWM:") - m_before; }

private:
    std::size_t m_before = 0;
};

std::string peakOfWrite(const Model& model)
{
    const auto object = model.make();
    const ResidentPeak peak;
    const Envelope envelope(written(object, vrx::ECompression::AsTold));
    return std::to_string(peak.bytes());
}

std::string peakOfRead(const std::string& text)
{
    const Envelope envelope(mp::toWide(text));
    const ResidentPeak peak;
    const auto object = envelope.read();
    return std::to_string(peak.bytes());
}

} // namespace

Peaks peaksOf(const Model& model)
{
    const std::string text = inChild([&] { return mp::toNarrow(Road(model).envelope(vrx::ECompression::AsTold)); });
    return {std::stoull(inChild([&] { return peakOfWrite(model); })),
            std::stoull(inChild([&] { return peakOfRead(text); }))};
}

} // namespace bench
