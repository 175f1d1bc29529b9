// The other processes of the bridge's tests.
//
//     host MANNER STEP...   a host of the translator below
//     translator STEP...    a translator
//     words WORD...         prints its words, a line for each
//     leave NAME            makes a buffer of this name, notes it in the journals and leaves it
//     hang                  does nothing for a minute

#include "peer.h"

#include "bridge/bridge.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "tests/support/peer.h"

namespace
{

int run(const std::string& role, std::vector<std::string> words)
{
    if (role == "host")
    {
        const std::string manner = words.at(0);
        words.erase(words.begin());
        return playHost(manner, words);
    }
    if (role == "translator")
    {
        return playTranslator(words);
    }
    if (role == "words")
    {
        for (const std::string& word : words)
        {
            std::cout << word << '\n';
        }
        return 7;
    }
    if (role == "leave")
    {
        vrx::bridge::keepInheritedJournals();
        mp::SharedBuffer<char> buffer;
        buffer.open(mp::toWide(words.at(0)), false);
        return 0;
    }
    if (role == "hang")
    {
        std::this_thread::sleep_for(std::chrono::minutes(1));
        return 0;
    }
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    return test::runPeer([&] { return argc < 2 ? 2 : run(argv[1], {argv + 2, argv + argc}); });
}
