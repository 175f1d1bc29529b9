#pragma once

#include "vrx_api/mechanical/pmi_annotation.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// A text note of a drawing, of one text or more. Copies share the texts.
class VRX_API ExcPMINote : public ExcPMIAnnotation
{
public:
    /// One text of a note with its font.
    class VRX_API Text : public IJsonObject
    {
    public:
        enum class EFontType : std::int32_t
        {
            Simplex = 0,
            Din = 1,
            Military = 2,
            ISO = 3,
            LightLine = 4,
            Century = 5,
            IGES_1001 = 6,
            IGES_1002 = 7,
            IGES_1003 = 8,
        };

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

        /// The text itself.
        const wstring& label() const { return m_label; }
        void setLabel(const wstring& label) { m_label = label; }

        const wstring& fontName() const { return m_fontName; }
        void setFontName(const wstring& name) { m_fontName = name; }

        EFontType fontType() const { return m_fontType; }
        void setFontType(EFontType type) { m_fontType = type; }

        bool fixedPitch() const { return m_fixedPitch; }
        void setFixedPitch(bool fixed) { m_fixedPitch = fixed; }

        double height() const { return m_height; }
        void setHeight(double height) { m_height = height; }

        /// Arrives as true whatever was sent.
        bool bold() const { return m_bold; }
        void setBold(bool bold) { m_bold = bold; }

        bool italic() const { return m_italic; }
        void setItalic(bool italic) { m_italic = italic; }

        bool underline() const { return m_underline; }
        void setUnderline(bool underline) { m_underline = underline; }

        bool strikeThrough() const { return m_strikeThrough; }
        void setStrikeThrough(bool strikeThrough) { m_strikeThrough = strikeThrough; }

        bool overline() const { return m_overline; }
        void setOverline(bool overline) { m_overline = overline; }

        /// The width of a character, relative to its height.
        double ratio() const { return m_ratio; }
        void setRatio(double ratio) { m_ratio = ratio; }

        double slant() const { return m_slant; }
        void setSlant(double slant) { m_slant = slant; }

        void rgba(double& red, double& green, double& blue, double& alpha) const;
        void setRgba(double red, double green, double blue, double alpha) { m_color = {red, green, blue, alpha}; }

    private:
        friend struct Described<Text>;
        template <class Self, class Fields>
        static void describe(Self& self, Fields& fields);

        wstring m_label;
        wstring m_fontName;
        EFontType m_fontType = EFontType::Simplex;
        bool m_fixedPitch = false;
        double m_height = 0.0;
        bool m_bold = false;
        bool m_italic = false;
        bool m_underline = false;
        bool m_strikeThrough = false;
        bool m_overline = false;
        double m_ratio = 0.0;
        double m_slant = 0.0;
        std::array<double, 4> m_color{1.0, 1.0, 1.0, 1.0};
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EPMIAnnotationType type() const override;

    const std::vector<std::shared_ptr<Text>>& texts() const { return m_texts; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addText(const std::shared_ptr<Text>& text);
    void addTexts(const std::vector<std::shared_ptr<Text>>& texts);
    void setsTexts(const std::vector<std::shared_ptr<Text>>& texts);

    /// A flag note refers to a note elsewhere on the drawing.
    bool isFlagNote() const { return m_flagNote; }
    void setFlagNote(bool flagNote) { m_flagNote = flagNote; }

    bool isNOA() const { return m_noa; }
    void setNOA(bool noa) { m_noa = noa; }

private:
    friend struct Described<ExcPMINote>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::shared_ptr<Text>> m_texts;
    bool m_flagNote = false;
    bool m_noa = false;
};

} // namespace vrx
