// usage: node viewer.test.js [--pmi] [--mechanical] PAGE.html [SCREENSHOT.png]
// Opens the page in Chromium without a display and uses it as a person would. Prints what it checks; exits with 1 at
// the first check that fails. What a page does not have is not checked, unless --pmi tells that it has PMI, and
// --mechanical that it has holes, layers and a mass.
import assert from 'node:assert/strict';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const words = process.argv.slice(2);
const mustHavePmi = words.includes('--pmi');
const mustBeMechanical = words.includes('--mechanical');
const [page, screenshot] = words.filter((word) => !word.startsWith('--'));
const browser = await chromium.launch({
  executablePath: process.env.BROWSER || '/usr/bin/chromium',
  args: [
    '--use-gl=angle',
    '--use-angle=swiftshader',
    '--enable-unsafe-swiftshader',
    '--disable-background-networking',
    '--disable-component-update',
    '--disable-sync',
    '--disable-quic',
    '--no-first-run',
  ],
  chromiumSandbox: false, // does not work for root
});

// The canvas as it is now: how much of it the model covers, and the covered pixel that is nearest to its middle.
const look = () => {
  const { stage } = window.viewer;
  const canvas = stage.renderer.domElement;
  stage.render();
  const copy = document.createElement('canvas');
  copy.width = canvas.clientWidth;
  copy.height = canvas.clientHeight;
  const context = copy.getContext('2d');
  context.drawImage(canvas, 0, 0, copy.width, copy.height);
  const { data } = context.getImageData(0, 0, copy.width, copy.height);
  let covered = 0;
  let nearest = null;
  for (let i = 0; i < copy.width * copy.height; i++) {
    if (data[i * 4 + 3] < 255) continue;
    covered++;
    const x = i % copy.width;
    const y = Math.floor(i / copy.width);
    const distance = Math.hypot(x - copy.width / 2, y - copy.height / 2);
    if (!nearest || distance < nearest.distance) nearest = { x, y, distance };
  }
  return { share: covered / (copy.width * copy.height), nearest, triangles: stage.renderer.info.render.triangles };
};

const pressedView = (tab) => tab.locator('#views button[aria-pressed="true"]').innerText();
const shownLines = (tab) => tab.locator('#pmi-list .line:visible');
const ids = (lines) => lines.evaluateAll((all) => [...new Set(all.map((line) => line.dataset.id))].sort());

// The PMI as the page has it: each element with the faces, in all their places, that its own links name.
const elements = () => {
  const { model } = window.viewer;
  const places = [...model.nodes()].flatMap((node) =>
    (node.block?.shape?.faces ?? []).map(({ mechanicalId }) => `${node.block.id} ${mechanicalId}`)
  );
  return model.pmi.elements.map((element) => {
    const named = element.links.map((link) => `${link.block_id ?? element.block_id} ${link.mechanical_id}`);
    const faces = places.filter((face) => named.includes(face));
    const drawn = model.annotations.filter(({ mechanicalId }) => mechanicalId === element.id).map(({ id }) => id);
    return { id: element.id, text: element.text, faces: faces.sort(), drawn: drawn.sort() };
  });
};

// What is lit now; a face is lit twice, before and behind what hides it.
const lit = () => {
  const { stage } = window.viewer;
  const faces = [];
  stage.parts.traverse(({ material, userData: { part, place } }) => {
    if (part?.mesh && material.depthTest) faces.push(`${place.block.id} ${part.mechanicalId}`);
  });
  const drawn = stage.annotations.drawn().filter(({ look }) => look === 'lit');
  return { faces: faces.sort(), drawn: drawn.map(({ data }) => data.id).sort() };
};

// A point of the canvas with a face of which something is said in the list of the PMI or of the holes.
const spokenOf = (list) => {
  const { model, stage } = window.viewer;
  const { clientWidth, clientHeight } = stage.renderer.domElement;
  for (let y = 90; y < clientHeight - 90; y += 5) {
    for (let x = 5; x < clientWidth - 320; x += 5) {
      const { node, face } = stage.pick(x, y) ?? {};
      const said = face ? model[list].speakingOf(node.block.id, face).map(({ id }) => id) : [];
      if (said.length) return { x, y, face: `${node.block.id} ${face.mechanicalId}`, said: said.sort() };
    }
  }
  return null;
};

