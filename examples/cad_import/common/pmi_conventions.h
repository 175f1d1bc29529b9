#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstddef>
#include <cstdint>
#include <memory>

/// What product manufacturing information means between this translator and its hosts, where the wire leaves it open or
/// loses it.
///
/// Each block with PMI has one set of annotations, the product as a whole at most one, with block id 0. A view is a
/// plane of the file with all annotations that are drawn in it; its origin and the zones of datum targets are points of
/// the block in the unit of the product structure, and positions are in that unit too, each the lower left
/// corner of what is drawn. A view without directions holds the annotations that are drawn nowhere.
///
/// - Values are those that the file states, with its unit; those in a unit that the wire does not have, such as
///   micrometres, are converted to millimetres or degrees. All lengths or angles of an annotation are in that unit.
///   That of a feature control frame is its name, such as "mm" or "inch" as for dimensions, which crosses by a key
///   "unit" of these programs' own. A dimension or a frame without a unit states no value. The datum "?" is one that
///   the file names and does not have.
/// - Dimensions: "before" is what stands before the value, such as "4X": by the words of the drawing, or else by the
///   number of holes or pins that the linked faces make. A prefix other than empty replaces the symbol of the sub type,
///   as "S⌀" does. Fits are the alphanumerical tolerances, the upper one for a hole, the lower one for a shaft. A
///   dimension that states two limits has them as its fake alphanumerical value, and their middle as its value when it
///   states none. A main type "unknown" has neither a tolerance nor a frame around its value. The precision is the
///   number of decimal places, or 0 when the file tells none.
/// - Feature control frames: "all_around" is 1 for all around and 2 for all over. "rate_unit" is the size of the area,
///   or the length twice, for which the value holds when it is not 0, and "refine_tolerance" the tolerance of the whole
///   then. "shift_value" is how far the middle of an unequally disposed zone lies outside of the true profile, 0 for
///   any other zone: the number behind a Ⓤ is half the tolerance more. The note holds line by line, in words, what the
///   frame has no place for, with the datum that it is about, such as "B TRANSLATION" or "B PROJECTED 5", or with the
///   line when it is the second one, such as "LOWER LINE 0.5 MAX"; and then the texts that stand beside the frame, such
///   as "4X" or "INDIVIDUALLY".
/// - Datum targets: the upper text is the size, such as "20" or "10×5", in the unit that the file gives it.
/// - Notes have a text for each line, with the label alone.
/// - Linked elements name faces and edges of bodies by the body's id, which holds for all places of the body. What
///   belongs to no body is named by its id in the scene.
namespace pmi_conventions
{

/// The number of an annotation in `allAround()`.
inline const double kAllAround = 1;
inline const double kAllOver = 2;

/// The ids of annotations do not cross. So an annotation is named by its place, "<block id>/<view>/<list>/<index>" with
/// numbers from 0 and the list's key on the wire, such as "1/0/dimensions/3", wherever the model speaks of it: in the
/// mechanical id of its drawn form, in captures, in feature control frames (datums) and in datums (targets).
/// Gives all annotations these ids.
void nameByPlaces(const vrx::ExcPMIAnnotationSet& set);

/// The views of a set are written as "views" and read as "annotation_views". This set writes them under both keys, so
/// that a reader has them, and the units of its feature control frames.
class SentAnnotationSet : public vrx::ExcPMIAnnotationSet
{
public:
    void writeObject(vrx::JsonValue& value, vrx::JsonAllocator& allocator) const override;
};

/// Datums and feature control frames do not take back where they stand and what they are about. Data of this class, and
/// of the one below, read that too, with the units of the frames, and name all annotations by their places.
class ReceivedBlockMechanicalData : public vrx::ExcBlockMechanicalData
{
public:
    void readObject(const vrx::JsonValue& value) override;
    std::shared_ptr<vrx::IExchangeObject> clone() const override;
};

class ReceivedRootMechanicalData : public vrx::ExcRootMechanicalData
{
public:
    void readObject(const vrx::JsonValue& value) override;
    std::shared_ptr<vrx::IExchangeObject> clone() const override;
};

/// Makes the library give objects of these two classes for mechanical data that it reads. For a host, once.
void receiveMechanicalData();

} // namespace pmi_conventions
