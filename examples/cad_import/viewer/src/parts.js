// The parts of the model: a group for each node of the product tree, with the faces and edges of its block.

import { Color, DoubleSide, Group, Matrix4, Mesh, MeshStandardMaterial, SRGBColorSpace } from 'three';
import { LineMaterial } from 'three/addons/lines/LineMaterial.js';
import { LineSegments2 } from 'three/addons/lines/LineSegments2.js';

const kNoColor = [176, 182, 190];
const kEdgeColor = 0x1c2430;

export const srgb = (color) => new Color().setRGB(color[0] / 255, color[1] / 255, color[2] / 255, SRGBColorSpace);

export class Parts extends Group {
  // `clipping` are the planes that cut all parts, now and later.
  constructor(model, clipping) {
    super();
    this.clipping = clipping;
    this.materials = new Map();
    this.edgeMaterial = new LineMaterial({ color: kEdgeColor, linewidth: 1.15, clippingPlanes: clipping });
    this.edges = [];
    this.meshes = [];
    for (const node of model.nodes()) {
      const group = (node.object = new Group());
      (node.parent?.object ?? this).add(group);
      if (node.reference.matrix) group.applyMatrix4(new Matrix4().fromArray(node.reference.matrix));
      group.visible = node.visible;
      if (node.block?.shape) this.#addShape(node, node.block.shape);
    }
    this.updateMatrixWorld(true);
  }

  #surface(color) {
    const [red, green, blue, alpha = 255] = color ?? kNoColor;
    const key = [red, green, blue, alpha].join();
    if (!this.materials.has(key)) {
      const material = new MeshStandardMaterial({
        color: srgb([red, green, blue]),
        roughness: 0.52,
        metalness: 0.08,
        side: DoubleSide,
        polygonOffset: true, // lets the edges stand in front of the faces that they bound
        polygonOffsetFactor: 1,
        polygonOffsetUnits: 1,
        transparent: alpha < 255,
        opacity: alpha / 255,
        depthWrite: alpha === 255,
        clippingPlanes: this.clipping,
      });
      this.materials.set(key, material);
    }
    return this.materials.get(key);
  }

  #addShape(node, shape) {
    const color = node.color ?? shape.color;
    const materials = shape.colors.map((own) => this.#surface(own ?? color));
    const mesh = new Mesh(shape.geometry, materials);
    mesh.userData.node = node;
    node.mesh = mesh;
    node.object.add(mesh);
    this.meshes.push(mesh);
    if (shape.edges) {
      const edges = new LineSegments2(shape.edges, this.edgeMaterial);
      edges.raycast = () => {};
      this.edges.push(edges);
      node.object.add(edges);
    }
  }

  visibleMeshes() {
    const meshes = [];
    this.traverseVisible((object) => object.userData.node && meshes.push(object));
    return meshes;
  }
}
