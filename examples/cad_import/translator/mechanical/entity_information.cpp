#include "mechanical/entity_information.h"

#include "kernel/occt_text.h"
#include "mechanical/line_style.h"
#include "mechanical/mechanical_data.h"
#include "reading/cad_model.h"
#include "structure/model_frame.h"

#include <StepData_StepModel.hxx>
#include <StepShape_EdgeCurve.hxx>
#include <StepShape_FaceSurface.hxx>
#include <StepVisual_PresentationStyleAssignment.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_StyledItem.hxx>

#include <map>
#include <memory>
#include <optional>
#include <tuple>
#include <unordered_set>

namespace
{

using Information = vrx::ExcTopologicalEntityInformation;

bool isFaceOrEdge(const Handle(Standard_Transient) & entity)
{
    return !entity.IsNull() &&
           (entity->IsKind(STANDARD_TYPE(StepShape_FaceSurface)) || entity->IsKind(STANDARD_TYPE(StepShape_EdgeCurve)));
}

class Builder
{
public:
    Builder(MechanicalData& data, const CadModel& model, const ModelFrame& frame, ShapeLinks& links, bool showHidden)
        : m_data(data)
        , m_records(*model.records)
        , m_entities(model.step->ChangeReader().StepModel())
        , m_links(links)
        , m_styles(*model.records, frame.scale())
    {
        for (const StepRecord& record : showHidden ? std::vector<StepRecord>() : m_records.all("INVISIBILITY"))
        {
            for (const StepParameter& item : record[0].list)
            {
                m_invisible.insert(item.reference);
            }
        }
    }

    // Once through the file, since it has most of such entities.
    void build()
    {
        for (int i = 1; i <= m_entities->NbEntities(); ++i)
        {
            const Handle(Standard_Transient) entity = m_entities->Value(i);
            if (isFaceOrEdge(entity))
            {
                addName(Handle(StepRepr_RepresentationItem)::DownCast(entity));
            }
            else if (const auto styled = Handle(StepVisual_StyledItem)::DownCast(entity);
                     !styled.IsNull() && isFaceOrEdge(styled->Item()))
            {
                addStyle(styled);
            }
        }
    }

    void hide(const std::vector<ShapeLinks::Link>& links)
    {
        for (const ShapeLinks::Link& link : links)
        {
            of(link).setHidden(true);
        }
    }

private:
    void addName(const Handle(StepRepr_RepresentationItem) & item)
    {
        const mp::wstring name = occt_text::wide(item->Name());
        if (name.empty() || name == WIDE("NONE"))
        {
            return;
        }
        for (const ShapeLinks::Link& link : linksOf(item))
        {
            of(link).addPersistentName(name);
        }
    }

    void addStyle(const Handle(StepVisual_StyledItem) & styled)
    {
        const bool isHidden = m_invisible.count(m_entities->IdentLabel(styled)) > 0;
        const std::optional<LineStyle> style = styleOf(styled);
        if (!style && !isHidden)
        {
            return;
        }
        for (const ShapeLinks::Link& link : linksOf(styled->Item()))
        {
            Information& information = of(link);
            information.setHidden(isHidden || information.isHidden());
            if (style)
            {
                information.setLineType(style->type);
                information.setLineThickness(style->thickness);
            }
        }
    }

    // A style in a context holds for some of the instances only.
    std::optional<LineStyle> styleOf(const Handle(StepVisual_StyledItem) & styled)
    {
        for (int i = 1; !styled->Styles().IsNull() && i <= styled->NbStyles(); ++i)
        {
            const Handle(StepVisual_PresentationStyleAssignment) assignment = styled->StylesValue(i);
            if (assignment.IsNull() || assignment->IsKind(STANDARD_TYPE(StepVisual_PresentationStyleByContext)))
            {
                continue;
            }
            const std::optional<LineStyle> style =
                m_styles.of(m_records.find(m_entities->IdentLabel(assignment)), m_entities->IdentLabel(styled));
            if (style)
            {
                return style;
            }
        }
        return std::nullopt;
    }

    std::vector<ShapeLinks::Link> linksOf(const Handle(StepRepr_RepresentationItem) & item)
    {
        const TopoDS_Shape shape = m_links.shapeOf(item);
        return shape.IsNull() ? std::vector<ShapeLinks::Link>() : m_links.everywhere(shape);
    }

    Information& of(const ShapeLinks::Link& link)
    {
        std::shared_ptr<Information>& information = m_all[{link.block, link.shape, link.place}];
        if (!information)
        {
            information = std::make_shared<Information>();
            information->setEntity(link.entity);
            m_data.entities(link.block).addData(information);
        }
        return *information;
    }

    MechanicalData& m_data;
    const StepRecords& m_records;
    Handle(StepData_StepModel) m_entities;
    ShapeLinks& m_links;
    LineStyles m_styles;
    std::unordered_set<int> m_invisible;
    std::map<std::tuple<std::uint64_t, const TopoDS_TShape*, std::size_t>, std::shared_ptr<Information>> m_all;
};

} // namespace

void addEntityInformation(MechanicalData& data, const CadModel& model, const ModelFrame& frame, ShapeLinks& links,
                          const std::vector<ShapeLinks::Link>& hidden, bool showHidden)
{
    if (model.records)
    {
        Builder builder(data, model, frame, links, showHidden);
        builder.build();
        builder.hide(hidden);
    }
}
