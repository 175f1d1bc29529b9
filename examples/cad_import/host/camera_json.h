#pragma once

#include "page_json.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

/// The member "camera"; the height of its picture or the angle of its view is 0 where the camera has none.
inline void cameraJson(PageJson& json, const vrx::ExcCamera& camera)
{
    using EType = vrx::ExcCamera::EType;
    json.Key("camera");
    json.StartObject();
    json.vector("eye", camera.eye());
    json.vector("target", camera.target());
    json.vector("up", camera.up());
    json.number("height", camera.type() == EType::Orthographic ? camera.orthographicZoomFactor() : 0);
    json.number("angle", camera.type() == EType::Perspective ? camera.perspectiveViewAngle() : 0);
    json.EndObject();
}
