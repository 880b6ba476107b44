// The script of HTML5 pages: search, sort, jump by letter, fold columns, switch colours. Without it a page is a
// complete table, so it only adds. It stores nothing: the state stands in the address after "#".
"use strict";

// Rows in a body of a view: few in the first bodies, which are drawn at once; in the others as many as keep the bodies few.
// Both are even, so that rows alternate across bodies.
const FEW = 40;
const FIRST = 10*FEW;
const CHUNK = 200;
const root = document.documentElement;
const table = document.getElementById("tracks");
const heads = [...table.tHead.rows[0].cells];
const names = heads.map(head => head.textContent.trim());
const kinds = heads.map(head => head.dataset.kind);
const artist = heads.findIndex(head => "artist" in head.dataset);
const numbers = new Intl.NumberFormat();
const first = +(table.dataset.first || 1);
const total = +(table.dataset.total || 0);

const make = (name, attributes = {}, ...content) => {
  const element = document.createElement(name);
  for (const key in attributes) {
    element.setAttribute(key, attributes[key]);
  }
  element.append(...content);
  return element;
};
const on = (target, type, work) => target.addEventListener(type, work);

// Letters that have no decomposition.
const LETTERS = {ß: "ss", ø: "o", ł: "l", đ: "d", ð: "d", þ: "th", æ: "ae", œ: "oe", ı: "i", ħ: "h"};
const fold = text => {
  const lower = text.toLowerCase();
  return /^[\0-\x7f]*$/.test(lower) ? lower
    : lower.normalize("NFD").replace(/\p{M}/gu, "").replace(/[ßøłđðþæœıħ]/g, letter => LETTERS[letter]);
};

// Of an artist; "#" for digits, scripts without an alphabet and the path of a file without a tag.
const letterOf = text => {
  const found = /^[^\p{L}\p{N}/\\]*([\p{Script=Latin}\p{Script=Greek}\p{Script=Cyrillic}])/u.exec(fold(text.slice(0, 20)));
  return found ? found[1].toUpperCase() : "#";
};

// The rows that are searched: those of this page, or of all pages once the index is loaded. Their texts are read
// when they are first needed.
class Tracks {
  constructor(count, read, build, page) {
    Object.assign(this, {count, read, build, page, keys: new Array(count), letters: new Array(count), ranks: []});
  }
  key(i) {
    return this.keys[i] ??= fold(this.texts(i).join("\n"));
  }
  texts(i) {
    return this.read(i).filter((text, column) => kinds[column] !== "link");
  }
  letter(i) {
    return this.letters[i] ??= letterOf(this.read(i)[artist]);
  }
  // Numbers in the order of a column's texts; NaN where a text is empty or no number.
  rank(column) {
    return this.ranks[column] ??= rankTexts(Array.from({length: this.count}, (_, i) => this.read(i)[column]), kinds[column]);
  }
}

const VALUES = {
  number: text => parseFloat(text.replace(/^\D+/, "")),
  // Every size of a listing has the same number of decimals.
  size: text => parseFloat(text.replace(/\D/g, "")),
  time: text => text ? text.split(":").reduce((sum, part) => 60*sum + parseFloat(part), 0) : NaN
};
const rankTexts = (texts, kind) => {
  if (VALUES[kind]) {
    return Float64Array.from(texts, VALUES[kind]);
  }
  const {compare} = new Intl.Collator();
  const distinct = [...new Set(texts)].sort(compare);
  const places = new Map(distinct.map((text, place) => [text, text ? place : NaN]));
  return Float64Array.from(texts, text => places.get(text));
};
const ordered = sorts => {
  const order = Uint32Array.from({length: tracks.count}, (_, i) => i);
  const keys = sorts.map(([column, down]) => [tracks.rank(column), down ? -1 : 1]);
  return order.sort((a, b) => {
    for (const [ranks, sign] of keys) {
      const x = ranks[a], y = ranks[b];
      // Empty texts stay at the end in both directions.
      if (x !== y && (x === x || y === y)) {
        return x !== x ? 1 : y !== y ? -1 : sign*(x - y);
      }
    }
    return a - b;
  });
};

