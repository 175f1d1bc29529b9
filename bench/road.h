#pragma once

#include "bench/models.h"
#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/compression.h"
#include "vrx_api/exchange/exchange_object.h"

#include <memory>
#include <string>

namespace bench
{

/// A model and the forms that it takes on its way.
struct Road
{
    explicit Road(const Model& model);

    const vrx::Bytes& content(vrx::ECompression compression) const;

    /// The text of a new envelope for the content, ready to be read.
    vrx::wstring envelope(vrx::ECompression compression) const;

    std::string name;
    std::shared_ptr<vrx::IExchangeObject> object;
    vrx::Bytes binary;
    vrx::Bytes compressed;
    vrx::Bytes compressedFast;
};

} // namespace bench
