// A click on a link that is in no document, such as a script's createElement("a").click(), reaches
// no listener of the document's. So this tells PageRules.js of it beforehand. It runs in the page's
// own world, where the page's scripts call what it replaces; one that gets around it is taken for a
// script that sets the address.
(function () {
  "use strict";
  const { apply } = Reflect;
  const { defineProperty } = Object;
  const Telling = MouseEvent; // the one event that hands a node from one world to the other
  const dispatch = EventTarget.prototype.dispatchEvent;
  const isConnected = Object.getOwnPropertyDescriptor(Node.prototype, "isConnected").get;
  const tell = (target) => {
    if (target instanceof Node && !apply(isConnected, target, []))
      apply(dispatch, window, [new Telling("wrenvale-detached-click", { relatedTarget: target })]);
  };

  const click = HTMLElement.prototype.click;
  const replacements = {
    click() {
      tell(this);
      return apply(click, this, []);
    },
    dispatchEvent(event) {
      tell(this);
      return apply(dispatch, this, [event]);
    },
  };
  defineProperty(HTMLElement.prototype, "click", { value: replacements.click });
  defineProperty(EventTarget.prototype, "dispatchEvent", { value: replacements.dispatchEvent });
})();
