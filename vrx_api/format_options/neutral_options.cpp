#include "vrx_api/format_options/neutral_options.h"

#include "vrx_api/format_options/option_fields.h"

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

static constexpr EnumName<EImportEdgesModeType> kEdgesModes[] = {
    {EImportEdgesModeType::Unknown, WIDE("unknown")},
    {EImportEdgesModeType::All, WIDE("all")},
    {EImportEdgesModeType::None, WIDE("none")},
};
static constexpr const auto& enumTable(EImportEdgesModeType)
{
    return kEdgesModes;
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

namespace imp
{

template <class Self, class Fields>
void OptionsIGES::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("import_entities"), self.m_importEntities);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
}

void OptionsIGES::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsIGES");
}

void OptionsIGES::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType OptionsIGES::formatType() const
{
    return EFormatType::IGES;
}

template <class Self, class Fields>
void OptionsSTEP::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("layer_name_mode"), self.m_layerNameProcessingMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
}

void OptionsSTEP::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsSTEP");
}

void OptionsSTEP::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType OptionsSTEP::formatType() const
{
    return EFormatType::STEP;
}

template <class Self, class Fields>
void OptionsJT::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("edges_mode"), self.m_importEdgesMode);
    fields.always(WIDE("user_prop_mode"), self.m_userPropertiesMode);
}

void OptionsJT::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsJT");
}

void OptionsJT::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType OptionsJT::formatType() const
{
    return EFormatType::JT;
}

template <class Self, class Fields>
void OptionsParasolid::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
}

void OptionsParasolid::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsParasolid");
}

void OptionsParasolid::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType OptionsParasolid::formatType() const
{
    return EFormatType::Parasolid;
}

} // namespace imp

template struct Described<imp::OptionsIGES>;
template struct Described<imp::OptionsSTEP>;
template struct Described<imp::OptionsJT>;
template struct Described<imp::OptionsParasolid>;

} // namespace vrx
