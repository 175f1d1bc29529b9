#pragma once

#include "vrx_api/manufacturing/mfg_feature.h"

namespace vrx
{

/// A machined feature that is neither a hole nor a thread.
class VRX_API ExcMfgFeatureUnclassified : public ExcMfgFeature
{
};

} // namespace vrx
