// The product tree beside the picture: show and hide with the boxes, select with a click, open on demand.

import { swatch } from './details.js';

const kOpenAtFirst = 40; // a larger tree shows its top level only

export class TreeView {
  constructor(list, model, { onSelect, onShow, onLook }) {
    this.list = list;
    this.model = model;
    this.actions = { onSelect, onShow, onLook };
    for (const root of model.roots) list.append(this.#item(root));
    const nodes = [...model.nodes()];
    for (const node of nodes.length <= kOpenAtFirst ? nodes : model.roots) this.#open(node, true);
  }

  #item(node) {
    const item = document.createElement('li');
    item.setAttribute('role', 'treeitem');
    const row = document.createElement('div');
    row.className = 'row';

    const arrow = document.createElement('button');
    arrow.className = 'arrow';
    arrow.ariaLabel = 'Open or close';
    arrow.disabled = !node.children.length;
    arrow.onclick = () => this.#open(node, !item.classList.contains('open'));

    const box = document.createElement('input');
    box.type = 'checkbox';
    box.checked = node.visible;
    box.ariaLabel = `Show ${node.name}`;
    box.onchange = () => this.show(node, box.checked);

    const name = document.createElement('span');
    name.className = 'name';
    name.textContent = node.name;
    name.title = node.block && node.block.name !== node.name ? `${node.name} (${node.block.name})` : node.name;
    row.onclick = (event) => {
      if (event.target !== box && event.target !== arrow) this.actions.onSelect(node);
    };
    row.ondblclick = (event) => {
      if (event.target !== box && event.target !== arrow) this.actions.onLook(node);
    };

    row.append(arrow, box);
    if (node.block?.shape) row.append(swatch(node.block.shape.mainColor ?? node.color ?? node.block.shape.color));
    row.append(name);
    if (node.children.length) {
      const count = document.createElement('span');
      count.className = 'count';
      count.textContent = node.children.length;
      row.append(count);
    }
    item.append(row);
    node.item = item;
    node.row = row;
    node.box = box;
    row.classList.toggle('off', !node.visible);
    return item;
  }

  #open(node, open) {
    if (!node.children.length) return;
    if (!node.list) {
      node.list = document.createElement('ul');
      node.list.append(...node.children.map((child) => this.#item(child)));
      node.item.append(node.list);
    }
    node.item.classList.toggle('open', open);
  }

  #reveal(node) {
    if (node.parent) {
      this.#reveal(node.parent);
      this.#open(node.parent, true);
    }
  }

  // Showing a node shows the nodes above it too, which would keep it hidden otherwise.
  show(node, visible) {
    node.visible = visible;
    node.object.visible = visible;
    if (node.box) {
      node.box.checked = visible;
      node.row.classList.toggle('off', !visible);
    }
    if (visible && node.parent && !node.parent.visible) this.show(node.parent, true);
    this.actions.onShow();
  }

  select(node) {
    this.list.querySelector('.row.selected')?.classList.remove('selected');
    if (!node) return;
    this.#reveal(node);
    node.row.classList.add('selected');
    node.row.scrollIntoView({ block: 'nearest' });
  }

  // Leaves the rows that bear the text in their names, and those above them.
  filter(text) {
    const wanted = text.trim().toLowerCase();
    const kept = new Set();
    if (wanted) {
      for (const node of this.model.nodes()) {
        const names = [node.name, node.block?.name ?? ''];
        if (!names.some((name) => name.toLowerCase().includes(wanted))) continue;
        this.#reveal(node);
        for (let above = node; above && !kept.has(above); above = above.parent) kept.add(above);
      }
    }
    for (const node of this.model.nodes()) {
      if (node.item) node.item.hidden = wanted !== '' && !kept.has(node);
    }
  }
}
