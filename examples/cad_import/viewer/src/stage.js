// The 3D picture: lights, cameras, the model's objects, and drawing when something has changed.

import {
  AmbientLight,
  Box3,
  DirectionalLight,
  NeutralToneMapping,
  Object3D,
  OrthographicCamera,
  PerspectiveCamera,
  Plane,
  PMREMGenerator,
  Raycaster,
  Scene,
  Vector2,
  Vector3,
  WebGLRenderer,
} from 'three';
import { OrbitControls } from 'three/addons/controls/OrbitControls.js';
import { RoomEnvironment } from 'three/addons/environments/RoomEnvironment.js';

import { Annotations } from './annotations.js';
import { Parts } from './parts.js';

const kFieldOfView = 22; // degrees
const kFitMargin = 1.1;
export const kIsometric = { direction: new Vector3(-1, 1.25, -0.85), up: new Vector3(0, 0, 1) };

export class Stage {
  constructor(canvas, model) {
    Object3D.DEFAULT_UP.set(0, 0, 1);
    this.model = model;
    this.renderer = new WebGLRenderer({ canvas, antialias: true, alpha: true });
    this.renderer.setPixelRatio(window.devicePixelRatio);
    this.renderer.toneMapping = NeutralToneMapping;
    this.scene = new Scene();
    this.clipping = [];
    this.onDraw = () => {};
    this.#addLights();
    this.parts = new Parts(model, this.clipping);
    this.annotations = new Annotations(model, this.#boxOf(this.parts.meshes));
    this.scene.add(this.parts, this.annotations);
    this.camera = new PerspectiveCamera(kFieldOfView);
    this.scene.add(this.camera);
    if (model.layers) this.showLayers();
    this.#resize();
    this.look(kIsometric);
    new ResizeObserver(() => this.#resize()).observe(canvas.parentElement);
  }

  #addLights() {
    const generator = new PMREMGenerator(this.renderer);
    this.scene.environment = generator.fromScene(new RoomEnvironment(), 0.04).texture;
    this.scene.environmentIntensity = 0.45;
    this.scene.environmentRotation.x = Math.PI / 2; // the room's up is y
    generator.dispose();
    this.scene.add(new AmbientLight(0xffffff, 0.15));
    this.sun = new DirectionalLight(0xffffff, 1.3);
    this.scene.add(this.sun, this.sun.target);
  }

  setEdges(shown) {
    for (const edges of this.parts.edges) edges.visible = shown;
    this.draw();
  }

  // Shows what stands on a layer that is on, or on none.
  showLayers() {
    const { layers, blocks } = this.model;
    for (const { id, shape } of blocks.values()) shape?.show((part) => layers.shows(id, part));
    this.annotations.showLayers(layers);
    this.draw();
  }

  // Cuts away what lies behind the plane a x + b y + c z + d = 0, or nothing.
  setClipping(coefficients) {
    this.clipping.length = 0;
    if (coefficients) {
      const [a, b, c, d] = coefficients;
      this.clipping.push(new Plane(new Vector3(a, b, c), d));
    }
    this.renderer.localClippingEnabled = this.clipping.length > 0;
    for (const material of this.parts.materials.values()) material.needsUpdate = true;
    this.draw();
  }

  #corners(objects) {
    const corners = [];
    for (const object of objects) {
      const { min, max } = object.box ?? object.geometry.boundingBox;
      if (min.x > max.x) continue;
      for (let i = 0; i < 8; i++) {
        const corner = new Vector3(i & 1 ? max.x : min.x, i & 2 ? max.y : min.y, i & 4 ? max.z : min.z);
        corners.push(corner.applyMatrix4(object.matrixWorld));
      }
    }
    return corners;
  }

  #boxOf(objects) {
    return new Box3().setFromPoints(this.#corners(objects));
  }

