#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace faults
{

/// One way of a message through the library, written or read.
class Road
{
public:
    Road() = default;
    Road(const Road&) = delete;
    Road& operator=(const Road&) = delete;
    virtual ~Road() = default;

    /// What stands before the faults.
    virtual void prepare() {}

    /// Can be done again after a failure.
    virtual void run() = 0;

    /// The content that `run` carried. What it has left in shared memory is read then.
    virtual std::string result() = 0;

    /// Lets go what `prepare` and `run` have made.
    virtual void forget() = 0;

    virtual bool startsProcess() const { return false; }
};

/// Who meets the faults.
enum class EManner
{
    Writes,        ///< This process, which knows alone of what it makes in shared memory.
    Reads,         ///< This process: what it has not removed can be read again.
    HasOtherWrite, ///< A process that it starts.
};

struct NamedRoad
{
    std::string title;
    std::shared_ptr<Road> road;
    EManner manner;

    friend std::ostream& operator<<(std::ostream& stream, const NamedRoad& named) { return stream << named.title; }
};

std::vector<NamedRoad> allRoads();

} // namespace faults
