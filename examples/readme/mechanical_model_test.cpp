#include <vrx_api/vrx_api.h>

#include <cstdio>
#include <cstdlib>

void sendMechanicalData(mp::wostream& channel, std::uint64_t blockId, std::uint64_t bodyId);

static void require(bool condition, const char* what)
{
    if (!condition)
    {
        std::fprintf(stderr, "%s did not arrive\n", what);
        std::exit(EXIT_FAILURE);
    }
}

int main()
{
    mp::wstringstream channel;
    sendMechanicalData(channel, 5, 7);
    vrx::ExchangeObjectWrapper envelope;
    envelope.readObject(channel);
    const auto data = std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(envelope.get());

    require(data != nullptr && data->blockId() == 5, "The block");
    require(data->pmiData()->annotationSets().size() == 1, "The annotations");
    const auto density = data->miscData()->materials().at(0)->get(vrx::ExcMiscMaterial::EProperty::Density);
    require(density != nullptr && density->value() == 7850.0, "The density");
    const auto hole = data->manufacturingData()->counterBoreHoles().at(0);
    require(hole->holeData()->depth() == 6.5 && hole->definingGeometry().size() == 1, "The hole");
    const auto thread = data->manufacturingData()->internalThreads().at(0);
    const auto circle = std::dynamic_pointer_cast<vrx::ExcMfgPatternCircular>(thread->pattern());
    require(circle != nullptr && circle->axialInstanceCount() == 6, "The pattern");
    return EXIT_SUCCESS;
}