// A page of a few thousand tracks has all of its rows in the tree, so nothing is copied before it is needed.
const trs = [...table.querySelectorAll("tbody > tr:not(.album)")];
const readRow = i => {
  const texts = [];
  for (let cell = trs[i].firstElementChild; cell; cell = cell.nextElementSibling) {
    texts.push(cell.textContent.trimEnd());
  }
  return texts;
};
const own = new Tracks(trs.length, readRow, i => trs[i].cloneNode(true));
const grouped = table.classList.contains("grouped");

// What the address says; each sort is [column, descending]. `tracks` are those of the view.
const state = {query: "", words: [], sorts: [], all: false, scheme: "", track: 0};
let tracks = own;
let order = null;
let orderName = "";
// The numbers of the tracks that are shown, in order; null for the table as it was written.
let view = null;
let chunks = [];
let ticket = 0;

const idle = work => (window.requestIdleCallback || setTimeout)(work);

// Calls `step` for each number below `count`, in slices, until `stop` says so; then `done`.
const inSlices = (count, step, stop, done) => {
  let i = 0;
  const slice = deadline => {
    const end = performance.now() + Math.min(deadline ? deadline.timeRemaining() : 12, 30);
    while (i < count && !stop()) {
      step(i++);
      if (!(i & 63) && performance.now() > end) {
        idle(slice);
        return;
      }
    }
    if (!stop()) {
      done();
    }
  };
  idle(slice);
};

// Folding changes lengths, so each folded character keeps the place that it comes from.
const foldWithPlaces = text => {
  const places = [];
  let folded = "";
  let at = 0;
  for (const character of text) {
    const piece = fold(character);
    folded += piece;
    places.push(...Array(piece.length).fill(at));
    at += character.length;
  }
  places.push(at);
  return [folded, places];
};
const markText = node => {
  const [folded, places] = foldWithPlaces(node.data);
  const hits = [];
  for (const word of state.words) {
    for (let hit = folded.indexOf(word); hit >= 0; hit = folded.indexOf(word, hit + word.length)) {
      // To the end of the last character, which may have been folded into two.
      let end = hit + word.length;
      while (places[end] === places[end - 1]) {
        ++end;
      }
      hits.push([places[hit], places[end]]);
    }
  }
  let limit = Infinity;
  for (const [begin, end] of hits.sort((a, b) => b[0] - a[0] || b[1] - a[1])) {
    if (end <= limit) {
      node.splitText(end);
      const part = node.splitText(begin);
      part.replaceWith(make("mark", {}, part.data));
      limit = begin;
    }
  }
};
const markRow = row => {
  const walker = document.createTreeWalker(row, NodeFilter.SHOW_TEXT);
  const nodes = [];
  while (walker.nextNode()) {
    if (!walker.currentNode.parentNode.closest("a")) {
      nodes.push(walker.currentNode);
    }
  }
  nodes.forEach(markText);
};

// A view has its own bodies. Their rows are made when they come near the window; before that, their height is
// estimated.
const fill = chunk => {
  if (!chunk.filled) {
    chunk.filled = true;
    const rows = view.slice(chunk.start, chunk.end).map((i, place) => {
      const row = tracks.build(i);
      row.setAttribute("aria-rowindex", chunk.start + place + 2);
      if (state.words.length) {
        markRow(row);
      }
      return row;
    });
    chunk.body.style.height = "";
    chunk.body.style.setProperty("--rows", rows.length);
    chunk.body.append(...rows);
  }
};
const observer = new IntersectionObserver(entries => {
  for (const {isIntersecting, target} of entries) {
    const chunk = chunks[target.dataset.chunk];
    if (isIntersecting && chunk && chunk.body === target) {
      fill(chunk);
      observer.unobserve(target);
    }
  }
}, {rootMargin: "600px"});
let height = 20;

// The bodies of views stay in the table, without a height: Chromium takes 50 ms to remove or hide one of 1,000.
const bodies = [];
const bodyOf = number => {
  if (!bodies[number]) {
    table.append(bodies[number] = make("tbody", {class: "view", "data-chunk": number}));
  }
  return bodies[number];
};

