// usage: node viewer.test.js [--pmi] PAGE.html [SCREENSHOT.png]
// Opens the page in Chromium without a display and uses it as a person would. Prints what it checks; exits with 1 at
// the first check that fails. A page without PMI passes, unless --pmi tells that it has some.
import assert from 'node:assert/strict';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const words = process.argv.slice(2);
const mustHavePmi = words.includes('--pmi');
const [page, screenshot] = words.filter((word) => word !== '--pmi');
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

// A point of the canvas with a face of which something is said.
const spokenOf = () => {
  const { model, stage } = window.viewer;
  const { clientWidth, clientHeight } = stage.renderer.domElement;
  for (let y = 90; y < clientHeight - 90; y += 5) {
    for (let x = 5; x < clientWidth - 320; x += 5) {
      const { node, face } = stage.pick(x, y) ?? {};
      const said = face ? model.pmi.speakingOf(node.block.id, face).map(({ id }) => id) : [];
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
  const spot = await tab.evaluate(spokenOf);
  assert.ok(spot, 'a face with PMI can be seen');
  const corner = await tab.locator('#canvas').boundingBox();
  await tab.mouse.click(corner.x + spot.x, corner.y + spot.y);
  assert.deepEqual((await tab.evaluate(lit)).faces, [spot.face]);
  assert.deepEqual(await ids(tab.locator('#details .line')), spot.said, 'a click on a face tells what is said of it');
  assert.deepEqual(await ids(tab.locator('#pmi-list .line.about')), spot.said, 'and marks it in the list');
  await tab.locator('#details .line').first().click();
  const chosen = await tab.evaluate(() => window.viewer.selection.element.id);
  assert.ok(spot.said.includes(chosen), 'a line there selects what it tells');
  console.log(`${spot.said.length} elements speak of the face ${spot.face}`);
}

try {
  const tab = await browser.newPage({ viewport: { width: 1200, height: 800 } });
  const complaints = [];
  tab.on('pageerror', (error) => complaints.push(error.message));
  tab.on('request', (request) => request.url().startsWith('file:') || complaints.push(`asks for ${request.url()}`));
  await tab.goto(pathToFileURL(page).href);
  await tab.waitForFunction(() => window.viewer);

  const { first: firstView, openView, hasPmi } = await tab.evaluate(() => {
    const { views, openView, pmi } = window.viewer.model;
    const first = views.find((view) => view.annotationIds.length) ?? views[0];
    return { first: first && (first.name || first.id), openView, hasPmi: Boolean(pmi) };
  });
  assert.ok(hasPmi || !mustHavePmi, 'there is PMI');
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

  if (hasPmi) await checkPmi(tab);
  if (screenshot) await tab.screenshot({ path: screenshot });

  if (hasPmi) await tab.locator('#tabs button', { hasText: 'Parts' }).click();
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
