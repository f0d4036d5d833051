// The caption strip: the typed word, the title with the score, notices.
import { byId } from './elements.js';

const NewsMs = 2000;
const Padding = ' '.repeat(20);

export class Strip {
  /** @param {(text: string) => void} announce */
  constructor(announce) {
    this.announce = announce;
    this.firstTitle = '';
    this.typedWord = '';
    this.news = '';
    this.help = '';
    this.warning = '';
    this.emphasis = /** @type {ReturnType<typeof setTimeout> | undefined} */ (undefined);
    this.noticeEnd = /** @type {ReturnType<typeof setTimeout> | undefined} */ (undefined);
  }

  /** What is ahead of the caption's padding is the typed word. @param {string} caption */
  setCaption(caption) {
    const padding = caption.indexOf(Padding);
    this.typedWord = padding < 0 ? '' : caption.slice(0, padding);
    const title = (padding < 0 ? caption : caption.slice(padding)).trim().replace(/\s+/g, ' ');
    this.showLeft();
    this.setTitle(title);
  }

  /** @param {string} title */
  setTitle(title) {
    const element = byId('title');
    const before = element.textContent ?? '';
    if (title === before) return;
    element.textContent = title;
    if (this.firstTitle === '') {
      this.firstTitle = title;
      return;
    }
    const news = title !== this.firstTitle;
    // A score that the next item's number replaces at once is still to be read.
    if (news && element.classList.contains('news') && before !== this.firstTitle)
      this.notice(before);
    element.classList.toggle('news', news);
    clearTimeout(this.emphasis);
    if (!news) return;
    this.emphasis = setTimeout(() => element.classList.remove('news'), NewsMs);
    this.announce(title);
  }

  /** A typed word goes before a notice, that before help, and a warning comes last. */
  showLeft() {
    const typing = this.typedWord !== '';
    byId('typed').textContent = typing
      ? `${this.typedWord}\u258f`
      : this.news || this.help || this.warning;
  }

  /** @param {string} text */
  notice(text) {
    this.news = text;
    this.showLeft();
    clearTimeout(this.noticeEnd);
    this.noticeEnd = setTimeout(() => {
      this.news = '';
      this.showLeft();
    }, NewsMs);
    this.announce(text);
  }

  /** Says something for as long as the page is open. @param {string} text */
  warn(text) {
    this.warning = text;
    this.showLeft();
    this.announce(text);
  }

  /** @param {string} text */
  setHelp(text) {
    this.help = text;
    this.showLeft();
  }

  /** @param {boolean} menu */
  setPlace(menu) {
    byId('back').textContent = menu ? 'Thoát (Esc)' : '‹ Quay lại (Esc)';
    byId('hint').hidden = menu;
    byId('carryOpen').hidden = !menu;
  }
}
