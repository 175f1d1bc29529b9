// The other process of the roads of bodies.
//
//     write PAYLOAD           writes the envelope of two bodies, of which one carries this payload
//     write-and-stay PAYLOAD  the same and a byte FF behind it; then waits for its input to end
//     read                    describes the bodies of the envelope that it reads, restored twice
//     read-and-stay           restores them, writes a byte FF and stays
//     write-into OPTIONS      writes what is logged when bodies are sent through a shared memory file system of its
//                             own, mounted with these options; exit code 4 where the system allows none

#include "tests/support/bodies.h"
#include "tests/support/envelope.h"
#include "tests/support/log_capture.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <chrono>
#include <exception>
#include <iostream>
#include <iterator>
#include <thread>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

namespace
{

std::shared_ptr<vrx::ExcBlockGeometry> makeGeometry(const std::string& payload, bool compress)
{
    test::Bodies bodies;
    bodies.addBrick(payload);
    bodies.addBrick("second");
    auto geometry = std::make_shared<vrx::ExcBlockGeometry>();
    geometry->setBlockId(7);
    return geometry->setGeometry(bodies.list(), compress) ? geometry : nullptr;
}

void writeBodies(const std::string& payload)
{
    std::cout << test::envelopeOf(makeGeometry(payload, true));
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

bool mountSharedMemory(const std::string& options)
{
#ifdef __linux__
    return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", "/dev/shm", "tmpfs", 0, options.c_str()) == 0;
#else
    static_cast<void>(options);
    return false;
#endif
}

int writeInto(const std::string& options)
{
    if (!mountSharedMemory(options))
    {
        return 4;
    }
    const test::LogCapture log;
    const bool done = makeGeometry(std::string(1000000, 'p'), false) != nullptr;
    for (const std::string& line : log.lines("ERROR"))
    {
        std::cout << line << '\n';
    }
    return done ? 1 : 0;
}

std::string readInput()
{
    return {std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>()};
}

int run(const std::string& verb, const std::string& text)
{
    if (verb == "write")
    {
        writeBodies(text);
    }
    else if (verb == "write-and-stay")
    {
        writeBodies(text);
        std::cout << '\xFF' << std::flush;
        readInput();
    }
    else if (verb == "read")
    {
        const auto geometry = loadEnvelope(readInput());
        describeBodies(*geometry);
        describeBodies(*geometry);
    }
    else if (verb == "read-and-stay")
    {
        const auto geometry = loadEnvelope(readInput());
        describeBodies(*geometry);
        std::cout << '\xFF' << std::flush;
        std::this_thread::sleep_for(std::chrono::minutes(1));
    }
    else if (verb == "write-into")
    {
        return writeInto(text);
    }
    else
    {
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    const auto argument = [&](int at) { return std::string(at < argc ? argv[at] : ""); };
    try
    {
        return run(argument(1), argument(2));
    }
    catch (const std::exception& error)
    {
        std::cout << error.what();
        return 3;
    }
}
