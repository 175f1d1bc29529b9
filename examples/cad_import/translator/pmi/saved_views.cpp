#include "pmi/saved_views.h"

#include "kernel/occt_text.h"
#include "mp/narrow.h"
#include "pmi/annotation_scene.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_ClippingPlaneTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_View.hxx>
#include <XCAFDoc_ViewTool.hxx>
#include <XCAFView_Object.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace
{

vrx::ExcVector3d vector(const gp_XYZ& coordinates)
{
    return {coordinates.X(), coordinates.Y(), coordinates.Z()};
}

// The middle of the model, and a length beyond which there is nothing of it.
struct Extent
{
    gp_XYZ middle;
    double size = 1;
};

Extent extentOf(const Handle(TDocStd_Document) & document)
{
    Bnd_Box box;
    TDF_LabelSequence roots;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(roots);
    for (const TDF_Label& root : roots)
    {
        BRepBndLib::Add(XCAFDoc_ShapeTool::GetShape(root), box);
    }
    Extent extent;
    if (!box.IsVoid())
    {
        extent.middle = (box.CornerMin().XYZ() + box.CornerMax().XYZ()) / 2;
        extent.size = std::max(std::sqrt(box.SquareExtent()), 1e-6);
    }
    return extent;
}

// Of a saved view all writers agree on the two axes, but neither on the side from which it is seen nor on the
// coordinates in which its eye and its window are given. So it is seen from the side from which its annotations are
// read, and its camera looks at the middle of the model without saying how much of it is in the picture.
class SavedView
{
public:
    SavedView(const TDF_Label& label, const Handle(XCAFView_Object) & view, int number, const Extent& extent)
        : m_label(label)
        , m_view(view)
        , m_number(number)
        , m_extent(extent)
        , m_back(view->ViewDirection())
    {
        TDF_LabelSequence annotations;
        XCAFDoc_DocumentTool::ViewTool(label)->GetRefGDTLabel(label, annotations);
        double facing = 0;
        for (const TDF_Label& annotation : annotations)
        {
            m_annotationIds.push_back(annotationId(annotation));
            if (const auto plane = annotationPlane(annotation))
            {
                facing += plane->Direction().Dot(m_back);
            }
        }
        if (facing < 0)
        {
            m_back.Reverse();
        }
    }

    std::shared_ptr<vrx::ExcVisuView> plane() const
    {
        auto view = std::make_shared<vrx::ExcVisuView>();
        describe(*view, "view");
        view->setOrigin(vector(m_extent.middle));
        view->setDirectionU(vector(up() ^ m_back.XYZ()));
        view->setDirectionV(vector(up()));
        return view;
    }

    std::shared_ptr<vrx::ExcVisuCapture> capture() const
    {
        auto capture = std::make_shared<vrx::ExcVisuCapture>();
        describe(*capture, "capture");
        capture->setCamera(camera());
        capture->setClippingPlane(clippingPlane());
        return capture;
    }

private:
    template <class View>
    void describe(View& view, const char* kind) const
    {
        const mp::wstring name = occt_text::wide(m_view->Name());
        view.setDisplayName(name.empty() ? mp::toWide("View " + std::to_string(m_number)) : name);
        view.setId(mp::toWide(kind + std::to_string(m_number)));
        view.setAnnotationIds(m_annotationIds);
    }

    gp_XYZ up() const { return m_view->UpDirection().XYZ(); }

    vrx::ExcCamera camera() const
    {
        vrx::ExcCamera camera;
        camera.setType(m_view->Type() == XCAFView_ProjectionType_Central ? vrx::ExcCamera::EType::Perspective
                                                                         : vrx::ExcCamera::EType::Orthographic);
        camera.setEye(vector(m_extent.middle + m_back.XYZ() * m_extent.size));
        camera.setTarget(vector(m_extent.middle));
        camera.setUp(vector(up()));
        return camera;
    }

    // The first plane of a section, turned so that what stands before it is away: the coefficients are positive for the
    // points that stay.
    vrx::ExcClippingPlane clippingPlane() const
    {
        TDF_LabelSequence labels;
        XCAFDoc_DocumentTool::ViewTool(m_label)->GetRefClippingPlaneLabel(m_label, labels);
        gp_Pln plane;
        Handle(TCollection_HAsciiString) name;
        bool capping = false;
        vrx::ExcClippingPlane result;
        if (labels.IsEmpty() ||
            !XCAFDoc_DocumentTool::ClippingPlaneTool(m_label)->GetClippingPlane(labels.First(), plane, name, capping))
        {
            return result;
        }
        double numbers[4] = {};
        plane.Coefficients(numbers[0], numbers[1], numbers[2], numbers[3]);
        const double sign = plane.Axis().Direction().Dot(m_back) > 0 ? -1 : 1;
        result.setHasCoefficients(true);
        result.setCoefficient(vrx::ExcClippingPlane::CoefficientA, sign * numbers[0])
            .setCoefficient(vrx::ExcClippingPlane::CoefficientB, sign * numbers[1])
            .setCoefficient(vrx::ExcClippingPlane::CoefficientC, sign * numbers[2])
            .setCoefficient(vrx::ExcClippingPlane::CoefficientD, sign * numbers[3]);
        return result;
    }

    TDF_Label m_label;
    Handle(XCAFView_Object) m_view;
    int m_number;
    Extent m_extent;
    gp_Dir m_back; // to the viewer
    std::vector<mp::wstring> m_annotationIds;
};

} // namespace

void addSavedViews(vrx::ExcVisualizationData& scene, const Handle(TDocStd_Document) & document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ViewTool(document->Main())->GetViewLabels(labels);
    const Extent extent = labels.IsEmpty() ? Extent() : extentOf(document);
    for (int i = 1; i <= labels.Length(); ++i)
    {
        Handle(XCAFDoc_View) attribute;
        if (labels.Value(i).FindAttribute(XCAFDoc_View::GetID(), attribute))
        {
            const SavedView view(labels.Value(i), attribute->GetObject(), i, extent);
            scene.addView(view.plane());
            scene.addCapture(view.capture());
        }
    }
}
