// What the example page must have done with the stand-in application of docs/page-author.md, or
// without one: "" or what is missing.
(() => {
  const shown = (selector) => {
    const element = document.querySelector(selector);
    return Boolean(element) && element.offsetParent !== null;
  };
  const text = (selector) => document.querySelector(selector).textContent.trim();

  if (!window.Recommender) {
    const inHost = ["#store", "#newsletter", "#recommended", "#nothing", ".in-host"].find(shown);
    return inHost ? `${inHost} is there without an application` : shown("#news") ? "" : "no news";
  }
  if (!calls.includes("showWindow")) return "the window is not shown";
  const order = calls.filter((name) => ["ready", "setWidth:height", "showWindow"].includes(name));
  if (order.join() !== "ready,setWidth:height,showWindow") return `wrong order: ${order}`;
  if (text("h1 span") !== "Photo Tool" || text("[data-host=build]") !== "1204") return "no name or build";
  const field = document.querySelector("#email");
  if (calls.at(-1) === "showWindow" && (document.activeElement === field) !== (window.outerWidth > 0))
    return "the field has the focus where it should not, or has not";
  if (!shown(".over.when-updated") || shown(".over.when-new")) return "no word of the update";
  if (!shown("#news") || !shown("#newsletter") || !shown("#store") || shown("#nothing"))
    return "a section is missing, or too much";
  if (document.querySelectorAll(".app").length !== 1 || text(".app h3") !== "Lamplight") return "no list";
  const support = `app_redirect/support_US_${document.documentElement.lang}/com.example.phototool`;
  if (!document.querySelector("#support").href.endsWith(support)) return "no way to the support";

  const subscribe = (address) => {
    const before = calls.length;
    document.querySelector("#email").value = address;
    let stays = false;
    document.addEventListener("submit", (event) => { stays = event.defaultPrevented; }, { once: true });
    document.querySelector("form").requestSubmit();
    return stays ? calls.slice(before).join() : "the form is sent";
  };
  if (subscribe(" ") !== "beep" || !shown(".note.bad") || shown(".note.good")) return "no beep at nothing";
  if (subscribe("nonsense") !== "subscribe" || !shown(".note.bad")) return "nonsense is taken";
  if (subscribe(" ann@brenmoor.de ") !== "subscribe" || !shown(".note.good") || shown(".note.bad"))
    return "an address is not taken";
  if (text("[data-address]") !== "ann@brenmoor.de") return "another address is shown";
  document.querySelector("#store").click();
  if (calls.at(-1) !== "openAppstoreForApp") return "the store is not opened";

  setRecommendations("[]");
  if (!shown("#nothing") || document.querySelector(".app")) return "an empty list is no list";
  const odd = { name: "<b>Odd</b>", bundleID: "x", iconURL: "file:///x", descr: "", link: "javascript:beep()", linkName: "" };
  setRecommendations(JSON.stringify([odd]));
  if (text(".app h3") !== odd.name || document.querySelector(".app a")) return "markup or script gets in";
  if (calls.filter((name) => name === "showWindow").length !== 1) return "the window is shown again";
  return "";
})();
