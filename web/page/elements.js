// Elements of the page.

/** @param {string} id */
export const byId = (id) => /** @type {HTMLElement} */ (document.getElementById(id));

/** What is to be done when a button is used. @param {string} id @param {() => void} deed */
export const onClick = (id, deed) => byId(id).addEventListener('click', deed);
