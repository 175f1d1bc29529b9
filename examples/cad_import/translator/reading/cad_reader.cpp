#include "reading/cad_reader.h"

#include "common/file_extension.h"
#include "kernel/kernel_messages.h"
#include "reading/cad_file.h"
#include "reading/iges_reader.h"
#include "reading/import_settings.h"
#include "reading/search_folder.h"
#include "reading/step_reader.h"
#include "translation_error.h"

#include <TDF_LabelSequence.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <string>

namespace
{

bool isNamedIges(const std::string& path)
{
    const std::string extension = fileExtension(path);
    return extension == "igs" || extension == "iges";
}

// What the file holds counts; its name only tells which format is missed in one that holds neither.
bool isIges(const CadFile& file)
{
    return beginsAsIges(file) || (!beginsAsStep(file) && isNamedIges(file.path()));
}

} // namespace

CadModel readModel(const ImportSettings& settings, vrx::bridge::TranslatorChannel& channel, ImportProgress& progress)
{
    CadFile file(fileToRead(settings));
    const Handle(KernelMessages) messages = new KernelMessages(channel, settings.debugLog);
    const MessageRedirection redirection(messages);

    CadModel model;
    model.path = file.path();
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", model.document);
    if (isIges(file))
    {
        readIges(file, settings, progress, model);
    }
    else
    {
        readStep(file, settings, progress, model);
    }

    TDF_LabelSequence shapes;
    XCAFDoc_DocumentTool::ShapeTool(model.document->Main())->GetFreeShapes(shapes);
    if (shapes.IsEmpty())
    {
        const std::string& reason = messages->lastFailure().empty() ? model.damage : messages->lastFailure();
        throw TranslationError("Nothing in " + model.path + " could be translated" +
                               (reason.empty() ? ", or all of it is left out by the settings." : ": " + reason));
    }
    return model;
}
