#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/common/vector.h"
#include "vrx_api/mechanical/pmi_leader.h"
#include "vrx_api/mechanical/pmi_object.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// How the text of an annotation lies in the plane of its view.
enum class EPMIOrientation : std::int32_t
{
    Horizontal = 0,
    Vertical = 1,
    Parallel = 2,
    Perpendicular = 3,
    DimAngle = 4, // turned by the annotation's angle
};

/// The kind of an annotation, which its class tells. A flag note or a note of NOA kind is an `ExcPMINote` with its
/// flag.
enum class EPMIAnnotationType : std::int32_t
{
    Unknown = 0,
    Datum = 1,
    DatumTarget = 2,
    Note = 3,
    FlagNote = 4,
    NOA = 5,
    Roughness = 6,
    GDT = 7,
    Dimension = 8,
};

/// What all annotations of a drawing have in common: where they stand and what they are about. An annotation belongs to
/// an `ExcPMIAnnotationView`, whose origin and vectors u and v span the plane of its 2D positions.
/// The name, the id and the hidden flag do not cross: they serve the program that builds the annotations. Copies share
/// the linked elements and the leaders.
class VRX_API ExcPMIAnnotation : public ExcPMIObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    virtual EPMIAnnotationType type() const = 0;

    /// Where the annotation stands in the plane of its view.
    const ExcVector2d& position() const { return m_position; }
    void setPosition(const ExcVector2d& position) { m_position = position; }

    EPMIOrientation orientation() const { return m_orientation; }
    void setOrientation(EPMIOrientation orientation) { m_orientation = orientation; }

    /// The angle of the text; written only when the orientation is by angle.
    double angle() const { return m_angle; }
    void setAngle(double angle) { m_angle = angle; }

    /// How far the annotation lies off the plane of its view.
    double zDepth() const { return m_zDepth; }
    void setZDepth(double depth) { m_zDepth = depth; }

    /// The faces, edges or other objects that the annotation is about.
    const std::vector<std::shared_ptr<ExcEntity>>& linkedElements() const { return m_linkedElements; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    void addLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements);
    void setLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements);

    const std::vector<std::shared_ptr<ExcPMILeader>>& leaders() const { return m_leaders; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addLeader(const std::shared_ptr<ExcPMILeader>& leader);
    void addLeaders(const std::vector<std::shared_ptr<ExcPMILeader>>& leaders);
    void setLeaders(const std::vector<std::shared_ptr<ExcPMILeader>>& leaders);

private:
    friend struct Described<ExcPMIAnnotation>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcVector2d m_position;
    EPMIOrientation m_orientation = EPMIOrientation::Horizontal;
    double m_angle = 0.0;
    double m_zDepth = 0.0;
    std::vector<std::shared_ptr<ExcEntity>> m_linkedElements;
    std::vector<std::shared_ptr<ExcPMILeader>> m_leaders;
};

extern template struct Described<ExcPMIAnnotation>;

} // namespace vrx
