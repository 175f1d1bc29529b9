// The list of the PMI beside the picture: in groups that open and close, with a search and a mark on what is selected.

import { drawing } from './notation.js';
import { button } from './views.js';

const kGroupings = { view: 'By view', datum: 'By datum', kind: 'By kind' };

// An element as a drawing writes it.
export function line(element, onSelect) {
  const result = button('', () => onSelect(element), `${element.kind}: ${element.text}`);
  result.className = 'line drawing';
  result.ariaLabel = element.text;
  result.dataset.id = element.id;
  result.append(...drawing(element));
  return result;
}

export class PmiPanel {
  constructor(elements, model, { onSelect, onView }) {
    Object.assign(this, elements); // list, filter, grouping
    this.model = model;
    this.actions = { onSelect, onView };
    this.selected = null;
    this.about = [];
    this.filter.oninput = () => this.#search();
    for (const [by, text] of Object.entries(kGroupings)) {
      const chooser = button(text, () => this.group(by));
      chooser.dataset.by = by;
      chooser.hidden = by === 'view' && !model.pmi.viewNames.length;
      this.grouping.append(chooser);
    }
    this.group(model.pmi.viewNames.length ? 'view' : 'kind');
  }

  group(by) {
    for (const chooser of this.grouping.children) chooser.ariaPressed = chooser.dataset.by === by;
    const groups = this.model.pmi.grouped(by, (block) => this.model.blocks.get(block)?.name ?? 'product');
    this.list.replaceChildren(...groups.map((group) => this.#group(group)));
    this.by = by;
    this.#followView();
    this.#search();
    this.#mark();
  }

  #group({ title, view, elements }) {
    const group = document.createElement('details');
    const head = document.createElement('summary');
    const name = document.createElement('span');
    const count = document.createElement('span');
    name.className = 'name';
    name.textContent = title;
    count.className = 'count';
    count.textContent = elements.length;
    head.append(name, count);
    if (view !== undefined && this.model.views.some((saved) => saved.name === view)) {
      group.dataset.view = view;
      head.insertBefore(button('show', () => this.actions.onView(view), `Open the saved view ${view}`), count);
    }
    group.open = true;
    group.append(head, ...elements.map((element) => line(element, this.actions.onSelect)));
    return group;
  }

  // A saved view opens its own group and closes the others.
  showView(view) {
    this.view = view;
    this.#followView();
  }

  #followView() {
    if (this.by !== 'view') return;
    const own = [...this.list.children].find((group) => this.view && group.dataset.view === this.view.name);
    for (const group of this.list.children) group.open = !own || group === own;
  }

  // Leaves the lines that bear all the words in their text, kind or type.
  #search() {
    const wanted = this.filter.value.toLowerCase().split(/\s+/).filter(Boolean);
    for (const group of this.list.children) {
      const lines = [...group.querySelectorAll('.line')];
      for (const entry of lines) {
        const { text, kind, type = '' } = this.model.pmi.byId.get(entry.dataset.id);
        const said = [text, kind, type.replaceAll('_', ' ')].join(' ').toLowerCase();
        entry.hidden = !wanted.every((word) => said.includes(word));
      }
      group.hidden = lines.every((entry) => entry.hidden);
      if (wanted.length) group.open = true;
    }
    if (!wanted.length) this.#followView();
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
      const element = this.model.pmi.byId.get(entry.dataset.id);
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
