// JSON values for the debugger to look at. Built twice: with RapidJSON's pointers packed into 48 bits, and not.

#include "vrx_api/json/json_value.h"

#include <cstring>
#include <string>

namespace
{

using vrx::JsonAllocator;
using vrx::JsonDocument;
using vrx::JsonValue;

void look() // a breakpoint
{
    static volatile int times = 0;
    times = times + 1;
}

// What JSON values hold in the memory that something else has written to.
JsonValue* overwritten(void* memory, std::size_t at, unsigned char byte, std::size_t count)
{
    std::memset(static_cast<char*>(memory) + at, byte, count);
    return static_cast<JsonValue*>(memory);
}

} // namespace

int main()
{
    JsonDocument document;
    document.Parse(u"{\"nothing\":null, \"yes\":true, \"no\":false, \"int\":-7, \"uint\":4000000000,"
                   u"\"int64\":-5000000000, \"uint64\":18446744073709551615, \"whole double\":1.0, \"tiny\":1e-300,"
                   u"\"\":\"\", \"short\":\"bolt\", \"long\":\"a text that is too long to lie in the value\","
                   u"\"quoted \\\"name\\n\":\"\\ud83d\\udd29\", \"list\":[1, [2.5, \"three\"], {}], \"none\":[]}");
    JsonAllocator& allocator = document.GetAllocator();
    JsonValue number(3);
    JsonValue lone(std::u16string(u"\xDC00 alone").c_str(), allocator);
    JsonValue moved(JsonValue(u"that has gone", allocator));
    JsonValue taken(std::move(moved));
    JsonValue odd(rapidjson::kObjectType); // a binary form may have any value in a name's place
    odd.AddMember(u"", JsonValue(rapidjson::kArrayType), allocator);
    odd.MemberBegin()->name.SetDouble(12);
    const JsonValue& reference = document;

    alignas(JsonValue) char memory[5][sizeof(JsonValue)] = {};
    const JsonValue list(JsonValue(rapidjson::kArrayType).PushBack(1, allocator), allocator);
    const JsonValue& text = document[u"long"];
    std::memcpy(memory[1], static_cast<const void*>(&list), sizeof(list));
    std::memcpy(memory[2], static_cast<const void*>(&list), sizeof(list));
    std::memcpy(memory[3], static_cast<const void*>(&text), sizeof(text));
    std::memcpy(memory[4], static_cast<const void*>(&document[u"short"]), sizeof(text));
    const JsonValue* unmade = overwritten(memory[0], 0, 0xCD, sizeof(JsonValue));
    const JsonValue* longer = overwritten(memory[1], 0, 0x7F, 4);
    const JsonValue* elsewhere = overwritten(memory[2], 10, 0x11, 4); // the pointer to the elements
    const JsonValue* farText = overwritten(memory[3], 10, 0x11, 4);
    const JsonValue* overlong = overwritten(memory[4], sizeof(JsonValue) - 4, 0xFF, 2); // its length
    look();
    static_cast<void>(reference);
    static_cast<void>(unmade);
    static_cast<void>(longer);
    static_cast<void>(elsewhere);
    static_cast<void>(farText);
    static_cast<void>(overlong);
}
