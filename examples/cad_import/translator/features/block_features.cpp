#include "features/block_features.h"

#include "features/face_surface.h"
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

template <class Add>
void link(const std::vector<TopoDS_Face>& faces, const BodyFaces& body, const Add& add)
{
    for (const TopoDS_Face& face : faces)
    {
        if (const std::shared_ptr<vrx::ExcEntity> entity = body.entity(face))
        {
            add(entity);
        }
    }
}

} // namespace

vrx::ExcVector3d BlockFeatures::point(const gp_Pnt& point) const
{
    const double scale = m_frame.scale();
    return {point.X() * scale, point.Y() * scale, point.Z() * scale};
}

template <class T>
std::shared_ptr<vrx::ExcMfgFeatureHoleType<T>> BlockFeatures::feature(const Hole& hole, const BodyFaces& faces,
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
    link(hole.walls, faces, define);
    link(hole.bottom, faces, define);
    link(limitsOf(hole), faces, limit);
    return feature;
}

void BlockFeatures::addHole(const Hole& hole, const BodyFaces& faces) const
{
    const double scale = m_frame.scale();
    switch (hole.kind)
    {
    case Hole::Kind::Simple:
        m_data.addSimpleHole(feature(hole, faces, std::make_shared<vrx::ExcMfgSimpleHole>()));
        break;
    case Hole::Kind::Taper:
    {
        const auto taper = std::make_shared<vrx::ExcMfgTaperHole>();
        taper->setAngle(hole.angle);
        m_data.addTaperHole(feature(hole, faces, taper));
        break;
    }
    case Hole::Kind::CounterBore:
    {
        const auto bore = std::make_shared<vrx::ExcMfgCounterBoreHole>();
        bore->setDiameter(hole.counterDiameter * scale);
        bore->setDepth(hole.counterDepth * scale);
        m_data.addCounterBoreHole(feature(hole, faces, bore));
        break;
    }
    case Hole::Kind::CounterSink:
    {
        const auto sink = std::make_shared<vrx::ExcMfgCounterSinkHole>();
        sink->setDiameter(hole.counterDiameter * scale);
        sink->setTaperAngle(hole.angle);
        m_data.addCounterSinkHole(feature(hole, faces, sink));
        break;
    }
    case Hole::Kind::CounterDrill:
    {
        const auto drill = std::make_shared<vrx::ExcMfgCounterDrillHole>();
        drill->setDiameter(hole.counterDiameter * scale);
        drill->setDepth(hole.counterDepth * scale);
        drill->setSinkDiameter(hole.sinkDiameter * scale);
        drill->setTaperAngle(hole.angle);
        m_data.addCounterDrillHole(feature(hole, faces, drill));
        break;
    }
    }
}

void BlockFeatures::addPattern(const HolePattern& pattern, const std::vector<Hole>& holes, const BodyFaces& faces) const
{
    const auto feature = std::make_shared<vrx::ExcMfgFeatureUnclassified>();
    const auto base = std::make_shared<vrx::ExcMfgPattern::Instance>();
    const Hole& first = holes[pattern.holes.front()];
    base->setBaseInstance(true);
    const auto define = [&base](const auto& entity) { base->addDefining(entity); };
    const auto limit = [&base](const auto& entity) { base->addLimiting(entity); };
    link(first.walls, faces, define);
    link(first.bottom, faces, define);
    link(limitsOf(first), faces, limit);
    for (const std::size_t hole : pattern.holes)
    {
        const auto add = [&feature](const auto& entity) { feature->addLinkedElement(entity); };
        link(holes[hole].walls, faces, add);
        link(holes[hole].bottom, faces, add);
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
    const mp::wstring name = mp::toWide("pattern " + std::to_string(m_data.unclassifiedFeatures().size() + 1));
    feature->setId(name);
    feature->setName(name);
    m_data.addUnclassifiedFeature(feature);
}

void BlockFeatures::addThread(const StepThread& thread, const std::vector<std::shared_ptr<vrx::ExcEntity>>& sides,
                              const TopoDS_Face& shape, const TappedHole* tapped) const
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
    if (tapped != nullptr)
    {
        const Hole& hole = tapped->hole;
        sizes->setSupportDiameter(hole.diameter * scale);
        sizes->setSupportDepth(hole.depth * scale);
        // All of the hole is tapped.
        if (thread.depth == 0 || thread.depth >= hole.depth * (1 - kSameLength))
        {
            sizes->setBottomType(EBottomType::SupportDepth);
        }
    }
    else if (const FaceSurface surface = surfaceOf(shape); surface.kind == FaceSurface::Kind::Cylinder)
    {
        sizes->setSupportDiameter(2 * surface.radius * scale);
    }

    const auto fill = [&](vrx::ExcMfgFeatureThread& feature, std::size_t before) {
        const mp::wstring name = mp::toWide("thread " + std::to_string(before + 1));
        feature.setId(name);
        feature.setName(name);
        feature.setThread(sizes);
        for (const std::shared_ptr<vrx::ExcEntity>& side : sides)
        {
            feature.addSideFace(side);
        }
        if (tapped != nullptr)
        {
            const auto& [hole, faces] = *tapped;
            link(hole.opening, faces, [&feature](const auto& entity) { feature.addTopFace(entity); });
            link(hole.end == Hole::End::Blind ? hole.bottom : hole.exit, faces,
                 [&feature](const auto& entity) { feature.addBottomFace(entity); });
        }
    };
    const std::size_t before = m_data.internalThreads().size() + m_data.externalThreads().size();
    if (thread.isInternal)
    {
        const auto feature = std::make_shared<vrx::ExcMfgFeatureInternalThread>();
        fill(*feature, before);
        m_data.addInternalThread(feature);
    }
    else
    {
        const auto feature = std::make_shared<vrx::ExcMfgFeatureExternalThread>();
        fill(*feature, before);
        m_data.addExternalThread(feature);
    }
}
