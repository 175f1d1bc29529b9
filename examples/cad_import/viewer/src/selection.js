// What is selected: a place in the product tree, and maybe a face of it. Shows it in colour and tells its names.

import { Mesh, MeshBasicMaterial } from 'three';

const overlay = (color, opacity) =>
  new MeshBasicMaterial({
    color,
    opacity,
    transparent: true,
    depthWrite: false,
    side: 2,
    toneMapped: false,
    polygonOffset: true,
    polygonOffsetFactor: 1,
    polygonOffsetUnits: 1,
  });
const partMaterial = overlay(0x2f7df6, 0.3);
const faceMaterial = overlay(0xff8a1f, 0.78);

const hex = (color) => '#' + color.slice(0, 3).map((channel) => channel.toString(16).padStart(2, '0')).join('');

export const swatch = (color) => {
  const chip = document.createElement('i');
  chip.className = 'swatch';
  if (color) chip.style.background = hex(color);
  return chip;
};

export class Selection {
  constructor(stage, panel) {
    this.stage = stage;
    this.panel = panel;
    this.overlays = [];
    this.node = null;
    this.face = null;
    this.onChange = () => {};
  }

  set(node, face = null) {
    this.node = node;
    this.face = node && face;
    for (const mesh of this.overlays) {
      mesh.removeFromParent();
      if (mesh.material === faceMaterial) mesh.geometry.dispose();
    }
    this.overlays = [];
    if (node) {
      for (const part of node.all()) if (part.mesh) this.#cover(part, part.mesh.geometry, partMaterial);
    }
    if (this.face) this.#cover(node, node.block.shape.faceGeometry(face), faceMaterial);
    this.#tell();
    this.onChange();
    this.stage.draw();
  }

  #cover(part, geometry, material) {
    const mesh = new Mesh(geometry, material);
    mesh.renderOrder = material === faceMaterial ? 2 : 1;
    mesh.raycast = () => {};
    part.object.add(mesh);
    this.overlays.push(mesh);
  }

  #tell() {
    const { node, face } = this;
    this.panel.hidden = !node;
    this.panel.replaceChildren();
    if (!node) return;
    const { block, reference } = node;
    this.#head(node.name, block?.isPart ? 'Part' : 'Assembly', block?.shape?.mainColor ?? node.color ?? block?.shape?.color);
    const where = [];
    for (let above = node.parent; above; above = above.parent) where.unshift(above.name);
    this.#rows([
      ['Block', block?.name !== node.name && block?.name],
      ['Block id', reference.blockId],
      ['Persistent id', reference.persistentId],
      ['Reference', reference.guid],
      ['In', where.join(' › ')],
      ...(block?.properties ?? []).map(({ name, value }) => [name, value]),
    ]);
    if (face) {
      const mesh = face.mesh;
      this.#head(`Face ${face.id}`, 'Face', face.color ?? node.color ?? block.shape.color);
      this.#rows([
        ['Mechanical id', face.mechanicalId],
        ['Body', [mesh.name !== node.name && mesh.name, mesh.id].filter(Boolean).join(' · ')],
        ['Triangles', face.triangles.toLocaleString('en')],
      ]);
    }
  }

  #head(text, kind, color) {
    const head = document.createElement('h2');
    const label = document.createElement('span');
    const tag = document.createElement('small');
    label.textContent = text;
    tag.textContent = kind;
    head.append(swatch(color), label, tag);
    this.panel.append(head);
  }

  #rows(rows) {
    const list = document.createElement('dl');
    for (const [key, value] of rows) {
      if (!value) continue;
      const term = document.createElement('dt');
      const detail = document.createElement('dd');
      term.textContent = key;
      detail.textContent = value;
      list.append(term, detail);
    }
    this.panel.append(list);
  }
}
