#include "fuzz/support.h"
#include "tests/full_rows/full_rows.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"

#include <filesystem>
#include <fstream>
#include <iostream>

// Writes the full text of each exchange class as a seed of the fuzz targets "check", "model" and "roads".
int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "usage: " << argv[0] << " DIRECTORY\n";
        return 2;
    }
    const std::filesystem::path directory = argv[1];
    std::filesystem::create_directories(directory);
    for (const test::FullRow& row : test::allFullRows())
    {
        const auto object = std::dynamic_pointer_cast<vrx::IExchangeObject>(row.make());
        if (object == nullptr)
        {
            continue;
        }
        const vrx::Bytes form = fuzz::encoded(test::parsed(row.in));
        std::ofstream file(directory / test::testName(row.title), std::ios::binary);
        file << mp::toNarrow(object->objectName()) << '\n';
        file.write(form.data(), static_cast<std::streamsize>(form.size()));
        file.close();
        if (!file)
        {
            std::cerr << "can't write the seed of " << row.title << '\n';
            return 1;
        }
    }
    return 0;
}
