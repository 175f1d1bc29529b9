// The list of the layers beside the picture: a box each, which shows and hides what is on the layer.

function row(layer, onShow) {
  const result = document.createElement('label');
  const box = document.createElement('input');
  const name = document.createElement('span');
  const count = document.createElement('span');
  result.className = 'row';
  box.type = 'checkbox';
  box.checked = layer.on;
  name.className = 'name';
  name.textContent = layer.name || `Layer ${layer.id}`;
  name.title = `${name.textContent} (${layer.id})`;
  box.ariaLabel = `Show ${name.textContent}`;
  count.className = 'count';
  count.textContent = layer.count;
  const update = () => result.classList.toggle('off', !layer.on);
  box.onchange = () => {
    layer.on = box.checked;
    update();
    onShow();
  };
  update();
  result.append(box, name, count);
  return result;
}

export function buildLayers(list, model, onShow) {
  const drawn = new Set(model.annotations.flatMap(({ mechanicalId }) => model.layers.ofAnnotation(mechanicalId)));
  for (const { id, shape } of model.blocks.values()) {
    for (const part of shape?.parts ?? []) {
      for (const layer of model.layers.of(id, part)) drawn.add(layer);
    }
  }
  for (const layer of model.layers.all) {
    const entry = row(layer, onShow);
    entry.querySelector('input').disabled = !drawn.has(layer); // as of what the file hides, nothing is in the page
    list.append(entry);
  }
}
