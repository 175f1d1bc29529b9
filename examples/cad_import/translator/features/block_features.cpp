#include "features/block_features.h"

#include "features/face_surface.h"
#include "mechanical/shape_links.h"
#include "mp/narrow.h"

#include <algorithm>
#include <string>

namespace
{

vrx::ExcVector3d vector(const gp_Dir& direction)
{
    return {direction.X() + 0.0, direction.Y() + 0.0, direction.Z() + 0.0}; // no negative zeros
}

// By the beginning of the designation, but for the unified threads, which begin with their size.
vrx::ExcMfgThreading::EDesignationSystemType systemOf(const mp::wstring& designation)
{
    using EType = vrx::ExcMfgThreading::EDesignationSystemType;
    const std::string text = mp::toNarrow(designation);
    const auto begins = [&text](const char* with) { return text.rfind(with, 0) == 0; };
    if (text.find("UN") != std::string::npos || text.find("NPT") != std::string::npos)
    {
        return EType::American;
    }
    if (begins("BS") || begins("G"))
    {
        return EType::British;
    }
    return begins("M") || begins("Tr") ? EType::Metric : EType::Unknown;
}

vrx::ExcMfgThreading::EOrientation orientationOf(const mp::wstring& hand)
{
    using EType = vrx::ExcMfgThreading::EOrientation;
    return hand == WIDE("right") ? EType::RightHanded : hand == WIDE("left") ? EType::LeftHanded : EType::Unknown;
}

// One face may be around both ends.
std::vector<TopoDS_Face> limitsOf(const Hole& hole)
{
    std::vector<TopoDS_Face> faces = hole.opening;
    for (const TopoDS_Face& face : hole.exit)
    {
        if (std::none_of(hole.opening.begin(), hole.opening.end(),
                         [&face](const TopoDS_Face& other) { return other.IsSame(face); }))
        {
            faces.push_back(face);
        }
    }
    return faces;
}

vrx::ExcMfgHole::EBottomLimitExtentType extentOf(Hole::End end)
{
    using EType = vrx::ExcMfgHole::EBottomLimitExtentType;
    switch (end)
    {
    case Hole::End::UpToLast:
        return EType::UpToLast;
    case Hole::End::UpToNext:
        return EType::UpToNext;
    default:
        return EType::Blind;
    }
}

} // namespace

vrx::ExcVector3d BlockFeatures::point(const gp_Pnt& point) const
{
    const double scale = m_frame.scale();
    return {point.X() * scale, point.Y() * scale, point.Z() * scale};
}

template <class Add>
void BlockFeatures::link(const std::vector<TopoDS_Face>& faces, const Add& add) const
{
    for (const TopoDS_Face& face : faces)
    {
        if (const std::shared_ptr<vrx::ExcEntity> entity = m_links.entity(face, m_block))
        {
            add(entity);
        }
    }
}

template <class T>
std::shared_ptr<vrx::ExcMfgFeatureHoleType<T>> BlockFeatures::feature(const Hole& hole,
                                                                      const std::shared_ptr<T>& data) const
{
    data->setPrimaryDiameter(hole.diameter * m_frame.scale());
    data->setPrimaryDepth(hole.depth * m_frame.scale());
    data->setTipAngleDegrees(hole.tipAngle);
    data->setBottomLimitExtentType(extentOf(hole.end));
    data->setCenter(point(hole.center));
    data->setDirection(vector(hole.direction));

    auto feature = std::make_shared<vrx::ExcMfgFeatureHoleType<T>>();
    feature->setHoleData(data);
    const auto define = [&feature](const auto& entity) { feature->addDefiningGeometry(entity); };
    const auto limit = [&feature](const auto& entity) { feature->addLimitingGeometry(entity); };
    link(hole.walls, define);
    link(hole.bottom, define);
    link(limitsOf(hole), limit);
    return feature;
}

void BlockFeatures::addHole(vrx::ExcMfgData& data, const Hole& hole) const
{
    const double scale = m_frame.scale();
    switch (hole.kind)
    {
    case Hole::Kind::Simple:
        data.addSimpleHole(feature(hole, std::make_shared<vrx::ExcMfgSimpleHole>()));
        break;
    case Hole::Kind::Taper:
    {
        const auto taper = std::make_shared<vrx::ExcMfgTaperHole>();
        taper->setAngle(hole.angle);
        data.addTaperHole(feature(hole, taper));
        break;
    }
    case Hole::Kind::CounterBore:
    {
        const auto bore = std::make_shared<vrx::ExcMfgCounterBoreHole>();
        bore->setDiameter(hole.counterDiameter * scale);
        bore->setDepth(hole.counterDepth * scale);
        data.addCounterBoreHole(feature(hole, bore));
        break;
    }
    case Hole::Kind::CounterSink:
    {
        const auto sink = std::make_shared<vrx::ExcMfgCounterSinkHole>();
        sink->setDiameter(hole.counterDiameter * scale);
        sink->setTaperAngle(hole.angle);
        data.addCounterSinkHole(feature(hole, sink));
        break;
    }
    case Hole::Kind::CounterDrill:
    {
        const auto drill = std::make_shared<vrx::ExcMfgCounterDrillHole>();
        drill->setDiameter(hole.counterDiameter * scale);
        drill->setDepth(hole.counterDepth * scale);
        drill->setSinkDiameter(hole.sinkDiameter * scale);
        drill->setTaperAngle(hole.angle);
        data.addCounterDrillHole(feature(hole, drill));
        break;
    }
    }
}

