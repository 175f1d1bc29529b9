#include "reading/iges_reader.h"

#include "import_progress.h"
#include "reading/cad_file.h"
#include "reading/iges_document.h"
#include "reading/iges_entity.h"
#include "reading/import_settings.h"
#include "translation_error.h"

#include <IGESData_BasicEditor.hxx>
#include <IGESData_IGESEntity.hxx>
#include <IGESData_IGESModel.hxx>
#include <Interface_Check.hxx>
#include <XCAFDoc_DocumentTool.hxx>

#include <filesystem>
#include <string>

namespace
{

// Each record is a line that names its section in column 73 and its number in the section behind it.
const std::size_t kSectionColumn = 72;

char sectionOf(const std::string& record)
{
    return record.size() > kSectionColumn ? record[kSectionColumn] : ' ';
}

std::string lastRecord(const CadFile& file)
{
    const std::size_t end = file.end().find_last_not_of(std::string("\0 \r\n\x1A", 5));
    const std::string text = file.end().substr(0, end == std::string::npos ? 0 : end + 1);
    const std::size_t lineEnd = text.find_last_of("\r\n");
    return lineEnd == std::string::npos ? text : text.substr(lineEnd + 1);
}

// What the kernel does not know of other entities is no damage.
std::string damage(const IGESData_IGESModel& entities)
{
    int unreadable = 0;
    for (int i = 1; i <= entities.NbEntities(); ++i)
    {
        unreadable += iges_entity::bringsShapes(entities.Entity(i)) && entities.IsErrorEntity(i) ? 1 : 0;
    }
    if (unreadable > 0)
    {
        return "The file is damaged: " + std::to_string(unreadable) + " of its geometric entities could not be read.";
    }
    return {};
}

// The unit of lengths, by the flag of the global section, or by its name where the flag says so.
bool namesUnit(const IGESData_GlobalSection& section)
{
    const int kByName = 3;
    const int flag = section.UnitFlag();
    return flag == kByName ? !section.UnitName().IsNull() &&
                                 IGESData_BasicEditor::UnitNameFlag(section.UnitName()->ToCString()) != 0
                           : IGESData_BasicEditor::UnitFlagValue(flag) != 0;
}

void takeMillimetres(IGESData_IGESModel& entities)
{
    const int kMillimetres = 2;
    IGESData_GlobalSection section = entities.GlobalSection();
    section.SetUnitFlag(kMillimetres);
    section.SetUnitName(new TCollection_HAsciiString("MM"));
    entities.SetGlobalSection(section);
}

// What is not as it should be in the global section.
std::string remark(const IGESData_IGESModel& entities, bool namesUnit, const ImportSettings& settings)
{
    if (!namesUnit)
    {
        const bool isTold = settings.units != vrx::EInsUnits::Unknown;
        return isTold ? "" : "The file names no unit of lengths that is known: its numbers are taken for millimetres.";
    }
    const Handle(Interface_Check) check = entities.GlobalCheck();
    return check->HasFailed() ? std::string("The file's global section has errors, the first one: ") + check->CFail(1)
                              : "";
}

TranslationError noGeometry(const CadFile& file)
{
    return TranslationError(file.path() + " holds no geometry.");
}

} // namespace

bool beginsAsIges(const CadFile& file)
{
    const std::string record = file.begin().substr(0, file.begin().find_first_of("\r\n"));
    return sectionOf(record) == 'S' && record.find_first_of("123456789", kSectionColumn) != std::string::npos;
}

void readIges(const CadFile& file, const ImportSettings& settings, ImportProgress& progress, CadModel& model)
{
    if (!beginsAsIges(file))
    {
        throw TranslationError(file.path() + " is not an IGES file in its ASCII form: its first line is no record of " +
                               "the start section.");
    }
    if (sectionOf(lastRecord(file)) != 'T')
    {
        throw TranslationError(file.path() + " is cut off: its end, the record of the terminate section, is missing.");
    }
    progress.beginStage("Reading the file", 20);
    model.iges = std::make_unique<IGESControl_Reader>();
    IGESControl_Reader& reader = *model.iges;
    if (reader.ReadFile(file.path().c_str()) != IFSelect_RetDone)
    {
        throw TranslationError(file.path() + " is damaged: it cannot be parsed as an IGES file.");
    }
    const Handle(IGESData_IGESModel) entities = reader.IGESModel();
    if (entities->NbEntities() == 0) // the kernel makes no graph of nothing
    {
        throw noGeometry(file);
    }
    model.damage = damage(*entities);
    model.namesUnit = namesUnit(entities->GlobalSection());
    model.remark = remark(*entities, model.namesUnit, settings);
    if (!model.namesUnit)
    {
        takeMillimetres(*entities);
    }

    progress.beginStage("Translating the shapes", 55);
    XCAFDoc_DocumentTool::SetLengthUnit(model.document, 0.001);
    entities->ChangeGlobalSection().SetCascadeUnit(1); // in millimetres
    IgesDocument document(reader, settings, model.document, progress);
    if (!document.build(std::filesystem::path(file.path()).stem().string()))
    {
        throw noGeometry(file);
    }
    if (document.failures() > 0 && model.damage.empty())
    {
        model.damage = std::to_string(document.failures()) + " of the file's entities could not be translated.";
    }
}
