// The panel that tells what is selected: a place in the product tree, a face of it, an element of the PMI, or a
// line of holes.

import { unitSign } from './figures.js';
import { rowsOf, whichOne } from './holes.js';
import { line } from './lines_panel.js';
import { blockRows, faceRows, propertyRows } from './mechanical.js';
import { drawing } from './notation.js';

const hex = (color) => '#' + color.slice(0, 3).map((channel) => channel.toString(16).padStart(2, '0')).join('');
const words = (wire) => wire?.replaceAll('_', ' ');

export const swatch = (color) => {
  const chip = document.createElement('i');
  chip.className = 'swatch';
  if (color) chip.style.background = hex(color);
  return chip;
};

export class Details {
  constructor(panel, model, onSelect) {
    this.panel = panel;
    this.model = model;
    this.unit = unitSign(model.units);
    this.onSelect = onSelect;
  }

  show({ node, face, element }) {
    this.panel.hidden = !node && !element;
    this.panel.replaceChildren();
    this.panel.scrollTop = 0;
    if (face) this.#face(node, face);
    if (node) this.#place(node);
    if (element?.ones) this.#holes(element);
    else if (element) this.#element(element);
  }

  #place(node) {
    const { block, reference } = node;
    const color = block?.shape?.mainColor ?? node.color ?? block?.shape?.color;
    this.#head(block?.isPart ? 'Part' : 'Assembly', swatch(color), this.#label('', node.name));
    const where = [];
    for (let above = node.parent; above; above = above.parent) where.unshift(above.name);
    this.#rows([
      ...(block ? blockRows(block, node.mass, this.unit) : []),
      ['Block', block?.name !== node.name && block?.name],
      ['Block id', reference.blockId],
      ['Persistent id', reference.persistentId],
      ['Reference', reference.guid],
      ['In', where.join(' › ')],
      ...(block ? propertyRows(block) : []),
    ]);
  }

  #face(node, face) {
    const { mesh } = face;
    const { block } = node;
    const { pmi, holes, layers } = this.model;
    const color = face.color ?? node.color ?? block.shape.color;
    const onLayers = layers?.of(block.id, face) ?? [];
    const ofHoles = holes?.speakingOf(block.id, face) ?? [];
    this.#head('Face', swatch(color), this.#label('', `Face ${face.id}`));
    this.#rows([
      ...faceRows(block, face, this.unit),
      ['Mechanical id', face.mechanicalId],
      ['Body', [mesh.name !== node.name && mesh.name, mesh.id].filter(Boolean).join(' · ')],
      ['Layer', onLayers.map(({ name }) => name).join(', ')],
      ['Triangles', face.triangles.toLocaleString('en')],
      ...ofHoles.map((element) => [element.kind, whichOne(element, face)]),
    ]);
    this.#lines('Belongs to', ofHoles);
    this.#lines('Said of this face', pmi?.speakingOf(block.id, face) ?? []);
  }

  #holes(element) {
    const { pmi } = this.model;
    const faces = this.model.linked(element).map(({ part }) => part);
    this.#head(element.type, this.#label('drawing', ...drawing(element)));
    this.#rows([['Part', element.name], ...rowsOf(element, this.unit), ['Faces', faces.length]]);
    const said = faces.flatMap((face) => pmi?.speakingOf(element.block, face) ?? []);
    this.#lines('Said of these faces', [...new Set(said)]);
  }

  #element(element) {
    const { pmi, blocks } = this.model;
    const linked = this.model.linked(element).map(({ part }) => part);
    const faces = linked.filter((part) => part.mesh);
    this.#head(element.kind, this.#label('drawing', ...drawing(element)));
    this.#rows([
      ['Type', words(element.type)],
      ['Part', !pmi.ofOneBlock && blocks.get(element.block)?.name],
      ['Unit', words(element.unit)],
      ['Saved views', element.views.join(', ')],
      ['Faces', faces.map((face) => face.id).join(', ')],
      ['Edges', linked.length - faces.length || ''],
    ]);
    this.#lines(element.kind === 'Datum' ? 'Used by' : 'Datums', pmi.related(element));
  }

  #label(className, ...content) {
    const label = document.createElement('span');
    label.className = className;
    label.append(...content);
    return label;
  }

  #head(kind, ...content) {
    const head = document.createElement('h2');
    const tag = document.createElement('small');
    tag.textContent = kind;
    head.append(...content, tag);
    this.panel.append(head);
  }

  #rows(rows) {
    const list = document.createElement('dl');
    for (const [key, value, className = ''] of rows) {
      if (!value) continue;
      const term = document.createElement('dt');
      const detail = document.createElement('dd');
      term.textContent = key;
      detail.textContent = value;
      detail.className = className;
      list.append(term, detail);
    }
    this.panel.append(list);
  }

  #lines(title, elements) {
    if (!elements.length) return;
    const head = document.createElement('h3');
    head.textContent = title;
    this.panel.append(head, ...elements.map((element) => line(element, this.onSelect)));
  }
}
