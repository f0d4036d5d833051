// What is asked of the page from inside it: a browser is given each of these functions by itself, so that
// none of them can use another one.

/** The words in some elements that a pattern finds, by their middles. @param {Element[]} elements @param {string} pattern */
export function wordsIn(elements, pattern) {
  const found = [];
  for (const element of elements) {
    const walker = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
    for (let node = walker.nextNode(); node !== null; node = walker.nextNode())
      for (const { 0: word, index } of (node.textContent ?? '').matchAll(
        new RegExp(pattern, 'g'),
      )) {
        const range = document.createRange();
        range.setStart(node, index);
        range.setEnd(node, index + word.length);
        const { x, y, width, height } = range.getBoundingClientRect();
        found.push({ x: x + width / 2, y: y + height / 2 });
      }
  }
  return found;
}

/** What stands on the screen, and who has the keyboard. */
export const standing = () =>
  [...document.querySelectorAll('[id^="c-"]')]
    .filter((each) => each.checkVisibility())
    .map((each) => `${each.id} ${each.className}`)
    .join();
