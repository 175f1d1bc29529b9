#include "reading/step_reader.h"

#include "import_progress.h"
#include "kernel/kernel_messages.h"
#include "reading/counting_buffer.h"
#include "reading/import_settings.h"
#include "reading/search_folder.h"
#include "reading/taught_entities.h"
#include "reading/tessellated_annotations.h"
#include "translation_error.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <StepGeom_Curve.hxx>
#include <StepGeom_Placement.hxx>
#include <StepGeom_Point.hxx>
#include <StepGeom_Surface.hxx>
#include <StepShape_TopologicalRepresentationItem.hxx>
#include <TColStd_SequenceOfAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace
{

const char kFirstWord[] = "ISO-10303-21";
const char kLastWord[] = "END-ISO-10303-21";
const std::uint64_t kEndPiece = 4096; // the first and last words stand within this many bytes of the file's ends

std::string piece(std::istream& file, std::uint64_t begin, std::uint64_t size)
{
    std::string text(static_cast<std::size_t>(size), '\0');
    file.seekg(static_cast<std::streamoff>(begin));
    file.read(text.data(), static_cast<std::streamsize>(size));
    text.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    file.clear();
    file.seekg(0);
    return text;
}

std::ifstream openStep(const std::string& path, std::uint64_t& size)
{
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(path, failure);
    if (!std::filesystem::exists(status))
    {
        throw TranslationError("There is no file " + path + ".");
    }
    if (!std::filesystem::is_regular_file(status))
    {
        throw TranslationError(path + " is not a file.");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file)
    {
        throw TranslationError("Cannot open " + path + ": " + std::strerror(errno) + ".");
    }
    size = std::filesystem::file_size(path);
    if (size == 0)
    {
        throw TranslationError(path + " is empty.");
    }
    if (piece(file, 0, std::min(size, kEndPiece)).find(kFirstWord) == std::string::npos)
    {
        throw TranslationError(path + " is not a STEP file: it does not begin with " + kFirstWord + ".");
    }
    return file;
}

bool isComplete(std::istream& file, std::uint64_t size)
{
    const std::uint64_t begin = size > kEndPiece ? size - kEndPiece : 0;
    return piece(file, begin, size - begin).find(kLastWord) != std::string::npos;
}

// The reader's messages go to the host's log while this lives.
class MessageRedirection
{
public:
    explicit MessageRedirection(const Handle(KernelMessages) & printer)
        : m_printer(printer)
    {
        const Handle(Message_Messenger)& messenger = Message::DefaultMessenger();
        messenger->RemovePrinters(STANDARD_TYPE(Message_Printer));
        messenger->AddPrinter(m_printer);
    }
    MessageRedirection(const MessageRedirection&) = delete;
    MessageRedirection& operator=(const MessageRedirection&) = delete;
    ~MessageRedirection() { Message::DefaultMessenger()->RemovePrinter(m_printer); }

private:
    Handle(KernelMessages) m_printer;
};

void read(STEPCAFControl_Reader& reader, const std::string& path, ImportProgress& progress)
{
    std::uint64_t size = 0;
    std::ifstream file = openStep(path, size);
    const bool complete = isComplete(file, size);

    CountingBuffer buffer(
        file, [&](std::uint64_t count) { progress.advance(static_cast<double>(count) / static_cast<double>(size)); });
    std::istream stream(&buffer);
    const IFSelect_ReturnStatus status = reader.ChangeReader().ReadStream(path.c_str(), stream);
    if (status != IFSelect_RetDone && !complete)
    {
        throw TranslationError(path + " is cut off: its end, " + kLastWord + ", is missing.");
    }
    if (status != IFSelect_RetDone)
    {
        throw TranslationError(path + " is damaged: it cannot be parsed as a STEP file.");
    }
    if (reader.NbRootsForTransfer() == 0)
    {
        throw TranslationError(path + " holds no product.");
    }
}

bool namesUnit(STEPControl_Reader& reader)
{
    TColStd_SequenceOfAsciiString lengths;
    TColStd_SequenceOfAsciiString angles;
    TColStd_SequenceOfAsciiString solidAngles;
    reader.FileUnits(lengths, angles, solidAngles);
    return !lengths.IsEmpty();
}

// Damage that may cost geometry. What the kernel does not know of other data, PMI above all, is no damage.
std::string damage(const Interface_InterfaceModel& entities)
{
    int unreadable = 0;
    for (int i = 1; i <= entities.NbEntities(); ++i)
    {
        const Handle(Standard_Transient)& entity = entities.Value(i);
        const bool isGeometry =
            entity->IsKind(STANDARD_TYPE(StepShape_TopologicalRepresentationItem)) ||
            entity->IsKind(STANDARD_TYPE(StepGeom_Surface)) || entity->IsKind(STANDARD_TYPE(StepGeom_Curve)) ||
            entity->IsKind(STANDARD_TYPE(StepGeom_Point)) || entity->IsKind(STANDARD_TYPE(StepGeom_Placement));
        unreadable += isGeometry && entities.IsErrorEntity(i) ? 1 : 0;
    }
    if (unreadable > 0)
    {
        return "The file is damaged: " + std::to_string(unreadable) +
               " of its geometric entities could not be read. The model may be incomplete.";
    }
    if (entities.GlobalCheck()->HasFailed())
    {
        return std::string("The file has errors of syntax, the first one: ") + entities.GlobalCheck()->CFail(1) +
               ". The model may be incomplete.";
    }
    return {};
}

} // namespace

CadModel readStep(const ImportSettings& settings, HostChannel& channel, ImportProgress& progress)
{
    const std::string path = fileToRead(settings);
    const Handle(KernelMessages) messages = new KernelMessages(channel, settings.debugLog);
    const MessageRedirection redirection(messages);

    CadModel model;
    model.path = path;
    model.reader = std::make_unique<STEPCAFControl_Reader>();
    model.reader->SetColorMode(true);
    model.reader->SetNameMode(true);
    model.reader->SetPropsMode(true);
    model.reader->SetMatMode(true);
    model.reader->SetSHUOMode(true);
    model.reader->SetLayerMode(settings.layers);
    model.reader->SetGDTMode(settings.pmi);
    model.reader->SetViewMode(settings.pmi);

    progress.beginStage("Reading the file", 20);
    const Handle(XSControl_WorkSession) session = model.reader->Reader().WS();
    if (settings.pmi)
    {
        teachEntities(*session);
    }
    read(*model.reader, path, progress);
    const Handle(Interface_InterfaceModel) entities = session->Model();
    model.namesUnit = namesUnit(model.reader->ChangeReader());
    model.warning = damage(*entities);
    findExternalFiles(*entities, path, settings);
    if (settings.pmi)
    {
        gatherTessellatedAnnotations(*entities);
    }

    progress.beginStage("Translating the shapes", 55);
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", model.document);
    const Handle(KernelProgress) kernelProgress = new KernelProgress(progress);
    TDF_LabelSequence shapes;
    if (model.reader->Transfer(model.document, kernelProgress->Start()))
    {
        XCAFDoc_DocumentTool::ShapeTool(model.document->Main())->GetFreeShapes(shapes);
    }
    if (shapes.IsEmpty())
    {
        const std::string& reason = messages->lastFailure();
        throw TranslationError("Nothing in " + path + " could be translated" + (reason.empty() ? "." : ": " + reason));
    }
    return model;
}
