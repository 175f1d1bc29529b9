#include "iges_sample.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <IGESBasic_GroupWithoutBackP.hxx>
#include <IGESBasic_Name.hxx>
#include <IGESBasic_SingularSubfigure.hxx>
#include <IGESBasic_SubfigureDef.hxx>
#include <IGESControl_Controller.hxx>
#include <IGESControl_Writer.hxx>
#include <IGESData_HArray1OfIGESEntity.hxx>
#include <IGESData_IGESModel.hxx>
#include <IGESGeom_Line.hxx>
#include <IGESGeom_TransformationMatrix.hxx>
#include <IGESSolid_ManifoldSolid.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <TColStd_HArray2OfReal.hxx>
#include <TCollection_HAsciiString.hxx>

#include <initializer_list>
#include <stdexcept>

namespace
{

using Entity = Handle(IGESData_IGESEntity);

enum EBlank
{
    Visible = 0,
    Hidden = 1,
};

enum EDependence
{
    Independent = 0,
    Physical = 1,
    Logical = 2,
};

class Sample
{
public:
    Entity named(const Entity& entity, const char* name, EBlank blank, EDependence dependence)
    {
        const Handle(IGESBasic_Name) property = new IGESBasic_Name;
        property->Init(1, new TCollection_HAsciiString(name));
        entity->AddProperty(property);
        entity->InitStatus(blank, dependence, 0, 0);
        m_writer.AddEntity(property);
        return entity;
    }

    Entity box(const char* name, EBlank blank, EDependence dependence)
    {
        const int before = m_writer.Model()->NbEntities();
        m_writer.AddShape(BRepPrimAPI_MakeBox(25.4, 25.4, 25.4).Solid());
        for (int i = before + 1; i <= m_writer.Model()->NbEntities(); ++i)
        {
            if (m_writer.Model()->Entity(i)->IsKind(STANDARD_TYPE(IGESSolid_ManifoldSolid)))
            {
                return named(m_writer.Model()->Entity(i), name, blank, dependence);
            }
        }
        throw std::runtime_error("no solid made of a box");
    }

    void group(const char* name, EBlank blank, std::initializer_list<Entity> members)
    {
        const Handle(IGESBasic_Group) result = new IGESBasic_GroupWithoutBackP;
        result->Init(list(members));
        m_writer.AddEntity(named(result, name, blank, Independent));
    }

    void instance()
    {
        const Handle(IGESBasic_SubfigureDef) cube = new IGESBasic_SubfigureDef;
        cube->Init(0, new TCollection_HAsciiString("cube"), list({box("cube solid", Visible, Physical)}));
        const Handle(TColStd_HArray2OfReal) turn = new TColStd_HArray2OfReal(1, 3, 1, 4, 0);
        turn->SetValue(1, 2, -1);
        turn->SetValue(2, 1, 1);
        turn->SetValue(3, 3, 1);
        const Handle(IGESGeom_TransformationMatrix) matrix = new IGESGeom_TransformationMatrix;
        matrix->Init(turn);
        const Handle(IGESBasic_SingularSubfigure) result = new IGESBasic_SingularSubfigure;
        result->Init(cube, gp_XYZ(2, 0, 0), false, 1);
        result->InitTransf(matrix);
        m_writer.AddEntity(result);
    }

    void line(double z, EBlank blank)
    {
        const Handle(IGESGeom_Line) result = new IGESGeom_Line;
        result->Init(gp_XYZ(0, 0, z), gp_XYZ(1, 0, z));
        result->InitStatus(blank, Independent, 0, 0);
        m_writer.AddEntity(result);
    }

    void write(const std::string& path)
    {
        m_writer.ComputeModel();
        if (!m_writer.Write(path.c_str()))
        {
            throw std::runtime_error("cannot write " + path);
        }
    }

private:
    static Handle(IGESData_HArray1OfIGESEntity) list(std::initializer_list<Entity> members)
    {
        Handle(IGESData_HArray1OfIGESEntity) result =
            new IGESData_HArray1OfIGESEntity(1, static_cast<int>(members.size()));
        int next = 1;
        for (const Entity& member : members)
        {
            result->SetValue(next++, member);
        }
        return result;
    }

    IGESControl_Writer m_writer{"INCH", 1}; // 1: solids
};

} // namespace

void writeIgesSample(const std::string& path)
{
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
    IGESControl_Controller::Init();
    Sample sample;
    const Entity box = sample.box("box", Visible, Independent);
    box->InitColor({}, 2);
    box->InitLevel({}, 4);
    sample.box("hidden box", Hidden, Independent);
    const Entity left = sample.box("left", Visible, Logical);
    const Entity right = sample.box("right", Hidden, Logical);
    sample.group("pair", Visible, {left, right});
    const Entity inside = sample.box("inside", Visible, Logical);
    const Entity hiddenInside = sample.box("hidden inside", Hidden, Logical);
    sample.group("hidden pair", Hidden, {inside, hiddenInside});
    sample.instance();
    sample.line(0, Visible);
    sample.line(1, Hidden);
    sample.write(path);
}
