#include "mp/narrow.h"
#include "tests/frozen/frozen_files.h"
#include "tests/full_rows/full_rows.h"
#include "tests/support/bodies.h"
#include "tests/support/peer.h"
#include "tests/support/plain_zlib.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <map>
#include <memory>

// usage: vrx_api_make_frozen FOLDER
// Makes the files of tests/data/frozen from the full texts. The classes write nothing of them: the texts go through the
// tree and the codecs only.
namespace
{

class FrozenFolder
{
public:
    explicit FrozenFolder(std::filesystem::path path)
        : m_path(std::move(path))
    {
    }

    void add(const test::FullRow& row)
    {
        static const std::map<std::string, std::string> files = {
            {"Command", "command_ping"},
            {"ImportOptions", "command_import"},
            {"ExportOptions", "command_export"},
            {"LegacyImportOptions", "command_legacy_import"},
            {"LegacyExportOptions", "command_legacy_export"},
            {"Result", "result"},
            {"FerrantInfo", "ferrant_info"},
        };
        const auto file = files.find(row.title);
        if (const auto object = std::dynamic_pointer_cast<vrx::IExchangeObject>(row.make()))
        {
            addObject(*object, row);
        }
        else if (file != files.end())
        {
            const bool isOptions = row.title.find("Options") != std::string::npos;
            putText(file->second, isOptions ? commandOf(row) : row.in);
        }
    }

private:
    void addObject(const vrx::IExchangeObject& object, const test::FullRow& row)
    {
        const std::string name = mp::toNarrow(object.objectName());
        const std::string stem = name + (m_rows[name]++ == 0 ? "" : "_" + std::to_string(m_rows[name]));
        const std::string text = textOf(name, row.in);
        putForms(stem, text);
        const bool isWrittenOtherwise = row.out != row.in && name != "exc_block_geometry";
        if (isWrittenOtherwise)
        {
            putForms(stem + ".written", row.out);
        }
        const std::string data =
            object.binary() ? R"(true,"exchange_object_data":")" + test::kFrozenBuffer + '"' : text;
        putText(stem + ".envelope", R"({"exchange_object_name":")" + name +
                                        (object.binary() ? R"(","binary":)" : R"(","exchange_object_data":)") + data +
                                        '}');
        if (object.binary())
        {
            put(stem + ".gz", compressed(test::contentOf(m_path / (stem + ".bin")), -1));
        }
        if (name == "exc_root_mechanical_data")
        {
            const std::string plain = test::contentOf(m_path / (stem + ".bin"));
            put(stem + ".fast.gz", compressed(plain, 1));
            put(stem + ".zlib", test::plainDeflate(plain, -1, test::kZlibWindow));
        }
        if (name == "exc_block_geometry")
        {
            test::Bodies bodies;
            bodies.addBrick("first");
            bodies.addBrick("second");
            put(stem + ".acis", test::saved(bodies.list()));
            put(stem + ".acis.gz", compressed(test::saved(bodies.list()), -1));
        }
    }

    static std::string commandOf(const test::FullRow& options)
    {
        const bool isLegacy = options.title.find("Legacy") != std::string::npos;
        const bool isImport = options.title.find("Import") != std::string::npos;
        return R"({"ferrant_interface":")" + std::string(isLegacy ? "legacy" : "uconnect") + R"(","command":")" +
               (isImport ? "import" : "export") + R"(","options":)" + options.in + "}";
    }

    // One message has characters that JSON escapes, and some that it does not.
    static std::string textOf(const std::string& name, std::string text)
    {
        if (name == "exc_message")
        {
            return R"({"message":"\"\\/\b\f\n\r\t\u0001\u007F \u00E4 \u87BA\u6813 \uD83D\uDD29"})";
        }
        const std::string bodies = R"("shared_acis_buffer_name":")";
        const std::size_t place = text.find(bodies + 'b');
        return place == std::string::npos ? text : text.replace(place + bodies.size(), 1, test::kFrozenBuffer);
    }

    static std::string compressed(const std::string& plain, int level)
    {
        std::string out;
        vrx::Compressor::compress(out, plain.data(), plain.size(), level);
        return out;
    }

    void putForms(const std::string& stem, const std::string& text)
    {
        putText(stem, text);
        std::vector<char> form;
        vrx::JsonBinaryIO::write(form, test::treeOfUtf8(text));
        put(stem + ".bin", {form.begin(), form.end()});
    }

    void putText(const std::string& stem, const std::string& text)
    {
        put(stem + ".json", test::prettyText(test::treeOfUtf8(text)));
    }

    void put(const std::string& name, const std::string& bytes)
    {
        std::ofstream file(m_path / name, std::ios::binary);
        file << bytes;
        if (!file.flush())
        {
            throw std::runtime_error(name + " cannot be written");
        }
    }

    std::filesystem::path m_path;
    std::map<std::string, int> m_rows; // of each class
};

} // namespace

int main(int argc, char** argv)
{
    return test::runPeer([&] {
        const std::vector<std::string> words(argv, argv + argc);
        FrozenFolder folder(words.at(1));
        for (const test::FullRow& row : test::allFullRows())
        {
            folder.add(row);
        }
        return 0;
    });
}
