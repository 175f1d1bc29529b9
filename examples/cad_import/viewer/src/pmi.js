// What the file says of the model's faces and edges: dimensions, tolerances, datums, datum targets and notes.

export const kKinds = {
  dimensions: 'Dimension',
  tolerances: 'Tolerance',
  datums: 'Datum',
  datum_targets: 'Datum target',
  notes: 'Note',
};

function names(link, part) {
  // A link to a body means all faces of it.
  if (link.kind === 'body') return Boolean(part.mesh) && part.mechanicalId.startsWith(`${link.body}/`);
  return part.mechanicalId === link.mechanical_id;
}

// Whether an element speaks of a face or an edge of a block.
export const speaksOf = (element, block, part) =>
  element.links.some((link) => String(link.block_id ?? element.block_id) === block && names(link, part));

// The letters of the datums that an element is, belongs to or refers to. "A-B" is a datum of two.
function datumsOf(element) {
  if (element.kind === 'Datum') return [element.label];
  if (element.kind === 'Datum target') return element.label.match(/^\p{L}+/u) ?? [];
  return (element.datums ?? []).flatMap(({ label }) => label.split('-'));
}

export class Pmi {
  constructor(data) {
    this.elements = Object.entries(kKinds).flatMap(([list, kind]) =>
      (data[list] ?? []).map((element) => ({ ...element, kind, block: String(element.block_id) }))
    );
    for (const element of this.elements) element.letters = datumsOf(element);
    this.byId = new Map(this.elements.map((element) => [element.id, element]));
    const viewNames = (data.views ?? []).map((view) => view.name);
    this.viewNames = [...new Set([...viewNames, ...this.elements.flatMap((element) => element.views)])];
    this.ofOneBlock = new Set(this.elements.map((element) => element.block)).size === 1;
  }

  speakingOf(block, face) {
    return this.elements.filter((element) => speaksOf(element, block, face));
  }

  // The datums of an element; of a datum, what belongs or refers to it.
  related(element) {
    const near = this.elements.filter((other) => other !== element && other.block === element.block);
    const isDatum = element.kind === 'Datum';
    const share = (other) => other.letters.some((letter) => element.letters.includes(letter));
    return near.filter((other) => (other.kind === 'Datum') !== isDatum && share(other));
  }

  // The elements as a list with headings: [{ title, elements }]. An element can stand below several of them.
  grouped(by, blockName) {
    const groups = by === 'view' ? this.#byView() : by === 'datum' ? this.#byDatum(blockName) : this.#byKind();
    return groups.filter(({ elements }) => elements.length);
  }

  #byView() {
    const inView = (name) => this.elements.filter((element) => element.views.includes(name));
    return [
      ...this.viewNames.map((name) => ({ title: name, view: name, elements: inView(name) })),
      { title: 'In no saved view', elements: this.elements.filter((element) => !element.views.length) },
    ];
  }

  #byDatum(blockName) {
    const groups = new Map();
    for (const element of this.elements) {
      for (const letter of new Set(element.letters)) {
        const title = `Datum ${letter}` + (this.ofOneBlock ? '' : ` · ${blockName(element.block)}`);
        if (!groups.has(title)) groups.set(title, { title, elements: [] });
        groups.get(title).elements.push(element);
      }
    }
    const order = { Datum: 0, 'Datum target': 1 };
    for (const { elements } of groups.values()) elements.sort((a, b) => (order[a.kind] ?? 2) - (order[b.kind] ?? 2));
    return [
      ...[...groups.values()].sort((a, b) => a.title.localeCompare(b.title)),
      { title: 'Without a datum', elements: this.elements.filter((element) => !element.letters.length) },
    ];
  }

  #byKind() {
    return Object.values(kKinds).map((kind) => ({
      title: `${kind}s`,
      elements: this.elements.filter((element) => element.kind === kind),
    }));
  }
}
