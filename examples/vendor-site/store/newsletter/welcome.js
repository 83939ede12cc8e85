// What the page in the welcome window does, in every language: the words are in the pages.
//
// Inside an application the global object "Recommender" leads to it; docs/page-author.md has the
// contract. In an ordinary browser there is none, and what needs an application stays hidden.
"use strict";

(() => {
  const kWidth = 720;
  const kLeastHeight = 420;
  const kPatience = 1500; // milliseconds that the window waits for the list of applications

  const host = window.Recommender;
  const find = (selector) => document.querySelector(selector);
  const findAll = (selector) => [...document.querySelectorAll(selector)];
  const show = (selector) => findAll(selector).forEach((element) => { element.hidden = false; });
  const hide = (selector) => findAll(selector).forEach((element) => { element.hidden = true; });

  // An older application may lack what a later one can do. It is asked by the native name, which
  // has a colon for each argument.
  const can = (operation) => Boolean(host) && host.checkSelector(`javascript_${operation}`);

  // --- The window ------------------------------------------------------------------------------

  // The height that everything takes at this width, whatever the window's size is while hidden.
  function heightAt(width) {
    const root = document.documentElement;
    root.style.width = `${width}px`;
    const height = root.offsetHeight;
    root.style.width = "";
    return height;
  }

  function sizeWindow() {
    const most = Math.max(kLeastHeight, screen.availHeight - 160);
    const width = Math.min(kWidth, screen.availWidth);
    const height = Math.min(Math.max(heightAt(width), kLeastHeight), most, 860);
    host["setWidth:height"](width, Math.round(height));
  }

  // The welcome window waits for its page, and a window that is not there has no outer size. One
  // that is there before its page was opened for the newsletter.
  const isNewsletter = () => window.outerWidth > 0 && can("subscribe:");

  let shown = false;
  function showWindow() {
    if (shown) return;
    shown = true;
    const opensAtForm = isNewsletter();
    sizeWindow();
    host.showWindow();
    if (opensAtForm) openAtForm();
  }

  // --- The application -------------------------------------------------------------------------

  // The country chose the page; the user's language has the last word.
  function pageInUsersLanguage() {
    const language = host.languageCode().split("-")[0].toLowerCase();
    if (language === document.documentElement.lang) return null;
    return find(`link[rel="alternate"][hreflang="${CSS.escape(language)}"]`);
  }

  function introduceHost() {
    const facts = {
      name: host.appName(),
      build: host.bundleVersion(),
      id: host.bundleID() || "",
      country: host.countryCode(),
      language: host.languageCode(),
    };
    for (const element of findAll("[data-host]")) element.textContent = facts[element.dataset.host];
    document.title = facts.name;
    show(host.updating() ? ".when-updated" : ".when-new");
    hide(host.updating() ? ".when-new" : ".when-updated");
    show(".in-host");
    // What is new is known, and a picture is there, for some applications only.
    for (const element of findAll("[data-for]"))
      element.hidden = !element.dataset.for.split(" ").includes(facts.id);
    const locale = `${facts.country}_${facts.language.split("-")[0].toLowerCase()}`;
    find("#support").href = `../../app_redirect/support_${locale}/${encodeURIComponent(facts.id)}`;
  }

  // --- Recommended applications ----------------------------------------------------------------

  function isWebAddress(text) {
    return /^https?:\/\//i.test(text);
  }

  // The application's first letter stands in for an icon that does not come.
  function fillIcon(place, app) {
    const image = new Image();
    image.alt = "";
    image.onload = () => {
      place.replaceChildren(image);
      place.classList.add("loaded");
    };
    place.textContent = [...app.name][0] || "";
    if (isWebAddress(app.iconURL)) image.src = app.iconURL;
  }

  function itemFor(app, index) {
    const item = find("#app").content.cloneNode(true).firstElementChild;
    const part = (selector) => item.querySelector(selector);
    item.classList.toggle("first", index === 0);
    item.dataset.id = app.bundleID;
    part("h3").textContent = app.name || app.bundleID;
    part("p").textContent = app.descr;
    fillIcon(part(".icon"), app);
    const link = part("a");
    if (app.linkName) link.textContent = app.linkName;
    if (isWebAddress(app.link)) link.href = app.link;
    else link.remove();
    return item;
  }

  // Called by the application, once, with the list as JSON text, best first.
  window.setRecommendations = (text) => {
    const apps = JSON.parse(text);
    find("#apps").replaceChildren(...apps.map(itemFor));
    show(apps.length > 0 ? "#recommended" : "#nothing");
    showWindow();
  };

  // --- Newsletter ------------------------------------------------------------------------------

  function tell(outcome, address = "") {
    hide(".note");
    const note = find(`.note.${outcome}`);
    const mark = note.querySelector("[data-address]");
    if (mark) mark.textContent = address;
    note.hidden = false;
    find("#email").setAttribute("aria-invalid", String(outcome === "bad"));
  }

  // Once more when the window has got its size, and the list its place above.
  function openAtForm() {
    const field = find("#email");
    const reveal = () => find("#newsletter").scrollIntoView({ block: "center" });
    field.focus({ preventScroll: true });
    reveal();
    window.addEventListener("resize", reveal);
    setTimeout(() => window.removeEventListener("resize", reveal), kPatience);
  }

  // False for what is no address; the application then says so by itself, too.
  function subscribe(event) {
    event.preventDefault();
    const field = find("#email");
    const address = field.value.trim();
    if (address === "") {
      host.beep();
    } else if (host.subscribe(address)) {
      tell("good", address);
      field.value = "";
      return;
    }
    tell("bad");
    field.focus();
  }

  // --- Start -----------------------------------------------------------------------------------

  function start() {
    const better = pageInUsersLanguage();
    if (better) return location.replace(better.href);
    window.addEventListener("error", (event) => host.log(event.message));
    introduceHost();
    find("form").addEventListener("submit", subscribe);
    if (can("subscribe:")) show("#newsletter");
    if (can("openAppstoreForApp")) show("#store");
    find("#store").addEventListener("click", () => host.openAppstoreForApp());
    setTimeout(showWindow, kPatience);
    host.ready();
  }

  if (host) start();
})();
