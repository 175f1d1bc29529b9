#pragma once

class MechanicalData;
class ProductStructureBuilder;
class ShapeLinks;
struct CadModel;

/// Adds the figures that the file states of single solids to the mechanical data of their parts.
void addStatedFigures(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks,
                      ShapeLinks& links);
