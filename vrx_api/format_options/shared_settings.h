#pragma once

#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/vrx_api_export.h"

#include <set>

namespace vrx::imp
{

// Settings that several formats have: bases beside `FormatOptions`. Each class describes their keys in its own order.

/// The entities whose persistent names are wanted.
class VRX_API PersistentNameSettings
{
public:
    const std::set<EPersistentNameProcessingModeType>& persistentNameModes() const { return m_persistentNameModes; }
    void setPersistentNameModes(const std::set<EPersistentNameProcessingModeType>& modes)
    {
        m_persistentNameModes = modes;
    }
    void addPersistentNameMode(EPersistentNameProcessingModeType mode) { m_persistentNameModes.insert(mode); }

protected:
    std::set<EPersistentNameProcessingModeType> m_persistentNameModes;
};

/// The tessellated scenes that CAD files hold beside their exact shapes.
class VRX_API VisualizationSettings
{
public:
    /// Whether these scenes are taken.
    bool importVisualization() const { return m_importVisualization; }
    void setImportVisualization(bool wanted) { m_importVisualization = wanted; }

    /// Whether the scene of the root file of an assembly is taken.
    bool importRootVisualization() const { return m_importRootVisualization; }
    void setImportRootVisualization(bool wanted) { m_importRootVisualization = wanted; }

    /// Whether the graphics are taken that the CAD system shows before it has loaded the model itself.
    bool importPreviewGraphics() const { return m_importPreviewGraphics; }
    void setImportPreviewGraphics(bool wanted) { m_importPreviewGraphics = wanted; }

protected:
    bool m_importVisualization = false;
    bool m_importRootVisualization = false;
    bool m_importPreviewGraphics = false;
};

} // namespace vrx::imp
