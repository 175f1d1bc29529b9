#include "page_picture.h"

#include "bridge/cancel_on_interrupt.h"
#include "write_text.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace
{

const int kPatience = 120; // seconds: drawing without a graphics card is slow

// A folder that lasts as long as this object.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "cad_host-XXXXXX").string();
        if (!::mkdtemp(name.data()))
        {
            throw std::runtime_error("cannot make a folder like " + name + ": " + std::strerror(errno));
        }
        m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

// Runs a program, quietly, in a process group of its own; not beyond our patience or an interrupt. Whether it could be
// started.
bool run(std::vector<std::string> words)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    pid_t process = -1;
    const int error = posix_spawnp(&process, arguments.front(), &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
    {
        return false;
    }
    int status = 0;
    for (int tenths = 0; ::waitpid(process, &status, WNOHANG) == 0; ++tenths)
    {
        if (tenths == kPatience * 10 || vrx::bridge::CancelOnInterrupt::wasInterrupted())
        {
            ::kill(-process, SIGKILL);
        }
        ::usleep(100000);
    }
    return !WIFEXITED(status) || WEXITSTATUS(status) != 127;
}

std::vector<std::string> browsers()
{
    const char* chosen = std::getenv("BROWSER");
    return chosen && *chosen ? std::vector<std::string>{chosen}
                             : std::vector<std::string>{"chromium", "chromium-browser", "google-chrome"};
}

} // namespace

void takePicture(const std::string& html, const std::string& picture)
{
    const TemporaryFolder folder;
    const std::string page = folder.path() + "/page.html";
    writeText(page, html);
    const std::string drawn = folder.path() + "/picture.png";
    std::vector<std::string> words = {
        "", "--headless", "--hide-scrollbars", "--window-size=1400,900", "--screenshot=" + drawn,
        // WebGL on the processor
        "--use-gl=angle", "--use-angle=swiftshader", "--enable-unsafe-swiftshader",
        // nothing of its own in the network
        "--no-first-run", "--disable-background-networking", "--disable-component-update", "--disable-sync",
        "--disable-quic", "--user-data-dir=" + folder.path() + "/profile"};
    if (::geteuid() == 0)
    {
        words.emplace_back("--no-sandbox"); // Chromium refuses to run as root with it
    }
    words.push_back("file://" + page);

    bool started = false;
    for (const std::string& browser : browsers())
    {
        words.front() = browser;
        started = run(words);
        if (started)
        {
            break;
        }
    }
    if (!started)
    {
        throw std::runtime_error("there is no Chromium to make the picture with");
    }
    std::error_code failure;
    if (std::filesystem::file_size(drawn, failure) == 0 || failure)
    {
        throw std::runtime_error("the browser made no picture of the page");
    }
    std::filesystem::copy_file(drawn, picture, std::filesystem::copy_options::overwrite_existing);
}
