#include "capture/capture_writer.h"
#include "mp/narrow.h"
#include "tests/full_rows/full_rows.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <iostream>
#include <memory>

namespace
{

// The objects cross as the library sends them: in buffers, every second one compressed, or as text.
class Frozen
{
public:
    explicit Frozen(const char* file)
        : m_writer(file, false)
    {
        m_writer.start(R"({"recorder":"make_frozen"})");
    }

    void add(const test::FullRow& row)
    {
        if (const auto object = std::dynamic_pointer_cast<vrx::IExchangeObject>(row.make()))
        {
            addObject(*object, row.in);
        }
        else if (row.title == "Command")
        {
            m_writer.fromHost(test::wide(row.in));
        }
        else if (row.title == "ImportOptions")
        {
            m_writer.fromHost(test::wide(R"({"command":"import","options":)" + row.in + '}'));
        }
        else if (row.title == "Result" || row.title == "FerrantInfo")
        {
            m_writer.fromTranslator(test::wide(row.in));
        }
    }

    void end()
    {
        m_writer.unloadedBuffers({});
        m_writer.end(R"({"exit_code":0})");
    }

private:
    void addObject(const vrx::IExchangeObject& object, const std::string& text)
    {
        std::string data = text;
        if (object.binary())
        {
            data = '"' + addBuffer(text) + R"(","binary":true)";
        }
        else if (text.find(R"("shared_acis_buffer_name":"b")") != std::string::npos)
        {
            m_writer.buffer(WIDE("b"), "bodies", 6);
        }
        m_writer.fromTranslator(test::wide(R"({"exchange_object_name":")" + mp::toNarrow(object.objectName()) +
                                           R"(","exchange_object_data":)" + data + '}'));
    }

    std::string addBuffer(const std::string& text)
    {
        std::vector<char> form;
        vrx::JsonBinaryIO::write(form, test::parsed(text));
        if (++m_buffers % 2 == 0)
        {
            std::vector<char> compressed;
            vrx::Compressor::compress(compressed, form.data(), form.size(), -1);
            form = compressed;
        }
        std::string name = "buffer " + std::to_string(m_buffers);
        m_writer.buffer(test::wide(name), form.data(), form.size());
        return name;
    }

    capture::CaptureWriter m_writer;
    int m_buffers = 0;
};

} // namespace

// Writes the capture of the full texts that lies in tests/data. Later versions must read the one that lies there: it is
// never made anew, and a later one gets a name of its own.
int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "usage: " << argv[0] << " FILE\n";
        return 2;
    }
    Frozen frozen(argv[1]);
    for (const test::FullRow& row : test::allFullRows())
    {
        frozen.add(row);
    }
    frozen.end();
    return 0;
}
