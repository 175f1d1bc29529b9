#pragma once

#include "vrx_api/command/import_data.h"
#include "vrx_api/legacy/import_options.h"

#include <map>

namespace vrx
{

class LegacyImportOptionsImpl : public ImportData<LegacyImportOptions>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    bool useIopMP() const override { return m_useIopMP; }
    void setUseIopMP(bool use) override { m_useIopMP = use; }

    const wstring& temporaryDwg() const override { return m_temporaryDwg; }
    void setTemporaryDwg(const wstring& path) override { m_temporaryDwg = path; }

    EPmiMode pmiMode() const override { return m_pmiMode; }
    void setPmiMode(EPmiMode mode) override { m_pmiMode = mode; }

    EProductStructureMode productStructureMode() const override { return m_productStructureMode; }
    void setProductStructureMode(EProductStructureMode mode) override { m_productStructureMode = mode; }

    EColorsMode colorsMode() const override { return m_colorsMode; }
    void setColorsMode(EColorsMode mode) override { m_colorsMode = mode; }

    EHiddenPartsMode hiddenPartsMode() const override { return m_hiddenPartsMode; }
    void setHiddenPartsMode(EHiddenPartsMode mode) override { m_hiddenPartsMode = mode; }

    EInsUnits insUnitsDefSource() const override { return m_insUnitsDefSource; }
    void setInsUnitsDefSource(EInsUnits units) override { m_insUnitsDefSource = units; }

    bool importAcisWithDraftwell() const override { return m_importAcisWithDraftwell; }
    void setImportAcisWithDraftwell(bool import) override { m_importAcisWithDraftwell = import; }

    bool stepRotateYZ() const override { return m_stepRotateYZ; }
    void setStepRotateYZ(bool rotate) override { m_stepRotateYZ = rotate; }

    bool solidWorksRotateYZ() const override { return m_solidWorksRotateYZ; }
    void setSolidWorksRotateYZ(bool rotate) override { m_solidWorksRotateYZ = rotate; }

    bool insUnitsScaling() const override { return m_insUnitsScaling; }
    void setInsUnitsScaling(bool scaling) override { m_insUnitsScaling = scaling; }

    bool hasAlternateSearchPath(const wstring& key) const override;
    const wstring& alternateSearchPath(const wstring& key) const override;
    void setAlternateSearchPath(const wstring& key, const wstring& path) override;

    bool printDebugLog() const override { return m_printDebugLog; }
    void setPrintDebugLog(bool print) override { m_printDebugLog = print; }

private:
    friend struct Described<LegacyImportOptionsImpl>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_temporaryDwg;
    bool m_useIopMP = false;
    EPmiMode m_pmiMode = EPmiMode::Graphical;
    EProductStructureMode m_productStructureMode = EProductStructureMode::AsMechanicalComponents;
    EColorsMode m_colorsMode = EColorsMode::MatchingIndex;
    EHiddenPartsMode m_hiddenPartsMode = EHiddenPartsMode::ImportShow;
    EInsUnits m_insUnitsDefSource = EInsUnits::Unknown;
    bool m_insUnitsScaling = false;
    bool m_importAcisWithDraftwell = false;
    bool m_stepRotateYZ = false;
    bool m_solidWorksRotateYZ = false;
    std::map<wstring, wstring> m_alternateSearchPaths;
    bool m_printDebugLog = false;
};

} // namespace vrx
