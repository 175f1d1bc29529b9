#pragma once

#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/json/enum_table.h"

namespace vrx
{

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

inline constexpr EnumName<ETranslateSuppressedEntitiesModeType> kSuppressedEntitiesModes[] = {
    {ETranslateSuppressedEntitiesModeType::Unknown, WIDE("unknown")},
    {ETranslateSuppressedEntitiesModeType::All, WIDE("all")},
    {ETranslateSuppressedEntitiesModeType::None, WIDE("none")},
};
constexpr const auto& enumTable(ETranslateSuppressedEntitiesModeType)
{
    return kSuppressedEntitiesModes;
}

inline constexpr EnumName<EVisuPMIProcessingMode> kVisuPMIModes[] = {
    {EVisuPMIProcessingMode::Unknown, WIDE("unknown")},
    {EVisuPMIProcessingMode::All, WIDE("all")},
    {EVisuPMIProcessingMode::None, WIDE("none")},
};
constexpr const auto& enumTable(EVisuPMIProcessingMode)
{
    return kVisuPMIModes;
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
