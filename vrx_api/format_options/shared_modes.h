#pragma once

#include <cstdint>

namespace vrx
{

// The modes that several formats have. "Unknown" leaves the decision to the translator.

enum class ETranslateHiddenEntitiesModeType : std::int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
    OnlyWithVisibleLinks = 3,
};

enum class ETranslateSuppressedEntitiesModeType : std::int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

enum class EVisuPMIProcessingMode : std::int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

enum class EImportEntities : std::int32_t
{
    Unknown = 0,
    RootOnly = 1,
    RootAndNonroot = 2,
};

/// Where the file of a referenced part is looked for.
enum class EAssemblyPathPrefType : std::int32_t
{
    Unknown = 0,
    SubfoldersFirst = 1,
    RootFolderOnly = 2,
    RootFolderFirst = 3,
};

/// The entities whose persistent names are wanted; settings hold a set of them.
enum class EPersistentNameProcessingModeType : std::uint16_t
{
    None = 0,
    Vertex = 1,
    Edge = 2,
    Face = 4,
    Instance = 16,
    Unknown = 255,
};

} // namespace vrx
