// Publishes the script object to a document of the main frame, before any script of the page's has
// run. A call is a prompt that the host answers at once: the page waits for it and nothing is shown.
//
// The host knows its own prompts by secrets that no script of the page's, or of a frame in it, can
// get at: they are held by this closure alone, and nothing here uses what a page can replace after
// this has run. A document that is opened anew in the same window brings this here again; then it
// finds the prompt that it left behind itself, which answers nothing and tells nobody. The engine
// lets no prompt through while a page is being left: such a call does nothing and answers null.
(function (secret) {
  "use strict";
  const ask = window.prompt;
  const answer = ask(secret);

  const define = Object.defineProperty;
  const freeze = Object.freeze;
  const stringify = JSON.stringify;
  const parse = JSON.parse;
  const apply = Reflect.apply;
  const slice = String.prototype.slice;
  const Failure = TypeError;

  const inert = { prompt: () => null }.prompt;
  define(window, "prompt", { value: freeze(inert), enumerable: true });
  if (answer === null) return;

  const { token, name, methods, longest } = parse(answer);

  const encoded = (value) => {
    switch (typeof value) {
      case "string": return stringify(value);
      case "number": return value - value === 0 ? "" + value : "null";
      case "boolean": return value ? "true" : "false";
      default: return "null";
    }
  };

  // Prompts are cut off at a length, so a longer text goes in pieces: w(hole), or b(egin),
  // m(iddle) and e(nd).
  const send = (text) => {
    if (text.length <= longest) return ask(token + "w" + text);
    let from = 0;
    for (; from + longest < text.length; from += longest)
      ask(token + (from === 0 ? "b" : "m") + apply(slice, text, [from, from + longest]));
    return ask(token + "e" + apply(slice, text, [from]));
  };

  const object = { __proto__: null };
  for (let i = 0; i < methods.length; ++i) {
    const method = methods[i].name;
    const count = methods[i].arguments;
    const call = (...given) => {
      let text = "[" + stringify(method);
      for (let k = 0; k < count; ++k)
        text += "," + (k < given.length ? encoded(given[k]) : "null");
      const result = send(text + "]");
      if (result === "") throw new Failure(name + "." + method + " failed");
      return result === null ? null : parse(result)[0];
    };
    define(call, "name", { value: method });
    define(object, method, { value: freeze(call), enumerable: true });
  }
  define(window, name, { value: freeze(object), enumerable: true });
})
