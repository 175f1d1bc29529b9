// What a drawing writes: frames of tolerances and datums, and symbols that many fonts do not have.

const circle = (radius) => `M8 ${8 - radius}a${radius} ${radius} 0 1 0 .01 0z`;

// Strokes in a square of 16 by 16.
const kSymbols = {
  '⏤': 'M1 8h14',
  '⏥': 'M1 12.5 5 3.5h10l-4 9z',
  '○': circle(5.5),
  '⌭': circle(3.4) + 'M1 14 5.5 2M10.5 14 15 2',
  '⌒': 'M1.5 12a6.5 6.5 0 0 1 13 0',
  '⌓': 'M1.5 12a6.5 6.5 0 0 1 13 0z',
  '∠': 'M14.5 13H1.5L13 4',
  '⟂': 'M1.5 13.5h13M8 13.5v-12',
  '∥': 'M3 14.5 7.5 1.5M8.5 14.5 13 1.5',
  '⌖': circle(4.2) + 'M8 .8v14.4M.8 8h14.4',
  '◎': circle(6) + circle(3),
  '⌯': 'M1 8h14M4 4h8M4 12h8',
  '↗': 'M2.5 13.5l11-11M8 2.5h5.5V8',
  '⌰': 'M9 13.5H1.5L7 5M3.5 5.4 7 5l.8 3.4M9 13.5 14.5 5M11 5.4l3.5-.4.8 3.4',
  '⌀': circle(5) + 'M3 14 13 2',
  '□': 'M3 3h10v10H3z',
  '↧': 'M3 2.5h10M8 2.5V14M4.5 10 8 14l3.5-4',
  '⌴': 'M2 4v8h12V4',
  '⌵': 'M2 4l6 8 6-8',
};
const kSvg = 'http://www.w3.org/2000/svg';
const kSpecial = new RegExp(`([${Object.keys(kSymbols).join('')}Ⓐ-Ⓩ])`, 'u');
const kFrame = /^(.*?)([⏤⏥○⌭⌒⌓∠⟂∥⌖◎⌯↗⌰]) (.*?)( all around| all over)?$/u;

function span(className, ...content) {
  const result = document.createElement('span');
  result.className = className;
  result.append(...content);
  return result;
}

function symbol(strokes) {
  const picture = document.createElementNS(kSvg, 'svg');
  const path = document.createElementNS(kSvg, 'path');
  picture.setAttribute('class', 'symbol');
  picture.setAttribute('viewBox', '0 0 16 16');
  path.setAttribute('d', strokes);
  picture.append(path);
  return picture;
}

// "Ⓜ" is a letter in a circle.
const circled = (character) => span('circled', String.fromCharCode(character.charCodeAt(0) - 'Ⓐ'.charCodeAt(0) + 65));

function written(text) {
  return text.split(kSpecial).map((piece) => {
    if (kSymbols[piece]) return symbol(kSymbols[piece]);
    return /^[Ⓐ-Ⓩ]$/u.test(piece) ? circled(piece) : piece;
  });
}

// A compartment each for the symbol, the value and the datums; what stands beside the frame stays outside.
function frame({ text, datums }) {
  const found = text.match(kFrame);
  if (!found) return written(text);
  const [, before, sign, inner, after = ''] = found;
  const compartments = [[sign], []];
  const labels = datums.map(({ label }) => label.split('-')[0]); // "D Ⓜ-E Ⓜ" is of the common datum "D-E"
  for (const word of inner.split(' ')) {
    if (word.split('-')[0] === labels[0]) {
      labels.shift();
      compartments.push([]);
    }
    compartments.at(-1).push(word);
  }
  const cells = compartments.map((cell) => span('', ...written(cell.join(' '))));
  return [...written(before), span('frame', ...cells), after];
}

// The text of an element, as nodes.
export function drawing(element) {
  const { kind, text, label } = element;
  if (kind === 'Tolerance') return frame(element);
  if (!label || !text.startsWith(label)) return written(text);
  return [span(kind === 'Datum' ? 'datum' : 'target', label), ...written(text.slice(label.length))];
}
