#include "pmi/saved_views.h"

#include "kernel/occt_vector.h"
#include "mp/narrow.h"
#include "pmi/annotation_scene.h"
#include "pmi/item_parameters.h"
#include "reading/cad_model.h"
#include "reading/step_axes.h"
#include "reading/step_measures.h"
#include "structure/product_blocks.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <StepGeom_Plane.hxx>
#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Pnt.hxx>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

namespace
{

const char* const kCameras[] = {"CAMERA_MODEL_D3", "CAMERA_MODEL_D3_MULTI_CLIPPING", "CAMERA_MODEL_D3_WITH_HLHSR"};
const int kDeepest = 8; // sections made of sections, models that show models

// The middle of what a view shows, and a length beyond which there is nothing of it.
struct Extent
{
    gp_Pnt middle;
    double size = 1;
};

class Views
{
public:
    Views(const CadModel& model, const ProductBlocks& blocks, const ProductPlaces& places,
          const std::vector<DrawnAnnotation>& annotations)
        : m_model(model)
        , m_records(*model.records)
        , m_blocks(blocks)
        , m_places(places)
    {
        for (const DrawnAnnotation& annotation : annotations)
        {
            for (const StepRecord& part : annotationParts(annotation.record))
            {
                m_annotations.emplace(part.id(), &annotation);
            }
        }
    }

    std::vector<SavedView> all()
    {
        for (const char* const type : kCameras)
        {
            for (const StepRecord& camera : m_records.all(type))
            {
                add(camera);
            }
        }
        return std::move(m_views);
    }

private:
    void add(const StepRecord& camera)
    {
        const std::vector<StepRecord> named = camera.users("MODEL_GEOMETRIC_VIEW");
        const std::vector<StepRecord> models = camera.users("DRAUGHTING_MODEL");
        const StepRecord model = !named.empty() && named.front().next(3).is("DRAUGHTING_MODEL") ? named.front().next(3)
                                 : models.empty()                                               ? StepRecord()
                                                                                                : models.front();
        if (!model)
        {
            return; // the camera is of a drawing
        }
        const double length = unitFactors(m_records, model).length;
        const auto axes = stepAxes(m_records.entity<StepGeom_Axis2Placement3d>(camera[1].reference), length);
        if (!axes)
        {
            return;
        }
        SavedView view;
        view.axes = *axes;
        view.isPerspective = camera.next(2)[0].word == "CENTRAL";
        view.section = sectionOf(camera[3], length, 0);
        for (const mp::wstring& name :
             {named.empty() ? mp::wstring() : named.front().text(0), camera.text(0), model.as("REPRESENTATION").text(0),
              mp::toWide("View " + std::to_string(m_views.size() + 1))})
        {
            view.name = view.name.empty() ? name : view.name;
        }
        addAnnotations(view, model, 0);
        tellProduct(view);
        turnToReader(view);
        const Extent extent = extentOf(view.product);
        view.axes.SetLocation(extent.middle);
        view.distance = extent.size;
        m_views.push_back(view);
    }

    // Those that a model holds by itself, in planes, or in models that are mapped into it.
    void addAnnotations(SavedView& view, const StepRecord& model, int depth) const
    {
        for (const StepRecord& item : model.as("REPRESENTATION").nexts(1))
        {
            addAnnotation(view, item);
            if (item.is("ANNOTATION_PLANE"))
            {
                for (const StepRecord& element : item_parameters::records(item, "ANNOTATION_PLANE", 0, 3))
                {
                    addAnnotation(view, element);
                }
            }
            else if (item.is("MAPPED_ITEM") && depth < kDeepest)
            {
                for (const StepRecord& map : item_parameters::records(item, "MAPPED_ITEM", 0))
                {
                    const StepRecord mapped = map.next(1);
                    addAnnotations(view, mapped.is("DRAUGHTING_MODEL") ? mapped : StepRecord(), depth + 1);
                }
            }
        }
    }

    void addAnnotation(SavedView& view, const StepRecord& item) const
    {
        const auto found = m_annotations.find(item.id());
        if (found == m_annotations.end())
        {
            return;
        }
        const int id = found->second->record.id();
        if (std::find(view.annotations.begin(), view.annotations.end(), id) == view.annotations.end())
        {
            view.annotations.push_back(id);
        }
    }

    // The product of all annotations, which are in its coordinates.
    void tellProduct(SavedView& view) const
    {
        const auto productOf = [this](int id) { return m_annotations.at(id)->product; };
        const bool one = !view.annotations.empty() &&
                         std::all_of(view.annotations.begin(), view.annotations.end(),
                                     [&](int id) { return productOf(id) == productOf(view.annotations.front()); });
        view.product = one ? productOf(view.annotations.front()) : StepRecord();
        view.block = one ? m_annotations.at(view.annotations.front())->block : m_blocks.top();
    }

    // Keeps what is up.
    void turnToReader(SavedView& view) const
    {
        double facing = 0;
        for (const int id : view.annotations)
        {
            const auto& plane = m_annotations.at(id)->plane;
            facing += plane ? plane->Direction().Dot(view.axes.Direction()) : 0;
        }
        if (facing < 0)
        {
            view.axes.ZReverse();
            view.axes.XReverse();
        }
    }

