// usage: node build.js OUTPUT.cpp
// Makes the page of one file, with markup, style and program in it and the place for the scene left open, and writes it
// as a C++ source for the host.
import { build } from 'esbuild';
import { readFile, writeFile } from 'node:fs/promises';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const kPiece = 8000; // characters: not all compilers take longer literals

const home = dirname(fileURLToPath(import.meta.url));
const source = (name) => join(home, 'src', name);

const bundle = await build({
  entryPoints: [source('main.js')],
  bundle: true,
  minify: true,
  format: 'iife',
  target: 'es2022',
  legalComments: 'inline',
  charset: 'ascii',
  write: false,
});
const program = bundle.outputFiles[0].text.replaceAll('</script', '<\\/script');
const style = await readFile(source('style.css'), 'utf8');
const template = await readFile(source('index.html'), 'utf8');
const page = template.replace('/* style.css */', () => style).replace('/* main.js */', () => program);

const pieces = page.match(new RegExp(`[^]{1,${kPiece}}`, 'g')).map((piece) => `    R"page(${piece})page",\n`);
await writeFile(
  process.argv[2],
  `#include "viewer_page.h"\n\nconst std::vector<std::string_view> kViewerPage = {\n${pieces.join('')}};\n`
);
