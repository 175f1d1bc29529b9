#include "vrx_api/format_options/solidworks_options.h"

#include "vrx_api/format_options/option_fields.h"
#include "vrx_api/format_options/shared_mode_tables.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

static constexpr EnumName<EImportProductStructureRepresentationMode> kProductStructureModes[] = {
    {EImportProductStructureRepresentationMode::Unknown, WIDE("unknown")},
    {EImportProductStructureRepresentationMode::AsmRep, WIDE("asm_rep")},
    {EImportProductStructureRepresentationMode::SavedVisuRep, WIDE("saved_visu_rep")},
    {EImportProductStructureRepresentationMode::AsmRepAndSavedVisuRep, WIDE("asm_rep_and_saved_visu_rep")},
};
static constexpr const auto& enumTable(EImportProductStructureRepresentationMode)
{
    return kProductStructureModes;
}

template <class Self, class Fields>
void imp::OptionsSolidWorks::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("import_visualization"), self.m_importVisualization);
    fields.always(WIDE("import_root_visualization"), self.m_importRootVisualization);
    fields.always(WIDE("import_preview_graphics"), self.m_importPreviewGraphics);
    fields.always(WIDE("search_paths"), self.m_assemblySearchPaths);
    fields.always(WIDE("assembly_path_pref"), self.m_assemblyPathPreference);
    fields.always(WIDE("configuration_name"), self.m_importConfiguration);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("suppressed_entities_mode"), self.m_suppressedEntitiesMode);
    fields.always(WIDE("product_structure_mode"), self.m_productStructureMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
    fields.filled(WIDE("pname_modes"), valid(self.m_persistentNameModes));
}
template struct Described<imp::OptionsSolidWorks>;

void imp::OptionsSolidWorks::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsSolidWorks");
}

void imp::OptionsSolidWorks::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsSolidWorks::formatType() const
{
    return EFormatType::SolidWorks;
}

template <class Self, class Fields>
void imp::OptionsSolidWorksDrawing::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
}
template struct Described<imp::OptionsSolidWorksDrawing>;

void imp::OptionsSolidWorksDrawing::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsSolidWorksDrawing");
}

void imp::OptionsSolidWorksDrawing::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsSolidWorksDrawing::formatType() const
{
    return EFormatType::SolidWorksDrawing;
}

} // namespace vrx
