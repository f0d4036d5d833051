// The server as a process of its own, on a port that is free.
import { spawn } from 'node:child_process';
import { fileURLToPath } from 'node:url';

const script = fileURLToPath(new URL('serve.js', import.meta.url));

/** Serves a site from now on until it is ended. @param {string} site @param {string[]} how what else the server is told */
export async function serve(site, ...how) {
  const serving = spawn(process.execPath, [script, site, '0', ...how]);
  const address = await new Promise((/** @type {(line: string) => void} */ resolve) =>
    serving.stdout.once('data', (line) => resolve(String(line).trim())),
  );
  return { address, end: () => void serving.kill() };
}
