// usage: node stated_holes.js FILE_NAME MODEL.json
// Holds the holes in the host's JSON against those counted by eye in the pictures of public test cases, and against the
// diameters that a file states of the same faces.
const assert = require('node:assert/strict');

const [name, path] = process.argv.slice(2);
const { blocks, pmi } = JSON.parse(require('node:fs').readFileSync(path));
const holes = blocks.flatMap((block) => (block.holes ?? []).map((hole) => ({ ...hole, block: block.id })));

// In the pictures of the view MBD_0 and of the views Top, Right and Bottom: how many holes of how many diameters.
const kCounted = {
    nist_ctc_01: [4, 4, 2], // at the corners, around the middle, in the front
    nist_ftc_08: [10, 4, 2, 2, 2], // around the opening, at the corners, two for each of three switches
};
const counted = Object.entries(kCounted).find(([file]) => name.startsWith(file))?.[1];
if (counted) {
    const groups = new Map();
    for (const { text } of holes) groups.set(text, (groups.get(text) ?? 0) + 1);
    assert.deepEqual([...groups.values()].sort((a, b) => b - a), counted);
}

// Drawings round their numbers: 0.2375 inches are stated as .238.
const kRounding = 0.0025;
const kMillimetres = { mm: 1, inch: 25.4 };
let compared = 0;
for (const { type, value, unit, text, links, block_id: block } of pmi.dimensions) {
    const faces = links.map((link) => `${link.block_id ?? block} ${link.mechanical_id}`);
    const drilled = holes.filter((hole) => hole.faces.some((face) => faces.includes(`${hole.block} ${face}`)));
    if (type !== 'diameter' || value === null || !drilled.length) continue;
    const stated = value * kMillimetres[unit];
    for (const hole of drilled) {
        const sizes = [hole.diameter, hole.counter_diameter ?? 0, hole.sink_diameter ?? 0];
        const off = Math.min(...sizes.map((size) => Math.abs(size - stated)));
        assert.ok(off <= kRounding * stated, `${text} is stated of a hole ${hole.text}`);
    }
    const times = /^(\d+)X /.exec(text)?.[1] ?? 1;
    assert.equal(drilled.length, Number(times), `${text} is stated of other holes`);
    compared++;
}
assert.ok(compared > 0, 'no diameter of a hole is stated');
