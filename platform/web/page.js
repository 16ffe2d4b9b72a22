// The page's side of the program: the functions that Page.h declares, and the events that it reports. Nothing is decided
// here. The program refers to elements by numbers; lengths are pixels of the screen.
/* global _page_input, _page_key, _page_mouse, _page_resized, _page_start, _page_touch */
/* global Asyncify, HEAP32, HEAPF64, UTF8ToString */
'use strict';

const page = {
  elements: [], // by number, which is the id too
  ratio: 1, // pixels of the screen for each of the page
  colours: {},
  ruler: document.createElement('canvas').getContext('2d'),
  held: null, // the picture box that a held button was pressed on
  began: null, // the picture box that the last press or touch began on, if any
  pressTime: 0,
  wakeUp: null,
  keys: [], // names, by the program's numbers
  touches: {pointerdown: 0, pointermove: 1, pointerup: 2, longpress: 3, pointercancel: 4}, // TouchEvent

  number(element) {
    element.target = element.querySelector('input, canvas') ?? element; // of attributes and the focus
    element.number = element.id = page.elements.push(element) - 1;
    return element.number;
  },
  css: (pixels) => `${pixels / page.ratio}px`,
  colour: (bgr) => page.colours[bgr] ??= `rgb(${bgr & 255},${bgr >> 8 & 255},${bgr >> 16 & 255})`,
  context: (canvas) => page.elements[canvas].target.context,
  shiftKeys: (event) => event.shiftKey + 2 * event.ctrlKey + 4 * event.altKey + 8 * event.metaKey,

  key(event) {
    const key = page.keys.indexOf(event.key.length === 1 ? event.key.toLowerCase() : event.key);
    const letter = event.altKey && !event.ctrlKey && /^Key.$/.test(event.code) && event.code.charCodeAt(3);
    const focus = document.activeElement.closest('[id]')?.id;
    _page_key(focus, key, letter, page.shiftKeys(event), event.repeat) || event.preventDefault();
  },
  // The document listens, since it receives a held button beyond its edges and whatever dialog has opened.
  pointer(event) {
    const {type, pointerType, pointerId, button, buttons} = event;
    const touches = pointerType === 'touch';
    const box = !touches && page.held || event.target.closest?.('.surface');
    if (type === 'pointerdown') {
      page.began = box;
      box?.target.focus({preventScroll: true});
      page.held = touches ? page.held : box;
    }
    page.held = buttons ? page.held : null;
    if (!box) {
      return;
    }
    if (type !== 'pointermove') {
      clearTimeout(page.pressTime);
      box.corner = null;
    }
    box.corner ??= box.getBoundingClientRect(); // too slow for each move
    const x = (event.clientX - box.corner.left) * page.ratio;
    const y = (event.clientY - box.corner.top) * page.ratio;
    if (!touches) {
      _page_mouse(box.number, button, buttons, page.shiftKeys(event), x, y);
      return;
    }
    if (type === 'pointerdown') {
      page.pressTime = setTimeout(_page_touch, 600, box.number, page.touches.longpress, pointerId, x, y);
    }
    _page_touch(box.number, page.touches[type], pointerId, x, y);
  },
  listen(keys, leastWidth, leastHeight) {
    page.keys = UTF8ToString(keys).split(',');
    const on = (types, listener) => types.forEach((type) => document.addEventListener(type, listener, true));
    on(['keydown'], page.key);
    on(['keydown'], ({key}) => /^(Tab|Arrow)/.test(key) && document.body.classList.add('keys'));
    on(['pointerdown'], () => document.body.classList.remove('keys'));
    on(['pointerdown', 'pointermove', 'pointerup', 'pointercancel'], page.pointer);
    on(['contextmenu', 'dragstart'], (event) => event.preventDefault());
    // Only controls take the focus.
    on(['mousedown'], (event) => event.target.closest?.('button, label, input, a') ?? event.preventDefault());
    // A tap that began on a picture box ends in a click on whatever dialog has opened under the finger: ignored.
    on(['click', 'input'], ({target, detail}) => {
      const element = !(detail && page.began) && target.closest?.('button, input');
      page.began = null;
      element && _page_input(element.closest('[id]').id, element.valueAsNumber || 0);
    });
    on(['cancel', 'close'], (event) => {
      event.preventDefault();
      _page_key(0, page.keys.indexOf('Escape'), 0, 0, false);
    });

    const main = document.querySelector('main');
    page.number(main);
    // The browser's own rounding counts, if it reports one that is up to date.
    const exact = (told, length) => Math.abs(told - length) < 1 ? told : Math.round(length);
    const resized = ({width, height}, told) => {
      page.ratio = Math.max(devicePixelRatio, leastWidth / width, leastHeight / height);
      main.style.setProperty('--hairline', page.css(Math.round(page.ratio)));
      const size = [exact(told?.inlineSize, width * page.ratio), exact(told?.blockSize, height * page.ratio)];
      main.shows === (main.shows = `${size} ${page.ratio}`) || _page_resized(...size);
    };
    resized(main.getBoundingClientRect()); // before the first form is shown
    main.replaceChildren();
    const observer = new ResizeObserver(([entry]) => resized(entry.contentRect, entry.devicePixelContentBoxSize?.[0]));
    const tells = 'devicePixelContentBoxSize' in ResizeObserverEntry.prototype;
    const observe = () => { // again at another zoom and on another screen
      observer.disconnect();
      observer.observe(main, {box: tells ? 'device-pixel-content-box' : 'content-box'});
      matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener('change', observe, {once: true});
    };
    observe();
    (window.requestIdleCallback ?? setTimeout)(() => navigator.serviceWorker?.register('offline.js').catch(() => {}));
  },

  // Elements.

  add(parent, name) {
    const element = document.getElementById(UTF8ToString(name)).content.firstElementChild.cloneNode(true);
    page.elements[parent].append(element);
    page.number(element);
    element.target.name = parent; // one group of option buttons for each container
    return element.number;
  },
  remove(number) {
    const element = page.elements[number];
    element?.close?.();
    element?.remove();
    element?.querySelectorAll('[id]').forEach(({id}) => page.remove(id));
    page.elements[number] = null;
  },
  attribute: (number, name, value) =>
    page.elements[number].target.setAttribute(UTF8ToString(name), UTF8ToString(value)),
  property: (number, name, value) => Object.assign(page.elements[number].target, {[UTF8ToString(name)]: value}),
  unit: (number, pixels) => page.elements[number].style.setProperty('--unit', page.css(pixels)),
  place(number, left, top, width, height) {
    const element = page.elements[number];
    element.corner = null;
    Object.assign(element.style, {left: page.css(left), top: page.css(top)});
    Object.assign(element.style, {width: page.css(width), height: page.css(height)});
  },
  // The ampersand marks the access key.
  caption(number, text) {
    const element = page.elements[number];
    const caption = UTF8ToString(text);
    if (element.caption === caption) {
      return; // a live region would be spoken again
    }
    element.caption = caption;
    const shows = element.querySelector('span');
    const [before, letter, after] = caption.split(/&(\w)/);
    const mark = document.createElement('u');
    mark.textContent = letter;
    shows?.replaceChildren(before, ...letter ? [mark, after] : []);
    shows ?? element.target.setAttribute('aria-label', caption);
  },
  font(number, pixels, bold, stretch) {
    const {style} = page.elements[number].querySelector('span');
    const [width, transform] = stretch < 100 ? [`${10000 / stretch}%`, `scaleX(${stretch}%)`] : ['', ''];
    Object.assign(style, {fontWeight: bold ? 'bold' : '', fontSize: page.css(pixels), width, transform});
  },
  textWidth(text, pixels, bold) {
    page.ruler.font = `${bold ? 'bold ' : ''}${pixels}px system-ui,sans-serif`;
    return page.ruler.measureText(UTF8ToString(text)).width;
  },
  focus: (number) => page.elements[number].target.focus({preventScroll: true}),
  show(number) {
    const element = page.elements[number];
    document.body.classList.remove('keys');
    element.hidden = false;
    if (element.showModal) {
      element.showModal();
    } else {
      document.title = element.getAttribute('aria-label');
    }
    element.querySelector('canvas[tabindex], button').focus();
  },
  gameOver() {
    document.body.classList.add('over');
    document.querySelector('#over a').focus();
  },

  // Waiting.

  suspend: () => Asyncify.handleAsync(() => new Promise((wakeUp) => {
    page.wakeUp = wakeUp;
  })),
  resume: () => page.wakeUp(),
  // A hidden page gets no frames.
  frame: () => Asyncify.handleAsync(() => new Promise((wakeUp) => {
    requestAnimationFrame(() => setTimeout(wakeUp));
    setTimeout(wakeUp, document.hidden ? 0 : 100);
  })),

  // Canvases. The transform is reset after each call.

  canvasMake: () => page.number(document.createElement('canvas')),
  canvasSize(canvas, width, height) {
    const element = page.elements[canvas].target;
    Object.assign(element, {width, height});
    element.context = element.getContext('2d');
    element.context.imageSmoothingEnabled = false;
  },
  canvasClip(canvas, left, top, width, height) {
    const context = page.context(canvas);
    context.restore();
    context.save();
    context.beginPath();
    context.rect(left, top, width, height);
    context.clip();
  },
  canvasTexture(canvas, texture, x, y) {
    const context = page.context(canvas);
    context.fillStyle = context.createPattern(page.elements[texture], 'repeat');
    context.fillStyle.setTransform({e: x, f: y});
  },
  canvasFill(canvas, colour, left, top, width, height) {
    const context = page.context(canvas);
    context.fillStyle = page.colour(colour);
    context[colour < 0 ? 'clearRect' : 'fillRect'](left, top, width, height);
  },
  // Each step has seven fields of eight bytes: an integer of four, then doubles.
  canvasPath(canvas, colour, transform, steps, count, width, round) {
    const context = page.context(canvas);
    if (colour >= 0) {
      context[width ? 'strokeStyle' : 'fillStyle'] = page.colour(colour);
    }
    const n = HEAPF64;
    let at = transform >> 3;
    context.setTransform(n[at], n[at + 1], n[at + 2], n[at + 3], n[at + 4], n[at + 5]);
    context.beginPath();
    for (at = steps >> 3; count > 0; --count, at += 7) {
      switch (HEAP32[2 * at]) {
        case 0: context.moveTo(n[at + 1], n[at + 2]); break;
        case 1: context.lineTo(n[at + 1], n[at + 2]); break;
        case 2: context.bezierCurveTo(n[at + 3], n[at + 4], n[at + 5], n[at + 6], n[at + 1], n[at + 2]); break;
        default: context.closePath();
      }
    }
    if (width) {
      const [lineCap, lineJoin] = round ? ['round', 'round'] : ['butt', 'miter'];
      Object.assign(context, {lineWidth: width, lineCap, lineJoin}).stroke();
    }
    context.resetTransform();
    width || context.fill();
  },
  canvasDraw(canvas, from, left, top, width, height, x, y, mirrored, upsideDown) {
    const context = page.context(canvas);
    context.setTransform(1 - 2 * mirrored, 0, 0, 1 - 2 * upsideDown, x + mirrored * width, y + upsideDown * height);
    context.drawImage(page.elements[from], left, top, width, height, 0, 0, width, height);
    context.resetTransform();
  },
};

// Without dialogs the game does not start, and the page keeps the text about browsers.
globalThis.Module = {onRuntimeInitialized: () => globalThis.HTMLDialogElement && _page_start()};
