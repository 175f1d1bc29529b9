// The page: puts the scene that the host wrote into the picture and the panels around it.

import { Details } from './details.js';
import { mass, unitSign } from './figures.js';
import { buildLayers } from './layers_panel.js';
import { LinesPanel } from './lines_panel.js';
import { Model } from './model.js';
import { PmiPanel } from './pmi_panel.js';
import { Selection } from './selection.js';
import { Stage } from './stage.js';
import { TreeView } from './tree.js';
import { buildSavedViews, buildToolbar } from './views.js';

const kClickSlack = 4; // pixels that the pointer may move within a click

const element = (id) => document.getElementById(id);
const model = new Model(JSON.parse(element('scene').textContent));
const canvas = element('canvas');
const stage = new Stage(canvas, model);
const details = new Details(element('details'), model, (said) => selection.setElement(said));
const selection = new Selection(stage, details);

function fit(node = selection.node) {
  const meshes = node ? [...node.all()].map((part) => part.mesh).filter(Boolean) : [];
  stage.fit(meshes.length ? meshes : undefined);
}

const tree = new TreeView(element('tree'), model, {
  onSelect: (node) => selection.set(node),
  onShow: () => stage.draw(),
  onLook: (node) => fit(node),
});
const openView = buildSavedViews(element('views'), stage, model.views, (view) => pmiPanel?.showView(view));
const pmiElements = { list: element('pmi-list'), filter: element('pmi-filter'), grouping: element('grouping') };
const pmiActions = { onSelect: (said) => selection.setElement(said), onView: openView };
const pmiPanel = model.pmi && new PmiPanel(pmiElements, model, pmiActions);
const holesElements = { list: element('holes-list'), filter: element('holes-filter') };
const holesPanel = model.holes && new LinesPanel(holesElements, model.holes, pmiActions.onSelect);
holesPanel?.show(model.holes.groups);
selection.onChange = () => {
  const { node, face } = selection;
  tree.select(node);
  for (const panel of [pmiPanel, holesPanel]) {
    panel?.mark(selection.element, face ? panel.source.speakingOf(node.reference.blockId, face) : []);
  }
};
if (model.layers) {
  buildLayers(element('layers-list'), model, () => {
    stage.showLayers();
    selection.refresh();
  });
}

function showTab(id) {
  for (const tab of element('tabs').children) {
    const panel = tab.getAttribute('aria-controls');
    tab.ariaSelected = panel === id;
    element(panel).hidden = panel !== id;
  }
}
const lists = ['pmi', 'holes', 'layers'].filter((list) => model[list]);
for (const tab of element('tabs').children) {
  const panel = tab.getAttribute('aria-controls');
  tab.onclick = () => showTab(panel);
  tab.hidden = panel !== 'parts' && !lists.includes(panel);
}
element('tabs').hidden = !lists.length;
showTab([...model.nodes()].length === 1 ? (lists[0] ?? 'parts') : 'parts'); // a tree of one part tells nothing

function describe() {
  const nodes = [...model.nodes()];
  const parts = nodes.filter((node) => node.block?.isPart).length;
  const count = (number, noun) => `${number.toLocaleString('en')} ${noun}${number === 1 ? '' : 's'}`;
  const facts = [count(parts, 'part')];
  if (nodes.length > parts) facts.push(count(nodes.length - parts, 'assembly').replace('assemblys', 'assemblies'));
  if (model.annotations.length) facts.push(count(model.annotations.length, 'annotation'));
  if (model.mass) facts.push(mass(model.mass));
  if (model.units) facts.push(unitSign(model.units));
  return facts.join(' · ');
}
document.title = model.title;
element('title').textContent = model.title;
element('summary').textContent = describe();
element('filter').hidden = [...model.nodes()].length < 8;
element('filter').oninput = (event) => tree.filter(event.target.value);
buildToolbar(element('toolbar'), stage, () => fit());
openView(model.openView);

let pressed = null;
canvas.addEventListener('pointerdown', (event) => (pressed = event));
canvas.addEventListener('pointerup', (event) => {
  if (!pressed || Math.hypot(event.clientX - pressed.clientX, event.clientY - pressed.clientY) > kClickSlack) return;
  const hit = stage.pick(event.offsetX, event.offsetY);
  if (hit?.element) selection.setElement(hit.element);
  else selection.set(hit?.node ?? null, hit?.face);
});
window.addEventListener('keydown', (event) => {
  if (event.target instanceof HTMLInputElement && event.target.type === 'search') return;
  if (event.key === 'Escape') selection.set(null);
  if (event.key === 'f' && !event.ctrlKey && !event.metaKey) fit();
});

stage.render();
// For programs that look at the page: the figures of the last drawing and the selection.
window.viewer = { model, stage, selection };
