#include "shared_buffers.h"

#include "mp/shared_buffer.h"
#include "vrx_api/json/json_text_io.h"

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
    const auto binary = document.FindMember(WIDE("binary"));
    const auto data = document.FindMember(WIDE("exchange_object_data"));
    if (binary == document.MemberEnd() || !binary->value.IsTrue() || data == document.MemberEnd() ||
        !data->value.IsString())
    {
        return {};
    }
    return data->value.GetString();
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
