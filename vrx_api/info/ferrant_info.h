#pragma once

#include "mp/serializable.h"
#include "vrx_api/command/ferrant_interface.h"
#include "vrx_api/info/format.h"
#include "vrx_api/info/thirdparty_core.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// How a translator treats Parasolid; the meaning is settled between translator and host.
enum class EParasolidMode : std::int32_t
{
    Direct = 0,
    Kernel = 1,
};

/// What a translator tells its host: who it is, which form of options it wants, and which formats it can do. Copies
/// share the kernels and the formats.
class VRX_API FerrantInfo : public mp::ISerializable
{
public:
    /// Writes the names and modes, and those lists that are not empty.
    void writeObject(wostream& stream) const override;

    /// Adds to the lists. Throws `std::invalid_argument` for a text that is no JSON object, and for an element of a
    /// list that is none.
    void readObject(wistream& stream) override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    const wstring& version() const { return m_version; }
    void setVersion(const wstring& version) { m_version = version; }

    EFerrantInterface requestedInterface() const { return m_requestedInterface; }
    void setRequestedInterface(EFerrantInterface interfaceType) { m_requestedInterface = interfaceType; }

    EParasolidMode parasolidMode() const { return m_parasolidMode; }
    void setParasolidMode(EParasolidMode mode) { m_parasolidMode = mode; }

    // The operations that take a pointer ignore null. The new... operations append a default object to be filled in.

    const std::vector<std::shared_ptr<ThirdpartyCore>>& thirdpartyCores() const { return m_thirdpartyCores; }
    ThirdpartyCore& newThirdpartyCore();
    void addThirdpartyCore(const std::shared_ptr<ThirdpartyCore>& core);

    const std::vector<std::shared_ptr<Format>>& importFormats() const { return m_importFormats; }
    Format& newImportFormat();
    void addImportFormat(const std::shared_ptr<Format>& format);
    void addImportFormats(const std::vector<std::shared_ptr<Format>>& formats);

    const std::vector<std::shared_ptr<Format>>& exportFormats() const { return m_exportFormats; }
    Format& newExportFormat();
    void addExportFormat(const std::shared_ptr<Format>& format);
    void addExportFormats(const std::vector<std::shared_ptr<Format>>& formats);

private:
    friend struct Described<FerrantInfo>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    wstring m_version;
    EFerrantInterface m_requestedInterface = EFerrantInterface::UConnect;
    std::vector<std::shared_ptr<ThirdpartyCore>> m_thirdpartyCores;
    EParasolidMode m_parasolidMode = EParasolidMode::Direct;
    std::vector<std::shared_ptr<Format>> m_importFormats;
    std::vector<std::shared_ptr<Format>> m_exportFormats;
};

} // namespace vrx
