#pragma once

#include "vrx_api/common/misc_data.h"
#include "vrx_api/common/units.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/structure/block.h"
#include "vrx_api/structure/block_reference.h"

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace vrx
{

/// The assembly tree of one imported model: a flat list of block definitions, and the references at the top of the
/// tree. Crosses as compressed binary JSON.
class VRX_API ExcProductStructure : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
    bool binary() const override;
    bool compress() const override;

    const wstring& productName() const { return m_productName; }
    void setProductName(const wstring& name) { m_productName = name; }

    const wstring& productConfigurationName() const { return m_productConfigurationName; }
    void setProductConfigurationName(const wstring& name) { m_productConfigurationName = name; }

    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }

    /// The unit of the lengths in the product: those of placements and bodies.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType units) { m_units = units; }

    EWorldOrientation worldOrientation() const { return m_worldOrientation; }
    void setWorldOrientation(EWorldOrientation orientation) { m_worldOrientation = orientation; }

    const std::vector<std::shared_ptr<ExcBlock>>& blocks() const { return m_blocks; }

    /// Appends a block and makes it the one that its id finds. A block that is here already moves to the end; another
    /// block of the same id stays in the list. A null pointer is logged and adds nothing.
    void addBlock(const std::shared_ptr<ExcBlock>& block);

    /// The block added last under this id, or null.
    std::shared_ptr<ExcBlock> getBlockById(std::uint64_t id) const;

    const std::vector<std::shared_ptr<ExcBlockReference>>& rootBlockReferences() const { return m_rootBlockReferences; }

    /// Appends; a null pointer is logged and adds nothing.
    void addRootBlockReference(const std::shared_ptr<ExcBlockReference>& reference);

private:
    friend struct Described<ExcProductStructure>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_productName;
    wstring m_productConfigurationName;
    ExcMiscData m_miscData;
    ELengthUnitType m_units = ELengthUnitType::Unknown;
    EWorldOrientation m_worldOrientation = EWorldOrientation::Unknown;
    std::vector<std::shared_ptr<ExcBlock>> m_blocks;
    std::map<std::uint64_t, std::shared_ptr<ExcBlock>> m_blockIndex;
    std::vector<std::shared_ptr<ExcBlockReference>> m_rootBlockReferences;
};

} // namespace vrx
