// The other process of the roads that cross processes. Wide text goes over its standard input and output as units.
//
//     write-structure TEXT  writes the envelope of a product structure that has this name
//     read-envelope         writes the JSON of the object of the envelope that it reads
//     read-delayed          the same, with the object loaded later and twice
//     echo-envelope         writes an envelope of its own of the object of the envelope that it reads
//     open-buffer NAME      makes a buffer without writing to it
//     leave-buffer NAME     leaves a buffer that holds what it reads
//     take-buffer NAME      writes the content of a buffer and removes it
//
// With a third argument it writes a byte FF when it is done and stays until it is killed. An exception ends it with
// exit code 3 and the exception's text as its whole output.

#include "tests/support/envelope.h"
#include "tests/support/json_text.h"
#include "tests/support/peer.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iostream>

namespace
{

int run(const std::string& verb, const std::string& text)
{
    mp::SharedBuffer<char> buffer;
    if (verb == "write-structure")
    {
        const auto structure = std::make_shared<vrx::ExcProductStructure>();
        structure->setProductName(test::wide(text));
        std::cout << test::envelopeOf(structure);
    }
    else if (verb == "read-envelope")
    {
        std::cout << test::written(*test::opened(test::readInput()));
    }
    else if (verb == "read-delayed")
    {
        const auto object = test::opened(test::readInput(), true);
        const bool early = object->isLoaded();
        object->load();
        object->load();
        std::cout << test::written(*object);
        return early || !object->isLoaded() ? 1 : 0;
    }
    else if (verb == "echo-envelope")
    {
        std::cout << test::envelopeOf(test::opened(test::readInput()));
    }
    else if (verb == "open-buffer")
    {
        buffer.open(test::wide(text), false);
    }
    else if (verb == "leave-buffer")
    {
        const std::string content = test::readInput();
        buffer.open(test::wide(text), false);
        buffer.write(content.data(), content.size());
    }
    else if (verb == "take-buffer")
    {
        std::cout << test::takeBuffer(test::wide(text));
    }
    else
    {
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    return test::runPeer([&] {
        const int code = argc < 2 ? 2 : run(argv[1], argc > 2 ? argv[2] : "");
        if (argc > 3)
        {
            test::stay();
        }
        return code;
    });
}
