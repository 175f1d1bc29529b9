#include <vrx_api/vrx_api.h>

#include <iostream>
#include <stdexcept>

// A program that has the library within itself, built without a kernel: no class is lost on the way, though the program
// names few of them, and who asks for the bodies is told why there are none.
int main()
{
    const std::size_t classes = vrx::ExchangeObjectRegistry::instance().names().size();
    if (classes != 12)
    {
        std::cerr << "the registry has " << classes << " of 12 classes\n";
        return 1;
    }
    try
    {
        vrx::ExcSubentId::getOwnerBody(nullptr);
        std::cerr << "there is a kernel\n";
        return 1;
    }
    catch (const std::logic_error& error)
    {
        std::cout << error.what() << '\n';
    }
    return 0;
}
