#include <mp/wide.h>

#include <cstdlib>

void sendProduct(mp::wostream& channel);
std::size_t receiveProduct(mp::wistream& channel);

int main()
{
    mp::wstringstream channel;
    sendProduct(channel);
    return receiveProduct(channel) == 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}
