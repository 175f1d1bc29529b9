#include "reading/iges_entity.h"

#include <IGESBasic_Group.hxx>
#include <IGESBasic_SingularSubfigure.hxx>
#include <IGESBasic_SubfigureDef.hxx>
#include <IGESCAFControl.hxx>
#include <IGESData_LevelListEntity.hxx>
#include <IGESData_ToolLocation.hxx>
#include <IGESGraph_Color.hxx>
#include <TCollection_HAsciiString.hxx>
#include <gp_GTrsf.hxx>
#include <gp_Quaternion.hxx>

#include <algorithm>
#include <cmath>
#include <set>

namespace iges_entity
{

bool isHidden(const Entity& entity)
{
    return entity->BlankStatus() == 1;
}

bool isLogicallyDependent(const Entity& entity)
{
    return entity->SubordinateStatus() == 2 || entity->SubordinateStatus() == 3;
}

bool bringsShapes(const Entity& entity)
{
    static const std::set<int> kOthers = {308, 402, 408, 412, 414, 430};
    const int type = entity->TypeNumber();
    return (type >= 100 && type < 200 && type != 124) || (type >= 500 && type < 600) || kOthers.count(type) != 0;
}

bool isAssociativity(const Entity& entity)
{
    const int type = entity->TypeNumber();
    return type == 402 || type == 404 || type == 410;
}

bool isContainer(const Entity& entity)
{
    return entity->IsKind(STANDARD_TYPE(IGESBasic_Group)) || entity->IsKind(STANDARD_TYPE(IGESBasic_SubfigureDef));
}

std::vector<Entity> membersOf(const Entity& container)
{
    std::vector<Entity> members;
    if (const auto group = Handle(IGESBasic_Group)::DownCast(container); !group.IsNull())
    {
        for (int i = 1; i <= group->NbEntities(); ++i)
        {
            members.push_back(group->Entity(i));
        }
    }
    else if (const auto subfigure = Handle(IGESBasic_SubfigureDef)::DownCast(container); !subfigure.IsNull())
    {
        for (int i = 1; i <= subfigure->NbEntities(); ++i)
        {
            members.push_back(subfigure->AssociatedEntity(i));
        }
    }
    members.erase(std::remove_if(members.begin(), members.end(), [](const Entity& entity) { return entity.IsNull(); }),
                  members.end());
    return members;
}

std::string nameOf(const Entity& entity)
{
    const auto subfigure = Handle(IGESBasic_SubfigureDef)::DownCast(entity);
    const Handle(TCollection_HAsciiString) name = subfigure.IsNull() ? entity->NameValue() : subfigure->Name();
    TCollection_AsciiString trimmed = name.IsNull() ? TCollection_AsciiString() : name->String();
    trimmed.LeftAdjust();
    trimmed.RightAdjust();
    return trimmed.ToCString();
}

bool hasColor(const Entity& entity, Quantity_Color& color)
{
    if (entity->DefColor() == IGESData_DefValue)
    {
        color = IGESCAFControl::DecodeColor(entity->RankColor());
        return true;
    }
    const auto definition = Handle(IGESGraph_Color)::DownCast(entity->Color());
    if (definition.IsNull())
    {
        return false;
    }
    double red = 0;
    double green = 0;
    double blue = 0;
    definition->RGBIntensity(red, green, blue);
    const auto share = [](double percent) { return std::clamp(percent / 100, 0.0, 1.0); };
    color.SetValues(share(red), share(green), share(blue), Quantity_TOC_sRGB);
    return true;
}

namespace
{

// Whatever the transformation was made from.
bool isIdentity(const gp_Trsf& place)
{
    const double nothing = 1e-12;
    return place.TranslationPart().Modulus() < nothing && std::abs(place.ScaleFactor() - 1) < nothing &&
           place.GetRotation().GetRotationAngle() < nothing;
}

} // namespace

bool isRigid(const gp_Trsf& place)
{
    return std::abs(place.VectorialPart().Determinant() - 1) < TopLoc_Location::ScalePrec();
}

std::optional<TopLoc_Location> placeOf(const Entity& entity, double unit)
{
    gp_Trsf place;
    const double precision = 1e-4;
    if (entity->HasTransf() &&
        !IGESData_ToolLocation::ConvertLocation(precision, entity->CompoundLocation(), place, unit))
    {
        return std::nullopt;
    }
    if (const auto instance = Handle(IGESBasic_SingularSubfigure)::DownCast(entity); !instance.IsNull())
    {
        gp_Trsf own;
        own.SetTranslation(gp_Vec(instance->Translation() * unit));
        if (instance->HasScaleFactor())
        {
            own.SetScaleFactor(instance->ScaleFactor());
        }
        place.Multiply(own);
    }
    if (!isRigid(place))
    {
        return std::nullopt;
    }
    return isIdentity(place) ? TopLoc_Location() : TopLoc_Location(place);
}

std::vector<int> layersOf(const Entity& entity)
{
    std::vector<int> layers;
    const Handle(IGESData_LevelListEntity) levels = entity->LevelList();
    for (int i = 1; !levels.IsNull() && i <= levels->NbLevelNumbers(); ++i)
    {
        layers.push_back(levels->LevelNumber(i));
    }
    if (levels.IsNull() && entity->DefLevel() == IGESData_DefOne)
    {
        layers.push_back(entity->Level());
    }
    return layers;
}

} // namespace iges_entity