const show = (hits, complete) => {
  if (!view && trs.length) {
    height = trs[0].offsetHeight;
  }
  observer.disconnect();
  for (const {body} of chunks) {
    body.replaceChildren();
    body.style.height = 0;
  }
  chunks = [];
  view = hits;
  table.classList.toggle("viewing", Boolean(view));
  table.classList.toggle("grouped", grouped && !view);
  bar.classList.toggle("grouped", grouped && !view);
  table.removeAttribute("aria-rowcount");
  if (view) {
    table.setAttribute("aria-rowcount", view.length + 1);
    for (let start = 0, end; start < view.length; start = end) {
      end = Math.min(start + (start < FIRST ? FEW : CHUNK), view.length);
      const body = bodyOf(chunks.length);
      body.style.height = (end - start)*height + "px";
      chunks.push({body, start, end, filled: false});
    }
    chunks.slice(0, 1).forEach(fill);
    chunks.forEach(chunk => observer.observe(chunk.body));
  }
  if (complete) {
    announce();
    showLetters();
    // So that the browser's own search finds them.
    if (view && view.length <= 2000) {
      const mine = ticket;
      inSlices(chunks.length, i => fill(chunks[i]), () => mine !== ticket, () => {});
    }
  }
};

const refresh = () => {
  const mine = ++ticket;
  const {words, sorts} = state;
  if (!words.length && !sorts.length) {
    tracks = own;
    show(null, true);
    return;
  }
  tracks = state.all && index || own;
  const name = sorts.join(";") + (tracks === own);
  if (name !== orderName) {
    order = sorts.length ? ordered(sorts) : null;
    orderName = name;
  }
  const hits = [];
  let place = 0;
  let shown = false;
  const slice = () => {
    const end = performance.now() + 40;
    while (mine === ticket && place < tracks.count) {
      const i = order ? order[place] : place;
      const key = words.length && tracks.key(i);
      if (words.every(word => key.includes(word))) {
        hits.push(i);
      }
      // The first matches are shown while the texts of the others are still read.
      if (!(++place & 255) && performance.now() > end) {
        if (!shown && hits.length >= CHUNK) {
          shown = true;
          show([...hits], false);
        }
        status.textContent = "Searching…";
        setTimeout(slice);
        return;
      }
    }
    if (mine === ticket) {
      show(hits, true);
    }
  };
  slice();
};

// The controls, in the order of the page.
const field = make("input", {type: "search", autocomplete: "off", spellcheck: "false", "aria-keyshortcuts": "/"});
const all = make("input", {type: "checkbox"});
const original = make("button", {type: "button", hidden: ""}, "Original order");
const details = make("button", {type: "button", class: "folds", "aria-pressed": "false"}, "All columns");
const scheme = make("button", {type: "button"});
const status = make("p", {role: "status"});
const letters = make("div", {role: "toolbar", "aria-label": "Artists by first letter"});
const bar = make("div", {class: "bar", role: "search", "aria-label": "Tracks"}, make("label", {}, "Search", field));
if (table.dataset.index) {
  bar.append(make("label", {class: "all"}, all, "All pages"));
}
letters.hidden = artist < 0;
bar.append(status, original, details, scheme, letters);
table.before(bar);
table.classList.add("script");

const announce = (problem = "") => {
  const count = view ? view.length : own.count;
  const parts = [view && state.words.length ? numbers.format(count) + " of " + numbers.format(tracks.count) : numbers.format(count)];
  parts[0] += tracks.count === 1 ? " track" : " tracks";
  parts.push(...state.sorts.map(([column, down], i) =>
    (i ? "then by " : "sorted by ") + names[column] + (down ? ", descending" : "")));
  status.textContent = (problem ? problem + " " : "") + parts.join(", ");
  original.hidden = !state.sorts.length;
  heads.forEach((head, column) => {
    const place = state.sorts.findIndex(sort => sort[0] === column);
    const direction = place >= 0 && state.sorts[place][1] ? "descending" : "ascending";
    head.removeAttribute("aria-sort");
    head.removeAttribute("data-second");
    if (place >= 0) {
      head.setAttribute(place ? "data-second" : "aria-sort", direction);
    }
  });
};

