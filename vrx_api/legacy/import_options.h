#pragma once

#include "vrx_api/command/import_options.h"
#include "vrx_api/legacy/ins_units.h"

#include <cstdint>

namespace vrx
{

/// Which product manufacturing information comes into the drawing.
enum class EPmiMode : std::int32_t
{
    None = 0,
    Graphical = 1,
    Semantic = 2,
};

/// What the parts and assemblies become in the drawing.
enum class EProductStructureMode : std::int32_t
{
    None = 0,
    AsBlocks = 1,
    AsMechanicalComponents = 2,
};

/// How a colour is stated: by red, green and blue; by its index in the drawing's palette where that has just this
/// colour; or by the index of the nearest colour.
enum class EColorsMode : std::int32_t
{
    Rgb = 0,
    MatchingIndex = 1,
    NearestIndex = 2,
};

/// What becomes of parts that are hidden in the file.
enum class EHiddenPartsMode : std::int32_t
{
    ImportHide = 0,
    ImportShow = 1,
    DoNotImport = 2,
};

/// The options of an import by the older interface. They have all that other imports have, a temporary drawing to work
/// in, and settings of how the model comes into that drawing. Made by `Command::newLegacyImportOptions`, with defaults
/// that work. Reading throws `std::invalid_argument` for a value that is no object, has no file or no temporary
/// drawing.
class VRX_API LegacyImportOptions : public ImportOptions
{
public:
    virtual bool useIopMP() const = 0;
    virtual void setUseIopMP(bool use) = 0;

    virtual const wstring& temporaryDwg() const = 0;
    virtual void setTemporaryDwg(const wstring& path) = 0;

    virtual EPmiMode pmiMode() const = 0;
    virtual void setPmiMode(EPmiMode mode) = 0;

    virtual EProductStructureMode productStructureMode() const = 0;
    virtual void setProductStructureMode(EProductStructureMode mode) = 0;

    virtual EColorsMode colorsMode() const = 0;
    virtual void setColorsMode(EColorsMode mode) = 0;

    virtual EHiddenPartsMode hiddenPartsMode() const = 0;
    virtual void setHiddenPartsMode(EHiddenPartsMode mode) = 0;

    /// The units of a model that states none.
    virtual EInsUnits insUnitsDefSource() const = 0;
    virtual void setInsUnitsDefSource(EInsUnits units) = 0;

    /// Whether the host imports ACIS files by itself.
    virtual bool importAcisWithDraftwell() const = 0;
    virtual void setImportAcisWithDraftwell(bool import) = 0;

    virtual bool stepRotateYZ() const = 0;
    virtual void setStepRotateYZ(bool rotate) = 0;

    virtual bool solidWorksRotateYZ() const = 0;
    virtual void setSolidWorksRotateYZ(bool rotate) = 0;

    /// Whether the model is scaled between its units and those of the drawing.
    virtual bool insUnitsScaling() const = 0;
    virtual void setInsUnitsScaling(bool scaling) = 0;

    /// Whether there is a path under a key.
    virtual bool hasAlternateSearchPath(const wstring& key) const = 0;

    /// The path under a key that host and translator have agreed upon; empty when there is none.
    virtual const wstring& alternateSearchPath(const wstring& key) const = 0;

    /// Replaces the path under the key, unlike reading, which keeps it. An empty path is ignored.
    virtual void setAlternateSearchPath(const wstring& key, const wstring& path) = 0;

    virtual bool printDebugLog() const = 0;
    virtual void setPrintDebugLog(bool print) = 0;
};

} // namespace vrx
