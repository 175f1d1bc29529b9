#include "pmi/mechanical_pmi.h"

#include "common/pmi_conventions.h"
#include "kernel/occt_vector.h"
#include "mechanical/mechanical_data.h"
#include "mechanical/shape_links.h"
#include "mp/narrow.h"
#include "pmi/annotation_text.h"
#include "pmi/annotation_type.h"
#include "pmi/drawn_pmi.h"
#include "pmi/feature_count.h"
#include "pmi/step_datums.h"
#include "pmi/step_dimensions.h"
#include "pmi/step_tolerances.h"
#include "pmi/text_lines.h"
#include "reading/cad_model.h"
#include "structure/product_blocks.h"
#include "structure/product_structure_builder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace
{

using Set = pmi_conventions::SentAnnotationSet;
using View = vrx::ExcPMIAnnotationView;

bool areSame(const vrx::ExcVector3d& left, const vrx::ExcVector3d& right, double tolerance)
{
    return std::abs(left[0] - right[0]) <= tolerance && std::abs(left[1] - right[1]) <= tolerance &&
           std::abs(left[2] - right[2]) <= tolerance;
}

class Builder
{
public:
    Builder(const CadModel& model, const ProductStructureBuilder& blocks, ShapeLinks& links, const DrawnPmi& drawn)
        : m_records(*model.records)
        , m_blocks(blocks)
        , m_products(model, blocks)
        , m_links(links)
        , m_drawn(drawn)
    {
        for (const DrawnAnnotation& annotation : drawn.annotations)
        {
            for (const StepRecord& record : annotation.about)
            {
                m_drawings.insert({record.id(), &annotation});
            }
        }
    }

    std::map<int, mp::wstring> build(MechanicalData& data)
    {
        addTargets();
        addDatums();
        addTolerances();
        addDimensions();
        for (const DrawnAnnotation& annotation : m_drawn.annotations)
        {
            nameOrNote(annotation);
        }
        for (const SavedView& view : m_drawn.views)
        {
            addCapture(view);
        }
        putSets(data);
        return std::move(m_drawnIds);
    }

private:
    void addTargets()
    {
        for (const StepRecord& target : step_datums::targets(m_records))
        {
            const auto annotation = step_datums::makeTarget(target, m_records, m_blocks.frame());
            place(*annotation, {target}, {target}, WIDE("datum_targets/"), &View::datumTargets,
                  [&](View& view) { view.addDatumTarget(annotation); });
        }
    }

    void addDatums()
    {
        for (const StepRecord& datum : step_datums::datums(m_records))
        {
            const auto annotation = std::make_shared<vrx::ExcPMIDatum>();
            annotation->setLabel(step_datums::labelOf(datum));
            std::vector<StepRecord> drawn = {datum};
            for (const StepRecord& feature : step_datums::features(datum))
            {
                const auto type = annotationType(feature);
                const auto target = m_ids.find(feature.id());
                if (type == vrx::ExcVisuNode::EType::DATUM_TARGET && target != m_ids.end())
                {
                    annotation->addTargetId(target->second);
                }
                else if (annotationGroup(type) == vrx::ExcVisuNode::EType::DATUMS)
                {
                    drawn.push_back(feature); // a drawing of a datum may present its feature
                }
            }
            place(*annotation, drawn, {datum}, WIDE("datum/"), &View::datums,
                  [&](View& view) { view.addDatum(annotation); });
        }
    }

    void addTolerances()
    {
        const auto datumId = [this](const StepRecord& datum) { return m_ids[datum.id()]; };
        for (const step_tolerances::Frame& frame : step_tolerances::all(m_records))
        {
            const auto annotation = step_tolerances::make(frame, datumId);
            const DrawnAnnotation* const drawing = drawingOf({frame.upper, frame.lower});
            mp::wstring note = annotation->note();
            for (const mp::wstring& line : drawing != nullptr ? textOf(*drawing).lines : std::vector<mp::wstring>())
            {
                addLine(note, line);
            }
            annotation->setNote(note);
            place(*annotation, {frame.upper, frame.lower}, step_tolerances::aspects(frame.upper), WIDE("GDTs/"),
                  &View::gdts, [&](View& view) { view.addGdt(annotation); });
        }
    }

    void addDimensions()
    {
        for (const StepRecord& dimension : step_dimensions::all(m_records))
        {
            const auto annotation = step_dimensions::make(dimension);
            const std::vector<StepRecord> aspects = step_dimensions::aspects(dimension);
            const DrawnAnnotation* const drawing = drawingOf({dimension});
            annotation->setBefore(countOf(drawing, *annotation, aspects));
            place(*annotation, {dimension}, aspects, WIDE("dimensions/"), &View::dimensions,
                  [&](View& view) { view.addDimension(annotation); });
        }
    }

    // By the words of the drawing, or else by the faces.
    mp::wstring countOf(const DrawnAnnotation* drawing, const vrx::ExcPMIDimension& dimension,
                        const std::vector<StepRecord>& aspects) const
    {
        const auto words = drawing != nullptr ? textOf(*drawing).count : std::nullopt;
        if (words)
        {
            return *words;
        }
        const bool isSize = dimension.subType() == vrx::ExcPMIDimension::ESubType::Diameter ||
                            dimension.subType() == vrx::ExcPMIDimension::ESubType::Radius;
        const std::size_t count = isSize ? featureCount(m_links.faces(aspects)) : 0;
        return count > 1 ? mp::toWide(std::to_string(count) + "X") : mp::wstring();
    }

    // What is drawn and presents none of these is a note.
    void nameOrNote(const DrawnAnnotation& drawing)
    {
        for (const StepRecord& record : drawing.about)
        {
            const auto known = m_ids.find(record.id());
            if (known != m_ids.end())
            {
                m_drawnIds[drawing.record.id()] = known->second;
                return;
            }
        }
        const auto note = std::make_shared<vrx::ExcPMINote>();
        std::vector<mp::wstring> lines = textOf(drawing).lines;
        if (lines.empty())
        {
            lines.push_back(drawing.name);
        }
        for (const mp::wstring& line : lines)
        {
            const auto text = std::make_shared<vrx::ExcPMINote::Text>();
            text->setLabel(line);
            note->addText(text);
        }
        std::vector<StepRecord> aspects;
        for (const StepRecord& record : drawing.about)
        {
            aspects.push_back(record.is("PROPERTY_DEFINITION") ? record.next(2) : record);
        }
        m_drawnIds[drawing.record.id()] = addTo(*note, drawing.block, &drawing, aspects, WIDE("notes/"), &View::notes,
                                                [&](View& view) { view.addNote(note); });
    }

    void addCapture(const SavedView& view)
    {
        const auto capture = std::make_shared<vrx::ExcPMICapture>();
        capture->setName(view.name);
        const double scale = m_blocks.frame().scale();
        vrx::ExcCamera camera = cameraOf(view);
        camera.setEye(scaled(camera.eye(), scale));
        camera.setTarget(scaled(camera.target(), scale));
        capture->setCamera(std::make_shared<vrx::ExcCamera>(camera));
        vrx::ExcClippingPlane plane = clippingPlaneOf(view);
        if (plane.hasCoefficients())
        {
            const auto d = vrx::ExcClippingPlane::CoefficientD;
            plane.setCoefficient(d, plane.coefficients()[static_cast<std::size_t>(d)] * scale);
            capture->setClippingPlane(std::make_shared<vrx::ExcClippingPlane>(plane));
        }
        std::set<mp::wstring> shown; // what is drawn twice too
        for (const int record : view.annotations)
        {
            const auto id = m_drawnIds.find(record);
            if (id != m_drawnIds.end() && shown.insert(id->second).second)
            {
                capture->addAnnotationId(id->second);
            }
        }
        Set& set = setOf(view.block);
        capture->setId(mp::toWide("view" + std::to_string(set.captures().size() + 1)));
        set.addCapture(capture);
    }

    static vrx::ExcVector3d scaled(const vrx::ExcVector3d& point, double scale)
    {
        return {point[0] * scale, point[1] * scale, point[2] * scale};
    }

    const DrawnAnnotation* drawingOf(const std::vector<StepRecord>& records) const
    {
        for (const StepRecord& record : records)
        {
            const auto found = m_drawings.find(record.id());
            if (record && found != m_drawings.end())
            {
                return found->second;
            }
        }
        return nullptr;
    }

    static AnnotationText textOf(const DrawnAnnotation& drawing)
    {
        return annotationText(drawing.record, drawing.about);
    }

    // Adds an annotation that records of the file state, and names it by its place.
    template <class List, class Add>
    void place(vrx::ExcPMIAnnotation& annotation, const std::vector<StepRecord>& records,
               const std::vector<StepRecord>& aspects, const mp::wchar* listName, List list, const Add& add)
    {
        const DrawnAnnotation* const drawing = drawingOf(records);
        std::set<std::uint64_t> blocks;
        for (const StepRecord& aspect : aspects)
        {
            blocks.insert(m_products.of(aspect));
        }
        blocks.erase(0);
        std::uint64_t block = blocks.size() == 1 ? *blocks.begin() : 0;
        block = blocks.empty() && drawing != nullptr ? drawing->block : block;
        block = block == 0 ? m_products.top() : block;
        const mp::wstring id = addTo(annotation, block, drawing, aspects, listName, list, add);
        for (const StepRecord& record : records)
        {
            if (record)
            {
                m_ids.insert({record.id(), id});
            }
        }
    }

    template <class List, class Add>
    mp::wstring addTo(vrx::ExcPMIAnnotation& annotation, std::uint64_t block, const DrawnAnnotation* drawing,
                      const std::vector<StepRecord>& aspects, const mp::wchar* listName, List list, const Add& add)
    {
        Set& set = setOf(block);
        const std::size_t number = viewOf(set, drawing);
        View& view = *set.views()[number];
        if (drawing != nullptr && drawing->plane)
        {
            setPosition(annotation, *drawing);
        }
        annotation.setLinkedElements(m_links.of(aspects, block));
        mp::wstring id = mp::toWide(std::to_string(set.blockId()) + '/' + std::to_string(number) + '/') + listName +
                         mp::toWide(std::to_string((view.*list)().size()));
        annotation.setId(id);
        add(view);
        return id;
    }

    // What belongs to the assembly at the top belongs to the product as a whole.
    Set& setOf(std::uint64_t block)
    {
        const bool isWhole = block == 0 || (block == m_products.top() && m_blocks.shapeOf(block).IsNull());
        std::shared_ptr<Set>& set = m_sets[isWhole ? 0 : block];
        if (!set)
        {
            set = std::make_shared<Set>();
            set->setBlockId(isWhole ? 0 : block);
            set->setStandart(standard());
        }
        return *set;
    }

    mp::wstring standard() const
    {
        for (const StepRecord& document : m_records.all("DOCUMENT"))
        {
            if (mp::toNarrow(document.text(1)).find("Tolerancing Standard") != std::string::npos)
            {
                return document.text(0);
            }
        }
        return {};
    }

    // The view with the plane of a drawing, or the one with none.
    std::size_t viewOf(Set& set, const DrawnAnnotation* drawing)
    {
        const auto made = std::make_shared<View>();
        if (drawing != nullptr && drawing->plane)
        {
            made->setOrigin(occt_vector::of(drawing->plane->Location().XYZ() * m_blocks.frame().scale()));
            made->setVectorU(occt_vector::of(drawing->plane->XDirection().XYZ()));
            made->setVectorV(occt_vector::of(drawing->plane->YDirection().XYZ()));
        }
        const auto found = std::find_if(set.views().begin(), set.views().end(), [&](const auto& view) {
            return areSame(view->origin(), made->origin(), 1e-6) && areSame(view->vectorU(), made->vectorU(), 1e-9) &&
                   areSame(view->vectorV(), made->vectorV(), 1e-9);
        });
        const auto number = static_cast<std::size_t>(found - set.views().begin());
        if (found == set.views().end())
        {
            set.addView(made);
        }
        return number;
    }

    // The lower left corner of the drawing in its plane.
    void setPosition(vrx::ExcPMIAnnotation& annotation, const DrawnAnnotation& drawing) const
    {
        double low[3] = {std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), 0};
        const double scale = m_blocks.frame().scale();
        const auto take = [&](const gp_Pnt& point) {
            const gp_XYZ way = point.XYZ() - drawing.plane->Location().XYZ();
            low[0] = std::min(low[0], way.Dot(drawing.plane->XDirection().XYZ()) * scale);
            low[1] = std::min(low[1], way.Dot(drawing.plane->YDirection().XYZ()) * scale);
            low[2] = way.Dot(drawing.plane->Direction().XYZ()) * scale;
        };
        for (const std::vector<gp_Pnt>& line : drawing.drawing.lines)
        {
            std::for_each(line.begin(), line.end(), take);
        }
        std::for_each(drawing.drawing.vertices.begin(), drawing.drawing.vertices.end(), take);
        if (low[0] < std::numeric_limits<double>::max())
        {
            annotation.setPosition({low[0], low[1]});
            annotation.setZDepth(low[2]);
        }
    }

    void putSets(MechanicalData& data)
    {
        for (const auto& [block, set] : m_sets)
        {
            const auto pmi = std::make_shared<vrx::ExcPMIData>();
            pmi->addAnnotationSet(set);
            data.setPmi(block, pmi);
        }
    }

    const StepRecords& m_records;
    const ProductStructureBuilder& m_blocks;
    ProductBlocks m_products;
    ShapeLinks& m_links;
    const DrawnPmi& m_drawn;
    std::map<int, const DrawnAnnotation*> m_drawings; // the first of what they present, by its id
    std::map<int, mp::wstring> m_ids;                 // of annotations, by the records that state them
    std::map<std::uint64_t, std::shared_ptr<Set>> m_sets;
    std::map<int, mp::wstring> m_drawnIds; // of what annotations present, by their records
};

} // namespace

std::map<int, mp::wstring> addPmi(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks,
                                  ShapeLinks& links, const DrawnPmi& drawn)
{
    return Builder(model, blocks, links, drawn).build(data);
}
