#pragma once

#include <IGESData_IGESEntity.hxx>
#include <Quantity_Color.hxx>
#include <TopLoc_Location.hxx>

#include <optional>
#include <string>
#include <vector>

/// What an entity of an IGES file says of itself.
namespace iges_entity
{

using Entity = Handle(IGESData_IGESEntity);

bool isHidden(const Entity& entity);

/// Geometry and solids, and what places, repeats or groups them.
bool bringsShapes(const Entity& entity);

/// It tells of a group or a view of other entities and is no geometry itself.
bool isAssociativity(const Entity& entity);

/// It belongs to another entity, such as a group, but can stand by itself.
bool isLogicallyDependent(const Entity& entity);

/// A group, or the definition of a subfigure.
bool isContainer(const Entity& entity);
std::vector<Entity> membersOf(const Entity& container);

/// The name that the file gives to the entity, or an empty text.
std::string nameOf(const Entity& entity);

bool hasColor(const Entity& entity, Quantity_Color& color);

/// Where the entity stands in its holder; `unit` is the file's unit of lengths. Nothing when its matrix is no
/// placement, or scales or mirrors, for which XDE has no place.
std::optional<TopLoc_Location> placeOf(const Entity& entity, double unit);

bool isRigid(const gp_Trsf& place);

std::vector<int> layersOf(const Entity& entity);

} // namespace iges_entity
