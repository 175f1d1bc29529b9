// The layers of the file over all its parts, and what is shown of what stands on them.

const isOn = (layers) => !layers.length || layers.some(({ on }) => on);
const keyOf = (block, id) => `${block} ${id}`;

// The body that an id of a face or an edge tells of.
const bodyOf = (id) => id.match(/^(\d+)\/[ef]\d+$/)?.[1];

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
    if (!layer) this.all.push((layer = { id, name, on: false, count: 0 }));
    layer.on ||= !hidden;
    layer.count += entities.length;
    for (const entity of entities) {
      const key = keyOf(block, entity);
      this.byEntity.set(key, [...(this.byEntity.get(key) ?? []), layer]);
    }
  }

  #ofEntity(block, id) {
    return this.byEntity.get(keyOf(block, id)) ?? [];
  }

  // Those of a face or an edge, and of its body.
  of(block, id) {
    const body = bodyOf(id);
    return [...this.#ofEntity(block, id), ...(body ? this.#ofEntity(block, `b${body}`) : [])];
  }

  // Annotations have the number of their block in their id.
  ofAnnotation(id) {
    return this.#ofEntity(id.split('/', 1)[0], id);
  }

  // Of several layers it is enough that one is on. A body that is hidden is so with its faces and edges.
  shows(block, id) {
    const body = bodyOf(id);
    return isOn(this.#ofEntity(block, id)) && (!body || isOn(this.#ofEntity(block, `b${body}`)));
  }

  showsAnnotation(id) {
    return isOn(this.ofAnnotation(id));
  }
}
