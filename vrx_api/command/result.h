#pragma once

#include "mp/serializable.h"
#include "vrx_api/json/described.h"

#include <cstdint>

namespace vrx
{

/// What the translator answers. The library only carries the code and the flag: their meaning is the programs' affair.
class VRX_API Result : public mp::ISerializable
{
public:
    /// How the work of a command ended.
    enum class ECode : std::int32_t
    {
        Unknown = 0,
        Ok = 1,
        Warning = 2,
        Error = 3,
        Interrupted = 4,
    };

    /// Writes the code, the flag, and the message where there is one.
    void writeObject(mp::wostream& stream) const override;

    /// Throws `std::invalid_argument` for a text that is no JSON object, or has no code.
    void readObject(mp::wistream& stream) override;

    ECode code() const { return m_code; }
    void setCode(ECode code) { m_code = code; }

    const mp::wstring& message() const { return m_message; }
    void setMessage(const mp::wstring& message) { m_message = message; }

    bool isFinished() const { return m_finished; }
    void setFinished(bool finished) { m_finished = finished; }

private:
    friend struct Described<Result>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ECode m_code = ECode::Ok;
    mp::wstring m_message;
    bool m_finished = false;
};

} // namespace vrx
