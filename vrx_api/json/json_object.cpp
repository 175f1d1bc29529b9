#include "vrx_api/json/json_object.h"

namespace vrx
{

IJsonObject::~IJsonObject() = default;

} // namespace vrx
