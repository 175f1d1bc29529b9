#pragma once

#include "printing/palette.h"
#include "vrx_api/json/json_children.h"
#include "vrx_api/json/json_value.h"

#include <ostream>
#include <string>
#include <vector>

namespace printing
{

/// Prints JSON to be read by people: one member on a line, arrays of numbers packed. Unless all is asked for, long
/// strings and arrays are shortened, so that the text is no JSON any more. Keeps its own stack; the indentation stops
/// to grow at some depth. Ends early when nobody takes the output any more.
class JsonPrinter
{
public:
    JsonPrinter(std::ostream& stream, const Palette& palette, bool all)
        : m_stream(stream)
        , m_palette(palette)
        , m_all(all)
    {
    }

    /// Ends with a newline.
    void print(const vrx::JsonValue& root);

private:
    struct Open
    {
        vrx::JsonChildren children;
        std::size_t left;   // elements or members still to come
        std::size_t hidden; // those behind them
    };

    void printTree(const vrx::JsonValue& root);
    void printValue(const vrx::JsonValue& value);
    void printString(const vrx::JsonValue& value);
    void printNumbers(const vrx::JsonValue& array);
    void open(const vrx::JsonValue& container);
    void close();
    void newLine(std::size_t depth);
    void put(const char* color, const std::string& text);
    void flush();

    std::ostream& m_stream;
    const Palette& m_palette;
    bool m_all;
    std::string m_out;
    std::vector<Open> m_open;
};

} // namespace printing
