#pragma once

class FileProperties;
class MechanicalData;
class ShapeLinks;

/// Adds the figures that the file states of single solids to the mechanical data of the blocks that show them.
void addStatedFigures(MechanicalData& data, const FileProperties& properties, ShapeLinks& links);
