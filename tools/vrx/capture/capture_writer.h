#pragma once

#include "capture/capture.h"
#include "capture/output_file.h"
#include "mp/wide.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace capture
{

/// Writes a capture. Each operation writes one frame whole, with the time since the writer was made; then it is with
/// the system. A frame that cannot be written is taken away again: the operation throws std::system_error, the file
/// ends behind the last whole frame, and no further frame is to be written.
class CaptureWriter
{
public:
    /// Throws std::system_error, also for a file that exists and must not be overwritten.
    CaptureWriter(const std::filesystem::path& path, bool overwrite);

    /// A JSON text in UTF-8.
    void start(std::string_view json);

    void fromHost(const mp::wstring& message);
    void fromTranslator(const mp::wstring& message);
    void strayFromHost(std::string_view bytes);
    void strayFromTranslator(std::string_view bytes);

    /// The content is written from where it lies.
    void buffer(const mp::wstring& name, const char* content, std::uint64_t size);
    void missingBuffer(const mp::wstring& name);
    void unloadedBuffers(const std::vector<mp::wstring>& names);

    /// A JSON text in UTF-8.
    void end(std::string_view json);

private:
    void writeFrame(EFrame kind, std::string_view payload, const char* content = nullptr, std::uint64_t size = 0);
    void writeWhole(std::string head, const char* content, std::uint64_t size);

    OutputFile m_file;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
    std::uint64_t m_size = 0; // of the whole frames
};

} // namespace capture
