// The other process of the roads of bodies.
//
//     write PAYLOAD           writes the envelope of two bodies, of which one carries this payload
//     write-and-stay PAYLOAD  the same and a byte FF behind it; then waits for its input to end
//     read                    describes the bodies of the envelope that it reads, restored twice
//     read-and-stay           restores them, writes a byte FF and stays
//     write-without RESOURCE  writes what is logged when bodies are sent and shared memory has no more "space" or
//     "names"

#include "tests/support/bodies.h"
#include "tests/support/envelope.h"
#include "tests/support/log_capture.h"
#include "tests/support/peer.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <iostream>
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <optional>
#include <system_error>
#endif

namespace
{

std::shared_ptr<vrx::ExcBlockGeometry> makeGeometry(const std::string& payload, bool compress, bool own)
{
    test::Bodies bodies;
    bodies.addBrick(payload);
    bodies.addBrick("second");
    auto geometry = std::make_shared<vrx::ExcBlockGeometry>();
    geometry->setBlockId(7);
    geometry->own(own);
    return geometry->setGeometry(bodies.list(), compress) ? geometry : nullptr;
}

void writeBodies(const std::string& payload)
{
    std::cout << test::envelopeOf(makeGeometry(payload, true, false));
}

std::shared_ptr<vrx::ExcBlockGeometry> loadEnvelope(const std::string& envelope)
{
    auto geometry = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(test::opened(envelope));
    geometry->load();
    return geometry;
}

void describeBodies(const vrx::ExcBlockGeometry& geometry)
{
    test::Bodies bodies;
    std::vector<std::uint64_t> ids;
    const bool done = geometry.getGeometry(bodies.list(), ids);
    std::cout << (done ? "" : "failed ") << ids.size() << '\n' << bodies.describe();
}

#ifdef __linux__
// Gives this process a shared memory file system of its own. False where the system allows none.
bool mountSharedMemory(const char* options)
{
    return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", "/dev/shm", "tmpfs", 0, options) == 0;
}

// Lowers a limit of this process while it lives.
class Limit
{
public:
    Limit(int resource, rlim_t most)
        : m_resource(resource)
    {
        getrlimit(m_resource, &m_before);
        const rlimit lowered{most, m_before.rlim_max};
        if (setrlimit(m_resource, &lowered) != 0)
        {
            throw std::system_error(errno, std::generic_category(), "setrlimit");
        }
    }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;
    ~Limit() { setrlimit(m_resource, &m_before); }

private:
    int m_resource;
    rlimit m_before{};
};

// A file system that is full; where there can be none of one's own, a limit of the process that the same calls meet.
int writeWithout(const std::string& resource)
{
    const test::LogCapture log;
    bool done = true;
    {
        const rlim_t room = 65536;
        const rlim_t standardStreams = 3;
        std::signal(SIGXFSZ, SIG_IGN);
        std::optional<Limit> limit;
        if (resource == "space" && !mountSharedMemory("size=64k"))
        {
            limit.emplace(RLIMIT_FSIZE, room);
        }
        if (resource == "names" && !mountSharedMemory("nr_inodes=1"))
        {
            limit.emplace(RLIMIT_NOFILE, standardStreams);
        }
        done = makeGeometry(std::string(1000000, 'p'), false, true) != nullptr;
    }
    for (const std::string& line : log.lines("ERROR"))
    {
        std::cout << line << '\n';
    }
    return done ? 1 : 0;
}
#endif

int run(const std::string& verb, const std::string& text)
{
    if (verb == "write")
    {
        writeBodies(text);
    }
    else if (verb == "write-and-stay")
    {
        writeBodies(text);
        test::tellThatAllIsWritten();
        test::readInput();
    }
    else if (verb == "read")
    {
        const auto geometry = loadEnvelope(test::readInput());
        describeBodies(*geometry);
        describeBodies(*geometry);
    }
    else if (verb == "read-and-stay")
    {
        const auto geometry = loadEnvelope(test::readInput());
        describeBodies(*geometry);
        test::stay();
    }
#ifdef __linux__
    else if (verb == "write-without")
    {
        return writeWithout(text);
    }
#endif
    else
    {
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const auto argument = [&](int at) { return std::string(at < argc ? argv[at] : ""); };
    return test::runPeer([&] { return run(argument(1), argument(2)); });
}
