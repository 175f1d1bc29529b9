#include "base64.h"

std::string base64(const std::vector<unsigned char>& bytes)
{
    static const char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3)
    {
        const std::size_t left = bytes.size() - i;
        const unsigned bits = static_cast<unsigned>(bytes[i]) << 16 |
                              (left > 1 ? static_cast<unsigned>(bytes[i + 1]) << 8 : 0U) |
                              (left > 2 ? static_cast<unsigned>(bytes[i + 2]) : 0U);
        text += kDigits[bits >> 18];
        text += kDigits[bits >> 12 & 63];
        text += left > 1 ? kDigits[bits >> 6 & 63] : '=';
        text += left > 2 ? kDigits[bits & 63] : '=';
    }
    return text;
}
