#pragma once

#include <string>

namespace test
{

// The full texts of classes that others hold.

inline const std::string kTransformationText =
    R"({"affine":[[2.0,0.0,0.0],[0.0,3.0,0.0],[0.0,0.0,4.0]],"translation":[1.0,2.0,3.0]})";
inline const std::string kColorText = R"({"rgb":[1,2,3],"alpha":4})";
inline const std::string kMiscDataText = R"([{"name":"a","type":"integer","value":"1"}])";
inline const std::string kSubentIdText = R"({"type":"f","index":18446744073709551615})";
inline const std::string kPathText = R"({"block_references":["a","b"],"body_id":7,"subent_id":)" + kSubentIdText + "}";
inline const std::string kEntityText = R"({"type":"fsp","fsp":)" + kPathText + "}";
inline const std::string kCameraText =
    R"({"type":"perspective","name":"n","perspective_view_angle":0.5,"eye":[1.0,2.0,3.0],"target":[4.0,5.0,6.0],)"
    R"("up":[7.0,8.0,9.0]})";

} // namespace test
