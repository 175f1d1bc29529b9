#include "pmi/pmi_json.h"

#include "camera_json.h"
#include "common/pmi_conventions.h"
#include "page_json.h"
#include "pmi/control_frame.h"
#include "pmi/pmi_notation.h"
#include "wire_name.h"

#include <array>
#include <vector>

namespace
{

using View = vrx::ExcPMIAnnotationView;
using EType = vrx::ExcSubentId::EType;
using EModifier = vrx::ExcPMIGDT::EToleranceModifier;

bool isPlane(const View& view)
{
    const vrx::ExcVector3d& u = view.vectorU();
    return u[0] != 0 || u[1] != 0 || u[2] != 0;
}

mp::wstring modifierName(EModifier modifier)
{
    vrx::ExcPMIGDT::ModifiedDatum datum;
    datum.setModifier(modifier);
    return wireName(datum, WIDE("tolerance_modifier"));
}

mp::wstring zoneName(vrx::ExcPMIGDT::EToleranceValueType zone)
{
    vrx::ExcPMIGDT gdt;
    gdt.setToleranceValueType(zone);
    return wireName(gdt, WIDE("tolerance_value_type"));
}

std::vector<mp::wstring> modifierNames(const std::vector<EModifier>& modifiers)
{
    std::vector<mp::wstring> names;
    for (const EModifier modifier : modifiers)
    {
        if (modifier != EModifier::NoModifier)
        {
            names.push_back(modifierName(modifier));
        }
    }
    return names;
}

std::vector<EModifier> modifiersOf(const vrx::ExcPMIGDT::DatumRef& reference)
{
    std::vector<EModifier> modifiers;
    for (const vrx::ExcPMIGDT::ModifiedDatum& datum : reference.modifiedDatums())
    {
        modifiers.push_back(datum.modifier());
    }
    return modifiers;
}

class PmiWriter
{
public:
    PmiWriter(const ReceivedPmi& pmi, const ReceivedBodies& bodies)
        : m_pmi(pmi)
        , m_bodies(bodies)
    {
    }

    std::string text()
    {
        m_json.StartObject();
        array("dimensions", &View::dimensions);
        array("tolerances", &View::gdts);
        array("datums", &View::datums);
        array("datum_targets", &View::datumTargets);
        array("notes", &View::notes);
        captures();
        m_json.EndObject();
        return m_json.text();
    }

private:
    // Where an annotation stands.
    struct Place
    {
        const vrx::ExcPMIAnnotationSet& set;
        const View& view;
    };

    template <class Annotation>
    void array(const char* key, const std::vector<std::shared_ptr<Annotation>>& (View::*list)() const)
    {
        m_json.Key(key);
        m_json.StartArray();
        for (const std::shared_ptr<vrx::ExcPMIAnnotationSet>& set : m_pmi.sets())
        {
            for (const std::shared_ptr<View>& view : set->views())
            {
                for (const std::shared_ptr<Annotation>& annotation : ((*view).*list)())
                {
                    write(*annotation, {*set, *view});
                }
            }
        }
        m_json.EndArray();
    }

    void write(const vrx::ExcPMIDimension& dimension, const Place& place)
    {
        begin(dimension, place, dimension.id(), pmi_notation::text(dimension));
        m_json.field("type", wireName(dimension, WIDE("sub_type")));
        m_json.field("main_type", wireName(dimension, WIDE("main_type")));
        numberOrNull("value", pmi_notation::hasValue(dimension), dimension.value());
        m_json.field("unit", wireName(dimension, WIDE("unit")));
        const bool deviates = pmi_notation::hasDeviations(dimension);
        numberOrNull("lower", deviates, dimension.numericalToleranceLower());
        numberOrNull("upper", deviates, dimension.numericalToleranceUpper());
        m_json.field("fit", pmi_notation::fit(dimension));
        m_json.number("precision", dimension.valuePrecision());
        m_json.field("before", dimension.before());
        m_json.field("after", dimension.after());
        m_json.field("prefix", dimension.prefix());
        m_json.field("suffix", dimension.suffix());
        m_json.EndObject();
    }

    void write(const vrx::ExcPMIGDT& gdt, const Place& place)
    {
        const std::vector<mp::wstring> texts = pmi_notation::lines(gdt, m_pmi);
        const std::vector<ControlFrameLine> lines = controlFrameLines(gdt);
        for (std::size_t i = 0; i < lines.size(); ++i)
        {
            const bool isFirst = i == 0;
            begin(gdt, place, isFirst ? gdt.id() : gdt.id() + WIDE("/composite"), texts[i]);
            if (!isFirst)
            {
                m_json.field("composite_of", gdt.id());
            }
            m_json.field("type", wireName(gdt, WIDE("tolerance_type")));
            numberOrNull("value", pmi_notation::hasValue(gdt), lines[i].value);
            m_json.field("unit", gdt.name());
            m_json.field("zone", zoneName(lines[i].zone));
            m_json.numbers("rate_unit", lines[i].rateUnit);
            m_json.texts("modifiers", modifierNames(lines[i].modifiers));
            datumReferences(lines[i].datums);
            m_json.number("shift", isFirst ? gdt.shiftValue() : 0);
            m_json.number("projected", isFirst ? gdt.projectionToleranceZoneLength() : 0);
            m_json.number("refine", isFirst ? gdt.refineTolerance() : 0);
            m_json.flag("all_around", gdt.allAround() == pmi_conventions::kAllAround);
            m_json.flag("all_over", gdt.allAround() == pmi_conventions::kAllOver);
            m_json.field("note", isFirst ? gdt.note() : mp::wstring());
            m_json.EndObject();
        }
    }

