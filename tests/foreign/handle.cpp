// The maps of a library that was built with a drawing database's own handle: what is written is read again.

#include "vrx_api/vrx_api_exchange_object.h"

#include <iostream>
#include <limits>

namespace
{

template <class T>
T sentAndReceived(const T& sent)
{
    vrx::ExchangeObjectWrapper envelope;
    envelope.set(std::make_shared<T>(sent));
    mp::wstringstream stream;
    envelope.writeObject(stream);
    vrx::ExchangeObjectWrapper opened;
    opened.readObject(stream);
    return dynamic_cast<const T&>(*opened.get());
}

} // namespace

int main()
{
    const OdDbHandle last(std::numeric_limits<std::uint64_t>::max());
    vrx::LegacyComponentInstanceNames names;
    names.addInstanceName(last, WIDE("last"));
    names.addInstanceName(OdDbHandle(1), WIDE("first"));
    vrx::LegacyMaterialMap materials;
    materials.addMaterial(last, {true, WIDE("steel"), 7.85, 50, 490});

    const auto receivedNames = sentAndReceived(names);
    const auto receivedMaterials = sentAndReceived(materials);
    const bool isRight = receivedNames.map().size() == 2 && receivedNames.map().begin()->second == WIDE("first") &&
                         receivedNames.map().at(last) == WIDE("last") && receivedMaterials.map().size() == 1 &&
                         receivedMaterials.map().at(last).name == WIDE("steel");
    if (!isRight)
    {
        std::cerr << "the maps did not come through\n";
    }
    return isRight ? 0 : 1;
}
