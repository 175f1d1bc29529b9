#pragma once

// geometry/shared_acis_buffer.h stands apart: it needs the modelling kernel's headers.
#include "vrx_api/geometry/block_geometry.h"
#include "vrx_api/manufacturing/mfg_object.h"
#include "vrx_api/mechanical/pmi_annotation.h"
#include "vrx_api/mechanical/pmi_annotation_set.h"
#include "vrx_api/mechanical/pmi_annotation_view.h"
#include "vrx_api/mechanical/pmi_capture.h"
#include "vrx_api/mechanical/pmi_data.h"
#include "vrx_api/mechanical/pmi_datum.h"
#include "vrx_api/mechanical/pmi_datum_target.h"
#include "vrx_api/mechanical/pmi_dimension.h"
#include "vrx_api/mechanical/pmi_gdt.h"
#include "vrx_api/mechanical/pmi_leader.h"
#include "vrx_api/mechanical/pmi_note.h"
#include "vrx_api/mechanical/pmi_object.h"
#include "vrx_api/mechanical/pmi_roughness.h"
#include "vrx_api/mechanical/root_mechanical_data.h"
