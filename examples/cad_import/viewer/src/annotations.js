// The annotations as the file draws them: strokes and filled letters, in colours without light.

import { Box3, BufferAttribute, BufferGeometry, DoubleSide, Group, Mesh, MeshBasicMaterial, Vector3 } from 'three';
import { LineMaterial } from 'three/addons/lines/LineMaterial.js';
import { LineSegments2 } from 'three/addons/lines/LineSegments2.js';
import { LineSegmentsGeometry } from 'three/addons/lines/LineSegmentsGeometry.js';

import { floats, indices } from './model.js';
import { srgb } from './parts.js';

const kColor = [23, 92, 211];
const kLit = [224, 92, 0];
const kTooLight = 170; // on the ground of the page; of 255
const kBehind = 0.25; // how opaque what is seen from behind is
const kFarOff = 1.5; // diagonals of the model
const kReach = 8; // pixels across a stroke that still hit it

const inks = new Map();

// Files made for a dark ground say white.
function legible([red, green, blue] = kColor) {
  return 0.3 * red + 0.59 * green + 0.11 * blue > kTooLight ? kColor : [red, green, blue];
}

// The two materials of a colour in one of the looks 'plain', 'behind' and 'lit'.
function ink([red, green, blue], look) {
  const key = [red, green, blue, look].join();
  if (!inks.has(key)) {
    const how = { color: srgb([red, green, blue]), toneMapped: false };
    if (look === 'behind') Object.assign(how, { transparent: true, opacity: kBehind, depthWrite: false });
    if (look === 'lit') Object.assign(how, { transparent: true, depthTest: false });
    inks.set(key, {
      stroke: new LineMaterial({ ...how, linewidth: look === 'lit' ? 1.7 : 1.1 }),
      filling: new MeshBasicMaterial({ ...how, side: DoubleSide }),
    });
  }
  return inks.get(key);
}

// One annotation. `normal` points to those who read it, if the file tells from where it is read.
class Annotation extends Group {
  constructor(data, normal) {
    super();
    this.data = data;
    this.normal = normal;
    this.box = new Box3();
    this.shown = true;
    this.onLayer = true;
    this.lit = false;
    this.look = 'plain';
    const { stroke, filling } = ink(legible(data.color ?? undefined), this.look);
    const segments = floats(data.segments);
    if (segments.length) {
      this.#add('stroke', new LineSegments2(new LineSegmentsGeometry().setPositions(segments), stroke));
    }
    const triangles = indices(data.triangles);
    if (triangles.length) {
      const geometry = new BufferGeometry();
      geometry.setAttribute('position', new BufferAttribute(floats(data.positions), 3));
      geometry.setIndex(new BufferAttribute(triangles, 1));
      this.#add('filling', new Mesh(geometry, filling));
    }
    this.middle = this.box.getCenter(new Vector3());
  }

  #add(kind, object) {
    object.userData.ink = kind;
    object.geometry.computeBoundingBox();
    this.box.union(object.geometry.boundingBox);
    this.add(object);
  }

  isBehind(camera) {
    if (!this.normal) return false;
    const away = camera.getWorldDirection(new Vector3());
    if (camera.isPerspectiveCamera) away.subVectors(this.middle, camera.position);
    return away.dot(this.normal) > 0;
  }

  setLook(look) {
    if (look === this.look) return;
    this.look = look;
    const materials = ink(look === 'lit' ? kLit : legible(this.data.color ?? undefined), look);
    for (const object of this.children) {
      object.material = materials[object.userData.ink];
      object.renderOrder = look === 'lit' ? 3 : 0;
    }
  }
}

export class Annotations extends Group {
  // `modelBox` holds all parts. What lies far from it, as by a wrong unit, is drawn but not looked for.
  constructor(model, modelBox) {
    super();
    const near = modelBox.clone().expandByScalar(kFarOff * modelBox.getSize(new Vector3()).length());
    for (const data of model.annotations) {
      const element = model.pmi?.byId.get(data.mechanicalId);
      const annotation = new Annotation(data, element && this.#normal(model, element));
      annotation.element = element;
      annotation.isNear = modelBox.isEmpty() || near.containsBox(annotation.box);
      this.add(annotation);
    }
  }

  // The plane is told in the coordinates of the block, which is drawn where it first stands.
  #normal(model, { plane, block }) {
    if (!plane) return null;
    const [u, v] = [new Vector3(...plane.u), new Vector3(...plane.v)];
    const place = [...model.nodes()].find((node) => node.reference.blockId === block);
    if (place) for (const axis of [u, v]) axis.transformDirection(place.object.matrixWorld);
    const normal = u.cross(v);
    return normal.lengthSq() > 1e-12 ? normal.normalize() : null;
  }

  // The drawn form of an element. The second line of a composite frame is drawn with the first.
  of(element) {
    const bearer = element.composite_of ?? element.id;
    return this.children.filter((annotation) => annotation.element?.id === bearer);
  }

  // Shows those annotations whose id is in the list, or all for null.
  show(ids) {
    for (const annotation of this.children) annotation.shown = !ids || ids.includes(annotation.data.id);
    this.#update();
  }

  showLayers(layers) {
    for (const annotation of this.children) annotation.onLayer = layers.showsAnnotation(annotation.data.mechanicalId);
    this.#update();
  }

  light(annotations) {
    for (const annotation of this.children) annotation.lit = annotations.includes(annotation);
    this.#update();
  }

  #update() {
    for (const annotation of this.children) {
      annotation.visible = (annotation.shown && annotation.onLayer) || annotation.lit;
    }
  }

  drawn() {
    return this.visible ? this.children.filter((annotation) => annotation.visible) : [];
  }

  // Once for each picture.
  face(camera) {
    for (const annotation of this.drawn()) {
      annotation.setLook(annotation.lit ? 'lit' : annotation.isBehind(camera) ? 'behind' : 'plain');
    }
  }

  // The nearest stroke or filling that a ray meets, of an annotation that the model knows.
  pick(raycaster) {
    raycaster.params.Line2 = { threshold: kReach };
    const known = this.drawn().filter(({ element, look }) => element && look !== 'behind');
    return raycaster.intersectObjects(known, true)[0];
  }
}