  #shown() {
    return [...this.parts.visibleMeshes(), ...this.annotations.drawn()];
  }

  #worthFitting() {
    return this.#shown().filter((object) => object.isNear ?? true);
  }

  // Whether the middle of any of the objects lies in the picture.
  sees(objects) {
    this.camera.updateMatrixWorld();
    return objects.some((object) => {
      const { x, y } = this.#boxOf([object]).getCenter(new Vector3()).project(this.camera);
      return Math.abs(x) < 1 && Math.abs(y) < 1;
    });
  }

  // Looks along a direction, so that the objects, by default all that is shown, fill the picture. They do so again in a
  // picture of another size, until someone turns the model.
  look(how) {
    const { direction, up, objects, perspective = true } = how;
    const forward = direction.clone().normalize();
    const right = new Vector3().crossVectors(forward, up).normalize();
    const upward = new Vector3().crossVectors(right, forward);
    const corners = this.#corners(objects ?? this.#worthFitting());
    if (!corners.length) corners.push(new Vector3(-1, -1, -1), new Vector3(1, 1, 1));

    const box = new Box3();
    for (const corner of corners) box.expandByPoint(new Vector3(corner.dot(right), corner.dot(upward), corner.dot(forward)));
    const middle = box.getCenter(new Vector3());
    const target = new Vector3()
      .addScaledVector(right, middle.x)
      .addScaledVector(upward, middle.y)
      .addScaledVector(forward, middle.z);

    const size = box.getSize(new Vector3());
    const height = Math.max(size.y, size.x / this.aspect, 1e-6) * kFitMargin;
    let distance = size.length() * 2;
    if (perspective) {
      const tangent = Math.tan(((kFieldOfView / 2) * Math.PI) / 180) / kFitMargin;
      distance = 0;
      for (const corner of corners) {
        const across = Math.abs(corner.dot(right) - middle.x) / this.aspect;
        const along = Math.abs(corner.dot(upward) - middle.y);
        distance = Math.max(distance, middle.z - corner.dot(forward) + Math.max(across, along) / tangent);
      }
    }
    const eye = target.clone().addScaledVector(forward, -distance);
    this.setCamera({ eye, target, up, height: perspective ? 0 : height });
    this.fitted = how;
  }

  // Fills the picture with the objects, by default all that is shown, and looks in the direction of now.
  fit(objects) {
    const direction = this.controls.target.clone().sub(this.camera.position);
    const perspective = Boolean(this.camera.isPerspectiveCamera);
    this.look({ direction, up: this.camera.up.clone(), objects, perspective });
  }

  // Places the camera: orthographic when a height of the picture in model units is given.
  setCamera({ eye, target, up, height = 0, angle = kFieldOfView }) {
    this.fitted = null;
    this.scene.remove(this.camera);
    this.camera = height ? new OrthographicCamera() : new PerspectiveCamera(angle);
    this.height = height;
    this.camera.up.copy(up); // the model turns around this axis
    this.camera.position.copy(eye);
    this.scene.add(this.camera);
    this.controls?.dispose();
    this.controls = new OrbitControls(this.camera, this.renderer.domElement);
    this.controls.target.copy(target);
    this.controls.zoomToCursor = true;
    this.controls.addEventListener('start', () => (this.fitted = null));
    this.controls.addEventListener('change', () => this.draw());
    this.#shapeCamera();
    this.controls.update();
    this.draw();
  }

  #shapeCamera() {
    if (this.camera.isPerspectiveCamera) {
      this.camera.aspect = this.aspect;
    } else {
      const half = this.height / 2;
      Object.assign(this.camera, { left: -half * this.aspect, right: half * this.aspect, top: half, bottom: -half });
    }
  }

  // The near and far planes hug the model, which keeps the depth buffer fine enough for its edges.
  #placePlanes() {
    const box = this.#boxOf(this.#shown());
    if (box.isEmpty()) box.set(new Vector3(-1, -1, -1), new Vector3(1, 1, 1));
    const radius = box.getSize(new Vector3()).length() / 2 + 1e-6;
    const forward = this.camera.getWorldDirection(new Vector3());
    const depth = box.getCenter(new Vector3()).sub(this.camera.position).dot(forward);
    const far = depth + radius;
    this.camera.far = Math.max(far, radius);
    this.camera.near = this.camera.isPerspectiveCamera ? Math.max(depth - radius, this.camera.far / 2000) : depth - radius;
    this.camera.updateProjectionMatrix();
  }

  #placeSun() {
    const offset = new Vector3(-0.35, 0.55, 1).applyQuaternion(this.camera.quaternion);
    this.sun.target.position.copy(this.controls.target);
    this.sun.position.copy(this.controls.target).add(offset);
  }

  #resize() {
    const { clientWidth: width, clientHeight: height } = this.renderer.domElement.parentElement;
    this.aspect = Math.max(width, 1) / Math.max(height, 1);
    this.renderer.setSize(width, height, false);
    if (this.fitted) this.look(this.fitted);
    if (this.controls) {
      this.#shapeCamera();
      this.render();
    }
  }

  // What lies under a point of the canvas, in pixels from its top left: a drawn annotation's element, or the tree node
  // and its face.
  pick(x, y) {
    const canvas = this.renderer.domElement;
    const pointer = new Vector2((x / canvas.clientWidth) * 2 - 1, 1 - (y / canvas.clientHeight) * 2);
    const ray = new Raycaster();
    ray.setFromCamera(pointer, this.camera);
    const hits = ray.intersectObjects(this.parts.visibleMeshes(), false);
    const hit = hits.find(({ point }) => this.clipping.every((plane) => plane.distanceToPoint(point) >= 0));
    const drawn = this.annotations.pick(ray);
    if (drawn && !(hit?.distance < drawn.distance)) return { element: drawn.object.parent.element };
    if (!hit) return null;
    const node = hit.object.userData.node;
    return { node, face: node.block.shape.faceOfTriangle(hit.faceIndex) };
  }

  draw() {
    this.wanted ??= requestAnimationFrame(() => this.render());
  }

  render() {
    if (this.wanted) cancelAnimationFrame(this.wanted);
    this.wanted = undefined;
    this.#placePlanes();
    this.#placeSun();
    this.annotations.face(this.camera);
    this.renderer.render(this.scene, this.camera);
    this.onDraw();
  }
}
