// What is told of a part, a body or a face beside its form: materials, mass, stated figures, names and lines.

import { mass, number, point } from './figures.js';

const listed = (words) => new Intl.ListFormat('en-GB').format(words);

function materialRows({ name, density, properties, bodies }) {
  return [
    ['Material', name + (bodies.length ? ` (${bodies.join(', ')})` : '')],
    ['Density', density && `${number(density)} kg/m³`],
    ...properties
      .filter((property) => !/density/i.test(property.name))
      .map((property) => [property.name, `${number(property.value)} ${property.unit}`]),
  ];
}

function difference({ what, body, stated, found, deviation }, unit) {
  const write = (figure) => (Array.isArray(figure) ? point(figure) : number(figure));
  const off = what === 'centroid' ? `${number(deviation)} ${unit}` : `${number(deviation * 100)} %`;
  return `${what}${body ? ` of ${body}` : ''} off by ${off}: ${write(found)}, stated ${write(stated)}`;
}

// A row about what the file states of the part or assembly for its receivers to check.
function checkedRow(stated, unit) {
  const wrong = stated.filter(({ agrees }) => !agrees).map((figure) => difference(figure, unit));
  const right = stated.length ? `${listed(new Set(stated.map(({ what }) => what)))} as stated` : '';
  return ['Checked against the file', wrong.join('\n') || right, wrong.length ? 'differs' : ''];
}

// What the rows say need not be said by free properties too.
const isSaid = ({ materials = [], layers = [] }, { name }) =>
  (materials.length && /^(material|density)$/i.test(name)) || (layers.length && /^layer$/i.test(name));

// Of an assembly only the stated figures are told.
export function blockRows({ mechanical }, kilograms, unit) {
  const { materials = [], layers = [], stated = [] } = mechanical ?? {};
  const ofBodies = layers.filter(({ entities }) => entities.some((id) => /^b\d+$/.test(id)));
  return [
    ...materials.flatMap(materialRows),
    ['Mass', kilograms && mass(kilograms)],
    ['Layer', ofBodies.map(({ name }) => name).join(', ')],
    checkedRow(stated, unit),
  ];
}

export const propertyRows = ({ mechanical, properties }) =>
  properties.filter((property) => !mechanical || !isSaid(mechanical, property)).map(({ name, value }) => [name, value]);

export function faceRows({ mechanical }, face, unit) {
  const told = mechanical?.entities?.find(({ entity }) => entity === face.mechanicalId);
  if (!told) return [];
  const type = told.line_type === 'unknown' ? '' : told.line_type.replaceAll('_', ' ');
  const thickness = told.line_thickness ? `${number(told.line_thickness)} ${unit}` : '';
  return [
    ['Name', told.name],
    ['Persistent name', told.names.join(', ')],
    ['Line', [type, thickness].filter(Boolean).join(', ')],
  ];
}
