#include <vrx_api/vrx_api.h>

#ifdef RAPIDJSON_RAPIDJSON_H_
#error "vrx_api.h brings RapidJSON, with the macros of the library"
#endif

// The host's choice: values of another size than in the library, and comparison with standard strings.
#define RAPIDJSON_48BITPOINTER_OPTIMIZATION 0
#define RAPIDJSON_HAS_STDSTRING 1
#include <rapidjson/document.h>

#include <iostream>

// A host with a RapidJSON of its own in the same program: it reads what the library has written, and the library reads
// it too. The templates are those that the library uses, so that neither may take the other's functions.
int main()
{
    vrx::Command sent;
    sent.setType(vrx::Command::EType::Ping);
    mp::wstringstream text;
    sent.writeObject(text);

    rapidjson::GenericDocument<rapidjson::UTF16<mp::wchar>> document;
    document.Parse(text.str());
    if (!document.IsObject() || document[WIDE("command")] != mp::wstring(WIDE("ping")))
    {
        std::cerr << "the host did not read what the library wrote\n";
        return 1;
    }
    vrx::Command received;
    received.readObject(text);
    if (received.type() != vrx::Command::EType::Ping)
    {
        std::cerr << "the command came back as another\n";
        return 1;
    }
    std::cout << "host and library read with RapidJSONs of their own\n";
    return 0;
}
