#include "looks/placed_scene.h"

#include "looks/scene_nodes.h"

#include <memory>
#include <utility>
#include <vector>

namespace
{

std::vector<float> scaled(std::vector<float> numbers, double scale)
{
    for (float& number : numbers)
    {
        number = static_cast<float>(static_cast<double>(number) * scale);
    }
    return numbers;
}

template <class Item>
void scaleEdges(const Item& item, double scale)
{
    for (const auto& edge : item.edges())
    {
        edge->setPoints(scaled(edge->points(), scale));
    }
}

void scaleNode(vrx::ExcVisuNode& node, const ModelFrame& frame)
{
    if (node.transformation())
    {
        node.setTransformation(std::make_shared<vrx::ExcTransformation>(frame.scaled(*node.transformation())));
    }
    if (node.mesh())
    {
        for (const auto& face : node.mesh()->faces())
        {
            face->setVertices(scaled(face->vertices(), frame.scale()));
        }
        scaleEdges(*node.mesh(), frame.scale());
    }
    if (node.wire())
    {
        scaleEdges(*node.wire(), frame.scale());
    }
    if (node.pmi())
    {
        scaleEdges(*node.pmi(), frame.scale());
    }
}

vrx::ExcCamera placed(vrx::ExcCamera camera, const ModelFrame& frame)
{
    camera.setEye(frame.placed(camera.eye()));
    camera.setTarget(frame.placed(camera.target()));
    camera.setUp(frame.turned(camera.up()));
    camera.setOrthographicZoomFactor(camera.orthographicZoomFactor() * frame.scale());
    return camera;
}

// The plane is given by its coefficients only.
vrx::ExcClippingPlane placed(vrx::ExcClippingPlane plane, const ModelFrame& frame)
{
    using Plane = vrx::ExcClippingPlane;
    const vrx::ExcVector3d normal =
        frame.turned({plane.coefficient(Plane::CoefficientA), plane.coefficient(Plane::CoefficientB),
                      plane.coefficient(Plane::CoefficientC)});
    const double distance = plane.coefficient(Plane::CoefficientD) * frame.scale();
    plane.setCoefficient(Plane::CoefficientA, normal[0])
        .setCoefficient(Plane::CoefficientB, normal[1])
        .setCoefficient(Plane::CoefficientC, normal[2])
        .setCoefficient(Plane::CoefficientD, distance);
    return plane;
}

} // namespace

void scaleScene(const vrx::ExcVisualizationData& scene, const ModelFrame& frame)
{
    if (frame.scale() != 1)
    {
        scene_nodes::visit(scene, [&frame](vrx::ExcVisuNode& node) { scaleNode(node, frame); });
    }
}

void placeScene(const vrx::ExcVisualizationData& scene, const ModelFrame& frame)
{
    scaleScene(scene, frame);
    if (frame.isTurned())
    {
        // What the scene holds is scaled by now.
        const vrx::ExcTransformation turn = frame.placed(vrx::ExcTransformation());
        for (const auto& root : scene.sceneRootNodes())
        {
            root->setTransformation(std::make_shared<vrx::ExcTransformation>(turn));
        }
    }
    for (const auto& view : scene.views())
    {
        view->setOrigin(frame.placed(view->origin()));
        view->setDirectionU(frame.turned(view->directionU()));
        view->setDirectionV(frame.turned(view->directionV()));
    }
    for (const auto& capture : scene.captures())
    {
        capture->setCamera(placed(capture->camera(), frame));
        capture->setClippingPlane(placed(capture->clippingPlane(), frame));
    }
}
