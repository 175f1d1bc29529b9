#include "reading/search_folder.h"

#include "reading/import_settings.h"

#include <StepAP214_AppliedExternalIdentificationAssignment.hxx>
#include <StepBasic_DocumentFile.hxx>
#include <TCollection_HAsciiString.hxx>

#include <filesystem>

namespace
{

// The path of a file that is meant relative to a folder, or of its namesake in the search folder.
std::filesystem::path found(const std::filesystem::path& folder, const std::filesystem::path& file,
                            const std::string& searchFolder)
{
    const std::filesystem::path instead = std::filesystem::path(searchFolder) / file.filename();
    std::error_code none;
    const bool isMissing = !searchFolder.empty() && !std::filesystem::exists(folder / file, none);
    return isMissing && std::filesystem::is_regular_file(instead, none) ? std::filesystem::absolute(instead) : file;
}

Handle(TCollection_HAsciiString)
    renamed(const Handle(TCollection_HAsciiString) & name, const std::string& file, const std::string& searchFolder)
{
    if (name.IsNull() || name->IsEmpty())
    {
        return name;
    }
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    return new TCollection_HAsciiString(found(folder, name->ToCString(), searchFolder).c_str());
}

} // namespace

std::string fileToRead(const ImportSettings& settings)
{
    return found({}, settings.file, settings.searchFolder).string();
}

void findExternalFiles(const Interface_InterfaceModel& entities, const std::string& file,
                       const ImportSettings& settings)
{
    for (int i = 1; i <= entities.NbEntities(); ++i)
    {
        const Handle(Standard_Transient) entity = entities.Value(i);
        const auto document = Handle(StepBasic_DocumentFile)::DownCast(entity);
        if (!document.IsNull())
        {
            document->SetId(renamed(document->Id(), file, settings.searchFolder));
        }
        const auto location = Handle(StepAP214_AppliedExternalIdentificationAssignment)::DownCast(entity);
        if (!location.IsNull())
        {
            location->SetAssignedId(renamed(location->AssignedId(), file, settings.searchFolder));
        }
    }
}
