#pragma once

#include <Interface_InterfaceModel.hxx>

#include <string>

struct ImportSettings;

/// The file to read: where the command says or, when it is not there, of the same name in the search folder. Where the
/// command says, too, when it is in neither.
std::string fileToRead(const ImportSettings& settings);

/// Makes the entities of a STEP file that name other files, which the kernel looks for beside the file, name those of
/// the search folder where they are only there.
void findExternalFiles(const Interface_InterfaceModel& entities, const std::string& file,
                       const ImportSettings& settings);
