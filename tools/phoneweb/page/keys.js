// The keys that are down, and the road of keys to the phone: one post at a time, so that they arrive in order.

export class PhoneKeys extends EventTarget {
  #token = document.querySelector("meta[name=phone-token]").content;
  #held = new Set();
  #waiting = [];
  #posting = false;

  press(key) {
    if (this.#held.has(key)) return;
    this.#held.add(key);
    this.#send("press", key);
    this.#tell("key", { key, down: true });
  }

  // A further press of a key that is held.
  repeat(key) {
    if (this.#held.has(key)) this.#send("press", key);
  }

  release(key) {
    if (!this.#held.delete(key)) return;
    this.#send("release", key);
    this.#tell("key", { key, down: false });
  }

  releaseAll() {
    for (const key of [...this.#held]) this.release(key);
  }

  type(text) {
    this.#send("text", text);
  }

  #send(...request) {
    this.#waiting.push(request);
    if (!this.#posting) this.#post();
  }

  async #post() {
    this.#posting = true;
    while (this.#waiting.length) {
      const body = JSON.stringify(this.#waiting.splice(0));
      const headers = { "Content-Type": "application/json", "X-Phone-Token": this.#token };
      try {
        // Kept alive, so that the keys are let go of even while the page is being left.
        const response = await fetch("/keys", { method: "POST", headers, body, keepalive: true });
        if (!response.ok) this.#tell("refused", await response.json());
      } catch {
        // The stream of pictures tells that phoneweb cannot be reached; old keys must not arrive later.
        this.#waiting.length = 0;
      }
    }
    this.#posting = false;
  }

  #tell(type, detail) {
    this.dispatchEvent(new CustomEvent(type, { detail }));
  }
}
