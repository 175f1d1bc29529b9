// The holes and threads of the parts as a drawing lists them: on one line those of a pattern, or the equal ones of a
// part.

import { direction, number, point } from './figures.js';
import { speaksOf } from './pmi.js';

const kTypes = {
  simple: 'Hole',
  taper: 'Taper hole',
  counterbore: 'Counterbored hole',
  countersink: 'Countersunk hole',
  counterdrill: 'Counterdrilled hole',
};

function alike(all, keyOf) {
  const groups = new Map();
  for (const one of all) {
    const key = JSON.stringify(keyOf(one));
    if (!groups.has(key)) groups.set(key, []);
    groups.get(key).push(one);
  }
  return [...groups.values()];
}

// A line bears `ones`, the holes or threads that it stands for.
function line(block, kind, ones, type) {
  const [{ text, index }] = ones;
  return {
    id: `${block.id}/${kind}/${index}`,
    kind,
    type,
    text: ones.length > 1 ? `${ones.length}X ${text}` : text,
    name: block.name,
    block: block.id,
    block_id: block.id,
    links: ones.flatMap((one) => one.faces.map((face) => ({ mechanical_id: face }))),
    ones,
  };
}

function linesOf(block) {
  const { holes = [], threads = [], patterns = [] } = block.mechanical ?? {};
  const whole = holes.map((hole, index) => ({ ...hole, index, thread: threads.find((one) => one.hole === index) }));
  const bare = threads.map((thread, index) => ({ ...thread, index }));
  return [
    ...alike(whole, ({ text, pattern }) => [text, pattern]).map((ones) => {
      const [{ kind, pattern }] = ones;
      return { ...line(block, 'Hole', ones, kTypes[kind]), pattern: patterns[pattern] };
    }),
    ...alike(
      bare.filter(({ hole }) => hole === null),
      ({ text, kind }) => [text, kind]
    ).map((ones) => line(block, 'Thread', ones, `${ones[0].kind} thread`)),
  ];
}

// The faces of one hole or thread speak of the line on which it stands.
export class Holes {
  // `places` tells how often each block stands in the product.
  constructor(blocks, places) {
    this.groups = [];
    for (const block of blocks) {
      const elements = places.has(block.id) ? linesOf(block) : [];
      const count = elements.reduce((sum, { ones }) => sum + ones.length, 0);
      const title = block.name + (places.get(block.id) > 1 ? ` ×${places.get(block.id)}` : '');
      if (count) this.groups.push({ title, count, elements });
    }
    this.elements = this.groups.flatMap(({ elements }) => elements);
    this.byId = new Map(this.elements.map((element) => [element.id, element]));
  }

  speakingOf(block, face) {
    return this.elements.filter((element) => speaksOf(element, block, face));
  }
}

const joined = (...texts) => texts.filter(Boolean).join(', ');

function axes(holes) {
  const directions = [...new Set(holes.map(({ axis }) => direction(axis.direction)))];
  const at = ({ axis }) => point(axis.origin) + (directions.length > 1 ? ` along ${direction(axis.direction)}` : '');
  return [
    ['Direction', directions.length === 1 && directions[0]],
    [holes.length > 1 ? 'Axes at' : 'Axis at', holes.map(at).join('\n')],
  ];
}

function holeRows({ ones, pattern }, unit) {
  const [hole] = ones;
  const length = (value) => `${number(value)} ${unit}`;
  const wide = hole.counter_diameter && `⌀${number(hole.counter_diameter)}`;
  const wideDepth = hole.counter_depth && `${length(hole.counter_depth)} deep`;
  const cone = hole.counter_angle && `${number(hole.counter_angle)}°`;
  const { designation, depth, hand } = hole.thread ?? {};
  return [
    ['Diameter', length(hole.diameter)],
    ['Depth', joined(length(hole.depth), hole.through ? 'through' : hole.end.replaceAll('_', ' '))],
    ['Tip', hole.end === 'blind' && (hole.tip_angle ? `${number(hole.tip_angle)}°` : 'flat')],
    ['Taper', hole.taper_angle && `${number(hole.taper_angle)}°`],
    [hole.kind === 'countersink' ? 'Countersink' : 'Counterbore', joined(wide, wideDepth, cone)],
    ['Sink', hole.sink_diameter && `⌀${number(hole.sink_diameter)}`],
    ['Thread', joined(designation, depth && `${length(depth)} deep`, hand === 'left' && 'left hand')],
    ['Pattern', pattern?.text],
    ...axes(ones),
  ];
}

function threadRows({ ones: [thread] }, unit) {
  const length = (value) => value && `${number(value)} ${unit}`;
  return [
    ['Diameter', length(thread.diameter)],
    ['Pitch', length(thread.pitch)],
    [thread.kind === 'external' ? 'Length' : 'Depth', length(thread.depth)],
    ['Hand', thread.hand !== 'unknown' && thread.hand],
  ];
}

export const rowsOf = (element, unit) =>
  element.kind === 'Hole' ? holeRows(element, unit) : threadRows(element, unit);

// Which of the holes of a line a face belongs to.
export function whichOne({ kind, ones }, face) {
  const index = ones.findIndex(({ faces }) => faces.includes(face.mechanicalId));
  const at = kind === 'Hole' ? `at ${point(ones[index].axis.origin)}` : '';
  return joined(ones.length > 1 && `${index + 1} of ${ones.length}`, at);
}
