// usage: node stated_pmi.js FILE_NAME PMI.json
// Holds the PMI in the host's JSON against what the text of a public test case states, entity by entity, and against the
// words of its drawing.
const assert = require('node:assert/strict');

const [name, path] = process.argv.slice(2);
const { pmi } = JSON.parse(require('node:fs').readFileSync(path));

// Dimensions, those with a value, tolerances, datums, datum targets, saved views; tolerances by type; texts.
const kStated = {
    nist_ctc_01: [
        [12, 8, 6, 3, 0, 1],
        { location_true_position: 2, form_profile_any_surface: 2, form_flatness: 1, orientation_perpendicularity: 1 },
        ['⏥ 0.2', '⌀ 34.8 - 35.2'],
    ],
    nist_ctc_02: [
        [7, 7, 22, 10, 9, 3],
        {
            form_profile_any_surface: 13,
            location_true_position: 4,
            orientation_perpendicularity: 3,
            form_flatness: 1,
            form_profile_any_line: 1,
        },
        ['2X ⌀ 100 ±0.15', '2X ⌀ 52 ±0.15', '⌖ ⌀1.5 Ⓜ A B C', '⌖ ⌀1 Ⓛ A B C', '⌒ 0.25 A B C', 'K1 ⌀85 area'],
    ],
    nist_ctc_03: [
        [10, 9, 13, 6, 0, 1],
        {
            location_true_position: 6,
            form_profile_any_surface: 3,
            orientation_perpendicularity: 2,
            orientation_angularity: 1,
            form_flatness: 1,
        },
        ['4X ⌀ 0.625 ±0.005', '(0.750)', '⌀ 2.00 ±0.01', '⌖ ⌀0.05 Ⓜ A B Ⓜ C Ⓜ', '⏥ 0.005/0.25×0.25', '∠ 0.04 A'],
    ],
    nist_ctc_05: [
        [6, 6, 10, 4, 2, 2],
        {
            run_out_circular: 3,
            run_out_total: 2,
            orientation_perpendicularity: 2,
            location_concentricity: 1,
            form_circularity: 1,
            form_straightness: 1,
        },
        ['[1.250]', '5.000 ±0.008 ⟨ST⟩', '↗ 0.035 A-B', '⌰ 0.002 A', '◎ ⌀0.03 A', '⏤ 0.005', '○ 0.002'],
    ],
    nist_ftc_08: [
        [10, 10, 33, 11, 0, 13],
        {
            location_true_position: 13,
            form_profile_any_surface: 11,
            orientation_parallelism: 5,
            form_flatness: 3,
            orientation_perpendicularity: 1,
        },
        [
            '10X ⌀ 0.213 +0.005/-0.001',
            '2X ⌀ 0.25 +0.006/-0.001',
            '⌀ 0.242 +0.005/-0.001',
            '(□ 1.1)',
            '∥ 0.015 Ⓣ D',
            '∥ 0.03 Ⓕ Ⓣ A',
            '⏥ 0.03 Ⓕ',
            '⟂ ⌀0.015 Ⓜ Ⓕ A',
            '⌖ ⌀0.023 Ⓜ Ⓕ A B C',
            '⌓ 0.015 D H Ⓜ-J Ⓜ all around',
            '⌓ 0.04 D E-F all around',
        ],
    ],
};

const stated = Object.entries(kStated).find(([begin]) => name.startsWith(begin));
if (!stated) process.exit(0); // not one of the test cases
const [numbers, types, texts] = stated[1];
const { dimensions, tolerances, datums, datum_targets: targets, views } = pmi;
const valued = dimensions.filter(({ unit }) => unit !== 'none');
const lists = [dimensions, valued, tolerances, datums, targets, views];
assert.deepEqual(lists.map((list) => list.length), numbers);

const byType = {};
for (const { type } of tolerances) byType[type] = (byType[type] ?? 0) + 1;
assert.deepEqual(byType, types);

const told = Object.values(pmi).flatMap((list) => list.map(({ text }) => text));
for (const text of texts) assert.ok(told.includes(text), `no "${text}"`);
const inch = /_(ctc_03|ctc_05|ftc_08)/.test(name);
for (const { text, unit } of tolerances) assert.equal(unit, inch ? 'inch' : 'mm', text);
for (const { text, links } of [...dimensions, ...tolerances]) assert.ok(links.length > 0, `nothing is linked to ${text}`);
