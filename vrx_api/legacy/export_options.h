#pragma once

#include "vrx_api/command/export_options.h"
#include "vrx_api/legacy/ins_units.h"

#include <cstdint>
#include <map>
#include <vector>

namespace vrx
{

/// What the blocks of the drawing become in the exported file.
enum class EExportProductStructureMode : std::int32_t
{
    None = 0,
    AsMechanicalComponents = 1,
};

/// What becomes of hidden components.
enum class EExportHiddenPartsMode : std::int32_t
{
    ExportHide = 0,
    DoNotExport = 1,
};

/// The options of an export by the older interface. They have all that other exports have, the temporary drawing that
/// holds the model, the objects of that drawing to export and their names, by their handles, and a version number for
/// each target format. Host and translator agree on the version numbers. Made by `Command::newLegacyExportOptions`.
/// Reading throws `std::invalid_argument` for a value that is no object, has no file or no temporary drawing.
class VRX_API LegacyExportOptions : public ExportOptions
{
public:
    virtual const wstring& temporaryDwg() const = 0;
    virtual void setTemporaryDwg(const wstring& path) = 0;

    virtual bool insUnitsScaling() const = 0;
    virtual void setInsUnitsScaling(bool scaling) = 0;

    virtual EExportProductStructureMode productStructureMode() const = 0;
    virtual void setProductStructureMode(EExportProductStructureMode mode) = 0;

    virtual EExportHiddenPartsMode hiddenPartsMode() const = 0;
    virtual void setHiddenPartsMode(EExportHiddenPartsMode mode) = 0;

    /// The units of the exported file.
    virtual EInsUnits insUnitsDefTarget() const = 0;
    virtual void setInsUnitsDefTarget(EInsUnits units) = 0;

    /// The handles of the objects to export.
    virtual const std::vector<std::uint64_t>& selectionSet() const = 0;
    virtual void setSelectionSet(const std::vector<std::uint64_t>& handles) = 0;

    /// The names of components, by their handles.
    virtual const std::map<std::uint64_t, wstring>& componentNames() const = 0;

    /// A handle that has a name keeps it.
    virtual void addComponentName(std::uint64_t handle, const wstring& name) = 0;
    virtual void setComponentNames(const std::map<std::uint64_t, wstring>& names) = 0;

    /// The handles of the components that the mode of hidden parts is about.
    virtual const std::vector<std::uint64_t>& hiddenComponents() const = 0;
    virtual void addHiddenComponent(std::uint64_t handle) = 0;
    virtual void setHiddenComponents(const std::vector<std::uint64_t>& handles) = 0;

    virtual int stepFormatVersion() const = 0;
    virtual void setStepFormatVersion(int version) = 0;

    virtual int acisFormatVersion() const = 0;
    virtual void setAcisFormatVersion(int version) = 0;

    virtual int catiaV4FormatVersion() const = 0;
    virtual void setCatiaV4FormatVersion(int version) = 0;

    virtual int catiaV5FormatVersion() const = 0;
    virtual void setCatiaV5FormatVersion(int version) = 0;

    virtual int parasolidFormatVersion() const = 0;
    virtual void setParasolidFormatVersion(int version) = 0;

    virtual int xcgmFormatVersion() const = 0;
    virtual void setXcgmFormatVersion(int version) = 0;

    virtual bool printDebugLog() const = 0;
    virtual void setPrintDebugLog(bool print) = 0;
};

} // namespace vrx
