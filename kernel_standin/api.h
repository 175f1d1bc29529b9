#pragma once

#include "kernel_standin/entity_list.h"
#include "kernel_standin/error.h"
#include "kernel_standin/file.h"
#include "kernel_standin/kernel_standin_export.h"

class AcisOptions;

enum PAT_NEXT_TYPE
{
    PAT_CAN_CREATE = 0,
};

/// Writes the entities, all that they hold and the payloads of bodies from the file's current position on.
KERNEL_STANDIN outcome api_save_entity_list_file(FileInterface* file, const ENTITY_LIST& entities,
                                                 AcisOptions* options);

/// Reads what was saved and appends the entities to the list, in the saved order. The data may come from anywhere:
/// whatever is wrong with them is the outcome, and then the list is as it was.
KERNEL_STANDIN outcome api_restore_entity_list_file(FileInterface* file, ENTITY_LIST& entities, AcisOptions* options);

/// Append the faces, edges or vertices that the entity holds, each once, in the order in which a walk from the entity
/// down meets them first.
KERNEL_STANDIN outcome api_get_faces(ENTITY* entity, ENTITY_LIST& faces, PAT_NEXT_TYPE create = PAT_CAN_CREATE,
                                     AcisOptions* options = nullptr);
KERNEL_STANDIN outcome api_get_edges(ENTITY* entity, ENTITY_LIST& edges, PAT_NEXT_TYPE create = PAT_CAN_CREATE,
                                     AcisOptions* options = nullptr);
KERNEL_STANDIN outcome api_get_vertices(ENTITY* entity, ENTITY_LIST& vertices, PAT_NEXT_TYPE create = PAT_CAN_CREATE,
                                        AcisOptions* options = nullptr);

/// Ends an entity that has no owner, with all that it holds. Nothing else may hold any of it.
KERNEL_STANDIN outcome api_del_entity(ENTITY* entity);
