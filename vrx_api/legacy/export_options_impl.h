#pragma once

#include "vrx_api/command/export_data.h"
#include "vrx_api/json/described.h"
#include "vrx_api/legacy/export_options.h"

namespace vrx
{

class LegacyExportOptionsImpl : public ExportData<LegacyExportOptions>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& temporaryDwg() const override { return m_temporaryDwg; }
    void setTemporaryDwg(const wstring& path) override { m_temporaryDwg = path; }

    bool insUnitsScaling() const override { return m_insUnitsScaling; }
    void setInsUnitsScaling(bool scaling) override { m_insUnitsScaling = scaling; }

    EExportProductStructureMode productStructureMode() const override { return m_productStructureMode; }
    void setProductStructureMode(EExportProductStructureMode mode) override { m_productStructureMode = mode; }

    EExportHiddenPartsMode hiddenPartsMode() const override { return m_hiddenPartsMode; }
    void setHiddenPartsMode(EExportHiddenPartsMode mode) override { m_hiddenPartsMode = mode; }

    EInsUnits insUnitsDefTarget() const override { return m_insUnitsDefTarget; }
    void setInsUnitsDefTarget(EInsUnits units) override { m_insUnitsDefTarget = units; }

    const std::vector<std::uint64_t>& selectionSet() const override { return m_selectionSet; }
    void setSelectionSet(const std::vector<std::uint64_t>& handles) override { m_selectionSet = handles; }

    const std::map<std::uint64_t, wstring>& componentNames() const override { return m_componentNames; }
    void addComponentName(std::uint64_t handle, const wstring& name) override
    {
        m_componentNames.emplace(handle, name);
    }
    void setComponentNames(const std::map<std::uint64_t, wstring>& names) override { m_componentNames = names; }

    const std::vector<std::uint64_t>& hiddenComponents() const override { return m_hiddenComponents; }
    void addHiddenComponent(std::uint64_t handle) override { m_hiddenComponents.push_back(handle); }
    void setHiddenComponents(const std::vector<std::uint64_t>& handles) override { m_hiddenComponents = handles; }

    int stepFormatVersion() const override { return m_stepFormatVersion; }
    void setStepFormatVersion(int version) override { m_stepFormatVersion = version; }

    int acisFormatVersion() const override { return m_acisFormatVersion; }
    void setAcisFormatVersion(int version) override { m_acisFormatVersion = version; }

    int catiaV4FormatVersion() const override { return m_catiaV4FormatVersion; }
    void setCatiaV4FormatVersion(int version) override { m_catiaV4FormatVersion = version; }

    int catiaV5FormatVersion() const override { return m_catiaV5FormatVersion; }
    void setCatiaV5FormatVersion(int version) override { m_catiaV5FormatVersion = version; }

    int parasolidFormatVersion() const override { return m_parasolidFormatVersion; }
    void setParasolidFormatVersion(int version) override { m_parasolidFormatVersion = version; }

    int xcgmFormatVersion() const override { return m_xcgmFormatVersion; }
    void setXcgmFormatVersion(int version) override { m_xcgmFormatVersion = version; }

    bool printDebugLog() const override { return m_printDebugLog; }
    void setPrintDebugLog(bool print) override { m_printDebugLog = print; }

private:
    friend struct Described<LegacyExportOptionsImpl>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    static constexpr std::int32_t kDefaultStepVersion = 2;

    wstring m_temporaryDwg;
    bool m_insUnitsScaling = false;
    EInsUnits m_insUnitsDefTarget = EInsUnits::Unknown;
    EExportProductStructureMode m_productStructureMode = EExportProductStructureMode::AsMechanicalComponents;
    EExportHiddenPartsMode m_hiddenPartsMode = EExportHiddenPartsMode::ExportHide;
    std::vector<std::uint64_t> m_selectionSet;
    std::map<std::uint64_t, wstring> m_componentNames;
    std::vector<std::uint64_t> m_hiddenComponents;
    std::int32_t m_stepFormatVersion = kDefaultStepVersion;
    std::int32_t m_acisFormatVersion = 0;
    std::int32_t m_catiaV4FormatVersion = 0;
    std::int32_t m_catiaV5FormatVersion = 0;
    std::int32_t m_parasolidFormatVersion = 0;
    std::int32_t m_xcgmFormatVersion = 0;
    bool m_printDebugLog = false;
};

} // namespace vrx
