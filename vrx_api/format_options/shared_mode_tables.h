#pragma once

#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/json/enum_table.h"

namespace vrx
{

// The names that several enumerations share.

template <class E>
inline constexpr EnumName<E> kAllOrNone[3] = {
    {E::Unknown, WIDE("unknown")},
    {E::All, WIDE("all")},
    {E::None, WIDE("none")},
};

/// The names are texts, not JSON booleans.
template <class E>
inline constexpr EnumName<E> kTrueOrFalse[3] = {
    {E::Unknown, WIDE("unknown")},
    {E::True, WIDE("true")},
    {E::False, WIDE("false")},
};

inline constexpr EnumName<ETranslateHiddenEntitiesModeType> kHiddenEntitiesModes[] = {
    {ETranslateHiddenEntitiesModeType::Unknown, WIDE("unknown")},
    {ETranslateHiddenEntitiesModeType::All, WIDE("all")},
    {ETranslateHiddenEntitiesModeType::None, WIDE("none")},
    {ETranslateHiddenEntitiesModeType::OnlyWithVisibleLinks, WIDE("only_with_visible_links")},
};
constexpr const auto& enumTable(ETranslateHiddenEntitiesModeType)
{
    return kHiddenEntitiesModes;
}

constexpr const auto& enumTable(ETranslateSuppressedEntitiesModeType)
{
    return kAllOrNone<ETranslateSuppressedEntitiesModeType>;
}

constexpr const auto& enumTable(EVisuPMIProcessingMode)
{
    return kAllOrNone<EVisuPMIProcessingMode>;
}

inline constexpr EnumName<EImportEntities> kImportEntities[] = {
    {EImportEntities::Unknown, WIDE("unknown")},
    {EImportEntities::RootOnly, WIDE("root_only")},
    {EImportEntities::RootAndNonroot, WIDE("root_and_nonroot")},
};
constexpr const auto& enumTable(EImportEntities)
{
    return kImportEntities;
}

inline constexpr EnumName<EAssemblyPathPrefType> kAssemblyPathPrefs[] = {
    {EAssemblyPathPrefType::Unknown, WIDE("unknown")},
    {EAssemblyPathPrefType::SubfoldersFirst, WIDE("subfolders_first")},
    {EAssemblyPathPrefType::RootFolderOnly, WIDE("root_folder_only")},
    {EAssemblyPathPrefType::RootFolderFirst, WIDE("root_folder_first")},
};
constexpr const auto& enumTable(EAssemblyPathPrefType)
{
    return kAssemblyPathPrefs;
}

inline constexpr EnumName<EPersistentNameProcessingModeType> kPersistentNameModes[] = {
    {EPersistentNameProcessingModeType::None, WIDE("none")},
    {EPersistentNameProcessingModeType::Vertex, WIDE("vertex")},
    {EPersistentNameProcessingModeType::Edge, WIDE("edge")},
    {EPersistentNameProcessingModeType::Face, WIDE("face")},
    {EPersistentNameProcessingModeType::Instance, WIDE("instance")},
    {EPersistentNameProcessingModeType::Unknown, WIDE("unknown")},
};
constexpr const auto& enumTable(EPersistentNameProcessingModeType)
{
    return kPersistentNameModes;
}

} // namespace vrx
