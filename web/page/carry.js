// What the learner owns as one file: carried to another machine and back.
import { byId, onClick } from './elements.js';
import { filesOf, zipOf } from './zip.js';
import { LargestFile, keepIncoming } from './own.js';

const Words = 'data.c';
const RecordSize = 24;
const FirstRun = 'Yes1';
const Copied = [Words, 'data.Kcu', 'words.txt', 'lists.txt'];
const Travels =
  /^(Yes1|owntexts\.av|words\.journal|texts\/\d{3}\.txt|(backups\/\d{4}(-\d\d){2}_\d\d(-\d\d){2,3}\/)?(data\.c|data\.Kcu|words\.txt|lists\.txt))$/;

/** @typedef {Map<string, Uint8Array>} Files */

/** A copy's name is its moment. */
function momentName() {
  const now = new Date();
  const local = new Date(now.getTime() - 60_000 * now.getTimezoneOffset());
  return local.toISOString().slice(0, 19).replace('T', '_').replaceAll(':', '-');
}

/** What came in the place of what is here, which becomes a copy. @param {Files} came @param {Files} here */
export function joined(came, here) {
  const files = new Map(came);
  const copy = `backups/${momentName()}`;
  for (const [name, bytes] of here) {
    if (name.startsWith('backups/') && !files.has(name)) files.set(name, bytes);
    if (Copied.includes(name)) files.set(`${copy}/${name}`, bytes);
  }
  files.set(FirstRun, here.get(FirstRun) ?? new Uint8Array());
  return files;
}

/** What a file brings; nothing when it is none. @param {Blob} file @returns {Promise<Files | undefined>} */
export async function broughtBy(file) {
  if (file.size > LargestFile) return undefined;
  try {
    const archive = new Uint8Array(await file.arrayBuffer());
    const files = await filesOf(archive, (name) => Travels.test(name), LargestFile);
    const words = files.get(Words);
    return words !== undefined && words.length % RecordSize === 0 ? files : undefined;
  } catch {
    return undefined;
  }
}

/** @param {Files} files that the learner owns */
export const carriedOut = (files) =>
  zipOf(new Map([...files].filter(([name]) => Travels.test(name))));

export class Carry {
  /** @param {() => Promise<Files>} own gives what the learner owns, written down to the last word */
  constructor(own) {
    this.own = own;
    this.dialog = /** @type {HTMLDialogElement} */ (byId('carry'));
    this.text = byId('carryText');
    this.take = byId('carryTake');
    const file = /** @type {HTMLInputElement} */ (byId('carryFile'));
    this.came = /** @type {Files | undefined} */ (undefined);
    onClick('carryOpen', () => this.open());
    onClick('carryClose', () => this.dialog.close());
    onClick('carryOut', () => void this.save());
    onClick('carryIn', () => file.click());
    file.addEventListener('change', () => void this.look(file.files?.[0]));
    this.take.addEventListener('click', () => void this.replace());
  }

  open() {
    this.take.hidden = true;
    this.text.textContent = '';
    this.dialog.showModal();
  }

  async save() {
    const link = document.createElement('a');
    link.href = URL.createObjectURL(carriedOut(await this.own()));
    link.download = `talvora-${momentName()}.zip`;
    link.click();
    this.text.textContent = `Đã lưu vào ${link.download}`;
  }

  /** @param {Blob | undefined} file */
  async look(file) {
    if (file === undefined) return;
    this.came = await broughtBy(file);
    this.take.hidden = this.came === undefined;
    const words = (this.came?.get(Words)?.length ?? 0) / RecordSize;
    this.text.textContent =
      this.came === undefined
        ? 'Tệp này không có từ vựng của Talvora. Không có gì thay đổi.'
        : `Tệp có ${words} từ. Từ vựng đang có sẽ được giữ trong một bản sao.`;
  }

  async replace() {
    if (this.came === undefined) return;
    try {
      await keepIncoming(joined(this.came, await this.own()));
      location.reload();
    } catch {
      this.text.textContent = 'Trình duyệt không cho lưu. Không có gì thay đổi.';
    }
  }
}
