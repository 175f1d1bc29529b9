#include "vrx_api/format_options/neutral_options.h"

#include "vrx_api/format_options/option_fields.h"
#include "vrx_api/format_options/shared_mode_tables.h"

namespace vrx
{

static constexpr EnumName<ELayerNameProcessingModeType> kLayerNameModes[] = {
    {ELayerNameProcessingModeType::Unknown, WIDE("unknown")},
    {ELayerNameProcessingModeType::AsmRep, WIDE("asm_rep")},
    {ELayerNameProcessingModeType::SavedVisuRep, WIDE("saved_visu_rep")},
};
static constexpr const auto& enumTable(ELayerNameProcessingModeType)
{
    return kLayerNameModes;
}

static constexpr const auto& enumTable(EImportEdgesModeType)
{
    return kAllOrNone<EImportEdgesModeType>;
}

static constexpr EnumName<EUserPropertiesModeType> kUserPropertiesModes[] = {
    {EUserPropertiesModeType::Unknown, WIDE("unknown")},
    {EUserPropertiesModeType::TranslateAll, WIDE("translate_all")},
    {EUserPropertiesModeType::TranslateNone, WIDE("translate_none")},
};
static constexpr const auto& enumTable(EUserPropertiesModeType)
{
    return kUserPropertiesModes;
}

template <class Self, class Fields>
void imp::OptionsIGES::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("import_entities"), self.m_importEntities);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
}
template struct Described<imp::OptionsIGES>;

void imp::OptionsIGES::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsIGES");
}

void imp::OptionsIGES::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsIGES::formatType() const
{
    return EFormatType::IGES;
}

template <class Self, class Fields>
void imp::OptionsSTEP::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("layer_name_mode"), self.m_layerNameProcessingMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
}
template struct Described<imp::OptionsSTEP>;

void imp::OptionsSTEP::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsSTEP");
}

void imp::OptionsSTEP::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsSTEP::formatType() const
{
    return EFormatType::STEP;
}

template <class Self, class Fields>
void imp::OptionsJT::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("edges_mode"), self.m_importEdgesMode);
    fields.always(WIDE("user_prop_mode"), self.m_userPropertiesMode);
}
template struct Described<imp::OptionsJT>;

void imp::OptionsJT::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsJT");
}

void imp::OptionsJT::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsJT::formatType() const
{
    return EFormatType::JT;
}

template <class Self, class Fields>
void imp::OptionsParasolid::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
}
template struct Described<imp::OptionsParasolid>;

void imp::OptionsParasolid::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsParasolid");
}

void imp::OptionsParasolid::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsParasolid::formatType() const
{
    return EFormatType::Parasolid;
}

} // namespace vrx
