#include <bridge/bridge.h>

#include <iostream>

// A program that uses the installed bridge: without arguments a host, which starts itself as its translator.
int main(int count, char** words)
{
    if (count > 1)
    {
        vrx::bridge::TranslatorChannel channel;
        while (channel.receive())
        {
            channel.send(vrx::Result());
        }
        return 0;
    }
    vrx::bridge::HostSession session({words[0], "translator"});
    if (session.ping().code() != vrx::Result::ECode::Ok)
    {
        std::cerr << "the translator did not answer as it should\n";
        return 1;
    }
    std::cout << "the translator answered\n";
    return 0;
}