async function checkPmi(tab) {
  await tab.locator('#tabs button', { hasText: 'PMI' }).click();
  const all = await tab.evaluate(elements);
  await tab.locator('#grouping button', { hasText: 'By kind' }).click();
  assert.deepEqual(await ids(shownLines(tab)), all.map(({ id }) => id).sort(), 'the list has all elements');

  const linked = all.filter(({ faces }) => faces.length);
  assert.ok(linked.length, 'elements are linked to faces');
  for (const element of [linked[0], linked.at(-1)]) {
    await tab.locator(`#pmi-list [data-id="${element.id}"]`).click();
    await tab.evaluate(look);
    const { faces, drawn } = await tab.evaluate(lit);
    assert.deepEqual(faces, element.faces, `${element.text} lights its faces and no others`);
    if (element.drawn.length) assert.deepEqual(drawn, element.drawn, 'and its own drawn form');
    assert.deepEqual(await ids(tab.locator('#pmi-list .line.selected')), [element.id]);
    console.log(`"${element.text}" lights ${faces.length} faces and ${drawn.length} drawn annotations`);
  }

  const [{ text }] = linked;
  await tab.locator('#pmi-filter').fill(text);
  const words = text.toLowerCase().split(/\s+/);
  const found = await shownLines(tab).evaluateAll((lines) => lines.map((line) => line.ariaLabel.toLowerCase()));
  const fits = (label) => words.every((word) => label.includes(word));
  assert.ok(found.length && found.every(fits), `the search finds "${text}"`);
  await tab.locator('#pmi-filter').fill('nothing is called so');
  assert.equal(await shownLines(tab).count(), 0, 'and nothing else');
  await tab.locator('#pmi-filter').fill('');

  await tab.keyboard.press('Escape');
  await tab.locator('#toolbar button', { hasText: 'Iso' }).click();
  await tab.evaluate(look);
  const spot = await tab.evaluate(spokenOf, 'pmi');
  assert.ok(spot, 'a face with PMI can be seen');
  const corner = await tab.locator('#canvas').boundingBox();
  await tab.mouse.click(corner.x + spot.x, corner.y + spot.y);
  assert.deepEqual((await tab.evaluate(lit)).faces, [spot.face]);
  const told = tab.locator('#details h3:has-text("Said of this face") ~ .line');
  assert.deepEqual(await ids(told), spot.said, 'a click on a face tells what is said of it');
  assert.deepEqual(await ids(tab.locator('#pmi-list .line.about')), spot.said, 'and marks it in the list');
  await told.first().click();
  const chosen = await tab.evaluate(() => window.viewer.selection.element.id);
  assert.ok(spot.said.includes(chosen), 'a line there selects what it tells');
  console.log(`${spot.said.length} elements speak of the face ${spot.face}`);
}

// The lines of holes, with the faces, in all their places, of the holes for which they stand.
const holeLines = () => {
  const { model } = window.viewer;
  const nodes = [...model.nodes()];
  return model.holes.elements.map(({ id, kind, text, block, ones }) => {
    const { mechanical } = model.blocks.get(block);
    const all = kind === 'Hole' ? mechanical.holes : mechanical.threads;
    const names = [...new Set(ones.flatMap(({ index }) => all[index].faces))].map((face) => `${block} ${face}`);
    const places = nodes.filter((node) => node.block?.id === block);
    return { id, text, block, count: ones.length, places: places.length, faces: places.flatMap(() => names).sort() };
  });
};

async function checkHoles(tab) {
  await tab.locator('#tabs button', { hasText: 'Holes' }).click();
  const all = await tab.evaluate(holeLines);
  const told = await tab.evaluate(() => {
    const blocks = new Set([...window.viewer.model.nodes()].map(({ block }) => block));
    const data = [...blocks].flatMap((block) => block?.mechanical ?? []);
    const bare = (threads) => threads.filter(({ hole }) => hole === null);
    return data.flatMap(({ holes = [], threads = [] }) => [...holes, ...bare(threads)]).length;
  });
  const listed = all.reduce((sum, { count }) => sum + count, 0);
  assert.equal(listed, told, 'each hole stands on one line');
  const several = all.find(({ count }) => count > 1) ?? all[0];
  const repeated = all.find(({ places }) => places > 1) ?? all.at(-1);
  for (const line of [several, repeated]) {
    await tab.locator(`#holes-list [data-id="${line.id}"]`).click();
    assert.deepEqual((await tab.evaluate(lit)).faces, line.faces, `${line.text} lights its faces and no others`);
    assert.deepEqual(await ids(tab.locator('#holes-list .line.selected')), [line.id]);
  }

  await tab.keyboard.press('Escape');
  await tab.evaluate(look);
  const spot = await tab.evaluate(spokenOf, 'holes');
  assert.ok(spot, 'a face of a hole can be seen');
  const corner = await tab.locator('#canvas').boundingBox();
  await tab.mouse.click(corner.x + spot.x, corner.y + spot.y);
  assert.deepEqual(await ids(tab.locator('#holes-list .line.about')), spot.said, 'a click on it marks the line');
  await tab.locator(`#details .line[data-id="${spot.said[0]}"]`).click();
  const { faces } = await tab.evaluate(lit);
  assert.ok(faces.includes(spot.face), 'and the line there lights the hole');
  await tab.keyboard.press('Escape');
  console.log(`${all.length} lines tell of ${told} holes and threads`);
}

// A point of the canvas at which something on a layer stands, or what stands at a given point.
const onLayer = (point) => {
  const { model, stage } = window.viewer;
  const layersAt = ({ x, y }) => {
    const { node, face } = stage.pick(x, y) ?? {};
    return face ? model.layers.of(node.block.id, face).map(({ name }) => name) : [];
  };
  if (point) return layersAt(point);
  const { clientWidth, clientHeight } = stage.renderer.domElement;
  for (let y = 90; y < clientHeight - 90; y += 5) {
    for (let x = 5; x < clientWidth; x += 5) {
      const names = layersAt({ x, y });
      if (names.length === 1) return { x, y, name: names[0] };
    }
  }
  return null;
};

