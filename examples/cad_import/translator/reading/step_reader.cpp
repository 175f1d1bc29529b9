#include "reading/step_reader.h"

#include "import_progress.h"
#include "reading/cad_file.h"
#include "reading/counting_buffer.h"
#include "reading/import_settings.h"
#include "reading/search_folder.h"
#include "reading/step_records.h"
#include "translation_error.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPCAFControl_ExternFile.hxx>
#include <StepGeom_Curve.hxx>
#include <StepGeom_Placement.hxx>
#include <StepGeom_Point.hxx>
#include <StepGeom_Surface.hxx>
#include <StepShape_TopologicalRepresentationItem.hxx>
#include <TColStd_SequenceOfAsciiString.hxx>
#include <XSControl_WorkSession.hxx>

#include <cstdint>
#include <memory>

namespace
{

const char kFirstWord[] = "ISO-10303-21";
const char kLastWord[] = "END-ISO-10303-21";

void read(STEPCAFControl_Reader& reader, CadFile& file, ImportProgress& progress)
{
    const std::string& path = file.path();
    if (!beginsAsStep(file))
    {
        throw TranslationError(path + " is not a STEP file: it does not begin with " + kFirstWord + ".");
    }
    const bool complete = file.end().find(kLastWord) != std::string::npos;

    CountingBuffer buffer(file.stream(), [&](std::uint64_t count) {
        progress.advance(static_cast<double>(count) / static_cast<double>(file.size()));
    });
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
        return "The file is damaged: " + std::to_string(unreadable) + " of its geometric entities could not be read.";
    }
    if (entities.GlobalCheck()->HasFailed())
    {
        return std::string("The file has errors of syntax, the first one: ") + entities.GlobalCheck()->CFail(1) + ".";
    }
    return {};
}

// Parts of an assembly may stand in files of their own.
std::string missingFiles(const STEPCAFControl_Reader& reader)
{
    using Files = NCollection_DataMap<TCollection_AsciiString, Handle(STEPCAFControl_ExternFile)>;
    std::string missing;
    for (Files::Iterator file(reader.ExternFiles()); file.More(); file.Next())
    {
        if (file.Value()->GetLoadStatus() != IFSelect_RetDone || !file.Value()->GetTransferStatus())
        {
            missing += (missing.empty() ? "" : ", ") + std::string(file.Key().ToCString());
        }
    }
    return missing.empty() ? missing : "Files to which the file refers could not be read: " + missing + ".";
}

} // namespace

bool beginsAsStep(const CadFile& file)
{
    return file.begin().find(kFirstWord) != std::string::npos;
}

void readStep(CadFile& file, const ImportSettings& settings, ImportProgress& progress, CadModel& model)
{
    model.step = std::make_unique<STEPCAFControl_Reader>();
    model.step->SetColorMode(true);
    model.step->SetNameMode(true);
    model.step->SetSHUOMode(true);
    model.step->SetPropsMode(false); // these, materials and layers are read from the file itself
    model.step->SetMatMode(false);
    model.step->SetLayerMode(false);
    model.step->SetGDTMode(false); // what the kernel makes of it is not what the file states
    model.step->SetViewMode(false);

    progress.beginStage("Reading the file", 20);
    const Handle(XSControl_WorkSession) session = model.step->Reader().WS();
    {
        model.records = std::make_unique<StepRecords>();
        const StepRecords::Keeper keeper(*model.records, *session);
        read(*model.step, file, progress);
    }
    const Handle(StepData_StepModel) entities = model.step->ChangeReader().StepModel();
    model.namesUnit = namesUnit(model.step->ChangeReader());
    model.damage = damage(*entities);
    findExternalFiles(*entities, file.path(), settings);
    model.records->bind(*entities);

    progress.beginStage("Translating the shapes", 55);
    const Handle(KernelProgress) kernelProgress = new KernelProgress(progress);
    model.step->Transfer(model.document, kernelProgress->Start());
    if (model.damage.empty())
    {
        model.damage = missingFiles(*model.step);
    }
}
