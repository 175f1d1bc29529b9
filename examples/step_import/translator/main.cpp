// A translator for STEP files: reads commands on standard input, answers on standard output (see framing.h).

#include "translator.h"

#include <exception>
#include <iostream>

int main()
{
    try
    {
        Translator().run();
    }
    catch (const std::exception& failure)
    {
        std::cerr << "step_translator: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
