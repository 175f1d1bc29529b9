// The scene as the host wrote it, made ready to be drawn: the product tree, and one set of buffers for each block.

import { Box3, BufferAttribute, BufferGeometry, Vector3 } from 'three';
import { LineSegmentsGeometry } from 'three/addons/lines/LineSegmentsGeometry.js';

import { facesOfEdges } from './edge_faces.js';
import { Holes } from './holes.js';
import { Layers } from './layers.js';
import { Pmi, speaksOf } from './pmi.js';

function bytes(base64) {
  const text = atob(base64 ?? '');
  const result = new Uint8Array(text.length);
  for (let i = 0; i < text.length; i++) result[i] = text.charCodeAt(i);
  return result.buffer;
}

export const floats = (base64) => new Float32Array(bytes(base64));
export const indices = (base64) => new Uint32Array(bytes(base64));

const colorKey = (color) => (color ? color.join(',') : '');

// Triangles are sorted by the faces' colours, so that faces of one colour are drawn at once.
function buildFaces(shape) {
  const source = indices(shape.triangles);
  let first = 0;
  const faces = shape.faces.map((face) => {
    const mesh = shape.meshes[face.mesh];
    const begin = first;
    first += face.triangles * 3;
    return { ...face, mesh, color: face.color ?? mesh.color, begin, end: first };
  });
  faces.sort((a, b) => (colorKey(a.color) < colorKey(b.color) ? -1 : colorKey(a.color) > colorKey(b.color) ? 1 : 0));

  const index = new Uint32Array(source.length);
  const geometry = new BufferGeometry();
  const colors = [];
  let at = 0;
  for (const face of faces) {
    index.set(source.subarray(face.begin, face.end), at);
    const count = face.end - face.begin;
    face.begin = at;
    face.end = at += count;
    if (!colors.length || colorKey(colors.at(-1)) !== colorKey(face.color)) colors.push(face.color ?? null);
    face.material = colors.length - 1;
  }
  geometry.setAttribute('position', new BufferAttribute(floats(shape.positions), 3));
  geometry.setAttribute('normal', new BufferAttribute(floats(shape.normals), 3));
  geometry.setIndex(new BufferAttribute(index, 1));
  return { geometry, faces, colors };
}

// A block's shape, shared by all the places where the block stands.
class Shape {
  constructor(data) {
    Object.assign(this, buildFaces(data));
    this.color = data.color;
    this.segments = floats(data.segments);
    this.lines = data.edges ?? []; // in the order of their segments
    this.parts = [...this.faces, ...this.lines]; // what a mechanical id can name
    this.edges = this.segments.length ? new LineSegmentsGeometry() : null;
    this.geometry.computeBoundingSphere();
    this.show(() => true);
    const largest = this.geometry.groups.reduce((a, b) => (b.count > a.count ? b : a), { count: 0 });
    this.mainColor = this.colors[largest.materialIndex] ?? null; // null: the part's or the reference's
  }

  // Shows some of the faces and edges and hides the others, which are not drawn and not met by rays. An edge that
  // bounds hidden faces only is hidden with them.
  show(isShown) {
    for (const part of this.parts) part.shown = isShown(part);
    const shown = this.faces.filter((face) => face.shown);
    const isWhole = shown.length === this.faces.length;
    this.geometry.clearGroups();
    for (const { begin, end, material } of shown) {
      const last = this.geometry.groups.at(-1);
      if (last?.materialIndex === material && last.start + last.count === begin) last.count += end - begin;
      else this.geometry.addGroup(begin, end - begin, material);
    }
    if (isWhole) this.geometry.computeBoundingBox();
    else this.geometry.boundingBox = this.#boxOf(shown);
    if (!isWhole) this.#hideBoundsOfHidden();
    this.edges?.dispose(); // what is drawn of them has another size now
    this.edges?.setPositions(this.#shownSegments());
  }

  #hideBoundsOfHidden() {
    const { geometry, faces, lines, segments } = this;
    const positions = geometry.getAttribute('position').array;
    this.bounded ??= facesOfEdges(lines, segments, faces, geometry.index.array, positions);
    for (const [i, bounded] of this.bounded.entries()) {
      if (bounded.length && !bounded.some((face) => face.shown)) lines[i].shown = false;
    }
  }

