#include "common/shared_buffers.h"

#include "mp/shared_buffer.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <exception>
#include <iostream>

namespace shared_buffers
{

mp::wstring nameIn(const mp::wstring& envelope)
{
    mp::wstringstream stream(envelope);
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    if (!document.IsObject())
    {
        return {};
    }
    const auto data = document.FindMember(WIDE("exchange_object_data"));
    if (data == document.MemberEnd())
    {
        return {};
    }
    if (data->value.IsObject())
    {
        const auto bodies = data->value.FindMember(WIDE("shared_acis_buffer_name"));
        const bool named = bodies != data->value.MemberEnd() && bodies->value.IsString();
        return named ? bodies->value.GetString() : mp::wstring();
    }
    const auto binary = document.FindMember(WIDE("binary"));
    const bool named = binary != document.MemberEnd() && binary->value.IsTrue() && data->value.IsString();
    return named ? data->value.GetString() : mp::wstring();
}

void remove(const mp::wstring& name) noexcept
{
    try
    {
        mp::SharedBuffer<char> buffer;
        buffer.open(name, true);
    }
    catch (const std::exception& failure)
    {
        std::cerr << "cannot remove shared memory: " << failure.what() << '\n';
    }
}

} // namespace shared_buffers