void BlockFeatures::addPattern(vrx::ExcMfgData& data, const HolePattern& pattern, const std::vector<Hole>& holes) const
{
    const auto feature = std::make_shared<vrx::ExcMfgFeatureUnclassified>();
    const auto base = std::make_shared<vrx::ExcMfgPattern::Instance>();
    const Hole& first = holes[pattern.holes.front()];
    base->setBaseInstance(true);
    const auto define = [&base](const auto& entity) { base->addDefining(entity); };
    const auto limit = [&base](const auto& entity) { base->addLimiting(entity); };
    link(first.walls, define);
    link(first.bottom, define);
    link(limitsOf(first), limit);
    for (const std::size_t hole : pattern.holes)
    {
        const auto add = [&feature](const auto& entity) { feature->addLinkedElement(entity); };
        link(holes[hole].walls, add);
        link(holes[hole].bottom, add);
    }

    if (pattern.isCircular)
    {
        const auto circle = std::make_shared<vrx::ExcMfgPatternCircular>();
        circle->setAnchorPoint(point(first.center));
        circle->setCenterOfRotation(point(pattern.center));
        circle->setAxisOfRotation(vector(pattern.axis));
        circle->setAxialInstanceCount(static_cast<std::int32_t>(pattern.holes.size()));
        circle->setAxialDistanceDegrees(pattern.step);
        circle->setRadialInstanceCount(1);
        circle->setBaseInstance(base);
        feature->setPattern(circle);
    }
    else
    {
        const auto grid = std::make_shared<vrx::ExcMfgPatternRectangular>();
        grid->setAnchorPoint(point(first.center));
        grid->setAlignmentPrimaryDirection(vector(pattern.primary));
        grid->setAlignmentSecondaryDirection(vector(pattern.secondary));
        grid->setPrimaryInstanceCount(static_cast<std::int32_t>(pattern.primaryCount));
        grid->setSecondaryInstanceCount(static_cast<std::int32_t>(pattern.holes.size() / pattern.primaryCount));
        grid->setPrimarySpacing(pattern.primarySpacing * m_frame.scale());
        grid->setSecondarySpacing(pattern.secondarySpacing * m_frame.scale());
        grid->setBaseInstance(base);
        feature->setPattern(grid);
    }
    const mp::wstring name = mp::toWide("pattern " + std::to_string(data.unclassifiedFeatures().size() + 1));
    feature->setId(name);
    feature->setName(name);
    data.addUnclassifiedFeature(feature);
}

void BlockFeatures::addThread(vrx::ExcMfgData& data, const StepThread& thread, const std::vector<TopoDS_Face>& faces,
                              const Hole* hole) const
{
    using EBottomType = vrx::ExcMfgThread::EBottomType;
    const double scale = m_frame.scale();
    const auto sizes = std::make_shared<vrx::ExcMfgThread>();
    sizes->setDesignation(thread.designation);
    sizes->setDesignationSystemType(systemOf(thread.designation));
    sizes->setOrientation(orientationOf(thread.hand));
    sizes->setDiameter(thread.diameter * scale);
    sizes->setPitch(thread.pitch * scale);
    sizes->setDepth(thread.depth * scale);
    if (thread.depth > 0)
    {
        sizes->setBottomType(EBottomType::Dimension);
    }
    if (hole != nullptr)
    {
        sizes->setSupportDiameter(hole->diameter * scale);
        sizes->setSupportDepth(hole->depth * scale);
        // All of the hole is tapped.
        if (thread.depth == 0 || thread.depth >= hole->depth * (1 - kSameLength))
        {
            sizes->setBottomType(EBottomType::SupportDepth);
        }
    }
    else if (const FaceSurface surface = surfaceOf(faces.front()); surface.kind == FaceSurface::Kind::Cylinder)
    {
        sizes->setSupportDiameter(2 * surface.radius * scale);
    }

    const auto fill = [&](vrx::ExcMfgFeatureThread& feature, std::size_t before) {
        const mp::wstring name = mp::toWide("thread " + std::to_string(before + 1));
        feature.setId(name);
        feature.setName(name);
        feature.setThread(sizes);
        link(faces, [&feature](const auto& entity) { feature.addSideFace(entity); });
        if (hole != nullptr)
        {
            link(hole->opening, [&feature](const auto& entity) { feature.addTopFace(entity); });
            link(hole->end == Hole::End::Blind ? hole->bottom : hole->exit,
                 [&feature](const auto& entity) { feature.addBottomFace(entity); });
        }
    };
    const std::size_t before = data.internalThreads().size() + data.externalThreads().size();
    if (thread.isInternal)
    {
        const auto feature = std::make_shared<vrx::ExcMfgFeatureInternalThread>();
        fill(*feature, before);
        data.addInternalThread(feature);
    }
    else
    {
        const auto feature = std::make_shared<vrx::ExcMfgFeatureExternalThread>();
        fill(*feature, before);
        data.addExternalThread(feature);
    }
}
