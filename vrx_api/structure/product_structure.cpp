#include "vrx_api/structure/product_structure.h"

#include "vrx_api/common/unit_tables.h"
#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

#include <algorithm>

namespace vrx
{

const wstring ExcProductStructure::s_objectName = WIDE("exc_product_structure");
static const StaticExchangeObject<ExcProductStructure> s_prototype;

template <class Self, class Fields>
void ExcProductStructure::describe(Self& self, Fields& fields)
{
    // Under the ids that they have then; the last one of an id wins.
    const auto enter = [&self](const auto& block) { self.m_blockIndex[block->id()] = block; };

    fields.always(WIDE("product_name"), self.m_productName);
    fields.always(WIDE("product_configuration_name"), self.m_productConfigurationName);
    fields.filled(WIDE("misc_data"), self.m_miscData);
    fields.always(WIDE("units"), self.m_units);
    fields.always(WIDE("world_orientation"), self.m_worldOrientation);
    fields.filled(WIDE("blocks"), entered(self.m_blocks, enter));
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
