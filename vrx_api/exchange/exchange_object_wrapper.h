#pragma once

#include "mp/serializable.h"
#include "vrx_api/exchange/compression.h"
#include "vrx_api/exchange/exchange_object.h"

#include <memory>

namespace vrx
{

/// The envelope in which an exchange object crosses: a small JSON text that names the object and holds its JSON, or the
/// name of the shared memory buffer that holds its binary form. One thread at a time uses an envelope and its object.
class VRX_API ExchangeObjectWrapper : public mp::ISerializable
{
public:
    /// Each call for a binary object makes a new buffer, which stays in the system until a reader loads it.
    /// Throws `std::invalid_argument` without an object, and what shared memory, compression and text output throw.
    void writeObject(wostream& stream) const override;

    /// Throws `std::invalid_argument` for a text that is no JSON object, and what `JsonTextIO::read` by the read rules
    /// and `IExchangeObject::load` throw. A name that no class has gives a null object.
    void readObject(wistream& stream) override;

    /// The object that crosses; null before one was set or read.
    const std::shared_ptr<IExchangeObject>& get() const { return m_pObject; }
    /// The object that is to be written; it is shared.
    void set(const std::shared_ptr<IExchangeObject>& object) { m_pObject = object; }

    /// With delayed loading a binary object is only named by `readObject`; the caller loads it when it wants the
    /// content.
    void setDelayedLoading(bool delayed) { m_delayedLoading = delayed; }

    /// How `writeObject` compresses a binary object.
    void setCompression(ECompression compression) { m_compression = compression; }

    /// What `readObject` asks of its text, and of the contents of the object that it makes. It does not touch the
    /// shared memory that a text names which breaks the rules.
    void setReadRules(const ReadRules& rules) { m_readRules = rules; }

private:
    std::shared_ptr<IExchangeObject> m_pObject;
    bool m_delayedLoading = false;
    ECompression m_compression = ECompression::AsTold;
    ReadRules m_readRules;
};

} // namespace vrx
