// Serves a folder on the loopback address, with the headers that let page and program share memory.
//
// usage: node serve.js FOLDER [PORT] [plain]
//   plain  without these headers, as many hosts do
import { createReadStream, existsSync, statSync } from 'node:fs';
import { createServer } from 'node:http';
import { extname, join, normalize } from 'node:path';

/** @type {Record<string, string>} */
const Types = {
  '.html': 'text/html; charset=utf-8',
  '.css': 'text/css',
  '.js': 'text/javascript',
  '.json': 'application/json',
  '.webmanifest': 'application/manifest+json',
  '.wasm': 'application/wasm',
  '.woff2': 'font/woff2',
  '.jpg': 'image/jpeg',
  '.png': 'image/png',
};

const Isolated = {
  'Cross-Origin-Opener-Policy': 'same-origin',
  'Cross-Origin-Embedder-Policy': 'require-corp',
};

const [folder, port = '8714', plain] = process.argv.slice(2);
if (folder === undefined || (plain ?? 'plain') !== 'plain') {
  console.error('usage: node serve.js FOLDER [PORT] [plain]');
  process.exit(2);
}

const server = createServer((request, reply) => {
  const path = decodeURIComponent(new URL(request.url ?? '/', 'http://localhost').pathname);
  let file = join(folder, normalize(path));
  if (existsSync(file) && statSync(file).isDirectory()) file = join(file, 'index.html');
  if (!file.startsWith(normalize(folder)) || !existsSync(file)) {
    reply.writeHead(404).end();
    return;
  }
  const { size, mtimeMs } = statSync(file);
  const tag = `"${size}-${Math.round(mtimeMs)}"`;
  const isSame = request.headers['if-none-match'] === tag;
  reply.writeHead(isSame ? 304 : 200, {
    ETag: tag,
    'Content-Type': Types[extname(file)] ?? 'application/octet-stream',
    ...(isSame ? {} : { 'Content-Length': size }),
    ...(plain ? {} : Isolated),
    'Cache-Control': 'no-cache',
  });
  if (isSame) reply.end();
  else createReadStream(file).pipe(reply);
});
server.listen(Number(port), '127.0.0.1', () => {
  console.log(
    `http://localhost:${/** @type {import('node:net').AddressInfo} */ (server.address()).port}/`,
  );
});
