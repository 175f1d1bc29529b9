#include "vrx_api/structure/product_structure.h"

#include "vrx_api/common/unit_tables.h"
#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

#include <algorithm>

namespace vrx
{

const wstring ExcProductStructure::s_objectName = WIDE("exc_product_structure");
static const StaticExchangeObject<ExcProductStructure> s_prototype;

namespace
{

// Blocks that are entered into the index as they come, under the ids that they have then. The last one of an id wins.
template <class Blocks, class Index>
struct Indexed
{
    Blocks& blocks;
    Index& index;
};
template <class Blocks, class Index>
Indexed(Blocks&, Index&) -> Indexed<Blocks, Index>;

template <class Value, class Blocks, class Index>
bool decode(const Value& value, const Indexed<Blocks, Index>& field)
{
    const std::size_t firstRead = field.blocks.size();
    const bool taken = decode(value, field.blocks);
    for (std::size_t i = firstRead; i < field.blocks.size(); ++i)
    {
        field.index[field.blocks[i]->id()] = field.blocks[i];
    }
    return taken;
}

template <class Out, class Blocks, class Index>
void encode(Out& out, const Indexed<Blocks, Index>& field)
{
    encode(out, field.blocks);
}

template <class Blocks, class Index>
bool isEmpty(const Indexed<Blocks, Index>& field)
{
    return field.blocks.empty();
}

} // namespace

template <class Self, class Fields>
void ExcProductStructure::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("product_name"), self.m_productName);
    fields.always(WIDE("product_configuration_name"), self.m_productConfigurationName);
    fields.filled(WIDE("misc_data"), self.m_miscData);
    fields.always(WIDE("units"), self.m_units);
    fields.always(WIDE("world_orientation"), self.m_worldOrientation);
    fields.filled(WIDE("blocks"), Indexed{self.m_blocks, self.m_blockIndex});
    fields.filled(WIDE("root_block_references"), self.m_rootBlockReferences);
}
template struct Described<ExcProductStructure>;

void ExcProductStructure::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcProductStructure");
}

void ExcProductStructure::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

const wstring& ExcProductStructure::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcProductStructure::clone() const
{
    return std::make_shared<ExcProductStructure>();
}

bool ExcProductStructure::binary() const
{
    return true;
}

bool ExcProductStructure::compress() const
{
    return true;
}

void ExcProductStructure::addBlock(const std::shared_ptr<ExcBlock>& block)
{
    kolt::trace();
    if (refuseNull(block, "ExcProductStructure: attempt to add null Block object."))
    {
        return;
    }
    // The argument may stand in the vector itself, and must outlive its place there.
    const std::shared_ptr<ExcBlock> added = block;
    std::shared_ptr<ExcBlock>& indexed = m_blockIndex[added->id()];
    if (indexed != nullptr)
    {
        const auto known = std::find(m_blocks.begin(), m_blocks.end(), added);
        if (known != m_blocks.end())
        {
            m_blocks.erase(known);
        }
    }
    m_blocks.push_back(added);
    indexed = added;
}

std::shared_ptr<ExcBlock> ExcProductStructure::getBlockById(std::uint64_t id) const
{
    const auto found = m_blockIndex.find(id);
    return found == m_blockIndex.end() ? nullptr : found->second;
}

void ExcProductStructure::addRootBlockReference(const std::shared_ptr<ExcBlockReference>& reference)
{
    add(m_rootBlockReferences, reference, "ExcProductStructure: attempt to add null Root Block Reference object.");
}

} // namespace vrx
