// Numbers as the page writes them.

const kUnits = {
  millimeter: 'mm',
  centimeter: 'cm',
  decimeter: 'dm',
  meter: 'm',
  kilometer: 'km',
  microinch: 'µin',
  milliinch: 'mil',
  inch: 'in',
  foot: 'ft',
  mile: 'mi',
};
const kNothing = 1e-9; // what rounding leaves of a zero

export const unitSign = (units) => kUnits[units] ?? units;

export const number = (value) => (Math.abs(value) < kNothing ? '0' : String(+value.toPrecision(6)).replace('-', '−'));

export const point = (coordinates) => coordinates.map(number).join(', ');

// A direction along an axis has the name of the axis.
export function direction(vector) {
  const axis = vector.findIndex((value) => Math.abs(Math.abs(value) - 1) < 1e-6);
  return axis < 0 ? point(vector) : (vector[axis] < 0 ? '−' : '+') + 'XYZ'[axis];
}

export function mass(kilograms) {
  const [value, unit] = kilograms < 1 ? [kilograms * 1000, 'g'] : [kilograms, 'kg'];
  return `${value.toLocaleString('en', { maximumSignificantDigits: 4 })} ${unit}`;
}