async function checkLayers(tab) {
  await tab.locator('#tabs button', { hasText: 'Layers' }).click();
  const before = await tab.evaluate(look);
  const spot = await tab.evaluate(onLayer);
  assert.ok(spot, 'something on a layer can be seen');
  const box = tab.getByRole('checkbox', { name: `Show ${spot.name}`, exact: true });
  await box.uncheck();
  const without = await tab.evaluate(look);
  assert.ok(without.triangles < before.triangles && without.share < before.share, `${spot.name} disappears`);
  assert.ok(!(await tab.evaluate(onLayer, spot)).includes(spot.name), 'and is not picked');
  await box.check();
  assert.deepEqual(await tab.evaluate(look), before, 'and comes back');
  console.log(`the layer ${spot.name} has ${before.triangles - without.triangles} triangles`);
}

async function checkMass(tab) {
  const [whole] = (await tab.locator('#summary').innerText()).match(/[\d,.]+ k?g\b/) ?? [];
  assert.ok(whole, 'the head tells the mass of the whole');
  await tab.locator('#tabs button', { hasText: 'Parts' }).click();
  await tab.locator('.row .name').first().click();
  const rows = await tab.locator('#details dl').innerText();
  assert.ok(rows.includes(whole), `the masses of the parts come to ${whole}`);
  await tab.keyboard.press('Escape');
  console.log(`the mass is ${whole}`);
}

try {
  const tab = await browser.newPage({ viewport: { width: 1200, height: 800 } });
  const complaints = [];
  tab.on('pageerror', (error) => complaints.push(error.message));
  tab.on('request', (request) => request.url().startsWith('file:') || complaints.push(`asks for ${request.url()}`));
  await tab.goto(pathToFileURL(page).href);
  await tab.waitForFunction(() => window.viewer);

  const { firstView, openView, has } = await tab.evaluate(() => {
    const { views, openView, pmi, holes, layers, mass } = window.viewer.model;
    const first = views.find((view) => view.annotationIds.length) ?? views[0];
    const has = { pmi: Boolean(pmi), holes: Boolean(holes), layers: Boolean(layers), mass: Boolean(mass) };
    return { firstView: first && (first.name || first.id), openView, has };
  });
  assert.ok(has.pmi || !mustHavePmi, 'there is PMI');
  assert.ok((has.holes && has.layers && has.mass) || !mustBeMechanical, 'there are holes, layers and a mass');
  if (firstView) assert.equal(await pressedView(tab), openView ?? firstView, 'the page opens on a saved view');
  const first = await tab.evaluate(look);
  assert.ok(first.triangles > 0, 'triangles are drawn');
  assert.ok(first.share > 0.02 && first.share < 0.9, `the model fills a good part of the picture, not ${first.share}`);
  console.log(`${first.triangles} triangles, ${Math.round(first.share * 100)} % of the picture`);

  const corner = await tab.locator('#canvas').boundingBox();
  await tab.mouse.click(corner.x + first.nearest.x, corner.y + first.nearest.y);
  const told = await tab.locator('#details').innerText();
  const selected = await tab.evaluate(() => {
    const { node, face } = window.viewer.selection;
    return { part: node?.name, block: node?.reference.blockId, face: face?.id };
  });
  assert.ok(selected.part && told.includes(selected.part), 'a click tells the name of the part');
  assert.match(selected.face, /^f\d+$/, 'and the id of its face');
  assert.ok(told.includes(selected.face) && told.includes(selected.block));
  assert.equal(await tab.locator('.row.selected .name').innerText(), selected.part, 'the tree shows it too');
  console.log(`the click selected ${selected.part}, face ${selected.face}`);

  if (has.pmi) await checkPmi(tab);
  if (has.holes) await checkHoles(tab);
  if (has.layers) await checkLayers(tab);
  if (has.mass) await checkMass(tab);
  if (screenshot) await tab.screenshot({ path: screenshot });

  if (await tab.locator('#tabs').isVisible()) await tab.locator('#tabs button', { hasText: 'Parts' }).click();
  const annotations = tab.locator('#toolbar button', { hasText: 'PMI' });
  if (await annotations.count()) await annotations.click();
  await tab.locator('.row input').first().uncheck();
  assert.equal((await tab.evaluate(look)).share, 0, 'hiding the root, and what is drawn of the PMI, hides all');
  await tab.locator('.row input').first().check();
  assert.ok((await tab.evaluate(look)).share > 0, 'and showing it brings all back');

  for (const view of await tab.locator('#views button').all()) {
    await view.click();
    assert.ok((await tab.evaluate(look)).share > 0.01, `the view ${await view.innerText()} shows the model`);
  }
  assert.deepEqual(complaints, [], 'no errors, and nothing asked of a network');
  console.log('passed');
} finally {
  await browser.close();
}
