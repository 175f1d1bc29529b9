#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_common.h"

#include <NCollection_DataMap.hxx>
#include <TDF_Label.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS_TShape.hxx>

#include <unordered_set>

/// What layers hide.
using HiddenShapes = std::unordered_set<const TopoDS_TShape*>;

/// What the XDE document says of the looks of a product's shapes: of the bodies and faces that have a label.
class ShapeLooks
{
public:
    struct Look
    {
        mp::wstring name;
        vrx::ExcColor color; // without RGB: no colour of its own
        bool hidden = false;
    };

    /// With `showHidden` nothing is hidden.
    ShapeLooks(const TDF_Label& product, bool showHidden, const HiddenShapes& hidden);

    /// Of a shape within the product's shape, or null.
    const Look* of(const TopoDS_Shape& shape) const { return m_looks.Seek(shape); }

private:
    Look lookOf(const TDF_Label& label) const;
    void add(const TDF_Label& label, const TopLoc_Location& place, const Look& look, const Look& ofBodies);
    void hide(const TopoDS_Shape& shape, const Look& above, const HiddenShapes& hidden);
    void addComponents(const TDF_Label& label, const TopLoc_Location& place, const Look& above);

    bool m_showHidden;
    NCollection_DataMap<TopoDS_Shape, Look, TopTools_ShapeMapHasher> m_looks;
};