const sortBy = (column, add) => {
  const {sorts} = state;
  const found = sorts.find(sort => sort[0] === column);
  if (add && found) {
    found[1] = !found[1];
  } else if (add) {
    sorts.push([column, false]);
  } else if (found && sorts.length === 1) {
    state.sorts = found[1] ? [] : [[column, true]];
  } else {
    state.sorts = [[column, false]];
  }
  changed();
};
heads.forEach((head, column) => {
  if (kinds[column] !== "link") {
    const button = make("button", {type: "button"}, names[column]);
    on(button, "click", event => sortBy(column, event.shiftKey));
    // In Firefox the click that a key makes does not say whether Shift is held.
    on(button, "keydown", event => {
      if (event.shiftKey && event.key === "Enter") {
        event.preventDefault();
        sortBy(column, true);
      }
    });
    head.replaceChildren(button);
  }
});

// Leads to a track of the view by its place there.
const goTo = place => {
  let row = trs[place];
  if (view) {
    const chunk = chunks[place < FIRST ? Math.floor(place/FEW) : FIRST/FEW + Math.floor((place - FIRST)/CHUNK)];
    fill(chunk);
    row = chunk.body.rows[place - chunk.start];
  }
  const before = row.previousElementSibling;
  (before && before.matches(".album") ? before : row).scrollIntoView();
  row.tabIndex = -1;
  row.focus({preventScroll: true});
};

// The bar of letters is made once the artists are read, and shows which letters the view has.
let places = new Map();
const showLetters = () => {
  if (artist < 0) {
    return;
  }
  const mine = ticket;
  const found = new Map();
  const [seen, source] = [view, tracks];
  inSlices(seen ? seen.length : own.count, place => {
    const letter = source.letter(seen ? seen[place] : place);
    if (!found.has(letter)) {
      found.set(letter, place);
    }
  }, () => mine !== ticket, () => {
    places = found;
    const known = new Set([...letters.children].map(button => button.textContent));
    if ([...found.keys()].some(letter => !known.has(letter))) {
      const sorted = [...new Set([...known, ...found.keys()])].sort(new Intl.Collator().compare);
      letters.replaceChildren(...sorted.map(name => make("button", {type: "button", tabindex: -1}, name)));
      letters.firstChild.tabIndex = 0;
    }
    for (const button of letters.children) {
      button.setAttribute("aria-disabled", !found.has(button.textContent));
    }
  });
};
on(letters, "click", event => {
  const place = places.get(event.target.textContent);
  if (event.target !== letters && place !== undefined) {
    goTo(place);
  }
});
on(letters, "keydown", event => {
  const buttons = [...letters.children];
  const at = buttons.indexOf(event.target);
  const to = {ArrowLeft: at - 1, ArrowRight: at + 1, Home: 0, End: buttons.length - 1}[event.key];
  if (to !== undefined) {
    event.preventDefault();
    const next = buttons[(to + buttons.length) % buttons.length];
    buttons[at].tabIndex = -1;
    next.tabIndex = 0;
    next.focus();
  }
});

// The index of all pages is a script, because browsers let a page without a server load nothing else.
let index = null;
const loadIndex = () => {
  const fail = () => {
    all.checked = state.all = false;
    refresh();
    announce("The index of all pages cannot be loaded here: only this page is searched.");
  };
  window.tunedexIndex = ({perPage, pages, rows}) => {
    if (rows.length !== total) {
      return;
    }
    const here = Math.floor((first - 1)/perPage);
    index = new Tracks(rows.length, i => rows[i], i => {
      const page = Math.floor(i/perPage);
      const row = make("tr", {}, ...rows[i].map((text, column) =>
        make("td", {}, kinds[column] === "link" ? make("a", {href: text}, "Link") : text)));
      if (page !== here) {
        const link = make("a", {href: pages[page] + "#track=" + (i + 1)}, "Page " + (page + 1));
        row.cells[Math.max(kinds.indexOf("text"), 0)].append(" ", link);
      }
      return row;
    });
  };
  const script = make("script", {src: table.dataset.index});
  on(script, "error", fail);
  on(script, "load", () => index ? refresh() : fail());
  document.head.append(script);
};

