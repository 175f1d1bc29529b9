// usage: node viewer.test.js PAGE.html [SCREENSHOT.png]
// Opens the page in Chromium without a display and uses it as a person would. Prints what it checks; exits with 1 at the
// first check that fails.
import assert from 'node:assert/strict';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const [page, screenshot] = process.argv.slice(2);
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

try {
  const tab = await browser.newPage({ viewport: { width: 1200, height: 800 } });
  const complaints = [];
  tab.on('pageerror', (error) => complaints.push(error.message));
  tab.on('request', (request) => request.url().startsWith('file:') || complaints.push(`asks for ${request.url()}`));
  await tab.goto(pathToFileURL(page).href);
  await tab.waitForFunction(() => window.viewer);

  const first = await tab.evaluate(look);
  assert.ok(first.triangles > 0, 'triangles are drawn');
  assert.ok(first.share > 0.05 && first.share < 0.9, `the model fills a good part of the picture, not ${first.share}`);
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

  if (screenshot) await tab.screenshot({ path: screenshot });

  await tab.locator('.row input').first().uncheck();
  assert.equal((await tab.evaluate(look)).share, 0, 'hiding the root hides all');
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
