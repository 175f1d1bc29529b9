// Which faces an edge bounds: those among whose vertices its points are.

const key = (numbers, at) => `${numbers[at]},${numbers[at + 1]},${numbers[at + 2]}`;

// For each edge, which is a range of the segments, a list of faces, which are ranges of the index. One segment from the
// middle of an edge tells: its ends touch faces that it does not bound.
export function facesOfEdges(edges, segments, faces, index, positions) {
  const facesAt = new Map();
  const ends = edges.map(({ begin, end }) => {
    const middle = begin + Math.floor((end - begin) / 12) * 6;
    return [key(segments, middle), key(segments, middle + 3)];
  });
  for (const end of ends.flat()) facesAt.set(end, new Set());
  for (const face of faces) {
    for (const vertex of new Set(index.subarray(face.begin, face.end))) {
      facesAt.get(key(positions, vertex * 3))?.add(face);
    }
  }
  return ends.map(([from, to]) => [...facesAt.get(from)].filter((face) => facesAt.get(to).has(face)));
}
