// The ways of looking at the model: the standard directions, and the views that were saved in the file.

import { Vector3 } from 'three';

import { kIsometric } from './stage.js';

const kStandard = {
  Iso: kIsometric,
  Front: { direction: new Vector3(0, 1, 0), up: new Vector3(0, 0, 1) },
  Top: { direction: new Vector3(0, 0, -1), up: new Vector3(0, 1, 0) },
  Right: { direction: new Vector3(-1, 0, 0), up: new Vector3(0, 0, 1) },
};

export function button(text, action, title = '') {
  const result = document.createElement('button');
  result.textContent = text;
  result.title = title;
  result.onclick = () => action(result);
  return result;
}

function toggle(text, shown, action) {
  const result = button(text, () => {
    const pressed = result.ariaPressed !== 'true';
    result.ariaPressed = pressed;
    action(pressed);
  });
  result.ariaPressed = shown;
  return result;
}

function divider() {
  return document.createElement('hr');
}

export function buildToolbar(bar, stage, onFit) {
  for (const [name, look] of Object.entries(kStandard)) {
    bar.append(button(name, () => stage.look(look), `Look at the whole model: ${name.toLowerCase()}`));
  }
  bar.append(button('Fit', onFit, 'Fill the picture with what is selected, or with all (F)'));
  bar.append(divider());
  bar.append(toggle('Edges', true, (shown) => stage.setEdges(shown)));
  if (stage.annotations.children.length) {
    bar.append(
      toggle('PMI', true, (shown) => {
        stage.annotations.visible = shown;
        stage.draw();
      })
    );
  }
}

const vector = ([x, y, z]) => new Vector3(x, y, z);

// A view without a size of its own shows the whole model from its direction.
function show(stage, view, annotationIds) {
  const { camera } = view;
  stage.setClipping(view.clipping ?? null);
  stage.annotations.show(annotationIds);
  const eye = vector(camera.eye);
  const target = vector(camera.target);
  const up = vector(camera.up);
  const direction = target.clone().sub(eye);
  if (camera.height || camera.angle) {
    stage.setCamera({ eye, target, up, height: camera.height, angle: camera.angle || undefined });
  } else {
    stage.look({ direction, up, perspective: false });
  }
}

// Returns a function that opens the view of a name. `onOpen` is called with each view that is opened, null for all.
export function buildSavedViews(bar, stage, views, onOpen) {
  bar.hidden = !views.length;
  if (bar.hidden) return () => {};
  const label = document.createElement('span');
  label.textContent = 'Saved views';
  bar.append(label);
  // Where no view names its annotations, all of them belong to each.
  const linked = views.some((view) => view.annotationIds.length);
  const add = (text, view, open) => {
    const choose = (chosen) => {
      for (const other of bar.querySelectorAll('button')) other.ariaPressed = other === chosen;
      open();
      onOpen(view);
    };
    bar.append(button(text, choose));
  };
  for (const view of views) {
    add(view.name || view.id, view, () => show(stage, view, linked ? view.annotationIds : null));
  }
  add('All', null, () => {
    stage.setClipping(null);
    stage.annotations.show(null);
    stage.look(kIsometric);
  });
  const buttons = [...bar.querySelectorAll('button')];
  // Without a name, the first one that shows an annotation.
  return (name) => {
    const named = views.findIndex((view) => view.name === name);
    const first = views.findIndex((view) => view.annotationIds.length);
    buttons[Math.max(named >= 0 ? named : first, 0)].click();
  };
}
