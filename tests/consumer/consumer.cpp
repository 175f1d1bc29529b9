#include <mp/wide.h>
#include <vrx_api/vrx_api_command.h>

#include <iostream>

// A program that uses the installed package: it writes a command and reads it back.
int main()
{
    vrx::Command sent;
    sent.setType(vrx::Command::EType::Ping);
    mp::wstringstream text;
    sent.writeObject(text);

    vrx::Command received;
    received.readObject(text);
    if (received.type() != vrx::Command::EType::Ping)
    {
        std::cerr << "the command came back as another\n";
        return 1;
    }
    std::cout << "the command came back\n";
    return 0;
}
