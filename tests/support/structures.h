#pragma once

#include "mp/narrow.h"
#include "tests/support/json_text.h"
#include "tests/support/units.h"
#include "vrx_api/structure/product_structure.h"

#include <memory>
#include <string>

namespace test
{

inline std::shared_ptr<vrx::ExcProductStructure> structureNamed(const mp::wstring& name)
{
    auto structure = std::make_shared<vrx::ExcProductStructure>();
    structure->setProductName(name);
    return structure;
}

inline mp::wstring nameOf(const std::shared_ptr<vrx::IExchangeObject>& structure)
{
    return std::dynamic_pointer_cast<vrx::ExcProductStructure>(structure)->productName();
}

/// The envelope of a structure in the buffer of this name, as bytes.
inline std::string structureEnvelope(const mp::wstring& source)
{
    return bytesOf(wide(R"({"exchange_object_name":"exc_product_structure","binary":true,"exchange_object_data":")" +
                        mp::toNarrow(source) + "\"}"));
}

} // namespace test
