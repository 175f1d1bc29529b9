#include "fuzz/support.h"
#include "tests/support/bodies.h"

// What could be restored can be listed, and comes back the same from another save.
static void restore(const std::string& bytes)
{
    test::Bodies bodies;
    if (!test::restoreError(bytes, bodies.list()).empty())
    {
        fuzz::require(bodies.list().count() == 0);
        return;
    }
    bodies.describe();
    const std::string saved = test::saved(bodies.list());
    test::Bodies again;
    fuzz::require(test::restoreError(saved, again.list()).empty());
    fuzz::require(test::saved(again.list()) == saved);
}

// The input as a whole file, and as records within a file that is right around them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    restore(bytes);
    restore(test::framed(bytes));
    return 0;
}
