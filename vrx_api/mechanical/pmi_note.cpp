#include "vrx_api/mechanical/pmi_note.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

using EFontType = ExcPMINote::Text::EFontType;

static constexpr EnumName<EFontType> kFontTypes[] = {
    {EFontType::Simplex, WIDE("simplex")},      {EFontType::Din, WIDE("din")},
    {EFontType::Military, WIDE("military")},    {EFontType::ISO, WIDE("ISO")},
    {EFontType::LightLine, WIDE("light_line")}, {EFontType::Century, WIDE("century")},
    {EFontType::IGES_1001, WIDE("IGES_1001")},  {EFontType::IGES_1002, WIDE("IGES_1002")},
    {EFontType::IGES_1003, WIDE("IGES_1003")},
};
static constexpr const auto& enumTable(EFontType)
{
    return kFontTypes;
}

namespace
{

// A reader takes either boolean for true.
template <class Flag>
struct TrueWhenThere
{
    Flag& flag;
};
template <class Flag>
TrueWhenThere(Flag&) -> TrueWhenThere<Flag>;

template <class Value>
bool decode(const Value& value, const TrueWhenThere<bool>& field)
{
    bool there = false;
    const bool taken = vrx::decode(value, there);
    field.flag = taken || field.flag;
    return taken;
}

template <class Out>
void encode(Out& out, const TrueWhenThere<const bool>& field)
{
    out.scalar(field.flag);
}

void outline(Shape& shape, const TrueWhenThere<const bool>& field)
{
    outline(shape, field.flag);
}

} // namespace

template <class Self, class Fields>
void ExcPMINote::Text::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("label"), self.m_label);
    fields.always(WIDE("font_name"), self.m_fontName);
    fields.always(WIDE("font_type"), self.m_fontType);
    fields.always(WIDE("fixed_pitch"), self.m_fixedPitch);
    fields.always(WIDE("height"), self.m_height);
    fields.always(WIDE("bold"), TrueWhenThere{self.m_bold});
    fields.always(WIDE("italic"), self.m_italic);
    fields.always(WIDE("underline"), self.m_underline);
    fields.always(WIDE("strike_through"), self.m_strikeThrough);
    fields.always(WIDE("overline"), self.m_overline);
    fields.always(WIDE("ratio"), self.m_ratio);
    fields.always(WIDE("slant"), self.m_slant);
    fields.always(WIDE("color"), self.m_color);
}
template struct Described<ExcPMINote::Text>;

void ExcPMINote::Text::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMINote::Text");
}

void ExcPMINote::Text::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcPMINote::Text::rgba(double& red, double& green, double& blue, double& alpha) const
{
    red = m_color[0];
    green = m_color[1];
    blue = m_color[2];
    alpha = m_color[3];
}

template <class Self, class Fields>
void ExcPMINote::describe(Self& self, Fields& fields)
{
    describeBase<ExcPMIAnnotation>(self, fields);
    fields.always(WIDE("texts"), self.m_texts);
    fields.always(WIDE("is_flag_note"), self.m_flagNote);
    fields.always(WIDE("is_noa"), self.m_noa);
}
template struct Described<ExcPMINote>;

void ExcPMINote::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMINote");
}

void ExcPMINote::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

EPMIAnnotationType ExcPMINote::type() const
{
    return EPMIAnnotationType::Note;
}

static constexpr const char* kNullText = "ExcPMINote: attempt to add null text.";

void ExcPMINote::addText(const std::shared_ptr<Text>& text)
{
    add(m_texts, text, kNullText);
}

void ExcPMINote::addTexts(const std::vector<std::shared_ptr<Text>>& texts)
{
    addAll(m_texts, texts, kNullText);
}

void ExcPMINote::setsTexts(const std::vector<std::shared_ptr<Text>>& texts)
{
    setAll(m_texts, texts, kNullText);
}

} // namespace vrx
