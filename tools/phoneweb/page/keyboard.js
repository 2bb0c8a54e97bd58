// Which key of the phone a key of the PC's keyboard is.

// The names that a key map may use where the browser has another one.
const MAP_NAMES = {
  ArrowUp: ["Up"], ArrowDown: ["Down"], ArrowLeft: ["Left"], ArrowRight: ["Right"],
  Enter: ["Return", "Enter"], Escape: ["Escape", "Esc"], Backspace: ["Backspace"], " ": ["Space"],
  Delete: ["Delete", "Del"], Insert: ["Insert", "Ins"], PageUp: ["PgUp", "PageUp"], PageDown: ["PgDown", "PageDown"],
  AudioVolumeUp: ["Volume Up"], AudioVolumeDown: ["Volume Down"], AudioVolumeMute: ["Volume Mute"],
};

export const ARROWS = new Set(["Up", "Down", "Left", "Right"]);

const isCharacter = (event) => [...event.key].length === 1;

// The texts under which the key may stand in the map, Shift+F1 or Alt+*.
function mapTexts(event) {
  let names = MAP_NAMES[event.key] ?? [event.key];
  let shift = event.shiftKey ? "Shift+" : "";
  if (isCharacter(event)) {
    // Shift is part of how a character such as * is typed. Alt turns digits into other signs on some keyboards.
    const digit = /^(?:Digit|Numpad)(\d)$/.exec(event.code);
    names = digit && !event.shiftKey ? [...names, digit[1]] : names;
    shift = "";
  }
  const modifiers = (event.ctrlKey ? "Ctrl+" : "") + (event.altKey ? "Alt+" : "") + shift;
  return names.map((name) => modifiers + name);
}

// The phone's key by its key map, or undefined.
export function phoneKey(keyMap, event) {
  const text = mapTexts(event).find((candidate) => Object.hasOwn(keyMap, candidate));
  return text && keyMap[text];
}

// The character that the key types, or undefined.
export function typedText(event) {
  const commanding = (event.ctrlKey || event.altKey) && !event.getModifierState("AltGraph");
  return isCharacter(event) && !commanding && !event.metaKey ? event.key : undefined;
}
