#pragma once

#include <IGESControl_Reader.hxx>
#include <IGESData_IGESEntity.hxx>
#include <IGESData_IGESModel.hxx>
#include <Interface_Graph.hxx>
#include <NCollection_DataMap.hxx>
#include <TColStd_MapOfTransient.hxx>
#include <TColStd_MapTransientHasher.hxx>
#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <string>
#include <vector>

class ImportProgress;
struct ImportSettings;

/// Builds the XDE document of an IGES file: groups, subfigures and the file itself are assemblies of what is in them.
/// A solid or a shell is a part, and so are all the loose faces, curves and points of one group, subfigure or file
/// together. A group or subfigure with nothing but one part is that part; a file with one thing in it is that thing.
class IgesDocument
{
public:
    IgesDocument(IGESControl_Reader& reader, const ImportSettings& settings, const Handle(TDocStd_Document) & document,
                 ImportProgress& progress);

    /// `name` is that of the file's assembly, where it has one. False when the file has no geometry.
    bool build(const std::string& name);

    /// How many entities were wanted but could not be translated.
    int failures() const { return m_untranslatable.Extent(); }

private:
    using Entity = Handle(IGESData_IGESEntity);

    // What stands in an assembly: a block, and the entity that puts it there; none for loose geometry.
    struct Item
    {
        TDF_Label block;
        TopLoc_Location place;
        Entity entity;
        bool isPart = false;
        bool isHidden = false;
    };

    int countOfShapes() const;
    bool isKnown(const Entity& entity) const;
    bool isRoot(const Entity& entity) const;
    std::vector<Entity> wantedRoots() const;
    bool isWanted(const Entity& entity);
    bool isShown(const Entity& entity) const;
    std::vector<Item> itemsOf(const std::vector<Entity>& members, const std::string& name);
    Item itemOf(const Entity& entity);
    TDF_Label blockOf(const Entity& container);
    TDF_Label partOf(const Entity& entity, const TopoDS_Shape& body);
    TDF_Label looseOf(const std::vector<Entity>& entities, const std::string& name);
    TDF_Label assemblyOf(const std::vector<Item>& items, const std::string& name);
    bool translate(const Entity& entity);
    TopoDS_Shape shapeOf(const Entity& entity);
    std::string nameOf(const Entity& entity) const;
    void setLook(const TDF_Label& label, const Entity& entity);
    void setLayers(const TDF_Label& label, const Entity& entity);
    void setFaceLooks(const TDF_Label& part, const Entity& entity);

    IGESControl_Reader& m_reader;
    const ImportSettings& m_settings;
    Handle(IGESData_IGESModel) m_model;
    Interface_Graph m_graph;
    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_LayerTool) m_layers;
    NCollection_DataMap<Entity, TDF_Label, TColStd_MapTransientHasher> m_blocks;
    TColStd_MapOfTransient m_untranslatable;
    ImportProgress& m_progress;
    double m_expected; // how many entities are to be translated, about
    double m_translated = 0;
};
