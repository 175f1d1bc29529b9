// The list of the PMI: in the order of the saved views, of the datums or of the kinds.

import { LinesPanel } from './lines_panel.js';
import { button } from './views.js';

const kGroupings = { view: 'By view', datum: 'By datum', kind: 'By kind' };

export class PmiPanel extends LinesPanel {
  constructor(elements, model, { onSelect, onView }) {
    super(elements, model.pmi, onSelect);
    this.grouping = elements.grouping;
    this.model = model;
    this.onView = onView;
    for (const [by, text] of Object.entries(kGroupings)) {
      const chooser = button(text, () => this.groupBy(by));
      chooser.dataset.by = by;
      chooser.hidden = by === 'view' && !model.pmi.viewNames.length;
      this.grouping.append(chooser);
    }
    this.groupBy(model.pmi.viewNames.length ? 'view' : 'kind');
  }

  groupBy(by) {
    for (const chooser of this.grouping.children) chooser.ariaPressed = chooser.dataset.by === by;
    this.by = by;
    this.show(this.model.pmi.grouped(by, (block) => this.model.blocks.get(block)?.name ?? 'product'));
  }

  group(content) {
    const { view } = content;
    const group = super.group(content);
    if (view !== undefined && this.model.views.some((saved) => saved.name === view)) {
      group.dataset.view = view;
      const open = button('show', () => this.onView(view), `Open the saved view ${view}`);
      group.querySelector('.count').before(open);
    }
    return group;
  }

  // A saved view opens its own group and closes the others.
  showView(view) {
    this.view = view;
    this.settle();
  }

  settle() {
    if (this.by !== 'view') return;
    const own = [...this.list.children].find((group) => this.view && group.dataset.view === this.view.name);
    for (const group of this.list.children) group.open = !own || group === own;
  }
}