// The state in the address.
const write = () => {
  const parts = new URLSearchParams();
  if (state.query) {
    parts.set("q", state.query);
  }
  if (state.sorts.length) {
    parts.set("sort", state.sorts.map(([column, down]) => (down ? "-" : "") + (column + 1)).join());
  }
  if (state.all) {
    parts.set("all", 1);
  }
  if (state.scheme) {
    parts.set("colours", state.scheme);
  }
  const address = String(parts);
  if (address !== location.hash.slice(1)) {
    history.replaceState(null, "", "#" + address);
  }
  for (const link of document.querySelectorAll("nav a")) {
    link.hash = state.scheme && "colours=" + state.scheme;
  }
};
const read = () => {
  const parts = new URLSearchParams(location.hash.slice(1));
  const sorts = (parts.get("sort") || "").split(",").map(Number)
    .filter(number => number && heads[Math.abs(number) - 1] && kinds[Math.abs(number) - 1] !== "link");
  state.query = field.value = parts.get("q") || "";
  state.sorts = sorts.map(number => [Math.abs(number) - 1, number < 0]);
  state.all = all.checked = Boolean(table.dataset.index) && parts.has("all");
  state.scheme = ["dark", "light"].find(name => name === parts.get("colours")) || "";
  state.track = Number(parts.get("track"));
  apply();
  if (!view && trs[state.track - first]) {
    goTo(state.track - first);
  }
};
let timer = 0;
const changed = () => {
  apply();
  // Browsers limit how often a page may change its address.
  clearTimeout(timer);
  timer = setTimeout(write, 200);
};
const apply = () => {
  state.words = [...new Set(fold(state.query).split(/\s+/))].filter(Boolean);
  if (state.scheme) {
    root.dataset.scheme = state.scheme;
  } else {
    delete root.dataset.scheme;
  }
  scheme.textContent = isDark() ? "Light colours" : "Dark colours";
  if (state.all && !index) {
    loadIndex();
  }
  refresh();
};
const dark = matchMedia("(prefers-color-scheme: dark)");
const isDark = () => state.scheme ? state.scheme === "dark" : dark.matches;

on(field, "input", () => {
  state.query = field.value;
  changed();
});
on(field, "keydown", event => {
  if (event.key === "Escape") {
    event.preventDefault();
    if (!field.value) {
      field.blur();
    }
    field.value = state.query = "";
    changed();
  }
});
on(document, "keydown", event => {
  if (event.key === "/" && !event.ctrlKey && !event.altKey && !event.metaKey && !event.target.closest("input, textarea, select")) {
    event.preventDefault();
    field.focus();
    field.select();
  }
});
on(all, "change", () => {
  state.all = all.checked;
  changed();
});
on(original, "click", () => {
  state.sorts = [];
  changed();
  field.focus();
});
on(details, "click", () => {
  details.setAttribute("aria-pressed", table.classList.toggle("details"));
});
on(scheme, "click", () => {
  state.scheme = isDark() ? "light" : "dark";
  changed();
});
on(dark, "change", apply);
// A row with folded columns opens at a click.
on(table, "click", event => {
  const row = event.target.closest("tbody tr");
  if (row && !event.target.closest("a") && getSelection().isCollapsed) {
    row.classList.toggle("open");
  }
});
on(window, "hashchange", () => location.hash.includes("=") && read());
on(window, "beforeprint", () => chunks.forEach(fill));

new ResizeObserver(() => {
  const above = getComputedStyle(bar).position === "sticky" ? bar.offsetHeight : 0;
  table.tHead.style.top = above + "px";
  root.style.scrollPaddingTop = above + table.tHead.offsetHeight + "px";
}).observe(bar);
document.querySelector("footer").append(make("p", {class: "keys"},
  "Keys: / searches, Esc ends the search; Enter on a column sorts, Shift+Enter adds a column; Left and Right choose a letter, Enter jumps to it."));
read();
inSlices(own.count, i => own.key(i), () => false, () => {});
