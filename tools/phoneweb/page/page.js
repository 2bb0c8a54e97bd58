import { ARROWS, phoneKey, typedText } from "/keyboard.js";
import { PhoneKeys } from "/keys.js";

// Milliseconds. A held arrow repeats as a keyboard's does: after a while, then steadily.
const REPEAT_AFTER = 500;
const REPEAT_EVERY = 120;
const NOTE_TIME = 3000;

const byId = (id) => document.getElementById(id);
const display = byId("display");
const buttons = new Map([...document.querySelectorAll("button")].map((button) => [button.dataset.key, button]));
const keys = new PhoneKeys();
let keyMap = null;

// The token has done its work and need not stand in the history.
history.replaceState(null, "", "/");

// ---- The display

let newest = 0;

async function showPicture(base64) {
  const number = ++newest;
  const bytes = Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));
  const picture = await createImageBitmap(new Blob([bytes], { type: "image/png" }));
  // Pictures may be ready in another order than they came.
  if (number === newest) display.getContext("2d").drawImage(picture, 0, 0);
}

// Each of the phone's pixels takes a whole number of the screen's, but on a screen too narrow for the display.
function fitDisplay() {
  const [phone, face, head, foot] = ["phone", "face", "head", "foot"].map(byId);
  const padding = 2 * parseFloat(getComputedStyle(face).paddingLeft);
  const margins = 2 * parseFloat(getComputedStyle(phone).marginLeft);
  const besides = margins + phone.offsetWidth - face.offsetWidth + padding + head.offsetWidth - display.offsetWidth;
  const above = margins + phone.offsetHeight + foot.offsetHeight - display.offsetHeight;
  // On a touch screen innerWidth grows with what does not fit.
  const across = (document.documentElement.clientWidth - besides) / display.width;
  const fitting = Math.min(across, (innerHeight - above) / display.height);
  const whole = Math.max(1, Math.floor(fitting * devicePixelRatio)) / devicePixelRatio;
  const size = across < 1 ? across : Math.max(1, whole);
  display.classList.toggle("shrunk", size < 1);
  document.documentElement.style.setProperty("--pixel", `${size}px`);
}

// ---- The phone, and whether it is there

let hasBeenThere = false;

function showPhone(map) {
  keyMap = map;
  document.body.classList.toggle("here", map !== null);
  if (map) {
    hasBeenThere = true;
    showNotice("");
  } else {
    newest++;
    showNotice(hasBeenThere ? "The phone has gone" : "No phone is running yet");
  }
  fitDisplay();
}

function showNotice(text) {
  byId("notice").textContent = text;
}

function follow() {
  const events = new EventSource("/events");
  events.addEventListener("phone", (event) => showPhone(JSON.parse(event.data)));
  events.addEventListener("picture", (event) => showPicture(event.data));
  events.addEventListener("error", () => {
    showPhone(null);
    const closed = events.readyState === EventSource.CLOSED;
    showNotice(closed ? "Not let in. Open the address that phoneweb printed last, or close another window of it." : "phoneweb does not answer");
  });
}

// ---- Keys on the page

function watchButton(button, key) {
  let timer = 0;
  const repeat = () => {
    keys.repeat(key);
    timer = setTimeout(repeat, REPEAT_EVERY);
  };
  const release = () => {
    clearTimeout(timer);
    keys.release(key);
  };
  button.tabIndex = -1;
  button.addEventListener("pointerdown", (event) => {
    if (event.button !== 0) return;
    event.preventDefault();
    // A finger that slides off the key lets go of it.
    button.releasePointerCapture(event.pointerId);
    keys.press(key);
    if (ARROWS.has(key)) timer = setTimeout(repeat, REPEAT_AFTER);
  });
  for (const end of ["pointerup", "pointerleave", "pointercancel"]) button.addEventListener(end, release);
  // What reads the page aloud clicks without a pointer.
  button.addEventListener("click", (event) => {
    if (event.detail !== 0) return;
    keys.press(key);
    keys.release(key);
  });
  button.addEventListener("contextmenu", (event) => event.preventDefault());
}

for (const [key, button] of buttons) watchButton(button, key);
keys.addEventListener("key", ({ detail }) => buttons.get(detail.key)?.classList.toggle("down", detail.down));

// ---- Keys of the PC

// By the key's place, as its text may differ when it goes up: the modifiers may have gone first.
const down = new Map();

addEventListener("keydown", (event) => {
  if (!keyMap || event.isComposing) return;
  const key = phoneKey(keyMap, event);
  const text = key ? undefined : typedText(event);
  if (!key && text === undefined) return;
  event.preventDefault();
  if (event.repeat) {
    if (ARROWS.has(key)) keys.repeat(key);
  } else if (key) {
    down.set(event.code, key);
    keys.press(key);
  } else {
    keys.type(text);
  }
});

addEventListener("keyup", (event) => {
  keys.release(down.get(event.code));
  down.delete(event.code);
});

for (const leaving of ["blur", "pagehide"]) addEventListener(leaving, () => keys.releaseAll());
document.addEventListener("visibilitychange", () => document.hidden && keys.releaseAll());

// ---- The line below

let noteTimer = 0;

function showNote(text) {
  byId("note").textContent = text;
  byId("note").hidden = !text;
  byId("help").hidden = !!text;
}

keys.addEventListener("refused", ({ detail }) => {
  showNote(detail.error);
  clearTimeout(noteTimer);
  noteTimer = setTimeout(() => showNote(""), NOTE_TIME);
});

addEventListener("resize", fitDisplay);
fitDisplay();
follow();
