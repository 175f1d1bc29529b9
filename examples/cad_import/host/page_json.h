#pragma once

#include "utf8.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_common.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>
#include <string>
#include <vector>

/// Writes JSON in UTF-8 for the page, with the few kinds of values that the page knows.
class PageJson : public rapidjson::Writer<rapidjson::StringBuffer>
{
public:
    PageJson()
        : Writer(m_buffer)
    {
    }

    std::string text() const { return m_buffer.GetString(); }

    void value(const std::string& text) { String(text.c_str(), static_cast<rapidjson::SizeType>(text.size())); }
    void value(const mp::wstring& text) { value(utf8(text)); }

    template <class Value>
    void field(const char* key, const Value& text)
    {
        Key(key);
        value(text);
    }

    void raw(const std::string& json) { RawValue(json.c_str(), json.size(), rapidjson::kObjectType); }

    /// A number that is not finite, which JSON has not, as null.
    void number(double value) { std::isfinite(value) ? Double(value) : Null(); }

    void number(const char* key, double value)
    {
        Key(key);
        number(value);
    }

    void flag(const char* key, bool value)
    {
        Key(key);
        Bool(value);
    }

    void null(const char* key)
    {
        Key(key);
        Null();
    }

    template <class Numbers>
    void numbers(const Numbers& values)
    {
        StartArray();
        for (const double value : values)
        {
            number(value);
        }
        EndArray();
    }

    template <class Numbers>
    void numbers(const char* key, const Numbers& values)
    {
        Key(key);
        numbers(values);
    }

    template <class Texts>
    void texts(const char* key, const Texts& values)
    {
        Key(key);
        StartArray();
        for (const auto& text : values)
        {
            value(text);
        }
        EndArray();
    }

    void vector(const vrx::ExcVector3d& vector) { numbers(std::vector<double>{vector[0], vector[1], vector[2]}); }

    void vector(const char* key, const vrx::ExcVector3d& value)
    {
        Key(key);
        vector(value);
    }

    /// Red, green, blue, alpha; null for no colour.
    void color(const vrx::ExcColor& color)
    {
        Key("color");
        if (!color.hasRGB())
        {
            Null();
            return;
        }
        StartArray();
        for (const auto channel : {vrx::ExcColor::ChannelRed, vrx::ExcColor::ChannelGreen, vrx::ExcColor::ChannelBlue})
        {
            Uint(color[channel]);
        }
        Uint(color.hasAlpha() ? color[vrx::ExcColor::ChannelAlpha] : 255U);
        EndArray();
    }

private:
    rapidjson::StringBuffer m_buffer;
};
