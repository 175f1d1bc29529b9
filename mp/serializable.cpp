#include "mp/serializable.h"

namespace mp
{

ISerializable::~ISerializable() = default;

} // namespace mp
