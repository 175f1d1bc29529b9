// A translator for CAD files: reads commands on standard input, answers on standard output (see bridge/frames.h).

#include "bridge/translator_channel.h"
#include "translator.h"

#include <exception>
#include <iostream>

int main()
{
    try
    {
        vrx::bridge::TranslatorChannel channel;
        Translator(channel).run();
    }
    catch (const std::exception& failure)
    {
        std::cerr << "cad_translator: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
