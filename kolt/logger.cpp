#include "kolt/logger.h"

#include <array>
#include <ctime>
#include <locale>
#include <memory>
#include <thread>
#include <utility>

namespace kolt
{

namespace
{

const char* tag(int level)
{
    switch (level)
    {
    case kFatal:
        return "[FATAL]   ";
    case kError:
        return "[ERROR]   ";
    case kWarning:
        return "[WARNING] ";
    case kInfo:
        return "[INFO]    ";
    case kDebug:
        return "[DEBUG]   ";
    case kTrace:
        return "[TRACE]   ";
    default:
        return "[UNKNOWN] ";
    }
}

// Without memory std::put_time ends the process with some runtimes.
std::array<char, 32> localTime()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%d.%m.%Y %H:%M:%S", &local);
    return text;
}

} // namespace

ILogger::~ILogger() = default;

Logger::Logger(const std::string& path)
    : m_file(path, std::ios::out | std::ios::app)
{
    // The locale of a host may group the digits of numbers.
    m_file.imbue(std::locale::classic());
}

bool Logger::isOpen() const
{
    return m_file.is_open();
}

std::ostream& Logger::begin(int level)
{
    m_file << tag(level) << '[' << localTime().data() << "] ";
    return m_file;
}

void Logger::lock()
{
    m_mutex.lock();
}

void Logger::unlock()
{
    m_mutex.unlock();
}

void Logger::flush()
{
    m_file.flush();
}

void Logger::newLine()
{
    m_file << '\n';
    m_file.flush();
}

MTLogger::MTLogger(ILogger& logger)
    : m_logger(logger)
{
    m_logger.lock();
}

MTLogger::~MTLogger()
{
    m_logger.newLine();
    m_logger.flush();
    m_logger.unlock();
}

std::ostream& MTLogger::begin(int level)
{
    std::ostream& stream = m_logger.begin(level);
    return stream << '[' << std::hex << std::this_thread::get_id() << std::dec << "] ";
}

std::int32_t LoggerHolder::s_level = 0;
ILogger* LoggerHolder::s_logger = nullptr;

// The current logger lives until another replaces it or the process ends.
struct LoggerHolder::Owner
{
    Owner() = default;
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner() { replace(nullptr); }

    void replace(std::unique_ptr<ILogger> next)
    {
        s_logger = next.get();
        logger = std::move(next);
    }

    std::unique_ptr<ILogger> logger;
};

void LoggerHolder::initLogger(int level, const std::string& path)
{
    if (level <= 0)
    {
        return;
    }
    static Owner owner;
    s_level = level;
    owner.replace(std::make_unique<Logger>(path));
    if (!s_logger->isOpen())
    {
        owner.replace(nullptr);
        return;
    }
    constexpr int kSeparatorSize = 102;
    s_logger->begin(kInfo) << std::string(kSeparatorSize, '=');
    s_logger->newLine();
    s_logger->begin(kInfo) << "Logger initialized with level " << level;
    s_logger->newLine();
}

} // namespace kolt
