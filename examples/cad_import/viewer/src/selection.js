// What is selected: a place in the product tree and maybe a face of it, an element of the PMI or a line of
// holes. Shows it in colour.

import { Mesh, MeshBasicMaterial } from 'three';
import { LineMaterial } from 'three/addons/lines/LineMaterial.js';
import { LineSegments2 } from 'three/addons/lines/LineSegments2.js';

const kLit = 0xff8a1f;

const overlay = (color, opacity, how) =>
  new MeshBasicMaterial({
    color,
    opacity,
    transparent: true,
    depthWrite: false,
    side: 2,
    toneMapped: false,
    polygonOffset: true,
    polygonOffsetFactor: 1,
    polygonOffsetUnits: 1,
    ...how,
  });
const partMaterial = overlay(0x2f7df6, 0.3);
const faceMaterial = overlay(kLit, 0.78);
const throughMaterial = overlay(kLit, 0.16, { depthTest: false }); // a lit face shines through what hides it
const edgeMaterial = new LineMaterial({
  color: kLit,
  linewidth: 3,
  transparent: true,
  depthTest: false,
  toneMapped: false,
});

export class Selection {
  constructor(stage, details) {
    this.stage = stage;
    this.details = details;
    this.overlays = [];
    this.node = null;
    this.face = null;
    this.element = null;
    this.onChange = () => {};
  }

  set(node, face = null) {
    this.#begin({ node, face: node && face, element: null });
    if (node) {
      for (const place of node.all()) {
        if (!place.mesh) continue;
        const materials = place.mesh.material.map(() => partMaterial);
        this.#cover(place, new Mesh(place.mesh.geometry, materials), 1);
      }
    }
    if (this.face) this.#light(node, this.face);
    this.#end();
  }

  // Lights what an element of the PMI or a line of holes is linked to, in all places, and its drawn form.
  setElement(element) {
    const { model, annotations } = this.stage;
    this.#begin({ node: null, face: null, element });
    for (const { block, part } of model.linked(element)) {
      for (const place of model.nodes()) if (place.block === block) this.#light(place, part);
    }
    annotations.light(annotations.of(element));
    this.#end();
    this.#comeIntoView();
  }

  // After a change of what is shown.
  refresh() {
    if (this.element) this.setElement(this.element);
    else this.set(this.node, this.face);
  }

  #begin(selected) {
    Object.assign(this, selected);
    for (const object of this.overlays) {
      object.removeFromParent();
      if (object.geometry !== object.userData.place.mesh.geometry) object.geometry.dispose();
    }
    this.overlays = [];
    this.stage.annotations.light([]);
  }

  #end() {
    this.details.show(this);
    this.onChange();
    this.stage.draw();
  }

  #cover(place, object, order, part) {
    object.renderOrder = order;
    object.raycast = () => {};
    object.userData.part = part;
    object.userData.place = place;
    place.object.add(object);
    object.updateWorldMatrix(true, false);
    this.overlays.push(object);
  }

  #light(place, part) {
    const { shape } = place.block;
    if (!part.shown) return;
    if (part.mesh) {
      const geometry = shape.faceGeometry(part);
      this.#cover(place, new Mesh(geometry, faceMaterial), 2, part);
      if (this.element) this.#cover(place, new Mesh(geometry, throughMaterial), 2, part);
    } else {
      this.#cover(place, new LineSegments2(shape.edgeGeometry(part), edgeMaterial), 2, part);
    }
  }

  // Turns to what is lit only when nothing of it is in the picture.
  #comeIntoView() {
    const drawn = this.stage.annotations.drawn().filter(({ lit }) => lit);
    const places = [...new Set(this.overlays.map(({ userData }) => userData.place.mesh))];
    if (places.length && !this.stage.sees([...drawn, ...this.overlays])) this.stage.fit(places);
  }
}
