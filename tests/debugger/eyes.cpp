// One of each thing of which the debugger has a picture, sound and damaged.

#include <vrx_api/vrx_api.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace
{

void look() // a breakpoint
{
    static volatile int times = 0;
    times = times + 1;
}

// An object in memory of its own, whose end is never called: it may be damaged.
template <class T>
struct Damageable
{
    alignas(T) unsigned char memory[sizeof(T)] = {};

    Damageable() { std::memset(memory, 0xCD, sizeof(memory)); }

    template <class... Arguments>
    T& make(Arguments&&... arguments)
    {
        return *new (memory) T(std::forward<Arguments>(arguments)...);
    }
};

// A class of the program's own, as a host may have it.
class OwnObject : public vrx::ExcProgress
{
public:
    int m_own = 5;
};

std::shared_ptr<vrx::ExcProductStructure> product()
{
    vrx::ExcTransformation place;
    place.translation().set(10.5, 0, -2);
    place.affine()[0].set(0, -1, 0);
    place.affine()[1].set(1, 0, 0);
    const auto bolt = std::make_shared<vrx::ExcBlock>();
    bolt->setId(1);
    bolt->setName(WIDE("hex bolt"));
    bolt->setPart(true);
    bolt->miscData().emplaceProperty(
        vrx::ExcMiscProperty().setName(WIDE("mass")).set(vrx::ExcMiscProperty::EType::Double, WIDE("0.1")));
    const auto placed = std::make_shared<vrx::ExcBlockReference>();
    placed->setBlockId(bolt->id());
    placed->setName(WIDE("bolt, left"));
    placed->setTransformation(place);
    placed->setColor(vrx::ExcColor(200, 100, 50));
    auto product = std::make_shared<vrx::ExcProductStructure>();
    product->setProductName(WIDE("vise"));
    product->setUnits(vrx::ELengthUnitType::Millimeter);
    product->addBlock(bolt);
    product->addRootBlockReference(placed);
    return product;
}

} // namespace

int main()
{
    const mp::wstring text = WIDE("hex bolt");
    const mp::wstring longText =
        mp::wstring(WIDE("a text of more units than the debugger shows: ")) + mp::wstring(300, mp::wchar('x'));
    const mp::wstring_view view(text.data() + 4, 2);
    mp::wstring moved = longText;
    const mp::wstring taken = std::move(moved);

    const vrx::ExcColor noColor;
    const vrx::ExcColor red(255, 0, 0);
    const vrx::ExcColor glass(10, 20, 30, 128);
    const vrx::ExcVector2d flat(1.25, -3);

    const std::shared_ptr<vrx::ExcProductStructure> structure = product();
    const std::shared_ptr<vrx::IExchangeObject> hidden = structure; // what it is, its type does not tell
    const vrx::ExcBlockReference& reference = *structure->rootBlockReferences().front();
    const std::shared_ptr<vrx::ExcBlock> nothing;
    const auto late = std::make_shared<vrx::ExcBlockVisualization>();
    late->setSource(WIDE("01234567-89ab-4cde-8f01-23456789abcd"));
    const OwnObject own;
    vrx::Result result;
    result.setMessage(WIDE("done"));

    Damageable<mp::wstring> unmadeText;
    Damageable<mp::wstring> longerText;
    const std::size_t length = std::size_t{1} << 60U;
    std::memcpy(reinterpret_cast<char*>(&longerText.make(WIDE("short"))) + sizeof(void*), &length, sizeof(length));
    Damageable<vrx::ExcProgress> unmade;
    Damageable<vrx::ExcProductStructure> overwritten;
    overwritten.make(*structure);
    for (std::size_t i = sizeof(vrx::IExchangeObject); i < sizeof(overwritten.memory); ++i)
    {
        overwritten.memory[i] = static_cast<unsigned char>(i);
    }
    Damageable<vrx::ExcColor> strangeColor;
    Damageable<std::shared_ptr<vrx::ExcBlock>> strayPointer;
    const std::vector<std::shared_ptr<vrx::ExcBlock>> blocks = structure->blocks();
    Damageable<vrx::ExcMessage> gone;
    gone.make(WIDE("bye")).~ExcMessage();
    std::memset(gone.memory, 0, sizeof(void*));
    look();
    static_cast<void>(view);
    static_cast<void>(glass);
    static_cast<void>(reference);
}
