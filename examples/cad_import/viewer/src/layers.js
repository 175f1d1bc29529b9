// The layers of the file over all its parts, and what is shown of what stands on them.

const isOn = (layers) => !layers.length || layers.some(({ on }) => on);

// Ids of annotations, such as "1/0/notes/3", are unique in the product; those of shapes are so in their block.
const keyOf = (block, id) => (/^\d+\/\d+\//.test(id) ? id : `${block} ${id}`);

// All but a vertex, such as "0/v4".
const isDrawn = (id) => !/(^|\/)v\d+$/.test(id);

export class Layers {
  constructor(blocks) {
    this.all = [];
    this.byEntity = new Map();
    for (const block of blocks) {
      for (const layer of block.mechanical?.layers ?? []) this.#add(block.id, layer);
    }
    this.all.sort((a, b) => a.id - b.id || a.name.localeCompare(b.name));
  }

  #add(block, { id, name, hidden, entities }) {
    let layer = this.all.find((other) => other.id === id && other.name === name);
    if (!layer) this.all.push((layer = { id, name, on: true, isTold: false, count: 0 }));
    if (entities.some(isDrawn)) {
      layer.on = !hidden || (layer.isTold && layer.on);
      layer.isTold = true;
    }
    layer.count += entities.length;
    for (const entity of entities) {
      const key = keyOf(block, entity);
      this.byEntity.set(key, [...(this.byEntity.get(key) ?? []), layer]);
    }
  }

  #ofEntity(block, id) {
    return this.byEntity.get(keyOf(block, id)) ?? [];
  }

  #ofBody(block, { mesh }) {
    return mesh ? this.#ofEntity(block, mesh.mechanicalId) : [];
  }

  // Those of an edge, or of a face and its body.
  of(block, part) {
    return [...this.#ofEntity(block, part.mechanicalId), ...this.#ofBody(block, part)];
  }

  ofAnnotation(id) {
    return this.#ofEntity(null, id);
  }

  // Of several layers it is enough that one is on. A body is hidden with all its faces.
  shows(block, part) {
    return isOn(this.#ofEntity(block, part.mechanicalId)) && isOn(this.#ofBody(block, part));
  }

  showsAnnotation(id) {
    return isOn(this.ofAnnotation(id));
  }
}
