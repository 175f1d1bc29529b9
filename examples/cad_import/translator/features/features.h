#pragma once

struct CadModel;
class MechanicalData;
class ProductStructureBuilder;
class ShapeLinks;

/// Adds the holes that the solids of the blocks have, their patterns, and the threads that a STEP file states.
void addFeatures(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& builder,
                 ShapeLinks& links);
