#pragma once

#include <IGESData_IGESEntity.hxx>
#include <Quantity_Color.hxx>
#include <TopLoc_Location.hxx>

#include <string>
#include <vector>

/// What an entity of an IGES file says of itself.
namespace iges_entity
{

using Entity = Handle(IGESData_IGESEntity);

bool isHidden(const Entity& entity);

/// It belongs to another entity, such as a group, but can stand by itself.
bool isLogicallyDependent(const Entity& entity);

/// A group, or the definition of a subfigure.
bool isContainer(const Entity& entity);
std::vector<Entity> membersOf(const Entity& container);

/// The name that the file gives to the entity, or an empty text.
std::string nameOf(const Entity& entity);

bool hasColor(const Entity& entity, Quantity_Color& color);

/// Where the entity stands in its holder; `unit` is the file's unit of lengths.
TopLoc_Location placeOf(const Entity& entity, double unit);

std::vector<int> layersOf(const Entity& entity);

} // namespace iges_entity
