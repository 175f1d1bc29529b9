// A list of what a drawing says, beside the picture: in groups that open and close, with a search and a mark on what is
// selected.

import { drawing } from './notation.js';
import { button } from './views.js';

// An element as a drawing writes it.
export function line(element, onSelect) {
  const result = button('', () => onSelect(element), `${element.kind}: ${element.text}`);
  result.className = 'line drawing';
  result.ariaLabel = element.text;
  result.dataset.id = element.id;
  result.append(...drawing(element));
  return result;
}

export class LinesPanel {
  // `source` has the elements by their ids.
  constructor({ list, filter }, source, onSelect) {
    this.list = list;
    this.filter = filter;
    this.source = source;
    this.onSelect = onSelect;
    this.selected = null;
    this.about = [];
    filter.oninput = () => this.#search();
  }

  show(groups) {
    this.list.replaceChildren(...groups.map((group) => this.group(group)));
    this.#search();
    this.#mark();
  }

  group({ title, elements, count = elements.length }) {
    const group = document.createElement('details');
    const head = document.createElement('summary');
    const name = document.createElement('span');
    const pill = document.createElement('span');
    name.className = 'name';
    name.textContent = title;
    pill.className = 'count';
    pill.textContent = count;
    head.append(name, pill);
    group.open = true;
    group.append(head, ...elements.map((element) => line(element, this.onSelect)));
    return group;
  }

  // Opens and closes the groups when nothing is searched for.
  settle() {}

  // Leaves the lines that bear all the words in their text, kind, type or name.
  #search() {
    const wanted = this.filter.value.toLowerCase().split(/\s+/).filter(Boolean);
    for (const group of this.list.children) {
      const lines = [...group.querySelectorAll('.line')];
      for (const entry of lines) {
        const { text, kind, type = '', name = '' } = this.source.byId.get(entry.dataset.id);
        const said = [text, kind, type.replaceAll('_', ' '), name].join(' ').toLowerCase();
        entry.hidden = !wanted.every((word) => said.includes(word));
      }
      group.hidden = lines.every((entry) => entry.hidden);
      if (wanted.length) group.open = true;
    }
    if (!wanted.length) this.settle();
  }

  // Marks the selected element, and what is said of the selected face.
  mark(selected, about) {
    this.selected = selected;
    this.about = about;
    this.#mark();
  }

  #mark() {
    const marked = [];
    for (const entry of this.list.querySelectorAll('.line')) {
      const element = this.source.byId.get(entry.dataset.id);
      entry.classList.toggle('selected', element === this.selected);
      entry.classList.toggle('about', this.about.includes(element));
      if (element === this.selected || this.about.includes(element)) marked.push(entry);
    }
    if (!marked.length) return;
    const first = marked.find((entry) => entry.parentElement.open && !entry.hidden) ?? marked[0];
    first.parentElement.open = true;
    first.scrollIntoView({ block: 'nearest' });
  }
}