  #shownSegments() {
    const hidden = this.lines.filter(({ shown }) => !shown);
    const missing = hidden.reduce((sum, { begin, end }) => sum + end - begin, 0);
    const result = new Float32Array(this.segments.length - missing);
    let from = 0;
    let at = 0;
    for (const { begin, end } of [...hidden, { begin: this.segments.length }]) {
      result.set(this.segments.subarray(from, begin), at);
      at += begin - from;
      from = end;
    }
    return result;
  }

  #boxOf(faces) {
    const box = new Box3();
    const point = new Vector3();
    const positions = this.geometry.getAttribute('position');
    for (const { begin, end } of faces) {
      for (const vertex of this.geometry.index.array.subarray(begin, end)) {
        box.expandByPoint(point.fromBufferAttribute(positions, vertex));
      }
    }
    return box;
  }

  // The face of a triangle that a ray has met.
  faceOfTriangle(triangle) {
    let low = 0;
    let high = this.faces.length - 1;
    while (low < high) {
      const middle = (low + high + 1) >> 1;
      if (this.faces[middle].begin <= triangle * 3) low = middle;
      else high = middle - 1;
    }
    return this.faces[low];
  }

  // The triangles of one face, on the vertices of the whole shape.
  faceGeometry(face) {
    const geometry = new BufferGeometry();
    geometry.setAttribute('position', this.geometry.getAttribute('position'));
    geometry.setAttribute('normal', this.geometry.getAttribute('normal'));
    const index = this.geometry.index.array.subarray(face.begin, face.end);
    geometry.setIndex(new BufferAttribute(index, 1));
    geometry.boundingBox = this.#boxOf([face]);
    return geometry;
  }

  edgeGeometry(edge) {
    return new LineSegmentsGeometry().setPositions(this.segments.subarray(edge.begin, edge.end));
  }
}

// One place of a block in the product tree. `path` holds the blocks on the way, against a tree that bites its tail.
class TreeNode {
  constructor(model, reference, parent, path) {
    this.model = model;
    this.reference = reference;
    this.parent = parent;
    this.block = model.blocks.get(reference.blockId);
    this.name = reference.name || this.block?.name || 'unnamed';
    this.color = reference.color ?? parent?.color;
    this.visible = !reference.hidden;
    const within = [...path, reference.blockId];
    this.children = (this.block?.references ?? [])
      .filter((child) => !within.includes(child.blockId))
      .map((child) => new TreeNode(model, child, this, within));
  }

  // The kilograms of all bodies here and below; null when those of one are not known.
  get mass() {
    if (this.block?.isPart) return this.block.mechanical?.mass ?? (this.block.shape ? null : 0);
    const below = this.children.map((child) => child.mass);
    return below.includes(null) ? null : below.reduce((sum, mass) => sum + mass, 0);
  }

  *all() {
    const left = [this];
    while (left.length) {
      const node = left.pop();
      yield node;
      left.push(...node.children.slice().reverse());
    }
  }
}

export class Model {
  constructor(scene) {
    this.title = scene.title;
    this.units = scene.units;
    this.views = scene.views ?? [];
    this.openView = scene.openView;
    this.mass = scene.mass ?? null;
    const pmi = new Pmi(scene.pmi ?? {});
    this.pmi = pmi.elements.length ? pmi : null;
    this.annotations = scene.annotations ?? [];
    this.blocks = new Map(scene.blocks.map((block) => [block.id, block]));
    for (const block of scene.blocks) block.shape = block.shape && new Shape(block.shape);
    this.roots = scene.references.map((reference) => new TreeNode(this, reference, null, []));
    const places = new Map();
    for (const { block } of this.nodes()) if (block) places.set(block.id, (places.get(block.id) ?? 0) + 1);
    const holes = new Holes(scene.blocks, places);
    this.holes = holes.elements.length ? holes : null;
    const layers = new Layers(scene.blocks);
    this.layers = layers.all.length ? layers : null;
  }

  *nodes() {
    for (const root of this.roots) yield* root.all();
  }

  // The faces and edges of which an element of the PMI speaks: [{ block, part }].
  linked(element) {
    const partsOf = ({ id, shape }) => (shape?.parts ?? []).filter((part) => speaksOf(element, id, part));
    return [...this.blocks.values()].flatMap((block) => partsOf(block).map((part) => ({ block, part })));
  }
}