    void datumReferences(const std::vector<vrx::ExcPMIGDT::DatumRef>& references)
    {
        m_json.Key("datums");
        m_json.StartArray();
        for (const vrx::ExcPMIGDT::DatumRef& reference : references)
        {
            m_json.StartObject();
            m_json.field("label", pmi_notation::label(reference, m_pmi));
            m_json.texts("modifiers", modifierNames(modifiersOf(reference)));
            m_json.EndObject();
        }
        m_json.EndArray();
    }

    void write(const vrx::ExcPMIDatum& datum, const Place& place)
    {
        begin(datum, place, datum.id(), pmi_notation::text(datum, m_pmi));
        m_json.field("label", datum.label());
        m_json.texts("targets", datum.targetIds());
        m_json.EndObject();
    }

    void write(const vrx::ExcPMIDatumTarget& target, const Place& place)
    {
        begin(target, place, target.id(), pmi_notation::text(target));
        m_json.field("label", target.label());
        m_json.field("type", wireName(target, WIDE("target_type")));
        m_json.Key("zone");
        m_json.StartArray();
        for (const vrx::ExcVector3d& point : {target.zonePoint1(), target.zonePoint2()})
        {
            m_json.vector(point);
        }
        m_json.EndArray();
        m_json.flag("has_diameter", target.hasDiameter());
        m_json.field("upper_text", target.upperText());
        m_json.EndObject();
    }

    void write(const vrx::ExcPMINote& note, const Place& place)
    {
        begin(note, place, note.id(), pmi_notation::text(note));
        std::vector<mp::wstring> lines;
        for (const std::shared_ptr<vrx::ExcPMINote::Text>& text : note.texts())
        {
            lines.push_back(text->label());
        }
        m_json.texts("lines", lines);
        m_json.flag("flag", note.isFlagNote());
        m_json.EndObject();
    }

    // What all annotations have.
    void begin(const vrx::ExcPMIAnnotation& annotation, const Place& place, const mp::wstring& id,
               const mp::wstring& text)
    {
        m_json.StartObject();
        m_json.field("id", id);
        m_json.Key("block_id");
        m_json.Uint64(place.set.blockId());
        m_json.field("text", text);
        const std::vector<BodyLink> links = m_bodies.links(annotation.linkedElements());
        indices("faces", links, EType::Face);
        indices("edges", links, EType::Edge);
        m_json.Key("links");
        m_json.StartArray();
        for (const BodyLink& link : links)
        {
            write(link);
        }
        m_json.EndArray();
        m_json.texts("views", m_pmi.shownIn(annotation.id()));
        plane(place.view);
        m_json.numbers("position", std::array<double, 2>{annotation.position()[0], annotation.position()[1]});
    }

    void indices(const char* key, const std::vector<BodyLink>& links, EType type)
    {
        m_json.Key(key);
        m_json.StartArray();
        for (const BodyLink& link : links)
        {
            if (link.resolved && link.type == type)
            {
                m_json.Uint64(link.index);
            }
        }
        m_json.EndArray();
    }

    void write(const BodyLink& link)
    {
        m_json.StartObject();
        if (link.resolved)
        {
            m_json.field("kind", kindOf(link.type));
            m_json.Key("block_id");
            m_json.Uint64(link.block);
            m_json.Key("body");
            m_json.Uint64(link.body);
            m_json.Key("index");
            m_json.Uint64(link.index);
        }
        else
        {
            m_json.flag("resolved", false);
        }
        m_json.field("mechanical_id", link.mechanicalId);
        m_json.EndObject();
    }

    static const char* kindOf(EType type)
    {
        switch (type)
        {
        case EType::Face:
            return "face";
        case EType::Edge:
            return "edge";
        case EType::Vertex:
            return "vertex";
        default:
            return "body";
        }
    }

    void plane(const View& view)
    {
        if (!isPlane(view))
        {
            m_json.null("plane");
            return;
        }
        m_json.Key("plane");
        m_json.StartObject();
        m_json.vector("origin", view.origin());
        m_json.vector("u", view.vectorU());
        m_json.vector("v", view.vectorV());
        m_json.EndObject();
    }

    void captures()
    {
        m_json.Key("views");
        m_json.StartArray();
        for (const std::shared_ptr<vrx::ExcPMIAnnotationSet>& set : m_pmi.sets())
        {
            for (const std::shared_ptr<vrx::ExcPMICapture>& one : set->captures())
            {
                capture(*one, *set);
            }
        }
        m_json.EndArray();
    }

    void capture(const vrx::ExcPMICapture& capture, const vrx::ExcPMIAnnotationSet& set)
    {
        m_json.StartObject();
        m_json.field("id", capture.id());
        m_json.field("name", capture.name());
        m_json.Key("block_id");
        m_json.Uint64(set.blockId());
        m_json.texts("annotations", capture.annotationIds());
        if (capture.camera())
        {
            cameraJson(m_json, *capture.camera());
        }
        else
        {
            m_json.null("camera");
        }
        if (capture.clippingPlane() && capture.clippingPlane()->hasCoefficients())
        {
            m_json.numbers("clipping", capture.clippingPlane()->coefficients());
        }
        else
        {
            m_json.null("clipping");
        }
        m_json.EndObject();
    }

    void numberOrNull(const char* key, bool isNumber, double value)
    {
        isNumber ? m_json.number(key, value) : m_json.null(key);
    }

    const ReceivedPmi& m_pmi;
    const ReceivedBodies& m_bodies;
    PageJson m_json;
};

} // namespace

std::string pmiJson(const ReceivedPmi& pmi, const ReceivedBodies& bodies)
{
    return PmiWriter(pmi, bodies).text();
}