    // The first plane of a section, which may be one of several that cut together.
    std::optional<gp_Ax3> sectionOf(const StepParameter& planes, double length, int depth) const
    {
        for (const StepParameter& element : planes.list)
        {
            const StepRecord combination = m_records.find(element.reference);
            const auto plane = m_records.entity<StepGeom_Plane>(element.reference);
            std::optional<gp_Ax3> axes = !plane.IsNull() ? stepAxes(plane->Position(), length)
                                         : combination && depth < kDeepest
                                             ? sectionOf(combination[1], length, depth + 1)
                                             : std::nullopt;
            if (axes)
            {
                return axes;
            }
        }
        return std::nullopt;
    }

    const Extent& extentOf(const StepRecord& product)
    {
        const auto [found, isNew] = m_extents.emplace(product.id(), Extent());
        if (!isNew)
        {
            return found->second;
        }
        Bnd_Box box;
        if (const ProductPlaces::Place* const place = m_places.find(product))
        {
            BRepBndLib::Add(XCAFDoc_ShapeTool::GetShape(place->shape), box);
        }
        else
        {
            TDF_LabelSequence roots;
            XCAFDoc_DocumentTool::ShapeTool(m_model.document->Main())->GetFreeShapes(roots);
            for (const TDF_Label& root : roots)
            {
                BRepBndLib::Add(XCAFDoc_ShapeTool::GetShape(root), box);
            }
        }
        if (!box.IsVoid())
        {
            found->second.middle = (box.CornerMin().XYZ() + box.CornerMax().XYZ()) / 2;
            found->second.size = std::max(std::sqrt(box.SquareExtent()), 1e-6);
        }
        return found->second;
    }

    const CadModel& m_model;
    const StepRecords& m_records;
    const ProductBlocks& m_blocks;
    const ProductPlaces& m_places;
    std::map<int, const DrawnAnnotation*> m_annotations; // by the ids of their records and of what these consist of
    std::map<int, Extent> m_extents;                     // by the id of the product definition
    std::vector<SavedView> m_views;
};

// What the two forms of a view in the scene have in common.
template <class View>
void describe(View& form, const SavedView& view, const char* kind, std::size_t number)
{
    std::vector<mp::wstring> ids;
    for (const int annotation : view.annotations)
    {
        ids.push_back(annotationId(annotation));
    }
    form.setDisplayName(view.name);
    form.setId(mp::toWide(kind + std::to_string(number)));
    form.setAnnotationIds(ids);
}

} // namespace

std::vector<SavedView> savedViews(const CadModel& model, const ProductBlocks& blocks, const ProductPlaces& places,
                                  const std::vector<DrawnAnnotation>& annotations)
{
    return model.records ? Views(model, blocks, places, annotations).all() : std::vector<SavedView>();
}

vrx::ExcCamera cameraOf(const SavedView& view)
{
    const gp_XYZ target = view.axes.Location().XYZ();
    vrx::ExcCamera camera;
    camera.setType(view.isPerspective ? vrx::ExcCamera::EType::Perspective : vrx::ExcCamera::EType::Orthographic);
    camera.setEye(occt_vector::of(target + view.axes.Direction().XYZ() * view.distance));
    camera.setTarget(occt_vector::of(target));
    camera.setUp(occt_vector::of(view.axes.YDirection().XYZ()));
    return camera;
}

vrx::ExcClippingPlane clippingPlaneOf(const SavedView& view)
{
    vrx::ExcClippingPlane plane;
    if (view.section)
    {
        const bool facesReader = view.section->Direction().Dot(view.axes.Direction()) > 0;
        const gp_XYZ normal = view.section->Direction().XYZ() * (facesReader ? -1 : 1);
        plane.setHasCoefficients(true);
        plane.setCoefficient(vrx::ExcClippingPlane::CoefficientA, normal.X())
            .setCoefficient(vrx::ExcClippingPlane::CoefficientB, normal.Y())
            .setCoefficient(vrx::ExcClippingPlane::CoefficientC, normal.Z())
            .setCoefficient(vrx::ExcClippingPlane::CoefficientD, -normal.Dot(view.section->Location().XYZ()));
    }
    return plane;
}

void addSavedViews(vrx::ExcVisualizationData& scene, const std::vector<SavedView>& views, const ProductPlaces& places)
{
    for (std::size_t i = 0; i < views.size(); ++i)
    {
        SavedView view = views[i];
        const ProductPlaces::Place* const place = places.find(view.product);
        if (view.product && place == nullptr)
        {
            continue;
        }
        if (place != nullptr)
        {
            view.axes.Transform(place->location);
        }
        if (place != nullptr && view.section)
        {
            view.section->Transform(place->location);
        }
        const auto plane = std::make_shared<vrx::ExcVisuView>();
        describe(*plane, view, "view", i + 1);
        plane->setOrigin(occt_vector::of(view.axes.Location().XYZ()));
        plane->setDirectionU(occt_vector::of(view.axes.XDirection().XYZ()));
        plane->setDirectionV(occt_vector::of(view.axes.YDirection().XYZ()));
        scene.addView(plane);

        const auto capture = std::make_shared<vrx::ExcVisuCapture>();
        describe(*capture, view, "capture", i + 1);
        capture->setCamera(cameraOf(view));
        capture->setClippingPlane(clippingPlaneOf(view));
        scene.addCapture(capture);
    }
}
