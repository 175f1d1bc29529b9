// What an import costs without a second process: Open CASCADE reads a STEP file and meshes its parts with the settings
// of the example's translator. With --bodies each body is measured too, as the example's host does. usage: one_process
// [--bodies] FILE

#include "common/body_figures.h"
#include "looks/tessellation.h"

#include <Message_ProgressRange.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <cstdio>
#include <cstring>

namespace
{

bool readFile(const char* path, Handle(TDocStd_Document) & document)
{
    STEPCAFControl_Reader reader;
    reader.SetColorMode(true);
    reader.SetNameMode(true);
    reader.SetSHUOMode(true);
    reader.SetPropsMode(false);
    reader.SetMatMode(false);
    reader.SetLayerMode(false);
    reader.SetGDTMode(false);
    reader.SetViewMode(false);
    return reader.ReadFile(path) == IFSelect_RetDone && reader.Transfer(document);
}

void measureBodies(const TopoDS_Shape& part)
{
    TopTools_IndexedMapOfShape bodies;
    TopExp::MapShapes(part, TopAbs_SOLID, bodies);
    for (int i = 1; i <= bodies.Extent(); ++i)
    {
        std::printf("%s\n", figuresText(figuresOf(bodies(i), EBox::With)).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    const bool measuresBodies = argc > 1 && std::strcmp(argv[1], "--bodies") == 0;
    const char* const path = argc > 1 ? argv[argc - 1] : "";
    Handle(TDocStd_Document) document;
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", document);
    if (!readFile(path, document))
    {
        std::fprintf(stderr, "one_process: cannot read %s\n", path);
        return 1;
    }
    TDF_LabelSequence shapes;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(shapes);
    for (const TDF_Label& label : shapes)
    {
        if (XCAFDoc_ShapeTool::IsSimpleShape(label))
        {
            const TopoDS_Shape part = XCAFDoc_ShapeTool::GetShape(label);
            tessellation::mesh(part);
            if (measuresBodies)
            {
                measureBodies(part);
            }
        }
    }
    return 0;
}
