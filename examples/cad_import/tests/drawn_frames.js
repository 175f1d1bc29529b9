// usage: node drawn_frames.js PMI.json
// Draws the tolerances of the host's JSON as the page does: a compartment each for the symbol, the value and each datum.
const assert = require('node:assert/strict');

const { tolerances } = JSON.parse(require('node:fs').readFileSync(process.argv[2])).pmi;
const element = () => ({
    content: [],
    append(...nodes) { this.content.push(...nodes); },
    setAttribute() {},
});
globalThis.document = { createElement: element, createElementNS: element };

import('../viewer/src/notation.js').then(({ drawing }) => {
    for (const { text, value, datums, all_over: allOver } of tolerances) {
        const frame = drawing({ kind: 'Tolerance', text, datums }).find(({ className }) => className === 'frame');
        assert.equal(frame.content.length, 2 + datums.length, text);
        assert.equal(value === null, text.includes('–'), text);
        assert.equal(allOver, text.endsWith('all over'), text);
    }
});
