#pragma once

#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <fstream>
#include <mutex>
#include <ostream>
#include <string>

/// A process-wide log that appends lines to a text file. The library writes to it, and the programs switch it on.
namespace kolt
{

/// A higher level is more verbose; a line is written when the level set at initialisation is its own or higher.
enum Level : int
{
    kFatal = 1,
    kError = 2,
    kWarning = 3,
    kInfo = 4,
    kDebug = 5,
    kTrace = 6,
};

/// Where the lines go. A thread holds the lock from the `begin` of a line to its `newLine`.
class VRX_API ILogger
{
public:
    virtual ~ILogger();

    /// True when the logger can take lines.
    virtual bool isOpen() const = 0;

    /// Writes the head of a line and returns the stream for its text.
    virtual std::ostream& begin(int level) = 0;

    /// Keeps other threads from writing until `unlock`. It is not recursive.
    virtual void lock() = 0;
    /// Lets other threads write.
    virtual void unlock() = 0;
    /// Hands on what is still in this process.
    virtual void flush() = 0;

    /// Ends the current line and flushes.
    virtual void newLine() = 0;
};

/// The log file. Other writers may append to the same file.
class VRX_API Logger : public ILogger
{
public:
    /// Opens the file to append to it; `isOpen` tells whether that went well.
    explicit Logger(const std::string& path);

    bool isOpen() const override;
    std::ostream& begin(int level) override;
    void lock() override;
    void unlock() override;
    void flush() override;
    void newLine() override;

private:
    std::ofstream m_file;
    std::mutex m_mutex;
};

/// A guard for one line: holds the logger's lock from its construction to its end, so that lines of threads never mix.
/// The lock is not recursive: nothing that logs may run while a guard lives in the same thread.
class VRX_API MTLogger
{
public:
    /// Waits for the lock. The logger lives longer.
    explicit MTLogger(ILogger& logger);
    MTLogger(const MTLogger&) = delete;
    MTLogger& operator=(const MTLogger&) = delete;
    ~MTLogger();

    /// Writes the line's head and the thread's identifier, and returns the stream for the text.
    std::ostream& begin(int level);

private:
    ILogger& m_logger;
};

/// The process's logger and its level. Both are plain values: `initLogger` runs while no other thread uses the library,
/// as a rule once at the start. The other operations are for any thread.
class VRX_API LoggerHolder
{
public:
    /// Whether a line of this level is written: the test that all logging begins with.
    static bool levelEnabled(int level) { return level <= s_level && s_logger != nullptr && s_logger->isOpen(); }

    /// Null until a log file has been opened.
    static ILogger* logger() { return s_logger; }

    /// Opens the log file; a level of 0 or less does nothing, a path that can't be opened turns the log off.
    static void initLogger(int level, const std::string& path);

private:
    struct Owner;

    static std::int32_t s_level;
    static ILogger* s_logger;
};

} // namespace kolt
