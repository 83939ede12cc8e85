// Rules for a page in a window that is not a browser's, and hints at what the engine does not tell
// of its navigations. Runs in an isolated world beside each document, where no script of the page
// reaches it. It writes each hint to the console just before the navigation; the host knows a hint
// by the secret.
(function (secret) {
  "use strict";
  const hint = (what, url) => console.debug(secret + what + " " + url);

  const linkOf = (event) => {
    for (const node of event.composedPath())
      if ((node.localName === "a" || node.localName === "area") && node.href) return node;
    return null;
  };

  // Not what is of this machine.
  const isForTheBrowser = (url) => /^(https?|mailto):/.test(url);

  // A person who holds Alt would have the engine save what the link leads to.
  const isToSave = (event) =>
    event.isTrusted && event.button === 0 && event.altKey && !event.ctrlKey && !event.shiftKey;

  let clicked = null, click = null, latest = null;
  const onClick = (event) => {
    const link = linkOf(event);
    if (!link) return;
    clicked = typeof link.href === "string" ? link.href : new URL(link.href.baseVal, document.baseURI).href;
    latest = clicked;
    click = event;
    setTimeout(() => { clicked = click = null; });
    hint("link", clicked);
    if (isToSave(event) && isForTheBrowser(clicked))
      setTimeout((url) => { if (!event.defaultPrevented) hint("unasked", url); }, 0, clicked);
  };
  window.addEventListener("click", onClick, true);
  window.addEventListener("auxclick", onClick, true);
  window.addEventListener("wrenvale-detached-click", ({ relatedTarget: node }) => { // DetachedLinks.js
    if (node) node.getRootNode({ composed: true }).addEventListener("click", onClick, { capture: true, once: true });
  }, true);

  // A form's data is put together just before it is sent, by a person or by submit(). One that opens
  // a window looks like a link otherwise.
  let submission = null;
  const onSubmit = (event) => {
    submission = { form: event.target, event };
    setTimeout(() => { submission = null; });
  };
  const submitterOf = (form) => // none while the event is on its way: submit() has none
    submission && submission.form === form && submission.event.eventPhase === Event.NONE
      ? submission.event.submitter : null;
  const onFormData = (event) => {
    // A field may go by the name of any property of the form.
    const read = (name, of) => of && Element.prototype.getAttribute.call(of, name);
    const action = read("formaction", submitterOf(event.target)) ?? read("action", event.target);
    hint("form", new URL(action && action.trim() || location.href, document.baseURI).href);
    setTimeout(() => hint("form", "")); // sent by then, or only looked at
  };
  const watchForms = (root) => {
    root.addEventListener("submit", onSubmit, true);
    root.addEventListener("formdata", onFormData, true);
  };
  watchForms(window);
  for (const kind of ["click", "keydown"]) // what is in a shadow tree does not tell beyond it
    window.addEventListener(kind, (event) => {
      event.composedPath().filter((node) => node instanceof ShadowRoot).forEach(watchForms);
    }, true);

  // A link leads somewhere once its click has been to everyone and nobody prevented that. Before or
  // later, a script goes there.
  const isOver = () => click && click.eventPhase === Event.NONE && !click.defaultPrevented;

  // Links within the page, and those to save, the engine follows without asking.
  const isUnasked = ({ destination: { url }, downloadRequest, hashChange, userInitiated }) =>
    downloadRequest == null ? hashChange && (userInitiated || (url === clicked && isOver()))
                            : isForTheBrowser(url);

  if (window.navigation) {
    navigation.addEventListener("navigate", (event) => {
      const url = event.destination.url;
      if (isUnasked(event)) {
        event.preventDefault();
        hint("unasked", url);
      } else if (event.navigationType === "reload" || event.navigationType === "traverse") {
        hint(event.navigationType, url);
      } else if (event.userInitiated) { // a click in a closed shadow tree, if it was not seen above
        latest = url;
        hint("link", url);
      } else if (url === latest && !isOver()) {
        hint("script", url);
      }
    });
  }

  // What is typed may be selected, nothing else.
  const isTyped = (node) =>
    node.localName === "input" || node.localName === "textarea" || node.isContentEditable ||
    (node.nodeType === Node.TEXT_NODE && node.parentElement !== null && node.parentElement.isContentEditable);
  const refuse = (event) => { event.preventDefault(); event.stopImmediatePropagation(); };
  window.addEventListener("selectstart", (event) => {
    if (!isTyped(event.composedPath()[0])) refuse(event);
  }, true);
  for (const kind of ["dragstart", "dragenter", "dragover", "drop"])
    window.addEventListener(kind, refuse, true);
})
